#include <QAction>
#include <QBuffer>
#include <QComboBox>
#include <QCompleter>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QtDesigner/QDesignerComponents>
#include <QtDesigner/QDesignerDynamicPropertySheetExtension>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowCursorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QDesignerFormWindowManagerInterface>
#include <QtDesigner/QDesignerIntegration>
#include <QtDesigner/QDesignerObjectInspectorInterface>
#include <QtDesigner/QDesignerPropertyEditorInterface>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QDesignerTaskMenuExtension>
#include <QtDesigner/QDesignerWidgetDataBaseInterface>
#include <QtDesigner/QDesignerWidgetFactoryInterface>
#include <QtDesigner/QExtensionFactory>
#include <QtDesigner/QExtensionManager>
#include <QTest>
#include <QTimer>
#include <QTreeView>
#include <QUiLoader>
#include <QUndoStack>

#include <algorithm>
#include <functional>
#include <memory>

namespace {

const char* const entryName = "editWalkthroughProperties";

/// A menu that another plugin has for line edits.
class OtherMenu : public QObject, public QDesignerTaskMenuExtension
{
    Q_OBJECT
    Q_INTERFACES(QDesignerTaskMenuExtension)

public:
    explicit OtherMenu(QObject* parent)
        : QObject(parent)
        , m_action(new QAction(QStringLiteral("Other entry"), this))
    {
    }
    QAction* preferredEditAction() const override { return m_action; }
    QList<QAction*> taskActions() const override { return {m_action}; }

private:
    QAction* m_action;
};

class OtherFactory : public QExtensionFactory
{
    Q_OBJECT

public:
    using QExtensionFactory::QExtensionFactory;

protected:
    QObject* createExtension(QObject* object, const QString& /*iid*/, QObject* parent) const override
    {
        return qobject_cast<QLineEdit*>(object) ? new OtherMenu(parent) : nullptr;
    }
};

QString formText()
{
    return QStringLiteral(R"(<ui version="4.0"><class>Form</class><widget class="QWidget" name="Form">
<widget class="QLabel" name="label"><property name="text"><string>text</string></property></widget>
<widget class="QLineEdit" name="edit"/>
<widget class="QWidget" name="panel"/>
<widget class="Kestrel::Gui::PenPicker" name="pen">
 <property name="walkthroughWidget" stdset="0"><string notr="true">pen</string></property>
 <property name="walkthroughName" stdset="0"><string notr="true">pen-hint</string></property>
</widget></widget>
<customwidgets><customwidget><class>Kestrel::Gui::PenPicker</class><extends>QFrame</extends>
<header>KQt/Ui/PenPicker.h</header></customwidget></customwidgets></ui>)");
}

} // namespace

/// The plugin in the form editor of Designer itself, without Designer's windows around it.
class tst_DesignerEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void cleanup();

    void knowsTheWidgets();
    void buildsTheWidgets();
    void doesNotOfferWhatAFormCannotKeep();
    void privateSettersAreNotCalledByCompiledForms();
    void formIsSavedAndLoadedAgain();
    void everyWidgetHasTheEntry_data();
    void everyWidgetHasTheEntry();
    void doubleClickEditsAsBefore();
    void entriesOfOtherPluginsStay();
    void setsPropertiesInOneStep();
    void textsAreNotTranslated();
    void addsAndRemovesProperties();
    void propertyRemovedInDesignerIsNotThere();
    void cancelChangesNothing();
    void okWithoutChangeIsNoStep();
    void offersNamesOfTheForm();
    void leavesNoFormBehind();
    void propertyEditorFollows();

private:
    QWidget* widget(const char* name) const;
    QDesignerTaskMenuExtension* menu(const char* name) const;
    QAction* entry(const char* name) const;
    /// Chooses the entry, lets @p use work on the dialog and closes it.
    void edit(const char* name, const std::function<void(QDialog&)>& use, bool accept = true) const;

    std::unique_ptr<QDesignerFormEditorInterface> m_editor;
    std::unique_ptr<QDesignerFormWindowInterface> m_form;
};

namespace {

void type(QDialog& dialog, const char* input, const QString& text)
{
    auto* line = dialog.findChild<QLineEdit*>(QString::fromLatin1(input));
    line->selectAll();
    if (text.isEmpty())
        QTest::keyClick(line, Qt::Key_Delete);
    else
        QTest::keyClicks(line, text);
}

} // namespace

