#include <KQt/Ui/WalkthroughController.h>

#include "support/Tour.h"

#include <QtTest>

#include <QDialog>
#include <QPushButton>
#include <QState>
#include <QWindow>

#include <memory>

using Kestrel::Gui::WalkthroughController;
using namespace TestSupport;

namespace {

/// A window with targets.
class Stage : public QWidget
{
public:
    Stage() { resize(500, 400); }

    QPushButton* addTarget(const char* name, const QRect& geometry = QRect(20, 20, 90, 30))
    {
        auto* button = new QPushButton(this);
        button->setProperty("walkthroughWidget", str(name));
        button->setGeometry(geometry);
        return button;
    }
};

bool isActive(WalkthroughController& controller, const char* path)
{
    return controller.configuration().contains(controller.findOrCreateState(str(path)));
}

/// What arrives when the window system shows or hides a window.
template <typename Event>
void sendSpontaneous(QWidget* widget)
{
    Event event;
    QSpontaneKeyEvent::setSpontaneous(&event);
    QCoreApplication::instance()->notify(widget, &event); // sendEvent() would take the mark back
}

} // namespace

/// When hints are shown and finished.
class tst_WalkthroughControllerHints : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void targetsSwitchTheirGroup();
    void twoWidgetsOfOneName();
    void spontaneousEventsDoNotCount();
    void widgetsInsideHintsAreNoTargets();
    void objectsThatAreNoWidgetsAreTargetsToo();
    void widgetsWithoutNameAreNoTargets();
    void consumesNothing();

    void showsWhenAllConditionsHold();
    void conditionsCountAsUnmetAtFirst();
    void conditionListedTwiceCountsTwice();
    void conditionNobodyEntersHidesForEver();
    void aBurstIsEvaluatedOnce();
    void everyChangeStartsTheWaitAnew();
    void startsOverAllTargets();
    void passesTheAvoidWidget();
    void needsATarget();
    void oddAlignment();

    void finishesWhenAConditionIsUnmet();
    void finishesWhenItsTargetsAreHidden();
    void closingFinishesOnce();
    void clickOnTargetFinishes();
    void clickElsewhereDoesNothing();
    void finishedHintDoesNotReturn();
    void hintWithoutReadyReturns();
    void closingHintsDoesNotQuit();

    void disablingForTheSession();
    void disablingForEver();
    void disablingFinishesShownHints();

    void wholeWalkthrough();
};

void tst_WalkthroughControllerHints::cleanup()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(QApplication::topLevelWidgets(), QWidgetList());
}

void tst_WalkthroughControllerHints::targetsSwitchTheirGroup()
{
    WalkthroughController controller;
    controller.findOrCreateState(str("x/inactive"));
    QTRY_VERIFY(controller.isRunning());
    Stage stage;
    QPushButton* target = stage.addTarget("x");
    QVERIFY(isActive(controller, "x/inactive"));
    stage.show();
    QVERIFY(isActive(controller, "x/active"));
    target->hide();
    QVERIFY(isActive(controller, "x/inactive"));
    target->show();
    QVERIFY(isActive(controller, "x/active"));
    stage.hide();
    QVERIFY(isActive(controller, "x/inactive"));
    // A group of which nobody has spoken comes with its first widget.
    stage.addTarget("unknown");
    stage.show();
    QVERIFY(isActive(controller, "unknown/active"));
}

void tst_WalkthroughControllerHints::twoWidgetsOfOneName()
{
    WalkthroughController controller;
    controller.findOrCreateState(str("x/inactive"));
    auto* active = qobject_cast<QState*>(controller.findOrCreateState(str("x/active")));
    QSignalSpy entered(active, &QState::entered);
    QTRY_VERIFY(controller.isRunning());
    Stage stage;
    stage.show();
    QPushButton* first = stage.addTarget("x");
    QPushButton* second = stage.addTarget("x");
    first->show();
    QVERIFY(isActive(controller, "x/active"));
    second->show();
    first->hide();
    QVERIFY(isActive(controller, "x/active"));
    first->show();
    second->hide();
    QVERIFY(isActive(controller, "x/active"));
    first->hide();
    QVERIFY(isActive(controller, "x/inactive"));
    QCOMPARE(entered.count(), 1);
}

