#include <KQt/Ui/HighlightFrame.h>

#include "support/AllEventTypes.h"
#include "support/EventRecorder.h"
#include "support/Render.h"

#include <QDialog>
#include <QMetaMethod>
#include <QMouseEvent>
#include <QPointer>
#include <QRandomGenerator>
#include <QScrollArea>
#include <QScrollBar>
#include <QtTest>
#include <QWindow>

#include <memory>
#include <utility>

using Kestrel::Gui::HighlightFrame;

namespace {

/// What a frame reported, in order: "geometry", "shown", "hidden".
class FrameRecorder : public QObject
{
public:
    explicit FrameRecorder(HighlightFrame* frame)
    {
        connect(frame, &HighlightFrame::geometryChanged, this, [this](QRect geometry) {
            reports << QStringLiteral("geometry");
            geometries << geometry;
        });
        connect(frame, &HighlightFrame::visibilityChanged, this,
                [this](bool visible) { reports << (visible ? QStringLiteral("shown") : QStringLiteral("hidden")); });
    }

    void clear()
    {
        reports.clear();
        geometries.clear();
    }

    QStringList reports;
    QList<QRect> geometries;
};

/// A shown window of 400 x 300 with two widgets in it.
class Fixture
{
public:
    Fixture()
    {
        window.resize(400, 300);
        first->setGeometry(10, 10, 100, 30);
        second->setGeometry(200, 150, 60, 40);
        window.show();
        [[maybe_unused]] const bool exposed = QTest::qWaitForWindowExposed(&window);
    }

    QWidget window;
    QPointer<QWidget> first = new QWidget(&window);
    QPointer<QWidget> second = new QWidget(&window);
};

/// The same from global corners, pixel by pixel wider: each widget's pixels grown by three on every side.
QRect independentRect(const QList<QWidget*>& widgets, const QWidget* host)
{
    int left = INT_MAX;
    int top = INT_MAX;
    int right = INT_MIN;
    int bottom = INT_MIN;
    for (const QWidget* widget : widgets) {
        if (!widget->isVisibleTo(host))
            continue;
        const QPoint from = host->mapFromGlobal(widget->mapToGlobal(QPoint(0, 0)));
        left = qMin(left, from.x() - 3);
        top = qMin(top, from.y() - 3);
        right = qMax(right, from.x() + widget->width() + 3);
        bottom = qMax(bottom, from.y() + widget->height() + 3);
    }
    left = qMax(left, 0);
    top = qMax(top, 0);
    right = qMin(right, host->width());
    bottom = qMin(bottom, host->height());
    return left < right && top < bottom ? QRect(left, top, right - left, bottom - top) : QRect();
}

bool isOnTop(const QWidget* child)
{
    return child->parentWidget()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly).last() == child;
}

} // namespace

class tst_HighlightFrame : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qRegisterMetaType<QSet<QWidget*>>(); }
    void cleanup();

    void metaObject();
    void exampleGeometry();
    void singleWidgetsHostIsItsParent();
    void setsHostIsTheirWindow();
    void hostOfASetStopsAtWindowFlags_data();
    void hostOfASetStopsAtWindowFlags();
    void windowAsItsOwnTarget();
    void withoutHostNothingHappens();
    void nullEntriesAreLeftOut();
    void placedOnceTheEventLoopRuns();
    void firstReportsInOrder();
    void firstRectangleEqualToTheDefaultIsReported();
    void followsMoveAndResize();
    void followsShowAndHide();
    void followsAContainer();
    void followsScrolling();
    void forgottenContainersAreNotWatched();
    void cutAtTheHost();
    void hostMadeSmallerAndLarger();
    void sameGeometryIsNotReportedAgain();
    void allHiddenIsReportedAndTheFrameStays();
    void shownAgainAfterAllWereHidden();
    void outsideTheHostNothingHappens();
    void widgetsWithoutExtent();
    void hiddenFrameIsShownAgain();
    void randomGeometry();
    void raisedByButtons_data();
    void raisedByButtons();
    void otherEventsDoNotRaise();
    void nothingIsConsumed();
    void clicksGoThrough();
    void paintsNothingByItself();
    void styleSheetGivesTheLook();
    void deletedWidgetCountsAsHidden();
    void lastWidgetDeleted();
    void deletedBeforeTheFirstPlacement();
    void nestedTargetsDeletedWithTheirContainer();
    void hostDeleted();
    void hostDeletedAfterTheFrameWasTakenOut();
    void frameDeletedLeavesTheWidgetsAlone();
    void deletedInASlot_data();
    void deletedInASlot();
    void deletedInASlotWhileShowing_data() { deletedInASlot_data(); }
    void deletedInASlotWhileShowing();
    void deletedInASlotWhenHidden();
    void movedInASlot();
    void windowsOfTheirOwn();
    void movedToAnotherWindow();
    void movedIntoAnotherContainer();
    void targetsDialogInsideTheHost();
};

