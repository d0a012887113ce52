#include <KQt/Ui/SelectionFrameWidget/SelectionFrameGraphicsItem.h>

#include "support/FrameGestures.h"
#include "support/FrameReference.h"
#include "support/ProbeFrame.h"
#include "support/RandomGeometry.h"
#include "support/RecordingFrameHandler.h"
#include "support/RectComparison.h"

#include <QGraphicsScene>
#include <QtTest>

#include <limits>

using namespace Kestrel::Gui;
using FrameReference::Zone;
using PlainFrame = ProbeFrame<QGraphicsItem>;
using PixmapFrame = ProbeFrame<QGraphicsPixmapItem>;
using TextFrame = ProbeFrame<QGraphicsTextItem>;
using Handler = RecordingFrameHandler;

Q_DECLARE_METATYPE(FrameReference::Zone)

namespace {

/// The point of @p frame in the middle of @p zone.
QPointF handleOf(const QRectF& frame, int zone)
{
    const int x = FrameReference::horizontalPull(zone);
    const int y = FrameReference::verticalPull(zone);
    return {frame.x() + frame.width() * (x + 1) / 2, frame.y() + frame.height() * (y + 1) / 2};
}

template <typename Item>
void pull(Item& item, int zone, const QPointF& to)
{
    const QPointF at = handleOf(item.GetFrameInScene(), zone);
    FrameGestures::press(item, at);
    FrameGestures::move(item, to);
    FrameGestures::release(item, to);
}

/// Keeps @p ratio without the frame being reshaped to it: a frame of the work rect's own shape is left alone.
template <typename Item>
void takeRatio(Item& item, double ratio)
{
    item.Initialize(QRectF(0, 0, 100, 100), QRectF(0, 0, 100, 100));
    item.SetAspectRatio(ratio);
    item.SetKeepAspectRatio(true);
}

QByteArray describe(const QRectF& frame, int zone, const QPointF& to, double ratio)
{
    return "frame " + RectComparison::text(frame) + " zone " + QByteArray::number(zone) + " to " +
           QByteArray::number(to.x()) + ", " + QByteArray::number(to.y()) + " ratio " + QByteArray::number(ratio);
}

/// Whether the library may take @p a and @p b for the same frame or for two: too near to tell without its own rounding.
bool undecided(const QRectF& a, const QRectF& b)
{
    return RectComparison::nearly(a, b) && a != b;
}

} // namespace

class tst_SelectionFrameResizing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void free_data();
    void free();
    void freeKnowsNoLimits();
    void freeResizingOfMirroredFrames();
    void randomFree();
    void proportional_data();
    void proportional();
    void minimumWidthFirst();
    void sceneNotWorkRect();
    void clampsRunOnce();
    void randomProportional();
    void mirroredProportional();
    void sameFrameIsNotPlaced();
    void movedFrameIsPlacedOnce();
    void invertedScene();
    void withoutAScene();
    void setAspectRatio();
    void setAspectRatioComparesFuzzily();
    void setAspectRatioUnkept();
    void setKeepAspectRatio();
    void ratioOfTheWorkRectIsLeftAlone();
    void restoringIsClamped();
    void randomRestoring();
    void endlessCoordinates();

private:
    template <typename Item>
    void checkRandomFree(unsigned seed, int rounds);
    template <typename Item>
    void checkRandomProportional(unsigned seed, int rounds, bool mirrored);
    template <typename Item>
    void checkRandomRestoring(unsigned seed, int rounds);
};

void tst_SelectionFrameResizing::free_data()
{
    QTest::addColumn<Zone>("zone");
    QTest::addColumn<QPointF>("to");
    QTest::addColumn<QRectF>("expected");

    using namespace FrameReference;
    // Of the frame (100, 100, 100, 50).
    QTest::newRow("left top") << LeftTop << QPointF(80, 90) << QRectF(80, 90, 120, 60);
    QTest::newRow("top, x is ignored") << Top << QPointF(0, 90) << QRectF(100, 90, 100, 60);
    QTest::newRow("right top") << RightTop << QPointF(250, 90) << QRectF(100, 90, 150, 60);
    QTest::newRow("right, y is ignored") << Right << QPointF(250, 0) << QRectF(100, 100, 150, 50);
    QTest::newRow("right bottom") << RightBottom << QPointF(250.5, 170.25) << QRectF(100, 100, 150.5, 70.25);
    QTest::newRow("bottom") << Bottom << QPointF(0, 170) << QRectF(100, 100, 100, 70);
    QTest::newRow("left bottom") << LeftBottom << QPointF(80, 170) << QRectF(80, 100, 120, 70);
    QTest::newRow("left") << Left << QPointF(80, 0) << QRectF(80, 100, 120, 50);
    // Pushed back to 16 units at the edge that moves; the other one stands.
    QTest::newRow("left top, too far") << LeftTop << QPointF(500, 500) << QRectF(184, 134, 16, 16);
    QTest::newRow("right top, too far") << RightTop << QPointF(-500, 500) << QRectF(100, 134, 16, 16);
    QTest::newRow("right bottom, too far") << RightBottom << QPointF(-500, -500) << QRectF(100, 100, 16, 16);
    QTest::newRow("left bottom, too far") << LeftBottom << QPointF(500, -500) << QRectF(184, 100, 16, 16);
    QTest::newRow("right, too far") << Right << QPointF(-40, 0) << QRectF(100, 100, 16, 50);
    QTest::newRow("right, just the minimum") << Right << QPointF(116, 0) << QRectF(100, 100, 16, 50);
    QTest::newRow("right, just too far") << Right << QPointF(115.5, 0) << QRectF(100, 100, 16, 50);
    QTest::newRow("left, too far") << Left << QPointF(190, 0) << QRectF(184, 100, 16, 50);
    QTest::newRow("top, too far") << Top << QPointF(0, 140) << QRectF(100, 134, 100, 16);
    QTest::newRow("bottom, too far") << Bottom << QPointF(0, 110) << QRectF(100, 100, 100, 16);
}

