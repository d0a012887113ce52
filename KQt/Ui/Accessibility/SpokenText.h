#pragma once

#include <QString>

namespace Kestrel::Gui::Detail {

/// @p text without any mark that only orders or isolates directions on the screen (U+061C, U+200E, U+200F,
/// U+202A to U+202E, U+2066 to U+2069).
QString spokenText(const QString& text);

/// Whether @p character is such a mark.
bool isDirectionalMark(QChar character);

} // namespace Kestrel::Gui::Detail
