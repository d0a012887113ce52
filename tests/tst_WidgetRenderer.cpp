#include <KQt/Ui/WidgetRenderer.h>

#include "support/WindowSystem.h"

#include <QtTest>

#include <QDialog>
#include <QMargins>
#include <QPainter>
#include <QProcess>
#include <QRandomGenerator>

#include <boost/exception/all.hpp>

#include <functional>
#include <memory>
#include <stdexcept>
#include <utility>
#include <vector>

using Kestrel::Gui::WidgetRenderer;

Q_DECLARE_METATYPE(QMargins)

namespace {

constexpr Qt::WindowFlags Unmanaged = Qt::FramelessWindowHint | Qt::BypassWindowManagerHint;

/// Paints a colour that tells which widget and which of its points is seen; counts its paint events.
class Probe : public QWidget
{
public:
    explicit Probe(int number, QWidget* parent = nullptr)
        : QWidget(parent)
        , m_number(number)
    {
    }

    static QRgb colorAt(int number, const QPoint& at) { return qRgb(at.x() % 256, at.y() % 256, number); }

    void setNumber(int number) { m_number = number; }

    int paints = 0;
    std::function<void()> whilePainting;

protected:
    void paintEvent(QPaintEvent*) override
    {
        ++paints;
        {
            QImage image(size(), QImage::Format_RGB32);
            for (int y = 0; y < height(); ++y) {
                for (int x = 0; x < width(); ++x)
                    image.setPixel(x, y, colorAt(m_number, QPoint(x, y)));
            }
            QPainter(this).drawImage(0, 0, image);
        }
        if (whilePainting)
            whilePainting();
    }

private:
    int m_number;
};

Probe* probeIn(QWidget* parent, int number, const QRect& geometry)
{
    auto* probe = new Probe(number, parent);
    probe->setGeometry(geometry);
    return probe;
}

/// A window without decorations whose contents lie at @p at on the screen.
class Stage : public QWidget
{
public:
    explicit Stage(const QPoint& at = QPoint(40, 30))
        : QWidget(nullptr, Unmanaged)
    {
        setGeometry(QRect(at, QSize(400, 300)));
        show();
    }

    Probe* addProbe(int number, const QRect& geometry) { return probeIn(this, number, geometry); }
};

/// A dialog that lies where a Stage does, and is more than a QDialog.
class Dialog : public QDialog
{
public:
    explicit Dialog(QWidget* parent = nullptr)
        : QDialog(parent, Unmanaged)
    {
        setGeometry(40, 30, 100, 100);
    }
};

/// Makes what is to be deleted, and the window that it has or is, in which widgets are to lie.
using WindowMaker = std::function<std::pair<std::unique_ptr<QWidget>, QWidget*>()>;

std::pair<std::unique_ptr<QWidget>, QWidget*> windowWithPlace(std::unique_ptr<QWidget> window)
{
    auto* place = window.get();
    return {std::move(window), place};
}

void sendShow(QWidget* widget)
{
    QShowEvent show;
    QCoreApplication::sendEvent(widget, &show);
}

void sendHide(QWidget* widget)
{
    QHideEvent hide;
    QCoreApplication::sendEvent(widget, &hide);
}

void processAllEvents()
{
    for (int i = 0; i < 10; ++i)
        QCoreApplication::processEvents();
}

void sendPlain(QWidget* widget, QEvent::Type type)
{
    QEvent event(type);
    QCoreApplication::sendEvent(widget, &event);
}

/// Where the renderer looks for @p widget: its frame, mapped by the widget itself.
QRect seenRect(const QWidget* widget)
{
    return widget->frameGeometry().translated(widget->mapToGlobal(QPoint(0, 0)));
}

bool isTakenOver(const QWidget* widget)
{
    return widget->testAttribute(Qt::WA_MouseNoMask);
}

/// Whether a pixel of the screen lies within the renderer frame, found out by a widget of one pixel.
bool frameContains(const WidgetRenderer& renderer, const QPoint& pixel)
{
    Q_UNUSED(renderer)
    QWidget window(nullptr, Unmanaged);
    window.setGeometry(QRect(pixel, QSize(1, 1)));
    QWidget point(&window);
    point.setGeometry(0, 0, 1, 1);
    sendShow(&point);
    const bool inside = isTakenOver(&point);
    sendHide(&point);
    return inside;
}

QSize pictureSize(const WidgetRenderer& renderer)
{
    return renderer.GetMaskImage().size() / renderer.GetMaskImage().devicePixelRatio();
}

/// Compares the renderer frame by what it takes over at its corners and right outside of them.
void compareFrame(const WidgetRenderer& renderer, const QRect& expected)
{
    QVERIFY(frameContains(renderer, expected.topLeft()));
    QVERIFY(frameContains(renderer, expected.bottomRight()));
    QVERIFY(!frameContains(renderer, expected.topLeft() - QPoint(1, 0)));
    QVERIFY(!frameContains(renderer, expected.topLeft() - QPoint(0, 1)));
    QVERIFY(!frameContains(renderer, expected.bottomRight() + QPoint(1, 0)));
    QVERIFY(!frameContains(renderer, expected.bottomRight() + QPoint(0, 1)));
}

QRgb pixel(const WidgetRenderer& renderer, const QPoint& at)
{
    const QImage image = renderer.GetMaskImage().toImage();
    return image.pixel(at * image.devicePixelRatio());
}

QStringList& warnings()
{
    static QStringList list;
    return list;
}

QtMessageHandler& previousHandler()
{
    static QtMessageHandler handler = nullptr;
    return handler;
}

void collectWarning(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    // The offscreen platform says so of every window that is masked.
    if (type == QtWarningMsg && !text.contains(QLatin1String("does not support setting window masks")))
        warnings().append(text);
    previousHandler()(type, context, text);
}

const QRect WholeScreen(0, 0, 700, 500);
const QRect AroundScreen(-200, -200, 600, 500);

} // namespace

Q_DECLARE_METATYPE(WindowMaker)

