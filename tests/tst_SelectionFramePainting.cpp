#include <KQt/Ui/SelectionFrameWidget/SelectionFrameGraphicsItem.h>

#include "support/FrameGestures.h"
#include "support/FramePicture.h"
#include "support/ProbeFrame.h"
#include "support/RandomGeometry.h"
#include "support/RecordingFrameHandler.h"
#include "support/Render.h"

#include <QGraphicsScene>
#include <QGraphicsView>
#include <QTranslator>
#include <QtTest>

#include <limits>

using namespace Kestrel::Gui;
using PlainFrame = ProbeFrame<QGraphicsItem>;
using PixmapFrame = ProbeFrame<QGraphicsPixmapItem>;
using TextFrame = ProbeFrame<QGraphicsTextItem>;
using FramePicture::caption;
using FramePicture::captionHeight;
using FramePicture::captionSize;

namespace {

const QPoint Origin(30, 30); // of the item in a FramePicture

/// Translates the caption and nothing else, and writes down what it was asked for.
class CaptionTranslator : public QTranslator
{
public:
    explicit CaptionTranslator(QString pattern)
        : m_pattern(std::move(pattern))
    {
    }

    bool isEmpty() const override { return false; }

    QString translate(const char* context, const char* text, const char*, int) const override
    {
        if (qstrcmp(text, "Left: %1# Top: %2# Width: %3# Height: %4#") != 0 || qstrcmp(context, "QObject") != 0)
            return {};
        ++asked;
        return m_pattern;
    }

    mutable int asked = 0;

private:
    QString m_pattern;
};

template <typename Item>
QImage expectedPicture(const Item& item, const QColor& color, double zoom = 1.0)
{
    return FramePicture::picture(
        [&](QPainter& painter) { FramePicture::drawFrame(painter, item.GetPaintingRect(), color); }, zoom);
}

QImage expectedPicture(const QRectF& frame, const QRectF& captionRect, const QString& text)
{
    return FramePicture::picture([&](QPainter& painter) {
        FramePicture::drawFrame(painter, frame, FramePicture::restingColor());
        FramePicture::drawCaption(painter, captionRect, text);
    });
}

/// How many pixels of the line from @p from to @p to (along one axis) have the colour @p color.
int count(const QImage& image, const QPoint& from, const QPoint& to, const QColor& color)
{
    int found = 0;
    for (int y = from.y(); y <= to.y(); ++y) {
        for (int x = from.x(); x <= to.x(); ++x)
            found += image.pixelColor(x, y) == color ? 1 : 0;
    }
    return found;
}

} // namespace

class tst_SelectionFramePainting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void frame();
    void dashesShowBlackGaps();
    void highlightWhileHovered();
    void onlyTheFramePenIsCosmetic();
    void painterIsHandedBack();
    void captionWhileTheMouseIsDown();
    void captionAbove();
    void captionInside();
    void captionSideIsTestedInTheScene();
    void captionTruncatesTowardZero();
    void captionFollowsTheDrag();
    void captionHandsThePainterBack();
    void captionIsTranslated();
    void percentSignsAreSetAfterTranslating();
    void languageChangeRepaints();
    void throughAView();
    void endlessFramesArePainted();

private:
    template <typename Item>
    void checkFrame();
};

template <typename Item>
void tst_SelectionFramePainting::checkFrame()
{
    RandomGeometry random(1);
    RecordingFrameHandler handler;
    Item item(&handler);
    for (int i = 0; i < 50; ++i) {
        item.Initialize(QRectF(0, 0, 300, 200), random.mirroredSometimes(random.rect(-50, 300, 5, 150)));
        FrameGestures::leave(item, QPointF());
        QCOMPARE(FramePicture::pictureOf(item), expectedPicture(item, Qt::white));
    }
}

void tst_SelectionFramePainting::frame()
{
    checkFrame<PlainFrame>();
    if (!QTest::currentTestFailed())
        checkFrame<PixmapFrame>();
    if (!QTest::currentTestFailed())
        checkFrame<TextFrame>();
}