void tst_HighlightFrame::cleanup()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_HighlightFrame::metaObject()
{
    const QMetaObject& metaObject = HighlightFrame::staticMetaObject;
    QCOMPARE(metaObject.className(), "Kestrel::Gui::HighlightFrame");
    QCOMPARE(metaObject.superClass(), &QFrame::staticMetaObject);
    QCOMPARE(metaObject.methodCount() - metaObject.methodOffset(), 3);
    const QMetaMethod geometry = metaObject.method(metaObject.methodOffset());
    QCOMPARE(geometry.methodType(), QMetaMethod::Signal);
    QCOMPARE(geometry.methodSignature(), QByteArray("geometryChanged(QRect)"));
    QCOMPARE(geometry.parameterNames(), QList<QByteArray>({"newGeometry"}));
    const QMetaMethod visibility = metaObject.method(metaObject.methodOffset() + 1);
    QCOMPARE(visibility.methodType(), QMetaMethod::Signal);
    QCOMPARE(visibility.methodSignature(), QByteArray("visibilityChanged(bool)"));
    QCOMPARE(visibility.parameterNames(), QList<QByteArray>({"newVisibility"}));
    const QMetaMethod track = metaObject.method(metaObject.methodOffset() + 2);
    QCOMPARE(track.methodType(), QMetaMethod::Slot);
    QCOMPARE(track.methodSignature(), QByteArray("trackWidgets()"));
    QCOMPARE(track.access(), QMetaMethod::Private);
    QCOMPARE(metaObject.propertyCount(), metaObject.propertyOffset());
}

void tst_HighlightFrame::exampleGeometry()
{
    Fixture f;
    auto* frame = new HighlightFrame(f.first);
    QTRY_VERIFY(frame->isVisible());
    QCOMPARE(frame->geometry(), QRect(QPoint(7, 7), QPoint(112, 42)));
    QCOMPARE(frame->size(), QSize(106, 36));
}

void tst_HighlightFrame::singleWidgetsHostIsItsParent()
{
    Fixture f;
    auto* inner = new QWidget(f.first);
    inner->setGeometry(20, 5, 30, 10);
    inner->show();
    auto* frame = new HighlightFrame(inner);
    QCOMPARE(frame->parentWidget(), f.first.data());
    QVERIFY(!frame->isWindow());
    QTRY_COMPARE(frame->geometry(), QRect(17, 2, 36, 16));
}

void tst_HighlightFrame::setsHostIsTheirWindow()
{
    Fixture f;
    auto* inner = new QWidget(f.first);
    inner->setGeometry(20, 5, 30, 10);
    inner->show();
    auto* frame = new HighlightFrame(QSet<QWidget*>{inner});
    QCOMPARE(frame->parentWidget(), &f.window);
    QVERIFY(!frame->isWindow());
    QTRY_COMPARE(frame->geometry(), QRect(27, 12, 36, 16));
}

void tst_HighlightFrame::hostOfASetStopsAtWindowFlags_data()
{
    QTest::addColumn<int>("flags");
    QTest::addColumn<bool>("stops");
    QTest::newRow("plain child") << int(Qt::Widget) << false;
    QTest::newRow("sub-window inside") << int(Qt::SubWindow) << false;
    QTest::newRow("window") << int(Qt::Window) << true;
    QTest::newRow("dialog") << int(Qt::Dialog) << true;
    QTest::newRow("popup") << int(Qt::Popup) << true;
    QTest::newRow("tool") << int(Qt::Tool) << true;
}

void tst_HighlightFrame::hostOfASetStopsAtWindowFlags()
{
    QFETCH(int, flags);
    QFETCH(bool, stops);
    QWidget window;
    auto* between = new QWidget(&window, Qt::WindowFlags(flags));
    auto* target = new QWidget(between);
    auto* frame = new HighlightFrame(QSet<QWidget*>{target});
    QCOMPARE(frame->parentWidget(), stops ? between : &window);
}

void tst_HighlightFrame::windowAsItsOwnTarget()
{
    Fixture f;
    auto* frame = new HighlightFrame(QSet<QWidget*>{&f.window});
    QCOMPARE(frame->parentWidget(), &f.window);
    QTRY_VERIFY(frame->isVisible());
    QCOMPARE(frame->geometry(), f.window.rect());
}

