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
using PlainFrame = ProbeFrame<QGraphicsItem>;
using PixmapFrame = ProbeFrame<QGraphicsPixmapItem>;
using TextFrame = ProbeFrame<QGraphicsTextItem>;
using Handler = RecordingFrameHandler;

namespace {

/// A view whose viewport shows the scene pixel by pixel, and the mouse on its window.
class Stage
{
public:
    Stage()
        : scene(0, 0, 400, 300)
        , view(&scene)
    {
        view.setFrameShape(QFrame::NoFrame);
        view.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        view.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        view.resize(400, 300);
        view.show();
    }

    bool exposed() { return QTest::qWaitForWindowExposed(&view); }

    void press(const QPointF& at, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mousePress(view.windowHandle(), button, {}, inWindow(at));
    }
    void move(const QPointF& at) { QTest::mouseMove(view.windowHandle(), inWindow(at)); }
    void release(const QPointF& at, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseRelease(view.windowHandle(), button, {}, inWindow(at));
    }

    QGraphicsScene scene;
    QGraphicsView view;

private:
    QPoint inWindow(const QPointF& at) const { return view.viewport()->mapTo(&view, view.mapFromScene(at)); }
};

} // namespace

class tst_SelectionFrameDragging : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void drag_data();
    void drag();
    void frameWiderThanTheWorkRect();
    void truncatesTheCorners();
    void dragGoesByTheTotalDisplacement();
    void dragAsksForTheVirtualWorkRect();
    void dragPlacesEvenWithoutMoving();
    void dragTakesTheAdjustedSize();
    void randomDrags();
    void pressInside();
    void pressOnAZone();
    void pressOutside();
    void pressOfAnotherButton();
    void pressWithTheLeftButtonHeld();
    void moveWithoutTheLeftButton();
    void releaseReadsTheItemPosition();
    void releaseOfAnotherButton();
    void everyReleaseEndsTheGesture();
    void nextPressChoosesAnew();
    void mouseRepaints();
    void throughAView();
    void resizeThroughAView();
    void captionStripIsNotGrabbed();
    void rightButtonThroughAView();
    void endlessCoordinates();

private:
    template <typename Item>
    void checkRandomDrags(unsigned seed, int rounds);
};

void tst_SelectionFrameDragging::drag_data()
{
    QTest::addColumn<QRectF>("frame");
    QTest::addColumn<QPointF>("by");
    QTest::addColumn<QRectF>("expected");

    // In the work rect (0, 0, 400, 300).
    const QRectF frame(10, 10, 100, 100);
    QTest::newRow("free") << frame << QPointF(50.5, 40.25) << QRectF(60.5, 50.25, 100, 100);
    QTest::newRow("past the left") << frame << QPointF(-50, 0) << QRectF(0, 10, 100, 100);
    QTest::newRow("onto the left") << frame << QPointF(-10, 0) << QRectF(0, 10, 100, 100);
    QTest::newRow("past the right") << frame << QPointF(500, 0) << QRectF(300, 10, 100, 100);
    QTest::newRow("onto the right") << frame << QPointF(290, 0) << QRectF(300, 10, 100, 100);
    QTest::newRow("past the top") << frame << QPointF(0, -50) << QRectF(10, 0, 100, 100);
    QTest::newRow("past the bottom") << frame << QPointF(0, 500) << QRectF(10, 200, 100, 100);
    QTest::newRow("into a corner") << frame << QPointF(1000, 1000) << QRectF(300, 200, 100, 100);
    QTest::newRow("along an edge") << frame << QPointF(-50, 33) << QRectF(0, 43, 100, 100);
    // It never jumps: one unit before the edge it is still where the mouse has it.
    QTest::newRow("just before the left") << frame << QPointF(-9.5, 0) << QRectF(0.5, 10, 100, 100);
    QTest::newRow("just before the right") << frame << QPointF(289.5, 0) << QRectF(299.5, 10, 100, 100);
    // A mirrored frame sticks with its first edge to the left, with its second to the right.
    const QRectF mirrored(110, 10, -100, 100);
    QTest::newRow("mirrored, free") << mirrored << QPointF(20, 20) << QRectF(130, 30, -100, 100);
    QTest::newRow("mirrored, past the left") << mirrored << QPointF(-50, 0) << QRectF(0, 10, -100, 100);
    QTest::newRow("mirrored, past the right") << mirrored << QPointF(500, 0) << QRectF(500, 10, -100, 100);
}