class tst_WidgetRenderer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void isPartOfTheMetaObjectSystem();
    void throwsWithoutTrackedWidget();
    void hasNoPictureAtFirst();

    void takesOverByEvent_data();
    void takesOverByEvent();
    void otherEventsTakeNothingOver();
    void takesOverOnlyWhatLiesWhollyInside_data();
    void takesOverOnlyWhatLiesWhollyInside();
    void emptyFrameTakesNothingOver();
    void leavesTheTrackedWidgetAlone();
    void consumesNothing();

    void frameFollowsMove();
    void frameFollowsResize();
    void frameFollowsPlainEvents_data();
    void frameFollowsPlainEvents();
    void movingTheTrackedWidgetDrawsNothing();
    void changingTheFrameDrawsNothing();

    void composesRandomWidgets();
    void masksRandomWidgets();
    void placesAreThoseOfTheScreen();
    void composesAtTwoDevicePixels();
    void fillsWithOpaqueBlack();
    void drawsEveryWidgetTwice();
    void drawsNoChildren();
    void ignoresTheWidgetsOwnMask();
    void laterWidgetsLieOnTop();
    void skipsWhatLiesOutsideTheNewFrame();

    void redrawsOnEventsOfListedWidgets_data();
    void redrawsOnEventsOfListedWidgets();
    void oneCauseDrawsOnce();
    void masksDoNotDrawAgain();
    void paintedWidgetIsPaintedAndDrawn();
    void changeWhilePaintingIsDrawnOnceMore();
    void restlessPaintHandlerEnds();
    void hidingWhilePaintingLeaves();

    void leavesByEvent_data();
    void leavesByEvent();
    void leavesWhenPartlyOutside();
    void leavingKeepsTheOthers();
    void othersKeepTheirMasks();

    void invalidFrameThrows_data();
    void invalidFrameThrows();
    void worksAgainAfterThrow();
    void hideLeavesAlthoughItThrows();

    void forgetsDeletedWidgets();
    void forgetsDeletedWindow();
    void deletedWindowPaintsNothingFromItsDestructor_data();
    void deletedWindowPaintsNothingFromItsDestructor();
    void windowShownByItsBaseClassIsAliveWhenItHides();
    void deletedWindowThrowsNothing_data();
    void deletedWindowThrowsNothing();
    void widgetMayDeleteItselfWhilePainted();
    void widgetMayDeleteOthersWhilePainted();
    void rendererMayBeDeletedWhilePainting();
    void trackedWidgetMayBeDeleted();
    void keepsMasksWhenDeleted();
};

void tst_WidgetRenderer::init()
{
    warnings().clear();
    previousHandler() = qInstallMessageHandler(collectWarning);
}

void tst_WidgetRenderer::cleanup()
{
    qInstallMessageHandler(previousHandler());
    QCOMPARE(warnings(), QStringList());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_WidgetRenderer::isPartOfTheMetaObjectSystem()
{
    const QMetaObject& meta = WidgetRenderer::staticMetaObject;
    QCOMPARE(meta.className(), "Kestrel::Gui::WidgetRenderer");
    QCOMPARE(meta.superClass()->className(), "QObject");
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    QWidget tracked;
    WidgetRenderer renderer(&tracked, nullptr);
    QVERIFY(QMetaObject::invokeMethod(&renderer, "ChangeRendererFrame", Q_ARG(QRect, QRect(10, 20, 30, 40))));
    compareFrame(renderer, QRect(10, 20, 30, 40));
}

void tst_WidgetRenderer::throwsWithoutTrackedWidget()
{
    QObject parent;
    try {
        const WidgetRenderer renderer(nullptr, &parent);
        QFAIL("nothing was thrown");
    } catch (const std::invalid_argument& error) {
        QVERIFY(QByteArray(error.what()).startsWith("trackedWidget is NULL\n"));
        const auto* decorated = dynamic_cast<const boost::exception*>(&error);
        QVERIFY(decorated);
        const char* const* function = boost::get_error_info<boost::throw_function>(*decorated);
        const char* const* file = boost::get_error_info<boost::throw_file>(*decorated);
        QVERIFY(function && QByteArray(*function).contains("WidgetRenderer::WidgetRenderer("));
        QVERIFY(file && QByteArray(*file).startsWith("KQt/Ui/WidgetRenderer"));
        QVERIFY(boost::get_error_info<boost::throw_line>(*decorated));
    }
    QVERIFY(parent.children().isEmpty());
}

void tst_WidgetRenderer::hasNoPictureAtFirst()
{
    QWidget tracked;
    QObject parent;
    auto* renderer = new WidgetRenderer(&tracked, &parent);
    QCOMPARE(renderer->parent(), &parent);
    QVERIFY(renderer->GetMaskImage().isNull());
}

void tst_WidgetRenderer::takesOverByEvent_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("move") << int(QEvent::Move);
    QTest::newRow("resize") << int(QEvent::Resize);
    QTest::newRow("show") << int(QEvent::Show);
}

void tst_WidgetRenderer::takesOverByEvent()
{
    QFETCH(int, type);
    Stage stage;
    Probe* probe = stage.addProbe(1, QRect(0, 0, 30, 20));
    QWidget tracked;
    WidgetRenderer renderer(&tracked, nullptr);
    renderer.ChangeRendererFrame(WholeScreen);
    probe->setVisible(type != QEvent::Show);
    // Shown before there was a frame, or only now.
    sendHide(probe);
    QVERIFY(!isTakenOver(probe));

    if (type == QEvent::Move)
        probe->move(3, 2);
    else if (type == QEvent::Resize)
        probe->resize(31, 21);
    else
        probe->show();
    QVERIFY(isTakenOver(probe));
    QCOMPARE(pictureSize(renderer), WholeScreen.size());
}

void tst_WidgetRenderer::otherEventsTakeNothingOver()
{
    Stage stage;
    Probe* probe = stage.addProbe(1, QRect(0, 0, 30, 20));
    probe->show();
    QWidget tracked;
    WidgetRenderer renderer(&tracked, nullptr);
    renderer.ChangeRendererFrame(WholeScreen);

    probe->raise();
    probe->repaint();
    for (const QEvent::Type type : {QEvent::Enter, QEvent::Leave, QEvent::ZOrderChange, QEvent::User})
        sendPlain(probe, type);
    QVERIFY(!isTakenOver(probe));
    QVERIFY(renderer.GetMaskImage().isNull());
}

void tst_WidgetRenderer::takesOverOnlyWhatLiesWhollyInside_data()
{
    QTest::addColumn<QMargins>("margins"); // of the renderer frame around the widget
    QTest::addColumn<bool>("inside");
    QTest::newRow("same rectangle") << QMargins(0, 0, 0, 0) << true;
    QTest::newRow("larger") << QMargins(1, 2, 3, 4) << true;
    QTest::newRow("cut left") << QMargins(-1, 0, 0, 0) << false;
    QTest::newRow("cut at the top") << QMargins(0, -1, 0, 0) << false;
    QTest::newRow("cut right") << QMargins(0, 0, -1, 0) << false;
    QTest::newRow("cut at the bottom") << QMargins(0, 0, 0, -1) << false;
}

void tst_WidgetRenderer::takesOverOnlyWhatLiesWhollyInside()
{
    QFETCH(QMargins, margins);
    QFETCH(bool, inside);
    Stage stage;
    Probe* probe = stage.addProbe(1, QRect(10, 5, 30, 20));
    QWidget tracked;
    WidgetRenderer renderer(&tracked, nullptr);
    // The widget's own mapping counts its position within the parent twice. Kept so: pictures depend on it.
    QCOMPARE(seenRect(probe), QRect(stage.mapToGlobal(QPoint(0, 0)) + QPoint(20, 10), QSize(30, 20)));
    renderer.ChangeRendererFrame(seenRect(probe).marginsAdded(margins));
    probe->show();
    QCOMPARE(isTakenOver(probe), inside);
    QCOMPARE(renderer.GetMaskImage().isNull(), !inside);
}

void tst_WidgetRenderer::emptyFrameTakesNothingOver()
{
    Stage stage;
    Probe* probe = stage.addProbe(1, QRect(0, 0, 30, 20));
    QWidget tracked;
    const WidgetRenderer renderer(&tracked, nullptr);
    probe->show();
    probe->move(-40, -30);
    probe->resize(1, 1);
    QVERIFY(!isTakenOver(probe));
    QVERIFY(renderer.GetMaskImage().isNull());
}

