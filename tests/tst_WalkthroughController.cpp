#include <KQt/Ui/WalkthroughController.h>

#include "support/Tour.h"

#include <QtTest>

#include <QAbstractTransition>
#include <QEventTransition>
#include <QMetaMethod>
#include <QState>

#include <memory>

using Kestrel::Gui::WalkthroughController;
using namespace TestSupport;

namespace {

/// The names of the active states, as paths.
QStringList activePaths(const WalkthroughController& controller)
{
    QStringList paths;
    const auto active = controller.configuration();
    for (const QAbstractState* state : active) {
        const QState* group = state->parentState();
        if (group && group->parentState() && group->parentState()->parentState() == &controller)
            paths.append(group->objectName() + QLatin1Char('/') + state->objectName());
    }
    paths.sort();
    return paths;
}

QState* stateOf(WalkthroughController& controller, const char* path)
{
    return qobject_cast<QState*>(controller.findOrCreateState(str(path)));
}

QStringList names(const QList<QState*>& states)
{
    QStringList result;
    for (const QState* state : states)
        result.append(state->objectName());
    return result;
}

void waitUntilRunning(const WalkthroughController& controller)
{
    QTRY_VERIFY(controller.isRunning());
    QCoreApplication::processEvents(); // the queue of states is worked off
}

} // namespace

/// The machine: states, switching, registering of hints. What hints do is tested in tst_WalkthroughControllerHints.
class tst_WalkthroughController : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void isPartOfTheMetaObjectSystem();
    void startsByItself();
    void joinsPaths();

    void createsStatesOnDemand();
    void joinsEveryPairOfStates();
    void firstStateOfAGroupIsInitial();
    void oddPaths_data();
    void oddPaths();

    void entersStatesAtOnce();
    void entersByEveryForm();
    void groupsAreIndependent();
    void ignoresNullState();
    void queuesStatesBeforeItRuns();
    void queuedDuplicatesKeepTheirOrder();
    void dropsStatesOnceStopped();
    void skipsDeletedQueuedStates();
    void entersFromSlotsOfStates();

    void addsOneHintPerPage();
    void createsTheStatesOfHints();
    void createsStatesInOrder();
    void releasesThePrototype();
    void ignoresNullPrototype();
    void acceptsPrototypeWithoutPages();
    void acceptsPagesWithoutProperties();
    void addsHintsTwice();
    void addsHintsWhileRunning();
    void lateGroupsDisturbNobody();
    void lateGroupsFromSlotsOfStates();
    void sameNameSharesAGroup();

    void isEnabledAtFirst();
    void disablesAndEnables();
    void enablingTwiceDoesNothing();
    void switchesGroupsInOneStep();
    void keepsTheTransitionsAsTheyAre();
    void disablesBeforeItRuns();
    void disablesFromSlotsOfStates();
    void disablesManyHints();
    void neverSwitchesHintsWithoutConditions();
    void worksAfterRestart();
    void servesTransitionsOfTheApplication();
};

void tst_WalkthroughController::cleanup()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(QApplication::topLevelWidgets(), QWidgetList());
}

void tst_WalkthroughController::isPartOfTheMetaObjectSystem()
{
    const QMetaObject& meta = WalkthroughController::staticMetaObject;
    QCOMPARE(meta.className(), "Kestrel::Gui::WalkthroughController");
    QCOMPARE(meta.superClass()->className(), "QStateMachine");
    QVERIFY(meta.indexOfSignal("hintsDisabledForever()") >= 0);
    for (const char* slot : {"disableHintsForSession()", "disableHintsForever()", "enteredState()", "exitedState()",
                             "executeQueuedStates()", "clearQueuedStates()", "showOrHideHints()"}) {
        const int index = meta.indexOfSlot(slot);
        QVERIFY2(index >= 0, slot);
        QCOMPARE(meta.method(index).access(), QMetaMethod::Private);
    }
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1 + 7 + 2);
    WalkthroughController controller;
    bool enabled = false;
    QVERIFY(QMetaObject::invokeMethod(&controller, "isEnabled", Q_RETURN_ARG(bool, enabled)));
    QVERIFY(enabled);
    QVERIFY(QMetaObject::invokeMethod(&controller, "setEnabled", Q_ARG(bool, true)));
    QVERIFY(!controller.parent());
}

