#include <KQt/Ui/TaskbarIndicator.h>
#include <KQt/Ui/TaskbarProgress.h>

#include <QtTest>
#include <QWindow>

#include <limits>
#include <memory>
#include <type_traits>

using Kestrel::Gui::TaskbarIndicator;
using Kestrel::Gui::TaskbarProgress;

namespace {

/// What the indicators of this program have been asked for, in order.
QStringList& operations()
{
    static QStringList list;
    return list;
}

QString setWindowOperation(const QWindow* window)
{
    return QStringLiteral("setWindow 0x%1").arg(reinterpret_cast<quintptr>(window), 0, 16);
}

class RecordingIndicator : public TaskbarIndicator
{
public:
    RecordingIndicator() { operations() << QStringLiteral("create"); }
    ~RecordingIndicator() override { operations() << QStringLiteral("delete"); }

    void setWindow(QWindow* window) override { operations() << setWindowOperation(window); }
    void show() override { operations() << QStringLiteral("show"); }
    void hide() override { operations() << QStringLiteral("hide"); }
    void reset() override { operations() << QStringLiteral("reset"); }
    void pause() override { operations() << QStringLiteral("pause"); }
    void stop() override { operations() << QStringLiteral("stop"); }
    void setRange(int minimum, int maximum) override
    {
        operations() << QStringLiteral("setRange %1 %2").arg(minimum).arg(maximum);
    }
    void setValue(int value) override { operations() << QStringLiteral("setValue %1").arg(value); }
};

} // namespace

// The linker takes this one, and leaves the system's in its archive.
std::unique_ptr<TaskbarIndicator> Kestrel::Gui::createTaskbarIndicator()
{
    return std::make_unique<RecordingIndicator>();
}

/// Which operations of the indicator each call leads to, on every system.
class tst_TaskbarProgress : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { operations().clear(); }

    void isAPlainClassWithAVirtualDestructor();
    void constructionAttachesAndShows();
    void constructionTakesNoWindowToo();
    void destructionLeavesNoIndicator();
    void destructorIsVirtual();
    void setProgressShowsTheValueOfAHundred();
    void setProgressRoundsAndTruncates_data();
    void setProgressRoundsAndTruncates();
    void setIndeterminateShowsBusy();
    void pauseOnlyPauses();
    void stopOnlyStops();
    void resetRewindsAndHides();
    void setProgressShowsAgainAfterReset();
    void setIndeterminateShowsAgainAfterReset();
    void everyCallIsPassedOn();
    void destructionAfterStopHides();
    void eachObjectHasAnIndicator();
};

namespace {

/// A progress whose construction is not in the record.
struct Fixture
{
    Fixture() { operations().clear(); }

    TaskbarProgress progress{nullptr};
};

} // namespace

void tst_TaskbarProgress::isAPlainClassWithAVirtualDestructor()
{
    QVERIFY((!std::is_base_of_v<QObject, TaskbarProgress>));
    QVERIFY(std::has_virtual_destructor_v<TaskbarProgress>);
    QVERIFY(!std::is_copy_constructible_v<TaskbarProgress>);
    QVERIFY(!std::is_copy_assignable_v<TaskbarProgress>);
    QVERIFY((!std::is_convertible_v<QWindow*, TaskbarProgress>));
    // The table of virtual functions and the implementation.
    QCOMPARE(sizeof(TaskbarProgress), 2 * sizeof(void*));
}

void tst_TaskbarProgress::constructionAttachesAndShows()
{
    QWindow window;
    const TaskbarProgress progress(&window);
    QCOMPARE(operations(),
             (QStringList{QStringLiteral("create"), setWindowOperation(&window), QStringLiteral("show")}));
}

void tst_TaskbarProgress::constructionTakesNoWindowToo()
{
    const TaskbarProgress progress(nullptr);
    QCOMPARE(operations(),
             (QStringList{QStringLiteral("create"), setWindowOperation(nullptr), QStringLiteral("show")}));
}

void tst_TaskbarProgress::destructionLeavesNoIndicator()
{
    auto progress = std::make_unique<TaskbarProgress>(nullptr);
    operations().clear();
    progress.reset();
    // The second hiding is the implementation's own clean-up.
    QCOMPARE(operations(), (QStringList{QStringLiteral("reset"), QStringLiteral("hide"), QStringLiteral("hide"),
                                        QStringLiteral("delete")}));
}

void tst_TaskbarProgress::destructorIsVirtual()
{
    class Derived : public TaskbarProgress
    {
    public:
        explicit Derived(bool* deleted)
            : TaskbarProgress(nullptr)
            , m_deleted(deleted)
        {
        }
        ~Derived() override { *m_deleted = true; }
        Q_DISABLE_COPY(Derived)

    private:
        bool* m_deleted;
    };
    bool deleted = false;
    const TaskbarProgress* progress = new Derived(&deleted);
    delete progress;
    QVERIFY(deleted);
    QCOMPARE(operations().constLast(), QStringLiteral("delete"));
}

void tst_TaskbarProgress::setProgressShowsTheValueOfAHundred()
{
    Fixture f;
    f.progress.SetProgress(0.5);
    QCOMPARE(operations(),
             (QStringList{QStringLiteral("show"), QStringLiteral("setRange 0 100"), QStringLiteral("setValue 50")}));
}