void tst_SelectionFrameDragging::drag()
{
    QFETCH(const QRectF, frame);
    QFETCH(const QPointF, by);
    QFETCH(const QRectF, expected);
    Handler handler;
    PlainFrame item(&handler);
    item.Initialize(QRectF(0, 0, 400, 300), frame);
    const QPointF from = frame.center();
    FrameGestures::press(item, from);
    FrameGestures::move(item, from + by);
    QCOMPARE(item.GetFrameInScene(), expected);
    COMPARE_RECTS(FrameReference::dragged(frame, from, from + by, QRectF(0, 0, 400, 300), frame), expected);
}

void tst_SelectionFrameDragging::frameWiderThanTheWorkRect()
{
    Handler handler;
    PlainFrame item(&handler);
    const QRectF work(50, 50, 100, 100);
    item.Initialize(work, QRectF(0, 0, 300, 250));
    FrameGestures::press(item, QPointF(150, 125));
    for (const QPointF by : {QPointF(0, 0), QPointF(-70, -70), QPointF(1, 1), QPointF(30, 500)}) {
        FrameGestures::move(item, QPointF(150, 125) + by);
        // The right and the lower edge are looked at last, so it ends flush with them.
        QCOMPARE(item.GetFrameInScene(), QRectF(-150, -100, 300, 250));
    }
}

void tst_SelectionFrameDragging::truncatesTheCorners()
{
    Handler handler;
    PlainFrame item(&handler);
    const QRectF work(0, 0, 400, 300);
    const auto dragged = [&](const QRectF& frame, const QPointF& by) {
        item.Initialize(work, frame);
        FrameGestures::press(item, frame.center());
        FrameGestures::move(item, frame.center() + by);
        FrameGestures::release(item, frame.center() + by);
        return item.GetFrameInScene();
    };
    // The corner of the press counts without its fraction: 10.75 - 10 is taken for the edge already ...
    QCOMPARE(dragged(QRectF(10.75, 20, 100, 100), QPointF(-10, 0)), QRectF(0, 20, 100, 100));
    QCOMPARE(dragged(QRectF(10.75, 20, 100, 100), QPointF(-9.5, 0)), QRectF(1.25, 20, 100, 100));
    QCOMPARE(dragged(QRectF(20, 10.75, 100, 100), QPointF(0, -10)), QRectF(20, 0, 100, 100));
    // ... and 110.75 + 289.5 is not yet past 400.
    QCOMPARE(dragged(QRectF(10.75, 20, 100, 100), QPointF(289.5, 0)), QRectF(300.25, 20, 100, 100));
    QCOMPARE(dragged(QRectF(10.75, 20, 100, 100), QPointF(290, 0)), QRectF(300, 20, 100, 100));
    QCOMPARE(dragged(QRectF(20, 10.75, 100, 100), QPointF(0, 189.5)), QRectF(20, 200.25, 100, 100));
    // Toward zero: -10.75 counts as -10, so that -10 + 10.5 lies inside, where -11 + 10.5 would not.
    QCOMPARE(dragged(QRectF(-10.75, 20, 100, 100), QPointF(10.5, 0)), QRectF(-0.25, 20, 100, 100));
    QCOMPARE(dragged(QRectF(20, -10.75, 100, 100), QPointF(0, 10.5)), QRectF(20, -0.25, 100, 100));
}

void tst_SelectionFrameDragging::dragGoesByTheTotalDisplacement()
{
    Handler handler;
    PlainFrame item(&handler);
    item.Initialize(QRectF(0, 0, 400, 300), QRectF(10, 10, 100, 100));
    FrameGestures::press(item, QPointF(60, 60));
    FrameGestures::move(item, QPointF(-200, 60));
    QCOMPARE(item.GetFrameInScene(), QRectF(0, 10, 100, 100));
    // What was overshot must be moved back before the frame comes off the edge.
    FrameGestures::move(item, QPointF(0, 60));
    QCOMPARE(item.GetFrameInScene(), QRectF(0, 10, 100, 100));
    FrameGestures::move(item, QPointF(60, 60));
    QCOMPARE(item.GetFrameInScene(), QRectF(10, 10, 100, 100));
    // The first move counts from the press, not from itself.
    FrameGestures::move(item, QPointF(65, 63));
    QCOMPARE(item.GetFrameInScene(), QRectF(15, 13, 100, 100));
}