void tst_SelectionFrameResizing::free()
{
    QFETCH(const Zone, zone);
    QFETCH(const QPointF, to);
    QFETCH(const QRectF, expected);
    QGraphicsScene scene(0, 0, 1000, 1000);
    Handler handler;
    auto* item = new PlainFrame(&handler);
    scene.addItem(item);
    item->SetKeepAspectRatio(false);
    const QRectF frame(100, 100, 100, 50);
    item->Initialize(QRectF(0, 0, 1000, 1000), frame);
    QCOMPARE(FrameReference::freelyResized(frame, zone, to), expected);
    pull(*item, zone, to);
    QCOMPARE(item->GetFrameInScene(), expected);
}

void tst_SelectionFrameResizing::freeKnowsNoLimits()
{
    // Unlike moving (the work rect) and proportional resizing (the scene rect): a region may be drawn past the picture,
    // and subclasses crop it where they want to.
    QGraphicsScene scene(0, 0, 200, 200);
    Handler handler;
    auto* item = new PlainFrame(&handler);
    scene.addItem(item);
    item->SetKeepAspectRatio(false);
    item->Initialize(QRectF(50, 50, 100, 100), QRectF(60, 60, 50, 50));
    pull(*item, FrameReference::LeftTop, QPointF(-500, -400));
    QCOMPARE(item->GetFrameInScene(), QRectF(-500, -400, 610, 510));
    pull(*item, FrameReference::RightBottom, QPointF(900, 800));
    QCOMPARE(item->GetFrameInScene(), QRectF(-500, -400, 1400, 1200));
}

void tst_SelectionFrameResizing::freeResizingOfMirroredFrames()
{
    Handler handler;
    PlainFrame item(&handler);
    item.SetKeepAspectRatio(false);
    item.Initialize(QRectF(0, 0, 1000, 1000), QRectF(200, 100, -100, 50));
    // Its width counts as less than the minimum, so that the first pull turns it upright around the edge that stands.
    pull(item, FrameReference::Right, QPointF(90, 0));
    QCOMPARE(item.GetFrameInScene(), QRectF(200, 100, 16, 50));

    item.SetFrameInScene(QRectF(200, 100, -100, 50));
    pull(item, FrameReference::Left, QPointF(210, 0));
    QCOMPARE(item.GetFrameInScene(), QRectF(84, 100, 16, 50));

    // Resizing never mirrors.
    for (int zone = FrameReference::LeftTop; zone <= FrameReference::Left; ++zone) {
        for (const QPointF to : {QPointF(-999, -999), QPointF(999, 999), QPointF(-999, 999), QPointF(999, -999)}) {
            item.SetFrameInScene(QRectF(100, 100, 100, 50));
            pull(item, zone, to);
            QVERIFY(item.GetFrameInScene().width() >= 16 && item.GetFrameInScene().height() >= 16);
        }
    }
}

template <typename Item>
void tst_SelectionFrameResizing::checkRandomFree(unsigned seed, int rounds)
{
    RandomGeometry random(seed);
    QGraphicsScene scene;
    Handler handler;
    auto* item = new Item(&handler);
    scene.addItem(item);
    item->SetKeepAspectRatio(false);
    for (int i = 0; i < rounds; ++i) {
        scene.setSceneRect(random.rect(-200, 200, 10, 500));
        const QRectF work = random.rect(-200, 200, 10, 500);
        const QRectF frame = random.mirroredSometimes(random.rect(-250, 250, 1, 300));
        item->Initialize(work, frame);
        const QPointF at = handleOf(frame, random.below(8)) + random.point(-4, 4);
        const Zone zone = FrameReference::zoneAt(frame, at);
        if (zone < FrameReference::LeftTop)
            continue;
        FrameGestures::press(*item, at);
        for (int step = 0; step < 6; ++step) {
            const QRectF current = item->GetFrameInScene();
            const QPointF to = random.oneIn(3) ? random.point(-700, 700) : at + random.point(-30, 30);
            const QRectF expected = FrameReference::freelyResized(current, zone, to);
            handler.clear();
            FrameGestures::move(*item, to);
            COMPARE_RECTS_IN(item->GetFrameInScene(), expected, describe(current, zone, to, 0));
            QCOMPARE(handler.calls.size(), expected == current ? 0 : 1);
        }
        FrameGestures::release(*item, at);
    }
}