void tst_HighlightFrame::withoutHostNothingHappens()
{
    QWidget alone;
    alone.resize(100, 50);
    alone.show();
    QVERIFY(QTest::qWaitForWindowExposed(&alone));
    const std::unique_ptr<HighlightFrame> frames[] = {
        std::make_unique<HighlightFrame>(static_cast<QWidget*>(nullptr)), std::make_unique<HighlightFrame>(&alone),
        std::make_unique<HighlightFrame>(QSet<QWidget*>()), std::make_unique<HighlightFrame>(QSet<QWidget*>{nullptr})};
    for (const auto& frame : frames) {
        const FrameRecorder recorder(frame.get());
        const QRect geometry = frame->geometry();
        QCoreApplication::processEvents();
        QVERIFY(QMetaObject::invokeMethod(frame.get(), "trackWidgets"));
        alone.resize(alone.width() + 1, 50);
        QMoveEvent move(QPoint(1, 1), QPoint(0, 0));
        QVERIFY(!frame->eventFilter(&alone, &move));
        QCoreApplication::processEvents();
        QVERIFY(!frame->parentWidget());
        QVERIFY(!frame->isVisible());
        QVERIFY(!frame->testAttribute(Qt::WA_TransparentForMouseEvents));
        QCOMPARE(frame->geometry(), geometry);
        QVERIFY(recorder.reports.isEmpty());
    }
}

void tst_HighlightFrame::nullEntriesAreLeftOut()
{
    Fixture f;
    auto* frame = new HighlightFrame(QSet<QWidget*>{nullptr, f.first});
    QCOMPARE(frame->parentWidget(), &f.window);
    QTRY_COMPARE(frame->geometry(), QRect(7, 7, 106, 36));
}

void tst_HighlightFrame::placedOnceTheEventLoopRuns()
{
    Fixture f;
    auto* frame = new HighlightFrame(f.first);
    const FrameRecorder recorder(frame);
    QVERIFY(!frame->isVisible());
    QVERIFY(recorder.reports.isEmpty());
    QCoreApplication::processEvents();
    QVERIFY(frame->isVisible());
    QVERIFY(isOnTop(frame));
}

void tst_HighlightFrame::firstReportsInOrder()
{
    Fixture f;
    auto* frame = new HighlightFrame(f.first);
    const FrameRecorder recorder(frame);
    bool visibleAtGeometry = true;
    bool visibleAtShown = false;
    const QObject listener; // no longer than what it writes to
    connect(frame, &HighlightFrame::geometryChanged, &listener, [&](QRect geometry) {
        QCOMPARE(frame->geometry(), geometry);
        visibleAtGeometry = frame->isVisible();
    });
    connect(frame, &HighlightFrame::visibilityChanged, &listener, [&] { visibleAtShown = frame->isVisible(); });
    QTRY_COMPARE(recorder.reports, QStringList({QStringLiteral("geometry"), QStringLiteral("shown")}));
    QCOMPARE(recorder.geometries, QList<QRect>({QRect(7, 7, 106, 36)}));
    QVERIFY(!visibleAtGeometry);
    QVERIFY(visibleAtShown);
}

void tst_HighlightFrame::firstRectangleEqualToTheDefaultIsReported()
{
    // A hint is placed by the first report, so that must come even where nothing changes.
    QWidget window;
    window.resize(700, 600);
    QWidget target(&window);
    auto* frame = new HighlightFrame(&target);
    const QRect fresh = frame->geometry();
    target.setGeometry(fresh.adjusted(3, 3, -3, -3));
    window.resize(fresh.size());
    target.setGeometry(fresh);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    window.resize(fresh.size());

    auto* late = new HighlightFrame(&target);
    QCOMPARE(late->geometry(), fresh);
    const FrameRecorder recorder(late);
    QTRY_COMPARE(recorder.reports, QStringList({QStringLiteral("geometry"), QStringLiteral("shown")}));
    QCOMPARE(recorder.geometries, QList<QRect>({fresh}));
}

void tst_HighlightFrame::followsMoveAndResize()
{
    Fixture f;
    auto* frame = new HighlightFrame(QSet<QWidget*>{f.first, f.second});
    QTRY_VERIFY(frame->isVisible());
    QCOMPARE(frame->geometry(), QRect(QPoint(7, 7), QPoint(262, 192)));
    FrameRecorder recorder(frame);
    f.second->move(210, 150);
    QCOMPARE(frame->geometry(), QRect(QPoint(7, 7), QPoint(272, 192)));
    f.second->resize(60, 50);
    QCOMPARE(frame->geometry(), QRect(QPoint(7, 7), QPoint(272, 202)));
    f.first->move(40, 20);
    QCOMPARE(frame->geometry(), QRect(QPoint(37, 17), QPoint(272, 202)));
    QCOMPARE(recorder.reports,
             QStringList({QStringLiteral("geometry"), QStringLiteral("geometry"), QStringLiteral("geometry")}));
    QCOMPARE(recorder.geometries.last(), frame->geometry());
}

