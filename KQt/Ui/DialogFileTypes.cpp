#include <KQt/Ui/DialogFileTypes.h>

#include <QRegExp>
#include <QStringList>

namespace Kestrel::Gui {

namespace {

/// What lies in the last parentheses, the whole entry where there are none; not yet as the system wants it.
QString patternText(const QString& entry, int open)
{
    const int close = open < 0 ? -1 : entry.indexOf(QLatin1Char(')'), open);
    if (close < 0)
        return entry;
    return entry.mid(open + 1, close - open - 1).trimmed();
}

QString specificationOf(const QString& entry, int open)
{
    // Unlike QRegularExpression it counts as white space what QString::trimmed() does, whatever the language.
    const QRegExp separators(QStringLiteral("[;\\s]+"), Qt::CaseSensitive);

    QString patterns = patternText(entry, open);
    if (patterns.isEmpty())
        patterns = QStringLiteral("*");
    return patterns.replace(separators, QStringLiteral(";"));
}

QString nameOf(const QString& entry, int open)
{
    if (open < 0)
        return entry;
    int length = open;
    while (length > 0 && entry.at(length - 1) == QLatin1Char(' '))
        --length;
    return entry.left(length);
}

} // namespace

QVector<DialogFileType> dialogFileTypes(const QString& filter)
{
    const QStringList entries = filter.split(QStringLiteral(";;"), Qt::SkipEmptyParts, Qt::CaseSensitive);
    QVector<DialogFileType> types;
    types.reserve(entries.size());
    for (const QString& entry : entries) {
        const int open = entry.lastIndexOf(QLatin1Char('('));
        types.append({nameOf(entry, open), specificationOf(entry, open)});
    }
    return types;
}

QString selectedFilterText(const DialogFileType& type)
{
    QString patterns = type.specification;
    patterns.replace(QLatin1Char(';'), QLatin1Char(' '));
    return QStringLiteral("%1 (%2)").arg(type.name, patterns);
}

} // namespace Kestrel::Gui