void tst_SelectionFrameResizing::randomFree()
{
    checkRandomFree<PlainFrame>(21, 4000);
    if (!QTest::currentTestFailed())
        checkRandomFree<PixmapFrame>(22, 1500);
    if (!QTest::currentTestFailed())
        checkRandomFree<TextFrame>(23, 1500);
}

void tst_SelectionFrameResizing::proportional_data()
{
    QTest::addColumn<double>("ratio");
    QTest::addColumn<QRectF>("frame");
    QTest::addColumn<Zone>("zone");
    QTest::addColumn<QPointF>("to");
    QTest::addColumn<QRectF>("expected");

    using namespace FrameReference;
    const QRectF square(100, 100, 100, 100);
    // In the scene (0, 0, 400, 300). Corners follow the mouse's x alone.
    QTest::newRow("left top") << 1.0 << square << LeftTop << QPointF(80, 999) << QRectF(80, 80, 120, 120);
    QTest::newRow("left bottom") << 1.0 << square << LeftBottom << QPointF(80, -999) << QRectF(80, 100, 120, 120);
    QTest::newRow("right bottom") << 1.0 << square << RightBottom << QPointF(230, -9) << QRectF(100, 100, 130, 130);
    QTest::newRow("right top") << 1.0 << square << RightTop << QPointF(230, 999) << QRectF(100, 70, 130, 130);
    // Sides stay centred on the other axis.
    QTest::newRow("top") << 1.0 << square << Top << QPointF(0, 80) << QRectF(90, 80, 120, 120);
    QTest::newRow("bottom") << 1.0 << square << Bottom << QPointF(0, 220) << QRectF(90, 100, 120, 120);
    QTest::newRow("right") << 1.0 << square << Right << QPointF(220, 0) << QRectF(100, 90, 120, 120);
    QTest::newRow("left") << 1.0 << square << Left << QPointF(80, 0) << QRectF(80, 90, 120, 120);
    // Another ratio than the frame's is taken up at the first step.
    QTest::newRow("ratio 2, corner") << 2.0 << square << RightBottom << QPointF(240, 0) << QRectF(100, 100, 140, 70);
    QTest::newRow("ratio 2, top") << 2.0 << square << Top << QPointF(0, 120) << QRectF(70, 120, 160, 80);
    QTest::newRow("ratio 2, left") << 2.0 << square << Left << QPointF(80, 0) << QRectF(80, 120, 120, 60);
    // The minimum.
    const QRectF atOrigin(0, 0, 100, 100);
    QTest::newRow("left top to the minimum") << 1.0 << atOrigin << LeftTop << QPointF(90, 0) << QRectF(84, 84, 16, 16);
    QTest::newRow("mouse beyond the corner") << 1.0 << atOrigin << LeftTop << QPointF(500, 7) << QRectF(84, 84, 16, 16);
    QTest::newRow("ratio 2, minimal height") << 2.0 << square << Right << QPointF(101, 0) << QRectF(100, 142, 32, 16);
    QTest::newRow("ratio 1/2, minimal width") << 0.5 << square << Right << QPointF(101, 0) << QRectF(100, 134, 16, 32);
    QTest::newRow("ratio 2, top, minimum") << 2.0 << square << Top << QPointF(0, 199) << QRectF(134, 184, 32, 16);
    // The scene's edges.
    QTest::newRow("left top at the left") << 1.0 << square << LeftTop << QPointF(-50, 0) << QRectF(0, 0, 200, 200);
    QTest::newRow("left top at the top") << 0.5 << square << LeftTop << QPointF(0, 0) << QRectF(100, 0, 100, 200);
    QTest::newRow("right bottom, bottom")
        << 1.0 << square << RightBottom << QPointF(390, 0) << QRectF(100, 100, 200, 200);
    QTest::newRow("right bottom, right") << 2.0 << square << RightBottom << QPointF(500, 0)
                                         << QRectF(100, 100, 300, 150);
    QTest::newRow("left bottom, left") << 2.0 << square << LeftBottom << QPointF(-5, 0) << QRectF(0, 100, 200, 100);
    QTest::newRow("left bottom, bottom") << 0.5 << square << LeftBottom << QPointF(0, 0) << QRectF(100, 100, 100, 200);
    QTest::newRow("right top, right") << 4.0 << square << RightTop << QPointF(500, 0) << QRectF(100, 125, 300, 75);
    QTest::newRow("right top, top") << 1.0 << square << RightTop << QPointF(390, 0) << QRectF(100, 0, 200, 200);
    QTest::newRow("top, top") << 1.0 << square << Top << QPointF(0, -50) << QRectF(50, 0, 200, 200);
    QTest::newRow("top, left") << 2.0 << square << Top << QPointF(0, 20) << QRectF(0, 50, 300, 150);
    QTest::newRow("top, right") << 2.0 << QRectF(250, 100, 100, 100) << Top << QPointF(0, 90)
                                << QRectF(200, 100, 200, 100);
    QTest::newRow("bottom, bottom") << 1.0 << square << Bottom << QPointF(0, 999) << QRectF(50, 100, 200, 200);
    QTest::newRow("bottom, left") << 2.0 << square << Bottom << QPointF(0, 299) << QRectF(0, 100, 300, 150);
    QTest::newRow("bottom, right") << 2.0 << QRectF(250, 100, 100, 100) << Bottom << QPointF(0, 290)
                                   << QRectF(200, 100, 200, 100);
    QTest::newRow("right, right") << 2.0 << square << Right << QPointF(999, 0) << QRectF(100, 75, 300, 150);
    QTest::newRow("right, top") << 0.5 << square << Right << QPointF(290, 0) << QRectF(100, 0, 150, 300);
    QTest::newRow("right, bottom") << 0.5 << QRectF(100, 150, 100, 100) << Right << QPointF(290, 0)
                                   << QRectF(100, 100, 100, 200);
    QTest::newRow("left, left") << 2.0 << square << Left << QPointF(-99, 0) << QRectF(0, 100, 200, 100);
    QTest::newRow("left, top") << 0.5 << QRectF(200, 50, 100, 100) << Left << QPointF(100, 0)
                               << QRectF(200, 0, 100, 200);
    QTest::newRow("left, bottom") << 0.5 << QRectF(200, 150, 100, 100) << Left << QPointF(100, 0)
                                  << QRectF(200, 100, 100, 200);
}

