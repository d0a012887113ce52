#include <KQt/Ui/SelectionFrameWidget/SelectionFrameGeometry.h>

#include <QtTest>

#include <cmath>
#include <limits>

using namespace Kestrel::Gui::Detail;

Q_DECLARE_METATYPE(Kestrel::Gui::Detail::FrameZone)

namespace {

const FrameCorners Square{{0, 0}, {100, 100}};
const SceneEdges Endless;
constexpr double Infinity = std::numeric_limits<double>::infinity();
const double NotANumber = std::numeric_limits<double>::quiet_NaN();

FrameCorners moved(const FrameCorners& frame, const QPointF& by)
{
    return {frame.topLeft + by, frame.bottomRight + by};
}

} // namespace

class tst_SelectionFrameGeometry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void zones_data();
    void zones();
    void bandIsTruncatedTowardZero();
    void cornersReachBeyondTheTruncatedBand();
    void cornersOfSmallFramesAreTestedInOrder();
    void cornerPoints();
    void diagonalCursorsFollowTheScreen();

    void dragSticksToWorkRect_data();
    void dragSticksToWorkRect();
    void dragTestsTruncatedEdges();
    void dragOfTooWideFrameEndsFlushRight();

    void freeResize_data();
    void freeResize();

    void ratioResize_data();
    void ratioResize();
    void ratioResizeClampsOnceInOrder();
    void ratioResizeMayFallBelowTheMinimum();

    void restoredRatio_data();
    void restoredRatio();
    void shapesAreComparedExactly();

    void paintableRectIsCutFarOutside();
    void alignedRectIsCutToWholeNumbers();
    void anyNumberIsTaken();
};

void tst_SelectionFrameGeometry::zones_data()
{
    QTest::addColumn<QPointF>("point");
    QTest::addColumn<FrameZone>("zone");
    QTest::newRow("right side, outside") << QPointF(105, 50) << FrameZone::RightSide;
    QTest::newRow("right-bottom corner, outside") << QPointF(108, 108) << FrameZone::RightBottomCorner;
    QTest::newRow("inside") << QPointF(50, 50) << FrameZone::Inside;
    QTest::newRow("beyond the band") << QPointF(111, 50) << FrameZone::None;
    QTest::newRow("last of the band") << QPointF(50, -10) << FrameZone::TopSide;
    QTest::newRow("last of the inner band") << QPointF(50, 10) << FrameZone::TopSide;
    QTest::newRow("first of the inside") << QPointF(50, 10.5) << FrameZone::Inside;
    QTest::newRow("corner wins over sides") << QPointF(5, 5) << FrameZone::LeftTopCorner;
    QTest::newRow("last of the corner") << QPointF(10, 10) << FrameZone::LeftTopCorner;
    QTest::newRow("right-top corner") << QPointF(90, 10) << FrameZone::RightTopCorner;
    QTest::newRow("left-bottom corner") << QPointF(-10, 110) << FrameZone::LeftBottomCorner;
    QTest::newRow("bottom side") << QPointF(50, 93) << FrameZone::BottomSide;
    QTest::newRow("left side") << QPointF(-3, 50) << FrameZone::LeftSide;
}

void tst_SelectionFrameGeometry::zones()
{
    QFETCH(QPointF, point);
    QFETCH(FrameZone, zone);
    QCOMPARE(zoneAt(point, Square), zone);
}

void tst_SelectionFrameGeometry::bandIsTruncatedTowardZero()
{
    // 0.9 - 10 = -9.1 becomes -9: the band loses its last tenth. 100.9 + 10 = 110.9 becomes 110.
    const FrameCorners frame{{0.9, 0.9}, {100.9, 100.9}};
    QVERIFY(isInGrabBand({-9, 50}, frame));
    QVERIFY(!isInGrabBand({-9.05, 50}, frame));
    QVERIFY(isInGrabBand({50, 110}, frame));
    QVERIFY(!isInGrabBand({50, 110.5}, frame));
    QCOMPARE(zoneAt({110.5, 50}, frame), FrameZone::None);

    // Left of zero it gains what it loses right of it.
    const FrameCorners negative = moved(Square, {-200.5, -200.5});
    QVERIFY(isInGrabBand({-210.0, -150}, negative));
    QVERIFY(!isInGrabBand({-210.2, -150}, negative));
    QVERIFY(isInGrabBand({-90.0, -150}, negative));

    // 15.5 - 10 = 5.5 becomes 5: half a unit more than the tolerance of the sides, and so inside.
    const FrameCorners positive = moved(Square, {15.5, 15.5});
    QCOMPARE(zoneAt({5.2, 60}, positive), FrameZone::Inside);
}

