#include <KQt/Ui/WidgetMouseHandler.h>

#include <KQt/Ui/Check.h>

#include <QHoverEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QWidget>

namespace Kestrel::Gui {

namespace {

bool isReported(QEvent::Type type)
{
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove:
    case QEvent::Enter:
    case QEvent::Leave:
    case QEvent::HoverMove:
    case QEvent::HoverEnter:
    case QEvent::HoverLeave:
        return true;
    default:
        return false;
    }
}

} // namespace

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
    // By type first: of all that a widget receives, hardly anything is reported.
    if (!isReported(event->type()) || watched != parent())
        return QObject::eventFilter(watched, event);

    // Slots may change the flag, which is for the events that follow, and delete the handler or its widget.
    const bool propagate = m_propagateEvents;
    const QPointer<QObject> widget(watched);
    report(event);
    // A deleted widget receives nothing any more. Accepted, for Qt asks the receiver of a consumed event that is not.
    const bool swallow = !propagate || !widget;
    event->setAccepted(swallow);
    return swallow;
}

void WidgetMouseHandler::report(QEvent* event)
{
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
        break;
    }
}

} // namespace Kestrel::Gui
