#include <KQt/Ui/WidgetResizeHandler.h>

#include <KQt/Ui/Check.h>

#include <QPointer>
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
    const QEvent::Type type = event->type();
    if (type != QEvent::Resize && type != QEvent::Show)
        return false;

    const QPointer<QObject> receiver(watched);
    if (type == QEvent::Resize) {
        const auto* resize = static_cast<QResizeEvent*>(event);
        Q_EMIT Resized(resize->oldSize(), resize->size());
    } else if (const auto* widget = qobject_cast<QWidget*>(watched)) {
        // The frame size on purpose, unlike the client sizes of a resize.
        Q_EMIT Resized(widget->frameSize(), widget->frameSize());
    }
    // Never consumed, but for an object that a slot has deleted: nobody is left to receive the event.
    return watched && !receiver;
}

} // namespace Kestrel::Gui