void tst_HighlightFrame::followsShowAndHide()
{
    Fixture f;
    f.first->hide();
    auto* frame = new HighlightFrame(QSet<QWidget*>{f.first, f.second});
    QTRY_VERIFY(frame->isVisible());
    QCOMPARE(frame->geometry(), QRect(197, 147, 66, 46));
    FrameRecorder recorder(frame);
    f.first->show();
    QCOMPARE(frame->geometry(), QRect(QPoint(7, 7), QPoint(262, 192)));
    f.second->hide();
    QCOMPARE(frame->geometry(), QRect(7, 7, 106, 36));
    QCOMPARE(recorder.reports, QStringList({QStringLiteral("geometry"), QStringLiteral("geometry")}));
}

void tst_HighlightFrame::followsAContainer()
{
    Fixture f;
    auto* middle = new QWidget(f.first);
    middle->setGeometry(4, 4, 60, 20);
    auto* inner = new QWidget(middle);
    inner->setGeometry(1, 1, 10, 10);
    middle->show();
    inner->show();
    auto* frame = new HighlightFrame(QSet<QWidget*>{inner});
    QTRY_COMPARE(frame->geometry(), QRect(12, 12, 16, 16));
    f.first->move(50, 60);
    QCOMPARE(frame->geometry(), QRect(52, 62, 16, 16));
    middle->move(14, 4);
    QCOMPARE(frame->geometry(), QRect(62, 62, 16, 16));
    FrameRecorder recorder(frame);
    f.first->hide();
    QCOMPARE(recorder.reports, QStringList({QStringLiteral("hidden")}));
}

void tst_HighlightFrame::followsScrolling()
{
    QScrollArea area;
    auto* content = new QWidget;
    content->resize(1000, 1000);
    auto* target = new QWidget(content);
    target->setGeometry(30, 120, 40, 20);
    area.setWidget(content);
    area.resize(300, 200);
    area.show();
    QVERIFY(QTest::qWaitForWindowExposed(&area));
    // Right to left, an area starts with the right end of its content, and its scroll bar runs the other way.
    QScrollBar* const sideways = area.horizontalScrollBar();
    sideways->setValue(area.isRightToLeft() ? sideways->maximum() : sideways->minimum());
    auto* frame = new HighlightFrame(QSet<QWidget*>{target});
    QTRY_VERIFY(frame->isVisible());
    const QRect before = frame->geometry();
    area.verticalScrollBar()->setValue(50);
    QCOMPARE(frame->geometry(), before.translated(0, -50));
}

void tst_HighlightFrame::forgottenContainersAreNotWatched()
{
    Fixture f;
    auto* inner = new QWidget(f.first);
    inner->setGeometry(1, 1, 10, 10);
    inner->show();
    auto* frame = new HighlightFrame(QSet<QWidget*>{inner});
    QTRY_VERIFY(frame->isVisible());
    inner->setParent(f.second);
    inner->show();
    QCOMPARE(frame->geometry(), QRect(198, 148, 16, 16));
    FrameRecorder recorder(frame);
    f.first->move(70, 70);
    QVERIFY(recorder.reports.isEmpty());
    f.second->move(100, 100);
    QCOMPARE(recorder.geometries, QList<QRect>({QRect(98, 98, 16, 16)}));
}

void tst_HighlightFrame::cutAtTheHost()
{
    Fixture f;
    auto* frame = new HighlightFrame(f.first);
    QTRY_VERIFY(frame->isVisible());
    f.first->move(-50, -5);
    QCOMPARE(frame->geometry(), QRect(QPoint(0, 0), QPoint(52, 27)));
    f.first->move(f.window.width() - 20, f.window.height() - 10);
    QCOMPARE(frame->geometry(), QRect(f.window.width() - 23, f.window.height() - 13, 23, 13));
}

void tst_HighlightFrame::hostMadeSmallerAndLarger()
{
    Fixture f;
    auto* frame = new HighlightFrame(f.second);
    QTRY_VERIFY(frame->isVisible());
    f.window.resize(230, 170);
    QTRY_COMPARE(frame->geometry(), QRect(197, 147, 33, 23));
    f.window.resize(400, 300);
    QTRY_COMPARE(frame->geometry(), QRect(197, 147, 66, 46));
}

void tst_HighlightFrame::sameGeometryIsNotReportedAgain()
{
    Fixture f;
    auto* frame = new HighlightFrame(f.first);
    QTRY_VERIFY(frame->isVisible());
    const FrameRecorder recorder(frame);
    QMoveEvent move(f.first->pos(), f.first->pos());
    QCoreApplication::sendEvent(f.first, &move);
    QCoreApplication::sendEvent(&f.window, &move);
    QResizeEvent resize(f.first->size(), f.first->size());
    QCoreApplication::sendEvent(f.first, &resize);
    QShowEvent show;
    QCoreApplication::sendEvent(f.first, &show);
    QVERIFY(recorder.reports.isEmpty());
}

