#include <KQt/Ui/AdvancedColorPickerPopupStyleSheet.h>

namespace Kestrel::Gui {

QString AdvancedColorPickerPopupStyleSheet()
{
    return QStringLiteral(
        "*{ margin: 0px; padding: 0px; border: none; }\n"
        "*{ color: black; }\n"
        "QFrame { background-color: #f3f3f3 }\n"
        "#colorEdit, #opacityEdit { background-color: white; }\n"
        "#colorButtonsFrame, #colorIndicator, #colorEdit, #opacityEdit{ border: 1px solid #cfcfcf; }\n"
        "\n"
        "#opacityEdit, #colorEdit { min-height: 25px; margin-bottom: 3px; }\n"
        "#colorIndicator { min-height: 25px; max-height: 25px; min-width: 25px; max-width: 25px; margin-top: 1px }\n"
        "\n"
        "QSlider::groove:horizontal {\n"
        "    height: 5px;\n"
        "    background: white;\n"
        "    border: 1px solid #aaaaaa;\n"
        "\tmargin: -2px 0px;\n"
        "\tborder-radius: 3px;\n"
        "}\n"
        "\n"
        "QSlider::handle:horizontal {\n"
        "    background: #e6e6e6;\n"
        "    border: 1px solid #b7b7b7;\n"
        "    width: 10px;\n"
        "    margin: -4px 0;\n"
        "    border-radius: 5px;\n"
        "}\n"
        "\n"
        "QSlider::add-page:horizontal {\n"
        "    background: white;\n"
        "}\n"
        "\n"
        "QSlider::sub-page:horizontal {\n"
        "    background: white;\n"
        "}");
}

} // namespace Kestrel::Gui