void tst_SelectionFrameResizing::proportional()
{
    QFETCH(const double, ratio);
    QFETCH(const QRectF, frame);
    QFETCH(const Zone, zone);
    QFETCH(const QPointF, to);
    QFETCH(const QRectF, expected);
    QGraphicsScene scene(0, 0, 400, 300);
    Handler handler;
    auto* item = new PlainFrame(&handler);
    scene.addItem(item);
    takeRatio(*item, ratio);
    item->Initialize(QRectF(0, 0, 50, 50), frame);
    const QRectF limits = scene.sceneRect();
    COMPARE_RECTS(FrameReference::proportionallyResized(frame, zone, to, ratio, &limits), expected);
    pull(*item, zone, to);
    COMPARE_RECTS(item->GetFrameInScene(), expected);
}

void tst_SelectionFrameResizing::minimumWidthFirst()
{
    // The width is looked at first and takes the height along; where that leaves the height below the minimum, the
    // height takes the width along again. So both end at 16 or more, one of them at exactly 16.
    QGraphicsScene scene(-1000, -1000, 3000, 3000);
    Handler handler;
    auto* item = new PlainFrame(&handler);
    scene.addItem(item);
    for (double ratio : {0.25, 0.5, 1.0, 2.0, 8.0}) {
        takeRatio(*item, ratio);
        for (int zone = FrameReference::LeftTop; zone <= FrameReference::Left; ++zone) {
            const QRectF frame(300, 300, 100, 100);
            item->Initialize(QRectF(0, 0, 500, 500), frame);
            // Past the edge that stands.
            pull(*item, zone, frame.center() - (handleOf(frame, zone) - frame.center()) * 3);
            const QSizeF size = item->GetFrameInScene().size();
            QCOMPARE(size, ratio < 1 ? QSizeF(16, 16 / ratio) : QSizeF(16 * ratio, 16));
        }
    }
}

void tst_SelectionFrameResizing::sceneNotWorkRect()
{
    QGraphicsScene scene(0, 0, 400, 400);
    Handler handler;
    auto* item = new PlainFrame(&handler);
    scene.addItem(item);
    item->Initialize(QRectF(90, 90, 120, 120), QRectF(100, 100, 100, 100));
    // Deliberately another rectangle than the one that holds moving: the frame grows past the work rect ...
    pull(*item, FrameReference::RightBottom, QPointF(300, 300));
    QCOMPARE(item->GetFrameInScene(), QRectF(100, 100, 200, 200));
    // ... up to the scene's edge.
    pull(*item, FrameReference::RightBottom, QPointF(3000, 300));
    QCOMPARE(item->GetFrameInScene(), QRectF(100, 100, 300, 300));
}