void tst_WalkthroughController::startsByItself()
{
    WalkthroughController controller;
    QVERIFY(!controller.isRunning());
    QTRY_VERIFY(controller.isRunning());
    const auto* root = qobject_cast<QState*>(controller.initialState());
    QVERIFY(root);
    QCOMPARE(root->childMode(), QState::ParallelStates);
    QCOMPARE(root->parent(), &controller);
    const auto* timer = controller.findChild<QTimer*>(QString(), Qt::FindDirectChildrenOnly);
    QVERIFY(timer);
    QCOMPARE(timer->interval(), 50);
    QVERIFY(timer->isSingleShot());
}

void tst_WalkthroughController::joinsPaths()
{
    const WalkthroughController controller;
    QCOMPARE(controller.statePath(str("group"), str("state")), str("group/state"));
    QCOMPARE(controller.statePath(QString(), QString()), str("/"));
}

void tst_WalkthroughController::createsStatesOnDemand()
{
    WalkthroughController controller;
    QState* state = stateOf(controller, "group/state");
    QCOMPARE(state->objectName(), str("state"));
    QCOMPARE(state->childMode(), QState::ExclusiveStates);
    QState* group = state->parentState();
    QCOMPARE(group->objectName(), str("group"));
    QCOMPARE(group->childMode(), QState::ExclusiveStates);
    QCOMPARE(group->parentState(), qobject_cast<QState*>(controller.initialState()));
    QCOMPARE(stateOf(controller, "group/state"), state);
    QCOMPARE(stateOf(controller, "group/other")->parentState(), group);
    QVERIFY(stateOf(controller, "other/state") != state);
    QCOMPARE(group->findChildren<QState*>(QString(), Qt::FindDirectChildrenOnly).size(), 2);
}

void tst_WalkthroughController::joinsEveryPairOfStates()
{
    WalkthroughController controller;
    const QVector<QState*> states{stateOf(controller, "g/a"), stateOf(controller, "g/b"), stateOf(controller, "g/c"),
                                  stateOf(controller, "g/d")};
    stateOf(controller, "other/a");
    for (const QState* from : states) {
        QSet<QAbstractState*> reached;
        const auto transitions = from->transitions();
        for (const QAbstractTransition* transition : transitions) {
            const auto* byEvent = qobject_cast<const QEventTransition*>(transition);
            QVERIFY(byEvent);
            QCOMPARE(byEvent->eventType(), QEvent::None);
            QCOMPARE(byEvent->eventSource(), static_cast<QObject*>(byEvent->targetState()));
            reached.insert(byEvent->targetState());
        }
        QCOMPARE(transitions.size(), states.size() - 1);
        QCOMPARE(reached.size(), states.size() - 1);
        QVERIFY(!reached.contains(const_cast<QState*>(from)));
    }
}

void tst_WalkthroughController::firstStateOfAGroupIsInitial()
{
    WalkthroughController controller;
    stateOf(controller, "g/first");
    stateOf(controller, "g/second");
    QCOMPARE(stateOf(controller, "g/second")->parentState()->initialState(), stateOf(controller, "g/first"));
    waitUntilRunning(controller);
    QCOMPARE(activePaths(controller), QStringList{str("g/first")});
}

void tst_WalkthroughController::oddPaths_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("group");
    QTest::addColumn<QString>("state");
    QTest::newRow("no separator") << str("lonely") << str("lonely") << QString();
    QTest::newRow("empty") << str("") << QString() << QString();
    QTest::newRow("null") << QString() << QString() << QString();
    QTest::newRow("empty state") << str("group/") << str("group") << QString();
    QTest::newRow("empty group") << str("/state") << QString() << str("state");
    QTest::newRow("separator alone") << str("/") << QString() << QString();
    QTest::newRow("three parts") << str("group/state/rest") << str("group") << str("state");
}

