#include <KQt/Ui/WalkthroughController.h>

#include "support/Tour.h"

#include <QtTest>

#include <QPushButton>
#include <QState>

#include <memory>

using Kestrel::Gui::WalkthroughController;
using namespace TestSupport;

namespace {

std::unique_ptr<QPushButton> makeTarget(const char* name, QWidget* parent)
{
    auto button = std::make_unique<QPushButton>(parent);
    button->setProperty("walkthroughWidget", str(name));
    button->setGeometry(20, 20, 90, 30);
    return button;
}

bool isActive(WalkthroughController& controller, const char* path)
{
    return controller.configuration().contains(controller.findOrCreateState(str(path)));
}

/// Long enough for everything that is under way: hints are evaluated after 50 ms.
void settle()
{
    QTest::qWait(120);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace

/// Whatever the controller knows may be deleted at any stage. Most of these tests pass by not crashing, under the
/// sanitizers.
class tst_WalkthroughControllerLifetimes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void targetDeletedWhileShown();
    void oneOfTwoTargetsDeleted();
    void targetDeletedBeforeEvaluation();
    void targetDeletedBySlotOfItsState();
    void targetDeletedByItsClick();
    void targetDeletedByStart();
    void renamedTargetDeleted();
    void windowDeletedWithHint();
    void avoidWidgetDeleted();
    void hintDeletedWhileShown();
    void hintDeletedBeforeStart();
    void hintDeletedByItsStart();
    void hintDeletedByItsFinish();
    void otherHintDeletedByFinish();
    void pageDeletedWhileShown();
    void pageDeletedBeforeStart();
    void pageOfAnotherHintDeletedByStart();
    void hintsNeverStartedAreDeleted();
    void hintsInWindowsAreDeletedOnce();
    void controllerDeletedBySignal();
    void controllerDeletedByStart();
    void controllerDeletedByClick();
    void controllerDeletedLaterByState();
    void controllerOutlivesNothing();
};

void tst_WalkthroughControllerLifetimes::cleanup()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(QApplication::topLevelWidgets(), QWidgetList());
}

void tst_WalkthroughControllerLifetimes::targetDeletedWhileShown()
{
    WalkthroughController controller;
    const Tour tour;
    controller.addHints(tour.prototype({simplePage("hint", "x")}));
    QWidget window;
    window.resize(400, 300);
    auto target = makeTarget("x", &window);
    window.show();
    QTRY_VERIFY(tour.hint(0)->isVisible());
    target.reset();
    QVERIFY(isActive(controller, "x/inactive"));
    QTRY_VERIFY(!tour.hint(0)->isVisible());
    QVERIFY(isActive(controller, "hint/finished"));
}

void tst_WalkthroughControllerLifetimes::oneOfTwoTargetsDeleted()
{
    WalkthroughController controller;
    const Tour tour;
    controller.addHints(tour.prototype({simplePage("hint", "x")}));
    QWidget window;
    window.resize(400, 300);
    auto first = makeTarget("x", &window);
    auto second = makeTarget("x", &window);
    window.show();
    QTRY_VERIFY(tour.hint(0)->isVisible());
    first.reset();
    settle();
    QVERIFY(isActive(controller, "x/active"));
    QVERIFY(tour.hint(0)->isVisible());
    second.reset();
    QVERIFY(isActive(controller, "x/inactive"));
}

void tst_WalkthroughControllerLifetimes::targetDeletedBeforeEvaluation()
{
    WalkthroughController controller;
    const Tour tour;
    controller.addHints(tour.prototype({simplePage("hint", "x")}));
    QTRY_VERIFY(controller.isRunning());
    QWidget window;
    auto target = makeTarget("x", &window);
    window.show();
    QVERIFY(isActive(controller, "x/active"));
    target.reset();
    settle();
    QVERIFY(tour.record->log.isEmpty());
}

void tst_WalkthroughControllerLifetimes::targetDeletedBySlotOfItsState()
{
    WalkthroughController controller;
    const Tour tour;
    controller.addHints(tour.prototype({simplePage("hint", "x")}));
    auto* active = qobject_cast<QState*>(controller.findOrCreateState(str("x/active")));
    QTRY_VERIFY(controller.isRunning());
    QWidget window;
    auto target = makeTarget("x", &window);
    connect(active, &QState::entered, this, [&] { target.release()->deleteLater(); });
    window.show();
    settle();
    QVERIFY(isActive(controller, "x/inactive"));
    QVERIFY(!tour.hint(0)->isVisible());
    // At once, within its own Show event: Qt's show() is the caller, a sent event can take it.
    auto* doomed = makeTarget("x", nullptr).release();
    disconnect(active, &QState::entered, this, nullptr);
    connect(active, &QState::entered, this, [&] { delete std::exchange(doomed, nullptr); });
    QShowEvent show;
    QCoreApplication::sendEvent(doomed, &show);
    QVERIFY(!doomed);
    QTRY_VERIFY(isActive(controller, "x/inactive"));
}

