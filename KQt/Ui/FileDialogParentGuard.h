#pragma once

#include <QObject>
#include <QObjectList>

QT_BEGIN_NAMESPACE
class QFileDialog;
class QWidget;
QT_END_NAMESPACE

namespace Kestrel::Gui {

/// Cancels a dialog of QFileDialog's static functions when its parent goes while it is open.
///
/// Those functions have their dialog on the stack, where the parent must not delete it as it deletes its other
/// children. Stands in the scope of the call, before it.
class FileDialogParentGuard : public QObject
{
    Q_OBJECT

public:
    /// @param parent of the dialog to come; null needs no guard.
    explicit FileDialogParentGuard(QWidget* parent);
    ~FileDialogParentGuard() override;

private:
    void rescueFrom(QObject* parent);

    QObjectList m_earlierChildren;
};

} // namespace Kestrel::Gui
