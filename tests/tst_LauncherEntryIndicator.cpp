#include <KQt/Ui/TaskbarProgress.h>

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QProcess>
#include <QtTest>
#include <QWindow>

#include <algorithm>
#include <limits>
#include <memory>

using Kestrel::Gui::TaskbarProgress;

namespace {

const QString& interfaceName()
{
    static const QString name = QStringLiteral("com.canonical.Unity.LauncherEntry");
    return name;
}

/// Desktop file of objects that only mark how far the messages have come.
const QString& markerName()
{
    static const QString name = QStringLiteral("org.example.Marker");
    return name;
}

/// What a dock hears of the entry.
struct Update
{
    double progress;
    bool visible;
    bool urgent;

    bool operator==(const Update& other) const
    {
        return qFuzzyCompare(1 + progress, 1 + other.progress) && visible == other.visible && urgent == other.urgent;
    }
};

constexpr Update cleared{0, false, false};
constexpr Update running(double progress)
{
    return {progress, true, false};
}
constexpr Update stopped(double progress)
{
    return {progress, true, true};
}

using Updates = QVector<Update>;

char* toString(const Updates& updates)
{
    QString text;
    for (const Update& update : updates)
        text += QStringLiteral("{%1%2%3} ")
                    .arg(update.progress)
                    .arg(update.visible ? QStringLiteral(" visible") : QString(),
                         update.urgent ? QStringLiteral(" urgent") : QString());
    return qstrdup(qPrintable(text));
}

/// A dock: another connection to the bus, with a name of its own.
class Dock : public QObject
{
    Q_OBJECT

public:
    Dock()
    {
        QDBusConnection connection = QDBusConnection::connectToBus(QDBusConnection::SessionBus, connectionName());
        m_connected = connection.isConnected() &&
                      connection.connect(QString(), QString(), interfaceName(), QStringLiteral("Update"), this,
                                         SLOT(updateHeard(QDBusMessage)));
    }
    ~Dock() override { QDBusConnection::disconnectFromBus(connectionName()); }
    Q_DISABLE_COPY(Dock)

    bool isConnected() const { return m_connected; }

    Updates updates() const
    {
        Updates result;
        for (const QDBusMessage& message : messages) {
            const auto properties = qdbus_cast<QVariantMap>(message.arguments().at(1));
            result << Update{properties.value(QStringLiteral("progress")).toDouble(),
                             properties.value(QStringLiteral("progress-visible")).toBool(),
                             properties.value(QStringLiteral("urgent")).toBool()};
        }
        return result;
    }

    bool lastIs(const Update& update) const { return !messages.isEmpty() && updates().constLast() == update; }

    QVector<QDBusMessage> messages;
    int markers = 0;

private Q_SLOTS:
    void updateHeard(const QDBusMessage& message)
    {
        if (message.arguments().constFirst().toString().contains(markerName()))
            ++markers;
        else
            messages << message;
    }

private:
    static QString connectionName() { return QStringLiteral("dock"); }

    bool m_connected = false;
};

/// One life of a progress, for a process that is started for it.
int live(const QString& desktopFile)
{
    QGuiApplication::setDesktopFileName(desktopFile);
    for (int repetition = 0; repetition < 3; ++repetition) {
        QWindow window;
        TaskbarProgress progress(&window);
        for (const double fraction : {0.2, 0.4, 0.6}) {
            progress.SetProgress(fraction);
            QTest::qWait(70); // so that each is sent
        }
        progress.Stop();
        progress.Reset();
        progress.SetIndeterminate();
        QCoreApplication::processEvents();
    }
    return 0;
}

const QString& lifeOption()
{
    static const QString option = QStringLiteral("--live");
    return option;
}

} // namespace

