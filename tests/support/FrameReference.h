#pragma once

#include <QPointF>
#include <QRectF>

#include <algorithm>
#include <array>
#include <cmath>

/// A second calculation of the selection frames' geometry, to hold the library's against.
///
/// It is deliberately built in another way than one routine a zone: by axis. A zone is a pair of directions, (-1, 0,
/// +1) on each axis, and everything else follows from the edge that stands still.
namespace FrameReference {

enum Zone { Outside = -2, Inside = -1, LeftTop, Top, RightTop, Right, RightBottom, Bottom, LeftBottom, Left };

constexpr double Tolerance = 10.0;
constexpr double Minimum = 16.0;

/// The direction in which a zone pulls on the horizontal axis: -1 its left edge, +1 its right edge, 0 neither.
inline int horizontalPull(int zone)
{
    constexpr std::array<int, 8> pulls = {-1, 0, 1, 1, 1, 0, -1, -1};
    return pulls.at(static_cast<size_t>(zone));
}

inline int verticalPull(int zone)
{
    constexpr std::array<int, 8> pulls = {-1, -1, -1, 0, 1, 1, 1, 0};
    return pulls.at(static_cast<size_t>(zone));
}

/// One axis of a rectangle; first may lie behind second.
struct Span
{
    double first;
    double second;

    double length() const { return second - first; }
    double middle() const { return (first + second) / 2; }
};

inline Span across(const QRectF& rect)
{
    return {rect.x(), rect.x() + rect.width()};
}

inline Span down(const QRectF& rect)
{
    return {rect.y(), rect.y() + rect.height()};
}

inline QRectF rectOf(const Span& x, const Span& y)
{
    return {x.first, y.first, x.length(), y.length()};
}

inline bool bandHolds(const Span& span, double at)
{
    return at >= std::trunc(std::min(span.first, span.second) - Tolerance) &&
           at <= std::trunc(std::max(span.first, span.second) + Tolerance);
}

inline Zone zoneAt(const QRectF& frame, const QPointF& at)
{
    const Span x = across(frame);
    const Span y = down(frame);
    const auto close = [](double edge, double value) { return edge - Tolerance <= value && value <= edge + Tolerance; };
    for (int corner = LeftTop; corner <= LeftBottom; corner += 2) {
        const double cornerX = horizontalPull(corner) < 0 ? x.first : x.second;
        const double cornerY = verticalPull(corner) < 0 ? y.first : y.second;
        if (close(cornerX, at.x()) && close(cornerY, at.y()))
            return static_cast<Zone>(corner);
    }
    if (!bandHolds(x, at.x()) || !bandHolds(y, at.y()))
        return Outside;
    if (std::abs(y.first - at.y()) <= Tolerance)
        return Top;
    if (std::abs(x.second - at.x()) <= Tolerance)
        return Right;
    if (std::abs(y.second - at.y()) <= Tolerance)
        return Bottom;
    if (std::abs(x.first - at.x()) <= Tolerance)
        return Left;
    return Inside;
}

/// The cursor over @p zone of a hovered frame.
inline Qt::CursorShape cursorFor(Zone zone, const QRectF& frame)
{
    if (zone == Outside)
        return Qt::ArrowCursor;
    if (zone == Inside)
        return Qt::SizeAllCursor;
    const int pullX = horizontalPull(zone);
    const int pullY = verticalPull(zone);
    if (pullX == 0)
        return Qt::SizeVerCursor;
    if (pullY == 0)
        return Qt::SizeHorCursor;
    const bool turnedOnce = !(frame.width() * frame.height() > 0);
    const bool falling = pullX == pullY;
    return falling != turnedOnce ? Qt::SizeFDiagCursor : Qt::SizeBDiagCursor;
}

inline Span draggedSpan(Span span, double shift, double low, double high, double length)
{
    const double front = std::trunc(std::min(span.first, span.second));
    double back = std::trunc(std::max(span.first, span.second));
    if (front + shift <= low) {
        span = {low, low + length};
        shift = 0;
        back = std::trunc(std::max(span.first, span.second));
    }
    if (back + shift >= high) {
        span = {high - length, high};
        shift = 0;
    }
    return {span.first + shift, span.second + shift};
}

/// Where a drag puts a frame that was @p pressed when the mouse went down at @p from and is as large as @p current now.
inline QRectF dragged(const QRectF& pressed, const QPointF& from, const QPointF& to, const QRectF& work,
                      const QRectF& current)
{
    return rectOf(draggedSpan(across(pressed), to.x() - from.x(), work.x(), work.x() + work.width(), current.width()),
                  draggedSpan(down(pressed), to.y() - from.y(), work.y(), work.y() + work.height(), current.height()));
}

inline Span freelyPulled(const Span& span, int pull, double to)
{
    if (pull == 0)
        return span;
    if (pull < 0)
        return {span.second - to < Minimum ? span.second - Minimum : to, span.second};
    return {span.first, to - span.first < Minimum ? span.first + Minimum : to};
}

inline QRectF freelyResized(const QRectF& frame, int zone, const QPointF& to)
{
    return rectOf(freelyPulled(across(frame), horizontalPull(zone), to.x()),
                  freelyPulled(down(frame), verticalPull(zone), to.y()));
}

/// A width and a height that hang together by a ratio.
struct Shape
{
    double width;
    double height;
    double ratio;

