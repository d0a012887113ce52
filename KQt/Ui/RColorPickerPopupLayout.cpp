#include <KQt/Ui/RColorPickerPopupLayout.h>

namespace Kestrel::Gui::Detail {

namespace {

// The layout in pixels.
constexpr int cellSize = 12;
constexpr int cellDistance = 16;
constexpr int cellsLeft = 8;
constexpr int cellsTop = 34;
constexpr int buttonMargin = 4;
constexpr int buttonHeight = 20;
constexpr int defaultButtonTop = 5;
constexpr int moreButtonBelowLastRow = 55;

QRect buttonRect(int top, int popupWidth)
{
    return {buttonMargin, top, popupWidth - 2 * buttonMargin, buttonHeight};
}

} // namespace

QRect popupCellRect(int cell)
{
    const int column = cell % namedPaletteColumns;
    const int row = cell / namedPaletteColumns;
    return {column * cellDistance + cellsLeft, row * cellDistance + cellsTop, cellSize, cellSize};
}

QRect popupDefaultRect(int popupWidth)
{
    return buttonRect(defaultButtonTop, popupWidth);
}

QRect popupMoreRect(int popupWidth)
{
    return buttonRect((namedPaletteRows - 1) * cellDistance + moreButtonBelowLastRow, popupWidth);
}

QRect popupItemRect(int item, int popupWidth)
{
    if (item == popupDefaultItem)
        return popupDefaultRect(popupWidth);
    if (item == popupMoreItem)
        return popupMoreRect(popupWidth);
    return popupCellRect(item - popupFirstCellItem);
}

} // namespace Kestrel::Gui::Detail
