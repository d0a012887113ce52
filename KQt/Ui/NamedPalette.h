#pragma once

#include <QColor>

#include <array>
#include <cstddef>

namespace Kestrel::Gui::Detail {

/// A colour of the named palette. No widget shows the name; screen readers read it out, translated.
struct NamedColor
{
    const char* name;
    int red; ///< 0..255, as the others
    int green;
    int blue;

    QColor color() const { return {red, green, blue}; }
};

constexpr int namedPaletteColumns = 8;
constexpr int namedPaletteRows = 5;

/// The 40 opaque colours, row by row.
///
/// Some names do not fit their colour and one ends in a space; they are kept as they were given.
extern const std::array<NamedColor, std::size_t{namedPaletteColumns} * namedPaletteRows> namedPalette;

} // namespace Kestrel::Gui::Detail
