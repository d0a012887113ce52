#pragma once

#include <KQt/Ui/Accessibility/ValueInterface.h>

namespace Kestrel::Gui {

class AdvancedColorPicker;
class AdvancedColorPickerPopup;

namespace Detail {

/// The popup of an AdvancedColorPicker: a pane with the colour as its value, and a child of its picker, though as a
/// widget it has no parent.
class AdvancedColorPickerPopupInterface : public ValueInterface
{
public:
    explicit AdvancedColorPickerPopupInterface(AdvancedColorPickerPopup* popup);

    QAccessibleInterface* parent() const override;

    static QWidget* popupOf(const AdvancedColorPicker& picker);

protected:
    QString valueText() const override;
};

} // namespace Detail
} // namespace Kestrel::Gui