/// TaskbarProgress on a session bus: what docks hear, in order. Run with dbus-run-session.
class tst_LauncherEntryIndicator : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void startClearsAndShows();
    void messageIsAsDocksExpectIt();
    void applicationIsNamedByItsDesktopFile_data();
    void applicationIsNamedByItsDesktopFile();
    void progressIsAFraction_data();
    void progressIsAFraction();
    void onlyChangesAreSent();
    void stepsOfACallAreOneMessage();
    void busyIsAnEmptyBar();
    void pausedLooksLikeRunning();
    void stoppedIsUrgent();
    void hiddenIsNotUrgent();
    void updatesAreLimitedAndTheLastIsNotLost();
    void destructionClearsAtOnce();
    void destructionBeforeTheFirstUpdateLeavesTheEntryCleared();
    void destructionAfterResetHasNothingToClear();
    void processThatEndsAfterwardsClears();
    void deletedWindowClearsForGood();
    void nothingIsSentWithoutAWindow();
    void nothingIsSentWithoutADesktopFile();
    void desktopFileIsReadAtConstruction();
    void noBusIsNoMatter_data();
    void noBusIsNoMatter();

private:
    /// Another object's first message: all that was sent before it has been heard then.
    void waitForEverything();

    std::unique_ptr<Dock> m_dock;
};

void tst_LauncherEntryIndicator::initTestCase()
{
    QVERIFY2(QDBusConnection::sessionBus().isConnected(), "there is no session bus: run it with dbus-run-session");
}

void tst_LauncherEntryIndicator::init()
{
    QGuiApplication::setDesktopFileName(QStringLiteral("org.example.Viewer"));
    m_dock = std::make_unique<Dock>();
    QVERIFY(m_dock->isConnected());
}

void tst_LauncherEntryIndicator::cleanup()
{
    m_dock.reset();
}

void tst_LauncherEntryIndicator::waitForEverything()
{
    QGuiApplication::setDesktopFileName(markerName());
    QWindow window;
    const TaskbarProgress marker(&window);
    const int heard = m_dock->markers;
    QTRY_VERIFY(m_dock->markers > heard);
}

void tst_LauncherEntryIndicator::startClearsAndShows()
{
    QWindow window;
    const TaskbarProgress progress(&window);
    QTRY_COMPARE(m_dock->updates(), (Updates{cleared, running(0)}));
}

void tst_LauncherEntryIndicator::messageIsAsDocksExpectIt()
{
    QWindow window;
    TaskbarProgress progress(&window);
    progress.SetProgress(0.5);
    QTRY_VERIFY(m_dock->lastIs(running(0.5)));

    for (const QDBusMessage& message : qAsConst(m_dock->messages)) {
        QCOMPARE(message.type(), QDBusMessage::SignalMessage);
        QCOMPARE(message.interface(), interfaceName());
        QCOMPARE(message.member(), QStringLiteral("Update"));
        QCOMPARE(message.signature(), QStringLiteral("sa{sv}"));
        const auto properties = qdbus_cast<QVariantMap>(message.arguments().at(1));
        QCOMPARE(properties.keys(), (QStringList{QStringLiteral("progress"), QStringLiteral("progress-visible"),
                                                 QStringLiteral("urgent")}));
        QCOMPARE(properties.value(QStringLiteral("progress")).userType(), int(QMetaType::Double));
        QCOMPARE(properties.value(QStringLiteral("progress-visible")).userType(), int(QMetaType::Bool));
        QCOMPARE(properties.value(QStringLiteral("urgent")).userType(), int(QMetaType::Bool));
    }
}

void tst_LauncherEntryIndicator::applicationIsNamedByItsDesktopFile_data()
{
    QTest::addColumn<QString>("desktopFile");
    QTest::addColumn<QString>("uri");
    QTest::addColumn<QString>("path");
    // The numbers are what glib's g_str_hash() gives.
    QTest::newRow("without its suffix") << QStringLiteral("org.example.Viewer")
                                        << QStringLiteral("application://org.example.Viewer.desktop")
                                        << QStringLiteral("/com/canonical/unity/launcherentry/2152427067");
    QTest::newRow("with its suffix") << QStringLiteral("viewer.desktop")
                                     << QStringLiteral("application://viewer.desktop")
                                     << QStringLiteral("/com/canonical/unity/launcherentry/2120325163");
    QTest::newRow("with other letters") << QStringLiteral("Gr\u00fc\u00dfe")
                                        << QStringLiteral("application://Gr\u00fc\u00dfe.desktop")
                                        << QStringLiteral("/com/canonical/unity/launcherentry/1949484888");
}

