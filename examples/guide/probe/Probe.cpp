// Linked to every example of the guide, so that the checks can see it run. With --probe the program ends as soon as a
// window was painted, with --probe=CLASS as soon as a widget of that class was; with 1 where that takes ten seconds.
// --picture=FILE keeps what was seen.
#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>

namespace {

constexpr int longestWait = 10000; // milliseconds

// The text behind "name" in the argument that begins with it; null where there is no such argument.
QString option(const QString& name)
{
    const QStringList arguments = QCoreApplication::arguments();
    for (const QString& argument : arguments) {
        if (argument.startsWith(name))
            return argument.mid(name.size()) + QLatin1String("");
    }
    return {};
}

class Probe : public QObject
{
public:
    explicit Probe(const QString& className)
        : QObject(QCoreApplication::instance())
        , m_className(className.mid(1).toLatin1())
    {
        QCoreApplication::instance()->installEventFilter(this);
        QTimer::singleShot(longestWait, this, [] { QCoreApplication::exit(1); });
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto* widget = event->type() == QEvent::Paint ? qobject_cast<QWidget*>(watched) : nullptr;
        if (widget && !m_seen && isAwaited(*widget)) {
            m_seen = true;
            // What the program has posted until then runs before its end.
            QTimer::singleShot(0, widget, [widget] { end(*widget->window()); });
        }
        return false;
    }

private:
    bool isAwaited(const QWidget& widget) const
    {
        return m_className.isEmpty() ? widget.isWindow() : widget.inherits(m_className.constData());
    }

    static void end(QWidget& window)
    {
        const QString file = option(QStringLiteral("--picture="));
        QCoreApplication::exit(file.isEmpty() || window.grab().save(file) ? 0 : 1);
    }

    QByteArray m_className;
    bool m_seen = false;
};

void startProbe()
{
    const QString className = option(QStringLiteral("--probe"));
    if (!className.isNull())
        new Probe(className);
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(startProbe)