void tst_SelectionFrameResizing::clampsRunOnce()
{
    // Nothing looks at the minimum again once the scene has been asked.
    QGraphicsScene scene(0, 0, 400, 110);
    Handler handler;
    auto* item = new PlainFrame(&handler);
    scene.addItem(item);
    takeRatio(*item, 1.0);
    item->Initialize(QRectF(0, 0, 50, 50), QRectF(100, 104, 100, 100));
    pull(*item, FrameReference::RightBottom, QPointF(300, 0));
    QCOMPARE(item->GetFrameInScene(), QRectF(100, 104, 6, 6));

    // Outside the scene the room is negative: as the arithmetic gives it.
    scene.setSceneRect(0, 0, 400, 100);
    item->SetFrameInScene(QRectF(100, 104, 100, 100));
    pull(*item, FrameReference::RightBottom, QPointF(300, 0));
    QCOMPARE(item->GetFrameInScene(), QRectF(100, 104, -4, -4));

    // The left limit first, then the right one, each around the centre.
    scene.setSceneRect(100, -1000, 20, 3000);
    item->SetFrameInScene(QRectF(80, 104, 60, 60));
    pull(*item, FrameReference::Bottom, QPointF(0, 264));
    QCOMPARE(item->GetFrameInScene(), QRectF(100, 104, 20, 20));
    item->SetFrameInScene(QRectF(85, 104, 60, 60));
    pull(*item, FrameReference::Bottom, QPointF(0, 264));
    QCOMPARE(item->GetFrameInScene(), QRectF(110, 104, 10, 10));
}

template <typename Item>
void tst_SelectionFrameResizing::checkRandomProportional(unsigned seed, int rounds, bool mirrored)
{
    RandomGeometry random(seed);
    QGraphicsScene scene;
    Handler handler;
    auto* item = new Item(&handler);
    scene.addItem(item);
    QVector<int> steps(8);
    for (int i = 0; i < rounds; ++i) {
        // Nothing keeps a program from a negative ratio; it is the one that shows the order of the clamps.
        const double sign = random.oneIn(6) ? -1.0 : 1.0;
        const double ratio = random.oneIn(4) ? 1.0 : sign * random.between(1, 40) / 8.0;
        takeRatio(*item, ratio);
        QRectF limits = random.rect(-300, 100, 50, 900);
        if (random.oneIn(20))
            limits = QRectF(limits.bottomRight(), limits.topLeft());
        scene.setSceneRect(limits);
        limits = scene.sceneRect();
        QRectF frame = random.rect(-250, 250, 16, 300);
        if (mirrored)
            frame = random.mirroredSometimes(frame);
        item->Initialize(random.rect(-200, 200, 10, 500), frame);
        QCOMPARE(item->GetFrameInScene(), frame);

        const QPointF at = handleOf(frame, random.below(8)) + random.point(-4, 4);
        const Zone zone = FrameReference::zoneAt(frame, at);
        if (zone < FrameReference::LeftTop)
            continue;
        FrameGestures::press(*item, at);
        for (int step = 0; step < 6; ++step) {
            const QRectF current = item->GetFrameInScene();
            const QPointF to = random.oneIn(3) ? random.point(-700, 700) : at + random.point(-40, 40);
            const QRectF expected = FrameReference::proportionallyResized(current, zone, to, ratio, &limits);
            handler.clear();
            FrameGestures::move(*item, to);
            COMPARE_RECTS_IN(item->GetFrameInScene(), expected, describe(current, zone, to, ratio));
            if (!undecided(current, expected))
                QCOMPARE(handler.order(), expected == current ? QVector<int>() : QVector<int>{Handler::Frame});
            ++steps[zone];
        }
        FrameGestures::release(*item, at);
    }
    for (int count : qAsConst(steps))
        QVERIFY(count > rounds / 3);
}

void tst_SelectionFrameResizing::randomProportional()
{
    checkRandomProportional<PlainFrame>(31, 6000, false);
    if (!QTest::currentTestFailed())
        checkRandomProportional<PixmapFrame>(32, 2000, false);
    if (!QTest::currentTestFailed())
        checkRandomProportional<TextFrame>(33, 2000, false);
}

void tst_SelectionFrameResizing::mirroredProportional()
{
    checkRandomProportional<PlainFrame>(34, 6000, true);
}