void tst_SelectionFrameDragging::dragAsksForTheVirtualWorkRect()
{
    Handler handler;
    PlainFrame item(&handler);
    item.Initialize(QRectF(0, 0, 400, 300), QRectF(10, 10, 100, 100));
    item.pretendedWorkRect = QRectF(5, 5, 120, 120);
    FrameGestures::press(item, QPointF(60, 60));
    FrameGestures::move(item, QPointF(300, 60));
    QCOMPARE(item.GetFrameInScene(), QRectF(25, 10, 100, 100));
}

void tst_SelectionFrameDragging::dragPlacesEvenWithoutMoving()
{
    Handler handler;
    PlainFrame item(&handler);
    item.Initialize(QRectF(0, 0, 400, 300), QRectF(100, 60, 100, 60));
    FrameGestures::press(item, QPointF(150, 90));
    handler.clear();
    int updates = 0;
    item.onUpdateContents = [&updates] { ++updates; };
    FrameGestures::move(item, QPointF(150, 90));
    FrameGestures::move(item, QPointF(150, 90));
    // A host that repaints on the message sees every mouse move of a drag.
    QCOMPARE(handler.frames(), (QVector<QRectF>{QRectF(0.25, 0.2, 0.25, 0.2), QRectF(0.25, 0.2, 0.25, 0.2)}));
    QCOMPARE(updates, 2);
}

void tst_SelectionFrameDragging::dragTakesTheAdjustedSize()
{
    Handler handler;
    PlainFrame item(&handler);
    item.Initialize(QRectF(0, 0, 400, 300), QRectF(10, 10, 100, 100));
    FrameGestures::press(item, QPointF(60, 60));
    bool once = true;
    item.onAdjustFrame = [&once](QRectF& frame) {
        if (once)
            frame.setSize(QSizeF(150, 120));
        once = false;
    };
    FrameGestures::move(item, QPointF(70, 60));
    QCOMPARE(item.GetFrameInScene(), QRectF(20, 10, 150, 120));
    // At the edge the size of now counts, off it the corners of the press.
    FrameGestures::move(item, QPointF(-100, 60));
    QCOMPARE(item.GetFrameInScene(), QRectF(0, 10, 150, 100));
    FrameGestures::move(item, QPointF(70, 60));
    QCOMPARE(item.GetFrameInScene(), QRectF(20, 10, 100, 100));
}

template <typename Item>
void tst_SelectionFrameDragging::checkRandomDrags(unsigned seed, int rounds)
{
    RandomGeometry random(seed);
    Handler handler;
    Item item(&handler);
    int drags = 0;
    int stuck = 0;
    for (int i = 0; i < rounds; ++i) {
        const QRectF work = random.oneIn(10) ? random.rect(-200, 200, -50, 50) : random.rect(-200, 200, 50, 600);
        const QRectF frame = random.mirroredSometimes(random.rect(-250, 250, 16, 300));
        item.SetKeepAspectRatio(random.oneIn(2));
        item.Initialize(work, frame);
        const QPointF from = random.pointNear(frame, 0);
        // Keeping the ratio may have reshaped the frame of the round before, never this one.
        QCOMPARE(item.GetFrameInScene(), frame);
        if (FrameReference::zoneAt(frame, from) != FrameReference::Inside)
            continue;
        ++drags;
        FrameGestures::press(item, from);
        for (int step = 0; step < 6; ++step) {
            const QPointF to = random.oneIn(3) ? random.point(-700, 700) : from + random.point(-40, 40);
            const QRectF expected = FrameReference::dragged(frame, from, to, work, item.GetFrameInScene());
            handler.clear();
            FrameGestures::move(item, to);
            COMPARE_RECTS_IN(item.GetFrameInScene(), expected,
                             "frame " + RectComparison::text(frame) + " in " + RectComparison::text(work));
            QCOMPARE(handler.order(), QVector<int>{Handler::Frame});
            COMPARE_RECTS(handler.frames().constFirst(), FrameReference::relative(expected, work));
            stuck += expected.x() == work.x() || expected.y() == work.y() ? 1 : 0;
        }
        FrameGestures::release(item, from);
    }
    QVERIFY(drags > rounds / 3);
    QVERIFY(stuck > rounds / 10);
}