void tst_TaskbarProgress::setProgressRoundsAndTruncates_data()
{
    QTest::addColumn<double>("fraction");
    QTest::addColumn<int>("value");

    constexpr int least = std::numeric_limits<int>::min();
    constexpr int greatest = std::numeric_limits<int>::max();
    using Double = std::numeric_limits<double>;

    QTest::newRow("0") << 0.0 << 0;
    QTest::newRow("negative 0") << -0.0 << 0;
    QTest::newRow("0.004") << 0.004 << 0;
    QTest::newRow("just below 0.005") << 0.00499999 << 0;
    QTest::newRow("0.005") << 0.005 << 1;
    QTest::newRow("0.014") << 0.014 << 1;
    QTest::newRow("0.015") << 0.015 << 2;
    QTest::newRow("a third") << 1.0 / 3 << 33;
    QTest::newRow("0.494") << 0.494 << 49;
    QTest::newRow("0.5") << 0.5 << 50;
    QTest::newRow("0.994") << 0.994 << 99;
    QTest::newRow("0.995") << 0.995 << 100;
    QTest::newRow("1.0") << 1.0 << 100;

    // Passed on as computed.
    QTest::newRow("1.004") << 1.004 << 100;
    QTest::newRow("1.01") << 1.01 << 101;
    QTest::newRow("2.5") << 2.5 << 250;
    // Towards zero, not down: half a per cent more of the negative side counts as 0.
    QTest::newRow("-0.004") << -0.004 << 0;
    QTest::newRow("-0.014") << -0.014 << 0;
    QTest::newRow("-0.016") << -0.016 << -1;
    QTest::newRow("-0.5") << -0.5 << -49;
    QTest::newRow("-1.0") << -1.0 << -99;

    QTest::newRow("denormal") << Double::denorm_min() << 0;
    QTest::newRow("negative denormal") << -Double::denorm_min() << 0;
    QTest::newRow("epsilon") << Double::epsilon() << 0;

    QTest::newRow("last int") << 21474836.47 << greatest;
    QTest::newRow("last but one") << 21474836.46 << greatest - 1;
    QTest::newRow("one beyond the last int") << 21474836.48 << greatest;
    QTest::newRow("twice the ints") << 42949672.96 << greatest;
    QTest::newRow("first int") << -21474836.485 << least;
    QTest::newRow("one before the first int") << -21474836.50 << least;
    QTest::newRow("twice the negative ints") << -42949672.96 << least;
    QTest::newRow("huge") << 1e300 << greatest;
    QTest::newRow("hugely negative") << -1e300 << least;
    QTest::newRow("a hundred times is infinite") << Double::max() << greatest;
    QTest::newRow("a hundred times is negatively infinite") << Double::lowest() << least;
    QTest::newRow("infinite") << Double::infinity() << greatest;
    QTest::newRow("negatively infinite") << -Double::infinity() << least;
    QTest::newRow("not a number") << Double::quiet_NaN() << 0;
    QTest::newRow("negative not a number") << -Double::quiet_NaN() << 0;
}

void tst_TaskbarProgress::setProgressRoundsAndTruncates()
{
    QFETCH(double, fraction);
    QFETCH(int, value);
    Fixture f;
    f.progress.SetProgress(fraction);
    QCOMPARE(operations(), (QStringList{QStringLiteral("show"), QStringLiteral("setRange 0 100"),
                                        QStringLiteral("setValue %1").arg(value)}));
}

void tst_TaskbarProgress::setIndeterminateShowsBusy()
{
    Fixture f;
    f.progress.SetIndeterminate();
    QCOMPARE(operations(), (QStringList{QStringLiteral("show"), QStringLiteral("setRange 0 0")}));
}

void tst_TaskbarProgress::pauseOnlyPauses()
{
    Fixture f;
    f.progress.Pause();
    QCOMPARE(operations(), QStringList(QStringLiteral("pause")));
}

void tst_TaskbarProgress::stopOnlyStops()
{
    Fixture f;
    f.progress.Stop();
    QCOMPARE(operations(), QStringList(QStringLiteral("stop")));
}

void tst_TaskbarProgress::resetRewindsAndHides()
{
    Fixture f;
    f.progress.Reset();
    QCOMPARE(operations(), (QStringList{QStringLiteral("reset"), QStringLiteral("hide")}));
}

void tst_TaskbarProgress::setProgressShowsAgainAfterReset()
{
    Fixture f;
    f.progress.Reset();
    operations().clear();
    f.progress.SetProgress(0.25);
    QCOMPARE(operations().constFirst(), QStringLiteral("show"));
}

void tst_TaskbarProgress::setIndeterminateShowsAgainAfterReset()
{
    Fixture f;
    f.progress.Reset();
    operations().clear();
    f.progress.SetIndeterminate();
    QCOMPARE(operations().constFirst(), QStringLiteral("show"));
}

/// Nothing is left out because it seems to be so already: that is the indicator's affair.
void tst_TaskbarProgress::everyCallIsPassedOn()
{
    Fixture f;
    f.progress.SetProgress(0.5);
    f.progress.SetProgress(0.5);
    f.progress.Pause();
    f.progress.Pause();
    f.progress.Reset();
    f.progress.Reset();
    QCOMPARE(operations().size(), 3 + 3 + 1 + 1 + 2 + 2);
}

void tst_TaskbarProgress::destructionAfterStopHides()
{
    auto progress = std::make_unique<TaskbarProgress>(nullptr);
    progress->SetProgress(0.5);
    progress->Stop();
    operations().clear();
    progress.reset();
    QCOMPARE(operations(), (QStringList{QStringLiteral("reset"), QStringLiteral("hide"), QStringLiteral("hide"),
                                        QStringLiteral("delete")}));
}

void tst_TaskbarProgress::eachObjectHasAnIndicator()
{
    const TaskbarProgress first(nullptr);
    const TaskbarProgress second(nullptr);
    QCOMPARE(operations().count(QStringLiteral("create")), 2);
}

QTEST_MAIN(tst_TaskbarProgress)
#include "tst_TaskbarProgress.moc"
