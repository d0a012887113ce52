#include "FormProperties.h"

#include <QtDesigner/QDesignerDynamicPropertySheetExtension>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QExtensionManager>
#include <QWidget>

namespace Kestrel::Gui::Designer {

namespace {

QStringList propertyNames()
{
    return {QString::fromLatin1(PropertyName::target), QString::fromLatin1(PropertyName::hint),
            QString::fromLatin1(PropertyName::alignment), QString::fromLatin1(PropertyName::conditions)};
}

} // namespace

FormProperties::FormProperties(const QDesignerFormEditorInterface& editor, QWidget& widget)
    : m_widget(widget)
    , m_sheet(qt_extension<QDesignerPropertySheetExtension*>(editor.extensionManager(), &widget))
    , m_dynamic(qt_extension<QDesignerDynamicPropertySheetExtension*>(editor.extensionManager(), &widget))
{
}

FormProperties::Values FormProperties::values() const
{
    Values result;
    const QStringList names = propertyNames();
    for (const QString& name : names)
        if (has(name))
            result.insert(name, m_sheet->property(m_sheet->indexOf(name)));
    return result;
}

void FormProperties::setValues(const Values& values)
{
    const QStringList names = propertyNames();
    for (const QString& name : names) {
        if (values.contains(name))
            set(name, values.value(name));
        else if (has(name))
            remove(name);
    }
}

WalkthroughProperties FormProperties::read() const
{
    const auto value = [this](const char* name) {
        return has(QString::fromLatin1(name)) ? m_widget.property(name) : QVariant();
    };
    return {value(PropertyName::target).toString(), value(PropertyName::hint).toString(),
            value(PropertyName::alignment).toString(), value(PropertyName::conditions).toStringList()};
}

bool FormProperties::has(const QString& name) const
{
    // Designer hides a property that was removed and leaves the widget with it.
    const int index = m_sheet->indexOf(name);
    return index >= 0 && m_dynamic->isDynamicProperty(index) && m_sheet->isVisible(index);
}

void FormProperties::set(const QString& name, const QVariant& value)
{
    if (!has(name))
        m_dynamic->addDynamicProperty(name, value);
    const int index = m_sheet->indexOf(name);
    m_sheet->setProperty(index, value);
    m_sheet->setChanged(index, true);
}

void FormProperties::remove(const QString& name)
{
    m_dynamic->removeDynamicProperty(m_sheet->indexOf(name));
    m_widget.setProperty(name.toLatin1().constData(), QVariant());
}

} // namespace Kestrel::Gui::Designer