void tst_SelectionFrameDragging::randomDrags()
{
    checkRandomDrags<PlainFrame>(11, 4000);
    if (!QTest::currentTestFailed())
        checkRandomDrags<PixmapFrame>(12, 1500);
    if (!QTest::currentTestFailed())
        checkRandomDrags<TextFrame>(13, 1500);
}

void tst_SelectionFrameDragging::pressInside()
{
    Handler handler;
    PlainFrame item(&handler);
    item.Initialize(QRectF(0, 0, 400, 300), QRectF(100, 100, 100, 100));
    handler.clear();
    FrameGestures::press(item, QPointF(150, 150));
    QCOMPARE(handler.order(), (QVector<int>{Handler::Cursor, Handler::Cursor, Handler::Interaction}));
    QCOMPARE(handler.cursors(), (QVector<int>{Qt::ArrowCursor, Qt::ClosedHandCursor}));
    QVERIFY(item.IsInfoCaptionVisible());
    QCOMPARE(item.GetFrameInScene(), QRectF(100, 100, 100, 100));

    FrameGestures::release(item, QPointF(150, 150));
    QVERIFY(!item.IsInfoCaptionVisible());
    FrameGestures::hover(item, QPointF(150, 150));
    handler.clear();
    FrameGestures::press(item, QPointF(150, 150));
    QCOMPARE(handler.cursors(), (QVector<int>{Qt::SizeAllCursor, Qt::ClosedHandCursor}));
    QCOMPARE(handler.calls.last().kind, Handler::Interaction);
}

void tst_SelectionFrameDragging::pressOnAZone()
{
    Handler handler;
    PlainFrame item(&handler);
    item.Initialize(QRectF(0, 0, 400, 300), QRectF(100, 100, 100, 100));
    FrameGestures::hover(item, QPointF(150, 150));
    for (const QPointF at : {QPointF(100, 100), QPointF(150, 100), QPointF(200, 100), QPointF(200, 150),
                             QPointF(200, 200), QPointF(150, 200), QPointF(100, 200), QPointF(100, 150)}) {
        handler.clear();
        FrameGestures::press(item, at);
        // No closed hand: the arrows of the zone stay.
        QCOMPARE(handler.order(), (QVector<int>{Handler::Cursor, Handler::Interaction}));
        QCOMPARE(
            handler.cursors().constFirst(),
            int(FrameReference::cursorFor(FrameReference::zoneAt(item.GetFrameInScene(), at), item.GetFrameInScene())));
        QVERIFY(item.IsInfoCaptionVisible());
        FrameGestures::release(item, at);
        QVERIFY(!item.IsInfoCaptionVisible());
    }
}

void tst_SelectionFrameDragging::pressOutside()
{
    Handler handler;
    PlainFrame item(&handler);
    item.Initialize(QRectF(0, 0, 400, 300), QRectF(100, 100, 100, 100));
    handler.clear();
    FrameGestures::press(item, QPointF(50, 50));
    QCOMPARE(handler.order(), (QVector<int>{Handler::Cursor, Handler::Interaction}));
    QVERIFY(!item.IsInfoCaptionVisible());
    FrameGestures::move(item, QPointF(150, 150));
    QCOMPARE(item.GetFrameInScene(), QRectF(100, 100, 100, 100));
    QVERIFY(handler.frames().isEmpty());
    FrameGestures::release(item, QPointF(50, 50));

    // It changes no state: a gesture whose release got lost goes on.
    FrameGestures::press(item, QPointF(150, 150));
    FrameGestures::press(item, QPointF(50, 50));
    QVERIFY(item.IsInfoCaptionVisible());
    FrameGestures::move(item, QPointF(160, 155));
    QCOMPARE(item.GetFrameInScene(), QRectF(110, 105, 100, 100));
}

void tst_SelectionFrameDragging::pressOfAnotherButton()
{
    Handler handler;
    PlainFrame item(&handler);
    item.Initialize(QRectF(0, 0, 400, 300), QRectF(100, 100, 100, 100));
    FrameGestures::hover(item, QPointF(150, 150));
    handler.clear();
    for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
        for (const QPointF at : {QPointF(150, 150), QPointF(200, 150)}) {
            FrameGestures::press(item, at, button);
            QVERIFY(handler.calls.isEmpty());
            QVERIFY(!item.IsInfoCaptionVisible());
            FrameGestures::move(item, QPointF(180, 180), Qt::LeftButton);
            QCOMPARE(item.GetFrameInScene(), QRectF(100, 100, 100, 100));
            QVERIFY(handler.calls.isEmpty());
        }
    }
}

