#include "PageSource.h"

#include <QFile>
#include <QRegularExpression>

#include <algorithm>
#include <utility>

namespace Gallery {

namespace {

int indentationOf(const QString& line)
{
    const auto text = std::find_if(line.begin(), line.end(), [](QChar character) { return !character.isSpace(); });
    return static_cast<int>(text - line.begin());
}

QString atLeftMargin(const QStringList& lines)
{
    int margin = -1;
    for (const QString& line : lines) {
        if (!line.trimmed().isEmpty())
            margin = margin < 0 ? indentationOf(line) : std::min(margin, indentationOf(line));
    }
    QStringList moved;
    for (const QString& line : lines)
        moved << line.mid(std::max(margin, 0));
    return moved.join(QLatin1Char('\n'));
}

} // namespace

PageSource PageSource::ofFile(const QString& fileName)
{
    QFile file(QStringLiteral(":/pages/") + fileName);
    return PageSource(file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString());
}

PageSource::PageSource(QString text)
    : m_text(std::move(text))
{
}

QString PageSource::code() const
{
    QStringList passages;
    QStringList passage;
    bool isInside = false;
    const auto lines = m_text.split(QLatin1Char('\n'));
    for (const QString& line : lines) {
        if (line.trimmed() == QLatin1String("//! [code]")) {
            if (isInside)
                passages << atLeftMargin(passage);
            passage.clear();
            isInside = !isInside;
        } else if (isInside) {
            passage << line;
        }
    }
    return passages.join(QStringLiteral("\n\n"));
}

QStringList PageSource::components() const
{
    static const QRegularExpression mention(
        QStringLiteral(R"(^(?:#include <KQt/Ui/(?:\w+/)?(\w+)\.h>|//! \[shows\] (.*)))"),
        QRegularExpression::MultilineOption);
    QStringList names;
    auto matches = mention.globalMatch(m_text);
    while (matches.hasNext()) {
        const auto match = matches.next();
        names << (match.captured(1) + match.captured(2)).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    }
    return names;
}

} // namespace Gallery