void tst_WalkthroughControllerHints::spontaneousEventsDoNotCount()
{
    WalkthroughController controller;
    controller.findOrCreateState(str("x/inactive"));
    QTRY_VERIFY(controller.isRunning());
    Stage stage;
    QPushButton* target = stage.addTarget("x");
    sendSpontaneous<QShowEvent>(target);
    QVERIFY(isActive(controller, "x/inactive"));
    stage.show();
    QVERIFY(isActive(controller, "x/active"));
    sendSpontaneous<QHideEvent>(target);
    QVERIFY(isActive(controller, "x/active"));
}

void tst_WalkthroughControllerHints::widgetsInsideHintsAreNoTargets()
{
    WalkthroughController controller;
    const Tour tour;
    controller.addHints(tour.prototype({simplePage("hint", "x")}));
    QTRY_VERIFY(controller.isRunning());
    TourHint* hint = tour.hint(0);
    QWidget inner;
    inner.setProperty("walkthroughWidget", str("x"));
    inner.setParent(hint->contentWidget());
    inner.show();
    hint->show();
    QVERIFY(hint->contentWidget()->isVisible()); // bears the name too
    QVERIFY(isActive(controller, "x/inactive"));

    Stage stage;
    stage.addTarget("x");
    stage.show();
    QVERIFY(isActive(controller, "x/active"));
    hint->hide();
    inner.hide();
    QVERIFY(isActive(controller, "x/active"));
    QTRY_COMPARE(tour.record->log, QStringList{str("start hint")});
    QTRY_VERIFY(hint->isVisible());
    QTest::mouseClick(hint->contentWidget(), Qt::LeftButton);
    QVERIFY(hint->isVisible());
    inner.setParent(nullptr);
}

void tst_WalkthroughControllerHints::objectsThatAreNoWidgetsAreTargetsToo()
{
    WalkthroughController controller;
    const Tour tour;
    controller.addHints(tour.prototype({simplePage("hint", "x")}));
    QTRY_VERIFY(controller.isRunning());
    auto window = std::make_unique<QWindow>();
    window->setProperty("walkthroughWidget", str("x"));
    QShowEvent show;
    QCoreApplication::sendEvent(window.get(), &show);
    QVERIFY(isActive(controller, "x/active"));
    QTRY_COMPARE(tour.record->log, QStringList{str("start hint")});
    QCOMPARE(tour.record->targets.first(), QSet<QWidget*>());
    QCoreApplication::processEvents();
    QVERIFY(!tour.hint(0)->isVisible());
    QHideEvent hide;
    QCoreApplication::sendEvent(window.get(), &hide);
    QVERIFY(isActive(controller, "x/inactive"));
    QCoreApplication::sendEvent(window.get(), &show);
    QVERIFY(isActive(controller, "x/active"));
    window.reset();
    QVERIFY(isActive(controller, "x/inactive"));
}

void tst_WalkthroughControllerHints::widgetsWithoutNameAreNoTargets()
{
    WalkthroughController controller;
    controller.findOrCreateState(str("/inactive"));
    QTRY_VERIFY(controller.isRunning());
    Stage stage;
    stage.addTarget("");
    new QPushButton(&stage);
    stage.show();
    QVERIFY(isActive(controller, "/inactive"));
}

