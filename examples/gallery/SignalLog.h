#pragma once

#include <QHash>
#include <QPlainTextEdit>
#include <QTextBlock>

namespace Gallery {

/// A read-only list of the signals that a page's components emitted, newest last, the oldest dropped.
class SignalLog : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit SignalLog(QWidget* parent = nullptr);

    QSize sizeHint() const override;

    /// Adds a line: "sender.signal(arguments)" as the caller words it.
    void add(const QString& line);

    /// The same for signals that come in swarms, as a moving mouse sends them: until add() is called again, each signal
    /// has one line, which shows its newest arguments and counts.
    void addCounted(const QString& line);

private:
    struct Swarm
    {
        QTextBlock line;
        int count = 1;
    };

    static void replace(const QTextBlock& block, const QString& line);

    QHash<QString, Swarm> m_swarms;
};

} // namespace Gallery