void tst_HighlightFrame::allHiddenIsReportedAndTheFrameStays()
{
    Fixture f;
    auto* frame = new HighlightFrame(QSet<QWidget*>{f.first, f.second});
    QTRY_VERIFY(frame->isVisible());
    f.first->hide();
    const FrameRecorder recorder(frame);
    const QRect geometry = frame->geometry();
    f.second->hide();
    // Whoever follows the frame decides; hiding it here would leave the follower no say.
    QCOMPARE(recorder.reports, QStringList({QStringLiteral("hidden")}));
    QVERIFY(frame->isVisible());
    QCOMPARE(frame->geometry(), geometry);
}

void tst_HighlightFrame::shownAgainAfterAllWereHidden()
{
    Fixture f;
    auto* frame = new HighlightFrame(f.first);
    QTRY_VERIFY(frame->isVisible());
    f.first->hide();
    const FrameRecorder recorder(frame);
    f.first->move(50, 50);
    f.first->show();
    QCOMPARE(frame->geometry(), QRect(47, 47, 106, 36));
    // The frame was there all the time.
    QVERIFY(!recorder.reports.contains(QStringLiteral("shown")));
}

void tst_HighlightFrame::outsideTheHostNothingHappens()
{
    Fixture f;
    f.first->move(-500, 10);
    auto* frame = new HighlightFrame(f.first);
    FrameRecorder recorder(frame);
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    QVERIFY(!frame->isVisible());
    QVERIFY(recorder.reports.isEmpty());
    f.first->move(20, 20);
    QCOMPARE(recorder.reports, QStringList({QStringLiteral("geometry"), QStringLiteral("shown")}));

    recorder.clear();
    f.first->move(4000, 20);
    QVERIFY(recorder.reports.isEmpty());
    QVERIFY(frame->isVisible());
    QCOMPARE(frame->geometry(), QRect(17, 17, 106, 36));
}

void tst_HighlightFrame::widgetsWithoutExtent()
{
    Fixture f;
    f.first->resize(0, 0);
    auto* frame = new HighlightFrame(f.first);
    QTRY_COMPARE(frame->geometry(), QRect(7, 7, 6, 6));
}

void tst_HighlightFrame::hiddenFrameIsShownAgain()
{
    Fixture f;
    auto* frame = new HighlightFrame(f.first);
    QTRY_VERIFY(frame->isVisible());
    frame->hide();
    f.second->raise();
    const FrameRecorder recorder(frame);
    f.first->move(20, 20);
    QVERIFY(frame->isVisible());
    QVERIFY(isOnTop(frame));
    QCOMPARE(recorder.reports, QStringList({QStringLiteral("geometry"), QStringLiteral("shown")}));
}

void tst_HighlightFrame::randomGeometry()
{
    QRandomGenerator random(20261);
    for (int round = 0; round < 40; ++round) {
        QWidget window;
        window.resize(random.bounded(50, 500), random.bounded(50, 400));
        QList<QWidget*> targets;
        QSet<QWidget*> set;
        QList<QWidget*> parents = {&window};
        for (int i = 0, n = random.bounded(1, 6); i < n; ++i) {
            auto* widget = new QWidget(parents.at(random.bounded(parents.size())));
            widget->setGeometry(random.bounded(-50, 400), random.bounded(-50, 300), random.bounded(0, 120),
                                random.bounded(0, 120));
            parents << widget;
            if (i == 0 || random.bounded(2)) {
                targets << widget;
                set << widget;
            }
        }
        window.show();
        auto* frame = new HighlightFrame(set);
        QCoreApplication::processEvents();
        for (int step = 0; step < 60; ++step) {
            QWidget* widget = parents.at(random.bounded(1, parents.size()));
            switch (random.bounded(4)) {
            case 0:
                widget->move(random.bounded(-50, 400), random.bounded(-50, 300));
                break;
            case 1:
                widget->resize(random.bounded(0, 120), random.bounded(0, 120));
                break;
            case 2:
                widget->hide();
                break;
            default:
                widget->show();
            }
            // Where nothing is left inside, the frame stays at the last of the places that it had on the way there.
            const QRect inside = independentRect(targets, &window);
            const QRect expected = inside.isEmpty() ? frame->geometry() : inside;
            QVERIFY2(frame->geometry() == expected,
                     qPrintable(QStringLiteral("round %1 step %2").arg(round).arg(step)));
        }
    }
}

void tst_HighlightFrame::raisedByButtons_data()
{
    QTest::addColumn<QEvent::Type>("type");
    QTest::newRow("press") << QEvent::MouseButtonPress;
    QTest::newRow("release") << QEvent::MouseButtonRelease;
    QTest::newRow("title bar press") << QEvent::NonClientAreaMouseButtonPress;
    QTest::newRow("title bar release") << QEvent::NonClientAreaMouseButtonRelease;
}