void tst_WalkthroughControllerHints::consumesNothing()
{
    class Receiver : public QWidget
    {
    public:
        QList<QEvent::Type> received;
        bool event(QEvent* event) override
        {
            received.append(event->type());
            return QWidget::event(event);
        }
    };
    WalkthroughController controller;
    const Tour tour;
    controller.addHints(tour.prototype({simplePage("hint", "x")}));
    Receiver target;
    target.setProperty("walkthroughWidget", str("x"));
    target.resize(300, 300);
    target.show();
    QTRY_VERIFY(tour.hint(0)->isVisible());
    QTest::mouseClick(&target, Qt::LeftButton, {}, QPoint(3, 3));
    target.close();
    for (const QEvent::Type type : {QEvent::Show, QEvent::MouseButtonPress, QEvent::Close, QEvent::Hide})
        QVERIFY2(target.received.contains(type), QByteArray::number(type));
}

void tst_WalkthroughControllerHints::showsWhenAllConditionsHold()
{
    WalkthroughController controller;
    const Tour tour;
    controller.findOrCreateState(str("own/no"));
    controller.addHints(tour.prototype({simplePage("hint", "x", {str("own/yes")})}));
    Stage stage;
    QPushButton* target = stage.addTarget("x");
    stage.show();
    QTRY_VERIFY(controller.isRunning());
    QTest::qWait(150); // nothing to wait for: the hint must not come
    QVERIFY(tour.record->log.isEmpty());
    controller.gotoState(str("own/yes"));
    QVERIFY(tour.record->log.isEmpty()); // not at once
    QTRY_COMPARE(tour.record->log, QStringList{str("start hint")});
    QTRY_VERIFY(tour.hint(0)->isVisible());
    QCOMPARE(tour.hint(0)->window(), &stage);
    QVERIFY(tour.hint(0)->y() > target->geometry().bottom());
}

void tst_WalkthroughControllerHints::conditionsCountAsUnmetAtFirst()
{
    WalkthroughController controller;
    Stage stage;
    QPushButton* target = stage.addTarget("x");
    controller.findOrCreateState(str("x/inactive"));
    QTRY_VERIFY(controller.isRunning());
    stage.show();
    QVERIFY(isActive(controller, "x/active"));
    // Registered while the target is shown already: the hint waits until it is shown the next time.
    const Tour tour;
    controller.addHints(tour.prototype({simplePage("hint", "x")}));
    QTest::qWait(150);
    QVERIFY(tour.record->log.isEmpty());
    target->hide();
    target->show();
    QTRY_COMPARE(tour.record->log, QStringList{str("start hint")});
}

void tst_WalkthroughControllerHints::conditionListedTwiceCountsTwice()
{
    WalkthroughController controller;
    const Tour tour;
    controller.addHints(
        tour.prototype({{str("hint"), str("x"), {str("x/active"), str("x/active"), str("hint/ready")}}}));
    Stage stage;
    QPushButton* target = stage.addTarget("x");
    stage.show();
    QTRY_COMPARE(tour.record->log, QStringList{str("start hint")});
    target->hide();
    QTRY_COMPARE(tour.record->log, (QStringList{str("start hint"), str("finish hint")}));
}

void tst_WalkthroughControllerHints::conditionNobodyEntersHidesForEver()
{
    WalkthroughController controller;
    const Tour tour;
    controller.findOrCreateState(str("own/first"));
    controller.addHints(tour.prototype({simplePage("never", "x", {str("own/never")}), simplePage("other", "x")}));
    Stage stage;
    stage.addTarget("x");
    stage.show();
    QTRY_COMPARE(tour.record->log, QStringList{str("start other")});
    stage.hide();
    QTRY_VERIFY(tour.record->log.contains(str("finish other")));
    stage.show();
    controller.setEnabled(false);
    controller.setEnabled(true);
    QTRY_VERIFY(tour.record->log.count(str("start other")) > 1);
    QVERIFY(!tour.record->log.contains(str("start never")));
}