void tst_SelectionFrameResizing::sameFrameIsNotPlaced()
{
    QGraphicsScene scene(0, 0, 400, 400);
    Handler handler;
    auto* item = new PlainFrame(&handler);
    scene.addItem(item);
    item->Initialize(QRectF(0, 0, 400, 300), QRectF(300, 100, 100, 100));
    FrameGestures::press(*item, QPointF(400, 150));
    handler.clear();
    int updates = 0;
    item->onUpdateContents = [&updates] { ++updates; };
    // On the scene's edge, or where nothing changes: no message, no new layout.
    FrameGestures::move(*item, QPointF(450, 150));
    FrameGestures::move(*item, QPointF(400, 170));
    // Up to a millionth of a millionth two frames are the same.
    FrameGestures::move(*item, QPointF(400 - 1e-11, 150));
    QVERIFY(handler.calls.isEmpty());
    QCOMPARE(updates, 0);
    FrameGestures::move(*item, QPointF(399, 150));
    QCOMPARE(handler.frames().size(), 1);
    QCOMPARE(updates, 1);
    FrameGestures::release(*item, QPointF(399, 150));

    item->SetKeepAspectRatio(false);
    item->SetFrameInScene(QRectF(100, 100, 16, 50));
    FrameGestures::press(*item, QPointF(116, 125));
    handler.clear();
    FrameGestures::move(*item, QPointF(20, 125));
    FrameGestures::move(*item, QPointF(116, 0));
    QVERIFY(handler.calls.isEmpty());
}

void tst_SelectionFrameResizing::movedFrameIsPlacedOnce()
{
    QGraphicsScene scene(0, 0, 400, 400);
    Handler handler;
    auto* item = new PlainFrame(&handler);
    scene.addItem(item);
    for (const bool keep : {true, false}) {
        item->SetKeepAspectRatio(keep);
        item->Initialize(QRectF(0, 0, 400, 400), QRectF(100, 100, 100, 100));
        QVector<QRectF> adjusted;
        item->onAdjustFrame = [&adjusted](const QRectF& frame) { adjusted.append(frame); };
        FrameGestures::press(*item, QPointF(200, 200));
        handler.clear();
        FrameGestures::move(*item, QPointF(300, 300));
        QCOMPARE(handler.order(), QVector<int>{Handler::Frame});
        QCOMPARE(handler.frames().constFirst(), QRectF(0.25, 0.25, 0.5, 0.5));
        QCOMPARE(adjusted, QVector<QRectF>{QRectF(100, 100, 200, 200)});
        FrameGestures::release(*item, QPointF(300, 300));
        item->onAdjustFrame = nullptr;
    }
}

void tst_SelectionFrameResizing::invertedScene()
{
    QGraphicsScene scene;
    scene.setSceneRect(QRectF(400, 300, -400, -300));
    const QRectF limits = scene.sceneRect();
    Handler handler;
    auto* item = new PlainFrame(&handler);
    scene.addItem(item);
    for (int zone = FrameReference::LeftTop; zone <= FrameReference::Left; ++zone) {
        const QRectF frame(100, 100, 100, 100);
        item->Initialize(QRectF(0, 0, 400, 300), frame);
        const QPointF to = handleOf(frame, zone) + QPointF(13, 17);
        pull(*item, zone, to);
        COMPARE_RECTS(item->GetFrameInScene(), FrameReference::proportionallyResized(frame, zone, to, 1.0, &limits));
    }
}

void tst_SelectionFrameResizing::withoutAScene()
{
    RandomGeometry random(5);
    Handler handler;
    PlainFrame item(&handler);
    for (int i = 0; i < 500; ++i) {
        const double ratio = random.between(1, 40) / 8.0;
        takeRatio(item, ratio);
        const QRectF frame = random.rect(-250, 250, 64, 300);
        item.Initialize(QRectF(0, 0, 100, 70), frame);
        const int zone = random.below(8);
        const QPointF to = random.point(-900, 900);
        pull(item, zone, to);
        COMPARE_RECTS_IN(item.GetFrameInScene(), FrameReference::proportionallyResized(frame, zone, to, ratio, nullptr),
                         describe(frame, zone, to, ratio));
    }
    item.SetKeepAspectRatio(false);
    item.Initialize(QRectF(0, 0, 100, 70), QRectF(10, 10, 100, 50));
    item.SetAspectRatio(16.0);
    item.SetKeepAspectRatio(true);
    COMPARE_RECTS(item.GetFrameInScene(), QRectF(10, 27, 256, 16));
}

void tst_SelectionFrameResizing::setAspectRatio()
{
    QGraphicsScene scene(0, 0, 1000, 1000);
    Handler handler;
    auto* item = new PlainFrame(&handler);
    scene.addItem(item);
    item->Initialize(QRectF(0, 0, 400, 300), QRectF(100, 100, 100, 100));
    handler.clear();
    // A fresh item has the ratio 1 already.
    item->SetAspectRatio(1.0);
    QVERIFY(handler.calls.isEmpty());

    // The left edge and the vertical centre stay; not wider than tall: the height stays, too.
    item->SetAspectRatio(2.0);
    QCOMPARE(item->GetFrameInScene(), QRectF(100, 100, 200, 100));
    QCOMPARE(handler.order(), QVector<int>{Handler::Frame});
    // Wider than tall: the width stays.
    item->SetAspectRatio(4.0);
    QCOMPARE(item->GetFrameInScene(), QRectF(100, 125, 200, 50));
    QCOMPARE(handler.frames().size(), 2);
    item->SetAspectRatio(4.0);
    QCOMPARE(handler.frames().size(), 2);
    // From then on it is what resizing keeps.
    pull(*item, FrameReference::RightBottom, QPointF(500, 0));
    QCOMPARE(item->GetFrameInScene(), QRectF(100, 125, 400, 100));
}