void tst_SelectionFrameDragging::pressWithTheLeftButtonHeld()
{
    Handler handler;
    PlainFrame item(&handler);
    item.Initialize(QRectF(0, 0, 400, 300), QRectF(100, 100, 100, 100));
    handler.clear();
    // A second button while the left one is down begins the gesture anew.
    FrameGestures::mouse(item, QEvent::GraphicsSceneMousePress, QPointF(150, 150), Qt::RightButton,
                         Qt::LeftButton | Qt::RightButton);
    QCOMPARE(handler.interactions(), 1);
    QVERIFY(item.IsInfoCaptionVisible());
}

void tst_SelectionFrameDragging::moveWithoutTheLeftButton()
{
    Handler handler;
    PlainFrame item(&handler);
    item.Initialize(QRectF(0, 0, 400, 300), QRectF(100, 100, 100, 100));
    for (const QPointF at : {QPointF(150, 150), QPointF(200, 150)}) {
        FrameGestures::press(item, at);
        handler.clear();
        FrameGestures::move(item, QPointF(180, 180), Qt::NoButton);
        FrameGestures::move(item, QPointF(180, 180), Qt::RightButton);
        QVERIFY(handler.calls.isEmpty());
        QCOMPARE(item.GetFrameInScene(), QRectF(100, 100, 100, 100));
        QVERIFY(item.IsInfoCaptionVisible());
        FrameGestures::release(item, at);
    }
    FrameGestures::press(item, QPointF(150, 150));
    FrameGestures::move(item, QPointF(160, 160), Qt::LeftButton | Qt::RightButton);
    QCOMPARE(item.GetFrameInScene(), QRectF(110, 110, 100, 100));
}

void tst_SelectionFrameDragging::releaseReadsTheItemPosition()
{
    Handler handler;
    PlainFrame item(&handler);
    const auto cursorsOfRelease = [&](const QRectF& frame, const QPointF& at) {
        item.Initialize(QRectF(0, 0, 1000, 1000), frame);
        FrameGestures::hover(item, frame.center());
        FrameGestures::press(item, at);
        handler.clear();
        FrameGestures::release(item, at);
        return handler.cursors();
    };
    // The cursor after a release is chosen for the position inside the item, read as one of the scene. Hosts have lived
    // with it: the next hover event, which follows at once, sets it right. Far from the scene's origin it is the arrow
    // ...
    QCOMPARE(cursorsOfRelease(QRectF(500, 500, 100, 100), QPointF(550, 550)),
             (QVector<int>{Qt::OpenHandCursor, Qt::ArrowCursor}));
    QCOMPARE(handler.order(), (QVector<int>{Handler::Cursor, Handler::Cursor, Handler::Interaction}));
    // ... and near it whatever lies at that place. Released on the left side, the item's x is 0, which the frame's
    // middle covers in the scene.
    const QRectF wide(-50, -20, 300, 300);
    QCOMPARE(cursorsOfRelease(wide, QPointF(-50, 130)), (QVector<int>{Qt::OpenHandCursor, Qt::SizeAllCursor}));
    // Not hovered: the arrow.
    item.Initialize(QRectF(0, 0, 1000, 1000), wide);
    FrameGestures::leave(item, QPointF());
    FrameGestures::press(item, QPointF(-50, 130));
    handler.clear();
    FrameGestures::release(item, QPointF(-50, 130));
    QCOMPARE(handler.cursors(), (QVector<int>{Qt::OpenHandCursor, Qt::ArrowCursor}));
}

void tst_SelectionFrameDragging::releaseOfAnotherButton()
{
    Handler handler;
    PlainFrame item(&handler);
    item.Initialize(QRectF(0, 0, 400, 300), QRectF(100, 100, 100, 100));
    FrameGestures::press(item, QPointF(150, 150));
    handler.clear();
    FrameGestures::release(item, QPointF(150, 150), Qt::RightButton);
    QVERIFY(handler.calls.isEmpty());
    QVERIFY(item.IsInfoCaptionVisible());
    FrameGestures::move(item, QPointF(160, 150));
    QCOMPARE(item.GetFrameInScene(), QRectF(110, 100, 100, 100));
}