void tst_WalkthroughControllerHints::aBurstIsEvaluatedOnce()
{
    WalkthroughController controller;
    const Tour tour;
    controller.addHints(tour.prototype({simplePage("hint", "x")}));
    QTRY_VERIFY(controller.isRunning());
    auto* timer = controller.findChild<QTimer*>(QString(), Qt::FindDirectChildrenOnly);
    QVERIFY(timer);
    QTRY_VERIFY(!timer->isActive());
    QSignalSpy evaluated(timer, &QTimer::timeout);
    Stage stage;
    QPushButton* target = stage.addTarget("x");
    stage.show();
    for (int i = 0; i < 10; ++i) {
        target->hide();
        target->show();
    }
    QVERIFY(timer->isActive());
    QTRY_COMPARE(evaluated.count(), 1);
    QCOMPARE(tour.record->log, QStringList{str("start hint")});
}

void tst_WalkthroughControllerHints::everyChangeStartsTheWaitAnew()
{
    WalkthroughController controller;
    controller.findOrCreateState(str("own/a"));
    QTRY_VERIFY(controller.isRunning());
    auto* timer = controller.findChild<QTimer*>(QString(), Qt::FindDirectChildrenOnly);
    QVERIFY(timer);
    QSignalSpy evaluated(timer, &QTimer::timeout);
    // Changes for longer than the wait lasts. A machine under load may take a break of its own in between; then again.
    bool wasQuick = false;
    for (int attempt = 0; attempt < 20 && !wasQuick; ++attempt) {
        controller.gotoState(str("own/b"));
        controller.gotoState(str("own/a"));
        evaluated.clear();
        qint64 longestGap = 0;
        QElapsedTimer whole;
        whole.start();
        while (whole.elapsed() < qint64(3) * timer->interval()) {
            QElapsedTimer gap;
            gap.start();
            controller.gotoState(str("own/a"));
            controller.gotoState(str("own/b"));
            QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
            QThread::msleep(1);
            longestGap = qMax(longestGap, gap.elapsed());
        }
        wasQuick = longestGap < timer->interval() / 2;
        if (wasQuick)
            QCOMPARE(evaluated.count(), 0);
    }
    if (!wasQuick)
        QSKIP("the machine is too slow to change states quickly");
    QTRY_COMPARE(evaluated.count(), 1);
}

void tst_WalkthroughControllerHints::startsOverAllTargets()
{
    WalkthroughController controller;
    const Tour tour;
    controller.addHints(tour.prototype({simplePage("hint", "x")}));
    Stage stage;
    QPushButton* first = stage.addTarget("x");
    QPushButton* second = stage.addTarget("x", QRect(200, 20, 50, 30));
    stage.addTarget("y");
    QPushButton* hidden = stage.addTarget("x");
    hidden->hide();
    stage.show();
    QTRY_COMPARE(tour.record->targets.size(), 1);
    QCOMPARE(tour.record->targets.first(), (QSet<QWidget*>{first, second}));
    // More of them later start nothing anew.
    hidden->show();
    controller.gotoState(str("own/state"));
    QTest::qWait(100);
    QCOMPARE(tour.record->targets.size(), 1);
}

void tst_WalkthroughControllerHints::passesTheAvoidWidget()
{
    Stage stage;
    stage.addTarget("x", QRect(200, 20, 60, 30));
    auto* avoid = new QWidget(&stage);
    for (const bool avoiding : {false, true}) {
        WalkthroughController controller;
        const Tour tour;
        if (avoiding)
            controller.setAvoidWidget(avoid);
        controller.addHints(tour.prototype({simplePage("hint", "x")}));
        stage.show();
        QTRY_VERIFY(tour.hint(0)->isVisible());
        if (!avoiding) {
            // Where the hint goes when nothing is in its way is what the second round has to keep clear.
            avoid->setGeometry(tour.hint(0)->geometry().adjusted(-2, 0, 2, 60));
            QTest::qWait(60);
            QVERIFY(tour.hint(0)->geometry().intersects(avoid->geometry()));
        } else {
            QVERIFY(!tour.hint(0)->geometry().intersects(avoid->geometry()));
        }
        stage.hide();
    }
    WalkthroughController controller;
    controller.setAvoidWidget(avoid);
    controller.setAvoidWidget(nullptr);
    const Tour tour;
    controller.addHints(tour.prototype({simplePage("hint", "x")}));
    stage.show();
    QTRY_VERIFY(tour.hint(0)->isVisible());
    QVERIFY(tour.hint(0)->geometry().intersects(avoid->geometry()));
}