void tst_SelectionFrameResizing::setAspectRatioComparesFuzzily()
{
    QGraphicsScene scene(0, 0, 1000, 1000);
    Handler handler;
    auto* item = new PlainFrame(&handler);
    scene.addItem(item);
    item->Initialize(QRectF(0, 0, 400, 300), QRectF(100, 100, 100, 100));
    handler.clear();
    item->SetAspectRatio(1.0 + 5e-13);
    item->SetAspectRatio(1.0 - 5e-13);
    QVERIFY(handler.calls.isEmpty());
    item->SetAspectRatio(1.0 + 1e-11);
    QCOMPARE(handler.frames().size(), 1);
    // Near zero nothing but zero is equal.
    item->SetAspectRatio(1e-300);
    QCOMPARE(handler.frames().size(), 2);
    item->SetAspectRatio(2e-300);
    QCOMPARE(handler.frames().size(), 3);
}

void tst_SelectionFrameResizing::setAspectRatioUnkept()
{
    QGraphicsScene scene(0, 0, 1000, 1000);
    Handler handler;
    auto* item = new PlainFrame(&handler);
    scene.addItem(item);
    item->SetKeepAspectRatio(false);
    item->Initialize(QRectF(0, 0, 400, 300), QRectF(100, 100, 100, 100));
    handler.clear();
    item->SetAspectRatio(2.0);
    QVERIFY(handler.calls.isEmpty());
    QCOMPARE(item->GetFrameInScene(), QRectF(100, 100, 100, 100));
    // Stored all the same.
    item->SetKeepAspectRatio(true);
    QCOMPARE(item->GetFrameInScene(), QRectF(100, 100, 200, 100));
}

void tst_SelectionFrameResizing::setKeepAspectRatio()
{
    QGraphicsScene scene(0, 0, 1000, 1000);
    Handler handler;
    auto* item = new PlainFrame(&handler);
    scene.addItem(item);
    item->Initialize(QRectF(0, 0, 400, 300), QRectF(100, 100, 80, 40));
    handler.clear();
    item->SetKeepAspectRatio(true);
    QVERIFY2(handler.calls.isEmpty(), "kept already");
    item->SetKeepAspectRatio(false);
    QVERIFY(!item->keepAspectRatio());
    QVERIFY2(handler.calls.isEmpty(), "switching it off reshapes nothing");
    item->SetKeepAspectRatio(false);
    item->SetKeepAspectRatio(true);
    QVERIFY(item->keepAspectRatio());
    QCOMPARE(item->GetFrameInScene(), QRectF(100, 80, 80, 80));
    QCOMPARE(handler.order(), QVector<int>{Handler::Frame});
}

void tst_SelectionFrameResizing::ratioOfTheWorkRectIsLeftAlone()
{
    QGraphicsScene scene(0, 0, 1000, 1000);
    Handler handler;
    auto* item = new PlainFrame(&handler);
    scene.addItem(item);
    // A frame of the work rect's own shape is taken for one that covers the picture in proportion, and is not reshaped,
    // whatever the new ratio. Hosts switch ratios without losing such a frame.
    item->Initialize(QRectF(0, 0, 300, 300), QRectF(100, 100, 100, 100));
    handler.clear();
    item->SetAspectRatio(2.0);
    QVERIFY(handler.calls.isEmpty());
    QCOMPARE(item->GetFrameInScene(), QRectF(100, 100, 100, 100));
    // The new ratio is stored.
    pull(*item, FrameReference::RightBottom, QPointF(300, 0));
    QCOMPARE(item->GetFrameInScene(), QRectF(100, 100, 200, 100));

    // Exactly: a hair's breadth of difference is one.
    item->Initialize(QRectF(0, 0, 300, 300), QRectF(100, 100, 100, std::nextafter(100.0, 101.0)));
    handler.clear();
    item->SetAspectRatio(4.0);
    QCOMPARE(handler.frames().size(), 1);
    // A frame of the stored ratio is placed again, since only the work rect's shape is looked at.
    item->Initialize(QRectF(0, 0, 300, 300), QRectF(100, 100, 100, 25));
    handler.clear();
    item->SetKeepAspectRatio(false);
    item->SetKeepAspectRatio(true);
    QCOMPARE(handler.frames().size(), 1);
    QCOMPARE(item->GetFrameInScene(), QRectF(100, 100, 100, 25));
}