void tst_HighlightFrame::raisedByButtons()
{
    QFETCH(QEvent::Type, type);
    Fixture f;
    auto* frame = new HighlightFrame(f.first);
    QTRY_VERIFY(isOnTop(frame));
    for (QWidget* receiver : {f.first.data(), &f.window}) {
        f.second->raise();
        QVERIFY(!isOnTop(frame));
        QMouseEvent event(type, QPointF(1, 1), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(receiver, &event);
        QVERIFY(isOnTop(frame));
    }
}

void tst_HighlightFrame::otherEventsDoNotRaise()
{
    Fixture f;
    auto* frame = new HighlightFrame(f.first);
    QTRY_VERIFY(frame->isVisible());
    f.second->raise();
    const FrameRecorder recorder(frame);
    for (const QEvent::Type type :
         allEventTypesBut({QEvent::MouseButtonPress, QEvent::MouseButtonRelease, QEvent::NonClientAreaMouseButtonPress,
                           QEvent::NonClientAreaMouseButtonRelease})) {
        QEvent event(type);
        QVERIFY(!frame->eventFilter(f.first, &event));
    }
    QVERIFY(!isOnTop(frame));
    QVERIFY(recorder.reports.isEmpty());
}

void tst_HighlightFrame::nothingIsConsumed()
{
    QWidget window;
    window.resize(300, 200);
    EventRecorder target(&window);
    auto* frame = new HighlightFrame(&target);
    window.show();
    QTRY_VERIFY(frame->isVisible());
    target.received.clear();
    QMouseEvent press(QEvent::MouseButtonPress, QPointF(1, 1), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&target, &press);
    target.move(10, 10);
    target.resize(20, 20);
    target.hide();
    target.show();
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::Move, QEvent::Resize, QEvent::Hide, QEvent::Show})
        QCOMPARE(target.count(type), 1);
}

void tst_HighlightFrame::clicksGoThrough()
{
    QWidget window;
    window.resize(300, 200);
    EventRecorder target(&window);
    target.setGeometry(30, 30, 100, 40);
    QWidget other(&window);
    other.setGeometry(200, 100, 50, 50);
    auto* frame = new HighlightFrame(&target);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QTRY_VERIFY(frame->isVisible());
    QVERIFY(frame->testAttribute(Qt::WA_TransparentForMouseEvents));
    QCOMPARE(window.childAt(60, 50), &target);
    other.raise();
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(60, 50));
    QCOMPARE(target.count(QEvent::MouseButtonPress), 1);
    QCOMPARE(target.count(QEvent::MouseButtonRelease), 1);
    QVERIFY(isOnTop(frame));
}

void tst_HighlightFrame::paintsNothingByItself()
{
    Fixture f;
    f.window.setStyleSheet(QStringLiteral("QWidget#w { background: #204060; }"));
    f.window.setObjectName(QStringLiteral("w"));
    f.window.setAttribute(Qt::WA_StyledBackground);
    const QImage before = TestSupport::render(f.window);
    auto* frame = new HighlightFrame(f.first);
    QTRY_VERIFY(frame->isVisible());
    QCOMPARE(frame->frameShape(), QFrame::NoFrame);
    QCOMPARE(TestSupport::render(f.window), before);
}

void tst_HighlightFrame::styleSheetGivesTheLook()
{
    Fixture f;
    f.window.setStyleSheet(
        QStringLiteral("QWidget { background: #ffffff; }"
                       "Kestrel--Gui--HighlightFrame { background: transparent; border: 2px solid #ff0000; }"));
    f.window.setAttribute(Qt::WA_StyledBackground);
    auto* frame = new HighlightFrame(f.first);
    QTRY_VERIFY(frame->isVisible());
    const QImage image = TestSupport::render(f.window);
    const QRect outer = frame->geometry();
    const QRect inner = outer.adjusted(2, 2, -2, -2);
    for (int y = 0; y < 60; ++y) {
        for (int x = 0; x < 160; ++x) {
            const bool border = outer.contains(x, y) && !inner.contains(x, y);
            QVERIFY2(image.pixelColor(x, y) == (border ? QColor(255, 0, 0) : QColor(255, 255, 255)),
                     qPrintable(QStringLiteral("%1, %2: %3").arg(x).arg(y).arg(image.pixelColor(x, y).name())));
        }
    }
}

void tst_HighlightFrame::deletedWidgetCountsAsHidden()
{
    Fixture f;
    auto* frame = new HighlightFrame(QSet<QWidget*>{f.first, f.second});
    QTRY_VERIFY(frame->isVisible());
    const FrameRecorder recorder(frame);
    delete f.second;
    QTRY_COMPARE(frame->geometry(), QRect(7, 7, 106, 36));
    QCOMPARE(recorder.reports, QStringList({QStringLiteral("geometry")}));
    f.window.resize(410, 310);
    QCoreApplication::processEvents();
    QCOMPARE(frame->geometry(), QRect(7, 7, 106, 36));
}

