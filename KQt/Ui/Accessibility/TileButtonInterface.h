#pragma once

#include <KQt/Ui/Accessibility/ButtonInterface.h>

QT_BEGIN_NAMESPACE
class QToolButton;
QT_END_NAMESPACE

namespace Kestrel::Gui::Detail {

/// The star or the play button of a PreviewImageLabel. The tile takes the mouse from its buttons, which never click by
/// themselves: a press is a press and a release of the mouse.
class TileButtonInterface : public ButtonInterface
{
public:
    explicit TileButtonInterface(QToolButton* button);

protected:
    QString fallbackName() const override;
    void press() override;
};

} // namespace Kestrel::Gui::Detail
