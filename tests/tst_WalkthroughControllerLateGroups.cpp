#include <KQt/Ui/WalkthroughController.h>

#include "support/Tour.h"

#include <QtTest>

#include <QEventLoop>
#include <QEventTransition>
#include <QPushButton>
#include <QState>

using Kestrel::Gui::WalkthroughController;
using namespace TestSupport;

namespace {

QStringList activePaths(const WalkthroughController& controller)
{
    QStringList paths;
    const auto active = controller.configuration();
    for (const QAbstractState* state : active) {
        const QState* group = state->parentState();
        if (group && group->parentState() == controller.initialState())
            paths.append(group->objectName() + QLatin1Char('/') + state->objectName());
    }
    paths.sort();
    return paths;
}

QState* stateOf(WalkthroughController& controller, const char* path)
{
    return qobject_cast<QState*>(controller.findOrCreateState(str(path)));
}

void waitUntilRunning(const WalkthroughController& controller)
{
    QTRY_VERIFY(controller.isRunning());
    QCoreApplication::processEvents(); // the queue of states is worked off
}

/// Counts what is posted to an object to be called in the event loop.
class CallCounter : public QObject
{
public:
    explicit CallCounter(QObject* receiver)
        : m_receiver(receiver)
    {
        QCoreApplication::instance()->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched == m_receiver && event->type() == QEvent::MetaCall)
            ++count;
        return false;
    }

    int count = 0;

private:
    QObject* m_receiver;
};

/// Not processEvents() alone: that would wait for nothing, but also hand out one round only.
void turnEventLoop(int rounds)
{
    for (int round = 0; round < rounds; ++round)
        QCoreApplication::processEvents();
}

} // namespace

/// Groups of states that come when the machine runs already.
class tst_WalkthroughControllerLateGroups : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void firstGroupOfAll();
    void firstGroupOfAllIsOneOfHints();
    void firstGroupOfAllAfterRestart();
    void nothingBesidesTheGroups();
    void waitsForANestedEventLoopQuietly();
    void switchesHintsOffInANestedEventLoop();
    void stopsWhileStatesWait();
    void machineIsElsewhere();
};

// An application may make the controller first and everything else much later.
void tst_WalkthroughControllerLateGroups::firstGroupOfAll()
{
    WalkthroughController controller;
    waitUntilRunning(controller);
    QSignalSpy entered(stateOf(controller, "b/finished"), &QState::entered);
    controller.gotoState(str("b/finished"));
    QCOMPARE(activePaths(controller), QStringList(str("b/finished")));
    QCOMPARE(entered.count(), 1);
    controller.gotoState(str("ready/b"));
    controller.gotoState(str("a"));
    controller.gotoState(str("a/ready"));
    controller.gotoState(str("/"));
    const QStringList all{str("/"), str("a/ready"), str("b/finished"), str("ready/b")};
    QCOMPARE(activePaths(controller), all);
    turnEventLoop(3);
    const CallCounter calls(&controller);
    turnEventLoop(20);
    QCOMPARE(calls.count, 0);
    QCOMPARE(activePaths(controller), all);
}

void tst_WalkthroughControllerLateGroups::firstGroupOfAllIsOneOfHints()
{
    WalkthroughController controller;
    waitUntilRunning(controller);
    QWidget window;
    window.resize(400, 300);
    QPushButton target(&window);
    target.setProperty("walkthroughWidget", str("x"));
    const Tour tour;
    controller.addHints(tour.prototype({simplePage("hint", "x")}));
    QCOMPARE(activePaths(controller), (QStringList{str("hint/ready"), str("x/inactive")}));
    window.show();
    QTRY_VERIFY(tour.hint(0)->isVisible());
}

void tst_WalkthroughControllerLateGroups::firstGroupOfAllAfterRestart()
{
    WalkthroughController controller;
    waitUntilRunning(controller);
    controller.stop();
    QTRY_VERIFY(!controller.isRunning());
    stateOf(controller, "a/one");
    controller.start();
    waitUntilRunning(controller);
    QCOMPARE(activePaths(controller), QStringList(str("a/one")));
    controller.gotoState(str("b/two"));
    QCOMPARE(activePaths(controller), (QStringList{str("a/one"), str("b/two")}));
}

