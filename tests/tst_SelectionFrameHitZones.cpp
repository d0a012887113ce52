#include <KQt/Ui/SelectionFrameWidget/SelectionFrameGraphicsItem.h>

#include "support/FrameGestures.h"
#include "support/FrameReference.h"
#include "support/ProbeFrame.h"
#include "support/RandomGeometry.h"
#include "support/RecordingFrameHandler.h"
#include "support/RectComparison.h"
#include "support/SceneRepaint.h"

#include <QGraphicsScene>
#include <QGraphicsView>
#include <QtTest>

#include <limits>

using namespace Kestrel::Gui;
using FrameReference::Zone;
using PlainFrame = ProbeFrame<QGraphicsItem>;
using PixmapFrame = ProbeFrame<QGraphicsPixmapItem>;
using TextFrame = ProbeFrame<QGraphicsTextItem>;

Q_DECLARE_METATYPE(FrameReference::Zone)

namespace {

constexpr double FarAway = 1e6;

/// The edges that a gesture moved, as bits.
int movedEdges(const QRectF& before, const QRectF& after)
{
    return (before.left() != after.left() ? 1 : 0) | (before.top() != after.top() ? 2 : 0) |
           (before.right() != after.right() ? 4 : 0) | (before.bottom() != after.bottom() ? 8 : 0);
}

/// The zone of @p frame that a press at @p at takes hold of, told by the edges that then follow the mouse.
template <typename Item>
int grabbedZone(Item& item, const QRectF& frame, const QPointF& at)
{
    item.Initialize(QRectF(-FarAway, -FarAway, 2 * FarAway, 2 * FarAway), frame);
    FrameGestures::press(item, at);
    FrameGestures::move(item, QPointF(at.x() - 4321, at.y() - 5432));
    FrameGestures::release(item, at);
    switch (movedEdges(frame, item.GetFrameInScene())) {
    case 0:
        return FrameReference::Outside;
    case 15:
        return FrameReference::Inside;
    case 1 | 2:
        return FrameReference::LeftTop;
    case 2:
        return FrameReference::Top;
    case 2 | 4:
        return FrameReference::RightTop;
    case 4:
        return FrameReference::Right;
    case 4 | 8:
        return FrameReference::RightBottom;
    case 8:
        return FrameReference::Bottom;
    case 1 | 8:
        return FrameReference::LeftBottom;
    case 1:
        return FrameReference::Left;
    default:
        return -100;
    }
}

/// The cursor that a hovered item asks for when the mouse goes down at @p at: the first of the press.
template <typename Item>
int cursorAt(Item& item, RecordingFrameHandler& handler, const QPointF& at)
{
    handler.clear();
    FrameGestures::press(item, at);
    const int shape = handler.cursors().value(0, -1);
    FrameGestures::release(item, at);
    return shape;
}

QByteArray describe(const QRectF& frame, const QPointF& at)
{
    return "frame " + RectComparison::text(frame) + " at " + QByteArray::number(at.x()) + ", " +
           QByteArray::number(at.y());
}

} // namespace

class tst_SelectionFrameHitZones : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void zoneValues();
    void zones_data();
    void zones();
    void smallFrames_data();
    void smallFrames();
    void bandTruncatesTowardZero_data();
    void bandTruncatesTowardZero();
    void randomZones();
    void cornerPoints();
    void cursors_data();
    void cursors();
    void noCursorButTheArrowWithoutHover();
    void hoverStartsOverTheFrameOnly();
    void hoverChain();
    void hoverFollowsTheTurnedFrame();
    void hoverRepaints();
    void hoverThroughAView();
    void endlessCoordinates();

private:
    template <typename Item>
    void checkRandomZones(unsigned seed, int rounds);
};

