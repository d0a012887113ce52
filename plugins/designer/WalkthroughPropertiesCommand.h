#pragma once

#include "FormProperties.h"

#include <QPointer>
#include <QUndoCommand>
#include <QWidget>

QT_BEGIN_NAMESPACE
class QDesignerFormWindowInterface;
QT_END_NAMESPACE

namespace Kestrel::Gui::Designer {

/// Sets the walkthrough properties of a widget in a form, all in one step that can be undone. A property without a
/// value is removed.
class WalkthroughPropertiesCommand : public QUndoCommand
{
public:
    /// @param form owns the command, through its history.
    WalkthroughPropertiesCommand(QDesignerFormWindowInterface& form, QWidget& widget,
                                 const WalkthroughProperties& properties);
    ~WalkthroughPropertiesCommand() override;

    void redo() override;
    void undo() override;

private:
    void apply(const FormProperties::Values& values);
    void renewPropertyEditor();

    QDesignerFormWindowInterface& m_form;
    QPointer<QWidget> m_widget;
    FormProperties::Values m_before;
    FormProperties::Values m_after;
};

} // namespace Kestrel::Gui::Designer
