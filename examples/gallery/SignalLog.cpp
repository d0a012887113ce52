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
    m_swarms.clear();
    appendPlainText(line);
}

void SignalLog::addCounted(const QString& line)
{
    const QString signal = line.section(QLatin1Char('('), 0, 0);
    const auto swarm = m_swarms.find(signal);
    // The line may be gone: cleared, or dropped as the oldest.
    if (swarm != m_swarms.end() && swarm->line.isValid() && swarm->line.text().startsWith(signal)) {
        ++swarm->count;
        replace(swarm->line, QStringLiteral("%1 ×%2").arg(line).arg(swarm->count));
        return;
    }
    appendPlainText(line);
    m_swarms.insert(signal, {document()->lastBlock()});
}

void SignalLog::replace(const QTextBlock& block, const QString& line)
{
    QTextCursor cursor(block);
    cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    cursor.insertText(line);
}

} // namespace Gallery
