#include <KQt/Ui/NamedPalette.h>

namespace Kestrel::Gui::Detail {

// clang-format off
const std::array<NamedColor, std::size_t{namedPaletteColumns} * namedPaletteRows> namedPalette = {{
    {"Black",               0,   0,   0},
    {"Brown",             165,  42,   0},
    {"Dark Olive Green",    0,  64,  64},
    {"Dark Green",          0,  85,   0},
    {"Dark Teal",           0,   0,  94},
    {"Dark blue",           0,   0, 139},
    {"Indigo",             75,   0, 130},
    {"Dark grey",          40,  40,  40},

    {"Dark red",          139,   0,   0},
    {"Orange",            255, 104,  32},
    {"Dark yellow",       139, 139,   0},
    {"Green",               0, 147,   0},
    {"Teal",               56, 142, 142},
    {"Blue",                0,   0, 255},
    {"Blue-grey",         123, 123, 192},
    {"Grey - 40",         102, 102, 102},

    {"Red",               255,   0,   0},
    {"Light orange",      255, 173,  91},
    {"Lime",               50, 205,  50},
    {"Sea green",          60, 179, 113},
    {"Aqua",              127, 255, 212},
    {"Light blue",        125, 158, 192},
    {"Violet",            128,   0, 128},
    {"Grey - 50",         128, 128, 128},

    {"Pink",              255, 192, 203},
    {"Gold",              255, 215,   0},
    {"Yellow",            255, 255,   0},
    {"Bright green",        0, 255,   0},
    {"Turquoise",          64, 224, 208},
    {"Skyblue",           192, 255, 255},
    {"Plum",               72,   0,  72},
    {"Light grey",        192, 192, 192},

    {"Rose",              255, 228, 225},
    {"Tan",               210, 180, 140},
    {"Light yellow",      255, 255, 224},
    {"Pale green ",       152, 251, 152},
    {"Pale turquoise",    175, 238, 238},
    {"Pale blue",         104, 131, 139},
    {"Lavender",          230, 230, 250},
    {"White",             255, 255, 255},
}};
// clang-format on

} // namespace Kestrel::Gui::Detail