void tst_SelectionFrameHitZones::zoneValues()
{
    using Frame = SelectionFrameGraphicsItem<QGraphicsItem>;
    // The values are stored and compared by applications.
    QCOMPARE(int(Frame::None), -2);
    QCOMPARE(int(Frame::Inside), -1);
    QCOMPARE(int(Frame::LeftTopCorner), 0);
    QCOMPARE(int(Frame::TopSide), 1);
    QCOMPARE(int(Frame::RightTopCorner), 2);
    QCOMPARE(int(Frame::RightSide), 3);
    QCOMPARE(int(Frame::RightBottomCorner), 4);
    QCOMPARE(int(Frame::BottomSide), 5);
    QCOMPARE(int(Frame::LeftBottomCorner), 6);
    QCOMPARE(int(Frame::LeftSide), 7);
    const Frame::FrameSides unscoped = SelectionFrameGraphicsItem<QGraphicsItem>::FrameSides::LeftSide;
    QCOMPARE(unscoped + 1, 8);
}

void tst_SelectionFrameHitZones::zones_data()
{
    QTest::addColumn<QPointF>("at");
    QTest::addColumn<Zone>("zone");

    using namespace FrameReference;
    QTest::newRow("right side, outside it") << QPointF(105, 50) << Right;
    QTest::newRow("right side, inside it") << QPointF(90, 50) << Right;
    QTest::newRow("just off the right side") << QPointF(89.875, 50) << Inside;
    QTest::newRow("right side, last unit") << QPointF(110, 50) << Right;
    QTest::newRow("right bottom") << QPointF(108, 108) << RightBottom;
    QTest::newRow("right bottom, last point") << QPointF(110, 110) << RightBottom;
    QTest::newRow("past the corner") << QPointF(110.125, 110) << Outside;
    QTest::newRow("middle") << QPointF(50, 50) << Inside;
    QTest::newRow("past the right side") << QPointF(111, 50) << Outside;
    QTest::newRow("fraction past the right side") << QPointF(110.125, 50) << Outside;
    QTest::newRow("top, last unit") << QPointF(50, -10) << Top;
    QTest::newRow("past the top") << QPointF(50, -10.125) << Outside;
    QTest::newRow("top, inner limit") << QPointF(50, 10) << Top;
    QTest::newRow("below the top") << QPointF(50, 10.125) << Inside;
    QTest::newRow("bottom") << QPointF(50, 110) << Bottom;
    QTest::newRow("left") << QPointF(-10, 50) << Left;
    QTest::newRow("left, inner limit") << QPointF(10, 50) << Left;
    // Corners win over sides and over the inside.
    QTest::newRow("left top, inside") << QPointF(5, 5) << LeftTop;
    QTest::newRow("left top, inner limit") << QPointF(10, 10) << LeftTop;
    QTest::newRow("left top, outer limit") << QPointF(-10, -10) << LeftTop;
    QTest::newRow("between left top and top") << QPointF(10.125, 10) << Top;
    QTest::newRow("between left top and left") << QPointF(10, 10.125) << Left;
    QTest::newRow("right top") << QPointF(100, 0) << RightTop;
    QTest::newRow("left bottom") << QPointF(0, 100) << LeftBottom;
}

void tst_SelectionFrameHitZones::zones()
{
    QFETCH(const QPointF, at);
    QFETCH(const Zone, zone);
    RecordingFrameHandler handler;
    PlainFrame item(&handler);
    item.SetKeepAspectRatio(false);
    const QRectF frame(0, 0, 100, 100);
    QCOMPARE(int(FrameReference::zoneAt(frame, at)), int(zone));
    QCOMPARE(grabbedZone(item, frame, at), int(zone));
}

