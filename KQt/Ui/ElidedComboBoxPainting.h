#pragma once

#include <QString>

QT_BEGIN_NAMESPACE
class QComboBox;
class QRect;
class QStyleOptionComboBox;
class QStylePainter;
QT_END_NAMESPACE

namespace Kestrel::Gui::Detail {

/// What the combo boxes that elide their closed text paint alike.

/// The rectangle that the style leaves for the text of @p box.
QRect editField(const QComboBox& box, const QStyleOptionComboBox& option);

/// Paints frame, arrow and label of @p box, the text elided on the right to @p textWidth pixels.
/// @return the text as it was painted.
QString paintElided(QStylePainter& painter, const QComboBox& box, QStyleOptionComboBox& option, int textWidth);

/// Sets the tool tip where it is another one.
void updateToolTip(QComboBox& box, const QString& text);

} // namespace Kestrel::Gui::Detail
