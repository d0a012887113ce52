#include <KQt/Ui/NamedPalette.h>

#include <QtGlobal>

namespace Kestrel::Gui::Detail {

// clang-format off
const std::array<NamedColor, std::size_t{namedPaletteColumns} * namedPaletteRows> namedPalette = {{
    //: Name of a colour of the palette, read out by screen readers.
    {QT_TRANSLATE_NOOP("Kestrel::Gui::RColorPickerPopup", "Black"),               0,   0,   0},
    //: Name of a colour of the palette, read out by screen readers.
    {QT_TRANSLATE_NOOP("Kestrel::Gui::RColorPickerPopup", "Brown"),             165,  42,   0},
    //: Name of a colour of the palette, read out by screen readers.
    {QT_TRANSLATE_NOOP("Kestrel::Gui::RColorPickerPopup", "Dark Olive Green"),    0,  64,  64},
    //: Name of a colour of the palette, read out by screen readers.
    {QT_TRANSLATE_NOOP("Kestrel::Gui::RColorPickerPopup", "Dark Green"),          0,  85,   0},
    //: Name of a colour of the palette, read out by screen readers.
    {QT_TRANSLATE_NOOP("Kestrel::Gui::RColorPickerPopup", "Dark Teal"),           0,   0,  94},
    //: Name of a colour of the palette, read out by screen readers.
    {QT_TRANSLATE_NOOP("Kestrel::Gui::RColorPickerPopup", "Dark blue"),           0,   0, 139},
    //: Name of a colour of the palette, read out by screen readers.
    {QT_TRANSLATE_NOOP("Kestrel::Gui::RColorPickerPopup", "Indigo"),             75,   0, 130},
    //: Name of a colour of the palette, read out by screen readers.
    {QT_TRANSLATE_NOOP("Kestrel::Gui::RColorPickerPopup", "Dark grey"),          40,  40,  40},

    //: Name of a colour of the palette, read out by screen readers.
    {QT_TRANSLATE_NOOP("Kestrel::Gui::RColorPickerPopup", "Dark red"),          139,   0,   0},
    //: Name of a colour of the palette, read out by screen readers.
    {QT_TRANSLATE_NOOP("Kestrel::Gui::RColorPickerPopup", "Orange"),            255, 104,  32},
    //: Name of a colour of the palette, read out by screen readers.
    {QT_TRANSLATE_NOOP("Kestrel::Gui::RColorPickerPopup", "Dark yellow"),       139, 139,   0},
    //: Name of a colour of the palette, read out by screen readers.
    {QT_TRANSLATE_NOOP("Kestrel::Gui::RColorPickerPopup", "Green"),               0, 147,   0},
    //: Name of a colour of the palette, read out by screen readers.
    {QT_TRANSLATE_NOOP("Kestrel::Gui::RColorPickerPopup", "Teal"),               56, 142, 142},
    //: Name of a colour of the palette, read out by screen readers.
    {QT_TRANSLATE_NOOP("Kestrel::Gui::RColorPickerPopup", "Blue"),                0,   0, 255},
    //: Name of a colour of the palette, read out by screen readers.
    {QT_TRANSLATE_NOOP("Kestrel::Gui::RColorPickerPopup", "Blue-grey"),         123, 123, 192},
    //: Name of a colour of the palette, read out by screen readers.
    {QT_TRANSLATE_NOOP("Kestrel::Gui::RColorPickerPopup", "Grey - 40"),         102, 102, 102},

    //: Name of a colour of the palette, read out by screen readers.
    {QT_TRANSLATE_NOOP("Kestrel::Gui::RColorPickerPopup", "Red"),               255,   0,   0},
    //: Name of a colour of the palette, read out by screen readers.
    {QT_TRANSLATE_NOOP("Kestrel::Gui::RColorPickerPopup", "Light orange"),      255, 173,  91},
    //: Name of a colour of the palette, read out by screen readers.
    {QT_TRANSLATE_NOOP("Kestrel::Gui::RColorPickerPopup", "Lime"),               50, 205,  50},
    //: Name of a colour of the palette, read out by screen readers.
    {QT_TRANSLATE_NOOP("Kestrel::Gui::RColorPickerPopup", "Sea green"),          60, 179, 113},
    //: Name of a colour of the palette, read out by screen readers.
    {QT_TRANSLATE_NOOP("Kestrel::Gui::RColorPickerPopup", "Aqua"),              127, 255, 212},
    //: Name of a colour of the palette, read out by screen readers.
    {QT_TRANSLATE_NOOP("Kestrel::Gui::RColorPickerPopup", "Light blue"),        125, 158, 192},
    //: Name of a colour of the palette, read out by screen readers.
    {QT_TRANSLATE_NOOP("Kestrel::Gui::RColorPickerPopup", "Violet"),            128,   0, 128},
    //: Name of a colour of the palette, read out by screen readers.
    {QT_TRANSLATE_NOOP("Kestrel::Gui::RColorPickerPopup", "Grey - 50"),         128, 128, 128},

    //: Name of a colour of the palette, read out by screen readers.
    {QT_TRANSLATE_NOOP("Kestrel::Gui::RColorPickerPopup", "Pink"),              255, 192, 203},
    //: Name of a colour of the palette, read out by screen readers.
    {QT_TRANSLATE_NOOP("Kestrel::Gui::RColorPickerPopup", "Gold"),              255, 215,   0},
    //: Name of a colour of the palette, read out by screen readers.
    {QT_TRANSLATE_NOOP("Kestrel::Gui::RColorPickerPopup", "Yellow"),            255, 255,   0},
    //: Name of a colour of the palette, read out by screen readers.
    {QT_TRANSLATE_NOOP("Kestrel::Gui::RColorPickerPopup", "Bright green"),        0, 255,   0},
    //: Name of a colour of the palette, read out by screen readers.
    {QT_TRANSLATE_NOOP("Kestrel::Gui::RColorPickerPopup", "Turquoise"),          64, 224, 208},
    //: Name of a colour of the palette, read out by screen readers.
    {QT_TRANSLATE_NOOP("Kestrel::Gui::RColorPickerPopup", "Skyblue"),           192, 255, 255},
    //: Name of a colour of the palette, read out by screen readers.
    {QT_TRANSLATE_NOOP("Kestrel::Gui::RColorPickerPopup", "Plum"),               72,   0,  72},
    //: Name of a colour of the palette, read out by screen readers.
    {QT_TRANSLATE_NOOP("Kestrel::Gui::RColorPickerPopup", "Light grey"),        192, 192, 192},

    //: Name of a colour of the palette, read out by screen readers.
    {QT_TRANSLATE_NOOP("Kestrel::Gui::RColorPickerPopup", "Rose"),              255, 228, 225},
    //: Name of a colour of the palette, read out by screen readers.
    {QT_TRANSLATE_NOOP("Kestrel::Gui::RColorPickerPopup", "Tan"),               210, 180, 140},
    //: Name of a colour of the palette, read out by screen readers.
    {QT_TRANSLATE_NOOP("Kestrel::Gui::RColorPickerPopup", "Light yellow"),      255, 255, 224},
    //: Name of a colour of the palette, read out by screen readers.
    {QT_TRANSLATE_NOOP("Kestrel::Gui::RColorPickerPopup", "Pale green "),       152, 251, 152},
    //: Name of a colour of the palette, read out by screen readers.
    {QT_TRANSLATE_NOOP("Kestrel::Gui::RColorPickerPopup", "Pale turquoise"),    175, 238, 238},
    //: Name of a colour of the palette, read out by screen readers.
    {QT_TRANSLATE_NOOP("Kestrel::Gui::RColorPickerPopup", "Pale blue"),         104, 131, 139},
    //: Name of a colour of the palette, read out by screen readers.
    {QT_TRANSLATE_NOOP("Kestrel::Gui::RColorPickerPopup", "Lavender"),          230, 230, 250},
    //: Name of a colour of the palette, read out by screen readers.
    {QT_TRANSLATE_NOOP("Kestrel::Gui::RColorPickerPopup", "White"),             255, 255, 255},
}};
// clang-format on

} // namespace Kestrel::Gui::Detail
