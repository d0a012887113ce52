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

/// The whole number at or below @p value. Qt converts between pixels and units by a factor that is no exact fraction
/// (1 / 1.5), so what was a whole number of pixels may have come back a trace below it.
int wholeBelow(qreal value)
{
    constexpr qreal conversionError = 1.0 / 1024;
    return static_cast<int>(std::floor(value + conversionError));
}

QPoint wholeBelow(const QPointF& position)
{
    return {wholeBelow(position.x()), wholeBelow(position.y())};
}

/// The pixel of @p picture, which starts at the unit @p start, that lies at @p position.
QColor pixelOfPicture(const QPixmap& picture, const QPoint& start, const QPointF& position)
{
    const QImage image = picture.toImage();
    if (image.isNull())
        return {};
    const qreal ratio = picture.devicePixelRatio();
    const auto inside = [ratio](qreal at, int first, int size) {
        // The picture starts at the nearest whole pixel, as Qt converts the unit.
        return std::clamp(wholeBelow(at * ratio) - qRound(first * ratio), 0, size - 1);
    };
    return QColor(
        image.pixel(inside(position.x(), start.x(), image.width()), inside(position.y(), start.y(), image.height())));
}

/// Units whose picture has all pixels of the first of them. A broken ratio rounds one unit's picture to fewer pixels
/// than the unit touches.
int unitsToGrab(qreal ratio)
{
    return qFuzzyCompare(ratio, qRound(ratio)) ? 1 : 2;
}

} // namespace

QColor screenPixel(const QPointF& global)
{
    const QPoint unit = wholeBelow(global);
    QScreen* screen = QGuiApplication::screenAt(unit);
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    if (!screen)
        return {};
    // What is needed and not the whole target: the pixel is the same, and grabbing costs by area.
    const QPoint origin = screen->geometry().topLeft();
    const QPoint start = unit - origin;
    const int extent = unitsToGrab(screen->devicePixelRatio());
    return pixelOfPicture(screen->grabWindow(0, start.x(), start.y(), extent, extent), start, global - origin);
}

QColor windowPixel(QWidget& window, const QPointF& global)
{
    const QPointF position = global - window.mapToGlobal(QPoint(0, 0));
    const QPoint unit = wholeBelow(position);
    // Rendering starts with a whole pixel only where the screen does too: ratios come in quarters.
    constexpr int unitsToWholePixel = 4;
    const auto aligned = [](int at) { return at - (at % unitsToWholePixel + unitsToWholePixel) % unitsToWholePixel; };
    const QPoint start(aligned(unit.x()), aligned(unit.y()));
    const int extent = unitsToWholePixel + unitsToGrab(window.devicePixelRatioF());
    return pixelOfPicture(window.grab(QRect(start, QSize(extent, extent))), start, position);
}

} // namespace Kestrel::Gui::Detail