void tst_SelectionFrameGeometry::cornersReachBeyondTheTruncatedBand()
{
    const FrameCorners frame{{0.9, 0.9}, {100.9, 100.9}};
    const QPointF beyond(110.5, 110.5);
    QVERIFY(!isInGrabBand(beyond, frame));
    QCOMPARE(zoneAt(beyond, frame), FrameZone::RightBottomCorner);
}

void tst_SelectionFrameGeometry::cornersOfSmallFramesAreTestedInOrder()
{
    const FrameCorners small{{0, 0}, {8, 8}};
    QCOMPARE(zoneAt({4, 4}, small), FrameZone::LeftTopCorner);
    QCOMPARE(zoneAt({12, 4}, small), FrameZone::RightTopCorner);
    QCOMPARE(zoneAt({12, 12}, small), FrameZone::RightBottomCorner);
    QCOMPARE(zoneAt({4, 12}, small), FrameZone::RightBottomCorner);
    QCOMPARE(zoneAt({-4, 12}, small), FrameZone::LeftBottomCorner);
}

void tst_SelectionFrameGeometry::cornerPoints()
{
    const FrameCorners frame{{1, 2}, {30, 40}};
    const QPointF expected[] = {{1, 2}, {30, 2}, {30, 2}, {30, 40}, {30, 40}, {1, 40}, {1, 40}, {1, 2}};
    for (int place = 0; place < 8; ++place)
        QCOMPARE(cornerPoint(place, frame), expected[place]);
    for (int place : {-2, -1, 8})
        QVERIFY(cornerPoint(place, frame).isNull());
}

void tst_SelectionFrameGeometry::diagonalCursorsFollowTheScreen()
{
    const FrameCorners mirroredBoth{{100, 100}, {0, 0}};
    const FrameCorners mirroredOnce{{100, 0}, {0, 100}};
    const FrameCorners flat{{0, 50}, {100, 50}};
    for (FrameZone zone : {FrameZone::LeftTopCorner, FrameZone::RightBottomCorner}) {
        QCOMPARE(cursorForZone(zone, Square), Qt::SizeFDiagCursor);
        QCOMPARE(cursorForZone(zone, mirroredBoth), Qt::SizeFDiagCursor);
        QCOMPARE(cursorForZone(zone, mirroredOnce), Qt::SizeBDiagCursor);
        QCOMPARE(cursorForZone(zone, flat), Qt::SizeBDiagCursor);
    }
    for (FrameZone zone : {FrameZone::RightTopCorner, FrameZone::LeftBottomCorner}) {
        QCOMPARE(cursorForZone(zone, Square), Qt::SizeBDiagCursor);
        QCOMPARE(cursorForZone(zone, mirroredBoth), Qt::SizeBDiagCursor);
        QCOMPARE(cursorForZone(zone, mirroredOnce), Qt::SizeFDiagCursor);
        QCOMPARE(cursorForZone(zone, flat), Qt::SizeFDiagCursor);
    }
}

void tst_SelectionFrameGeometry::dragSticksToWorkRect_data()
{
    QTest::addColumn<QPointF>("by");
    QTest::addColumn<QPointF>("topLeft");
    QTest::newRow("not at all") << QPointF(0, 0) << QPointF(10, 10);
    QTest::newRow("free") << QPointF(3.5, 7.25) << QPointF(13.5, 17.25);
    QTest::newRow("left") << QPointF(-50, 0) << QPointF(0, 10);
    QTest::newRow("just at the left") << QPointF(-10, 0) << QPointF(0, 10);
    QTest::newRow("right") << QPointF(500, 0) << QPointF(300, 10);
    QTest::newRow("just at the right") << QPointF(290, 5) << QPointF(300, 15);
    QTest::newRow("top and right") << QPointF(500, -11) << QPointF(300, 0);
    QTest::newRow("bottom") << QPointF(5, 191) << QPointF(15, 200);
}

