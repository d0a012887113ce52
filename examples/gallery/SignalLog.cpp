#include "SignalLog.h"

#include <QFontDatabase>

namespace Gallery {

SignalLog::SignalLog(QWidget* parent)
    : QPlainTextEdit(parent)
{
    constexpr int keptLines = 500;
    setReadOnly(true);
    setMaximumBlockCount(keptLines);
    setLineWrapMode(QPlainTextEdit::NoWrap);
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    setPlaceholderText(tr("Signals appear here."));
}

void SignalLog::add(const QString& line)
{
    appendPlainText(line);
}

} // namespace Gallery
