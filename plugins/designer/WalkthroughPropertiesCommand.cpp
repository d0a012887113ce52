#include "WalkthroughPropertiesCommand.h"

#include "FormValues.h"

#include <QCoreApplication>
#include <QtDesigner/QDesignerDynamicPropertySheetExtension>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QDesignerPropertyEditorInterface>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QExtensionManager>

namespace Kestrel::Gui::Designer {

namespace {

QStringList propertyNames()
{
    return {QString::fromLatin1(PropertyName::target), QString::fromLatin1(PropertyName::hint),
            QString::fromLatin1(PropertyName::alignment), QString::fromLatin1(PropertyName::conditions)};
}

bool has(const QWidget& widget, const QString& property)
{
    return widget.dynamicPropertyNames().contains(property.toLatin1());
}

} // namespace

WalkthroughPropertiesCommand::WalkthroughPropertiesCommand(QDesignerFormWindowInterface& form, QWidget& widget,
                                                           const WalkthroughProperties& properties)
    : QUndoCommand(QCoreApplication::translate("Kestrel::Gui::Designer::WalkthroughPropertiesCommand",
                                               "Changed walkthrough properties of '%1'")
                       .arg(widget.objectName()))
    , m_form(form)
    , m_widget(&widget)
    , m_before(currentValues())
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

QDesignerPropertySheetExtension* WalkthroughPropertiesCommand::sheet() const
{
    return qt_extension<QDesignerPropertySheetExtension*>(m_form.core()->extensionManager(), m_widget);
}

WalkthroughPropertiesCommand::Values WalkthroughPropertiesCommand::currentValues() const
{
    Values values;
    const QStringList names = propertyNames();
    for (const QString& name : names)
        if (has(*m_widget, name))
            values.insert(name, sheet()->property(sheet()->indexOf(name)));
    return values;
}

void WalkthroughPropertiesCommand::apply(const Values& values)
{
    if (!m_widget)
        return;
    const QStringList names = propertyNames();
    for (const QString& name : names) {
        if (values.contains(name))
            set(name, values.value(name));
        else if (has(*m_widget, name))
            remove(name);
    }
    renewPropertyEditor();
}

void WalkthroughPropertiesCommand::set(const QString& name, const QVariant& value)
{
    if (!has(*m_widget, name)) {
        auto* dynamic =
            qt_extension<QDesignerDynamicPropertySheetExtension*>(m_form.core()->extensionManager(), m_widget);
        dynamic->addDynamicProperty(name, value);
    }
    const int index = sheet()->indexOf(name);
    sheet()->setProperty(index, value);
    sheet()->setChanged(index, true);
}

void WalkthroughPropertiesCommand::remove(const QString& name)
{
    auto* dynamic = qt_extension<QDesignerDynamicPropertySheetExtension*>(m_form.core()->extensionManager(), m_widget);
    dynamic->removeDynamicProperty(sheet()->indexOf(name));
}

void WalkthroughPropertiesCommand::renewPropertyEditor()
{
    QDesignerPropertyEditorInterface* editor = m_form.core()->propertyEditor();
    if (editor && editor->object() == m_widget)
        editor->setObject(m_widget);
}

} // namespace Kestrel::Gui::Designer
