#include <KQt/Ui/SelectionFrameWidget/ImageWatermarkItem.h>

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

/// Four coloured quarters, so that stretching and turning can be seen.
QPixmap quarters(int width, int height)
{
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    painter.fillRect(0, 0, width / 2, height / 2, Qt::red);
    painter.fillRect(width / 2, 0, width - width / 2, height / 2, Qt::green);
    painter.fillRect(0, height / 2, width / 2, height - height / 2, Qt::blue);
    painter.fillRect(width / 2, height / 2, width - width / 2, height - height / 2, Qt::yellow);
    painter.end();
    return QPixmap::fromImage(image);
}

} // namespace

class tst_ImageWatermarkItem : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void freshItem();
    void nullHandlerThrows();
    void setImageTakesTheFramesRatio_data();
    void setImageTakesTheFramesRatio();
    void placesBeforeTheRatioChanges();
    void clampsWithTheNewRatio();
    void randomImages();
    void withoutAScene();
    void degenerateFrames();
    void pictureIsStretchedIntoTheFrame();
    void pictureCoversWholeUnits();
    void noPicture();
};

void tst_ImageWatermarkItem::freshItem()
{
    static_assert(std::is_base_of_v<SelectionFrameGraphicsItem<QGraphicsPixmapItem>, ImageWatermarkItem>);
    RecordingFrameHandler handler;
    ImageWatermarkItem item(&handler);
    QVERIFY(item.keepAspectRatio());
    QVERIFY(item.IsBackgroundAlphaChannelNeeded());
    QVERIFY(item.pixmap().isNull());
    QCOMPARE(item.GetTransparency(), 255);
    QCOMPARE(int(item.flags()), 0x803);
    const auto* child = new ImageWatermarkItem(&handler, &item);
    QCOMPARE(child->parentItem(), &item);
}

void tst_ImageWatermarkItem::nullHandlerThrows()
{
    try {
        const ImageWatermarkItem item(nullptr);
        QFAIL("a frame without a handler must not be built");
    } catch (const std::invalid_argument& error) {
        QVERIFY(QByteArray(error.what()).startsWith("eventHandler is NULL\n"));
    }
}

void tst_ImageWatermarkItem::setImageTakesTheFramesRatio_data()
{
    QTest::addColumn<bool>("keep");
    QTest::newRow("ratio kept") << true;
    QTest::newRow("ratio free") << false;
}

void tst_ImageWatermarkItem::setImageTakesTheFramesRatio()
{
    QFETCH(const bool, keep);
    QGraphicsScene scene(0, 0, 1000, 1000);
    RecordingFrameHandler handler;
    auto* item = new ImageWatermarkItem(&handler);
    scene.addItem(item);
    item->SetWorkRect(QRectF(0, 0, 400, 300));
    item->SetKeepAspectRatio(keep);
    const QPixmap image = quarters(37, 91);
    item->SetImage(image, QRectF(50, 60, 200, 100));
    QCOMPARE(item->pixmap().cacheKey(), image.cacheKey());
    QCOMPARE(item->GetFrameInScene(), QRectF(50, 60, 200, 100));
    // Placed once, and where the ratio is kept once more with the ratio restored.
    QCOMPARE(handler.frames().size(), keep ? 2 : 1);

    // The ratio is 2 from now on, whatever the picture's own.
    item->SetKeepAspectRatio(true);
    FrameGestures::press(*item, QPointF(250, 160));
    FrameGestures::move(*item, QPointF(350, 0));
    QCOMPARE(item->GetFrameInScene(), QRectF(50, 60, 300, 150));
    FrameGestures::release(*item, QPointF(350, 0));

    handler.clear();
    item->SetImage(quarters(8, 8), QRectF(50, 60, 100, 50));
    QCOMPARE(handler.frames().size(), 1);
}

void tst_ImageWatermarkItem::placesBeforeTheRatioChanges()
{
    QGraphicsScene scene(0, 0, 1000, 1000);
    RecordingFrameHandler handler;
    auto* item = new ImageWatermarkItem(&handler);
    scene.addItem(item);
    item->SetWorkRect(QRectF(0, 0, 400, 300));
    // The ratio is the frame's, so restoring it brings the same frame: of the new frame, not of the one before.
    item->SetFrameInScene(QRectF(0, 0, 100, 100));
    handler.clear();
    item->SetImage(quarters(8, 8), QRectF(50, 60, 40, 160));
    QCOMPARE(item->GetFrameInScene(), QRectF(50, 60, 40, 160));
    const auto frames = handler.frames();
    for (const QRectF& frame : frames)
        COMPARE_RECTS(frame, FrameReference::relative(QRectF(50, 60, 40, 160), QRectF(0, 0, 400, 300)));
}

void tst_ImageWatermarkItem::clampsWithTheNewRatio()
{
    QGraphicsScene scene(0, 0, 200, 200);
    RecordingFrameHandler handler;
    auto* item = new ImageWatermarkItem(&handler);
    scene.addItem(item);
    item->SetWorkRect(QRectF(0, 0, 400, 300));
    item->SetImage(quarters(8, 8), QRectF(100, 50, 200, 100));
    QCOMPARE(item->GetFrameInScene(), QRectF(100, 75, 100, 50));
    // Unkept, nothing is reshaped.
    item->SetKeepAspectRatio(false);
    item->SetImage(quarters(8, 8), QRectF(100, 50, 300, 100));
    QCOMPARE(item->GetFrameInScene(), QRectF(100, 50, 300, 100));
}

