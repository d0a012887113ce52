#include <KQt/Ui/WidgetResizeHandler.h>

#include <KQt/Ui/Check.h>

#include <QResizeEvent>
#include <QWidget>

namespace Kestrel::Gui {

WidgetResizeHandler::WidgetResizeHandler(QObject* parent)
    : QObject(parent)
{
    if (!parent)
        KQTUI_THROW_INVALID_ARGUMENT("Parent object can't be NULL");
    parent->installEventFilter(this);
}

WidgetResizeHandler::~WidgetResizeHandler() = default;

bool WidgetResizeHandler::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize) {
        const auto* resize = static_cast<QResizeEvent*>(event);
        Q_EMIT Resized(resize->oldSize(), resize->size());
    } else if (event->type() == QEvent::Show) {
        // The frame size on purpose, unlike the client sizes of a resize.
        if (const auto* widget = qobject_cast<QWidget*>(watched))
            Q_EMIT Resized(widget->frameSize(), widget->frameSize());
    }
    return false;
}

} // namespace Kestrel::Gui