void tst_SelectionFrameHitZones::smallFrames_data()
{
    QTest::addColumn<QRectF>("frame");
    QTest::addColumn<QPointF>("at");
    QTest::addColumn<Zone>("zone");

    using namespace FrameReference;
    const QRectF small(100, 100, 8, 8);
    QTest::newRow("near all four") << small << QPointF(104, 104) << LeftTop;
    QTest::newRow("near the right two") << small << QPointF(111, 104) << RightTop;
    QTest::newRow("near the lower two") << small << QPointF(104, 111) << RightBottom;
    QTest::newRow("near the left bottom alone") << small << QPointF(97, 115) << LeftBottom;
    // Without corners in reach the sides are asked top, right, bottom, left.
    QTest::newRow("flat: top before bottom") << QRectF(0, 0, 200, 12) << QPointF(100, 9) << Top;
    QTest::newRow("narrow: right before left") << QRectF(0, 0, 12, 200) << QPointF(3, 100) << Right;
    QTest::newRow("narrow: left where right is too far") << QRectF(0, 0, 12, 200) << QPointF(1, 100) << Left;
    QTest::newRow("flat: bottom where top is too far") << QRectF(0, 0, 200, 12) << QPointF(100, 11) << Bottom;
}

void tst_SelectionFrameHitZones::smallFrames()
{
    QFETCH(const QRectF, frame);
    QFETCH(const QPointF, at);
    QFETCH(const Zone, zone);
    RecordingFrameHandler handler;
    PlainFrame item(&handler);
    item.SetKeepAspectRatio(false);
    QCOMPARE(grabbedZone(item, frame, at), int(zone));
}

void tst_SelectionFrameHitZones::bandTruncatesTowardZero_data()
{
    QTest::addColumn<QRectF>("frame");
    QTest::addColumn<QPointF>("at");
    QTest::addColumn<Zone>("zone");

    using namespace FrameReference;
    // Whole numbers bound the band, cut off toward zero: on the positive side it reaches further to the left and top
    // ...
    const QRectF positive(100.75, 100.75, 100, 100);
    QTest::newRow("left limit 90.75 becomes 90, but no side is in reach") << positive << QPointF(90.5, 150) << Inside;
    QTest::newRow("left of 90") << positive << QPointF(89.875, 150) << Outside;
    QTest::newRow("top limit 90.75 becomes 90") << positive << QPointF(150, 90.5) << Inside;
    QTest::newRow("above 90") << positive << QPointF(150, 89.875) << Outside;
    // ... and less far to the right and bottom, where a side is still in reach.
    QTest::newRow("right limit 210.75 becomes 210") << positive << QPointF(210.5, 150) << Outside;
    QTest::newRow("right, whole limit") << positive << QPointF(210, 150) << Right;
    QTest::newRow("bottom limit 210.75 becomes 210") << positive << QPointF(150, 210.5) << Outside;
    QTest::newRow("bottom, whole limit") << positive << QPointF(150, 210) << Bottom;
    // A corner's square is not cut: corners are asked before the band.
    QTest::newRow("corner beyond the band") << positive << QPointF(210.75, 210.75) << RightBottom;
    // On the negative side it is the other way round.
    const QRectF negative(-200.75, -200.75, 100, 100);
    QTest::newRow("negative left limit -210.75 becomes -210") << negative << QPointF(-210.5, -150) << Outside;
    QTest::newRow("negative right limit -90.75 becomes -90") << negative << QPointF(-90.5, -150) << Inside;
    QTest::newRow("right of -90") << negative << QPointF(-89.875, -150) << Outside;
    QTest::newRow("negative top limit -210.75 becomes -210") << negative << QPointF(-150, -210.5) << Outside;
    QTest::newRow("negative bottom limit -90.75 becomes -90") << negative << QPointF(-150, -90.5) << Inside;
}

void tst_SelectionFrameHitZones::bandTruncatesTowardZero()
{
    QFETCH(const QRectF, frame);
    QFETCH(const QPointF, at);
    QFETCH(const Zone, zone);
    RecordingFrameHandler handler;
    PlainFrame item(&handler);
    item.SetKeepAspectRatio(false);
    QCOMPARE(int(FrameReference::zoneAt(frame, at)), int(zone));
    QCOMPARE(grabbedZone(item, frame, at), int(zone));
}