void tst_WidgetRenderer::leavesTheTrackedWidgetAlone()
{
    Stage stage;
    Probe* tracked = stage.addProbe(1, QRect(0, 0, 30, 20));
    WidgetRenderer renderer(tracked, nullptr);
    renderer.ChangeRendererFrame(WholeScreen);
    tracked->show();
    renderer.ChangeRendererFrame(WholeScreen);
    tracked->move(1, 1);
    QVERIFY(!isTakenOver(tracked));
    QVERIFY(renderer.GetMaskImage().isNull());
}

void tst_WidgetRenderer::consumesNothing()
{
    class Receiver : public QWidget
    {
    public:
        using QWidget::QWidget;
        QList<QEvent::Type> received;
        bool event(QEvent* event) override
        {
            received.append(event->type());
            return QWidget::event(event);
        }
    };
    Stage stage;
    Receiver widget(&stage);
    widget.setGeometry(0, 0, 20, 20);
    QWidget tracked;
    WidgetRenderer renderer(&tracked, nullptr);
    renderer.ChangeRendererFrame(WholeScreen);
    widget.show();
    widget.move(1, 1);
    widget.resize(21, 21);
    sendPlain(&widget, QEvent::ZOrderChange);
    widget.close();
    for (const QEvent::Type type :
         {QEvent::Show, QEvent::Move, QEvent::Resize, QEvent::Paint, QEvent::ZOrderChange, QEvent::Close, QEvent::Hide})
        QVERIFY2(widget.received.contains(type), QByteArray::number(type));
}

void tst_WidgetRenderer::frameFollowsMove()
{
    Stage stage;
    QWidget tracked(&stage);
    tracked.setGeometry(11, 12, 50, 40);
    const WidgetRenderer renderer(&tracked, nullptr);
    QMoveEvent move(QPoint(70, 80), QPoint(1, 2));
    QCoreApplication::sendEvent(&tracked, &move);
    // In the parent's coordinates, as the event has it, and not on the screen.
    compareFrame(renderer, QRect(70, 80, 50, 40));
}

void tst_WidgetRenderer::frameFollowsResize()
{
    Stage stage;
    QWidget tracked(&stage);
    tracked.setGeometry(11, 12, 50, 40);
    const WidgetRenderer renderer(&tracked, nullptr);
    QResizeEvent resize(QSize(61, 43), QSize(1, 2));
    QCoreApplication::sendEvent(&tracked, &resize);
    // Unlike the others mapped to the screen, by the tracked widget itself: its position counts twice.
    compareFrame(renderer, QRect(stage.mapToGlobal(QPoint(22, 24)), QSize(61, 43)));
}

void tst_WidgetRenderer::frameFollowsPlainEvents_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("show") << int(QEvent::Show);
    QTest::newRow("hide") << int(QEvent::Hide);
    QTest::newRow("stacking") << int(QEvent::ZOrderChange);
}

void tst_WidgetRenderer::frameFollowsPlainEvents()
{
    QFETCH(int, type);
    Stage stage;
    QWidget tracked(&stage);
    tracked.setGeometry(11, 12, 50, 40);
    WidgetRenderer renderer(&tracked, nullptr);
    renderer.ChangeRendererFrame(QRect(500, 500, 5, 5));
    if (type == QEvent::Show)
        sendShow(&tracked);
    else if (type == QEvent::Hide)
        sendHide(&tracked);
    else
        sendPlain(&tracked, QEvent::Type(type));
    // The parent's coordinates again.
    compareFrame(renderer, QRect(11, 12, 50, 40));
    sendPlain(&tracked, QEvent::User);
    compareFrame(renderer, QRect(11, 12, 50, 40));
}

void tst_WidgetRenderer::movingTheTrackedWidgetDrawsNothing()
{
    Stage stage;
    Probe* probe = stage.addProbe(1, QRect(0, 0, 30, 20));
    QWidget tracked(&stage);
    tracked.setGeometry(WholeScreen);
    tracked.show();
    const WidgetRenderer renderer(&tracked, nullptr);
    sendPlain(&tracked, QEvent::ZOrderChange);
    probe->show();
    QVERIFY(isTakenOver(probe));
    QCoreApplication::processEvents();

    const qint64 picture = renderer.GetMaskImage().cacheKey();
    QMoveEvent move(QPoint(1, 1), QPoint());
    QCoreApplication::sendEvent(&tracked, &move);
    QCOMPARE(renderer.GetMaskImage().cacheKey(), picture);
    sendPlain(probe, QEvent::ZOrderChange);
    QVERIFY(renderer.GetMaskImage().cacheKey() != picture);
}

void tst_WidgetRenderer::changingTheFrameDrawsNothing()
{
    Stage stage;
    Probe* probe = stage.addProbe(1, QRect(0, 0, 30, 20));
    QWidget tracked;
    WidgetRenderer renderer(&tracked, nullptr);
    renderer.ChangeRendererFrame(WholeScreen);
    probe->show();
    renderer.ChangeRendererFrame(QRect(0, 0, 300, 200));
    QCOMPARE(pictureSize(renderer), WholeScreen.size());
    sendPlain(probe, QEvent::ZOrderChange);
    QCOMPARE(pictureSize(renderer), QSize(300, 200));
}

// What a picture has at each place, found pixel by pixel: the last widget in the list whose point comes to lie there.
void tst_WidgetRenderer::composesRandomWidgets()
{
    const qreal scale = qApp->devicePixelRatio();
    if (!qFuzzyCompare(scale, qRound(scale)))
        QSKIP("at a broken scale no unit has pixels of its own to compare");
    QRandomGenerator random(4711);
    for (int round = 0; round < 40; ++round) {
        Stage stage(QPoint(random.bounded(60), random.bounded(60)));
        QWidget tracked;
        WidgetRenderer renderer(&tracked, nullptr);
        renderer.ChangeRendererFrame(WholeScreen);
        std::vector<Probe*> probes;
        for (int number = 1; number <= 5; ++number) {
            probes.push_back(stage.addProbe(
                number, QRect(random.bounded(40), random.bounded(40), 5 + random.bounded(60), 5 + random.bounded(60))));
            probes.back()->show();
            QVERIFY(isTakenOver(probes.back()));
        }
        const QRect frame(0, 0, 60 + random.bounded(150), 60 + random.bounded(150));
        renderer.ChangeRendererFrame(frame);
        sendPlain(probes.front(), QEvent::ZOrderChange);
        QCOMPARE(pictureSize(renderer), frame.size());

        const QImage picture = renderer.GetMaskImage().toImage();
        const int ratio = qRound(picture.devicePixelRatio());
        for (int y = 0; y < frame.height(); ++y) {
            for (int x = 0; x < frame.width(); ++x) {
                QRgb expected = qRgb(0, 0, 0);
                for (size_t i = 0; i < probes.size(); ++i) {
                    const QPoint global = probes[i]->mapToGlobal(QPoint(0, 0));
                    const QPoint seenAt = global + probes[i]->pos();
                    if (seenAt.x() >= frame.width() || seenAt.y() >= frame.height())
                        continue;
                    // Drawing starts with the first point of the widget that the source rectangle, which begins at the
                    // widget's position, has.
                    const QPoint local = QPoint(x, y) - seenAt + probes[i]->pos();
                    const QSize drawn(qMin(probes[i]->width(), frame.width() - seenAt.x()),
                                      qMin(probes[i]->height(), frame.height() - seenAt.y()));
                    const bool inSource = local.x() >= probes[i]->x() && local.x() < probes[i]->x() + drawn.width() &&
                                          local.y() >= probes[i]->y() && local.y() < probes[i]->y() + drawn.height();
                    if (inSource && probes[i]->rect().contains(local))
                        expected = Probe::colorAt(int(i) + 1, local);
                }
                if (picture.pixel(x * ratio, y * ratio) != expected)
                    QFAIL(qPrintable(QStringLiteral("round %1, pixel %2, %3").arg(round).arg(x).arg(y)));
            }
        }
    }
}