void tst_WalkthroughController::oddPaths()
{
    QFETCH(QString, path);
    QFETCH(QString, group);
    QFETCH(QString, state);
    WalkthroughController controller;
    // An empty name must not find just any state.
    controller.findOrCreateState(str("known/one"));
    controller.findOrCreateState(group + str("/known"));
    QAbstractState* found = controller.findOrCreateState(path);
    QVERIFY(found);
    QCOMPARE(found->objectName(), state);
    QCOMPARE(found->parentState()->objectName(), group);
    QCOMPARE(controller.findOrCreateState(path), found);
    waitUntilRunning(controller);
    controller.gotoState(path);
    QVERIFY(controller.configuration().contains(found));
}

void tst_WalkthroughController::entersStatesAtOnce()
{
    WalkthroughController controller;
    QState* a = stateOf(controller, "g/a");
    QState* b = stateOf(controller, "g/b");
    waitUntilRunning(controller);
    QSignalSpy left(a, &QState::exited);
    QSignalSpy entered(b, &QState::entered);
    controller.gotoState(b);
    QCOMPARE(activePaths(controller), QStringList{str("g/b")});
    QCOMPARE(left.count(), 1);
    QCOMPARE(entered.count(), 1);
    controller.gotoState(b);
    QCOMPARE(entered.count(), 1); // it is the active one already
    controller.gotoState(a);
    QCOMPARE(activePaths(controller), QStringList{str("g/a")});
    // A state that did not exist when the machine started.
    controller.gotoState(str("g/c"));
    QCOMPARE(activePaths(controller), QStringList{str("g/c")});
    controller.gotoState(a);
    QCOMPARE(activePaths(controller), QStringList{str("g/a")});
}

void tst_WalkthroughController::entersByEveryForm()
{
    WalkthroughController controller;
    stateOf(controller, "g/a");
    waitUntilRunning(controller);
    controller.gotoState(stateOf(controller, "g/b"));
    QCOMPARE(activePaths(controller), QStringList{str("g/b")});
    controller.gotoState(str("g/a"));
    QCOMPARE(activePaths(controller), QStringList{str("g/a")});
    controller.gotoState(str("g"), str("b"));
    QCOMPARE(activePaths(controller), QStringList{str("g/b")});
}

void tst_WalkthroughController::groupsAreIndependent()
{
    WalkthroughController controller;
    for (const char* path : {"g/a", "g/b", "h/a", "h/b", "i/a"})
        stateOf(controller, path);
    waitUntilRunning(controller);
    controller.gotoState(str("h/b"));
    QCOMPARE(activePaths(controller), (QStringList{str("g/a"), str("h/b"), str("i/a")}));
    controller.gotoState(str("g/b"));
    QCOMPARE(activePaths(controller), (QStringList{str("g/b"), str("h/b"), str("i/a")}));
}

void tst_WalkthroughController::ignoresNullState()
{
    WalkthroughController controller;
    controller.gotoState(nullptr);
    waitUntilRunning(controller);
    controller.gotoState(nullptr);
    QCOMPARE(activePaths(controller), QStringList());
}

void tst_WalkthroughController::queuesStatesBeforeItRuns()
{
    WalkthroughController controller;
    stateOf(controller, "g/a");
    controller.gotoState(str("g/b"));
    QVERIFY(!controller.isRunning());
    QCOMPARE(activePaths(controller), QStringList());
    QTRY_COMPARE(activePaths(controller), QStringList{str("g/b")});
}