void tst_WalkthroughControllerLifetimes::targetDeletedByItsClick()
{
    WalkthroughController controller;
    const Tour tour;
    controller.addHints(tour.prototype({simplePage("one", "x"), simplePage("two", "x")}));
    QWidget window;
    window.resize(400, 300);
    auto target = makeTarget("x", &window);
    window.show();
    QTRY_VERIFY(tour.hint(0)->isVisible() && tour.hint(1)->isVisible());
    tour.record->onFinish = [&](TourHint*) { target.reset(); };
    QMouseEvent press(QEvent::MouseButtonPress, QPointF(2, 2), Qt::LeftButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(target.get(), &press);
    QVERIFY(!target);
    settle();
    QVERIFY(isActive(controller, "one/finished"));
    QVERIFY(isActive(controller, "two/finished"));
    QVERIFY(isActive(controller, "x/inactive"));
}

void tst_WalkthroughControllerLifetimes::targetDeletedByStart()
{
    WalkthroughController controller;
    const Tour tour;
    controller.addHints(tour.prototype({simplePage("hint", "x"), simplePage("other", "x")}));
    QWidget window;
    window.resize(400, 300);
    auto target = makeTarget("x", &window);
    tour.record->onStart = [&](TourHint*) { target.reset(); };
    window.show();
    QTRY_VERIFY(!target);
    settle();
    QVERIFY(isActive(controller, "x/inactive"));
    QVERIFY(!tour.hint(0)->isVisible() && !tour.hint(1)->isVisible());
}

void tst_WalkthroughControllerLifetimes::renamedTargetDeleted()
{
    WalkthroughController controller;
    const Tour tour;
    controller.addHints(tour.prototype({simplePage("hint", "x")}));
    QTRY_VERIFY(controller.isRunning());
    QWidget window;
    window.resize(400, 300);
    auto target = makeTarget("x", &window);
    window.show();
    target->setProperty("walkthroughWidget", str("y"));
    target.reset();
    QVERIFY(isActive(controller, "x/inactive"));
    settle();
    QVERIFY(tour.record->log.isEmpty());
}

void tst_WalkthroughControllerLifetimes::windowDeletedWithHint()
{
    WalkthroughController controller;
    const Tour tour;
    controller.addHints(tour.prototype({simplePage("hint", "x"), simplePage("next", "y", {str("hint/finished")})}));
    auto window = std::make_unique<QWidget>();
    window->resize(400, 300);
    auto* target = makeTarget("x", window.get()).release();
    Q_UNUSED(target)
    window->show();
    QTRY_VERIFY(tour.hint(0)->isVisible());
    window.reset();
    QVERIFY(!tour.hint(0));
    QVERIFY(isActive(controller, "x/inactive"));
    // It was being shown: the tour goes on as if it had been closed.
    QVERIFY(isActive(controller, "hint/finished"));
    QWidget second;
    second.resize(400, 300);
    auto next = makeTarget("y", &second);
    auto again = makeTarget("x", &second);
    second.show();
    QTRY_VERIFY(tour.hint(1)->isVisible());
    controller.setEnabled(false);
    controller.setEnabled(true);
    settle();
}

void tst_WalkthroughControllerLifetimes::avoidWidgetDeleted()
{
    WalkthroughController controller;
    const Tour tour;
    QWidget window;
    window.resize(400, 300);
    auto target = makeTarget("x", &window);
    auto avoid = std::make_unique<QWidget>(&window);
    controller.setAvoidWidget(avoid.get());
    controller.addHints(tour.prototype({simplePage("one", "x"), simplePage("two", "x", {str("one/finished")})}));
    window.show();
    QTRY_VERIFY(tour.hint(0)->isVisible());
    avoid.reset();
    target->move(30, 30);
    settle();
    tour.hint(0)->close();
    QTRY_VERIFY(tour.hint(1)->isVisible());

    // One that is no longer the avoid widget takes nothing away.
    auto former = std::make_unique<QWidget>(&window);
    QWidget current(&window);
    controller.setAvoidWidget(former.get());
    controller.setAvoidWidget(&current);
    former.reset();
    controller.setAvoidWidget(nullptr);
}

void tst_WalkthroughControllerLifetimes::hintDeletedWhileShown()
{
    WalkthroughController controller;
    const Tour tour;
    controller.addHints(tour.prototype({simplePage("hint", "x"), simplePage("other", "x")}));
    QWidget window;
    window.resize(400, 300);
    auto target = makeTarget("x", &window);
    window.show();
    QTRY_VERIFY(tour.hint(0)->isVisible() && tour.hint(1)->isVisible());
    delete tour.hint(0);
    QVERIFY(isActive(controller, "hint/finished"));
    QTest::mouseClick(target.get(), Qt::LeftButton);
    QVERIFY(isActive(controller, "other/finished"));
    target->hide();
    target->show();
    controller.setEnabled(false);
    controller.setEnabled(true);
    settle();
    QVERIFY(isActive(controller, "hint/finished")); // of a hint that is gone, nothing is switched
}

void tst_WalkthroughControllerLifetimes::hintDeletedBeforeStart()
{
    WalkthroughController controller;
    const Tour tour;
    controller.addHints(tour.prototype({simplePage("hint", "x"), simplePage("other", "x")}));
    delete tour.hint(0);
    QWidget window;
    window.resize(400, 300);
    auto target = makeTarget("x", &window);
    window.show();
    QTRY_VERIFY(tour.hint(1)->isVisible());
    QVERIFY(isActive(controller, "hint/ready"));
}

void tst_WalkthroughControllerLifetimes::hintDeletedByItsStart()
{
    WalkthroughController controller;
    const Tour tour;
    controller.addHints(tour.prototype({simplePage("hint", "x"), simplePage("other", "x")}));
    QWidget window;
    window.resize(400, 300);
    auto target = makeTarget("x", &window);
    tour.record->onStart = [&](TourHint* hint) { delete hint; };
    window.show();
    QTRY_COMPARE(tour.record->log.size(), 2);
    settle();
    QVERIFY(!tour.hint(0) && !tour.hint(1));
}

void tst_WalkthroughControllerLifetimes::hintDeletedByItsFinish()
{
    WalkthroughController controller;
    const Tour tour;
    controller.addHints(tour.prototype({simplePage("one", "x"), simplePage("two", "x")}));
    QWidget window;
    window.resize(400, 300);
    auto target = makeTarget("x", &window);
    window.show();
    QTRY_VERIFY(tour.hint(0)->isVisible() && tour.hint(1)->isVisible());
    tour.record->onFinish = [&](TourHint* hint) { delete hint; };
    QTest::mousePress(target.get(), Qt::LeftButton);
    QVERIFY(!tour.hint(0) && !tour.hint(1));
    QVERIFY(isActive(controller, "one/finished"));
    QVERIFY(isActive(controller, "two/finished"));
}

void tst_WalkthroughControllerLifetimes::otherHintDeletedByFinish()
{
    WalkthroughController controller;
    const Tour tour;
    controller.addHints(tour.prototype({simplePage("one", "x"), simplePage("two", "x"), simplePage("three", "x")}));
    QWidget window;
    window.resize(400, 300);
    auto target = makeTarget("x", &window);
    window.show();
    QTRY_VERIFY(tour.hint(0)->isVisible() && tour.hint(1)->isVisible() && tour.hint(2)->isVisible());
    tour.record->onFinish = [&](TourHint* finishing) {
        for (int i = 0; i < 3; ++i) {
            if (tour.hint(i) != finishing)
                delete tour.hint(i);
        }
    };
    target->hide();
    settle();
    QVERIFY(isActive(controller, "x/inactive"));
    for (const char* path : {"one/finished", "two/finished", "three/finished"})
        QVERIFY2(isActive(controller, path), path);
}

void tst_WalkthroughControllerLifetimes::pageDeletedWhileShown()
{
    WalkthroughController controller;
    const Tour tour;
    controller.addHints(tour.prototype({simplePage("hint", "x"), simplePage("next", "x", {str("hint/finished")})}));
    QWidget window;
    window.resize(400, 300);
    auto target = makeTarget("x", &window);
    window.show();
    QTRY_VERIFY(tour.hint(0)->isVisible());
    const QPointer<TourHint> hint = tour.hint(0);
    delete hint->contentWidget();
    QVERIFY(!hint->isVisible());
    QVERIFY(isActive(controller, "hint/finished"));
    settle();
    QVERIFY(!hint);
    QTRY_VERIFY(tour.hint(1)->isVisible());
}

void tst_WalkthroughControllerLifetimes::pageDeletedBeforeStart()
{
    WalkthroughController controller;
    const Tour tour;
    controller.addHints(tour.prototype({simplePage("hint", "x"), simplePage("other", "x")}));
    // Its stack would go on with the other hint's page.
    delete tour.hint(0)->contentWidget();
    QWidget window;
    window.resize(400, 300);
    auto target = makeTarget("x", &window);
    window.show();
    QTRY_VERIFY(tour.hint(1)->isVisible());
    QCOMPARE(tour.record->log, QStringList{str("start other")});
    QVERIFY(isActive(controller, "hint/ready"));
}

void tst_WalkthroughControllerLifetimes::pageOfAnotherHintDeletedByStart()
{
    WalkthroughController controller;
    const Tour tour;
    controller.addHints(tour.prototype({simplePage("one", "x"), simplePage("two", "x")}));
    QWidget window;
    window.resize(400, 300);
    auto target = makeTarget("x", &window);
    tour.record->onStart = [&](TourHint* started) {
        TourHint* other = tour.hint(started == tour.hint(0) ? 1 : 0);
        if (other)
            delete other->contentWidget();
    };
    window.show();
    QTRY_COMPARE(tour.record->log.size(), 1);
    settle();
    QCOMPARE(tour.record->log.size(), 1);
}

void tst_WalkthroughControllerLifetimes::hintsNeverStartedAreDeleted()
{
    const Tour tour;
    {
        WalkthroughController controller;
        controller.addHints(tour.prototype({simplePage("one", "x"), simplePage("two", "y")}));
    }
    QVERIFY(!tour.hint(0) && !tour.hint(1));
}

void tst_WalkthroughControllerLifetimes::hintsInWindowsAreDeletedOnce()
{
    const Tour tour;
    QWidget window;
    window.resize(400, 300);
    auto target = makeTarget("x", &window);
    auto controller = std::make_unique<WalkthroughController>();
    controller->addHints(tour.prototype({simplePage("one", "x"), simplePage("two", "x")}));
    window.show();
    QTRY_VERIFY(tour.hint(0)->isVisible() && tour.hint(1)->isVisible());
    delete tour.hint(0);
    controller.reset();
    QVERIFY(!tour.hint(1));
    target->hide();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    // Neither a hint nor its frame is left in the window.
    QCOMPARE(window.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly).size(), 1);
}

