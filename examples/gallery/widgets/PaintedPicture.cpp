#include "widgets/PaintedPicture.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>

namespace Gallery {

namespace {

void paintSky(QPainter& painter, const QRectF& area)
{
    QLinearGradient sky(area.topLeft(), area.bottomLeft());
    sky.setStops(
        {{0.0, QColor(0x021f54)}, {0.45, QColor(0x9c29b7)}, {0.75, QColor(0xff8351)}, {1.0, QColor(0xffe3ae)}});
    painter.fillRect(area, sky);
}

void paintSun(QPainter& painter, const QRectF& area)
{
    const QPointF center(area.left() + area.width() * 0.68, area.top() + area.height() * 0.62);
    const qreal radius = area.height() * 0.18;
    QRadialGradient sun(center, radius);
    sun.setStops({{0.0, QColor(0xfffce0)}, {0.7, QColor(0xfefb64)}, {1.0, QColor(0xffa834)}});
    painter.setPen(Qt::NoPen);
    painter.setBrush(sun);
    painter.drawEllipse(center, radius, radius);
}

void paintHill(QPainter& painter, const QRectF& area, qreal left, qreal top, qreal right, const QColor& color)
{
    const auto at = [&area](qreal x, qreal y) {
        return QPointF(area.left() + area.width() * x, area.top() + area.height() * y);
    };
    QPainterPath hill(at(0, 1));
    hill.lineTo(at(0, left));
    hill.cubicTo(at(0.3, top), at(0.55, top + 0.25), at(1, right));
    hill.lineTo(at(1, 1));
    painter.setPen(Qt::NoPen);
    painter.fillPath(hill, color);
}

} // namespace

PaintedPicture::PaintedPicture(QWidget* parent)
    : QWidget(parent)
{
    constexpr QSize smallest(200, 120);
    setMinimumSize(smallest);
}

QSize PaintedPicture::sizeHint() const
{
    return {420, 260};
}

void PaintedPicture::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    const QRectF area(rect());
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipRect(area);
    paintSky(painter, area);
    paintSun(painter, area);
    paintHill(painter, area, 0.62, 0.45, 0.8, QColor(0x4c7a34));
    paintHill(painter, area, 0.85, 0.6, 0.72, QColor(0x243e16));
}

} // namespace Gallery
