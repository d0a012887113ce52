#include "widgets/LineSketch.h"

#include <QPainter>
#include <QPainterPath>

namespace Gallery {

LineSketch::LineSketch(QWidget* parent)
    : QWidget(parent)
{
    setMinimumHeight(LineSketch::sizeHint().height());
}

void LineSketch::setPen(const QPen& pen)
{
    m_pen = pen;
    update();
}

QSize LineSketch::sizeHint() const
{
    return {240, 90};
}

void LineSketch::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    constexpr qreal margin = 16;
    const QRectF area = QRectF(rect()).adjusted(margin, margin, -margin, -margin);
    QPainterPath wave(QPointF(area.left(), area.center().y()));
    wave.cubicTo(area.left() + area.width() / 3, area.top() - area.height() / 2, area.right() - area.width() / 3,
                 area.bottom() + area.height() / 2, area.right(), area.center().y());

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), palette().base());
    painter.strokePath(wave, m_pen);
}

} // namespace Gallery