template <typename Item>
void tst_SelectionFrameHitZones::checkRandomZones(unsigned seed, int rounds)
{
    RandomGeometry random(seed);
    RecordingFrameHandler handler;
    Item item(&handler);
    item.SetKeepAspectRatio(false);
    QVector<int> hits(10);
    for (int i = 0; i < rounds; ++i) {
        const QRectF frame = random.mirroredSometimes(random.rect(-300, 300, 1, random.oneIn(3) ? 25 : 300));
        // The pushed-back edge of a frame of just the minimum would seem not to move.
        if (std::abs(frame.width()) == FrameReference::Minimum || std::abs(frame.height()) == FrameReference::Minimum)
            continue;
        const QPointF at = random.pointNear(frame, 14);
        const Zone expected = FrameReference::zoneAt(frame, at);
        ++hits[expected + 2];

        const int zone = grabbedZone(item, frame, at);
        QVERIFY2(zone == expected, (describe(frame, at) + ": got " + QByteArray::number(zone) + ", expected " +
                                    QByteArray::number(int(expected)))
                                       .constData());

        item.SetFrameInScene(frame);
        QCOMPARE(int(item.FrameSideForMousePosition(at)), int(expected));
        FrameGestures::leave(item, at);
        FrameGestures::hover(item, frame.center());
        const int cursor = cursorAt(item, handler, at);
        QVERIFY2(cursor == FrameReference::cursorFor(expected, frame),
                 (describe(frame, at) + ": cursor " + QByteArray::number(cursor)).constData());
    }
    for (int count : qAsConst(hits))
        QVERIFY2(count > rounds / 100, "every zone must be among the samples");
}

void tst_SelectionFrameHitZones::randomZones()
{
    checkRandomZones<PlainFrame>(1, 6000);
    if (!QTest::currentTestFailed())
        checkRandomZones<PixmapFrame>(2, 2000);
    if (!QTest::currentTestFailed())
        checkRandomZones<TextFrame>(3, 2000);
}

void tst_SelectionFrameHitZones::cornerPoints()
{
    RecordingFrameHandler handler;
    PlainFrame item(&handler);
    for (const QRectF& frame : {QRectF(100, 50, 30, 40), QRectF(100, 50, -30, 40), QRectF(100, 50, -30, -40)}) {
        item.SetFrameInScene(frame);
        // Each side answers with the corner before it, clockwise, but for the left one: only corners are asked for.
        const QVector<QPointF> expected = {frame.topLeft(),     frame.topRight(),    frame.topRight(),
                                           frame.bottomRight(), frame.bottomRight(), frame.bottomLeft(),
                                           frame.bottomLeft(),  frame.topLeft()};
        for (int place = 0; place < 8; ++place)
            QCOMPARE(item.CornerPointForPlace(place), expected.at(place));
        for (int place : {-2, -1, 8, 1000})
            QCOMPARE(item.CornerPointForPlace(place), QPointF());
    }
}

void tst_SelectionFrameHitZones::cursors_data()
{
    QTest::addColumn<QPointF>("at");
    QTest::addColumn<int>("upright");
    QTest::addColumn<int>("turned");

    // The frame lies from (100, 100) to (200, 300), whichever of its points is called the first. The diagonal follows
    // the corner's place on the screen: a frame mirrored on one axis has its "left top" at the right top.
    QTest::newRow("inside") << QPointF(150, 200) << int(Qt::SizeAllCursor) << int(Qt::SizeAllCursor);
    QTest::newRow("upper side") << QPointF(150, 100) << int(Qt::SizeVerCursor) << int(Qt::SizeVerCursor);
    QTest::newRow("lower side") << QPointF(150, 300) << int(Qt::SizeVerCursor) << int(Qt::SizeVerCursor);
    QTest::newRow("left-hand side") << QPointF(100, 200) << int(Qt::SizeHorCursor) << int(Qt::SizeHorCursor);
    QTest::newRow("right-hand side") << QPointF(200, 200) << int(Qt::SizeHorCursor) << int(Qt::SizeHorCursor);
    QTest::newRow("upper left") << QPointF(100, 100) << int(Qt::SizeFDiagCursor) << int(Qt::SizeFDiagCursor);
    QTest::newRow("lower right") << QPointF(200, 300) << int(Qt::SizeFDiagCursor) << int(Qt::SizeFDiagCursor);
    QTest::newRow("upper right") << QPointF(200, 100) << int(Qt::SizeBDiagCursor) << int(Qt::SizeBDiagCursor);
    QTest::newRow("lower left") << QPointF(100, 300) << int(Qt::SizeBDiagCursor) << int(Qt::SizeBDiagCursor);
    QTest::newRow("past the band") << QPointF(150, 311) << int(Qt::ArrowCursor) << int(Qt::ArrowCursor);
}