void tst_SelectionFrameDragging::everyReleaseEndsTheGesture()
{
    Handler handler;
    PlainFrame item(&handler);
    item.Initialize(QRectF(0, 0, 400, 300), QRectF(100, 100, 100, 100));
    for (const QPointF at : {QPointF(150, 150), QPointF(200, 150), QPointF(50, 50)}) {
        FrameGestures::press(item, at);
        FrameGestures::release(item, at);
        QVERIFY(!item.IsInfoCaptionVisible());
        FrameGestures::move(item, at + QPointF(30, 30));
        QCOMPARE(item.GetFrameInScene(), QRectF(100, 100, 100, 100));
    }
    // Without a press before it, too.
    handler.clear();
    FrameGestures::release(item, QPointF(150, 150));
    QCOMPARE(handler.order(), (QVector<int>{Handler::Cursor, Handler::Cursor, Handler::Interaction}));
}

void tst_SelectionFrameDragging::nextPressChoosesAnew()
{
    Handler handler;
    PlainFrame item(&handler);
    item.SetKeepAspectRatio(false);
    item.Initialize(QRectF(0, 0, 400, 300), QRectF(100, 100, 100, 100));
    // From dragging to resizing and back without a release in between.
    FrameGestures::press(item, QPointF(150, 150));
    FrameGestures::press(item, QPointF(200, 150));
    FrameGestures::move(item, QPointF(220, 190));
    QCOMPARE(item.GetFrameInScene(), QRectF(100, 100, 120, 100));
    FrameGestures::press(item, QPointF(150, 150));
    FrameGestures::move(item, QPointF(160, 155));
    QCOMPARE(item.GetFrameInScene(), QRectF(110, 105, 120, 100));
}

void tst_SelectionFrameDragging::mouseRepaints()
{
    QGraphicsScene scene(0, 0, 500, 500);
    Handler handler;
    auto* item = new PlainFrame(&handler);
    scene.addItem(item);
    item->Initialize(QRectF(0, 0, 400, 300), QRectF(100, 100, 100, 100));
    QVERIFY(schedulesRepaint(scene, [&] { FrameGestures::press(*item, QPointF(150, 150)); }));
    QVERIFY(schedulesRepaint(scene, [&] { FrameGestures::move(*item, QPointF(150, 150)); }));
    QVERIFY(schedulesRepaint(scene, [&] { FrameGestures::release(*item, QPointF(150, 150)); }));
    QVERIFY(schedulesRepaint(scene, [&] { FrameGestures::press(*item, QPointF(50, 50)); }));
    QVERIFY(schedulesRepaint(scene, [&] { FrameGestures::release(*item, QPointF(50, 50), Qt::RightButton); }));
    QVERIFY(!schedulesRepaint(scene, [&] { FrameGestures::press(*item, QPointF(150, 150), Qt::RightButton); }));
    // A move that places nothing, too, as long as the left button is held.
    QVERIFY(schedulesRepaint(scene, [&] { FrameGestures::move(*item, QPointF(50, 50)); }));
    QVERIFY(!schedulesRepaint(scene, [&] { FrameGestures::move(*item, QPointF(50, 50), Qt::RightButton); }));
    FrameGestures::release(*item, QPointF(50, 50));
}

void tst_SelectionFrameDragging::throughAView()
{
    Stage stage;
    QVERIFY(stage.exposed());
    Handler handler;
    auto* item = new PlainFrame(&handler);
    stage.scene.addItem(item);
    item->Initialize(QRectF(0, 0, 400, 300), QRectF(10, 10, 100, 100));
    handler.clear();

    stage.press({60, 60});
    QCOMPARE(handler.interactions(), 1);
    QVERIFY(item->IsInfoCaptionVisible());
    stage.move({80, 90});
    QTRY_COMPARE(item->GetFrameInScene(), QRectF(30, 40, 100, 100));
    stage.move({390, 90});
    QTRY_COMPARE(item->GetFrameInScene(), QRectF(300, 40, 100, 100));
    stage.move({20, 20});
    QTRY_COMPARE(item->GetFrameInScene(), QRectF(0, 0, 100, 100));
    stage.release({20, 20});
    QTRY_COMPARE(handler.interactions(), 2);
    QVERIFY(!item->IsInfoCaptionVisible());
    QVERIFY(handler.cursors().contains(Qt::ClosedHandCursor));
    QVERIFY(handler.cursors().contains(Qt::OpenHandCursor));
    QCOMPARE(handler.frames().constLast(), QRectF(0, 0, 0.25, 100.0 / 300));
    // The frame moves itself; Qt's own moving and selecting of items stay out of it.
    QVERIFY(!item->isSelected());
}

