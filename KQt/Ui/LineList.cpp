#include <KQt/Ui/LineList.h>

#include <KQt/Ui/Accessibility/InstallAccessibility.h>

#include <QComboBox>
#include <QListView>

namespace Kestrel::Gui::Detail {

void installLineList(QComboBox& box)
{
    installAccessibility();
    auto* view = new QListView;
    view->setModel(box.model());
    box.setView(view);
    forgetAccessibleInterface(view);
}

} // namespace Kestrel::Gui::Detail