void tst_SelectionFrameGeometry::dragSticksToWorkRect()
{
    QFETCH(QPointF, by);
    QFETCH(QPointF, topLeft);
    const FramePress press{moved(Square, {10, 10}), {60, 60}};
    const QRectF dragged = draggedFrame(press, press.mouse + by, {100, 100}, {0, 0, 400, 300});
    QCOMPARE(dragged, QRectF(topLeft, QSizeF(100, 100)));
}

void tst_SelectionFrameGeometry::dragTestsTruncatedEdges()
{
    // 10.9 counts as 10 at the left edge, 110.9 as 110 at the right one; the frame itself moves by what it is.
    const FramePress press{moved(Square, {10.9, 10.9}), {0, 0}};
    const QRectF work(0, 0, 400, 300);
    QCOMPARE(draggedFrame(press, {-10, 0}, {100, 100}, work).left(), 0.0);
    QCOMPARE(draggedFrame(press, {-9.5, 0}, {100, 100}, work).left(), 10.9 - 9.5);
    QCOMPARE(draggedFrame(press, {289.5, 0}, {100, 100}, work).left(), 10.9 + 289.5);
    QCOMPARE(draggedFrame(press, {290, 0}, {100, 100}, work).left(), 300.0);
}

void tst_SelectionFrameGeometry::dragOfTooWideFrameEndsFlushRight()
{
    const FramePress press{{{10, 10}, {610, 510}}, {0, 0}};
    QCOMPARE(draggedFrame(press, {-50, -50}, {600, 500}, {0, 0, 400, 300}), QRectF(-200, -200, 600, 500));
}

void tst_SelectionFrameGeometry::freeResize_data()
{
    QTest::addColumn<FrameZone>("zone");
    QTest::addColumn<QPointF>("mouse");
    QTest::addColumn<QRectF>("expected");
    const QPointF out(-40, -30);
    QTest::newRow("right, pushed back") << FrameZone::RightSide << out << QRectF(0, 0, 16, 50);
    QTest::newRow("bottom, pushed back") << FrameZone::BottomSide << out << QRectF(0, 0, 100, 16);
    QTest::newRow("left") << FrameZone::LeftSide << out << QRectF(-40, 0, 140, 50);
    QTest::newRow("left, pushed back") << FrameZone::LeftSide << QPointF(90, 0) << QRectF(84, 0, 16, 50);
    QTest::newRow("top") << FrameZone::TopSide << out << QRectF(0, -30, 100, 80);
    QTest::newRow("top, pushed back") << FrameZone::TopSide << QPointF(0, 45) << QRectF(0, 34, 100, 16);
    QTest::newRow("left-top") << FrameZone::LeftTopCorner << out << QRectF(-40, -30, 140, 80);
    QTest::newRow("right-top") << FrameZone::RightTopCorner << out << QRectF(0, -30, 16, 80);
    QTest::newRow("right-bottom") << FrameZone::RightBottomCorner << QPointF(120, 61) << QRectF(0, 0, 120, 61);
    QTest::newRow("left-bottom") << FrameZone::LeftBottomCorner << out << QRectF(-40, 0, 140, 16);
    QTest::newRow("inside") << FrameZone::Inside << out << QRectF(0, 0, 100, 50);
    QTest::newRow("none") << FrameZone::None << out << QRectF(0, 0, 100, 50);
}

void tst_SelectionFrameGeometry::freeResize()
{
    QFETCH(FrameZone, zone);
    QFETCH(QPointF, mouse);
    QFETCH(QRectF, expected);
    QCOMPARE(resizedFreely({0, 0, 100, 50}, zone, mouse), expected);
}