void tst_SelectionFramePainting::dashesShowBlackGaps()
{
    RecordingFrameHandler handler;
    PlainFrame item(&handler);
    item.SetFrameInScene(QRectF(100, 100, 200, 100));
    const QImage image = FramePicture::pictureOf(item);
    const int top = Origin.y() + qRound(captionHeight());
    const QPoint from(Origin.x(), top);
    const QPoint to(Origin.x() + 200, top);
    const int white = count(image, from, to, Qt::white);
    const int black = count(image, from, to, Qt::black);
    QVERIFY(white > 100);
    QVERIFY(black > 20);
    QCOMPARE(white + black, 201);
    // Two pixels wide, nothing inside and nothing outside.
    QCOMPARE(count(image, from - QPoint(0, 3), to - QPoint(0, 3), QColor(128, 128, 128)), 201);
    QCOMPARE(count(image, from + QPoint(3, 3), to + QPoint(-3, 3), QColor(128, 128, 128)), 195);
}

void tst_SelectionFramePainting::highlightWhileHovered()
{
    RecordingFrameHandler handler;
    PlainFrame item(&handler);
    item.SetFrameInScene(QRectF(100, 100, 200, 100));
    FrameGestures::hover(item, QPointF(150, 150));
    const QImage hovered = FramePicture::pictureOf(item);
    QCOMPARE(hovered, expectedPicture(item, QColor(QStringLiteral("#E86E59"))));
    const int top = Origin.y() + qRound(captionHeight());
    QVERIFY(count(hovered, {Origin.x(), top}, {Origin.x() + 200, top}, QColor(0xE8, 0x6E, 0x59)) > 100);

    FrameGestures::hover(item, QPointF(99, 150));
    QCOMPARE(FramePicture::pictureOf(item), expectedPicture(item, QColor(QStringLiteral("#FFFFFF"))));
    FrameGestures::hover(item, QPointF(150, 150));
    FrameGestures::leave(item, QPointF(150, 150));
    QCOMPARE(FramePicture::pictureOf(item), expectedPicture(item, Qt::white));
}

void tst_SelectionFramePainting::onlyTheFramePenIsCosmetic()
{
    RecordingFrameHandler handler;
    PlainFrame item(&handler);
    item.SetFrameInScene(QRectF(100, 100, 60, 40));
    const QImage image = FramePicture::pictureOf(item, 4.0);
    QCOMPARE(image, expectedPicture(item, Qt::white, 4.0));
    // Across the left edge: eight pixels of the under-pen, in their middle two of the dashes.
    int dashed = 0;
    const int top = Origin.y() + qRound(captionHeight() * 4);
    for (int y = top + 10; y < top + 100; ++y) {
        const int white = count(image, {Origin.x() - 8, y}, {Origin.x() + 8, y}, Qt::white);
        const int black = count(image, {Origin.x() - 8, y}, {Origin.x() + 8, y}, Qt::black);
        QCOMPARE(white + black, 8);
        QVERIFY(white == 0 || white == 2);
        dashed += white ? 1 : 0;
    }
    QVERIFY(dashed > 30);
}

void tst_SelectionFramePainting::painterIsHandedBack()
{
    RecordingFrameHandler handler;
    PlainFrame item(&handler);
    item.SetFrameInScene(QRectF(100, 100, 60, 40));
    FramePicture::picture([&](QPainter& painter) {
        const QPen pen(QBrush(Qt::green), 7.5, Qt::DotLine);
        painter.setPen(pen);
        painter.setBrush(Qt::NoBrush);
        const QTransform transform = painter.transform();
        const QStyleOptionGraphicsItem option;
        item.paint(&painter, &option, nullptr);
        QCOMPARE(painter.pen(), pen);
        QCOMPARE(painter.brush(), QBrush(Qt::NoBrush));
        QCOMPARE(painter.transform(), transform);
        QCOMPARE(painter.compositionMode(), QPainter::CompositionMode_SourceOver);
        QVERIFY(!painter.hasClipping());
    });
}