void tst_ImageWatermarkItem::randomImages()
{
    RandomGeometry random(1);
    const QPixmap image = quarters(8, 8);
    for (int i = 0; i < 2000; ++i) {
        QGraphicsScene scene(random.rect(-300, 100, 50, 900));
        const QRectF limits = scene.sceneRect();
        RecordingFrameHandler handler;
        auto* item = new ImageWatermarkItem(&handler);
        scene.addItem(item);
        const bool keep = !random.oneIn(4);
        item->SetKeepAspectRatio(keep);
        const QRectF work = random.rect(-200, 200, 10, 500);
        const QRectF frame = random.rect(-250, 250, 1, 300);
        const double ratio = frame.width() / frame.height();
        item->SetWorkRect(work);
        item->SetImage(image, frame);
        COMPARE_RECTS(item->GetFrameInScene(),
                      keep && ratio != 1 ? FrameReference::withRatioRestored(frame, work, ratio, &limits) : frame);
    }
}

void tst_ImageWatermarkItem::withoutAScene()
{
    RecordingFrameHandler handler;
    ImageWatermarkItem item(&handler);
    item.SetWorkRect(QRectF(0, 0, 400, 300));
    item.SetImage(quarters(8, 8), QRectF(5000, 60, 200, 100));
    QCOMPARE(item.GetFrameInScene(), QRectF(5000, 60, 200, 100));
    item.SetImage(quarters(8, 8), QRectF(0, 0, 2, 4));
    QCOMPARE(item.GetFrameInScene(), QRectF(0, -14, 16, 32));
}

void tst_ImageWatermarkItem::degenerateFrames()
{
    QGraphicsScene scene(0, 0, 400, 300);
    RecordingFrameHandler handler;
    auto* item = new ImageWatermarkItem(&handler);
    scene.addItem(item);
    constexpr double none = std::numeric_limits<double>::quiet_NaN();
    constexpr double infinite = std::numeric_limits<double>::infinity();
    for (const QRectF& frame : {QRectF(), QRectF(0, 0, 10, 0), QRectF(0, 0, 0, 10), QRectF(100, 100, -50, 50),
                                QRectF(none, 0, 10, none), QRectF(0, 0, infinite, infinite)}) {
        item->SetImage(quarters(8, 8), frame);
        item->SetImage(QPixmap(), frame);
    }
    item->SetImage(quarters(8, 8), QRectF(10, 100, 100, 50));
    QCOMPARE(item->GetFrameInScene(), QRectF(10, 100, 100, 50));
}

void tst_ImageWatermarkItem::pictureIsStretchedIntoTheFrame()
{
    RecordingFrameHandler handler;
    ImageWatermarkItem item(&handler);
    const QPixmap image = quarters(10, 10);
    item.SetWorkRect(QRectF(0, 0, 400, 300));
    item.SetImage(image, QRectF(50, 60, 200, 100));
    const double top = FramePicture::captionHeight();
    const QImage painted = FramePicture::pictureOf(item);
    const auto at = [&](double x, double y) { return painted.pixelColor(qRound(30 + x), qRound(30 + top + y)); };
    QCOMPARE(at(50, 25), QColor(Qt::red));
    QCOMPARE(at(150, 25), QColor(Qt::green));
    QCOMPARE(at(50, 75), QColor(Qt::blue));
    QCOMPARE(at(150, 75), QColor(Qt::yellow));
    QCOMPARE(at(50, 104), QColor(128, 128, 128));
    QCOMPARE(painted, FramePicture::picture([&](QPainter& painter) {
                 painter.drawPixmap(QRectF(0, top, 200, 100).toAlignedRect(), image);
                 FramePicture::drawFrame(painter, QRectF(0, top, 200, 100), Qt::white);
             }));
}

void tst_ImageWatermarkItem::pictureCoversWholeUnits()
{
    RandomGeometry random(3);
    RecordingFrameHandler handler;
    ImageWatermarkItem item(&handler);
    const QPixmap image = quarters(31, 17);
    for (int i = 0; i < 50; ++i) {
        item.SetKeepAspectRatio(false);
        item.SetWorkRect(QRectF(0, 0, 400, 300));
        item.SetImage(image, random.rect(0, 50, 5, 150));
        const QRectF frame = item.mapRectFromScene(item.GetFrameInScene());
        QCOMPARE(FramePicture::pictureOf(item), FramePicture::picture([&](QPainter& painter) {
                     painter.drawPixmap(frame.toAlignedRect(), image);
                     FramePicture::drawFrame(painter, frame, Qt::white);
                 }));
    }
}

void tst_ImageWatermarkItem::noPicture()
{
    RecordingFrameHandler handler;
    ImageWatermarkItem item(&handler);
    item.SetFrameInScene(QRectF(50, 60, 200, 100));
    QCOMPARE(FramePicture::pictureOf(item), FramePicture::picture([&](QPainter& painter) {
                 FramePicture::drawFrame(painter, QRectF(0, FramePicture::captionHeight(), 200, 100), Qt::white);
             }));
}

QTEST_MAIN(tst_ImageWatermarkItem)
#include "tst_ImageWatermarkItem.moc"