void tst_HighlightFrame::lastWidgetDeleted()
{
    Fixture f;
    auto* frame = new HighlightFrame(QSet<QWidget*>{f.first, f.second});
    QTRY_VERIFY(frame->isVisible());
    const FrameRecorder recorder(frame);
    delete f.second;
    delete f.first;
    QVERIFY(recorder.reports.isEmpty());
    QTRY_COMPARE(recorder.reports, QStringList({QStringLiteral("hidden")}));
    QCoreApplication::processEvents();
    QCOMPARE(recorder.reports.size(), 1);
    QVERIFY(frame->isVisible());
}

void tst_HighlightFrame::deletedBeforeTheFirstPlacement()
{
    Fixture f;
    auto* frame = new HighlightFrame(f.first);
    const FrameRecorder recorder(frame);
    delete f.first;
    QCoreApplication::processEvents();
    QVERIFY(!frame->isVisible());
    QVERIFY(recorder.reports.isEmpty());
}

void tst_HighlightFrame::nestedTargetsDeletedWithTheirContainer()
{
    Fixture f;
    auto* middle = new QWidget(f.first);
    auto* inner = new QWidget(middle);
    middle->show();
    inner->show();
    auto* frame = new HighlightFrame(QSet<QWidget*>{middle, inner, f.second});
    QTRY_VERIFY(frame->isVisible());
    delete f.first;
    QTRY_COMPARE(frame->geometry(), QRect(197, 147, 66, 46));
}

void tst_HighlightFrame::hostDeleted()
{
    for (const bool beforePlacement : {true, false}) {
        auto host = std::make_unique<QWidget>();
        host->resize(200, 100);
        auto* target = new QWidget(host.get());
        const QPointer<HighlightFrame> frame = new HighlightFrame(target);
        host->show();
        if (!beforePlacement)
            QTRY_VERIFY(frame->isVisible());
        host.reset();
        QVERIFY(frame.isNull());
        QCoreApplication::processEvents();
    }
}

void tst_HighlightFrame::hostDeletedAfterTheFrameWasTakenOut()
{
    auto host = std::make_unique<QWidget>();
    host->resize(200, 100);
    QWidget elsewhere;
    QWidget target(host.get());
    HighlightFrame frame(&target);
    host->show();
    QTRY_VERIFY(frame.isVisible());
    frame.setParent(&elsewhere);
    target.setParent(&elsewhere);
    host.reset();
    const FrameRecorder recorder(&frame);
    elsewhere.show();
    target.show();
    target.move(20, 20);
    QVERIFY(QMetaObject::invokeMethod(&frame, "trackWidgets"));
    QVERIFY(recorder.reports.isEmpty());
    // Children of the stack are not deleted by their parent.
    target.setParent(nullptr);
    frame.setParent(nullptr);
}

void tst_HighlightFrame::frameDeletedLeavesTheWidgetsAlone()
{
    Fixture f;
    delete new HighlightFrame(f.first);
    auto* frame = new HighlightFrame(QSet<QWidget*>{f.first, f.second});
    QTRY_VERIFY(frame->isVisible());
    delete frame;
    QVERIFY(f.first);
    QVERIFY(f.second);
    f.first->move(1, 1);
    f.window.resize(300, 300);
    QCoreApplication::processEvents();
}

void tst_HighlightFrame::deletedInASlot_data()
{
    QTest::addColumn<QString>("victim");
    QTest::newRow("frame") << QStringLiteral("frame");
    QTest::newRow("target") << QStringLiteral("target");
    QTest::newRow("other target") << QStringLiteral("other");
    QTest::newRow("host") << QStringLiteral("host");
}

namespace {

struct Victims
{
    QPointer<QWidget> host = new QWidget;
    QPointer<QWidget> target = new QWidget(host);
    QPointer<QWidget> other = new QWidget(host);
    QPointer<HighlightFrame> frame;

    Victims()
    {
        host->resize(300, 200);
        other->move(100, 100);
        host->show();
        frame = new HighlightFrame(QSet<QWidget*>{target, other});
    }
    ~Victims() { delete host; }
    Victims(const Victims&) = delete;
    Victims& operator=(const Victims&) = delete;

    /// Once: while a widget is being deleted the frame may report again.
    void deleteOnce(QWidget* doomed)
    {
        if (!std::exchange(m_isDeleting, true))
            delete doomed;
    }

    QWidget* named(const QString& name) const
    {
        if (name == QStringLiteral("frame"))
            return frame;
        return name == QStringLiteral("host") ? host : name == QStringLiteral("target") ? target : other;
    }

private:
    bool m_isDeleting = false;
};

} // namespace

