// Linked to every example of the guide, so that the checks can see it run: with --probe the program ends as soon as a
// window was painted, with 1 where none is after ten seconds.
#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>

namespace {

constexpr int longestWait = 10000; // milliseconds

class Probe : public QObject
{
public:
    explicit Probe(QObject* application)
        : QObject(application)
    {
        application->installEventFilter(this);
        QTimer::singleShot(longestWait, this, [] { QCoreApplication::exit(1); });
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const auto* widget = event->type() == QEvent::Paint ? qobject_cast<QWidget*>(watched) : nullptr;
        // What the program has posted until then runs before its end.
        if (widget && widget->isWindow() && !m_painted) {
            m_painted = true;
            QTimer::singleShot(0, this, [] { QCoreApplication::exit(0); });
        }
        return false;
    }

private:
    bool m_painted = false;
};

void startProbe()
{
    if (QCoreApplication::arguments().contains(QLatin1String("--probe")))
        new Probe(QCoreApplication::instance());
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(startProbe)