void tst_SelectionFrameGeometry::ratioResize_data()
{
    QTest::addColumn<FrameZone>("zone");
    QTest::addColumn<QPointF>("mouse");
    QTest::addColumn<QRectF>("expected");
    // The frame is (200, 200) to (300, 250), ratio 2, the scene (100, 100) to (400, 400).
    QTest::newRow("left-top") << FrameZone::LeftTopCorner << QPointF(180, 0) << QRectF(180, 190, 120, 60);
    QTest::newRow("left-top, minimum") << FrameZone::LeftTopCorner << QPointF(299, 0) << QRectF(268, 234, 32, 16);
    QTest::newRow("left-top, scene") << FrameZone::LeftTopCorner << QPointF(0, 0) << QRectF(100, 150, 200, 100);
    QTest::newRow("left-bottom") << FrameZone::LeftBottomCorner << QPointF(180, 0) << QRectF(180, 200, 120, 60);
    QTest::newRow("left-bottom, scene") << FrameZone::LeftBottomCorner << QPointF(0, 0) << QRectF(100, 200, 200, 100);
    QTest::newRow("right-bottom") << FrameZone::RightBottomCorner << QPointF(340, 0) << QRectF(200, 200, 140, 70);
    QTest::newRow("right-bottom, scene") << FrameZone::RightBottomCorner << QPointF(999, 0)
                                         << QRectF(200, 200, 200, 100);
    QTest::newRow("right-top") << FrameZone::RightTopCorner << QPointF(340, 0) << QRectF(200, 180, 140, 70);
    QTest::newRow("right-top, scene") << FrameZone::RightTopCorner << QPointF(999, 0) << QRectF(200, 150, 200, 100);
    QTest::newRow("top") << FrameZone::TopSide << QPointF(0, 190) << QRectF(190, 190, 120, 60);
    QTest::newRow("top, scene") << FrameZone::TopSide << QPointF(0, 0) << QRectF(100, 100, 300, 150);
    QTest::newRow("bottom") << FrameZone::BottomSide << QPointF(0, 260) << QRectF(190, 200, 120, 60);
    QTest::newRow("bottom, scene") << FrameZone::BottomSide << QPointF(0, 999) << QRectF(100, 200, 300, 150);
    QTest::newRow("right") << FrameZone::RightSide << QPointF(320, 0) << QRectF(200, 195, 120, 60);
    QTest::newRow("right, scene") << FrameZone::RightSide << QPointF(999, 0) << QRectF(200, 175, 200, 100);
    QTest::newRow("left") << FrameZone::LeftSide << QPointF(180, 0) << QRectF(180, 195, 120, 60);
    QTest::newRow("left, scene") << FrameZone::LeftSide << QPointF(0, 0) << QRectF(100, 175, 200, 100);
    QTest::newRow("left, minimum") << FrameZone::LeftSide << QPointF(299, 0) << QRectF(268, 217, 32, 16);
    QTest::newRow("inside") << FrameZone::Inside << QPointF(0, 0) << QRectF(200, 200, 100, 50);
    QTest::newRow("none") << FrameZone::None << QPointF(0, 0) << QRectF(200, 200, 100, 50);
}

void tst_SelectionFrameGeometry::ratioResize()
{
    QFETCH(FrameZone, zone);
    QFETCH(QPointF, mouse);
    QFETCH(QRectF, expected);
    const SceneEdges scene = sceneEdges({100, 100, 300, 300});
    QCOMPARE(resizedKeepingRatio({200, 200, 100, 50}, zone, mouse, 2.0, scene), expected);
}

void tst_SelectionFrameGeometry::ratioResizeClampsOnceInOrder()
{
    // The top is clamped to 100 high, then the sides to 60 wide; the left one first, and the right one does not grow
    // it.
    const SceneEdges scene{170, 0, 1000, 1000};
    QCOMPARE(resizedKeepingRatio({100, 0, 200, 100}, FrameZone::TopSide, {0, -50}, 2.0, scene),
             QRectF(170, 70, 60, 30));
    // The centre lies nearer to the right edge: clamped to the left first, to the right at last.
    const SceneEdges narrow{150, 0, 210, 1000};
    QCOMPARE(resizedKeepingRatio({100, 0, 200, 100}, FrameZone::TopSide, {0, -50}, 2.0, narrow),
             QRectF(190, 90, 20, 10));
}

void tst_SelectionFrameGeometry::ratioResizeMayFallBelowTheMinimum()
{
    const SceneEdges scene{-1000, -1000, 210, 1000};
    QCOMPARE(resizedKeepingRatio({200, 200, 100, 100}, FrameZone::RightSide, {250, 0}, 1.0, scene),
             QRectF(200, 245, 10, 10));
}

