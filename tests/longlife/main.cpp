// long-life: an application with every component that is used for a long time, and must not become larger.
#include "FilterCensus.h"
#include "Habit.h"
#include "Leaks.h"
#include "Ledger.h"
#include "ObjectCensus.h"
#include "Stage.h"

#include <KQt/Ui/WidgetResizeHandler.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QPixmapCache>
#include <QScrollArea>
#include <QTextStream>

#include <cstdlib>

namespace {

constexpr qint64 Minute = 60000; // milliseconds

/// How long it runs: a number of rounds where there is one, a time otherwise.
struct Span
{
    int rounds = 0;
    qint64 time = 0; ///< milliseconds

    /// The first quarter, a minute at most, and five rounds at least: what is made at the first use comes in there.
    bool isWarm(int round, qint64 passed) const
    {
        constexpr int quarter = 4;
        if (rounds > 0)
            return round >= rounds / quarter;
        return round >= Ledger::Compared && passed >= qMin(Minute, time / quarter);
    }
    bool isOver(int round, qint64 passed) const { return rounds > 0 ? round >= rounds : passed >= time; }
};

std::vector<Habit> habits(const QString& only)
{
    std::vector<Habit> all;
    for (const auto& group : {popupHabits(), tourHabits(), frameHabits(), windowHabits(), colorHabits(),
                              progressHabits(), accessibilityHabits()}) {
        for (const Habit& habit : group) {
            if (only.isEmpty() || only == QLatin1String(habit.name))
                all.push_back(habit);
        }
    }
    return all;
}

class Program
{
public:
    Program(std::vector<Habit> habits, std::function<void()> leak)
        : m_habits(std::move(habits))
        , m_leak(std::move(leak))
    {
    }

    int run(const Span& span)
    {
        Stage stage;
        Stage::settle();
        m_ledger.readUntouched();
        m_clock.start();
        while (!span.isOver(stage.round(), m_clock.elapsed())) {
            live(stage);
            if (span.isWarm(stage.round(), m_clock.elapsed())) {
                m_ledger.read();
                sayNowAndThen(stage.round());
            }
            stage.nextRound();
        }
        return report(stage);
    }

private:
    void live(Stage& stage) const
    {
        for (const Habit& habit : m_habits) {
            habit.live(stage);
            Stage::settle();
        }
        if (m_leak)
            m_leak();
    }

    void sayNowAndThen(int round)
    {
        if (m_ledger.readings() > 1 && m_clock.elapsed() < m_nextLine)
            return;
        m_nextLine = m_clock.elapsed() + Minute;
        say(round);
    }

    void say(int round)
    {
        m_out << qSetFieldWidth(6) << m_clock.elapsed() / 1000 << qSetFieldWidth(0) << " s, round " << round << ": "
              << m_ledger.line() << Qt::endl;
    }

    int report(const Stage& stage)
    {
        if (m_ledger.readings() < 2 * Ledger::Compared) {
            m_out << "too short: " << m_ledger.readings() << " readings after the first rounds" << Qt::endl;
            return EXIT_FAILURE;
        }
        say(stage.round());
        const QStringList growth = m_ledger.growth();
        for (const QString& line : growth)
            m_out << "GREW: " << line << '\n';
        for (const QString& failure : stage.failures())
            m_out << "NEVER: " << failure << '\n';
        m_out << m_habits.size() << " habits, " << stage.round() << " rounds in " << m_clock.elapsed() / 1000 << " s, "
              << growth.size() << " counters grew" << Qt::endl;
        return growth.isEmpty() && stage.failures().isEmpty() ? EXIT_SUCCESS : EXIT_FAILURE;
    }

    std::vector<Habit> m_habits;
    std::function<void()> m_leak;
    Ledger m_ledger;
    QElapsedTimer m_clock;
    qint64 m_nextLine = 0;
    QTextStream m_out{stdout};
};

/// Whether the counters count: Qt must call the hooks, and the calls of Qt's widgets and of the library must come to
/// this program's functions.
bool countersWork()
{
    QScrollArea area;
    area.setWidget(new QWidget);
    QWidget watched;
    const qint64 objects = ObjectCensus::count();
    const qint64 filters = FilterCensus::count();
    const auto* const handler = new Kestrel::Gui::WidgetResizeHandler(&watched);
    const bool noticed = FilterCensus::countOn(area.widget()) > 0 && FilterCensus::count() == filters + 1 &&
                         ObjectCensus::count() == objects + 1;
    delete handler;
    return noticed && FilterCensus::count() == filters && ObjectCensus::count() == objects;
}

} // namespace

int main(int argc, char* argv[])
{
    ObjectCensus::begin();
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    // Styles keep pictures for the next time, ten megabytes of them, under names that change with the palette.
    QPixmapCache::setCacheLimit(0);
    QGuiApplication::setDesktopFileName(QStringLiteral("org.example.LongLife"));

    QCommandLineParser parser;
    parser.addHelpOption();
    const QCommandLineOption minutes(QStringLiteral("minutes"), QStringLiteral("How long it runs."),
                                     QStringLiteral("number"), QStringLiteral("60"));
    const QCommandLineOption rounds(QStringLiteral("rounds"), QStringLiteral("How many rounds it runs instead."),
                                    QStringLiteral("number"), QStringLiteral("0"));
    const QCommandLineOption only(QStringLiteral("only"), QStringLiteral("The only habit to have."),
                                  QStringLiteral("name"));
    const QCommandLineOption leak(QStringLiteral("leak"), QStringLiteral("Leaves something behind in each round."),
                                  QStringLiteral("kind"));
    const QCommandLineOption list(QStringLiteral("list"), QStringLiteral("Names the habits."));
    parser.addOptions({minutes, rounds, only, leak, list});
    parser.process(application);

    const std::vector<Habit> chosen = habits(parser.value(only));
    if (parser.isSet(list)) {
        for (const Habit& habit : chosen)
            QTextStream(stdout) << habit.name << Qt::endl;
        return EXIT_SUCCESS;
    }
    const std::function<void()> left = leakOf(parser.value(leak));
    if (chosen.empty() || (parser.isSet(leak) && !left)) {
        QTextStream(stderr) << "no such habit or leak" << Qt::endl;
        return EXIT_FAILURE;
    }
    if (!countersWork()) {
        QTextStream(stderr) << "neither objects nor event filters can be counted here" << Qt::endl;
        return EXIT_FAILURE;
    }
    const Span span{parser.value(rounds).toInt(), static_cast<qint64>(parser.value(minutes).toDouble() * Minute)};
    return Program(chosen, left).run(span);
}
