#pragma once

#include <QPlainTextEdit>

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

    /// The same for signals that come in swarms, as a moving mouse sends them: takes the place of the newest line where
    /// that holds the same signal, and counts.
    void addCounted(const QString& line);

private:
    void replaceNewest(const QString& line);

    QString m_countedSignal;
    int m_count = 0;
};

} // namespace Gallery
