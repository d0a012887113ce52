#pragma once

#include <Qt>

QT_BEGIN_NAMESPACE
class QFontMetrics;
class QString;
QT_END_NAMESPACE

namespace Kestrel::Gui::Detail {

/// Texts with more UTF-16 units than these are not looked at as a whole.
constexpr int LongTextSize = 2048;

/// Whether @p text holds several to choose from, as the metrics understand it: the first that fits is taken whole.
bool hasVariants(const QString& text);

/// What the metrics' own elidedText() returns, without flags. The metrics lay out the whole text, which takes seconds
/// for a text of a megabyte; here, the cost grows with @p width (pixels) and not with the text.
QString elidedText(const QFontMetrics& metrics, const QString& text, Qt::TextElideMode mode, int width);

} // namespace Kestrel::Gui::Detail