void tst_WalkthroughControllerHints::needsATarget()
{
    WalkthroughController controller;
    const Tour tour;
    // The conditions say nothing of the target.
    controller.addHints(tour.prototype({{str("hint"), str("x"), {str("hint/ready")}}}));
    QTRY_VERIFY(controller.isRunning());
    QTest::qWait(120);
    QVERIFY(tour.record->log.isEmpty());
    Stage stage;
    QPushButton* target = stage.addTarget("x");
    stage.show();
    QTRY_COMPARE(tour.record->log, QStringList{str("start hint")});
    target->hide();
    QTRY_COMPARE(tour.record->log, (QStringList{str("start hint"), str("finish hint")}));
}

void tst_WalkthroughControllerHints::oddAlignment()
{
    WalkthroughController controller;
    const Tour tour;
    TourPage page = simplePage("hint", "x");
    page.alignment = str("somewhere else");
    controller.addHints(tour.prototype({page}));
    Stage stage;
    QPushButton* target = stage.addTarget("x", QRect(220, 180, 60, 30));
    stage.show();
    QTRY_VERIFY(tour.hint(0)->isVisible());
    const QPoint distance = tour.hint(0)->geometry().center() - target->geometry().center();
    QVERIFY(qAbs(distance.x()) <= 2 && qAbs(distance.y()) <= 2);
}

void tst_WalkthroughControllerHints::finishesWhenAConditionIsUnmet()
{
    WalkthroughController controller;
    const Tour tour;
    controller.addHints(tour.prototype({simplePage("hint", "x", {str("own/yes")})}));
    Stage stage;
    stage.addTarget("x");
    stage.show();
    QTRY_VERIFY(tour.record->copies.size() == 1 && tour.hint(0)->isVisible());
    controller.gotoState(str("own/no"));
    QVERIFY(tour.hint(0)->isVisible());
    QTRY_COMPARE(tour.record->log, (QStringList{str("start hint"), str("finish hint")}));
    QVERIFY(!tour.hint(0)->isVisible());
    QVERIFY(isActive(controller, "hint/finished"));
}

void tst_WalkthroughControllerHints::finishesWhenItsTargetsAreHidden()
{
    WalkthroughController controller;
    const Tour tour;
    controller.addHints(tour.prototype({simplePage("hint", "x")}));
    Stage stage;
    QPushButton* first = stage.addTarget("x");
    QPushButton* second = stage.addTarget("x", QRect(200, 20, 50, 30));
    stage.show();
    QTRY_VERIFY(tour.hint(0)->isVisible());
    first->hide();
    QTest::qWait(120);
    QVERIFY(tour.hint(0)->isVisible());
    second->hide();
    QTRY_VERIFY(!tour.hint(0)->isVisible());
    QVERIFY(isActive(controller, "hint/finished"));
}

void tst_WalkthroughControllerHints::closingFinishesOnce()
{
    WalkthroughController controller;
    const Tour tour;
    controller.addHints(tour.prototype({simplePage("hint", "x")}));
    auto* finished = qobject_cast<QState*>(controller.findOrCreateState(str("hint/finished")));
    QSignalSpy entered(finished, &QState::entered);
    Stage stage;
    stage.addTarget("x");
    stage.show();
    QTRY_VERIFY(tour.hint(0)->isVisible());
    tour.hint(0)->close();
    QVERIFY(isActive(controller, "hint/finished"));
    QCOMPARE(tour.record->log, (QStringList{str("start hint"), str("finish hint")}));
    QVERIFY(!tour.hint(0)->getTargetWidget());
    QCOMPARE(entered.count(), 1);
    // It is no longer among the shown ones: nothing finishes it again.
    stage.hide();
    QTest::qWait(120);
    QCOMPARE(tour.record->log, (QStringList{str("start hint"), str("finish hint")}));
}

