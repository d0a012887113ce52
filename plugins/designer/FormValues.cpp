#include "FormValues.h"

#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QDesignerFormWindowManagerInterface>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QExtensionManager>
#include <QXmlStreamWriter>

#include <memory>

namespace Kestrel::Gui::Designer {

namespace {

FormProperties::Values plainValues(const WalkthroughProperties& properties)
{
    FormProperties::Values values;
    const auto add = [&values](const char* name, const QString& value) {
        if (!value.isEmpty())
            values.insert(QString::fromLatin1(name), value);
    };
    add(PropertyName::target, properties.target);
    add(PropertyName::hint, properties.hint);
    add(PropertyName::alignment, properties.alignment);
    if (!properties.conditions.isEmpty())
        values.insert(QString::fromLatin1(PropertyName::conditions), properties.conditions);
    return values;
}

void startUntranslated(QXmlStreamWriter& xml, const QString& element)
{
    xml.writeStartElement(element);
    xml.writeAttribute(QStringLiteral("notr"), QStringLiteral("true"));
}

void writeValue(QXmlStreamWriter& xml, const QVariant& value)
{
    if (value.type() == QVariant::StringList) {
        startUntranslated(xml, QStringLiteral("stringlist"));
        const QStringList items = value.toStringList();
        for (const QString& item : items)
            xml.writeTextElement(QStringLiteral("string"), item);
    } else {
        startUntranslated(xml, QStringLiteral("string"));
        xml.writeCharacters(value.toString());
    }
    xml.writeEndElement();
}

QString formWith(const FormProperties::Values& values)
{
    QString form;
    QXmlStreamWriter xml(&form);
    xml.writeStartElement(QStringLiteral("ui"));
    xml.writeAttribute(QStringLiteral("version"), QStringLiteral("4.0"));
    xml.writeStartElement(QStringLiteral("widget"));
    xml.writeAttribute(QStringLiteral("class"), QStringLiteral("QWidget"));
    xml.writeAttribute(QStringLiteral("name"), QStringLiteral("values"));
    for (auto value = values.begin(); value != values.end(); ++value) {
        xml.writeStartElement(QStringLiteral("property"));
        xml.writeAttribute(QStringLiteral("name"), value.key());
        xml.writeAttribute(QStringLiteral("stdset"), QStringLiteral("0"));
        writeValue(xml, value.value());
        xml.writeEndElement();
    }
    xml.writeEndElement();
    xml.writeEndElement();
    return form;
}

} // namespace

FormProperties::Values formValues(QDesignerFormEditorInterface& editor, const WalkthroughProperties& properties)
{
    FormProperties::Values values = plainValues(properties);
    // Only a form that is read makes texts that are not translated: the type that holds them is Designer's own.
    const std::unique_ptr<QDesignerFormWindowInterface> form(editor.formWindowManager()->createFormWindow());
    form->setContents(formWith(values));
    auto* sheet = qt_extension<QDesignerPropertySheetExtension*>(editor.extensionManager(), form->mainContainer());
    for (auto value = values.begin(); sheet && value != values.end(); ++value) {
        const int index = sheet->indexOf(value.key());
        if (index >= 0)
            *value = sheet->property(index);
    }
    return values;
}

} // namespace Kestrel::Gui::Designer