void tst_SelectionFrameGeometry::restoredRatio_data()
{
    QTest::addColumn<QRectF>("frame");
    QTest::addColumn<double>("ratio");
    QTest::addColumn<QRectF>("expected");
    QTest::newRow("square keeps its height") << QRectF(50, 50, 100, 100) << 2.0 << QRectF(50, 50, 200, 100);
    QTest::newRow("wide keeps its width") << QRectF(50, 50, 200, 100) << 4.0 << QRectF(50, 75, 200, 50);
    QTest::newRow("minimum") << QRectF(50, 50, 20, 10) << 4.0 << QRectF(50, 47, 64, 16);
    QTest::newRow("right edge") << QRectF(300, 50, 100, 100) << 2.0 << QRectF(300, 75, 100, 50);
    QTest::newRow("top edge") << QRectF(0, 10, 200, 20) << 2.0 << QRectF(0, 0, 80, 40);
    QTest::newRow("bottom edge") << QRectF(0, 270, 200, 20) << 2.0 << QRectF(0, 260, 80, 40);
}

void tst_SelectionFrameGeometry::restoredRatio()
{
    QFETCH(QRectF, frame);
    QFETCH(double, ratio);
    QFETCH(QRectF, expected);
    QCOMPARE(withRatioRestored(frame, ratio, sceneEdges({0, 0, 400, 300})), expected);
}

void tst_SelectionFrameGeometry::shapesAreComparedExactly()
{
    QVERIFY(hasSameShape({0, 0, 20, 10}, {5, 5, 200, 100}));
    QVERIFY(!hasSameShape({0, 0, 20, std::nextafter(10.0, 11.0)}, {5, 5, 200, 100}));
    QVERIFY(!hasSameShape({0, 0, 20, 10}, {}));
}

void tst_SelectionFrameGeometry::paintableRectIsCutFarOutside()
{
    QCOMPARE(paintableRect({0.5, -0.5, 1e6, -30}), QRectF(0.5, -0.5, 1e6, -30));
    const QRectF cut = paintableRect(QRectF(QPointF(20, 30), QPointF(1e300, Infinity)));
    QCOMPARE(cut.topLeft(), QPointF(20, 30));
    QVERIFY(cut.right() > 1e6 && cut.right() < 1e9);
    QVERIFY(cut.bottom() > 1e6 && cut.bottom() < 1e9);
    QVERIFY(!paintableRect({NotANumber, 0, 10, 10}).intersects({-1e6, -1e6, 2e6, 2e6}));
}

void tst_SelectionFrameGeometry::alignedRectIsCutToWholeNumbers()
{
    QCOMPARE(alignedRect({0.5, -0.5, 10, 10}), QRectF(0.5, -0.5, 10, 10).toAlignedRect());
    QCOMPARE(alignedRect({10, 10, -4.5, 3}), QRectF(10, 10, -4.5, 3).toAlignedRect());
    const QRect everything = alignedRect(QRectF(QPointF(-1e300, -1e300), QPointF(1e300, 1e300)));
    QVERIFY(everything.contains(QRect(-100000, -100000, 200000, 200000)));
    QVERIFY(alignedRect(QRectF(QPointF(1e300, 0), QPointF(-1e300, 10))).isEmpty());
    QVERIFY(alignedRect({NotANumber, NotANumber, NotANumber, NotANumber}).isEmpty());
}

// Nothing to compare: the sanitizers must find no conversion that the numbers do not survive.
void tst_SelectionFrameGeometry::anyNumberIsTaken()
{
    const double numbers[] = {NotANumber, Infinity, -Infinity, 1e300, -1e300, 0.0, -20.0};
    for (double a : numbers) {
        for (double b : numbers) {
            const QRectF frame(a, b, b, a);
            const QPointF mouse(b, a);
            const FrameCorners corners{frame.topLeft(), frame.bottomRight()};
            const FrameZone hit = zoneAt(mouse, corners);
            QVERIFY(hit >= FrameZone::None && hit <= FrameZone::LeftSide);
            cursorForZone(hit, corners);
            draggedFrame({corners, mouse}, {a, a}, frame.size(), {b, b, a, a});
            for (int zone = -2; zone < 8; ++zone) {
                resizedFreely(frame, static_cast<FrameZone>(zone), mouse);
                resizedKeepingRatio(frame, static_cast<FrameZone>(zone), mouse, b, sceneEdges({a, a, b, b}));
                resizedKeepingRatio(frame, static_cast<FrameZone>(zone), mouse, b, Endless);
            }
            withRatioRestored(frame, b, Endless);
            alignedRect(frame);
        }
    }
}

QTEST_APPLESS_MAIN(tst_SelectionFrameGeometry)
#include "tst_SelectionFrameGeometry.moc"
