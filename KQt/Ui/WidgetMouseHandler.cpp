#include <KQt/Ui/WidgetMouseHandler.h>

#include <KQt/Ui/Check.h>

#include <QHoverEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QWidget>

namespace Kestrel::Gui {

WidgetMouseHandler::WidgetMouseHandler(QWidget* parent)
    : QObject(parent)
{
    if (!parent)
        KQTUI_THROW_INVALID_ARGUMENT("Parent object can't be NULL");
    parent->installEventFilter(this);
}

WidgetMouseHandler::~WidgetMouseHandler() = default;

void WidgetMouseHandler::EnableEventPropagation(bool enable)
{
    m_propagateEvents = enable;
}

bool WidgetMouseHandler::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != parent())
        return QObject::eventFilter(watched, event);

    const QPointer<WidgetMouseHandler> self(this);
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        Q_EMIT MouseButtonPressed(static_cast<QMouseEvent*>(event));
        break;
    case QEvent::MouseButtonRelease:
        Q_EMIT MouseButtonReleased(static_cast<QMouseEvent*>(event));
        break;
    case QEvent::MouseMove:
        Q_EMIT MouseMoved(static_cast<QMouseEvent*>(event));
        break;
    case QEvent::Enter:
        Q_EMIT MouseEntered();
        break;
    case QEvent::Leave:
        Q_EMIT MouseLeaved();
        break;
    case QEvent::HoverMove:
        Q_EMIT MouseHoverMoved(static_cast<QHoverEvent*>(event));
        break;
    case QEvent::HoverEnter:
        Q_EMIT MouseHoverEntered(static_cast<QHoverEvent*>(event));
        break;
    case QEvent::HoverLeave:
        Q_EMIT MouseHoverLeaved(static_cast<QHoverEvent*>(event));
        break;
    default:
        return QObject::eventFilter(watched, event);
    }

    // A slot may have deleted the handler, alone or with its widget. The event then ends here.
    if (!self)
        return true;
    event->setAccepted(!m_propagateEvents);
    return !m_propagateEvents;
}

} // namespace Kestrel::Gui