void tst_WalkthroughController::queuedDuplicatesKeepTheirOrder()
{
    WalkthroughController controller;
    stateOf(controller, "g/first");
    stateOf(controller, "h/first");
    QStringList entered;
    for (const char* path : {"g/a", "g/b", "h/a", "h/b"}) {
        connect(stateOf(controller, path), &QState::entered, this,
                [&entered, path] { entered.append(QString::fromLatin1(path)); });
        controller.gotoState(str(path));
    }
    controller.gotoState(str("g/a"));
    QTRY_COMPARE(activePaths(controller), (QStringList{str("g/a"), str("h/b")}));
    QCOMPARE(entered, (QStringList{str("g/a"), str("g/b"), str("h/a"), str("h/b"), str("g/a")}));
}

void tst_WalkthroughController::dropsStatesOnceStopped()
{
    WalkthroughController controller;
    stateOf(controller, "g/a");
    waitUntilRunning(controller);
    // The queue is cleared once control is back in the event loop after the stop.
    connect(&controller, &QStateMachine::stopped, this, [&] { controller.gotoState(str("g/b")); });
    controller.stop();
    QTRY_VERIFY(!controller.isRunning());
    QCoreApplication::processEvents();
    controller.start();
    QTRY_VERIFY(controller.isRunning());
    QCoreApplication::processEvents();
    QCOMPARE(activePaths(controller), QStringList{str("g/a")});
}

void tst_WalkthroughController::skipsDeletedQueuedStates()
{
    WalkthroughController controller;
    stateOf(controller, "g/a");
    QState* doomed = stateOf(controller, "h/a");
    stateOf(controller, "h/b");
    controller.gotoState(stateOf(controller, "h/b"));
    controller.gotoState(doomed);
    controller.gotoState(str("g/b"));
    delete doomed->parentState();
    QTRY_COMPARE(activePaths(controller), QStringList{str("g/b")});
}

void tst_WalkthroughController::entersFromSlotsOfStates()
{
    WalkthroughController controller;
    stateOf(controller, "g/a");
    stateOf(controller, "h/a");
    stateOf(controller, "h/b");
    waitUntilRunning(controller);
    connect(stateOf(controller, "g/b"), &QState::entered, this, [&] { controller.gotoState(str("h/b")); });
    controller.gotoState(str("g/b"));
    QCOMPARE(activePaths(controller), (QStringList{str("g/b"), str("h/b")}));
    // Of its own group as well.
    QSignalSpy entered(stateOf(controller, "g/c"), &QState::entered);
    connect(stateOf(controller, "g/c"), &QState::entered, this, [&] { controller.gotoState(str("g/a")); });
    controller.gotoState(str("g/c"));
    QCOMPARE(activePaths(controller), (QStringList{str("g/a"), str("h/b")}));
    QCOMPARE(entered.count(), 1);
}

void tst_WalkthroughController::addsOneHintPerPage()
{
    WalkthroughController controller;
    const Tour tour;
    controller.addHints(tour.prototype({simplePage("one", "x"), simplePage("two", "y"), simplePage("three", "x")}));
    QCOMPARE(tour.record->copies.size(), 3);
    QCOMPARE(tour.hint(0)->hintName(), str("one"));
    QCOMPARE(tour.hint(1)->hintName(), str("two"));
    QCOMPARE(tour.hint(2)->hintName(), str("three"));
    QCOMPARE(tour.hint(1)->contentWidget(), tour.hint(1)->stackedWidget()->widget(1));
    for (int page = 0; page < 3; ++page)
        QVERIFY(!tour.hint(page)->isVisible());
}

void tst_WalkthroughController::createsTheStatesOfHints()
{
    WalkthroughController controller;
    const Tour tour;
    TourPage page = simplePage("hint", "target");
    page.conditions.append(str("own/step"));
    controller.addHints(tour.prototype({page}));
    waitUntilRunning(controller);
    QCOMPARE(activePaths(controller), (QStringList{str("hint/ready"), str("own/step"), str("target/inactive")}));
}

