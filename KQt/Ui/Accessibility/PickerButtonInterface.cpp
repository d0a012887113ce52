#include <KQt/Ui/Accessibility/PickerButtonInterface.h>

#include <KQt/Ui/PickerButton.h>

namespace Kestrel::Gui::Detail {

PickerButtonInterface::PickerButtonInterface(PickerButton* swatch)
    : ButtonInterface(swatch, QAccessible::RadioButton)
{
}

QString PickerButtonInterface::valueText() const
{
    return static_cast<PickerButton*>(object())->color().name();
}

} // namespace Kestrel::Gui::Detail
