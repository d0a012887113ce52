#pragma once

#include <QString>

QT_BEGIN_NAMESPACE
class QComboBox;
QT_END_NAMESPACE

namespace Kestrel::Gui::Detail {

/// A Qt::PenStyle in words, in the current language.
QString lineStyleName(int style);

/// A width in pixels in words, in the current language. Below 1 there is no line.
QString lineWidthName(int width);

/// What an item of a line style or line width box shows, in words: the item's own accessible text or text where it has
/// one, otherwise the name of its sample. A row without an item shows what an item without a value does.
QString lineItemName(const QComboBox& box, int row);

} // namespace Kestrel::Gui::Detail
