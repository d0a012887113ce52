#include <KQt/Ui/FileDialogParentGuard.h>

#include <QFileDialog>

namespace Kestrel::Gui {

FileDialogParentGuard::FileDialogParentGuard(QWidget* parent)
{
    if (!parent)
        return;
    m_earlierChildren = parent->children();
    connect(parent, &QObject::destroyed, this, &FileDialogParentGuard::rescueFrom);
}

FileDialogParentGuard::~FileDialogParentGuard() = default;

// Widgets tell that they go before they delete their children. Other dialogs remain theirs to delete: the one on the
// stack is the first that came.
void FileDialogParentGuard::rescueFrom(QObject* parent)
{
    const auto dialogs = parent->findChildren<QFileDialog*>(QString(), Qt::FindDirectChildrenOnly);
    for (QFileDialog* dialog : dialogs) {
        if (!m_earlierChildren.contains(dialog)) {
            dialog->setParent(nullptr);
            dialog->reject();
            return;
        }
    }
}

} // namespace Kestrel::Gui
