#include <KQt/Ui/TaskbarProgress.h>

#include "windows/ScriptedTaskbarList.h"

#include <QtTest>
#include <QWidget>
#include <QWindow>

#include <limits>
#include <memory>

using Kestrel::Gui::TaskbarProgress;
using TestSupport::ScriptedTaskbar;

namespace {

HWND handleOf(const QWindow& window)
{
    return reinterpret_cast<HWND>(window.winId());
}

UINT buttonCreated()
{
    return RegisterWindowMessageW(L"TaskbarButtonCreated");
}

/// As the shell does once the window has a button.
void sendButtonCreated(const QWindow& window)
{
    SendMessageW(handleOf(window), buttonCreated(), 0, 0);
}

QString valueCall(HWND window, int value)
{
    return QStringLiteral("value %1 %2/100").arg(reinterpret_cast<quintptr>(window), 0, 16).arg(value);
}
QString stateCall(HWND window, const char* state)
{
    return QStringLiteral("state %1 %2").arg(reinterpret_cast<quintptr>(window), 0, 16).arg(QLatin1String(state));
}

QStringList madeList()
{
    return {QStringLiteral("create"), QStringLiteral("init")};
}

QStringList shown(HWND window, int value, const char* state = "normal")
{
    return {valueCall(window, value), stateCall(window, state)};
}

} // namespace

/// TaskbarProgress without Qt's Windows Extras: what the shell's taskbar list is told, and when.
class tst_TaskbarListIndicator : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void waitsForTheButton();
    void makesNoNativeWindow();
    void postedMessageCountsToo();
    void messagesToOtherWindowsAreNotMeant();
    void windowOnTheScreenHasItsButton();
    void widgetsWindow();
    void hiddenWindowHasNoButton();
    void progressIsOfAHundred_data();
    void progressIsOfAHundred();
    void onlyChangesAreTold();
    void busy();
    void pausedKeepsTheValue();
    void stoppedKeepsTheValue();
    void resetHides();
    void resetWindowIsNotToldOfItsButton();
    void busyAgainAfterReset();
    void destructionAfterStopLeavesNoIndicator();
    void restartedShellIsToldAgain();
    void nativeWindowMadeAnew();
    void deletedWindowIsLeftAlone();
    void noWindow();
    void failures_data();
    void failures();
    void taskbarOfTheShell();

private:
    std::unique_ptr<ScriptedTaskbar> m_taskbar;
};

void tst_TaskbarListIndicator::initTestCase()
{
    QCOMPARE(QGuiApplication::platformName(), QStringLiteral("windows"));
}

void tst_TaskbarListIndicator::init()
{
    m_taskbar = std::make_unique<ScriptedTaskbar>();
}

void tst_TaskbarListIndicator::cleanup()
{
    QCOMPARE(m_taskbar->living, 0);
    m_taskbar.reset();
}

void tst_TaskbarListIndicator::waitsForTheButton()
{
    QWindow window;
    TaskbarProgress progress(&window);
    progress.SetProgress(0.3);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    progress.SetProgress(0.5);
    QCOMPARE(m_taskbar->takeCalls(), QStringList());

    sendButtonCreated(window);
    QCOMPARE(m_taskbar->takeCalls(), madeList() + shown(handleOf(window), 50));
    progress.SetProgress(0.6);
    QCOMPARE(m_taskbar->takeCalls(), shown(handleOf(window), 60));
}

void tst_TaskbarListIndicator::makesNoNativeWindow()
{
    QWindow window;
    TaskbarProgress progress(&window);
    progress.SetProgress(0.3);
    QVERIFY(!window.handle());
}

void tst_TaskbarListIndicator::postedMessageCountsToo()
{
    QWindow window;
    const TaskbarProgress progress(&window);
    window.create();
    PostMessageW(handleOf(window), buttonCreated(), 0, 0);
    QTRY_VERIFY(!m_taskbar->calls.isEmpty());
    QCOMPARE(m_taskbar->takeCalls().mid(0, 4), madeList() + shown(handleOf(window), 0));
}

void tst_TaskbarListIndicator::messagesToOtherWindowsAreNotMeant()
{
    QWindow window;
    QWindow other;
    window.create();
    other.create();
    const TaskbarProgress progress(&window);
    sendButtonCreated(other);
    SendMessageW(handleOf(window), WM_NULL, 0, 0);
    QCOMPARE(m_taskbar->takeCalls(), QStringList());
}