void tst_LauncherEntryIndicator::applicationIsNamedByItsDesktopFile()
{
    QFETCH(QString, desktopFile);
    QFETCH(QString, uri);
    QFETCH(QString, path);
    QGuiApplication::setDesktopFileName(desktopFile);
    QWindow window;
    const TaskbarProgress progress(&window);
    QTRY_COMPARE(m_dock->messages.size(), 2);
    for (const QDBusMessage& message : qAsConst(m_dock->messages)) {
        QCOMPARE(message.arguments().constFirst().toString(), uri);
        QCOMPARE(message.path(), path);
    }
}

void tst_LauncherEntryIndicator::progressIsAFraction_data()
{
    QTest::addColumn<double>("fraction");
    QTest::addColumn<double>("shown");
    QTest::newRow("a quarter") << 0.25 << 0.25;
    QTest::newRow("whole per cent") << 0.123 << 0.12;
    QTest::newRow("all") << 1.0 << 1.0;
    QTest::newRow("more than all") << 2.5 << 1.0;
    QTest::newRow("endless") << std::numeric_limits<double>::infinity() << 1.0;
    QTest::newRow("less than nothing") << -0.5 << 0.0;
    QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN() << 0.0;
}

void tst_LauncherEntryIndicator::progressIsAFraction()
{
    QFETCH(double, fraction);
    QFETCH(double, shown);
    QWindow window;
    TaskbarProgress progress(&window);
    progress.SetProgress(0.7);
    QTRY_VERIFY(m_dock->lastIs(running(0.7)));
    progress.SetProgress(fraction);
    QTRY_VERIFY(m_dock->lastIs(running(shown)));
}

void tst_LauncherEntryIndicator::onlyChangesAreSent()
{
    QWindow window;
    TaskbarProgress progress(&window);
    progress.SetProgress(0.5);
    QTRY_VERIFY(m_dock->lastIs(running(0.5)));
    m_dock->messages.clear();

    progress.SetProgress(0.5);
    progress.SetProgress(0.501);
    QCoreApplication::processEvents();
    // There and back before anything could be sent.
    progress.SetProgress(0.9);
    progress.SetProgress(0.5);
    waitForEverything();
    progress.SetProgress(0.6);
    QTRY_VERIFY(m_dock->lastIs(running(0.6)));
    QCOMPARE(m_dock->updates(), Updates{running(0.6)});
}

void tst_LauncherEntryIndicator::stepsOfACallAreOneMessage()
{
    QWindow window;
    TaskbarProgress progress(&window);
    progress.SetProgress(0.5);
    QTRY_VERIFY(m_dock->lastIs(running(0.5)));
    progress.Reset();
    QTRY_VERIFY(m_dock->lastIs(cleared));
    progress.SetProgress(0.3);
    QTRY_VERIFY(m_dock->lastIs(running(0.3)));
    QCOMPARE(m_dock->updates(), (Updates{cleared, running(0.5), cleared, running(0.3)}));
}

void tst_LauncherEntryIndicator::busyIsAnEmptyBar()
{
    QWindow window;
    TaskbarProgress progress(&window);
    progress.SetProgress(0.5);
    QTRY_VERIFY(m_dock->lastIs(running(0.5)));
    progress.SetIndeterminate();
    QTRY_VERIFY(m_dock->lastIs(running(0)));
    progress.Reset();
    QTRY_VERIFY(m_dock->lastIs(cleared));
    progress.SetIndeterminate();
    QTRY_VERIFY(m_dock->lastIs(running(0)));
}

void tst_LauncherEntryIndicator::pausedLooksLikeRunning()
{
    QWindow window;
    TaskbarProgress progress(&window);
    progress.SetProgress(0.5);
    QTRY_VERIFY(m_dock->lastIs(running(0.5)));
    m_dock->messages.clear();
    progress.Pause();
    waitForEverything();
    progress.SetProgress(0.6);
    QTRY_COMPARE(m_dock->updates(), Updates{running(0.6)});
}

