#pragma once

#include <KQt/Ui/Export.h>

#include <QPointF>
#include <QRect>
#include <QRectF>
#include <QSizeF>
#include <Qt>

#include <limits>

/// @file
/// The arithmetic of selection frames: rectangles and points in, rectangles and points out, nothing kept.
///
/// For SelectionFrameGraphicsItem, which is a template and therefore needs it in an installed header; not for
/// applications. All coordinates are scene coordinates. Rectangles may be empty, mirrored, infinite or not a number:
/// nothing is checked, the result is what the arithmetic gives.

namespace Kestrel::Gui::Detail {

/// Values of SelectionFrameGraphicsItem::FrameSides.
enum class FrameZone : int {
    None = -2,
    Inside = -1,
    LeftTopCorner = 0,
    TopSide = 1,
    RightTopCorner = 2,
    RightSide = 3,
    RightBottomCorner = 4,
    BottomSide = 5,
    LeftBottomCorner = 6,
    LeftSide = 7
};

/// Smallest width and height that resizing leaves.
constexpr double MinimumFrameSize = 16.0;

/// How far from an edge or a corner it can be grabbed, on either side.
constexpr double GrabTolerance = 10.0;

/// Two opposite corners as they are, the first beyond the second where the frame is mirrored.
struct FrameCorners
{
    QPointF topLeft;
    QPointF bottomRight;
};

/// What resizing with the ratio kept is clamped to. Without a scene no edge is ever crossed.
struct SceneEdges
{
    double left = -std::numeric_limits<double>::infinity();
    double top = -std::numeric_limits<double>::infinity();
    double right = std::numeric_limits<double>::infinity();
    double bottom = std::numeric_limits<double>::infinity();
};

/// State of a frame and of the mouse when a move began.
struct FramePress
{
    FrameCorners frame;
    QPointF mouse;
};

/// Edges of @p sceneRect, inverted where it is.
KQTUI_EXPORT SceneEdges sceneEdges(const QRectF& sceneRect);

/// @p rect for a painter: edges farther away than any picture reaches are cut, undefined ones lie outside of it. The
/// painter would dash an endless line endlessly.
KQTUI_EXPORT QRectF paintableRect(const QRectF& rect);

/// @p rect rounded outward to whole units, and cut like paintableRect() to what whole numbers can hold.
KQTUI_EXPORT QRect alignedRect(const QRectF& rect);

// Hit testing

/// Corner of the frame next to @p place (a FrameZone as a number); a null point outside 0..7.
KQTUI_EXPORT QPointF cornerPoint(int place, const FrameCorners& frame);

/// Whether @p point lies on the frame or not farther than the tolerance outside it.
KQTUI_EXPORT bool isInGrabBand(const QPointF& point, const FrameCorners& frame);

/// The zone under @p point: corners before sides, sides before the inside.
KQTUI_EXPORT FrameZone zoneAt(const QPointF& point, const FrameCorners& frame);

/// Whether left is right of right and top below bottom, or neither: then the corners' diagonals run as named.
KQTUI_EXPORT bool hasUprightDiagonals(const FrameCorners& frame);

/// The cursor that tells what a press in @p zone will do.
KQTUI_EXPORT Qt::CursorShape cursorForZone(FrameZone zone, const FrameCorners& frame);

// Moving

/// Where the frame goes when the mouse has come to @p mouse since @p press: kept inside @p work, flush with an edge
/// that it reaches.
/// @param size the frame's size now, which it has where it sticks to an edge
KQTUI_EXPORT QRectF draggedFrame(const FramePress& press, const QPointF& mouse, const QSizeF& size, const QRectF& work);

// Resizing

/// @p frame with the dragged edges at @p mouse, not smaller than the minimum, clamped to nothing.
KQTUI_EXPORT QRectF resizedFreely(const QRectF& frame, FrameZone zone, const QPointF& mouse);

/// @p frame resized by @p zone so that its width is @p ratio times its height, clamped once to each edge of @p scene.
KQTUI_EXPORT QRectF resizedKeepingRatio(const QRectF& frame, FrameZone zone, const QPointF& mouse, double ratio,
                                        const SceneEdges& scene);

/// Whether @p frame has exactly the shape of @p work, in which case its ratio is not restored.
KQTUI_EXPORT bool hasSameShape(const QRectF& frame, const QRectF& work);

/// @p frame with its width @p ratio times its height; its left edge and its vertical centre stay.
KQTUI_EXPORT QRectF withRatioRestored(const QRectF& frame, double ratio, const SceneEdges& scene);

} // namespace Kestrel::Gui::Detail