void tst_WalkthroughController::createsStatesInOrder()
{
    WalkthroughController controller;
    const Tour tour;
    controller.addHints(tour.prototype({{str("hint"), str("target"), {str("hint/ready")}}}));
    const auto* root = qobject_cast<QState*>(controller.initialState());
    const auto groups = root->findChildren<QState*>(QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(names(groups), (QStringList{str("hint"), str("target")}));
    QCOMPARE(names(groups.at(0)->findChildren<QState*>(QString(), Qt::FindDirectChildrenOnly)),
             (QStringList{str("ready"), str("finished"), str("disabled")}));
    // "active" comes with the first widget of that name.
    QCOMPARE(names(groups.at(1)->findChildren<QState*>(QString(), Qt::FindDirectChildrenOnly)),
             (QStringList{str("inactive")}));
}

void tst_WalkthroughController::releasesThePrototype()
{
    WalkthroughController controller;
    const Tour tour;
    const QPointer<TourHint> prototype = tour.prototype({simplePage("hint", "target")});
    controller.addHints(prototype);
    QVERIFY(prototype);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!prototype);
    QVERIFY(tour.hint(0));
}

void tst_WalkthroughController::ignoresNullPrototype()
{
    WalkthroughController controller;
    controller.addHints(nullptr);
    waitUntilRunning(controller);
    controller.addHints(nullptr);
    QVERIFY(controller.isEnabled());
    QCOMPARE(activePaths(controller), QStringList());
}

void tst_WalkthroughController::acceptsPrototypeWithoutPages()
{
    WalkthroughController controller;
    const Tour tour;
    const QPointer<TourHint> prototype = tour.prototype({});
    controller.addHints(prototype);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!prototype);
    QVERIFY(tour.record->copies.isEmpty());
}

void tst_WalkthroughController::acceptsPagesWithoutProperties()
{
    Tour tour;
    {
        WalkthroughController controller;
        controller.addHints(tour.prototype({{}, {QString(), QString(), {str("own/step")}}}));
        waitUntilRunning(controller);
        // Both share the group without a name, which is the hint's and the target's.
        QCOMPARE(activePaths(controller), (QStringList{str("/ready"), str("own/step")}));
        QWidget plain;
        plain.show();
        QTest::mouseClick(&plain, Qt::LeftButton);
        QCOMPARE(activePaths(controller), (QStringList{str("/ready"), str("own/step")}));
        controller.setEnabled(false);
        QCOMPARE(activePaths(controller), (QStringList{str("/disabled"), str("own/step")}));
        QVERIFY(!controller.isEnabled());
    }
    QVERIFY(tour.record->log.isEmpty());
}

void tst_WalkthroughController::addsHintsTwice()
{
    WalkthroughController controller;
    const Tour first;
    const Tour second;
    controller.addHints(first.prototype({simplePage("one", "x")}));
    controller.addHints(second.prototype({simplePage("two", "x"), simplePage("one", "y")}));
    waitUntilRunning(controller);
    QCOMPARE(activePaths(controller),
             (QStringList{str("one/ready"), str("two/ready"), str("x/inactive"), str("y/inactive")}));
    controller.setEnabled(false);
    QCOMPARE(activePaths(controller),
             (QStringList{str("one/disabled"), str("two/disabled"), str("x/inactive"), str("y/inactive")}));
}

void tst_WalkthroughController::addsHintsWhileRunning()
{
    WalkthroughController controller;
    const Tour first;
    controller.addHints(first.prototype({simplePage("one", "x")}));
    waitUntilRunning(controller);
    controller.gotoState(str("x/active"));
    controller.gotoState(str("one/finished"));

    const Tour second;
    controller.addHints(second.prototype({simplePage("two", "y"), simplePage("three", "x")}));
    QCOMPARE(activePaths(controller), (QStringList{str("one/finished"), str("three/ready"), str("two/ready"),
                                                   str("x/active"), str("y/inactive")}));
    controller.gotoState(str("y/active"));
    controller.setEnabled(false);
    QCOMPARE(activePaths(controller), (QStringList{str("one/disabled"), str("three/disabled"), str("two/disabled"),
                                                   str("x/active"), str("y/active")}));
}

