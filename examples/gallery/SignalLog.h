#pragma once

#include <QPlainTextEdit>

namespace Gallery {

/// A read-only list of the signals that a page's components emitted, newest last, the oldest dropped.
class SignalLog : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit SignalLog(QWidget* parent = nullptr);

    /// Adds a line: "sender.signal(arguments)" as the caller words it.
    void add(const QString& line);
};

} // namespace Gallery