void tst_TaskbarListIndicator::windowOnTheScreenHasItsButton()
{
    QWindow window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const TaskbarProgress progress(&window);
    QCOMPARE(m_taskbar->takeCalls(), madeList() + shown(handleOf(window), 0));
}

void tst_TaskbarListIndicator::widgetsWindow()
{
    QWidget widget;
    widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
    TaskbarProgress progress(widget.windowHandle());
    progress.SetProgress(0.25);
    QCOMPARE(m_taskbar->takeCalls().constFirst(), QStringLiteral("create"));
}

void tst_TaskbarListIndicator::hiddenWindowHasNoButton()
{
    QWindow window;
    window.create();
    TaskbarProgress progress(&window);
    progress.SetProgress(0.25);
    QCOMPARE(m_taskbar->takeCalls(), QStringList());
}

void tst_TaskbarListIndicator::progressIsOfAHundred_data()
{
    QTest::addColumn<double>("fraction");
    QTest::addColumn<int>("value");
    QTest::newRow("0.004") << 0.004 << 0;
    QTest::newRow("0.005") << 0.005 << 1;
    QTest::newRow("0.995") << 0.995 << 100;
    QTest::newRow("1") << 1.0 << 100;
    QTest::newRow("more") << 7.5 << 100;
    QTest::newRow("less") << -7.5 << 0;
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << 100;
    QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN() << 0;
}

void tst_TaskbarListIndicator::progressIsOfAHundred()
{
    QFETCH(double, fraction);
    QFETCH(int, value);
    QWindow window;
    TaskbarProgress progress(&window);
    progress.SetProgress(0.5);
    window.create();
    sendButtonCreated(window);
    m_taskbar->calls.clear();
    progress.SetProgress(fraction);
    QCOMPARE(m_taskbar->takeCalls(), shown(handleOf(window), value));
}

void tst_TaskbarListIndicator::onlyChangesAreTold()
{
    QWindow window;
    TaskbarProgress progress(&window);
    window.create();
    sendButtonCreated(window);
    progress.SetProgress(0.5);
    m_taskbar->calls.clear();
    progress.SetProgress(0.5);
    progress.SetProgress(0.501);
    QCOMPARE(m_taskbar->takeCalls(), QStringList());
}

void tst_TaskbarListIndicator::busy()
{
    QWindow window;
    TaskbarProgress progress(&window);
    window.create();
    sendButtonCreated(window);
    m_taskbar->calls.clear();
    progress.SetIndeterminate();
    QCOMPARE(m_taskbar->takeCalls(), QStringList(stateCall(handleOf(window), "busy")));
    progress.SetProgress(0.5);
    QCOMPARE(m_taskbar->takeCalls().mid(2), shown(handleOf(window), 50));
}

void tst_TaskbarListIndicator::pausedKeepsTheValue()
{
    QWindow window;
    TaskbarProgress progress(&window);
    window.create();
    sendButtonCreated(window);
    progress.SetProgress(0.5);
    m_taskbar->calls.clear();
    progress.Pause();
    QCOMPARE(m_taskbar->takeCalls(), shown(handleOf(window), 50, "paused"));
}

void tst_TaskbarListIndicator::stoppedKeepsTheValue()
{
    QWindow window;
    TaskbarProgress progress(&window);
    window.create();
    sendButtonCreated(window);
    progress.SetProgress(0.5);
    m_taskbar->calls.clear();
    progress.Stop();
    QCOMPARE(m_taskbar->takeCalls(), shown(handleOf(window), 50, "error"));
}

/// The value comes before the state and never with a hidden one: it would bring the indicator back.
void tst_TaskbarListIndicator::resetHides()
{
    QWindow window;
    TaskbarProgress progress(&window);
    window.create();
    sendButtonCreated(window);
    progress.SetProgress(0.5);
    progress.Reset();
    QCOMPARE(m_taskbar->takeCalls().constLast(), stateCall(handleOf(window), "none"));
    progress.SetProgress(0.2);
    QCOMPARE(m_taskbar->takeCalls().mid(2), shown(handleOf(window), 20));
}

void tst_TaskbarListIndicator::resetWindowIsNotToldOfItsButton()
{
    QWindow window;
    TaskbarProgress progress(&window);
    progress.Reset();
    window.create();
    sendButtonCreated(window);
    QCOMPARE(m_taskbar->takeCalls(), QStringList());
    progress.SetIndeterminate();
    QCOMPARE(m_taskbar->takeCalls().constLast(), stateCall(handleOf(window), "busy"));
}

