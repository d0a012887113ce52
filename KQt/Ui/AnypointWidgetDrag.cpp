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
    Q_UNUSED(watched)
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        StartDrag(static_cast<QMouseEvent*>(event)->globalPos());
        return false;
    case QEvent::MouseMove:
        ProcessDrag(static_cast<QMouseEvent*>(event)->globalPos());
        return false;
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
    m_widget->move(globalPos - m_offset);
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