void tst_SelectionFrameHitZones::cursors()
{
    QFETCH(const QPointF, at);
    QFETCH(const int, upright);
    QFETCH(const int, turned);
    RecordingFrameHandler handler;
    PlainFrame item(&handler);
    const auto cursorIn = [&](const QPointF& first, const QPointF& second) {
        item.SetFrameInScene(first, second);
        FrameGestures::hover(item, QPointF(150, 200));
        return cursorAt(item, handler, at);
    };
    QCOMPARE(cursorIn({100, 100}, {200, 300}), upright);
    QCOMPARE(cursorIn({200, 300}, {100, 100}), upright);
    QCOMPARE(cursorIn({200, 100}, {100, 300}), turned);
    QCOMPARE(cursorIn({100, 300}, {200, 100}), turned);
}

void tst_SelectionFrameHitZones::noCursorButTheArrowWithoutHover()
{
    RecordingFrameHandler handler;
    PlainFrame item(&handler);
    item.SetFrameInScene(QRectF(100, 100, 100, 200));
    for (const QPointF at : {QPointF(150, 200), QPointF(150, 100), QPointF(100, 100), QPointF(200, 200)})
        QCOMPARE(cursorAt(item, handler, at), int(Qt::ArrowCursor));
}

void tst_SelectionFrameHitZones::hoverStartsOverTheFrameOnly()
{
    RecordingFrameHandler handler;
    PlainFrame item(&handler);
    item.SetFrameInScene(QRectF(100, 100, 100, 200));
    handler.clear();

    // In the band around the frame a press would grab a side, but nothing is hovered yet.
    for (const QPointF at : {QPointF(99.875, 200), QPointF(150, 305), QPointF(150, 95)}) {
        FrameGestures::hover(item, at, QEvent::GraphicsSceneHoverEnter);
        FrameGestures::hover(item, at, QEvent::GraphicsSceneHoverMove);
    }
    QVERIFY(handler.calls.isEmpty());

    // The edges belong to the frame; entering and moving do the same.
    for (const QEvent::Type type : {QEvent::GraphicsSceneHoverEnter, QEvent::GraphicsSceneHoverMove}) {
        for (const QPointF at : {QPointF(100, 200), QPointF(200, 200)}) {
            FrameGestures::hover(item, at, type);
            QCOMPARE(handler.cursors(), QVector<int>{Qt::SizeHorCursor});
            FrameGestures::leave(item, at);
            handler.clear();
        }
    }
}

void tst_SelectionFrameHitZones::hoverChain()
{
    RecordingFrameHandler handler;
    PlainFrame item(&handler);
    item.SetFrameInScene(QRectF(100, 100, 100, 200));
    handler.clear();

    FrameGestures::hover(item, QPointF(150, 200), QEvent::GraphicsSceneHoverEnter);
    FrameGestures::hover(item, QPointF(150, 105));
    FrameGestures::hover(item, QPointF(195, 105));
    // Off the frame and on its caption strip: the hover ends with one arrow ...
    FrameGestures::hover(item, QPointF(150, 95));
    FrameGestures::hover(item, QPointF(150, 94));
    // ... and begins anew inside.
    FrameGestures::hover(item, QPointF(150, 200));
    // Leaving always asks for the arrow, even twice.
    FrameGestures::leave(item, QPointF(90, 90));
    FrameGestures::leave(item, QPointF(90, 90));

    QCOMPARE(handler.cursors(), (QVector<int>{Qt::SizeAllCursor, Qt::SizeVerCursor, Qt::SizeBDiagCursor,
                                              Qt::ArrowCursor, Qt::SizeAllCursor, Qt::ArrowCursor, Qt::ArrowCursor}));
    QCOMPARE(handler.cursors().size(), handler.calls.size());
}

