#include <KQt/Ui/TextEliding.h>

#include <QFontMetrics>
#include <QString>

namespace Kestrel::Gui::Detail {

namespace {

// Marks, embeddings, overrides and isolates. An elided text keeps those of the part that is left out.
bool isDirectional(QChar c)
{
    return (c >= QChar(0x200e) && c <= QChar(0x200f)) || (c >= QChar(0x202a) && c <= QChar(0x202e)) ||
           (c >= QChar(0x2066) && c <= QChar(0x2069));
}

// The text with @p kept units at each end and, in between, what the metrics would keep of the rest.
QString withoutMiddle(const QString& text, int kept)
{
    QString ends = text.left(kept);
    for (auto c = text.cbegin() + kept; c != text.cend() - kept; ++c) {
        if (isDirectional(*c))
            ends += *c;
    }
    return ends + text.rightRef(kept);
}

} // namespace

bool hasVariants(const QString& text)
{
    constexpr QChar separator(0x9c);
    return text.contains(separator);
}

QString elidedText(const QFontMetrics& metrics, const QString& text, Qt::TextElideMode mode, int width)
{
    if (text.size() <= LongTextSize || mode == Qt::ElideNone || hasVariants(text))
        return metrics.elidedText(text, mode, width);

    // Where an end alone is twice too wide, what the metrics look at lies well inside of it.
    const int tooWide = 2 * qMax(width, 1);
    const auto isEnough = [&](const QString& end) { return metrics.horizontalAdvance(end) > tooWide; };
    constexpr int fewest = LongTextSize / 8;
    for (int kept = qMax(fewest, tooWide / qMax(metrics.averageCharWidth(), 1)); kept < text.size() / 4; kept *= 4) {
        if ((mode == Qt::ElideLeft || isEnough(text.left(kept))) &&
            (mode == Qt::ElideRight || isEnough(text.right(kept))))
            return metrics.elidedText(withoutMiddle(text, kept), mode, width);
    }
    return metrics.elidedText(text, mode, width);
}

} // namespace Kestrel::Gui::Detail