// A region joins running ones only by re-entering all. Whoever listens to the others must not hear of it.
void tst_WalkthroughController::lateGroupsDisturbNobody()
{
    WalkthroughController controller;
    QState* a = stateOf(controller, "g/a");
    QState* b = stateOf(controller, "g/b");
    QState* other = stateOf(controller, "h/a");
    waitUntilRunning(controller);
    controller.gotoState(b);
    std::vector<std::unique_ptr<QSignalSpy>> spies;
    for (QState* state : {a, b, other, b->parentState(), other->parentState()}) {
        spies.push_back(std::make_unique<QSignalSpy>(state, &QState::entered));
        spies.push_back(std::make_unique<QSignalSpy>(state, &QState::exited));
    }
    QSignalSpy late(stateOf(controller, "late/initial"), &QState::entered);
    controller.gotoState(str("late/second"));
    QCOMPARE(activePaths(controller), (QStringList{str("g/b"), str("h/a"), str("late/second")}));
    QCOMPARE(late.count(), 1);
    for (const auto& spy : spies)
        QCOMPARE(spy->count(), 0);
    // And they are heard again afterwards.
    controller.gotoState(a);
    QCOMPARE(spies.at(0)->count(), 1);
    QCOMPARE(spies.at(3)->count(), 1);
}

void tst_WalkthroughController::lateGroupsFromSlotsOfStates()
{
    WalkthroughController controller;
    stateOf(controller, "g/a");
    QState* b = stateOf(controller, "g/b");
    waitUntilRunning(controller);
    const Tour tour;
    connect(b, &QState::entered, this, [&] {
        controller.gotoState(str("late/second"));
        controller.addHints(tour.prototype({simplePage("hint", "target")}));
    });
    stateOf(controller, "late/first");
    controller.gotoState(b);
    QTRY_COMPARE(activePaths(controller),
                 (QStringList{str("g/b"), str("hint/ready"), str("late/second"), str("target/inactive")}));
    // A slot of a new state that switches another one must not do so unheard.
    connect(stateOf(controller, "later/first"), &QState::entered, this, [&] { controller.gotoState(str("g/a")); });
    QSignalSpy left(b, &QState::exited);
    controller.gotoState(str("later/first"));
    QTRY_VERIFY(activePaths(controller).contains(str("g/a")));
    QCOMPARE(left.count(), 1);
}

void tst_WalkthroughController::sameNameSharesAGroup()
{
    WalkthroughController controller;
    const Tour tour;
    controller.addHints(tour.prototype({simplePage("same", "x"), simplePage("same", "y")}));
    waitUntilRunning(controller);
    QCOMPARE(activePaths(controller), (QStringList{str("same/ready"), str("x/inactive"), str("y/inactive")}));
    controller.setEnabled(false);
    QVERIFY(!controller.isEnabled());
    QCOMPARE(activePaths(controller), (QStringList{str("same/disabled"), str("x/inactive"), str("y/inactive")}));
}

void tst_WalkthroughController::isEnabledAtFirst()
{
    WalkthroughController controller;
    QVERIFY(controller.isEnabled());
    const Tour tour;
    controller.addHints(tour.prototype({simplePage("one", "x")}));
    QVERIFY(controller.isEnabled());
    waitUntilRunning(controller);
    QVERIFY(controller.isEnabled());
    // A state of that name elsewhere has nothing to do with hints.
    controller.gotoState(str("other/disabled"));
    QVERIFY(controller.isEnabled());
    controller.gotoState(str("one/disabled"));
    QVERIFY(!controller.isEnabled());
}

void tst_WalkthroughController::disablesAndEnables()
{
    WalkthroughController controller;
    const Tour tour;
    controller.addHints(tour.prototype({simplePage("one", "x"), simplePage("two", "x"), simplePage("three", "y")}));
    waitUntilRunning(controller);
    controller.gotoState(str("two/finished"));
    QSignalSpy forever(&controller, &WalkthroughController::hintsDisabledForever);
    controller.setEnabled(false);
    QCOMPARE(activePaths(controller), (QStringList{str("one/disabled"), str("three/disabled"), str("two/disabled"),
                                                   str("x/inactive"), str("y/inactive")}));
    QVERIFY(!controller.isEnabled());
    controller.setEnabled(true);
    QCOMPARE(activePaths(controller), (QStringList{str("one/ready"), str("three/ready"), str("two/ready"),
                                                   str("x/inactive"), str("y/inactive")}));
    QVERIFY(controller.isEnabled());
    QCOMPARE(forever.count(), 0);
}

