#pragma once

#include <KQt/Ui/Accessibility/ButtonInterface.h>

namespace Kestrel::Gui {

class PickerButton;

namespace Detail {

/// A swatch of the advanced popup: one of the radio buttons of a group, called by its colour.
class PickerButtonInterface : public ButtonInterface
{
public:
    explicit PickerButtonInterface(PickerButton* swatch);

protected:
    QString valueText() const override;
};

} // namespace Detail
} // namespace Kestrel::Gui