    void setWidth(double value)
    {
        width = value;
        height = value / ratio;
    }
    void setHeight(double value)
    {
        height = value;
        width = value * ratio;
    }
    void keepMinimum()
    {
        if (width < Minimum)
            setWidth(Minimum);
        if (height < Minimum)
            setHeight(Minimum);
    }
};

/// The room from the edge of @p span that stands still to the limit it is pulled to.
inline double room(const Span& span, const Span& limits, int pull)
{
    return pull < 0 ? span.second - limits.first : limits.second - span.first;
}

inline Span grown(const Span& span, int pull, double length)
{
    if (pull == 0)
        return {span.middle() - length / 2, span.middle() + length / 2};
    if (pull < 0)
        return {span.second - length, span.second};
    return {span.first, span.first + length};
}

inline double pulledLength(const Span& span, int pull, double to)
{
    return pull < 0 ? span.second - to : to - span.first;
}

/// @p limits is null where there is no scene to keep the frame in.
inline QRectF proportionallyResized(const QRectF& frame, int zone, const QPointF& to, double ratio,
                                    const QRectF* limits)
{
    const Span x = across(frame);
    const Span y = down(frame);
    const int pullX = horizontalPull(zone);
    const int pullY = verticalPull(zone);
    Shape shape{0, 0, ratio};

    if (pullX != 0)
        shape.setWidth(pulledLength(x, pullX, to.x()));
    else
        shape.setHeight(pulledLength(y, pullY, to.y()));
    shape.keepMinimum();

    if (limits) {
        const Span limitX = across(*limits);
        const Span limitY = down(*limits);
        if (pullX != 0 && shape.width > room(x, limitX, pullX))
            shape.setWidth(room(x, limitX, pullX));
        if (pullY != 0 && shape.height > room(y, limitY, pullY))
            shape.setHeight(room(y, limitY, pullY));
        if (pullX == 0) {
            if (shape.width / 2 > x.middle() - limitX.first)
                shape.setWidth(2 * (x.middle() - limitX.first));
            if (shape.width / 2 > limitX.second - x.middle())
                shape.setWidth(2 * (limitX.second - x.middle()));
        }
        if (pullY == 0) {
            if (shape.height / 2 > y.middle() - limitY.first)
                shape.setHeight(2 * (y.middle() - limitY.first));
            if (shape.height / 2 > limitY.second - y.middle())
                shape.setHeight(2 * (limitY.second - y.middle()));
        }
    }
    return rectOf(grown(x, pullX, shape.width), grown(y, pullY, shape.height));
}

/// What taking up @p ratio makes of @p frame; @p limits is null where there is no scene.
inline QRectF withRatioRestored(const QRectF& frame, const QRectF& work, double ratio, const QRectF* limits)
{
    if (work.width() / work.height() == frame.width() / frame.height())
        return frame;
    Shape shape{0, 0, ratio};
    if (frame.width() > frame.height())
        shape.setWidth(frame.width());
    else
        shape.setHeight(frame.height());
    shape.keepMinimum();
    const Span y = down(frame);
    if (limits) {
        const double roomRight = limits->x() + limits->width() - frame.x();
        if (shape.width > roomRight)
            shape.setWidth(roomRight);
        const double roomAbove = y.middle() - limits->y();
        if (shape.height / 2 > roomAbove)
            shape.setHeight(2 * roomAbove);
        const double roomBelow = limits->y() + limits->height() - y.middle();
        if (shape.height / 2 > roomBelow)
            shape.setHeight(2 * roomBelow);
    }
    return rectOf(grown(across(frame), 1, shape.width), grown(y, 0, shape.height));
}

inline QRectF relative(const QRectF& frame, const QRectF& work)
{
    if (!(frame.width() > 0) || !(frame.height() > 0))
        return {};
    return {(frame.x() - work.x()) / work.width(), (frame.y() - work.y()) / work.height(), frame.width() / work.width(),
            frame.height() / work.height()};
}

} // namespace FrameReference