void tst_WalkthroughController::enablingTwiceDoesNothing()
{
    WalkthroughController controller;
    const Tour tour;
    controller.addHints(tour.prototype({simplePage("one", "x"), simplePage("two", "x")}));
    waitUntilRunning(controller);
    controller.gotoState(str("one/finished"));
    controller.setEnabled(true);
    QVERIFY(activePaths(controller).contains(str("one/finished")));
    controller.gotoState(str("two/disabled"));
    controller.setEnabled(false); // one of them is off already, so that all count as off
    QVERIFY(activePaths(controller).contains(str("one/finished")));
}

// A step of the machine costs the square of the number of groups: one for all of them, not one for each.
void tst_WalkthroughController::switchesGroupsInOneStep()
{
    class Witness : public QAbstractTransition
    {
    public:
        int asked = 0;

    protected:
        bool eventTest(QEvent*) override
        {
            ++asked;
            return false;
        }
        void onTransition(QEvent*) override {}
    };
    WalkthroughController controller;
    const Tour tour;
    QVector<TourPage> pages;
    for (int i = 0; i < 20; ++i)
        pages.append(simplePage(qPrintable(str("hint%1").arg(i)), "target"));
    controller.addHints(tour.prototype(pages));
    auto* witness = new Witness; // asked once per step
    stateOf(controller, "target/inactive")->addTransition(witness);
    waitUntilRunning(controller);
    controller.gotoState(str("hint3/finished"));
    const int perStep = [&] {
        witness->asked = 0;
        controller.gotoState(str("hint4/finished"));
        return witness->asked;
    }();
    for (const bool enable : {false, true, false}) {
        witness->asked = 0;
        controller.setEnabled(enable);
        QVERIFY2(witness->asked <= perStep, QByteArray::number(witness->asked));
        for (int i = 0; i < 20; ++i) {
            const QString state = enable ? str("ready") : str("disabled");
            QVERIFY(activePaths(controller).contains(str("hint%1/").arg(i) + state));
        }
    }
}

void tst_WalkthroughController::keepsTheTransitionsAsTheyAre()
{
    WalkthroughController controller;
    const Tour tour;
    controller.addHints(tour.prototype({simplePage("one", "x"), simplePage("two", "x")}));
    waitUntilRunning(controller);
    const auto countTransitions = [&] { return controller.findChildren<QAbstractTransition*>().size(); };
    const int before = countTransitions();
    controller.setEnabled(false);
    controller.setEnabled(true);
    QCOMPARE(countTransitions(), before);
    controller.gotoState(str("late/initial"));
    QCOMPARE(countTransitions(), before);
}

void tst_WalkthroughController::disablesBeforeItRuns()
{
    WalkthroughController controller;
    const Tour tour;
    controller.addHints(tour.prototype({simplePage("one", "x"), simplePage("two", "x")}));
    controller.setEnabled(false);
    QVERIFY(controller.isEnabled()); // no group has a state yet
    controller.setEnabled(true);     // so that this does nothing, and the wish stands
    QTRY_VERIFY(!controller.isEnabled());
    QCOMPARE(activePaths(controller), (QStringList{str("one/disabled"), str("two/disabled"), str("x/inactive")}));
}

