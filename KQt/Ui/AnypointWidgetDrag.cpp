#include <KQt/Ui/AnypointWidgetDrag.h>

#include <QMouseEvent>

namespace Kestrel::Gui {

AnypointWidgetDrag::AnypointWidgetDrag(QWidget* widget, QObject* parent)
    : QObject(parent)
    , m_widget(widget)
{
}

AnypointWidgetDrag::~AnypointWidgetDrag() = default;

bool AnypointWidgetDrag::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        StartDrag(static_cast<QMouseEvent*>(event)->globalPos());
        return false;
    case QEvent::MouseMove: {
        // Moving the widget may delete what is watched: the event must not go on to it then.
        const QPointer<QObject> receiver(watched);
        ProcessDrag(static_cast<QMouseEvent*>(event)->globalPos());
        return watched != receiver;
    }
    case QEvent::MouseButtonRelease:
        return StopDrag();
    default:
        return false;
    }
}

void AnypointWidgetDrag::StartDrag(const QPoint& globalPos)
{
    if (!m_widget)
        return;
    m_pressPosition = globalPos;
    m_offset = globalPos - m_widget->pos();
    m_dragging = true;
}

void AnypointWidgetDrag::ProcessDrag(const QPoint& globalPos)
{
    if (!m_dragging || !m_widget)
        return;
    const QPointer<AnypointWidgetDrag> self(this);
    m_widget->move(globalPos - m_offset);
    if (!self)
        return;
    constexpr int dragDistance = 11;
    const QPoint way = globalPos - m_pressPosition;
    if (qAbs(way.x()) >= dragDistance || qAbs(way.y()) >= dragDistance)
        m_isClick = false;
}

bool AnypointWidgetDrag::StopDrag()
{
    const bool wasClick = m_isClick;
    m_isClick = true;
    m_dragging = false;
    return !wasClick;
}

} // namespace Kestrel::Gui