void tst_TaskbarListIndicator::busyAgainAfterReset()
{
    QWindow window;
    TaskbarProgress progress(&window);
    window.create();
    sendButtonCreated(window);
    progress.Reset();
    progress.SetIndeterminate();
    QCOMPARE(m_taskbar->takeCalls().constLast(), stateCall(handleOf(window), "busy"));
}

void tst_TaskbarListIndicator::destructionAfterStopLeavesNoIndicator()
{
    QWindow window;
    auto progress = std::make_unique<TaskbarProgress>(&window);
    window.create();
    sendButtonCreated(window);
    progress->SetProgress(0.5);
    progress->Stop();
    progress.reset();
    const QStringList calls = m_taskbar->takeCalls();
    QCOMPARE(calls.mid(calls.size() - 2),
             (QStringList{stateCall(handleOf(window), "none"), QStringLiteral("release")}));
    sendButtonCreated(window);
    QCOMPARE(m_taskbar->takeCalls(), QStringList());
}

void tst_TaskbarListIndicator::restartedShellIsToldAgain()
{
    QWindow window;
    TaskbarProgress progress(&window);
    window.create();
    sendButtonCreated(window);
    progress.SetProgress(0.5);
    m_taskbar->calls.clear();
    sendButtonCreated(window);
    QCOMPARE(m_taskbar->takeCalls(), shown(handleOf(window), 50));
}

void tst_TaskbarListIndicator::nativeWindowMadeAnew()
{
    QWindow window;
    TaskbarProgress progress(&window);
    window.create();
    sendButtonCreated(window);
    progress.SetProgress(0.5);
    m_taskbar->calls.clear();

    window.destroy();
    progress.SetProgress(0.6);
    QCOMPARE(m_taskbar->takeCalls(), QStringList());

    window.create();
    progress.SetProgress(0.7);
    QCOMPARE(m_taskbar->takeCalls(), QStringList());
    sendButtonCreated(window);
    QCOMPARE(m_taskbar->takeCalls(), shown(handleOf(window), 70));
}

void tst_TaskbarListIndicator::deletedWindowIsLeftAlone()
{
    auto window = std::make_unique<QWindow>();
    auto progress = std::make_unique<TaskbarProgress>(window.get());
    window->create();
    sendButtonCreated(*window);
    m_taskbar->calls.clear();
    window.reset();

    progress->SetProgress(0.5);
    progress->Stop();
    QWindow other;
    other.create();
    sendButtonCreated(other);
    progress.reset();
    QCOMPARE(m_taskbar->takeCalls(), QStringList(QStringLiteral("release")));
}

void tst_TaskbarListIndicator::noWindow()
{
    TaskbarProgress progress(nullptr);
    progress.SetProgress(0.5);
    progress.SetIndeterminate();
    progress.Pause();
    progress.Stop();
    QWindow other;
    other.create();
    sendButtonCreated(other);
    progress.Reset();
    QCOMPARE(m_taskbar->takeCalls(), QStringList());
}

void tst_TaskbarListIndicator::failures_data()
{
    QTest::addColumn<bool>("creates");
    QTest::addColumn<QStringList>("calls");
    QTest::newRow("no list") << false << QStringList{QStringLiteral("create")};
    QTest::newRow("a list that cannot begin")
        << true << QStringList{QStringLiteral("create"), QStringLiteral("init"), QStringLiteral("release")};
}

void tst_TaskbarListIndicator::failures()
{
    QFETCH(bool, creates);
    QFETCH(QStringList, calls);
    (creates ? m_taskbar->initResult : m_taskbar->createResult) = E_FAIL;
    QWindow window;
    TaskbarProgress progress(&window);
    window.create();
    sendButtonCreated(window);
    QCOMPARE(m_taskbar->takeCalls(), calls);

    // The next change is another attempt.
    m_taskbar->initResult = S_OK;
    m_taskbar->createResult = S_OK;
    progress.SetProgress(0.5);
    QCOMPARE(m_taskbar->takeCalls(), madeList() + shown(handleOf(window), 50));
}

/// The system's own list takes the same calls.
void tst_TaskbarListIndicator::taskbarOfTheShell()
{
    m_taskbar.reset();
    QWindow window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    {
        TaskbarProgress progress(&window);
        sendButtonCreated(window);
        progress.SetProgress(0.5);
        progress.SetIndeterminate();
        progress.Stop();
    }
    m_taskbar = std::make_unique<ScriptedTaskbar>(); // as cleanup() expects it
}

QTEST_MAIN(tst_TaskbarListIndicator)
#include "tst_TaskbarListIndicator.moc"
