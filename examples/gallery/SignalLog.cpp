#include "SignalLog.h"

#include <QFont>
#include <QTextCursor>

namespace Gallery {

SignalLog::SignalLog(QWidget* parent)
    : QPlainTextEdit(parent)
{
    constexpr int keptLines = 500;
    setReadOnly(true);
    setMaximumBlockCount(keptLines);
    setLineWrapMode(QPlainTextEdit::NoWrap);
    QFont fixed(QStringLiteral("monospace"), font().pointSize());
    fixed.setStyleHint(QFont::Monospace);
    setFont(fixed);
    // Names of signals are no prose: from left to right in every language.
    setLayoutDirection(Qt::LeftToRight);
    setPlaceholderText(tr("Signals appear here."));
}

QSize SignalLog::sizeHint() const
{
    constexpr int lines = 6;
    return {QPlainTextEdit::sizeHint().width(), fontMetrics().lineSpacing() * lines};
}

void SignalLog::add(const QString& line)
{
    m_countedSignal.clear();
    appendPlainText(line);
}

void SignalLog::addCounted(const QString& line)
{
    const QString signal = line.section(QLatin1Char('('), 0, 0);
    if (signal == m_countedSignal && !document()->isEmpty()) {
        ++m_count;
        replaceNewest(QStringLiteral("%1 \u00d7%2").arg(line).arg(m_count));
        return;
    }
    add(line);
    m_countedSignal = signal;
    m_count = 1;
}

void SignalLog::replaceNewest(const QString& line)
{
    QTextCursor cursor(document());
    cursor.movePosition(QTextCursor::End);
    cursor.movePosition(QTextCursor::StartOfBlock, QTextCursor::KeepAnchor);
    cursor.insertText(line);
}

} // namespace Gallery
