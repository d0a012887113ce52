#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QIcon>
#include <QMetaProperty>
#include <QPluginLoader>
#include <QSet>
#include <QTest>
#include <QTextStream>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

#include <memory>
#include <QUiLoader>
#include <QXmlStreamReader>

namespace {

constexpr int iconSize = 22;

QString pluginPath()
{
    return QStringLiteral(KQTUI_DESIGNER_PLUGIN);
}

QString sourceFile(const QString& path)
{
    return QStringLiteral(KQTUI_SOURCE_DIR "/") + path;
}

QString formPath()
{
    return sourceFile(QStringLiteral("tests/data/DesignerForm.ui"));
}

QString plainName(const QString& className)
{
    return className.section(QStringLiteral("::"), -1);
}

/// The classes of the widgets in a form's or an entry's text.
QStringList classesIn(const QString& xml)
{
    QStringList classes;
    QXmlStreamReader reader(xml);
    while (!reader.atEnd())
        if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == QLatin1String("widget"))
            classes.append(reader.attributes().value(QStringLiteral("class")).toString());
    if (reader.hasError())
        classes.append(reader.errorString());
    return classes;
}

QString textOf(const QString& path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// The class as Qt's meta-object system names it: the library's own properties start here.
bool isOwn(const QMetaProperty& property)
{
    const QLatin1String owner(property.enclosingMetaObject()->className());
    return owner.startsWith(QLatin1String("Kestrel::")) || owner == QLatin1String("CustomSliderWithZeroTick");
}

} // namespace

/// What Designer and the form loaders see of the plugin: loaded as they load it.
class tst_DesignerPlugin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void offersWidgetsOfEachFamily();
    void describesWidget_data();
    void describesWidget();
    void iconsDiffer();
    void buildsWidgetWithItsParent_data();
    void buildsWidgetWithItsParent();
    void propertiesCanBeEdited_data();
    void propertiesCanBeEdited();
    void newWidgetIsLoadedFromItsDescription_data();
    void newWidgetIsLoadedFromItsDescription();
    void leavesOutWhatNoFormCanHold();
    void formWithEveryWidgetIsLoaded();

private:
    void addWidgetRows();
    QDesignerCustomWidgetInterface* widget(const QString& className) const;
    QWidget* load(const QByteArray& form);

    QDesignerCustomWidgetCollectionInterface* m_collection = nullptr;
};

void tst_DesignerPlugin::initTestCase()
{
    QPluginLoader loader(pluginPath());
    QVERIFY2(loader.load(), qPrintable(loader.errorString()));
    m_collection = qobject_cast<QDesignerCustomWidgetCollectionInterface*>(loader.instance());
    QVERIFY(m_collection);
}

void tst_DesignerPlugin::addWidgetRows()
{
    QTest::addColumn<QString>("className");
    const auto widgets = m_collection->customWidgets();
    for (const auto* widget : widgets)
        QTest::newRow(qPrintable(plainName(widget->name()))) << widget->name();
}

QDesignerCustomWidgetInterface* tst_DesignerPlugin::widget(const QString& className) const
{
    const auto widgets = m_collection->customWidgets();
    for (auto* widget : widgets)
        if (widget->name() == className)
            return widget;
    return nullptr;
}

void tst_DesignerPlugin::offersWidgetsOfEachFamily()
{
    QMap<QString, QStringList> groups;
    QStringList order;
    const auto widgets = m_collection->customWidgets();
    for (const auto* widget : widgets) {
        groups[widget->group()].append(plainName(widget->name()));
        if (order.isEmpty() || order.last() != widget->group())
            order.append(widget->group());
    }
    QCOMPARE(order.size(), groups.size()); // widgets of a group stand together
    const QMap<QString, QStringList> expected = {
        {QStringLiteral("KQtUi Colours"),
         {QStringLiteral("AdvancedColorPicker"), QStringLiteral("RColorPicker"), QStringLiteral("PenPicker"),
          QStringLiteral("WidgetColorPickerButton")}},
        {QStringLiteral("KQtUi Combo boxes"),
         {QStringLiteral("AdvancedComboBox"), QStringLiteral("PresetComboBox"), QStringLiteral("NoWheelComboBox"),
          QStringLiteral("LineStyleComboBox"), QStringLiteral("LineWidthComboBox")}},
        {QStringLiteral("KQtUi Labels"), {QStringLiteral("ClickableLabel"), QStringLiteral("ExtendedLabel")}},
        {QStringLiteral("KQtUi Inputs"),
         {QStringLiteral("ClippingTextLineEdit"), QStringLiteral("TextEditWithPlaceholder"),
          QStringLiteral("AdvancedSpinBox"), QStringLiteral("CustomSliderWithZeroTick")}},
        {QStringLiteral("KQtUi Formatting"), {QStringLiteral("FontStylePicker"), QStringLiteral("TextAlignPicker")}},
        {QStringLiteral("KQtUi Tiles and title bars"),
         {QStringLiteral("PreviewImageLabel"), QStringLiteral("StyledDockWidgetTitlebar")}},
    };
    QCOMPARE(groups, expected);
}

void tst_DesignerPlugin::describesWidget_data()
{
    addWidgetRows();
}

void tst_DesignerPlugin::describesWidget()
{
    QFETCH(QString, className);
    const auto* custom = widget(className);
    QVERIFY(!custom->toolTip().isEmpty());
    QVERIFY(!custom->whatsThis().isEmpty());
    QVERIFY(custom->toolTip() != custom->whatsThis());
    QCOMPARE(custom->includeFile(), QStringLiteral("KQt/Ui/%1.h").arg(plainName(className)));
    QVERIFY(QFileInfo(sourceFile(custom->includeFile())).isFile());
    QVERIFY(!custom->isContainer());
    QCOMPARE(classesIn(custom->domXml()), QStringList(className));
    QVERIFY(custom->domXml().contains(QStringLiteral("displayname=\"%1\"").arg(plainName(className))));
    // A loader has no form editor; nothing is to be initialised.
    QVERIFY(!custom->isInitialized());
}