// A widget's mask: the points of its frame on the screen that, read as the widget's own points, were not drawn.
void tst_WidgetRenderer::masksRandomWidgets()
{
    QRandomGenerator random(815);
    int partlyMasked = 0;
    for (int round = 0; round < 100; ++round) {
        // Partly left of and above the screen: only there does a mask leave anything of its widget visible.
        Stage stage(QPoint(random.bounded(-60, 30), random.bounded(-60, 30)));
        QWidget tracked;
        WidgetRenderer renderer(&tracked, nullptr);
        renderer.ChangeRendererFrame(AroundScreen);
        Probe* probe = stage.addProbe(
            1, QRect(random.bounded(50), random.bounded(50), 1 + random.bounded(60), 1 + random.bounded(60)));
        probe->show();
        QVERIFY(isTakenOver(probe));
        const QRect seen = seenRect(probe);
        const QRect source = probe->geometry();
        const QRegion mask = probe->mask();
        for (int y = -70; y < 160; y += 3) {
            for (int x = -70; x < 160; ++x)
                if (mask.contains(QPoint(x, y)) != (seen.contains(x, y) && !source.contains(x, y)))
                    QFAIL(qPrintable(QStringLiteral("round %1, pixel %2, %3").arg(round).arg(x).arg(y)));
        }
        partlyMasked += !mask.isEmpty() && mask.intersects(probe->rect());
    }
    QVERIFY(partlyMasked > 5);
}

// A widget lies in the picture at its place on the screen, not at its place in the frame. Kept so: applications draw
// the picture with this in mind.
void tst_WidgetRenderer::placesAreThoseOfTheScreen()
{
    Stage stage;
    Probe* probe = stage.addProbe(1, QRect(0, 0, 30, 20));
    QWidget tracked;
    WidgetRenderer renderer(&tracked, nullptr);
    const QRect frame(15, 10, 200, 150);
    renderer.ChangeRendererFrame(frame);
    probe->show();
    QCOMPARE(pictureSize(renderer), frame.size());
    const QPoint place = stage.mapToGlobal(QPoint(0, 0));
    QCOMPARE(pixel(renderer, place), Probe::colorAt(1, QPoint(0, 0)));
    QCOMPARE(pixel(renderer, place + QPoint(29, 19)), Probe::colorAt(1, QPoint(29, 19)));
    QCOMPARE(pixel(renderer, place + QPoint(30, 20)), qRgb(0, 0, 0));
    QCOMPARE(pixel(renderer, place - frame.topLeft()), qRgb(0, 0, 0));
}

void tst_WidgetRenderer::composesAtTwoDevicePixels()
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    if (environment.contains(QStringLiteral("QT_SCALE_FACTOR")))
        QSKIP("this is the run with two device pixels");
    environment.insert(QStringLiteral("QT_SCALE_FACTOR"), QStringLiteral("2"));
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QCoreApplication::applicationFilePath(),
                  {QStringLiteral("composesRandomWidgets"), QStringLiteral("fillsWithOpaqueBlack")});
    QVERIFY(process.waitForFinished(240000));
    const QByteArray output = process.readAll();
    QVERIFY2(process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0, output);
}

void tst_WidgetRenderer::fillsWithOpaqueBlack()
{
    Stage stage;
    Probe* probe = stage.addProbe(1, QRect(0, 0, 3, 2));
    QWidget tracked;
    WidgetRenderer renderer(&tracked, nullptr);
    renderer.ChangeRendererFrame(QRect(0, 0, 200, 100));
    probe->show();
    QCOMPARE(renderer.GetMaskImage().devicePixelRatio(), tracked.devicePixelRatioF());
    QCOMPARE(renderer.GetMaskImage().size(), QSize(200, 100) * tracked.devicePixelRatioF());
    QCOMPARE(pixel(renderer, QPoint(0, 0)), qRgba(0, 0, 0, 255));
    QCOMPARE(pixel(renderer, QPoint(199, 99)), qRgba(0, 0, 0, 255));
    QCOMPARE(pixel(renderer, stage.mapToGlobal(QPoint(2, 1))), Probe::colorAt(1, QPoint(2, 1)));
}

// A widget that came in by an event stands in the list twice, so that what it paints half transparent lies twice on
// itself. Kept so: existing pictures look like this.
void tst_WidgetRenderer::drawsEveryWidgetTwice()
{
    class Veil : public QWidget
    {
    public:
        using QWidget::QWidget;

    protected:
        void paintEvent(QPaintEvent*) override { QPainter(this).fillRect(rect(), QColor(255, 255, 255, 128)); }
    };
    Stage stage;
    Veil veil(&stage);
    veil.setGeometry(0, 0, 10, 10);
    QWidget tracked;
    WidgetRenderer renderer(&tracked, nullptr);
    renderer.ChangeRendererFrame(WholeScreen);
    veil.show();
    const int once = 128;
    const int twice = once + (255 - once) * 128 / 255;
    QVERIFY(qAbs(qRed(pixel(renderer, stage.mapToGlobal(QPoint(5, 5)))) - twice) <= 2);
}

void tst_WidgetRenderer::drawsNoChildren()
{
    Stage stage;
    Probe* outer = stage.addProbe(1, QRect(0, 0, 30, 20));
    Probe inner(2, outer);
    inner.setGeometry(0, 0, 30, 20);
    outer->show();
    QWidget tracked;
    WidgetRenderer renderer(&tracked, nullptr);
    renderer.ChangeRendererFrame(WholeScreen);
    sendShow(outer);
    QVERIFY(!isTakenOver(&inner));
    QCOMPARE(pixel(renderer, stage.mapToGlobal(QPoint(7, 6))), Probe::colorAt(1, QPoint(7, 6)));
}

void tst_WidgetRenderer::ignoresTheWidgetsOwnMask()
{
    Stage stage;
    Probe* probe = stage.addProbe(1, QRect(0, 0, 30, 20));
    probe->setMask(QRegion(0, 0, 1, 1));
    QWidget tracked;
    WidgetRenderer renderer(&tracked, nullptr);
    renderer.ChangeRendererFrame(WholeScreen);
    probe->show();
    QCOMPARE(pixel(renderer, stage.mapToGlobal(QPoint(7, 6))), Probe::colorAt(1, QPoint(7, 6)));
    QCOMPARE(probe->mask(), QRegion(seenRect(probe)).subtracted(probe->rect()));
}

