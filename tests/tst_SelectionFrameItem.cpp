#include <KQt/Ui/SelectionFrameWidget/SelectionFrameItem.h>

#include "support/FrameGestures.h"
#include "support/FramePicture.h"
#include "support/FrameReference.h"
#include "support/RandomGeometry.h"
#include "support/RecordingFrameHandler.h"
#include "support/RectComparison.h"

#include <QGraphicsScene>
#include <QtTest>

#include <stdexcept>

using namespace Kestrel::Gui;

namespace {

const QColor Veil(50, 50, 50, 127);
constexpr double VeilShift = 19.0;

/// The frame kept inside @p work, by edges.
QRectF cropped(const QRectF& frame, const QRectF& work)
{
    const double left = std::max(frame.left(), work.left());
    const double top = std::max(frame.top(), work.top());
    const double right = std::min(frame.right(), work.right());
    const double bottom = std::min(frame.bottom(), work.bottom());
    return {left, top, right - left, bottom - top};
}

QRectF fitted(const QRectF& frame, const QRectF& work)
{
    double width = frame.width();
    double height = frame.height();
    for (int axis = 0; axis < 2; ++axis) {
        const double factor = axis == 0 ? work.width() / width : work.height() / height;
        if (factor < 1) {
            width *= factor;
            height *= factor;
        }
    }
    double x = std::max(frame.x(), work.x());
    double y = std::max(frame.y(), work.y());
    x = std::min(x, work.x() + work.width() - width);
    y = std::min(y, work.y() + work.height() - height);
    return {x, y, width, height};
}

QImage expectedPicture(const SelectionFrameItem& item, const QRectF& frame, const QColor& color)
{
    return FramePicture::picture([&](QPainter& painter) {
        const QRectF work = item.GetWorkRect();
        painter.setPen(Qt::NoPen);
        painter.setBrush(Veil);
        painter.drawRect(work.translated(-frame.topLeft()).translated(0, VeilShift));
        painter.setCompositionMode(QPainter::CompositionMode_Source);
        painter.setBrush(QColor(50, 50, 50, 0));
        painter.drawRect(QRectF(0, VeilShift, frame.width(), frame.height()));
        painter.setBrush(Qt::NoBrush);
        FramePicture::drawFrame(painter, QRectF(0, FramePicture::captionHeight(), frame.width(), frame.height()),
                                color);
    });
}

} // namespace

class tst_SelectionFrameItem : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void freshItem();
    void nullHandlerThrows();
    void crops_data();
    void crops();
    void fits_data();
    void fits();
    void randomFrames();
    void adjustsDragsAndResizes();
    void workRectIsStoredOnly();
    void veil();
    void veilPixels();
    void veilLeavesSourceMode();
    void degenerateWorkRects();
};

void tst_SelectionFrameItem::freshItem()
{
    static_assert(std::is_base_of_v<SelectionFrameGraphicsItem<QGraphicsItem>, SelectionFrameItem>);
    RecordingFrameHandler handler;
    SelectionFrameItem item(&handler);
    QVERIFY(!item.keepAspectRatio());
    QVERIFY(!item.IsBackgroundAlphaChannelNeeded());
    QVERIFY(!static_cast<IFrameRenderSource&>(item).IsBackgroundAlphaChannelNeeded());
    QCOMPARE(item.GetTransparency(), 255);
    QCOMPARE(int(item.flags()), 0x803);
    QVERIFY(handler.calls.isEmpty());
    SelectionFrameItem parent(&handler);
    const auto* child = new SelectionFrameItem(&handler, &parent);
    QCOMPARE(child->parentItem(), &parent);
}

void tst_SelectionFrameItem::nullHandlerThrows()
{
    try {
        const SelectionFrameItem item(nullptr);
        QFAIL("a frame without a handler must not be built");
    } catch (const std::invalid_argument& error) {
        QVERIFY(QByteArray(error.what()).startsWith("eventHandler is NULL\n"));
    }
}

void tst_SelectionFrameItem::crops_data()
{
    QTest::addColumn<QRectF>("frame");
    QTest::addColumn<QRectF>("expected");

    // In the work rect (100, 50, 400, 300), each edge for itself.
    QTest::newRow("inside") << QRectF(150, 100, 100, 100) << QRectF(150, 100, 100, 100);
    QTest::newRow("covering") << QRectF(100, 50, 400, 300) << QRectF(100, 50, 400, 300);
    QTest::newRow("left") << QRectF(50, 100, 100, 100) << QRectF(100, 100, 50, 100);
    QTest::newRow("top") << QRectF(150, 0, 100, 100) << QRectF(150, 50, 100, 50);
    QTest::newRow("right") << QRectF(450, 100, 100, 100) << QRectF(450, 100, 50, 100);
    QTest::newRow("bottom") << QRectF(150, 300, 100, 100) << QRectF(150, 300, 100, 50);
    QTest::newRow("larger") << QRectF(0, 0, 1000, 1000) << QRectF(100, 50, 400, 300);
}