void tst_DesignerEditor::initTestCase()
{
    // The built plugin, and none of those that are installed.
    QDir folder = QFileInfo(QStringLiteral(KQTUI_DESIGNER_PLUGIN)).dir();
    QVERIFY(folder.cdUp());
    QCoreApplication::setLibraryPaths({folder.path()});

    m_editor.reset(QDesignerComponents::createFormEditor(nullptr));
    m_editor->setPropertyEditor(QDesignerComponents::createPropertyEditor(m_editor.get(), nullptr));
    m_editor->setObjectInspector(QDesignerComponents::createObjectInspector(m_editor.get(), nullptr));
    QDesignerComponents::createTaskMenu(m_editor.get(), m_editor.get());
    // Asked after the plugin's: what is registered last is asked first.
    QExtensionManager* manager = m_editor->extensionManager();
    manager->registerExtensions(new OtherFactory(manager), Q_TYPEID(QDesignerTaskMenuExtension));
    QDesignerComponents::initializePlugins(m_editor.get());
    new QDesignerIntegration(m_editor.get(), m_editor.get());
}

void tst_DesignerEditor::cleanupTestCase()
{
    // They write their settings through the editor.
    delete m_editor->propertyEditor();
    delete m_editor->objectInspector();
    m_editor.reset();
}

void tst_DesignerEditor::init()
{
    m_form.reset(m_editor->formWindowManager()->createFormWindow());
    m_editor->formWindowManager()->setActiveFormWindow(m_form.get());
    QVERIFY(m_form->setContents(formText()));
    m_form->setDirty(false);
}

void tst_DesignerEditor::cleanup()
{
    m_form.reset();
}

QWidget* tst_DesignerEditor::widget(const char* name) const
{
    QWidget* container = m_form->mainContainer();
    const QString objectName = QString::fromLatin1(name);
    return container->objectName() == objectName ? container : container->findChild<QWidget*>(objectName);
}

QDesignerTaskMenuExtension* tst_DesignerEditor::menu(const char* name) const
{
    return qt_extension<QDesignerTaskMenuExtension*>(m_editor->extensionManager(), widget(name));
}

QAction* tst_DesignerEditor::entry(const char* name) const
{
    const auto actions = menu(name)->taskActions();
    for (QAction* action : actions)
        if (action->objectName() == QLatin1String(entryName))
            return action;
    return nullptr;
}

void tst_DesignerEditor::edit(const char* name, const std::function<void(QDialog&)>& use, bool accept) const
{
    bool used = false;
    QTimer::singleShot(0, m_form.get(), [&used, &use, accept] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        use(*dialog);
        const auto button = accept ? QDialogButtonBox::Ok : QDialogButtonBox::Cancel;
        dialog->findChild<QDialogButtonBox*>()->button(button)->click();
        used = true;
    });
    entry(name)->trigger();
    QVERIFY(used);
}

void tst_DesignerEditor::knowsTheWidgets()
{
    const QDesignerWidgetDataBaseInterface* known = m_editor->widgetDataBase();
    for (const char* name : {"Kestrel::Gui::AdvancedColorPicker", "CustomSliderWithZeroTick"}) {
        const int index = known->indexOfClassName(QString::fromLatin1(name));
        QVERIFY2(index >= 0, name);
        QVERIFY(known->item(index)->isCustom());
        QVERIFY(!known->item(index)->isContainer());
        QVERIFY(known->item(index)->group().startsWith(QLatin1String("KQtUi ")));
    }
    const int slider = known->indexOfClassName(QStringLiteral("CustomSliderWithZeroTick"));
    QCOMPARE(known->item(slider)->extends(), QStringLiteral("QSlider"));
    QCOMPARE(known->item(slider)->includeFile(), QStringLiteral("KQt/Ui/CustomSliderWithZeroTick.h"));
}

void tst_DesignerEditor::buildsTheWidgets()
{
    const QDesignerWidgetDataBaseInterface* known = m_editor->widgetDataBase();
    int built = 0;
    for (int i = 0; i < known->count(); ++i) {
        if (!known->item(i)->group().startsWith(QLatin1String("KQtUi ")))
            continue;
        const QString name = known->item(i)->name();
        const QWidget* widget = m_editor->widgetFactory()->createWidget(name, m_form->mainContainer());
        QVERIFY2(widget, qPrintable(name));
        QCOMPARE(QString::fromLatin1(widget->metaObject()->className()), name);
        ++built;
    }
    QCOMPARE(built, 19);
}

