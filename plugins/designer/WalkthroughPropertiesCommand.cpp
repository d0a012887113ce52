#include "WalkthroughPropertiesCommand.h"

#include "FormValues.h"

#include <QCoreApplication>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QDesignerPropertyEditorInterface>

namespace Kestrel::Gui::Designer {

WalkthroughPropertiesCommand::WalkthroughPropertiesCommand(QDesignerFormWindowInterface& form, QWidget& widget,
                                                           const WalkthroughProperties& properties)
    : QUndoCommand(QCoreApplication::translate("Kestrel::Gui::Designer::WalkthroughPropertiesCommand",
                                               "Changed walkthrough properties of '%1'")
                       .arg(widget.objectName()))
    , m_form(form)
    , m_widget(&widget)
    , m_before(FormProperties(*form.core(), widget).values())
    , m_after(formValues(*form.core(), properties))
{
}

WalkthroughPropertiesCommand::~WalkthroughPropertiesCommand() = default;

void WalkthroughPropertiesCommand::redo()
{
    apply(m_after);
}

void WalkthroughPropertiesCommand::undo()
{
    apply(m_before);
}

void WalkthroughPropertiesCommand::apply(const FormProperties::Values& values)
{
    if (!m_widget)
        return;
    FormProperties(*m_form.core(), *m_widget).setValues(values);
    renewPropertyEditor();
}

void WalkthroughPropertiesCommand::renewPropertyEditor()
{
    QDesignerPropertyEditorInterface* editor = m_form.core()->propertyEditor();
    if (editor && editor->object() == m_widget)
        editor->setObject(m_widget);
}

} // namespace Kestrel::Gui::Designer