void tst_WalkthroughControllerHints::clickOnTargetFinishes()
{
    WalkthroughController controller;
    const Tour tour;
    controller.addHints(tour.prototype({simplePage("one", "x"), simplePage("two", "x"), simplePage("three", "y")}));
    Stage stage;
    QPushButton* x = stage.addTarget("x");
    stage.addTarget("y", QRect(200, 300, 60, 30));
    QSignalSpy clicked(x, &QPushButton::clicked);
    stage.show();
    QTRY_VERIFY(tour.hint(0)->isVisible() && tour.hint(1)->isVisible() && tour.hint(2)->isVisible());
    QTest::mousePress(x, Qt::RightButton);
    QVERIFY(isActive(controller, "one/finished"));
    QVERIFY(isActive(controller, "two/finished"));
    QVERIFY(isActive(controller, "three/ready"));
    QVERIFY(!tour.hint(0)->isVisible() && !tour.hint(1)->isVisible() && tour.hint(2)->isVisible());
    QTest::mouseRelease(x, Qt::RightButton);
    QTest::mouseClick(x, Qt::LeftButton);
    QCOMPARE(clicked.count(), 1);
}

void tst_WalkthroughControllerHints::clickElsewhereDoesNothing()
{
    WalkthroughController controller;
    const Tour tour;
    controller.addHints(tour.prototype({simplePage("hint", "x")}));
    Stage stage;
    stage.addTarget("x");
    auto* plain = new QPushButton(&stage);
    plain->setGeometry(300, 300, 60, 30);
    stage.show();
    QTRY_VERIFY(tour.hint(0)->isVisible());
    QTest::mouseClick(plain, Qt::LeftButton);
    QTest::mouseClick(tour.hint(0), Qt::LeftButton);
    QTest::mouseMove(&stage, QPoint(30, 30));
    QVERIFY(isActive(controller, "hint/ready"));
    QVERIFY(tour.hint(0)->isVisible());
}

void tst_WalkthroughControllerHints::finishedHintDoesNotReturn()
{
    WalkthroughController controller;
    const Tour tour;
    controller.addHints(tour.prototype({simplePage("hint", "x")}));
    Stage stage;
    QPushButton* target = stage.addTarget("x");
    stage.show();
    QTRY_VERIFY(tour.hint(0)->isVisible());
    QTest::mouseClick(target, Qt::LeftButton);
    target->hide();
    target->show();
    QTest::qWait(120);
    QCOMPARE(tour.record->log.count(str("start hint")), 1);
    // Until it is made ready again.
    controller.gotoState(str("hint/ready"));
    QTRY_COMPARE(tour.record->log.count(str("start hint")), 2);
    QTRY_VERIFY(tour.hint(0)->isVisible());
}

void tst_WalkthroughControllerHints::hintWithoutReadyReturns()
{
    WalkthroughController controller;
    const Tour tour;
    controller.addHints(tour.prototype({{str("hint"), str("x"), {str("x/active")}}}));
    Stage stage;
    QPushButton* target = stage.addTarget("x");
    stage.show();
    QTRY_VERIFY(tour.hint(0)->isVisible());
    tour.hint(0)->close();
    target->hide();
    target->show();
    QTRY_COMPARE(tour.record->log.count(str("start hint")), 2);
}

// An application that hides all of its windows, to an icon for instance, must not end with the hints that close then.
void tst_WalkthroughControllerHints::closingHintsDoesNotQuit()
{
    WalkthroughController controller;
    const Tour tour;
    controller.addHints(tour.prototype({simplePage("hint", "x")}));
    QSignalSpy lastWindowClosed(qApp, &QGuiApplication::lastWindowClosed);
    Stage stage;
    stage.addTarget("x");
    stage.show();
    QTRY_VERIFY(tour.hint(0)->isVisible());
    stage.hide();
    QTRY_COMPARE(tour.record->log, (QStringList{str("start hint"), str("finish hint")}));
    QCOMPARE(lastWindowClosed.count(), 0);
}