void tst_DesignerEditor::doesNotOfferWhatAFormCannotKeep()
{
    const auto isOffered = [this](const char* className, const char* property) {
        QWidget* widget =
            m_editor->widgetFactory()->createWidget(QString::fromLatin1(className), m_form->mainContainer());
        const auto* sheet = qt_extension<QDesignerPropertySheetExtension*>(m_editor->extensionManager(), widget);
        return sheet->isVisible(sheet->indexOf(QString::fromLatin1(property)));
    };
    // Reads as off while the popup is closed, and would be saved so.
    QVERIFY(!isOffered("Kestrel::Gui::AdvancedColorPicker", "opacityAdjustmentAvailable"));
    QVERIFY(isOffered("Kestrel::Gui::AdvancedColorPicker", "toolTip"));
    QVERIFY(isOffered("Kestrel::Gui::AdvancedComboBox", "tooltipTemplate"));
    QVERIFY(isOffered("Kestrel::Gui::WidgetColorPickerButton", "changeSelfColor"));
    QVERIFY(isOffered("CustomSliderWithZeroTick", "tickWidth"));
}

void tst_DesignerEditor::privateSettersAreNotCalledByCompiledForms()
{
    QVERIFY(m_form->setContents(QStringLiteral(
        R"(<ui version="4.0"><class>Form</class><widget class="QWidget" name="Form">
<widget class="CustomSliderWithZeroTick" name="slider"/></widget><customwidgets><customwidget>
<class>CustomSliderWithZeroTick</class><extends>QSlider</extends><header>KQt/Ui/CustomSliderWithZeroTick.h</header>
</customwidget></customwidgets></ui>)")));
    QWidget* slider = widget("slider");
    for (const char* name : {"tickWidth", "tickHeight"}) {
        m_form->cursor()->setWidgetProperty(slider, QString::fromLatin1(name), 7);
        QCOMPARE(slider->property(name).toInt(), 7);
    }
    for (const char* name : {"topTickEndColor", "bottomTickEndColor", "centerTickColor"}) {
        m_form->cursor()->setWidgetProperty(slider, QString::fromLatin1(name), QColor(Qt::red));
        QCOMPARE(slider->property(name).value<QColor>(), QColor(Qt::red));
    }
    m_form->cursor()->setWidgetProperty(slider, QStringLiteral("maximum"), 50);
    const QString saved = m_form->contents();
    for (const char* name : {"tickWidth", "tickHeight", "topTickEndColor", "bottomTickEndColor", "centerTickColor"})
        QVERIFY2(saved.contains(QStringLiteral("<property name=\"%1\" stdset=\"0\">").arg(QLatin1String(name))), name);
    QVERIFY(saved.contains(QLatin1String("<property name=\"maximum\">")));
}

void tst_DesignerEditor::formIsSavedAndLoadedAgain()
{
    QFile file(QStringLiteral(KQTUI_SOURCE_DIR "/tests/data/DesignerForm.ui"));
    QVERIFY(file.open(QFile::ReadOnly));
    QVERIFY(m_form->setContents(&file));
    edit("pen", [](QDialog& dialog) {
        type(dialog, "target", QStringLiteral("pen"));
        type(dialog, "hint", QStringLiteral("pen-hint"));
        type(dialog, "condition", QStringLiteral("pen/active"));
        dialog.findChild<QComboBox*>(QStringLiteral("alignment"))->setCurrentText(QStringLiteral("bottom"));
    });
    QByteArray saved = m_form->contents().toUtf8();
    QVERIFY(m_form->setContents(QString::fromUtf8(saved)));
    QCOMPARE(m_form->contents().toUtf8(), saved);

    QBuffer buffer(&saved);
    QUiLoader loader;
    loader.clearPluginPaths();
    loader.addPluginPath(QFileInfo(QStringLiteral(KQTUI_DESIGNER_PLUGIN)).path());
    const std::unique_ptr<QWidget> loaded(loader.load(&buffer));
    QVERIFY2(loaded, qPrintable(loader.errorString()));
    for (const char* name : {"colour", "preview", "balance", "notes"}) {
        const auto* again = loaded->findChild<QWidget*>(QString::fromLatin1(name));
        QVERIFY2(again, name);
        QCOMPARE(again->metaObject()->className(), widget(name)->metaObject()->className());
    }
    const auto* pen = loaded->findChild<QWidget*>(QStringLiteral("pen"));
    QCOMPARE(pen->property("walkthroughWidget").toString(), QStringLiteral("pen"));
    QCOMPARE(pen->property("walkthroughName").toString(), QStringLiteral("pen-hint"));
    QCOMPARE(pen->property("walkthroughAlignment").toString(), QStringLiteral("bottom"));
    QCOMPARE(pen->property("walkthroughConditionList").toStringList(), QStringList(QStringLiteral("pen/active")));
    QCOMPARE(loaded->findChild<QWidget*>(QStringLiteral("copies"))->property("maxLenght").toInt(), 3);
    QCOMPARE(loaded->findChild<QWidget*>(QStringLiteral("notes"))->property("placeholderText").toString(),
             QStringLiteral("What is it about?"));
}

void tst_DesignerEditor::everyWidgetHasTheEntry_data()
{
    QTest::addColumn<QByteArray>("name");
    for (const char* name : {"Form", "label", "edit", "panel", "pen"})
        QTest::newRow(name) << QByteArray(name);
}

void tst_DesignerEditor::everyWidgetHasTheEntry()
{
    QFETCH(QByteArray, name);
    const QAction* action = entry(name.constData());
    QVERIFY(action);
    QCOMPARE(action->text(), QStringLiteral("Edit walkthrough properties..."));
}

void tst_DesignerEditor::doubleClickEditsAsBefore()
{
    // Designer takes the first entry of a plugin's menu where that names none.
    const auto* own = qobject_cast<QDesignerTaskMenuExtension*>(
        m_editor->extensionManager()->extension(widget("label"), QStringLiteral("QDesignerInternalTaskMenuExtension")));
    QVERIFY(own && own->preferredEditAction());
    QCOMPARE(menu("label")->preferredEditAction(), own->preferredEditAction());
    for (const char* name : {"Form", "panel", "pen"})
        QVERIFY2(menu(name)->preferredEditAction() != entry(name), name);
}

void tst_DesignerEditor::entriesOfOtherPluginsStay()
{
    const auto actions = menu("edit")->taskActions();
    QCOMPARE(actions.size(), 2);
    QCOMPARE(actions.first()->text(), QStringLiteral("Other entry"));
    QCOMPARE(menu("edit")->preferredEditAction(), actions.first());
    QCOMPARE(menu("label")->taskActions().size(), 1);
}

void tst_DesignerEditor::setsPropertiesInOneStep()
{
    edit("label", [](QDialog& dialog) {
        type(dialog, "target", QStringLiteral("text"));
        type(dialog, "hint", QStringLiteral("text-hint"));
        type(dialog, "condition", QStringLiteral("text/active"));
        dialog.findChild<QComboBox*>(QStringLiteral("alignment"))->setCurrentText(QStringLiteral("left"));
    });
    const QWidget* label = widget("label");
    QCOMPARE(label->property("walkthroughWidget").toString(), QStringLiteral("text"));
    QCOMPARE(label->property("walkthroughName").toString(), QStringLiteral("text-hint"));
    QCOMPARE(label->property("walkthroughAlignment").toString(), QStringLiteral("left"));
    QCOMPARE(label->property("walkthroughConditionList").toStringList(), QStringList(QStringLiteral("text/active")));
    QVERIFY(m_form->isDirty());
    const QString saved = m_form->contents();

    QUndoStack* history = m_form->commandHistory();
    QCOMPARE(history->count(), 1);
    history->undo();
    QVERIFY(!label->property("walkthroughWidget").isValid());
    QVERIFY(!label->property("walkthroughConditionList").isValid());
    QVERIFY(!m_form->contents().contains(QLatin1String("text-hint")));
    history->redo();
    QCOMPARE(m_form->contents(), saved);

    QVERIFY(m_form->setContents(saved));
    QCOMPARE(widget("label")->property("walkthroughConditionList").toStringList(),
             QStringList(QStringLiteral("text/active")));
    QCOMPARE(m_form->contents(), saved);
}

void tst_DesignerEditor::textsAreNotTranslated()
{
    edit("label", [](QDialog& dialog) {
        type(dialog, "target", QStringLiteral("a < b"));
        type(dialog, "condition", QStringLiteral("a/active"));
    });
    const QString tight = m_form->contents().remove(QLatin1Char('\n')).remove(QLatin1Char(' '));
    QVERIFY2(tight.contains(QLatin1String("\"walkthroughWidget\"stdset=\"0\"><stringnotr=\"true\">a&lt;b</string>")),
             qPrintable(tight));
    QVERIFY2(tight.contains(QLatin1String("<stringlistnotr=\"true\"><string>a/active</string></stringlist>")),
             qPrintable(tight));
}

void tst_DesignerEditor::addsAndRemovesProperties()
{
    const QWidget* pen = widget("pen");
    edit("pen", [](QDialog& dialog) {
        QCOMPARE(dialog.findChild<QLineEdit*>(QStringLiteral("target"))->text(), QStringLiteral("pen"));
        type(dialog, "target", QStringLiteral("quill"));
        type(dialog, "hint", {});
    });
    QCOMPARE(pen->property("walkthroughWidget").toString(), QStringLiteral("quill"));
    QVERIFY(!pen->dynamicPropertyNames().contains("walkthroughName"));
    QVERIFY(m_form->contents().contains(QLatin1String("quill")));
    QVERIFY(!m_form->contents().contains(QLatin1String("walkthroughName")));

    m_form->commandHistory()->undo();
    QCOMPARE(pen->property("walkthroughWidget").toString(), QStringLiteral("pen"));
    QCOMPARE(pen->property("walkthroughName").toString(), QStringLiteral("pen-hint"));
    QVERIFY(m_form->contents().contains(QLatin1String("pen-hint")));
    m_form->commandHistory()->redo();
    QVERIFY(!m_form->contents().contains(QLatin1String("pen-hint")));
}

void tst_DesignerEditor::propertyRemovedInDesignerIsNotThere()
{
    auto* pen = widget("pen");
    auto* sheet = qt_extension<QDesignerPropertySheetExtension*>(m_editor->extensionManager(), pen);
    auto* dynamic = qt_extension<QDesignerDynamicPropertySheetExtension*>(m_editor->extensionManager(), pen);
    QVERIFY(dynamic->removeDynamicProperty(sheet->indexOf(QStringLiteral("walkthroughName"))));
    edit("pen", [](QDialog& dialog) {
        QCOMPARE(dialog.findChild<QLineEdit*>(QStringLiteral("hint"))->text(), QString());
        type(dialog, "hint", QStringLiteral("again"));
    });
    QVERIFY(m_form->contents().contains(QLatin1String("again")));
    m_form->commandHistory()->undo();
    QVERIFY(!m_form->contents().contains(QLatin1String("walkthroughName")));
}

void tst_DesignerEditor::cancelChangesNothing()
{
    edit(
        "pen", [](QDialog& dialog) { type(dialog, "target", QStringLiteral("quill")); }, false);
    QCOMPARE(m_form->commandHistory()->count(), 0);
    QCOMPARE(widget("pen")->property("walkthroughWidget").toString(), QStringLiteral("pen"));
}

void tst_DesignerEditor::okWithoutChangeIsNoStep()
{
    edit("pen", [](QDialog&) {});
    QCOMPARE(m_form->commandHistory()->count(), 0);
    QVERIFY(!m_form->isDirty());
}

void tst_DesignerEditor::offersNamesOfTheForm()
{
    edit("label", [](QDialog& dialog) {
        auto* line = dialog.findChild<QLineEdit*>(QStringLiteral("condition"));
        QTest::keyClicks(line, QStringLiteral("pen-hint/f"));
        QCOMPARE(line->completer()->currentCompletion(), QStringLiteral("pen-hint/finished"));
        line->clear();
    });
}

void tst_DesignerEditor::leavesNoFormBehind()
{
    const int forms = m_editor->formWindowManager()->formWindowCount();
    edit("label", [](QDialog& dialog) { type(dialog, "target", QStringLiteral("text")); });
    QCOMPARE(m_editor->formWindowManager()->formWindowCount(), forms);
    QCOMPARE(m_editor->formWindowManager()->activeFormWindow(), m_form.get());
}

void tst_DesignerEditor::propertyEditorFollows()
{
    m_form->clearSelection();
    m_form->selectWidget(widget("label"));
    QDesignerPropertyEditorInterface* properties = m_editor->propertyEditor();
    QTRY_COMPARE(properties->object(), widget("label"));
    edit("label", [](QDialog& dialog) { type(dialog, "target", QStringLiteral("text")); });
    // The new property is in the editor's tree without selecting the widget again.
    const auto hasRow = [properties](const char* name) {
        const auto trees = properties->findChildren<QTreeView*>();
        return std::any_of(trees.begin(), trees.end(), [name](const QTreeView* tree) {
            const QAbstractItemModel* rows = tree->model();
            return !rows->match(rows->index(0, 0), Qt::DisplayRole, QString::fromLatin1(name), 1,
                                Qt::MatchExactly | Qt::MatchRecursive)
                        .isEmpty();
        });
    };
    QVERIFY(hasRow("walkthroughWidget"));
    m_form->commandHistory()->undo();
    QVERIFY(!hasRow("walkthroughWidget"));
}

QTEST_MAIN(tst_DesignerEditor)
#include "tst_DesignerEditor.moc"