void tst_WidgetRenderer::laterWidgetsLieOnTop()
{
    Stage stage;
    Probe* below = stage.addProbe(1, QRect(0, 0, 30, 20));
    Probe* above = stage.addProbe(2, QRect(0, 0, 30, 20));
    QWidget tracked;
    WidgetRenderer renderer(&tracked, nullptr);
    renderer.ChangeRendererFrame(WholeScreen);
    above->show();
    below->show();
    // By the order in which they came in, not by how they are stacked.
    QCOMPARE(pixel(renderer, stage.mapToGlobal(QPoint(7, 6))), Probe::colorAt(1, QPoint(7, 6)));
}

void tst_WidgetRenderer::skipsWhatLiesOutsideTheNewFrame()
{
    Stage stage;
    Probe* probe = stage.addProbe(1, QRect(0, 0, 30, 20));
    QWidget tracked;
    WidgetRenderer renderer(&tracked, nullptr);
    renderer.ChangeRendererFrame(WholeScreen);
    probe->show();
    const QRegion mask = probe->mask();
    renderer.ChangeRendererFrame(QRect(seenRect(probe).bottomRight() + QPoint(1, 1), QSize(50, 50)));
    sendPlain(probe, QEvent::ZOrderChange);
    QVERIFY(isTakenOver(probe));
    QCOMPARE(probe->mask(), mask);
    QCOMPARE(pictureSize(renderer), QSize(50, 50));
}

void tst_WidgetRenderer::redrawsOnEventsOfListedWidgets_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("paint") << int(QEvent::Paint);
    QTest::newRow("stacking") << int(QEvent::ZOrderChange);
    QTest::newRow("move") << int(QEvent::Move);
    QTest::newRow("resize") << int(QEvent::Resize);
    QTest::newRow("show") << int(QEvent::Show);
}

void tst_WidgetRenderer::redrawsOnEventsOfListedWidgets()
{
    QFETCH(int, type);
    // At the screen's origin nothing is cut out, so that the widget is painted in its window too.
    Stage stage(QPoint(0, 0));
    QVERIFY(QTest::qWaitForWindowExposed(&stage));
    Probe* probe = stage.addProbe(1, QRect(0, 0, 30, 20));
    Probe* other = stage.addProbe(2, QRect(0, 100, 30, 20));
    QWidget tracked;
    WidgetRenderer renderer(&tracked, nullptr);
    renderer.ChangeRendererFrame(WholeScreen);
    probe->show();
    other->show();
    QCoreApplication::processEvents();

    const qint64 picture = renderer.GetMaskImage().cacheKey();
    other->paints = 0;
    if (type == QEvent::Paint)
        probe->repaint();
    else if (type == QEvent::Move)
        probe->move(1, 1);
    else if (type == QEvent::Resize)
        probe->resize(31, 21);
    else if (type == QEvent::Show)
        sendShow(probe);
    else
        sendPlain(probe, QEvent::Type(type));
    if (type == QEvent::Paint)
        QTRY_VERIFY(renderer.GetMaskImage().cacheKey() != picture);
    else
        QVERIFY(renderer.GetMaskImage().cacheKey() != picture);
    QCOMPARE(other->paints, 2);
}

// Drawing a listed widget sends it a paint event, which the renderer sees like any other. Without a guard each of them
// would draw the whole list again, and so on.
void tst_WidgetRenderer::oneCauseDrawsOnce()
{
    Stage stage;
    QWidget tracked;
    WidgetRenderer renderer(&tracked, nullptr);
    renderer.ChangeRendererFrame(WholeScreen);
    std::vector<Probe*> probes;
    for (int i = 0; i < 12; ++i) {
        probes.push_back(stage.addProbe(i, QRect(20 * i, 0, 20, 20)));
        probes.back()->show();
        sendHide(probes.back());
        QVERIFY(!isTakenOver(probes.back()));
    }
    for (size_t i = 0; i < probes.size(); ++i) {
        for (Probe* probe : probes)
            probe->paints = 0;
        probes[i]->move(probes[i]->pos() + QPoint(0, 1));
        // Each picture draws every widget so far, and draws it twice.
        for (size_t j = 0; j < probes.size(); ++j)
            QCOMPARE(probes[j]->paints, j <= i ? 2 : 0);
    }
    for (Probe* probe : probes)
        probe->paints = 0;
    sendPlain(probes.front(), QEvent::ZOrderChange);
    for (const Probe* probe : probes)
        QCOMPARE(probe->paints, 2);
}

// A new mask exposes what lies behind the widget. Where that is a listed widget too, its paint event must not count as
// a change of its own.
void tst_WidgetRenderer::masksDoNotDrawAgain()
{
    SKIP_ON_WAYLAND("windows are not where the application wants them here");
    Stage stage(QPoint(-50, -50));
    QVERIFY(QTest::qWaitForWindowExposed(&stage));
    if (stage.pos() != QPoint(-50, -50))
        QSKIP("windows are kept on the screen here, whatever their flags are");
    Probe* outer = stage.addProbe(1, QRect(30, 20, 200, 100));
    Probe inner(3, outer);
    inner.setGeometry(100, 5, 10, 10);
    QWidget tracked;
    WidgetRenderer renderer(&tracked, nullptr);
    renderer.ChangeRendererFrame(AroundScreen);
    Probe* witness = stage.addProbe(2, QRect(0, 130, 10, 10));
    witness->show();
    outer->show();
    QVERIFY(isTakenOver(outer));
    QTRY_VERIFY(outer->paints > 0);
    processAllEvents();
    // The window goes on painting the place where the inner one lies.
    QVERIFY(outer->mask().contains(inner.geometry()));
    sendHide(&inner);

    class WindowPaints : public QObject
    {
    public:
        int count = 0;
        bool eventFilter(QObject*, QEvent* event) override
        {
            count += event->type() == QEvent::UpdateRequest;
            return false;
        }
    } windowPaints;
    stage.installEventFilter(&windowPaints);
    for (int step = 1; step <= 3; ++step) {
        outer->paints = 0;
        witness->paints = 0;
        windowPaints.count = 0;
        inner.move(100 + step, 5);
        QVERIFY(isTakenOver(&inner));
        processAllEvents();
        QVERIFY(windowPaints.count > 0);
        QVERIFY(outer->paints > 2); // by the picture, and by its window
        QCOMPARE(witness->paints, 2);
    }
}

// A widget cannot be drawn elsewhere within its own paint event. It must not stay blank on the screen for it.
void tst_WidgetRenderer::paintedWidgetIsPaintedAndDrawn()
{
    Stage stage(QPoint(0, 0));
    QVERIFY(QTest::qWaitForWindowExposed(&stage));
    Probe* probe = stage.addProbe(1, QRect(0, 0, 30, 20));
    QWidget tracked;
    WidgetRenderer renderer(&tracked, nullptr);
    renderer.ChangeRendererFrame(WholeScreen);
    probe->show();
    QVERIFY(isTakenOver(probe));
    processAllEvents();

    probe->setNumber(9);
    probe->paints = 0;
    probe->update();
    processAllEvents();
    QCOMPARE(pixel(renderer, QPoint(7, 6)), Probe::colorAt(9, QPoint(7, 6)));
    QCOMPARE(probe->paints, 3); // by its window once, by the picture twice
}

