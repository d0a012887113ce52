#include <KQt/Ui/Accessibility/AdvancedColorPickerPopupInterface.h>

#include <KQt/Ui/AdvancedColorPicker.h>
#include <KQt/Ui/AdvancedColorPickerPopup.h>

namespace Kestrel::Gui::Detail {

AdvancedColorPickerPopupInterface::AdvancedColorPickerPopupInterface(AdvancedColorPickerPopup* popup)
    : ValueInterface(popup, QAccessible::Pane)
{
}

QAccessibleInterface* AdvancedColorPickerPopupInterface::parent() const
{
    QWidget* const picker = static_cast<AdvancedColorPickerPopup*>(object())->m_picker;
    return picker ? QAccessible::queryAccessibleInterface(picker) : ValueInterface::parent();
}

QWidget* AdvancedColorPickerPopupInterface::popupOf(const AdvancedColorPicker& picker)
{
    return picker.m_popup.get();
}

QString AdvancedColorPickerPopupInterface::valueText() const
{
    const QColor color = static_cast<AdvancedColorPickerPopup*>(object())->color();
    return color.isValid() ? color.name() : QString();
}

} // namespace Kestrel::Gui::Detail