void tst_SelectionFramePainting::captionWhileTheMouseIsDown()
{
    QGraphicsScene scene(0, 0, 300, 200);
    RecordingFrameHandler handler;
    auto* item = new PlainFrame(&handler);
    scene.addItem(item);
    item->Initialize(QRectF(0, 0, 200, 100), QRectF(50, 25, 100, 50));
    const QImage without = expectedPicture(*item, Qt::white);
    const QSizeF size = captionSize(caption(25, 25, 50, 50));
    const QImage with = expectedPicture(QRectF(0, size.height(), 100, 50), QRectF(QPointF(0, 0), size),
                                        QStringLiteral("Left: 25% Top: 25% Width: 50% Height: 50%"));
    QCOMPARE(FramePicture::pictureOf(*item), without);
    QVERIFY(with != without);
    // Moving and resizing alike.
    for (const QPointF at : {QPointF(100, 50), QPointF(150, 50), QPointF(50, 25)}) {
        FrameGestures::press(*item, at);
        QVERIFY(item->IsInfoCaptionVisible());
        QCOMPARE(FramePicture::pictureOf(*item), with);
        FrameGestures::release(*item, at);
        QVERIFY(!item->IsInfoCaptionVisible());
        QCOMPARE(FramePicture::pictureOf(*item), without);
    }
    FrameGestures::press(*item, QPointF(10, 10));
    QCOMPARE(FramePicture::pictureOf(*item), without);
}

void tst_SelectionFramePainting::captionAbove()
{
    QGraphicsScene scene(0, 0, 300, 200);
    RecordingFrameHandler handler;
    auto* item = new PlainFrame(&handler);
    scene.addItem(item);
    const QSizeF size = captionSize(caption(20, 30, 40, 50));
    item->Initialize(QRectF(0, 0, 300, 200), QRectF(60, 60, 120, 100));
    FrameGestures::press(*item, QPointF(100, 100));
    QVERIFY(!item->IsInfoCaptionInsideFrame());
    const QImage image = FramePicture::pictureOf(*item);
    QCOMPARE(image, expectedPicture(item->GetPaintingRect(), QRectF(QPointF(0, 0), size), caption(20, 30, 40, 50)));
    // White paper, a black line around it and dark blue letters.
    const QRect paper = QRectF(Origin, size).toRect();
    QCOMPARE(image.pixelColor(paper.topLeft()), QColor(Qt::black));
    QCOMPARE(image.pixelColor(paper.topLeft() + QPoint(2, 2)), QColor(Qt::white));
    QVERIFY(count(image, paper.topLeft() + QPoint(2, 2), paper.bottomRight() - QPoint(2, 4), Qt::white) > 100);
    bool blue = false;
    for (int x = paper.left() + 2; x < paper.right() - 1; ++x) {
        for (int y = paper.top() + 2; y < paper.bottom() - 3; ++y) {
            const QColor color = image.pixelColor(x, y);
            blue = blue || (color.blue() > color.red() + 20 && color.blue() > color.green() + 20);
        }
    }
    QVERIFY(blue);
}

void tst_SelectionFramePainting::captionInside()
{
    QGraphicsScene scene(0, 0, 300, 200);
    RecordingFrameHandler handler;
    auto* item = new PlainFrame(&handler);
    scene.addItem(item);
    const double height = captionHeight();
    // Just enough room above, and a hair too little.
    item->Initialize(QRectF(0, 0, 300, 200), QRectF(60, height, 120, 100));
    QVERIFY(!item->IsInfoCaptionInsideFrame());
    item->SetFrameInScene(QRectF(60, height - 0.125, 120, 100));
    QVERIFY(item->IsInfoCaptionInsideFrame());

    item->SetFrameInScene(QRectF(60, 2, 120, 100));
    QVERIFY(item->IsInfoCaptionInsideFrame());
    FrameGestures::press(*item, QPointF(120, 60));
    const QString text = caption(20, 1, 40, 50);
    QCOMPARE(FramePicture::pictureOf(*item),
             expectedPicture(item->GetPaintingRect(), QRectF(QPointF(0, height), captionSize(text)), text));
    // The reservation above the frame stays.
    QCOMPARE(item->boundingRect().height(), height + 100);
}