void tst_WalkthroughController::disablesFromSlotsOfStates()
{
    WalkthroughController controller;
    const Tour tour;
    controller.addHints(tour.prototype({simplePage("one", "x"), simplePage("two", "x")}));
    QState* off = stateOf(controller, "application/off");
    stateOf(controller, "application/on");
    waitUntilRunning(controller);
    controller.gotoState(str("application/on"));
    const int before = controller.findChildren<QAbstractTransition*>().size();
    connect(off, &QState::entered, this, [&] {
        controller.gotoState(str("one/finished")); // on its way first, and overtaken
        controller.setEnabled(false);
    });
    controller.gotoState(off);
    QTRY_COMPARE(activePaths(controller),
                 (QStringList{str("application/off"), str("one/disabled"), str("two/disabled"), str("x/inactive")}));
    QTRY_COMPARE(controller.findChildren<QAbstractTransition*>().size(), before);
}

void tst_WalkthroughController::disablesManyHints()
{
    WalkthroughController controller;
    const Tour tour;
    QVector<TourPage> pages;
    for (int i = 0; i < 60; ++i)
        pages.append(simplePage(qPrintable(str("hint%1").arg(i)), qPrintable(str("target%1").arg(i % 7))));
    controller.addHints(tour.prototype(pages));
    waitUntilRunning(controller);
    for (int i = 0; i < 60; i += 3)
        controller.gotoState(str("hint%1").arg(i), str("finished"));
    controller.gotoState(str("target3/active"));
    controller.setEnabled(false);
    QVERIFY(!controller.isEnabled());
    for (const bool enable : {false, true}) {
        controller.setEnabled(enable);
        const QStringList active = activePaths(controller);
        QCOMPARE(active.size(), 60 + 7);
        QCOMPARE(active.filter(enable ? str("/ready") : str("/disabled")).size(), 60);
        QVERIFY(active.contains(str("target3/active")));
    }
}

void tst_WalkthroughController::neverSwitchesHintsWithoutConditions()
{
    Tour tour;
    QPointer<TourHint> free;
    {
        WalkthroughController controller;
        controller.addHints(tour.prototype({{str("free"), str("x"), {}}, simplePage("bound", "x")}));
        waitUntilRunning(controller);
        controller.setEnabled(false);
        QCOMPARE(activePaths(controller), (QStringList{str("bound/disabled"), str("free/ready"), str("x/inactive")}));
        free = tour.hint(0);
        QVERIFY(free);
    }
    // The controller does not delete what it does not show, and leaves nothing behind either.
    QVERIFY(free);
    QVERIFY(!tour.hint(1));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!free);
}

void tst_WalkthroughController::worksAfterRestart()
{
    WalkthroughController controller;
    const Tour tour;
    controller.addHints(tour.prototype({simplePage("one", "x")}));
    waitUntilRunning(controller);
    controller.stop();
    QTRY_VERIFY(!controller.isRunning());
    controller.start();
    waitUntilRunning(controller);
    QWidget target;
    target.setProperty("walkthroughWidget", str("x"));
    target.show();
    QTRY_COMPARE(tour.record->log, QStringList{str("start one")});
}

// A state may be given transitions for other events. The controller's filter, which has no use for these, must not lose
// them.
void tst_WalkthroughController::servesTransitionsOfTheApplication()
{
    WalkthroughController controller;
    QState* a = stateOf(controller, "g/a");
    QState* b = stateOf(controller, "g/b");
    QWidget watched;
    auto* before = new QEventTransition(&watched, QEvent::Enter, a);
    before->setTargetState(b);
    waitUntilRunning(controller);
    QEvent event(QEvent::Enter);
    QCoreApplication::sendEvent(&watched, &event);
    QCOMPARE(activePaths(controller), QStringList{str("g/b")});

    WalkthroughController later;
    QState* x = stateOf(later, "g/x");
    QState* y = stateOf(later, "g/y");
    waitUntilRunning(later);
    auto* running = new QEventTransition(&watched, QEvent::Show);
    running->setTargetState(y);
    x->addTransition(running);
    watched.show();
    QCOMPARE(activePaths(later), QStringList{str("g/y")});
}

QTEST_MAIN(tst_WalkthroughController)
#include "tst_WalkthroughController.moc"
