// chaos: a window with every component, to which anything happens. The same at each run of the same seed.
#include "Actions.h"
#include "Chance.h"
#include "Contracts.h"
#include "SignalExam.h"
#include "Watchdog.h"
#include "Zoo.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QTextStream>
#include <QWidget>

#include <cstdlib>
#include <exception>
#include <map>
#include <string>

namespace {

class Program
{
public:
    Program(quint32 seed, bool verbose)
        : m_chance(seed)
        , m_verbose(verbose)
    {
        for (const auto& group : {inputActions(), programActions(), desktopActions()})
            m_actions.insert(m_actions.end(), group.begin(), group.end());
        for (const Action& action : m_actions)
            m_weight += action.weight;
    }

    int run(int steps)
    {
        {
            Zoo zoo(m_chance, m_contracts);
            for (int step = 0; step < steps; ++step)
                take(step, zoo);
            m_examined = examineSignals(zoo, m_contracts);
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        checkTheEnd();
        return report();
    }

private:
    const Action& anyAction()
    {
        int at = m_chance.below(m_weight);
        for (const Action& action : m_actions) {
            at -= action.weight;
            if (at < 0)
                return action;
        }
        return m_actions.back();
    }

    void take(int step, Zoo& zoo)
    {
        zoo.window();
        const Action& action = anyAction();
        ++m_taken[action.name];
        if (m_verbose)
            QTextStream(stderr) << step << ' ' << action.name << Qt::endl;
        try {
            action.run(zoo, m_chance);
            if (m_chance.oneIn(3))
                QCoreApplication::processEvents();
            if (m_chance.oneIn(20))
                QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        } catch (const std::exception& exception) {
            m_contracts.note(QStringLiteral("%1 threw: %2")
                                 .arg(QLatin1String(action.name),
                                      QString::fromUtf8(exception.what()).section(QLatin1Char('\n'), 0, 0)));
        }
    }

    void checkTheEnd()
    {
        if (QGuiApplication::overrideCursor())
            m_contracts.note(QStringLiteral("an override cursor is left"));
        if (QWidget::mouseGrabber() || QWidget::keyboardGrabber())
            m_contracts.note(QStringLiteral("a grab is left"));
        const auto widgets = QApplication::allWidgets();
        for (const QWidget* widget : widgets) {
            const QString name = QLatin1String(widget->metaObject()->className());
            if (name.startsWith(QLatin1String("Kestrel")))
                m_contracts.note(QStringLiteral("a %1 is left").arg(name));
        }
    }

    int report()
    {
        QTextStream out(stdout);
        for (const auto& [name, count] : m_taken)
            out << qSetFieldWidth(8) << count << qSetFieldWidth(0) << "  " << name.c_str() << '\n';
        const auto breaches = m_contracts.breaches();
        for (const QString& breach : breaches)
            out << "BROKEN: " << breach << '\n';
        out << Zoo::kinds() << " kinds of components, " << m_examined << " asked for their signals at the end, "
            << breaches.size() << " contracts broken" << Qt::endl;
        return breaches.isEmpty() ? EXIT_SUCCESS : EXIT_FAILURE;
    }

    Chance m_chance;
    bool m_verbose;
    Contracts m_contracts;
    Watchdog m_watchdog;
    std::vector<Action> m_actions;
    int m_weight = 0;
    int m_examined = 0;
    std::map<std::string, int> m_taken;
};

} // namespace

int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QCommandLineParser parser;
    parser.addHelpOption();
    const QCommandLineOption seed(QStringLiteral("seed"), QStringLiteral("What chance begins with."),
                                  QStringLiteral("number"), QStringLiteral("1"));
    const QCommandLineOption steps(QStringLiteral("steps"), QStringLiteral("How many things happen."),
                                   QStringLiteral("number"), QStringLiteral("100000"));
    const QCommandLineOption verbose(QStringLiteral("verbose"), QStringLiteral("Says each thing before it happens."));
    parser.addOptions({seed, steps, verbose});
    parser.process(application);
    return Program(parser.value(seed).toUInt(), parser.isSet(verbose)).run(parser.value(steps).toInt());
}