void tst_WidgetRenderer::changeWhilePaintingIsDrawnOnceMore()
{
    Stage stage;
    Probe* mover = stage.addProbe(1, QRect(0, 0, 20, 20));
    Probe* moved = stage.addProbe(2, QRect(0, 50, 20, 20));
    QWidget tracked;
    WidgetRenderer renderer(&tracked, nullptr);
    renderer.ChangeRendererFrame(WholeScreen);
    moved->show();
    mover->show();
    mover->whilePainting = [&] { moved->move(0, 60); };
    moved->paints = 0;
    sendPlain(mover, QEvent::ZOrderChange);
    QCOMPARE(moved->paints, 4);
    // Its part of the picture starts where it lies now.
    QCOMPARE(pixel(renderer, seenRect(mover).topLeft()), Probe::colorAt(1, QPoint(0, 0)));
}

void tst_WidgetRenderer::restlessPaintHandlerEnds()
{
    Stage stage;
    Probe* probe = stage.addProbe(1, QRect(0, 0, 20, 20));
    QWidget tracked;
    WidgetRenderer renderer(&tracked, nullptr);
    renderer.ChangeRendererFrame(WholeScreen);
    probe->show();
    probe->whilePainting = [&] { probe->move(probe->x() == 0 ? 1 : 0, 0); };
    probe->paints = 0;
    sendPlain(probe, QEvent::ZOrderChange);
    QCOMPARE(probe->paints, 4);
    QVERIFY(isTakenOver(probe));
}

void tst_WidgetRenderer::hidingWhilePaintingLeaves()
{
    Stage stage;
    Probe* hiding = stage.addProbe(1, QRect(0, 0, 20, 20));
    Probe* hidden = stage.addProbe(2, QRect(0, 50, 20, 20));
    QWidget tracked;
    WidgetRenderer renderer(&tracked, nullptr);
    renderer.ChangeRendererFrame(WholeScreen);
    hiding->show();
    hidden->show();
    hiding->whilePainting = [&] { hidden->hide(); };
    sendPlain(hiding, QEvent::ZOrderChange);
    QVERIFY(!isTakenOver(hidden));
    QVERIFY(hidden->mask().isEmpty());

    // A widget that hides itself while it is drawn must not be masked after it has left.
    hidden->show();
    QVERIFY(!isTakenOver(hidden)); // hidden again by the other one
    hiding->whilePainting = [&] { hiding->hide(); };
    sendPlain(hiding, QEvent::ZOrderChange);
    QVERIFY(!isTakenOver(hiding));
    QVERIFY(hiding->mask().isEmpty());
    QVERIFY(renderer.GetMaskImage().isNull());
}

void tst_WidgetRenderer::leavesByEvent_data()
{
    QTest::addColumn<QString>("way");
    for (const char* way :
         {"hide", "close", "hide event", "close event", "parent hidden", "moved out", "grown out", "shown outside"})
        QTest::newRow(way) << QString::fromLatin1(way);
}

void tst_WidgetRenderer::leavesByEvent()
{
    QFETCH(QString, way);
    Stage stage;
    Probe* probe = stage.addProbe(1, QRect(0, 0, 30, 20));
    QWidget tracked;
    WidgetRenderer renderer(&tracked, nullptr);
    renderer.ChangeRendererFrame(QRect(0, 0, 200, 200));
    probe->show();
    QVERIFY(isTakenOver(probe));
    QVERIFY(!probe->mask().isEmpty());

    if (way == QLatin1String("hide")) {
        probe->hide();
    } else if (way == QLatin1String("close")) {
        probe->close();
    } else if (way == QLatin1String("hide event")) {
        sendHide(probe);
    } else if (way == QLatin1String("close event")) {
        QCloseEvent close;
        QCoreApplication::sendEvent(probe, &close);
    } else if (way == QLatin1String("parent hidden")) {
        stage.hide();
    } else if (way == QLatin1String("moved out")) {
        probe->move(190, 0);
    } else if (way == QLatin1String("grown out")) {
        probe->resize(201, 20);
    } else {
        renderer.ChangeRendererFrame(QRect(0, 0, 5, 5));
        sendShow(probe);
    }
    QVERIFY(!isTakenOver(probe));
    QVERIFY(probe->mask().isEmpty());
    QVERIFY(renderer.GetMaskImage().isNull());

    // Out of the list, both entries of it: what happens to it now draws nothing.
    const int paints = probe->paints;
    sendPlain(probe, QEvent::ZOrderChange);
    QCOMPARE(probe->paints, paints);
    QVERIFY(renderer.GetMaskImage().isNull());
}

void tst_WidgetRenderer::leavesWhenPartlyOutside()
{
    Stage stage;
    Probe* probe = stage.addProbe(1, QRect(0, 0, 30, 20));
    QWidget tracked;
    WidgetRenderer renderer(&tracked, nullptr);
    renderer.ChangeRendererFrame(QRect(seenRect(probe).topLeft(), QSize(60, 60)));
    probe->show();
    QVERIFY(isTakenOver(probe));
    probe->move(15, 20); // counted twice by the widget's mapping: exactly at the edge
    QVERIFY(isTakenOver(probe));
    probe->move(16, 20);
    QVERIFY(!isTakenOver(probe));
    probe->move(15, 20);
    QVERIFY(isTakenOver(probe));
}

void tst_WidgetRenderer::leavingKeepsTheOthers()
{
    Stage stage;
    Probe* first = stage.addProbe(1, QRect(0, 0, 30, 20));
    Probe* second = stage.addProbe(2, QRect(0, 0, 10, 10));
    QWidget tracked;
    WidgetRenderer renderer(&tracked, nullptr);
    renderer.ChangeRendererFrame(WholeScreen);
    first->show();
    second->show();
    QCOMPARE(pixel(renderer, stage.mapToGlobal(QPoint(3, 4))), Probe::colorAt(2, QPoint(3, 4)));
    first->paints = 0;
    second->hide();
    QCOMPARE(first->paints, 2);
    QVERIFY(isTakenOver(first));
    QCOMPARE(pixel(renderer, stage.mapToGlobal(QPoint(3, 4))), Probe::colorAt(1, QPoint(3, 4)));
}

// What was never taken over has nothing to be taken back, and may have a mask of the application's.
void tst_WidgetRenderer::othersKeepTheirMasks()
{
    Stage stage;
    Probe* probe = stage.addProbe(1, QRect(0, 0, 30, 20));
    const QRegion mask(2, 3, 10, 10);
    probe->setMask(mask);
    probe->setAttribute(Qt::WA_MouseNoMask, true);
    QWidget tracked;
    WidgetRenderer renderer(&tracked, nullptr);
    renderer.ChangeRendererFrame(QRect(seenRect(probe).topLeft(), QSize(29, 20))); // a pixel too narrow
    probe->show();
    probe->move(1, 1);
    probe->resize(31, 21);
    sendPlain(probe, QEvent::ZOrderChange);
    probe->close();
    sendHide(probe);
    QCOMPARE(probe->mask(), mask);
    QVERIFY(probe->testAttribute(Qt::WA_MouseNoMask));
    QVERIFY(renderer.GetMaskImage().isNull());
}