void tst_SelectionFrameHitZones::hoverFollowsTheTurnedFrame()
{
    RecordingFrameHandler handler;
    PlainFrame item(&handler);
    item.SetFrameInScene(QPointF(200, 100), QPointF(100, 300));
    FrameGestures::hover(item, QPointF(150, 200));
    handler.clear();
    FrameGestures::hover(item, QPointF(100, 100));
    FrameGestures::hover(item, QPointF(200, 100));
    QCOMPARE(handler.cursors(), (QVector<int>{Qt::SizeFDiagCursor, Qt::SizeBDiagCursor}));
}

void tst_SelectionFrameHitZones::hoverRepaints()
{
    QGraphicsScene scene(0, 0, 500, 500);
    RecordingFrameHandler handler;
    auto* item = new PlainFrame(&handler);
    scene.addItem(item);
    item->SetFrameInScene(QRectF(100, 100, 100, 200));
    const auto hovering = [&](const QPointF& at) {
        return schedulesRepaint(scene, [&] { FrameGestures::hover(*item, at); });
    };
    QVERIFY(!hovering({150, 95}));
    QVERIFY(hovering({150, 200}));
    QVERIFY2(!hovering({150, 105}), "a new cursor alone repaints nothing");
    QVERIFY(hovering({150, 95}));
    QVERIFY(hovering({150, 200}));
    QVERIFY(schedulesRepaint(scene, [&] { FrameGestures::leave(*item, QPointF(0, 0)); }));
}

void tst_SelectionFrameHitZones::hoverThroughAView()
{
    QGraphicsScene scene(0, 0, 400, 400);
    QGraphicsView view(&scene);
    view.resize(420, 420);
    RecordingFrameHandler handler;
    auto* item = new PlainFrame(&handler);
    scene.addItem(item);
    item->SetFrameInScene(QRectF(100, 100, 100, 200));
    handler.clear();
    const auto moveTo = [&](const QPointF& scenePos) {
        const QPoint at = view.mapFromScene(scenePos);
        QMouseEvent event(QEvent::MouseMove, at, view.viewport()->mapToGlobal(at), Qt::NoButton, Qt::NoButton, {});
        QCoreApplication::sendEvent(view.viewport(), &event);
    };
    moveTo({50, 50});
    QVERIFY(handler.calls.isEmpty());
    moveTo({150, 200});
    QCOMPARE(handler.cursors().constLast(), int(Qt::SizeAllCursor));
    moveTo({102, 200});
    QCOMPARE(handler.cursors().constLast(), int(Qt::SizeHorCursor));
    moveTo({50, 50});
    QCOMPARE(handler.cursors().constLast(), int(Qt::ArrowCursor));
}

void tst_SelectionFrameHitZones::endlessCoordinates()
{
    constexpr double infinite = std::numeric_limits<double>::infinity();
    constexpr double none = std::numeric_limits<double>::quiet_NaN();
    RecordingFrameHandler handler;
    PlainFrame item(&handler);
    const QRectF frame(100, 100, 100, 200);
    item.SetFrameInScene(frame);
    for (double x : {infinite, -infinite, none, 1e300, -1e300}) {
        for (double y : {150.0, infinite, -infinite, none}) {
            handler.clear();
            FrameGestures::press(item, QPointF(x, y));
            // Nothing is grabbed.
            QVERIFY(!item.IsInfoCaptionVisible());
            QCOMPARE(handler.interactions(), 1);
            FrameGestures::release(item, QPointF(x, y));
        }
    }
    QCOMPARE(item.GetFrameInScene(), frame);
}

QTEST_MAIN(tst_SelectionFrameHitZones)
#include "tst_SelectionFrameHitZones.moc"