void tst_LauncherEntryIndicator::stoppedIsUrgent()
{
    QWindow window;
    TaskbarProgress progress(&window);
    progress.SetProgress(0.5);
    QTRY_VERIFY(m_dock->lastIs(running(0.5)));
    progress.Stop();
    QTRY_VERIFY(m_dock->lastIs(stopped(0.5)));
}

void tst_LauncherEntryIndicator::hiddenIsNotUrgent()
{
    QWindow window;
    TaskbarProgress progress(&window);
    progress.Stop();
    QTRY_VERIFY(m_dock->lastIs(stopped(0)));
    progress.Reset();
    QTRY_VERIFY(m_dock->lastIs(cleared));
    // An operation that has been stopped is not resumed.
    progress.SetProgress(0.5);
    QTRY_VERIFY(m_dock->lastIs(stopped(0.5)));
}

void tst_LauncherEntryIndicator::updatesAreLimitedAndTheLastIsNotLost()
{
    constexpr int swarm = 1500; // milliseconds
    constexpr int perSecond = 20;
    constexpr int second = 1000;

    QElapsedTimer clock;
    clock.start();
    QWindow window;
    TaskbarProgress progress(&window);
    for (int i = 0; clock.elapsed() < swarm; ++i) {
        progress.SetProgress(i % 90 / 100.0);
        QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
    }
    progress.SetProgress(0.97);
    QTRY_VERIFY(m_dock->lastIs(running(0.97)));

    const int count = m_dock->messages.size();
    QVERIFY2(count <= clock.elapsed() * perSecond / second + 1,
             qPrintable(QStringLiteral("%1 messages in %2 ms").arg(count).arg(clock.elapsed())));
    // The clearing, the last value, and some on the way.
    QVERIFY2(count > 3, qPrintable(QString::number(count)));
}

void tst_LauncherEntryIndicator::destructionClearsAtOnce()
{
    QWindow window;
    auto progress = std::make_unique<TaskbarProgress>(&window);
    progress->SetProgress(0.5);
    QTRY_VERIFY(m_dock->lastIs(running(0.5)));
    // Still waiting for its turn.
    progress->SetProgress(0.6);
    progress.reset();
    QTRY_VERIFY(m_dock->lastIs(cleared));
    QCOMPARE(m_dock->updates(), (Updates{cleared, running(0.5), cleared}));

    progress = std::make_unique<TaskbarProgress>(&window);
    progress->Stop();
    QTRY_VERIFY(m_dock->lastIs(stopped(0)));
    progress.reset();
    QTRY_VERIFY(m_dock->lastIs(cleared));
}

void tst_LauncherEntryIndicator::destructionBeforeTheFirstUpdateLeavesTheEntryCleared()
{
    QWindow window;
    {
        TaskbarProgress progress(&window);
        progress.SetProgress(0.5);
    }
    waitForEverything();
    QCOMPARE(m_dock->updates(), Updates{cleared});
}

void tst_LauncherEntryIndicator::destructionAfterResetHasNothingToClear()
{
    QWindow window;
    auto progress = std::make_unique<TaskbarProgress>(&window);
    progress->SetProgress(0.5);
    QTRY_VERIFY(m_dock->lastIs(running(0.5)));
    progress->Reset();
    QTRY_VERIFY(m_dock->lastIs(cleared));
    const int count = m_dock->messages.size();
    progress.reset();
    waitForEverything();
    QCOMPARE(m_dock->messages.size(), count);
}

void tst_LauncherEntryIndicator::processThatEndsAfterwardsClears()
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {lifeOption(), QStringLiteral("org.example.Brief")});
    QTRY_COMPARE_WITH_TIMEOUT(process.state(), QProcess::NotRunning, 30000);
    QCOMPARE(process.exitCode(), 0);
    QTRY_VERIFY(m_dock->lastIs(cleared));
    QVERIFY(m_dock->updates().contains(running(0.6)));
}

