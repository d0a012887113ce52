#include <KQt/Ui/AdvancedColorPicker.h>
#include <KQt/Ui/AdvancedColorPickerPopup.h>
#include <KQt/Ui/AdvancedComboBox.h>
#include <KQt/Ui/AdvancedSpinBox.h>
#include <KQt/Ui/ClickableLabel.h>
#include <KQt/Ui/CustomSliderWithZeroTick.h>
#include <KQt/Ui/ExtendedLabel.h>
#include <KQt/Ui/PreviewImageLabel.h>
#include <KQt/Ui/RColorPicker.h>
#include <KQt/Ui/RColorPickerPopup.h>
#include <KQt/Ui/SeparatorStyle.h>
#include <KQt/Ui/StyledDockWidgetTitlebar.h>
#include <KQt/Ui/TextEditWithPlaceholder.h>
#include <KQt/Ui/WidgetColorPickerButton.h>

#include <QColor>
#include <QDirIterator>
#include <QFile>
#include <QMetaProperty>
#include <QTest>

#include <algorithm>
#include <functional>
#include <memory>

using namespace Kestrel::Gui;

namespace {

using Table = QVector<QStringList>;

/// The tables of the guide that are about one class.
struct ClassTables
{
    Table properties;
    Table objectNames;
};

using Factory = std::function<std::unique_ptr<QWidget>()>;

template <typename Widget>
Factory make()
{
    return [] { return std::make_unique<Widget>(); };
}

const QMap<QString, Factory>& factories()
{
    static const QMap<QString, Factory> all = {
        {QStringLiteral("AdvancedColorPicker"), make<AdvancedColorPicker>()},
        {QStringLiteral("AdvancedColorPickerPopup"), make<AdvancedColorPickerPopup>()},
        {QStringLiteral("AdvancedComboBox"), make<AdvancedComboBox>()},
        {QStringLiteral("AdvancedSpinBox"), make<AdvancedSpinBox>()},
        {QStringLiteral("ClickableLabel"), make<ClickableLabel>()},
        {QStringLiteral("CustomSliderWithZeroTick"), make<CustomSliderWithZeroTick>()},
        {QStringLiteral("ExtendedLabel"), make<ExtendedLabel>()},
        {QStringLiteral("PreviewImageLabel"), make<PreviewImageLabel>()},
        {QStringLiteral("RColorPicker"), make<RColorPicker>()},
        {QStringLiteral("RColorPickerPopup"), make<RColorPickerPopup>()},
        {QStringLiteral("SeparatorStyle"), make<SeparatorStyle>()},
        {QStringLiteral("StyledDockWidgetTitlebar"), make<StyledDockWidgetTitlebar>()},
        {QStringLiteral("TextEditWithPlaceholder"), make<TextEditWithPlaceholder>()},
        {QStringLiteral("WidgetColorPickerButton"), make<WidgetColorPickerButton>()},
    };
    return all;
}

QString textOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QStringList filesBelow(const QString& folder, const QString& pattern)
{
    QStringList found;
    QDirIterator files(QStringLiteral(KQTUI_SOURCES "/") + folder, {pattern}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext())
        found << files.next();
    found.sort();
    return found;
}

/// The cells of a table's row, without backticks; empty where the line is none.
QStringList cells(const QString& line)
{
    if (!line.startsWith(QLatin1Char('|')))
        return {};
    QStringList result;
    const int inner = line.count(QLatin1Char('|')) - 1;
    const QStringList parts = line.split(QLatin1Char('|')).mid(1, inner);
    for (const QString& part : parts)
        result << part.trimmed().remove(QLatin1Char('`'));
    return result;
}

/// A table belongs to the class that the heading of the third level before it names.
void readPage(const QString& path, QMap<QString, ClassTables>& tables)
{
    QString heading;
    Table* table = nullptr;
    const QStringList lines = textOf(path).split(QLatin1Char('\n'));
    for (const QString& line : lines) {
        if (line.startsWith(QLatin1Char('#')))
            heading = line.startsWith(QLatin1String("### ")) ? line.mid(4).trimmed() : QString();
        const QStringList row = cells(line);
        if (row.isEmpty() || heading.isEmpty())
            table = nullptr;
        else if (row.first() == QLatin1String("Property"))
            table = &tables[heading].properties;
        else if (row.first() == QLatin1String("Object name"))
            table = &tables[heading].objectNames;
        else if (table && !row.first().startsWith(QLatin1String("---")))
            table->append(row);
    }
}

QMap<QString, ClassTables> readGuide()
{
    QMap<QString, ClassTables> tables;
    const QStringList pages = filesBelow(QStringLiteral("docs/guide"), QStringLiteral("*.md"));
    for (const QString& page : pages)
        readPage(page, tables);
    return tables;
}

/// As the guide writes a value.
QString written(const QVariant& value)
{
    if (value.userType() == QMetaType::QColor) {
        const auto color = value.value<QColor>();
        return color.isValid() ? color.name() : QStringLiteral("invalid");
    }
    const QString text = value.toString();
    return text.isEmpty() ? QStringLiteral("empty") : text;
}

/// Name, type and default of each property that the class itself has.
Table ownProperties(const QObject& object)
{
    Table rows;
    const QMetaObject& meta = *object.metaObject();
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        const QMetaProperty property = meta.property(i);
        rows.append({QString::fromLatin1(property.name()), QString::fromLatin1(property.typeName()),
                     written(property.read(&object))});
    }
    return rows;
}