void tst_WidgetRenderer::invalidFrameThrows_data()
{
    QTest::addColumn<QRect>("frame");
    QTest::newRow("null") << QRect();
    QTest::newRow("no width") << QRect(0, 0, 0, 10);
    QTest::newRow("no height") << QRect(0, 0, 10, 0);
    QTest::newRow("negative") << QRect(0, 0, -5, -5);
}

void tst_WidgetRenderer::invalidFrameThrows()
{
    QFETCH(QRect, frame);
    Stage stage;
    Probe* probe = stage.addProbe(1, QRect(0, 0, 30, 20));
    QWidget tracked;
    WidgetRenderer renderer(&tracked, nullptr);
    renderer.ChangeRendererFrame(WholeScreen);
    probe->show();
    renderer.ChangeRendererFrame(frame);
    try {
        sendPlain(probe, QEvent::ZOrderChange);
        QFAIL("nothing was thrown");
    } catch (const std::invalid_argument& error) {
        QVERIFY(QByteArray(error.what()).startsWith("rendererRect is invalid\n"));
        const auto* decorated = dynamic_cast<const boost::exception*>(&error);
        QVERIFY(decorated);
        const char* const* function = boost::get_error_info<boost::throw_function>(*decorated);
        QVERIFY(function && QByteArray(*function).contains("WidgetRenderer::CreateMaskImageForRect("));
    }
    renderer.ChangeRendererFrame(WholeScreen);
}

void tst_WidgetRenderer::worksAgainAfterThrow()
{
    Stage stage;
    Probe* probe = stage.addProbe(1, QRect(0, 0, 30, 20));
    QWidget tracked;
    WidgetRenderer renderer(&tracked, nullptr);
    renderer.ChangeRendererFrame(WholeScreen);
    probe->show();
    renderer.ChangeRendererFrame(QRect());
    QVERIFY_EXCEPTION_THROWN(sendPlain(probe, QEvent::ZOrderChange), std::invalid_argument);
    QVERIFY_EXCEPTION_THROWN(sendPlain(probe, QEvent::ZOrderChange), std::invalid_argument);
    renderer.ChangeRendererFrame(QRect(0, 0, 123, 45));
    probe->paints = 0;
    sendPlain(probe, QEvent::ZOrderChange);
    QCOMPARE(pictureSize(renderer), QSize(123, 45));
    QCOMPARE(probe->paints, 2);
}

void tst_WidgetRenderer::hideLeavesAlthoughItThrows()
{
    Stage stage;
    Probe* probe = stage.addProbe(1, QRect(0, 0, 30, 20));
    QWidget tracked;
    WidgetRenderer renderer(&tracked, nullptr);
    renderer.ChangeRendererFrame(WholeScreen);
    probe->show();
    renderer.ChangeRendererFrame(QRect());
    QVERIFY_EXCEPTION_THROWN(sendHide(probe), std::invalid_argument);
    QVERIFY(!isTakenOver(probe));
    QVERIFY(probe->mask().isEmpty());
    sendPlain(probe, QEvent::ZOrderChange); // no longer listed: throws nothing
}

void tst_WidgetRenderer::forgetsDeletedWidgets()
{
    SKIP_ON_WAYLAND("windows are not where the application wants them here");
    Stage stage;
    Probe* first = stage.addProbe(1, QRect(0, 0, 30, 20));
    auto second = std::make_unique<Probe>(2, &stage);
    second->setGeometry(0, 0, 10, 10);
    QWidget tracked;
    WidgetRenderer renderer(&tracked, nullptr);
    renderer.ChangeRendererFrame(WholeScreen);
    first->show();
    second->show();
    const QPoint both = stage.mapToGlobal(QPoint(3, 4));
    QCOMPARE(pixel(renderer, both), Probe::colorAt(2, QPoint(3, 4)));
    first->paints = 0;
    second.reset();
    // Nothing is painted from within a destructor.
    QCOMPARE(first->paints, 0);
    QTRY_COMPARE(pixel(renderer, both), Probe::colorAt(1, QPoint(3, 4)));
    QCOMPARE(first->paints, 2);

    delete first;
    QVERIFY(renderer.GetMaskImage().isNull());
    QCoreApplication::processEvents();
    QVERIFY(renderer.GetMaskImage().isNull());
}

void tst_WidgetRenderer::forgetsDeletedWindow()
{
    auto stage = std::make_unique<Stage>();
    QWidget tracked;
    WidgetRenderer renderer(&tracked, nullptr);
    renderer.ChangeRendererFrame(WholeScreen);
    for (int i = 0; i < 5; ++i)
        stage->addProbe(i, QRect(20 * i, 0, 20, 20))->show();
    sendShow(stage.get());
    QVERIFY(!renderer.GetMaskImage().isNull());
    stage.reset();
    QCoreApplication::processEvents();
    QVERIFY(renderer.GetMaskImage().isNull());
}

void tst_WidgetRenderer::deletedWindowPaintsNothingFromItsDestructor_data()
{
    QTest::addColumn<WindowMaker>("make");
    QTest::newRow("a plain window") << WindowMaker([] {
        auto window = std::make_unique<QWidget>(nullptr, Unmanaged);
        window->setGeometry(40, 30, 100, 100);
        return windowWithPlace(std::move(window));
    });
    QTest::newRow("a window") << WindowMaker([] { return windowWithPlace(std::make_unique<Stage>()); });
    QTest::newRow("a dialog") << WindowMaker([] { return windowWithPlace(std::make_unique<Dialog>()); });
    QTest::newRow("a dialog of a window") << WindowMaker([] {
        auto owner = std::make_unique<Stage>();
        auto* dialog = new Dialog(owner.get());
        return std::make_pair(std::unique_ptr<QWidget>(std::move(owner)), static_cast<QWidget*>(dialog));
    });
}

// A window that is deleted while it is seen hides what lies in it, one by one, out of its destructor. What a paint
// handler asks its window for is gone by then.
void tst_WidgetRenderer::deletedWindowPaintsNothingFromItsDestructor()
{
    SKIP_ON_WAYLAND("windows are not where the application wants them here");
    QFETCH(WindowMaker, make);
    Stage stays;
    Probe* survivor = stays.addProbe(1, QRect(0, 0, 30, 20));
    auto [window, place] = make();
    Probe* first = probeIn(place, 2, QRect(0, 0, 10, 10));
    Probe* second = probeIn(place, 3, QRect(12, 0, 10, 10));
    place->show();
    QWidget tracked;
    WidgetRenderer renderer(&tracked, nullptr);
    renderer.ChangeRendererFrame(WholeScreen);
    int paints = 0;
    for (Probe* probe : {survivor, first, second}) {
        probe->hide();
        probe->show();
        QVERIFY(isTakenOver(probe));
        probe->whilePainting = [&paints] { ++paints; };
    }
    const QPoint both = stays.mapToGlobal(QPoint(3, 4));
    QCOMPARE(pixel(renderer, both), Probe::colorAt(2, QPoint(3, 4)));

    paints = 0;
    window.reset();
    QCOMPARE(paints, 0);
    QTRY_COMPARE(pixel(renderer, both), Probe::colorAt(1, QPoint(3, 4)));
    QVERIFY(paints > 0);
}