void tst_WalkthroughControllerHints::disablingForTheSession()
{
    WalkthroughController controller;
    const Tour tour;
    controller.addHints(tour.prototype({simplePage("one", "x"), simplePage("two", "y")}));
    QSignalSpy forever(&controller, &WalkthroughController::hintsDisabledForever);
    Stage stage;
    stage.addTarget("x");
    stage.show();
    QTRY_VERIFY(tour.hint(0)->isVisible());
    tour.hint(0)->stopForSession();
    QVERIFY(!controller.isEnabled());
    QVERIFY(isActive(controller, "two/disabled"));
    QCOMPARE(forever.count(), 0);
    stage.addTarget("y")->show();
    QTest::qWait(120);
    QVERIFY(!tour.record->log.contains(str("start two")));
}

void tst_WalkthroughControllerHints::disablingForEver()
{
    WalkthroughController controller;
    const Tour tour;
    controller.addHints(tour.prototype({simplePage("one", "x"), simplePage("two", "y")}));
    bool enabledAtSignal = true;
    QSignalSpy forever(&controller, &WalkthroughController::hintsDisabledForever);
    connect(&controller, &WalkthroughController::hintsDisabledForever, this,
            [&] { enabledAtSignal = controller.isEnabled(); });
    Stage stage;
    stage.addTarget("x");
    stage.show();
    QTRY_VERIFY(tour.hint(0)->isVisible());
    tour.hint(0)->stopForever();
    QCOMPARE(forever.count(), 1);
    QVERIFY(!enabledAtSignal);
    QVERIFY(isActive(controller, "two/disabled"));
    // The hint's own closing comes after that and moves its group on. The others say that hints are off.
    QVERIFY(isActive(controller, "one/finished"));
    QVERIFY(!controller.isEnabled());
}

void tst_WalkthroughControllerHints::disablingFinishesShownHints()
{
    WalkthroughController controller;
    const Tour tour;
    controller.addHints(tour.prototype({simplePage("one", "x"), simplePage("two", "y")}));
    Stage stage;
    stage.addTarget("x");
    stage.addTarget("y", QRect(200, 300, 60, 30));
    stage.show();
    QTRY_VERIFY(tour.hint(0)->isVisible() && tour.hint(1)->isVisible());
    controller.setEnabled(false);
    QTRY_VERIFY(!tour.hint(0)->isVisible() && !tour.hint(1)->isVisible());
    controller.setEnabled(true);
    // Finished after they had been switched off; enabling counts only what is off, so that both may need it.
    controller.gotoState(str("one/ready"));
    controller.gotoState(str("two/ready"));
    QTRY_VERIFY(tour.hint(0)->isVisible() && tour.hint(1)->isVisible());
}