void tst_SelectionFrameDragging::resizeThroughAView()
{
    Stage stage;
    QVERIFY(stage.exposed());
    Handler handler;
    auto* item = new PlainFrame(&handler);
    stage.scene.addItem(item);
    item->SetKeepAspectRatio(false);
    item->Initialize(QRectF(0, 0, 400, 300), QRectF(50, 50, 100, 100));

    stage.press({145, 145});
    stage.move({200, 170});
    QTRY_COMPARE(item->GetFrameInScene(), QRectF(50, 50, 150, 120));
    stage.release({200, 170});
    QTRY_VERIFY(!item->IsInfoCaptionVisible());

    item->SetKeepAspectRatio(true);
    item->SetFrameInScene(QRectF(50, 50, 100, 100));
    stage.press({145, 100});
    stage.move({190, 120});
    QTRY_COMPARE(item->GetFrameInScene(), QRectF(50, 30, 140, 140));
    stage.release({190, 120});
    QTRY_VERIFY(!item->IsInfoCaptionVisible());
}

void tst_SelectionFrameDragging::captionStripIsNotGrabbed()
{
    Stage stage;
    QVERIFY(stage.exposed());
    Handler handler;
    auto* item = new PlainFrame(&handler);
    stage.scene.addItem(item);
    item->Initialize(QRectF(0, 0, 400, 300), QRectF(50, 50, 100, 100));
    handler.clear();
    // Inside the bounding rectangle and inside the band, but not on the item's shape.
    stage.press({100, 45});
    stage.move({100, 20});
    stage.release({100, 20});
    QCoreApplication::processEvents();
    QVERIFY(handler.frames().isEmpty());
    QCOMPARE(handler.interactions(), 0);
    // The scene's index follows the frame.
    item->SetFrameInScene(QRectF(250, 150, 100, 100));
    stage.press({100, 100});
    stage.release({100, 100});
    QCOMPARE(handler.interactions(), 0);
    stage.press({300, 200});
    QTRY_COMPARE(handler.interactions(), 1);
    stage.release({300, 200});
}

void tst_SelectionFrameDragging::rightButtonThroughAView()
{
    Stage stage;
    QVERIFY(stage.exposed());
    Handler handler;
    auto* item = new PlainFrame(&handler);
    stage.scene.addItem(item);
    item->Initialize(QRectF(0, 0, 400, 300), QRectF(50, 50, 100, 100));
    handler.clear();
    stage.press({100, 100}, Qt::RightButton);
    stage.move({130, 130});
    stage.release({130, 130}, Qt::RightButton);
    QCoreApplication::processEvents();
    QCOMPARE(handler.interactions(), 0);
    QVERIFY(handler.frames().isEmpty());
    QCOMPARE(item->GetFrameInScene(), QRectF(50, 50, 100, 100));
}

void tst_SelectionFrameDragging::endlessCoordinates()
{
    constexpr double infinite = std::numeric_limits<double>::infinity();
    constexpr double none = std::numeric_limits<double>::quiet_NaN();
    Handler handler;
    PlainFrame item(&handler);
    for (const QRectF& work : {QRectF(), QRectF(0, 0, 400, 300), QRectF(400, 300, -400, -300),
                               QRectF(none, none, infinite, infinite), QRectF(0, 0, none, none)}) {
        for (double x : {infinite, -infinite, none, 1e300, -1e300}) {
            item.Initialize(work, QRectF(100, 100, 100, 100));
            FrameGestures::press(item, QPointF(150, 150));
            handler.clear();
            FrameGestures::move(item, QPointF(x, -x));
            QCOMPARE(handler.frames().size(), 1);
            FrameGestures::release(item, QPointF(x, -x));
        }
    }
}

QTEST_MAIN(tst_SelectionFrameDragging)
#include "tst_SelectionFrameDragging.moc"