void tst_SelectionFramePainting::captionSideIsTestedInTheScene()
{
    QGraphicsScene scene(0, 0, 300, 200);
    RecordingFrameHandler handler;
    auto* item = new PlainFrame(&handler);
    scene.addItem(item);
    item->Initialize(QRectF(0, 0, 300, 200), QRectF(60, 60, 120, 100));
    QVERIFY(!item->IsInfoCaptionInsideFrame());
    // The scene's top counts, wherever it is.
    scene.setSceneRect(0, 50, 300, 200);
    QVERIFY(item->IsInfoCaptionInsideFrame());
    FrameGestures::press(*item, QPointF(120, 100));
    const QString text = caption(20, 30, 40, 50);
    QCOMPARE(FramePicture::pictureOf(*item),
             expectedPicture(item->GetPaintingRect(), QRectF(QPointF(0, captionHeight()), captionSize(text)), text));
    scene.setSceneRect(0, -1000, 300, 2000);
    item->SetFrameInScene(QRectF(60, -100, 120, 100));
    QVERIFY(!item->IsInfoCaptionInsideFrame());
}

void tst_SelectionFramePainting::captionTruncatesTowardZero()
{
    QGraphicsScene scene(-500, -500, 1000, 1000);
    RecordingFrameHandler handler;
    auto* item = new PlainFrame(&handler);
    scene.addItem(item);
    const auto shows = [&](const QRectF& frame, const QString& text) {
        item->SetFrameInScene(frame);
        FrameGestures::press(*item, item->GetFrameInScene().center());
        const QImage image = FramePicture::pictureOf(*item);
        FrameGestures::release(*item, item->GetFrameInScene().center());
        return image == expectedPicture(item->GetPaintingRect(), QRectF(QPointF(0, 0), captionSize(text)), text);
    };
    item->SetWorkRect(QRectF(0, 0, 1000, 1000));
    QVERIFY(shows(QRectF(129, 50, 500, 400), QStringLiteral("Left: 12% Top: 5% Width: 50% Height: 40%")));
    QVERIFY(shows(QRectF(-129, -59, 199, 209), QStringLiteral("Left: -12% Top: -5% Width: 19% Height: 20%")));
    QVERIFY(shows(QRectF(-9, 9, 1099, 109), QStringLiteral("Left: 0% Top: 0% Width: 109% Height: 10%")));
    // An empty frame has no relative one.
    item->SetWorkRect(QRectF(-10, -10, 100, 100));
    QVERIFY(shows(QRectF(50, 50, -30, 30), QStringLiteral("Left: 0% Top: 0% Width: 0% Height: 0%")));
}

void tst_SelectionFramePainting::captionFollowsTheDrag()
{
    QGraphicsScene scene(0, 0, 300, 200);
    RecordingFrameHandler handler;
    auto* item = new PlainFrame(&handler);
    scene.addItem(item);
    item->Initialize(QRectF(0, 0, 300, 200), QRectF(60, 60, 120, 100));
    FrameGestures::press(*item, QPointF(100, 100));
    for (int step = 0; step < 20; ++step) {
        FrameGestures::move(*item, QPointF(100 + 6 * step, 100 - step));
        const QRectF frame = item->GetFrameInScene();
        const QString text = caption(int(frame.x() / 300 * 100.0), int(frame.y() / 200 * 100.0), 40, 50);
        QCOMPARE(FramePicture::pictureOf(*item),
                 expectedPicture(item->GetPaintingRect(), QRectF(QPointF(0, 0), captionSize(text)), text));
        QCOMPARE(item->boundingRect().width(), std::max(120.0, captionSize(text).width()));
    }
    // The work rect is the measure: another one, another text.
    item->SetWorkRect(QRectF(0, 0, 600, 400));
    const QRectF frame = item->GetFrameInScene();
    const QString text = caption(int(frame.x() / 600 * 100.0), int(frame.y() / 400 * 100.0), 20, 25);
    QCOMPARE(FramePicture::pictureOf(*item),
             expectedPicture(item->GetPaintingRect(), QRectF(QPointF(0, 0), captionSize(text)), text));
}