void tst_SelectionFrameItem::crops()
{
    QFETCH(const QRectF, frame);
    QFETCH(const QRectF, expected);
    RecordingFrameHandler handler;
    SelectionFrameItem item(&handler);
    item.Initialize(QRectF(100, 50, 400, 300), frame);
    QCOMPARE(item.GetFrameInScene(), expected);
    COMPARE_RECTS(handler.frames().constLast(), FrameReference::relative(expected, QRectF(100, 50, 400, 300)));
}

void tst_SelectionFrameItem::fits_data()
{
    QTest::addColumn<QRectF>("frame");
    QTest::addColumn<QRectF>("expected");

    // In the work rect (100, 50, 400, 300), in proportion.
    QTest::newRow("inside") << QRectF(150, 100, 100, 100) << QRectF(150, 100, 100, 100);
    QTest::newRow("past the left") << QRectF(50, 100, 100, 100) << QRectF(100, 100, 100, 100);
    QTest::newRow("past the top") << QRectF(150, 0, 100, 100) << QRectF(150, 50, 100, 100);
    QTest::newRow("past the right") << QRectF(450, 100, 100, 100) << QRectF(400, 100, 100, 100);
    QTest::newRow("past the bottom") << QRectF(150, 300, 100, 100) << QRectF(150, 250, 100, 100);
    QTest::newRow("too wide") << QRectF(0, 100, 800, 200) << QRectF(100, 100, 400, 100);
    QTest::newRow("too high") << QRectF(200, 0, 100, 600) << QRectF(200, 50, 50, 300);
    QTest::newRow("too wide, then still too high") << QRectF(0, 0, 800, 800) << QRectF(100, 50, 300, 300);
    QTest::newRow("too high alone") << QRectF(0, 0, 400, 600) << QRectF(100, 50, 200, 300);
    QTest::newRow("scaled, then moved") << QRectF(450, 300, 800, 200) << QRectF(100, 250, 400, 100);
}

void tst_SelectionFrameItem::fits()
{
    QFETCH(const QRectF, frame);
    QFETCH(const QRectF, expected);
    RecordingFrameHandler handler;
    SelectionFrameItem item(&handler);
    item.SetKeepAspectRatio(true);
    item.Initialize(QRectF(100, 50, 400, 300), frame);
    QCOMPARE(item.GetFrameInScene(), expected);
}

void tst_SelectionFrameItem::randomFrames()
{
    RandomGeometry random(1);
    RecordingFrameHandler handler;
    SelectionFrameItem item(&handler);
    for (int i = 0; i < 4000; ++i) {
        const QRectF work = random.rect(-300, 300, 30, 600);
        const QRectF frame = random.rect(-500, 500, 16, 900);
        const bool keep = random.oneIn(2);
        item.SetKeepAspectRatio(keep);
        item.Initialize(work, frame);
        // A frame wholly outside is cropped edge by edge, too; that turns it inside out.
        QRectF expected = keep ? fitted(frame, work) : cropped(frame, work);
        if (!keep && !frame.intersects(work))
            continue;
        COMPARE_RECTS_IN(item.GetFrameInScene(), expected,
                         RectComparison::text(frame) + " in " + RectComparison::text(work));
        QVERIFY(work.adjusted(-1e-9, -1e-9, 1e-9, 1e-9).contains(item.GetFrameInScene()));
    }
}

void tst_SelectionFrameItem::adjustsDragsAndResizes()
{
    QGraphicsScene scene(0, 0, 1000, 1000);
    RecordingFrameHandler handler;
    auto* item = new SelectionFrameItem(&handler);
    scene.addItem(item);
    item->Initialize(QRectF(100, 100, 400, 300), QRectF(150, 150, 100, 100));
    FrameGestures::press(*item, QPointF(250, 250));
    FrameGestures::move(*item, QPointF(900, 900));
    QCOMPARE(item->GetFrameInScene(), QRectF(150, 150, 350, 250));
    FrameGestures::release(*item, QPointF(900, 900));

    item->SetKeepAspectRatio(true);
    item->SetFrameInScene(QRectF(150, 150, 100, 100));
    FrameGestures::press(*item, QPointF(250, 250));
    FrameGestures::move(*item, QPointF(900, 900));
    QCOMPARE(item->GetFrameInScene(), QRectF(150, 100, 300, 300));
}