// A tour through two windows from its start to its end.
void tst_WalkthroughControllerHints::wholeWalkthrough()
{
    WalkthroughController controller;
    const Tour tour;
    controller.findOrCreateState(str("page/first")); // before a condition names another state of that group
    TourPage inDialog = simplePage("dialog", "name", {str("open/finished")});
    inDialog.alignment = str("top");
    TourPage pair = simplePage("pair", "halves", {str("dialog/finished")});
    pair.alignment = str("right");
    controller.addHints(
        tour.prototype({simplePage("welcome", "title"), simplePage("open", "openButton", {str("welcome/finished")}),
                        inDialog, pair, simplePage("last", "title", {str("pair/finished"), str("page/second")})}));
    enum { Welcome, Open, InDialog, Pair, Last };

    Stage stage;
    QPushButton* title = stage.addTarget("title", QRect(10, 10, 100, 30));
    QPushButton* open = stage.addTarget("openButton", QRect(150, 10, 100, 30));
    QPushButton* left = stage.addTarget("halves", QRect(10, 200, 60, 30));
    QPushButton* right = stage.addTarget("halves", QRect(90, 220, 60, 30));
    QDialog dialog(&stage);
    dialog.resize(300, 200);
    QPushButton name(&dialog);
    name.setProperty("walkthroughWidget", str("name"));
    name.setGeometry(20, 150, 100, 30);
    connect(open, &QPushButton::clicked, &dialog, &QWidget::show);

    const auto visibleHints = [&] {
        QStringList names;
        for (int i = Welcome; i <= Last; ++i) {
            if (tour.hint(i) && tour.hint(i)->isVisible())
                names.append(tour.hint(i)->hintName());
        }
        return names;
    };

    stage.show();
    QTRY_COMPARE(visibleHints(), QStringList{str("welcome")});
    QVERIFY(tour.hint(Welcome)->getTargetWidget());

    // The hint follows its target, and is placed anew for a new text.
    const QPoint before = tour.hint(Welcome)->pos();
    title->move(200, 100);
    QTRY_VERIFY(tour.hint(Welcome)->pos() != before);
    QTRY_VERIFY(tour.hint(Welcome)->y() > title->geometry().bottom());
    QEvent language(QEvent::LanguageChange);
    QCoreApplication::sendEvent(tour.hint(Welcome), &language);
    qobject_cast<QLabel*>(tour.hint(Welcome)->contentWidget())->setText(str("a much longer text than before"));
    tour.hint(Welcome)->updateHintPosition();
    QTRY_COMPARE(tour.hint(Welcome)->width(), tour.hint(Welcome)->sizeHint().width());

    // Closed by the user; the next one waits for it.
    tour.hint(Welcome)->close();
    QTRY_COMPARE(visibleHints(), QStringList{str("open")});

    // Not now after all, and on again: what was finished comes back too.
    controller.setEnabled(false);
    QTRY_COMPARE(visibleHints(), QStringList());
    controller.setEnabled(true);
    controller.gotoState(str("open/ready"));
    QTRY_COMPARE(visibleHints(), QStringList{str("welcome")});
    QTest::mouseClick(title, Qt::LeftButton);
    QTRY_COMPARE(visibleHints(), QStringList{str("open")});

    // The target's click opens the dialog, and finishes the hint.
    QTest::mouseClick(open, Qt::LeftButton);
    QTRY_COMPARE(visibleHints(), QStringList{str("dialog")});
    QCOMPARE(tour.hint(InDialog)->window(), &dialog);
    QVERIFY(tour.hint(InDialog)->geometry().bottom() < name.y());

    // The dialog is closed with the hint in it.
    dialog.close();
    QTRY_COMPARE(visibleHints(), QStringList{str("pair")});
    QCOMPARE(tour.record->targets.last(), (QSet<QWidget*>{left, right}));
    QVERIFY(tour.hint(Pair)->x() > right->geometry().right());

    // One of two targets goes, the frame shrinks; with the other the hint goes as well.
    const int wide = tour.hint(Pair)->getTargetWidget()->width();
    left->hide();
    QTRY_VERIFY(tour.hint(Pair)->getTargetWidget()->width() < wide);
    QCOMPARE(visibleHints(), QStringList{str("pair")});
    right->hide();
    QTRY_COMPARE(visibleHints(), QStringList());

    // The last one waits for a state of the application's own.
    QTest::qWait(120);
    QCOMPARE(visibleHints(), QStringList());
    controller.gotoState(str("page/second"));
    QTRY_COMPARE(visibleHints(), QStringList{str("last")});
    QSignalSpy forever(&controller, &WalkthroughController::hintsDisabledForever);
    tour.hint(Last)->stopForever();
    QCOMPARE(forever.count(), 1);
    QVERIFY(!controller.isEnabled());
    QTRY_COMPARE(visibleHints(), QStringList());
}

QTEST_MAIN(tst_WalkthroughControllerHints)
#include "tst_WalkthroughControllerHints.moc"