void tst_LauncherEntryIndicator::deletedWindowClearsForGood()
{
    auto window = std::make_unique<QWindow>();
    auto progress = std::make_unique<TaskbarProgress>(window.get());
    progress->SetProgress(0.5);
    QTRY_VERIFY(m_dock->lastIs(running(0.5)));
    progress->SetProgress(0.6);
    window.reset();
    QTRY_VERIFY(m_dock->lastIs(cleared));
    m_dock->messages.clear();

    progress->SetProgress(0.7);
    progress->Stop();
    QCoreApplication::processEvents();
    progress.reset();
    waitForEverything();
    QCOMPARE(m_dock->updates(), Updates());
}

void tst_LauncherEntryIndicator::nothingIsSentWithoutAWindow()
{
    {
        TaskbarProgress progress(nullptr);
        progress.SetProgress(0.5);
        QCoreApplication::processEvents();
        progress.SetIndeterminate();
        progress.Pause();
        progress.Stop();
        progress.Reset();
    }
    waitForEverything();
    QCOMPARE(m_dock->updates(), Updates());
}

void tst_LauncherEntryIndicator::nothingIsSentWithoutADesktopFile()
{
    QGuiApplication::setDesktopFileName(QString());
    QWindow window;
    {
        TaskbarProgress progress(&window);
        progress.SetProgress(0.5);
        QCoreApplication::processEvents();
        progress.Stop();
    }
    waitForEverything();
    QCOMPARE(m_dock->updates(), Updates());
}

void tst_LauncherEntryIndicator::desktopFileIsReadAtConstruction()
{
    QWindow window;
    auto progress = std::make_unique<TaskbarProgress>(&window);
    QTRY_VERIFY(m_dock->lastIs(running(0)));
    QGuiApplication::setDesktopFileName(QStringLiteral("another"));
    progress.reset();
    QTRY_VERIFY(m_dock->lastIs(cleared));
    QCOMPARE(m_dock->messages.constLast().arguments().constFirst().toString(),
             QStringLiteral("application://org.example.Viewer.desktop"));
}

void tst_LauncherEntryIndicator::noBusIsNoMatter_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<QString>("desktopFile");
    const QString nowhere = QStringLiteral("unix:path=/nonexistent/bus");
    const QString desktopFile = QStringLiteral("org.example.Viewer");
    QTest::newRow("an address that leads nowhere") << nowhere << desktopFile;
    QTest::newRow("an address that is none") << QStringLiteral("nonsense") << desktopFile;
    QTest::newRow("no address") << QString() << desktopFile;
    QTest::newRow("neither bus nor desktop file") << nowhere << QString();
    QTest::newRow("a bus, but no desktop file") << qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS") << QString();
}

void tst_LauncherEntryIndicator::noBusIsNoMatter()
{
    QFETCH(QString, address);
    QFETCH(QString, desktopFile);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    // Without an address, libraries look for a bus in these.
    environment.remove(QStringLiteral("DISPLAY"));
    environment.remove(QStringLiteral("XDG_RUNTIME_DIR"));
    environment.remove(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"));
    // Nor is there a window system without them.
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    if (!address.isEmpty())
        environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), address);

    QProcess process;
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QCoreApplication::applicationFilePath(), {lifeOption(), desktopFile});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 0);

    // Nothing is printed twice, though there were three objects.
    QStringList lines = QString::fromLocal8Bit(process.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    const QString all = lines.join(QLatin1Char('\n'));
    QVERIFY2(lines.removeDuplicates() == 0, qPrintable(all));
    QVERIFY2(!all.contains(QLatin1String("bus"), Qt::CaseInsensitive), qPrintable(all));
    QCOMPARE(m_dock->updates(), Updates());
}

int main(int argc, char* argv[])
{
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.value(1) == lifeOption())
        return live(arguments.value(2));

    tst_LauncherEntryIndicator test;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&test, argc, argv);
}
#include "tst_LauncherEntryIndicator.moc"
