#pragma once

#include <QColor>

#include <array>

namespace Kestrel::Gui {

constexpr int AdvancedColorPaletteRows = 10;
constexpr int AdvancedColorPaletteColumns = 12;
constexpr int AdvancedColorPaletteSize = AdvancedColorPaletteRows * AdvancedColorPaletteColumns;

/// The fixed colours of the advanced colour popup, row by row as they lie in the grid; all opaque.
extern const std::array<QColor, AdvancedColorPaletteSize> AdvancedColorPalette;

} // namespace Kestrel::Gui
