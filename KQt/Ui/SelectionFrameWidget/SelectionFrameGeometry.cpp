#include <KQt/Ui/SelectionFrameWidget/SelectionFrameGeometry.h>

#include <algorithm>
#include <cmath>

namespace Kestrel::Gui::Detail {

namespace {

// Limits are whole numbers, cut off toward zero. Kept as double: an int could not hold every coordinate.
double truncated(double value)
{
    return std::trunc(value);
}

bool isNearCorner(const QPointF& point, const QPointF& corner)
{
    return corner.x() - GrabTolerance <= point.x() && point.x() <= corner.x() + GrabTolerance &&
           corner.y() - GrabTolerance <= point.y() && point.y() <= corner.y() + GrabTolerance;
}

bool isNearEdge(double edge, double coordinate)
{
    return std::abs(edge - coordinate) <= GrabTolerance;
}

// Free resizing: an edge follows the mouse and is pushed back where the frame would become too small.

void dragLeft(QRectF& resized, const QRectF& frame, double x)
{
    resized.setLeft(x);
    if (resized.width() < MinimumFrameSize)
        resized.setLeft(frame.right() - MinimumFrameSize);
}

void dragTop(QRectF& resized, const QRectF& frame, double y)
{
    resized.setTop(y);
    if (resized.height() < MinimumFrameSize)
        resized.setTop(frame.bottom() - MinimumFrameSize);
}

void dragRight(QRectF& resized, const QRectF& frame, double x)
{
    resized.setRight(x);
    if (resized.width() < MinimumFrameSize)
        resized.setRight(frame.left() + MinimumFrameSize);
}

void dragBottom(QRectF& resized, const QRectF& frame, double y)
{
    resized.setBottom(y);
    if (resized.height() < MinimumFrameSize)
        resized.setBottom(frame.top() + MinimumFrameSize);
}

// Resizing with the ratio kept: a size is worked on. Every clamp is applied once, in the order of the calls; a later
// one may undo an earlier one and may go below the minimum.

struct RatioSize
{
    double w;
    double h;
    double ratio;

    static RatioSize ofWidth(double width, double ratio) { return {width, width / ratio, ratio}; }
    static RatioSize ofHeight(double height, double ratio) { return {ratio * height, height, ratio}; }

    void setWidth(double width)
    {
        w = width;
        h = w / ratio;
    }
    void setHeight(double height)
    {
        h = height;
        w = h * ratio;
    }

    void applyMinimum()
    {
        if (w < MinimumFrameSize) {
            w = MinimumFrameSize;
            h = MinimumFrameSize / ratio;
        }
        if (h < MinimumFrameSize) {
            h = MinimumFrameSize;
            w = ratio * MinimumFrameSize;
        }
    }

    // A frame that grows from the edge given first.
    void clampLeft(double right, const SceneEdges& scene)
    {
        if (scene.left > right - w)
            setWidth(right - scene.left);
    }
    void clampTop(double bottom, const SceneEdges& scene)
    {
        if (scene.top > bottom - h)
            setHeight(bottom - scene.top);
    }
    void clampRight(double left, const SceneEdges& scene)
    {
        if (left + w > scene.right)
            setWidth(scene.right - left);
    }
    void clampBottom(double top, const SceneEdges& scene)
    {
        if (top + h > scene.bottom)
            setHeight(scene.bottom - top);
    }