void tst_HighlightFrame::deletedInASlot()
{
    QFETCH(QString, victim);
    Victims v;
    QTRY_VERIFY(v.frame->isVisible());
    const QPointer<QWidget> doomed = v.named(victim);
    connect(v.frame, &HighlightFrame::geometryChanged, this, [&v, doomed] { v.deleteOnce(doomed); });
    // Sent and not caused: what Qt itself does after a move is no business of the frame.
    v.target->blockSignals(true);
    QMoveEvent move(QPoint(0, 0), QPoint(50, 0));
    v.frame->setGeometry(0, 0, 1, 1);
    QCoreApplication::sendEvent(v.target, &move);
    QVERIFY(doomed.isNull());
    QCoreApplication::processEvents();
}

void tst_HighlightFrame::deletedInASlotWhileShowing()
{
    QFETCH(QString, victim);
    Victims v;
    const QPointer<QWidget> doomed = v.named(victim);
    connect(v.frame, &HighlightFrame::visibilityChanged, this, [&v, doomed] { v.deleteOnce(doomed); });
    QTRY_VERIFY(doomed.isNull());
    QCoreApplication::processEvents();
}

void tst_HighlightFrame::deletedInASlotWhenHidden()
{
    Victims v;
    QTRY_VERIFY(v.frame->isVisible());
    v.other->hide();
    connect(v.frame, &HighlightFrame::visibilityChanged, this, [&v] { delete v.frame; });
    delete v.target;
    QTRY_VERIFY(v.frame.isNull());
}

void tst_HighlightFrame::movedInASlot()
{
    Fixture f;
    auto* frame = new HighlightFrame(f.first);
    QTRY_VERIFY(frame->isVisible());
    connect(frame, &HighlightFrame::geometryChanged, this, [&f] {
        if (f.first->x() < 100)
            f.first->move(f.first->x() + 20, 10);
    });
    f.first->move(20, 10);
    QCOMPARE(f.first->x(), 100);
    QCOMPARE(frame->geometry(), QRect(97, 7, 106, 36));
}

void tst_HighlightFrame::windowsOfTheirOwn()
{
    // Which of the two is the host is open; the widget inside it counts, the other one does not.
    Fixture f;
    Fixture g;
    auto* frame = new HighlightFrame(QSet<QWidget*>{f.first, g.second});
    QTRY_VERIFY(frame->isVisible());
    QVERIFY(!frame->isWindow());
    const bool inFirst = frame->parentWidget() == &f.window;
    QVERIFY(inFirst || frame->parentWidget() == &g.window);
    QCOMPARE(frame->geometry(), inFirst ? QRect(7, 7, 106, 36) : QRect(197, 147, 66, 46));
    QWidget* stranger = inFirst ? g.second : f.first;
    const FrameRecorder recorder(frame);
    stranger->move(0, 0);
    QVERIFY(recorder.reports.isEmpty());
}

void tst_HighlightFrame::movedToAnotherWindow()
{
    Fixture f;
    Fixture g;
    auto* frame = new HighlightFrame(QSet<QWidget*>{f.first});
    QTRY_VERIFY(frame->isVisible());
    FrameRecorder recorder(frame);
    f.first->setParent(&g.window);
    f.first->show();
    QVERIFY(recorder.reports.contains(QStringLiteral("hidden")));
    QVERIFY(recorder.geometries.isEmpty());
    QCOMPARE(frame->parentWidget(), &f.window);

    recorder.clear();
    f.first->setParent(&f.window);
    f.first->move(80, 80);
    f.first->show();
    QCOMPARE(recorder.geometries, QList<QRect>({QRect(77, 77, 106, 36)}));
}

void tst_HighlightFrame::movedIntoAnotherContainer()
{
    Fixture f;
    auto* frame = new HighlightFrame(QSet<QWidget*>{f.first});
    QTRY_VERIFY(frame->isVisible());
    f.first->setParent(f.second);
    f.first->move(2, 2);
    f.first->show();
    QCOMPARE(frame->geometry(), QRect(199, 149, 106, 36));
    f.second->move(10, 10);
    QCOMPARE(frame->geometry(), QRect(9, 9, 106, 36));
}

void tst_HighlightFrame::targetsDialogInsideTheHost()
{
    // A dialog has its parent, but does not lie inside it.
    Fixture f;
    QDialog dialog(&f.window);
    dialog.show();
    auto* frame = new HighlightFrame(&dialog);
    QCOMPARE(frame->parentWidget(), &f.window);
    const FrameRecorder recorder(frame);
    QCoreApplication::processEvents();
    dialog.resize(200, 200);
    QCoreApplication::processEvents();
    QVERIFY(!frame->isVisible());
    QVERIFY(recorder.reports.isEmpty());
}

QTEST_MAIN(tst_HighlightFrame)
#include "tst_HighlightFrame.moc"