void tst_SelectionFrameResizing::restoringIsClamped()
{
    QGraphicsScene scene(0, 0, 400, 300);
    Handler handler;
    auto* item = new PlainFrame(&handler);
    scene.addItem(item);
    const auto reshaped = [&](const QRectF& frame, double ratio) {
        item->SetKeepAspectRatio(false);
        item->SetAspectRatio(ratio);
        item->Initialize(QRectF(0, 0, 640, 470), frame);
        item->SetKeepAspectRatio(true);
        return item->GetFrameInScene();
    };
    // Right edge.
    QCOMPARE(reshaped(QRectF(300, 100, 80, 100), 2.0), QRectF(300, 125, 100, 50));
    // Upper edge: twice the way from the centre.
    QCOMPARE(reshaped(QRectF(10, 10, 100, 40), 1.0), QRectF(10, 0, 60, 60));
    // Lower edge.
    QCOMPARE(reshaped(QRectF(10, 250, 100, 40), 1.0), QRectF(10, 240, 60, 60));
    // The left edge is not looked at.
    QCOMPARE(reshaped(QRectF(-50, 100, 100, 40), 2.0), QRectF(-50, 95, 100, 50));
    // Minimum, width first.
    QCOMPARE(reshaped(QRectF(10, 100, 5, 4), 1.0), QRectF(10, 94, 16, 16));
    QCOMPARE(reshaped(QRectF(10, 100, 5, 4), 2.0), QRectF(10, 94, 32, 16));
    QCOMPARE(reshaped(QRectF(10, 100, 5, 4), 0.5), QRectF(10, 86, 16, 32));
    // A clamp after the minimum may fall below it.
    QCOMPARE(reshaped(QRectF(394, 100, 5, 4), 1.0), QRectF(394, 99, 6, 6));
}

template <typename Item>
void tst_SelectionFrameResizing::checkRandomRestoring(unsigned seed, int rounds)
{
    RandomGeometry random(seed);
    QGraphicsScene scene;
    Handler handler;
    auto* item = new Item(&handler);
    scene.addItem(item);
    for (int i = 0; i < rounds; ++i) {
        const double ratio = random.between(1, 40) / 8.0;
        scene.setSceneRect(random.rect(-300, 100, 50, 900));
        const QRectF limits = scene.sceneRect();
        const QRectF work = random.rect(-200, 200, 10, 500);
        const QRectF frame = random.mirroredSometimes(random.rect(-250, 250, 1, 300));
        const bool byRatio = random.oneIn(2);
        item->SetKeepAspectRatio(false);
        item->SetAspectRatio(byRatio ? ratio + 1 : ratio);
        item->SetKeepAspectRatio(byRatio);
        item->Initialize(work, frame);
        handler.clear();
        if (byRatio)
            item->SetAspectRatio(ratio);
        else
            item->SetKeepAspectRatio(true);
        COMPARE_RECTS_IN(item->GetFrameInScene(), FrameReference::withRatioRestored(frame, work, ratio, &limits),
                         describe(frame, -1, QPointF(), ratio));
        QCOMPARE(handler.frames().size(), work.width() / work.height() == frame.width() / frame.height() ? 0 : 1);
    }
}

void tst_SelectionFrameResizing::randomRestoring()
{
    checkRandomRestoring<PlainFrame>(41, 6000);
    if (!QTest::currentTestFailed())
        checkRandomRestoring<PixmapFrame>(42, 2000);
    if (!QTest::currentTestFailed())
        checkRandomRestoring<TextFrame>(43, 2000);
}

void tst_SelectionFrameResizing::endlessCoordinates()
{
    constexpr double infinite = std::numeric_limits<double>::infinity();
    constexpr double none = std::numeric_limits<double>::quiet_NaN();
    QGraphicsScene scene(0, 0, 400, 300);
    Handler handler;
    auto* item = new PlainFrame(&handler);
    scene.addItem(item);
    for (const bool keep : {true, false}) {
        for (double ratio : {1.0, 0.0, -2.0, infinite, none}) {
            for (double x : {infinite, -infinite, none, 1e300, -1e300}) {
                for (int zone = FrameReference::LeftTop; zone <= FrameReference::Left; ++zone) {
                    item->SetKeepAspectRatio(false);
                    item->SetAspectRatio(ratio);
                    item->Initialize(QRectF(0, 0, 400, 300), QRectF(100, 100, 100, 100));
                    item->SetKeepAspectRatio(keep);
                    item->SetFrameInScene(QRectF(100, 100, 100, 100));
                    pull(*item, zone, QPointF(x, x));
                    QVERIFY(!item->IsInfoCaptionVisible());
                }
            }
        }
    }
    item->SetAspectRatio(1.0);
    item->SetKeepAspectRatio(true);
    item->SetFrameInScene(QRectF(100, 100, 100, 100));
    pull(*item, FrameReference::RightBottom, QPointF(150, 0));
    QCOMPARE(item->GetFrameInScene(), QRectF(100, 100, 50, 50));
}

QTEST_MAIN(tst_SelectionFrameResizing)
#include "tst_SelectionFrameResizing.moc"
