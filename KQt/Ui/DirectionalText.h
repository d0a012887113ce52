#pragma once

#include <QString>

namespace Kestrel::Gui::Detail {

/// @p text between the marks U+202A and U+202C, so that text of mixed direction keeps its order when it is elided.
QString withDirectionalMarks(const QString& text);

/// @p text without any such mark where it begins with U+202A; otherwise as it is.
QString withoutDirectionalMarks(const QString& text);

} // namespace Kestrel::Gui::Detail