void tst_WalkthroughControllerLateGroups::nothingBesidesTheGroups()
{
    WalkthroughController controller;
    const QState* one = stateOf(controller, "a/one");
    const QAbstractState* root = controller.initialState();
    QCOMPARE(root->findChildren<QAbstractState*>(QString(), Qt::FindDirectChildrenOnly),
             QList<QAbstractState*>{one->parentState()});
    waitUntilRunning(controller);
    QCOMPARE(controller.configuration().size(), 3);
}

// As a dialog that a slot of a state opens: the machine is busy until it is closed.
void tst_WalkthroughControllerLateGroups::waitsForANestedEventLoopQuietly()
{
    WalkthroughController controller;
    stateOf(controller, "g/a");
    QState* b = stateOf(controller, "g/b");
    waitUntilRunning(controller);
    CallCounter calls(&controller);
    connect(b, &QState::entered, this, [&] {
        controller.gotoState(str("late/first"));
        controller.gotoState(str("later/first"));
        controller.gotoState(str("late/second"));
        turnEventLoop(3);
        calls.count = 0;
        turnEventLoop(20);
        QCOMPARE(calls.count, 0);
        QCOMPARE(activePaths(controller), QStringList(str("g/b")));
    });
    controller.gotoState(b);
    QTRY_COMPARE(activePaths(controller), (QStringList{str("g/b"), str("late/second"), str("later/first")}));
    turnEventLoop(3);
    calls.count = 0;
    turnEventLoop(20);
    QCOMPARE(calls.count, 0);
}

void tst_WalkthroughControllerLateGroups::switchesHintsOffInANestedEventLoop()
{
    WalkthroughController controller;
    const Tour tour;
    controller.addHints(tour.prototype({simplePage("one", "x"), simplePage("two", "x")}));
    stateOf(controller, "g/a");
    QState* b = stateOf(controller, "g/b");
    waitUntilRunning(controller);
    connect(b, &QState::entered, this, [&] {
        controller.setEnabled(false);
        turnEventLoop(5);
    });
    controller.gotoState(b);
    QTRY_VERIFY(!controller.isEnabled());
    QCOMPARE(activePaths(controller),
             (QStringList{str("g/b"), str("one/disabled"), str("two/disabled"), str("x/inactive")}));
}

void tst_WalkthroughControllerLateGroups::stopsWhileStatesWait()
{
    WalkthroughController controller;
    stateOf(controller, "g/a");
    QState* b = stateOf(controller, "g/b");
    waitUntilRunning(controller);
    const auto stopper = connect(b, &QState::entered, this, [&] {
        controller.gotoState(str("late/second"));
        controller.stop();
    });
    controller.gotoState(b);
    QTRY_VERIFY(!controller.isRunning());
    disconnect(stopper);
    turnEventLoop(3);
    controller.start();
    waitUntilRunning(controller);
    // Waiting works again.
    connect(b, &QState::entered, this, [&] { controller.gotoState(str("later/first")); });
    controller.gotoState(b);
    QTRY_VERIFY(activePaths(controller).contains(str("later/first")));
}

// States of an application's own may take the place of all groups.
void tst_WalkthroughControllerLateGroups::machineIsElsewhere()
{
    WalkthroughController controller;
    stateOf(controller, "g/a");
    auto* away = new QState(&controller);
    auto* root = qobject_cast<QState*>(controller.initialState());
    QObject trigger;
    auto* leave = new QEventTransition(&trigger, QEvent::LanguageChange);
    leave->setTargetState(away);
    root->addTransition(leave);
    waitUntilRunning(controller);
    QEvent event(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&trigger, &event);
    QVERIFY(controller.configuration().contains(away));
    controller.gotoState(str("late/first"));
    turnEventLoop(3);
    const CallCounter calls(&controller);
    turnEventLoop(20);
    QCOMPARE(calls.count, 0);
    QVERIFY(controller.configuration().contains(away));
}

QTEST_MAIN(tst_WalkthroughControllerLateGroups)

#include "tst_WalkthroughControllerLateGroups.moc"