/// Name and class of each child widget that a style sheet can select by its name.
Table namedChildren(const QObject& object)
{
    Table rows;
    const QList<QWidget*> children = object.findChildren<QWidget*>();
    for (const QWidget* child : children) {
        // Names of Qt's own parts begin so. Colour buttons are many, and have numbers for names or none.
        if (!child->objectName().isEmpty() && !child->objectName().startsWith(QLatin1String("qt_")))
            rows.append({child->objectName(), QString::fromLatin1(child->metaObject()->className())});
    }
    return rows;
}

Table firstColumns(const Table& table, int count)
{
    Table result;
    std::transform(table.begin(), table.end(), std::back_inserter(result),
                   [count](const QStringList& row) { return QStringList(row.mid(0, count)); });
    return result;
}

Table sorted(Table table)
{
    std::sort(table.begin(), table.end());
    return table;
}

} // namespace

/// The tables of the guide say what the classes are.
class tst_GuideTables : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyClassWithPropertiesIsKnown();
    void everyTableIsAboutAKnownClass();
    void properties_data();
    void properties();
    void objectNames_data();
    void objectNames();
};

void tst_GuideTables::everyClassWithPropertiesIsKnown()
{
    const QStringList headers = filesBelow(QStringLiteral("KQt/Ui"), QStringLiteral("*.h"));
    QVERIFY(headers.size() > 40);
    for (const QString& header : headers) {
        const QString text = textOf(header);
        if (text.contains(QLatin1String("KQTUI_EXPORT")) && text.contains(QLatin1String("Q_PROPERTY(")))
            QVERIFY2(factories().contains(QFileInfo(header).completeBaseName()), qPrintable(header));
    }
}

void tst_GuideTables::everyTableIsAboutAKnownClass()
{
    const QStringList names = readGuide().keys();
    QVERIFY(!names.isEmpty());
    for (const QString& name : names)
        QVERIFY2(factories().contains(name), qPrintable(name));
}

void tst_GuideTables::properties_data()
{
    QTest::addColumn<QString>("name");
    const QStringList names = factories().keys();
    for (const QString& name : names)
        QTest::newRow(qPrintable(name)) << name;
}

void tst_GuideTables::properties()
{
    QFETCH(QString, name);
    const auto object = factories().value(name)();
    const ClassTables tables = readGuide().value(name);
    Table expected = firstColumns(tables.properties, 3);
    for (QStringList& row : expected)
        row.replaceInStrings(QStringLiteral("the palette's text"), object->palette().color(QPalette::Text).name());
    QCOMPARE(expected, ownProperties(*object));
    for (const QStringList& row : tables.properties)
        QVERIFY2(row.size() == 4 && !row.last().isEmpty(), qPrintable(row.join(QLatin1Char(' '))));
}

void tst_GuideTables::objectNames_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name : {"AdvancedColorPickerPopup", "PreviewImageLabel", "StyledDockWidgetTitlebar"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void tst_GuideTables::objectNames()
{
    QFETCH(QString, name);
    const auto object = factories().value(name)();
    QCOMPARE(sorted(firstColumns(readGuide().value(name).objectNames, 2)), sorted(namedChildren(*object)));
}

QTEST_MAIN(tst_GuideTables)
#include "tst_GuideTables.moc"
