#include "CustomWidget.h"

#include <QWidget>
#include <QXmlStreamWriter>

#include <utility>

namespace Kestrel::Gui::Designer {

namespace {

void writeGeometry(QXmlStreamWriter& xml, QSize size)
{
    xml.writeStartElement(QStringLiteral("property"));
    xml.writeAttribute(QStringLiteral("name"), QStringLiteral("geometry"));
    xml.writeStartElement(QStringLiteral("rect"));
    xml.writeTextElement(QStringLiteral("x"), QStringLiteral("0"));
    xml.writeTextElement(QStringLiteral("y"), QStringLiteral("0"));
    xml.writeTextElement(QStringLiteral("width"), QString::number(size.width()));
    xml.writeTextElement(QStringLiteral("height"), QString::number(size.height()));
    xml.writeEndElement();
    xml.writeEndElement();
}

void writeText(QXmlStreamWriter& xml, const char* property, const QString& text)
{
    xml.writeStartElement(QStringLiteral("property"));
    xml.writeAttribute(QStringLiteral("name"), QString::fromLatin1(property));
    xml.writeTextElement(QStringLiteral("string"), text);
    xml.writeEndElement();
}

void writeHorizontal(QXmlStreamWriter& xml)
{
    xml.writeStartElement(QStringLiteral("property"));
    xml.writeAttribute(QStringLiteral("name"), QStringLiteral("orientation"));
    xml.writeTextElement(QStringLiteral("enum"), QStringLiteral("Qt::Horizontal"));
    xml.writeEndElement();
}

void writeMultiLineProperty(QXmlStreamWriter& xml, const char* property)
{
    xml.writeStartElement(QStringLiteral("propertyspecifications"));
    xml.writeEmptyElement(QStringLiteral("stringpropertyspecification"));
    xml.writeAttribute(QStringLiteral("name"), QString::fromLatin1(property));
    xml.writeAttribute(QStringLiteral("type"), QStringLiteral("multiline"));
    xml.writeEndElement();
}

void writeNewWidget(QXmlStreamWriter& xml, const WidgetEntry& entry)
{
    xml.writeStartElement(QStringLiteral("widget"));
    xml.writeAttribute(QStringLiteral("class"), QString::fromLatin1(entry.className));
    xml.writeAttribute(QStringLiteral("name"), entry.objectName());
    writeGeometry(xml, entry.size);
    if (entry.text)
        writeText(xml, entry.text, entry.plainName());
    if (entry.horizontal)
        writeHorizontal(xml);
    xml.writeEndElement();
}

void writeClass(QXmlStreamWriter& xml, const WidgetEntry& entry)
{
    xml.writeStartElement(QStringLiteral("customwidgets"));
    xml.writeStartElement(QStringLiteral("customwidget"));
    xml.writeTextElement(QStringLiteral("class"), QString::fromLatin1(entry.className));
    xml.writeTextElement(QStringLiteral("extends"), QString::fromLatin1(entry.baseClass));
    if (entry.multiLine)
        writeMultiLineProperty(xml, entry.multiLine);
    xml.writeEndElement();
    xml.writeEndElement();
}

} // namespace

CustomWidget::CustomWidget(const WidgetEntry& entry,
                           std::function<void(QDesignerFormEditorInterface*)> initializeEditor, QObject* parent)
    : QObject(parent)
    , m_entry(entry)
    , m_initializeEditor(std::move(initializeEditor))
{
}

CustomWidget::~CustomWidget() = default;

QString CustomWidget::name() const
{
    return QString::fromLatin1(m_entry.className);
}

QString CustomWidget::group() const
{
    return QString::fromLatin1(m_entry.group);
}

QString CustomWidget::toolTip() const
{
    return QString::fromLatin1(m_entry.toolTip);
}

QString CustomWidget::whatsThis() const
{
    return QString::fromLatin1(m_entry.whatsThis);
}

QString CustomWidget::includeFile() const
{
    return m_entry.header();
}

QIcon CustomWidget::icon() const
{
    return Icons::render(m_entry.drawing);
}

bool CustomWidget::isContainer() const
{
    return false; // those with children have placed them themselves
}

QWidget* CustomWidget::createWidget(QWidget* parent)
{
    return m_initialized ? m_entry.createInEditor(parent) : m_entry.create(parent);
}

bool CustomWidget::isInitialized() const
{
    return m_initialized;
}

void CustomWidget::initialize(QDesignerFormEditorInterface* editor)
{
    if (isInitialized())
        return;
    m_initialized = true;
    m_initializeEditor(editor);
}

QString CustomWidget::domXml() const
{
    QString result;
    QXmlStreamWriter xml(&result);
    xml.writeStartElement(QStringLiteral("ui"));
    xml.writeAttribute(QStringLiteral("language"), QStringLiteral("c++"));
    xml.writeAttribute(QStringLiteral("displayname"), m_entry.plainName());
    writeNewWidget(xml, m_entry);
    writeClass(xml, m_entry);
    xml.writeEndElement();
    return result;
}

} // namespace Kestrel::Gui::Designer