void tst_WalkthroughControllerLifetimes::controllerDeletedBySignal()
{
    const Tour tour;
    QWidget window;
    window.resize(400, 300);
    auto target = makeTarget("x", &window);
    auto controller = std::make_unique<WalkthroughController>();
    controller->addHints(tour.prototype({simplePage("one", "x"), simplePage("two", "x")}));
    connect(controller.get(), &WalkthroughController::hintsDisabledForever, this, [&] { controller.reset(); });
    window.show();
    QTRY_VERIFY(tour.hint(0)->isVisible());
    tour.hint(0)->stopForever();
    QVERIFY(!controller);
    QVERIFY(!tour.hint(0) && !tour.hint(1));
    settle();
}

void tst_WalkthroughControllerLifetimes::controllerDeletedByStart()
{
    const Tour tour;
    QWidget window;
    window.resize(400, 300);
    auto target = makeTarget("x", &window);
    auto controller = std::make_unique<WalkthroughController>();
    controller->addHints(tour.prototype({simplePage("one", "x"), simplePage("two", "x")}));
    tour.record->onStart = [&](TourHint*) { controller.reset(); };
    window.show();
    QTRY_VERIFY(!controller);
    settle();
    QCOMPARE(tour.record->log.size(), 1);
}

void tst_WalkthroughControllerLifetimes::controllerDeletedByClick()
{
    const Tour tour;
    QWidget window;
    window.resize(400, 300);
    auto target = makeTarget("x", &window);
    auto controller = std::make_unique<WalkthroughController>();
    controller->addHints(tour.prototype({simplePage("one", "x"), simplePage("two", "x")}));
    window.show();
    QTRY_VERIFY(tour.hint(0)->isVisible() && tour.hint(1)->isVisible());
    tour.record->onFinish = [&](TourHint*) { controller.reset(); };
    QSignalSpy pressed(target.get(), &QPushButton::pressed);
    QTest::mousePress(target.get(), Qt::LeftButton);
    QVERIFY(!controller);
    QCOMPARE(pressed.count(), 1); // the target is none the worse for it
}

void tst_WalkthroughControllerLifetimes::controllerDeletedLaterByState()
{
    auto* controller = new WalkthroughController;
    const QPointer<WalkthroughController> alive(controller);
    auto* state = qobject_cast<QState*>(controller->findOrCreateState(str("own/state")));
    connect(state, &QState::entered, controller, &QObject::deleteLater);
    QTRY_VERIFY(!alive);
}

void tst_WalkthroughControllerLifetimes::controllerOutlivesNothing()
{
    QWidget window;
    auto target = makeTarget("x", &window);
    {
        WalkthroughController controller;
        controller.setAvoidWidget(&window);
        QTRY_VERIFY(controller.isRunning());
        window.show();
    }
    // Whatever happens now happens without it.
    window.hide();
    window.show();
    target.reset();
}

QTEST_MAIN(tst_WalkthroughControllerLifetimes)
#include "tst_WalkthroughControllerLifetimes.moc"