void tst_SelectionFramePainting::captionHandsThePainterBack()
{
    QGraphicsScene scene(0, 0, 300, 200);
    RecordingFrameHandler handler;
    auto* item = new PlainFrame(&handler);
    scene.addItem(item);
    item->Initialize(QRectF(0, 0, 300, 200), QRectF(60, 60, 120, 100));
    FrameGestures::press(*item, QPointF(100, 100));
    FramePicture::picture([&](QPainter& painter) {
        const QPen pen(QBrush(Qt::green), 7.5, Qt::DotLine);
        const QFont font(QStringLiteral("Courier"), 23, QFont::Bold, true);
        painter.setPen(pen);
        painter.setFont(font);
        const QFont fontBefore = painter.font(); // resolved for the picture
        const QStyleOptionGraphicsItem option;
        item->paint(&painter, &option, nullptr);
        QCOMPARE(painter.pen(), pen);
        QCOMPARE(painter.font(), fontBefore);
    });
}

void tst_SelectionFramePainting::captionIsTranslated()
{
    QGraphicsScene scene(0, 0, 300, 200);
    RecordingFrameHandler handler;
    const QRectF work(0, 0, 300, 200);
    const QRectF frame(60, 60, 120, 100);
    CaptionTranslator translator(QStringLiteral("Ganz links %1# und oben %2#; breit: %3#, hoch: %4#"));
    const QString translated = QStringLiteral("Ganz links 20% und oben 30%; breit: 40%, hoch: 50%");
    auto* before = new PlainFrame(&handler);
    scene.addItem(before);
    before->Initialize(work, frame);

    QVERIFY(QCoreApplication::installTranslator(&translator));
    auto* after = new PlainFrame(&handler);
    scene.addItem(after);
    QCOMPARE(translator.asked, 1);
    after->Initialize(work, frame);
    QCOMPARE(after->boundingRect().width(), captionSize(translated).width());
    FrameGestures::press(*after, QPointF(100, 100));
    QCOMPARE(FramePicture::pictureOf(*after),
             expectedPicture(after->GetPaintingRect(), QRectF(QPointF(0, 0), captionSize(translated)), translated));
    QCOMPARE(translator.asked, 1);

    // An item that is there already keeps its language until it is told.
    QCOMPARE(before->boundingRect().width(), captionSize(caption(20, 30, 40, 50)).width());
    before->LanguageChanged();
    QCOMPARE(translator.asked, 2);
    QCOMPARE(before->boundingRect().width(), captionSize(translated).width());
    QCoreApplication::removeTranslator(&translator);
    QCOMPARE(before->boundingRect().width(), captionSize(translated).width());
    before->LanguageChanged();
    QCOMPARE(before->boundingRect().width(), captionSize(caption(20, 30, 40, 50)).width());
}

void tst_SelectionFramePainting::percentSignsAreSetAfterTranslating()
{
    // Translators see "#" and never a bare percent sign behind a placeholder; every one that they write becomes one.
    RecordingFrameHandler handler;
    CaptionTranslator translator(QStringLiteral("a long translation, 100# of it: #%4 #%3 #%2 #%1 # ##"));
    QVERIFY(QCoreApplication::installTranslator(&translator));
    PlainFrame item(&handler);
    QCoreApplication::removeTranslator(&translator);
    QCOMPARE(translator.asked, 1);
    item.Initialize(QRectF(0, 0, 300, 200), QRectF(60, 60, 120, 100));
    const QString text = QStringLiteral("a long translation, 100% of it: %50 %40 %30 %20 % %%");
    QVERIFY(captionSize(text).width() > 120);
    QCOMPARE(item.boundingRect().width(), captionSize(text).width());
}