// What lies in it is taken over before the window is all that it will be.
void tst_WidgetRenderer::windowShownByItsBaseClassIsAliveWhenItHides()
{
    SKIP_ON_WAYLAND("windows are not where the application wants them here");
    class EarlyDialog : public Dialog
    {
    public:
        EarlyDialog() { show(); }
        Probe* probe = probeIn(this, 1, QRect(0, 0, 10, 10));
    };
    class LateDialog : public EarlyDialog
    {
    };

    QWidget tracked;
    WidgetRenderer renderer(&tracked, nullptr);
    renderer.ChangeRendererFrame(WholeScreen);
    LateDialog dialog;
    QVERIFY(isTakenOver(dialog.probe));
    QVERIFY(!renderer.GetMaskImage().isNull());
    Stage stays;
    Probe* witness = stays.addProbe(2, QRect(0, 0, 30, 20));
    witness->show();
    witness->paints = 0;
    dialog.hide();
    QVERIFY(!isTakenOver(dialog.probe));
    QVERIFY(witness->paints > 0);
}

void tst_WidgetRenderer::deletedWindowThrowsNothing_data()
{
    deletedWindowPaintsNothingFromItsDestructor_data();
}

// What is thrown out of a destructor ends the program.
void tst_WidgetRenderer::deletedWindowThrowsNothing()
{
    QFETCH(WindowMaker, make);
    auto [window, place] = make();
    Probe* probe = probeIn(place, 1, QRect(0, 0, 10, 10));
    place->show();
    QWidget tracked;
    WidgetRenderer renderer(&tracked, nullptr);
    renderer.ChangeRendererFrame(WholeScreen);
    probe->hide();
    probe->show();
    QVERIFY(isTakenOver(probe));
    renderer.ChangeRendererFrame(QRect());
    window.reset();
    QVERIFY(renderer.GetMaskImage().isNull());
    QCoreApplication::processEvents();
    QVERIFY(renderer.GetMaskImage().isNull());
}

void tst_WidgetRenderer::widgetMayDeleteItselfWhilePainted()
{
    Stage stage;
    Probe* probe = stage.addProbe(1, QRect(0, 0, 30, 20));
    Probe* other = stage.addProbe(2, QRect(0, 0, 10, 10));
    QWidget tracked;
    WidgetRenderer renderer(&tracked, nullptr);
    renderer.ChangeRendererFrame(WholeScreen);
    probe->show();
    other->show();
    // Qt itself does not survive a widget that is deleted within its own paint event; a deferred deletion is its end.
    const QPointer<Probe> alive(probe);
    probe->whilePainting = [&] { probe->deleteLater(); };
    sendPlain(other, QEvent::ZOrderChange);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!alive);
    QTRY_COMPARE(pixel(renderer, stage.mapToGlobal(QPoint(20, 15))), qRgb(0, 0, 0));
    QCOMPARE(pixel(renderer, stage.mapToGlobal(QPoint(3, 4))), Probe::colorAt(2, QPoint(3, 4)));
}

void tst_WidgetRenderer::widgetMayDeleteOthersWhilePainted()
{
    Stage stage;
    Probe* before = stage.addProbe(1, QRect(0, 0, 30, 20));
    Probe* deleting = stage.addProbe(2, QRect(0, 0, 10, 10));
    Probe* after = stage.addProbe(3, QRect(0, 50, 30, 20));
    QWidget tracked;
    WidgetRenderer renderer(&tracked, nullptr);
    renderer.ChangeRendererFrame(WholeScreen);
    for (Probe* probe : {before, deleting, after})
        probe->show();
    const QRect afterSeen = seenRect(after);
    deleting->whilePainting = [&] {
        delete std::exchange(before, nullptr);
        delete std::exchange(after, nullptr);
    };
    // The event of a widget that is gone when the picture is drawn ends with it.
    sendPlain(before, QEvent::ZOrderChange);
    QVERIFY(!before && !after);
    QCOMPARE(pixel(renderer, stage.mapToGlobal(QPoint(3, 4))), Probe::colorAt(2, QPoint(3, 4)));
    QCOMPARE(pixel(renderer, stage.mapToGlobal(QPoint(20, 15))), qRgb(0, 0, 0));
    QCOMPARE(pixel(renderer, afterSeen.center()), qRgb(0, 0, 0));
}

void tst_WidgetRenderer::rendererMayBeDeletedWhilePainting()
{
    Stage stage;
    Probe* first = stage.addProbe(1, QRect(0, 0, 30, 20));
    Probe* second = stage.addProbe(2, QRect(0, 50, 30, 20));
    QWidget tracked;
    auto renderer = std::make_unique<WidgetRenderer>(&tracked, nullptr);
    renderer->ChangeRendererFrame(WholeScreen);
    first->show();
    second->show();
    first->whilePainting = [&] { renderer.reset(); };
    second->paints = 0;
    sendPlain(first, QEvent::ZOrderChange);
    QVERIFY(!renderer);
    QCOMPARE(second->paints, 0);
}

void tst_WidgetRenderer::trackedWidgetMayBeDeleted()
{
    Stage stage;
    Probe* probe = stage.addProbe(1, QRect(0, 0, 30, 20));
    auto tracked = std::make_unique<QWidget>();
    tracked->setGeometry(WholeScreen);
    WidgetRenderer renderer(tracked.get(), nullptr);
    sendPlain(tracked.get(), QEvent::ZOrderChange);
    tracked.reset();
    probe->show();
    QVERIFY(isTakenOver(probe));
    QCOMPARE(pictureSize(renderer), WholeScreen.size());
    renderer.ChangeRendererFrame(QRect(0, 0, 90, 80));
    sendPlain(probe, QEvent::ZOrderChange);
    QCOMPARE(pictureSize(renderer), QSize(90, 80));
}

void tst_WidgetRenderer::keepsMasksWhenDeleted()
{
    Stage stage;
    Probe* probe = stage.addProbe(1, QRect(0, 0, 30, 20));
    QWidget tracked;
    auto renderer = std::make_unique<WidgetRenderer>(&tracked, nullptr);
    renderer->ChangeRendererFrame(WholeScreen);
    probe->show();
    const QRegion mask = probe->mask();
    QVERIFY(!mask.isEmpty());
    renderer.reset();
    QVERIFY(isTakenOver(probe));
    QCOMPARE(probe->mask(), mask);
    Probe* later = stage.addProbe(2, QRect(0, 0, 30, 20));
    later->show();
    QVERIFY(!isTakenOver(later));
}

QTEST_MAIN(tst_WidgetRenderer)
#include "tst_WidgetRenderer.moc"