void tst_SelectionFrameItem::workRectIsStoredOnly()
{
    RecordingFrameHandler handler;
    SelectionFrameItem item(&handler);
    item.Initialize(QRectF(0, 0, 400, 300), QRectF(100, 100, 100, 100));
    handler.clear();
    item.SetWorkRect(QRectF(0, 0, 150, 150));
    QCOMPARE(item.GetWorkRect(), QRectF(0, 0, 150, 150));
    QCOMPARE(item.GetFrameInScene(), QRectF(100, 100, 100, 100));
    QVERIFY(handler.calls.isEmpty());
}

void tst_SelectionFrameItem::veil()
{
    RandomGeometry random(2);
    RecordingFrameHandler handler;
    SelectionFrameItem item(&handler);
    for (int i = 0; i < 50; ++i) {
        const QRectF work = random.rect(-30, 30, 100, 200);
        item.Initialize(work, QRectF(work.x() + random.between(0, 40), work.y() + random.between(0, 40),
                                     random.between(16, 60), random.between(16, 60)));
        QCOMPARE(FramePicture::pictureOf(item), expectedPicture(item, item.GetFrameInScene(), Qt::white));
    }
    FrameGestures::hover(item, item.GetFrameInScene().center());
    QCOMPARE(FramePicture::pictureOf(item), expectedPicture(item, item.GetFrameInScene(), FramePicture::hoverColor()));
}

void tst_SelectionFrameItem::veilPixels()
{
    RecordingFrameHandler handler;
    SelectionFrameItem item(&handler);
    item.Initialize(QRectF(0, 0, 200, 150), QRectF(20, 20, 100, 60));
    const QImage image = FramePicture::pictureOf(item);
    const auto at = [&](int sceneX, int sceneY) { return image.pixelColor(30 + sceneX - 20, 49 + sceneY - 20); };
    // Grey 128 under a veil of 50 at half its weight.
    const int dimmed = at(150, 100).red();
    QVERIFY(dimmed > 85 && dimmed < 93);
    QCOMPARE(at(1, 1).red(), dimmed);
    QCOMPARE(at(198, 148).red(), dimmed);
    QCOMPARE(at(150, 100).alpha(), 255);
    // Nothing outside the work rect.
    QCOMPARE(at(201, 100), QColor(128, 128, 128));
    QCOMPARE(at(100, 151), QColor(128, 128, 128));
    // Punched clear, the picture under the frame included: what is below the veil shows through a transparent view.
    QCOMPARE(at(70, 50).alpha(), 0);
    QCOMPARE(at(25, 30).alpha(), 0);
    // The shift of 19 is a constant: it does not follow the caption's height.
    QCOMPARE(at(10, 0).red(), dimmed);
    QCOMPARE(at(10, -1), QColor(128, 128, 128));
    QCOMPARE(at(10, 149).red(), dimmed);
    QCOMPARE(at(10, 150), QColor(128, 128, 128));
}

void tst_SelectionFrameItem::veilLeavesSourceMode()
{
    RecordingFrameHandler handler;
    SelectionFrameItem item(&handler);
    item.Initialize(QRectF(0, 0, 200, 150), QRectF(20, 20, 100, 60));
    FramePicture::picture([&](QPainter& painter) {
        const QBrush brush(Qt::green, Qt::Dense4Pattern);
        painter.setBrush(brush);
        const QStyleOptionGraphicsItem option;
        item.paint(&painter, &option, nullptr);
        QCOMPARE(painter.brush(), brush);
        // The frame's lines replace what they cover, and whoever shares the painter saves and restores it: that is how
        // the item has always been drawn.
        QCOMPARE(painter.compositionMode(), QPainter::CompositionMode_Source);
    });
}

void tst_SelectionFrameItem::degenerateWorkRects()
{
    QGraphicsScene scene(0, 0, 300, 300);
    RecordingFrameHandler handler;
    auto* item = new SelectionFrameItem(&handler);
    scene.addItem(item);
    constexpr double none = std::numeric_limits<double>::quiet_NaN();
    constexpr double infinite = std::numeric_limits<double>::infinity();
    for (const bool keep : {false, true}) {
        item->SetKeepAspectRatio(keep);
        for (const QRectF& work : {QRectF(), QRectF(10, 10, 0, 100), QRectF(200, 200, -100, -100),
                                   QRectF(none, 0, none, 10), QRectF(-infinite, 0, infinite, infinite)}) {
            item->Initialize(work, QRectF(50, 50, 100, 100));
            FrameGestures::press(*item, QPointF(100, 100));
            FrameGestures::move(*item, QPointF(130, 130));
            FrameGestures::release(*item, QPointF(130, 130));
        }
    }
    item->SetKeepAspectRatio(false);
    item->Initialize(QRectF(100, 100, 0, 0), QRectF(50, 50, 100, 100));
    QCOMPARE(item->GetFrameInScene(), QRectF(100, 100, 0, 0));
}

QTEST_MAIN(tst_SelectionFrameItem)
#include "tst_SelectionFrameItem.moc"
