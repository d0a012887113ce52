#pragma once

#include <KQt/Ui/NamedPalette.h>

#include <QRect>

namespace Kestrel::Gui::Detail {

/// What can be chosen in the popup of RColorPicker, numbered as it lies there: the "Default" button, the cells of the
/// named palette row by row, the "More..." button.
constexpr int popupDefaultItem = 0;
constexpr int popupFirstCellItem = 1;
constexpr int popupMoreItem = popupFirstCellItem + namedPaletteColumns * namedPaletteRows;
constexpr int popupItemCount = popupMoreItem + 1;

/// The place of a cell of the named palette; it does not depend on the popup's size.
QRect popupCellRect(int cell);

/// The places of the two buttons in a popup of this width.
QRect popupDefaultRect(int popupWidth);
QRect popupMoreRect(int popupWidth);

/// The place of any of the items above.
QRect popupItemRect(int item, int popupWidth);

} // namespace Kestrel::Gui::Detail