void tst_DesignerPlugin::iconsDiffer()
{
    QMap<QByteArray, QString> pictures;
    const auto widgets = m_collection->customWidgets();
    for (const auto* widget : widgets) {
        const QImage picture = widget->icon().pixmap(iconSize).toImage();
        QCOMPARE(picture.size(), QSize(iconSize, iconSize));
        int inked = 0;
        for (int y = 0; y < iconSize; ++y)
            for (int x = 0; x < iconSize; ++x)
                inked += qAlpha(picture.pixel(x, y)) > 0 ? 1 : 0;
        QVERIFY2(inked > iconSize * 2, qPrintable(widget->name()));
        const QByteArray bits(reinterpret_cast<const char*>(picture.constBits()), int(picture.sizeInBytes()));
        QVERIFY2(!pictures.contains(bits), qPrintable(widget->name() + QStringLiteral(" = ") + pictures[bits]));
        pictures.insert(bits, widget->name());
    }
}

void tst_DesignerPlugin::buildsWidgetWithItsParent_data()
{
    addWidgetRows();
}

void tst_DesignerPlugin::buildsWidgetWithItsParent()
{
    QFETCH(QString, className);
    QWidget parent;
    const QWidget* built = widget(className)->createWidget(&parent);
    QVERIFY(built);
    QCOMPARE(QString::fromLatin1(built->metaObject()->className()), className);
    QCOMPARE(built->parentWidget(), &parent);
    QVERIFY(!built->isWindow());

    const std::unique_ptr<QWidget> alone(widget(className)->createWidget(nullptr));
    QVERIFY(alone && !alone->parentWidget());
}

void tst_DesignerPlugin::propertiesCanBeEdited_data()
{
    addWidgetRows();
}

void tst_DesignerPlugin::propertiesCanBeEdited()
{
    QFETCH(QString, className);
    const std::unique_ptr<QWidget> built(widget(className)->createWidget(nullptr));
    for (int i = 0; i < built->metaObject()->propertyCount(); ++i) {
        const QMetaProperty property = built->metaObject()->property(i);
        if (!isOwn(property))
            continue;
        QVERIFY2(property.isDesignable(built.get()), property.name());
        QVERIFY2(property.isWritable(), property.name());
        QVERIFY2(property.isStored(built.get()), property.name());
        QVERIFY2(property.write(built.get(), property.read(built.get())), property.name());
    }
}

void tst_DesignerPlugin::newWidgetIsLoadedFromItsDescription_data()
{
    addWidgetRows();
}

void tst_DesignerPlugin::newWidgetIsLoadedFromItsDescription()
{
    QFETCH(QString, className);
    const std::unique_ptr<QWidget> loaded(load(widget(className)->domXml().toUtf8()));
    QVERIFY(loaded);
    QCOMPARE(QString::fromLatin1(loaded->metaObject()->className()), className);
    // As written in the description: large enough to be seen and taken by the mouse.
    QVERIFY(loaded->width() >= iconSize && loaded->height() >= iconSize);
    QCOMPARE(loaded->objectName().at(0), plainName(className).at(0).toLower());
    QCOMPARE(loaded->objectName().mid(1), plainName(className).mid(1));
}

void tst_DesignerPlugin::leavesOutWhatNoFormCanHold()
{
    for (const char* name : {"AdvancedColorPickerPopup", "RColorPickerPopup", "HighlightFrame", "SeparatorStyle",
                             "WalkthroughHint", "SelectionFrameWidget"})
        QVERIFY2(!widget(QStringLiteral("Kestrel::Gui::") + QLatin1String(name)), name);
}

QWidget* tst_DesignerPlugin::load(const QByteArray& form)
{
    QByteArray bytes = form;
    QBuffer buffer(&bytes);
    QUiLoader loader;
    loader.clearPluginPaths();
    loader.addPluginPath(QFileInfo(pluginPath()).path());
    QWidget* loaded = loader.load(&buffer, nullptr);
    if (!loaded)
        qWarning() << loader.errorString();
    return loaded;
}

void tst_DesignerPlugin::formWithEveryWidgetIsLoaded()
{
    const QString form = textOf(formPath());
    const std::unique_ptr<QWidget> loaded(load(form.toUtf8()));
    QVERIFY(loaded);
    QSet<QString> built;
    const auto children = loaded->findChildren<QWidget*>();
    for (const QWidget* child : children)
        built.insert(QString::fromLatin1(child->metaObject()->className()));
    const auto widgets = m_collection->customWidgets();
    for (const auto* custom : widgets) {
        QVERIFY2(form.contains(QStringLiteral("class=\"%1\"").arg(custom->name())), qPrintable(custom->name()));
        QVERIFY2(built.contains(custom->name()), qPrintable(custom->name()));
    }
    const auto* slider = loaded->findChild<QWidget*>(QStringLiteral("balance"));
    QCOMPARE(slider->property("orientation").toInt(), int(Qt::Horizontal));
    QCOMPARE(slider->property("minimum").toInt(), -50);
    const auto* label = loaded->findChild<QWidget*>(QStringLiteral("fileName"));
    QCOMPARE(label->property("originalText").toString(),
             QStringLiteral("A file name that is too long for its label to be shown.png"));
}

QTEST_MAIN(tst_DesignerPlugin)
#include "tst_DesignerPlugin.moc"
