#include <KQt/Ui/Accessibility/TileButtonInterface.h>

#include <KQt/Ui/Accessibility/MouseClick.h>
#include <KQt/Ui/PreviewImageLabel.h>

#include <QToolButton>

namespace Kestrel::Gui::Detail {

TileButtonInterface::TileButtonInterface(QToolButton* button)
    : ButtonInterface(button)
{
}

QString TileButtonInterface::fallbackName() const
{
    const QString name = ButtonInterface::fallbackName();
    //: Name of the play button of a preview tile, read out by screen readers.
    return name.isEmpty() ? PreviewImageLabel::tr("Play") : name;
}

void TileButtonInterface::press()
{
    clickLater(button());
}

} // namespace Kestrel::Gui::Detail