void tst_SelectionFramePainting::languageChangeRepaints()
{
    QGraphicsScene scene(0, 0, 300, 200);
    RecordingFrameHandler handler;
    auto* item = new PlainFrame(&handler);
    scene.addItem(item);
    item->Initialize(QRectF(0, 0, 300, 200), QRectF(60, 60, 120, 100));
    handler.clear();
    QSignalSpy changed(&scene, &QGraphicsScene::changed);
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    changed.clear();
    item->LanguageChanged();
    QTRY_VERIFY(!changed.isEmpty());
    QVERIFY(handler.calls.isEmpty());
}

void tst_SelectionFramePainting::throughAView()
{
    QGraphicsScene scene(0, 0, 300, 200);
    QGraphicsView view(&scene);
    view.setFrameShape(QFrame::NoFrame);
    view.setBackgroundBrush(QColor(128, 128, 128));
    view.resize(300, 200);
    RecordingFrameHandler handler;
    auto* item = new PlainFrame(&handler);
    scene.addItem(item);
    item->Initialize(QRectF(0, 0, 300, 200), QRectF(60, 60, 120, 100));
    FrameGestures::press(*item, QPointF(100, 100));

    const QImage grabbed = TestSupport::render(view);
    const auto at = [&](const QPointF& scenePos) { return grabbed.pixelColor(view.mapFromScene(scenePos)); };
    // The caption on its strip above the frame, the frame around the picture, nothing in it.
    QCOMPARE(at({62, 60 - captionHeight() + 2}), QColor(Qt::white));
    QCOMPARE(at({120, 110}), QColor(128, 128, 128));
    const QColor edge = at({60, 110});
    QVERIFY(edge == QColor(Qt::white) || edge == QColor(Qt::black));
    QCOMPARE(at({40, 110}), QColor(128, 128, 128));
}

// A painter that is asked for endless dashes never comes back.
void tst_SelectionFramePainting::endlessFramesArePainted()
{
    constexpr double infinite = std::numeric_limits<double>::infinity();
    constexpr double none = std::numeric_limits<double>::quiet_NaN();
    QGraphicsScene scene(0, 0, 300, 200);
    QGraphicsView view(&scene);
    view.resize(300, 200);
    RecordingFrameHandler handler;
    auto* item = new PlainFrame(&handler);
    scene.addItem(item);
    item->SetWorkRect(QRectF(0, 0, 300, 200));
    for (double far : {1e9, 1e300, infinite, none}) {
        for (const QRectF& frame :
             {QRectF(QPointF(20, 30), QPointF(far, far)), QRectF(QPointF(-far, -far), QPointF(far, far)),
              QRectF(QPointF(far, 30), QPointF(20, 100))}) {
            item->SetFrameInScene(frame);
            FrameGestures::press(*item, frame.topLeft());
            view.grab();
            QImage canvas(300, 200, QImage::Format_ARGB32_Premultiplied);
            canvas.fill(Qt::gray);
            QPainter painter(&canvas);
            item->paint(&painter, nullptr, nullptr);
        }
    }

    // What lies on the picture is there.
    item->SetFrameInScene(QRectF(QPointF(20, 60), QPointF(1e12, 1e12)));
    QImage canvas(300, 200, QImage::Format_ARGB32_Premultiplied);
    canvas.fill(Qt::gray);
    QPainter painter(&canvas);
    painter.translate(item->pos());
    item->paint(&painter, nullptr, nullptr);
    painter.end();
    QVERIFY(canvas.pixelColor(20, 150) != QColor(Qt::gray));
    QVERIFY(canvas.pixelColor(200, 60) != QColor(Qt::gray));
    QCOMPARE(canvas.pixelColor(200, 150), QColor(Qt::gray));
}

QTEST_MAIN(tst_SelectionFramePainting)
#include "tst_SelectionFramePainting.moc"