    // A frame that grows from its centre to both sides.
    void clampAroundX(double centre, const SceneEdges& scene)
    {
        if (scene.left > centre - w / 2)
            setWidth(2 * (centre - scene.left));
        if (centre + w / 2 > scene.right)
            setWidth(2 * (scene.right - centre));
    }
    void clampAroundY(double centre, const SceneEdges& scene)
    {
        if (scene.top > centre - h / 2)
            setHeight(2 * (centre - scene.top));
        if (centre + h / 2 > scene.bottom)
            setHeight(2 * (scene.bottom - centre));
    }
};

double centreX(const QRectF& frame)
{
    return (frame.left() + frame.right()) / 2;
}

double centreY(const QRectF& frame)
{
    return (frame.top() + frame.bottom()) / 2;
}

// Corners follow the mouse's x alone.

QRectF resizedByLeftTopCorner(QRectF frame, double x, double ratio, const SceneEdges& scene)
{
    RatioSize size = RatioSize::ofWidth(frame.right() - x, ratio);
    size.applyMinimum();
    size.clampLeft(frame.right(), scene);
    size.clampTop(frame.bottom(), scene);
    frame.setTopLeft({frame.right() - size.w, frame.bottom() - size.h});
    return frame;
}

QRectF resizedByLeftBottomCorner(QRectF frame, double x, double ratio, const SceneEdges& scene)
{
    RatioSize size = RatioSize::ofWidth(frame.right() - x, ratio);
    size.applyMinimum();
    size.clampLeft(frame.right(), scene);
    size.clampBottom(frame.top(), scene);
    frame.setBottomLeft({frame.right() - size.w, frame.top() + size.h});
    return frame;
}

QRectF resizedByRightBottomCorner(QRectF frame, double x, double ratio, const SceneEdges& scene)
{
    RatioSize size = RatioSize::ofWidth(x - frame.left(), ratio);
    size.applyMinimum();
    size.clampRight(frame.left(), scene);
    size.clampBottom(frame.top(), scene);
    frame.setBottomRight({frame.left() + size.w, frame.top() + size.h});
    return frame;
}

QRectF resizedByRightTopCorner(QRectF frame, double x, double ratio, const SceneEdges& scene)
{
    RatioSize size = RatioSize::ofWidth(x - frame.left(), ratio);
    size.applyMinimum();
    size.clampRight(frame.left(), scene);
    size.clampTop(frame.bottom(), scene);
    frame.setTopRight({frame.left() + size.w, frame.bottom() - size.h});
    return frame;
}

// Sides move their own edge; the frame stays centred on the other axis.

QRectF resizedByTopSide(const QRectF& frame, double y, double ratio, const SceneEdges& scene)
{
    const double cx = centreX(frame);
    RatioSize size = RatioSize::ofHeight(frame.bottom() - y, ratio);
    size.applyMinimum();
    size.clampTop(frame.bottom(), scene);
    size.clampAroundX(cx, scene);
    return {QPointF(cx - size.w / 2, frame.bottom() - size.h), QPointF(cx + size.w / 2, frame.bottom())};
}

QRectF resizedByBottomSide(const QRectF& frame, double y, double ratio, const SceneEdges& scene)
{
    const double cx = centreX(frame);
    RatioSize size = RatioSize::ofHeight(y - frame.top(), ratio);
    size.applyMinimum();
    size.clampBottom(frame.top(), scene);
    size.clampAroundX(cx, scene);
    return {QPointF(cx - size.w / 2, frame.top()), QPointF(cx + size.w / 2, frame.top() + size.h)};
}

QRectF resizedByRightSide(const QRectF& frame, double x, double ratio, const SceneEdges& scene)
{
    const double cy = centreY(frame);
    RatioSize size = RatioSize::ofWidth(x - frame.left(), ratio);
    size.applyMinimum();
    size.clampRight(frame.left(), scene);
    size.clampAroundY(cy, scene);
    return {QPointF(frame.left(), cy - size.h / 2), QPointF(frame.left() + size.w, cy + size.h / 2)};
}

QRectF resizedByLeftSide(const QRectF& frame, double x, double ratio, const SceneEdges& scene)
{
    const double cy = centreY(frame);
    RatioSize size = RatioSize::ofWidth(frame.right() - x, ratio);
    size.applyMinimum();
    size.clampLeft(frame.right(), scene);
    size.clampAroundY(cy, scene);
    return {QPointF(frame.right() - size.w, cy - size.h / 2), QPointF(frame.right(), cy + size.h / 2)};
}

} // namespace

SceneEdges sceneEdges(const QRectF& sceneRect)
{
    return {sceneRect.left(), sceneRect.top(), sceneRect.right(), sceneRect.bottom()};
}

QRectF paintableRect(const QRectF& rect)
{
    constexpr double limit = 1 << 24;
    const auto isWithin = [](double edge) { return edge >= -limit && edge <= limit; };
    if (isWithin(rect.left()) && isWithin(rect.top()) && isWithin(rect.right()) && isWithin(rect.bottom()))
        return rect;
    const auto cut = [](double edge) { return edge > -limit ? (edge < limit ? edge : limit) : -limit; };
    return {QPointF(cut(rect.left()), cut(rect.top())), QPointF(cut(rect.right()), cut(rect.bottom()))};
}

QRect alignedRect(const QRectF& rect)
{
    return paintableRect(rect).toAlignedRect();
}

QPointF cornerPoint(int place, const FrameCorners& frame)
{
    const double left = frame.topLeft.x();
    const double top = frame.topLeft.y();
    const double right = frame.bottomRight.x();
    const double bottom = frame.bottomRight.y();
    switch (place) {
    case 0:
    case 7:
        return {left, top};
    case 1:
    case 2:
        return {right, top};
    case 3:
    case 4:
        return {right, bottom};
    case 5:
    case 6:
        return {left, bottom};
    default:
        return {};
    }
}

bool isInGrabBand(const QPointF& point, const FrameCorners& frame)
{
    const auto [left, right] = std::minmax({frame.topLeft.x(), frame.bottomRight.x()});
    const auto [top, bottom] = std::minmax({frame.topLeft.y(), frame.bottomRight.y()});
    return point.x() >= truncated(left - GrabTolerance) && point.y() >= truncated(top - GrabTolerance) &&
           truncated(right + GrabTolerance) >= point.x() && truncated(bottom + GrabTolerance) >= point.y();
}

FrameZone zoneAt(const QPointF& point, const FrameCorners& frame)
{
    // Corners come before the band: its limits are truncated and may leave out a strip of a corner.
    for (FrameZone corner : {FrameZone::LeftTopCorner, FrameZone::RightTopCorner, FrameZone::RightBottomCorner,
                             FrameZone::LeftBottomCorner}) {
        if (isNearCorner(point, cornerPoint(static_cast<int>(corner), frame)))
            return corner;
    }
    if (!isInGrabBand(point, frame))
        return FrameZone::None;
    // No end limits along a side: the band bounds it.
    if (isNearEdge(frame.topLeft.y(), point.y()))
        return FrameZone::TopSide;
    if (isNearEdge(frame.bottomRight.x(), point.x()))
        return FrameZone::RightSide;
    if (isNearEdge(frame.bottomRight.y(), point.y()))
        return FrameZone::BottomSide;
    if (isNearEdge(frame.topLeft.x(), point.x()))
        return FrameZone::LeftSide;
    return FrameZone::Inside;
}

bool hasUprightDiagonals(const FrameCorners& frame)
{
    const double left = frame.topLeft.x();
    const double top = frame.topLeft.y();
    const double right = frame.bottomRight.x();
    const double bottom = frame.bottomRight.y();
    return (right > left && bottom > top) || (left > right && top > bottom);
}

Qt::CursorShape cursorForZone(FrameZone zone, const FrameCorners& frame)
{
    switch (zone) {
    case FrameZone::Inside:
        return Qt::SizeAllCursor;
    case FrameZone::TopSide:
    case FrameZone::BottomSide:
        return Qt::SizeVerCursor;
    case FrameZone::RightSide:
    case FrameZone::LeftSide:
        return Qt::SizeHorCursor;
    case FrameZone::LeftTopCorner:
    case FrameZone::RightBottomCorner:
        return hasUprightDiagonals(frame) ? Qt::SizeFDiagCursor : Qt::SizeBDiagCursor;
    case FrameZone::RightTopCorner:
    case FrameZone::LeftBottomCorner:
        return hasUprightDiagonals(frame) ? Qt::SizeBDiagCursor : Qt::SizeFDiagCursor;
    case FrameZone::None:
        break;
    }
    return Qt::ArrowCursor;
}

QRectF draggedFrame(const FramePress& press, const QPointF& mouse, const QSizeF& size, const QRectF& work)
{
    double dx = mouse.x() - press.mouse.x();
    double dy = mouse.y() - press.mouse.y();
    double x0 = press.frame.topLeft.x();
    double y0 = press.frame.topLeft.y();
    double x1 = press.frame.bottomRight.x();
    double y1 = press.frame.bottomRight.y();
    const double left = truncated(std::min(x0, x1));
    double right = truncated(std::max(x0, x1));
    const double top = truncated(std::min(y0, y1));
    double bottom = truncated(std::max(y0, y1));

    // Left before right, top before bottom: a frame that is too large ends flush with the right and bottom edges.
    if (work.left() >= left + dx) {
        x0 = work.left();
        x1 = work.left() + size.width();
        dx = 0;
        right = truncated(std::max(x0, x1));
    }
    if (right + dx >= work.right()) {
        x0 = work.right() - size.width();
        x1 = work.right();
        dx = 0;
    }
    if (work.top() >= top + dy) {
        y0 = work.top();
        y1 = work.top() + size.height();
        dy = 0;
        bottom = truncated(std::max(y0, y1));
    }
    if (bottom + dy >= work.bottom()) {
        y0 = work.bottom() - size.height();
        y1 = work.bottom();
        dy = 0;
    }
    return {QPointF(x0 + dx, y0 + dy), QPointF(x1 + dx, y1 + dy)};
}

QRectF resizedFreely(const QRectF& frame, FrameZone zone, const QPointF& mouse)
{
    QRectF resized = frame;
    switch (zone) {
    case FrameZone::LeftTopCorner:
        dragLeft(resized, frame, mouse.x());
        dragTop(resized, frame, mouse.y());
        break;
    case FrameZone::TopSide:
        dragTop(resized, frame, mouse.y());
        break;
    case FrameZone::RightTopCorner:
        dragTop(resized, frame, mouse.y());
        dragRight(resized, frame, mouse.x());
        break;
    case FrameZone::RightSide:
        dragRight(resized, frame, mouse.x());
        break;
    case FrameZone::RightBottomCorner:
        dragRight(resized, frame, mouse.x());
        dragBottom(resized, frame, mouse.y());
        break;
    case FrameZone::BottomSide:
        dragBottom(resized, frame, mouse.y());
        break;
    case FrameZone::LeftBottomCorner:
        dragLeft(resized, frame, mouse.x());
        dragBottom(resized, frame, mouse.y());
        break;
    case FrameZone::LeftSide:
        dragLeft(resized, frame, mouse.x());
        break;
    case FrameZone::None:
    case FrameZone::Inside:
        break;
    }
    return resized;
}

QRectF resizedKeepingRatio(const QRectF& frame, FrameZone zone, const QPointF& mouse, double ratio,
                           const SceneEdges& scene)
{
    switch (zone) {
    case FrameZone::LeftTopCorner:
        return resizedByLeftTopCorner(frame, mouse.x(), ratio, scene);
    case FrameZone::TopSide:
        return resizedByTopSide(frame, mouse.y(), ratio, scene);
    case FrameZone::RightTopCorner:
        return resizedByRightTopCorner(frame, mouse.x(), ratio, scene);
    case FrameZone::RightSide:
        return resizedByRightSide(frame, mouse.x(), ratio, scene);
    case FrameZone::RightBottomCorner:
        return resizedByRightBottomCorner(frame, mouse.x(), ratio, scene);
    case FrameZone::BottomSide:
        return resizedByBottomSide(frame, mouse.y(), ratio, scene);
    case FrameZone::LeftBottomCorner:
        return resizedByLeftBottomCorner(frame, mouse.x(), ratio, scene);
    case FrameZone::LeftSide:
        return resizedByLeftSide(frame, mouse.x(), ratio, scene);
    case FrameZone::None:
    case FrameZone::Inside:
        break;
    }
    return frame;
}

bool hasSameShape(const QRectF& frame, const QRectF& work)
{
    return work.width() / work.height() == frame.width() / frame.height();
}

QRectF withRatioRestored(const QRectF& frame, double ratio, const SceneEdges& scene)
{
    RatioSize size{frame.width(), frame.height(), ratio};
    if (size.w > size.h)
        size.h = size.w / ratio;
    else
        size.w = ratio * size.h;
    size.applyMinimum();
    size.clampRight(frame.left(), scene);
    const double cy = centreY(frame);
    size.clampAroundY(cy, scene);
    return {QPointF(frame.left(), cy - size.h / 2), QPointF(frame.left() + size.w, cy + size.h / 2)};
}

} // namespace Kestrel::Gui::Detail
