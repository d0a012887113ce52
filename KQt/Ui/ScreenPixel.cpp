#include <KQt/Ui/ScreenPixel.h>

#include <QColor>
#include <QGuiApplication>
#include <QImage>
#include <QPixmap>
#include <QScreen>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace Kestrel::Gui::Detail {

namespace {

QPoint wholeUnit(const QPointF& position)
{
    return {static_cast<int>(std::floor(position.x())), static_cast<int>(std::floor(position.y()))};
}

/// The pixel of @p picture, which shows the one unit at @p unit, that lies at @p position.
QColor pixelOfUnit(const QPixmap& picture, const QPoint& unit, const QPointF& position)
{
    const QImage image = picture.toImage();
    if (image.isNull())
        return {};
    const qreal ratio = picture.devicePixelRatio();
    const auto inside = [ratio](qreal within, int first, int size) {
        // The picture starts at the nearest whole pixel, as Qt converts the unit.
        const int pixel = static_cast<int>(std::floor(within * ratio)) - qRound(first * ratio);
        return std::clamp(pixel, 0, size - 1);
    };
    return QColor(
        image.pixel(inside(position.x(), unit.x(), image.width()), inside(position.y(), unit.y(), image.height())));
}

} // namespace

QColor screenPixel(const QPointF& global)
{
    const QPoint unit = wholeUnit(global);
    QScreen* screen = QGuiApplication::screenAt(unit);
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    if (!screen)
        return {};
    // One unit and not the whole target: the pixel is the same, and grabbing costs by area.
    const QPoint origin = screen->geometry().topLeft();
    const QPixmap picture = screen->grabWindow(0, unit.x() - origin.x(), unit.y() - origin.y(), 1, 1);
    return pixelOfUnit(picture, unit - origin, global - origin);
}

QColor windowPixel(QWidget& window, const QPointF& global)
{
    const QPoint origin = window.mapToGlobal(QPoint(0, 0));
    const QPointF position = global - origin;
    const QPoint unit = wholeUnit(position);
    return pixelOfUnit(window.grab(QRect(unit, QSize(1, 1))), QPoint(0, 0), position - unit);
}

} // namespace Kestrel::Gui::Detail
