#include "ConditionListEditor.h"
#include "WalkthroughPropertiesDialog.h"

#include <QComboBox>
#include <QCompleter>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

using namespace Kestrel::Gui::Designer;

namespace {

WalkthroughNames someNames()
{
    WalkthroughNames names;
    names.add(QStringLiteral("save"), QStringLiteral("save-hint"));
    names.add(QStringLiteral("open"), {});
    return names;
}

WalkthroughProperties someProperties()
{
    return {QStringLiteral("save"),
            QStringLiteral("save-hint"),
            QStringLiteral("top"),
            {QStringLiteral("save-hint/ready"), QStringLiteral("save/active")}};
}

/// The dialog with its inputs, as a user sees it.
struct ShownDialog
{
    explicit ShownDialog(const WalkthroughProperties& properties = {}, const WalkthroughNames& names = {})
        : dialog(properties, names)
    {
        dialog.show();
    }

    template <typename Widget>
    Widget* input(const char* name)
    {
        return dialog.findChild<Widget*>(QString::fromLatin1(name));
    }
    QPushButton* ok() { return dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok); }
    QStringList completions(const QString& typed)
    {
        auto* line = input<QLineEdit>("condition");
        line->clear();
        QTest::keyClicks(line, typed);
        QCompleter* completer = line->completer();
        QStringList result;
        for (int row = 0; completer->setCurrentRow(row); ++row)
            result.append(completer->currentCompletion());
        line->clear();
        return result;
    }

    WalkthroughPropertiesDialog dialog;
};

} // namespace

class tst_WalkthroughPropertiesDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsWhatThereIs();
    void offersNoneAndFourAlignments();
    void keepsAlignmentThatItDoesNotOffer();
    void namesHaveNoSpacesAround();
    void conditionsAreAddedAndRemoved();
    void conditionThatIsThereIsNotAddedAgain();
    void okTakesTheConditionInTheLine();
    void refusesWhatIsNoCondition_data();
    void refusesWhatIsNoCondition();
    void returnAddsBeforeItCloses();
    void completesStatesOfHintsAndTargets();
    void completesNamesTypedInTheDialog();
    void completesAllStatesOfUnknownNames();
    void completesTargetsOfTheForm();
    void findsNamesInForm();
};

void tst_WalkthroughPropertiesDialog::showsWhatThereIs()
{
    ShownDialog shown(someProperties());
    QCOMPARE(shown.input<QLineEdit>("target")->text(), QStringLiteral("save"));
    QCOMPARE(shown.input<QLineEdit>("hint")->text(), QStringLiteral("save-hint"));
    QCOMPARE(shown.input<QComboBox>("alignment")->currentText(), QStringLiteral("top"));
    QCOMPARE(shown.input<QListWidget>("list")->count(), 2);
    QVERIFY(shown.dialog.properties() == someProperties());
}

void tst_WalkthroughPropertiesDialog::offersNoneAndFourAlignments()
{
    ShownDialog shown;
    auto* box = shown.input<QComboBox>("alignment");
    QStringList values;
    for (int i = 0; i < box->count(); ++i) {
        box->setCurrentIndex(i);
        values.append(shown.dialog.properties().alignment);
    }
    QCOMPARE(values, QStringList({QString(), QStringLiteral("left"), QStringLiteral("top"), QStringLiteral("right"),
                                  QStringLiteral("bottom")}));
}

void tst_WalkthroughPropertiesDialog::keepsAlignmentThatItDoesNotOffer()
{
    WalkthroughProperties properties = someProperties();
    properties.alignment = QStringLiteral("middle");
    ShownDialog shown(properties);
    QVERIFY(shown.dialog.properties() == properties);
}

void tst_WalkthroughPropertiesDialog::namesHaveNoSpacesAround()
{
    ShownDialog shown;
    QTest::keyClicks(shown.input<QLineEdit>("target"), QStringLiteral(" save as "));
    QTest::keyClicks(shown.input<QLineEdit>("hint"), QStringLiteral("hint "));
    QCOMPARE(shown.dialog.properties().target, QStringLiteral("save as"));
    QCOMPARE(shown.dialog.properties().hint, QStringLiteral("hint"));
}

void tst_WalkthroughPropertiesDialog::conditionsAreAddedAndRemoved()
{
    ShownDialog shown(someProperties());
    auto* remove = shown.input<QPushButton>("remove");
    QVERIFY(!remove->isEnabled());
    QTest::keyClicks(shown.input<QLineEdit>("condition"), QStringLiteral("open/inactive"));
    QTest::mouseClick(shown.input<QPushButton>("add"), Qt::LeftButton);
    QCOMPARE(shown.input<QLineEdit>("condition")->text(), QString());
    QCOMPARE(shown.dialog.properties().conditions,
             QStringList(
                 {QStringLiteral("save-hint/ready"), QStringLiteral("save/active"), QStringLiteral("open/inactive")}));

    shown.input<QListWidget>("list")->item(1)->setSelected(true);
    QTest::mouseClick(remove, Qt::LeftButton);
    QCOMPARE(shown.dialog.properties().conditions,
             QStringList({QStringLiteral("save-hint/ready"), QStringLiteral("open/inactive")}));
    QVERIFY(!remove->isEnabled());
}

void tst_WalkthroughPropertiesDialog::conditionThatIsThereIsNotAddedAgain()
{
    ShownDialog shown(someProperties());
    QTest::keyClicks(shown.input<QLineEdit>("condition"), QStringLiteral("save/active"));
    QTest::mouseClick(shown.input<QPushButton>("add"), Qt::LeftButton);
    QCOMPARE(shown.dialog.properties().conditions, someProperties().conditions);
    QCOMPARE(shown.input<QLineEdit>("condition")->text(), QString());
}

void tst_WalkthroughPropertiesDialog::okTakesTheConditionInTheLine()
{
    ShownDialog shown;
    QTest::keyClicks(shown.input<QLineEdit>("condition"), QStringLiteral("open/active"));
    QTest::mouseClick(shown.ok(), Qt::LeftButton);
    QCOMPARE(shown.dialog.result(), int(QDialog::Accepted));
    QCOMPARE(shown.dialog.properties().conditions, QStringList(QStringLiteral("open/active")));
}

void tst_WalkthroughPropertiesDialog::refusesWhatIsNoCondition_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("no state") << QStringLiteral("open");
    QTest::newRow("empty state") << QStringLiteral("open/");
    QTest::newRow("empty name") << QStringLiteral("/active");
    QTest::newRow("too many parts") << QStringLiteral("open/active/now");
}

void tst_WalkthroughPropertiesDialog::refusesWhatIsNoCondition()
{
    QFETCH(QString, text);
    ShownDialog shown;
    auto* line = shown.input<QLineEdit>("condition");
    QTest::keyClicks(line, text);
    QVERIFY(!shown.input<QPushButton>("add")->isEnabled());
    QVERIFY(!shown.ok()->isEnabled());
    QTest::keyClick(line, Qt::Key_Return);
    QVERIFY(shown.dialog.isVisible());
    QCOMPARE(shown.dialog.properties().conditions, QStringList());
    line->clear();
    QVERIFY(shown.ok()->isEnabled());
}

void tst_WalkthroughPropertiesDialog::returnAddsBeforeItCloses()
{
    ShownDialog shown;
    auto* line = shown.input<QLineEdit>("condition");
    QTest::keyClicks(line, QStringLiteral("open/active"));
    QTest::keyClick(line, Qt::Key_Return);
    QVERIFY(shown.dialog.isVisible());
    QCOMPARE(shown.input<QListWidget>("list")->count(), 1);
    QTest::keyClick(line, Qt::Key_Return);
    QVERIFY(!shown.dialog.isVisible());
    QCOMPARE(shown.dialog.result(), int(QDialog::Accepted));
}

void tst_WalkthroughPropertiesDialog::completesStatesOfHintsAndTargets()
{
    ShownDialog shown({}, someNames());
    QCOMPARE(shown.completions(QStringLiteral("save")),
             QStringList({QStringLiteral("save-hint/ready"), QStringLiteral("save-hint/finished"),
                          QStringLiteral("save-hint/disabled"), QStringLiteral("save/active"),
                          QStringLiteral("save/inactive")}));
    QCOMPARE(shown.completions(QStringLiteral("OPEN")),
             QStringList({QStringLiteral("open/active"), QStringLiteral("open/inactive")}));
    QCOMPARE(shown.completions(QStringLiteral("finis")), QStringList(QStringLiteral("save-hint/finished")));
}

void tst_WalkthroughPropertiesDialog::completesNamesTypedInTheDialog()
{
    ShownDialog shown({}, someNames());
    QTest::keyClicks(shown.input<QLineEdit>("hint"), QStringLiteral("new"));
    QCOMPARE(
        shown.completions(QStringLiteral("new")),
        QStringList({QStringLiteral("new/ready"), QStringLiteral("new/finished"), QStringLiteral("new/disabled")}));
}

void tst_WalkthroughPropertiesDialog::completesAllStatesOfUnknownNames()
{
    ShownDialog shown({}, someNames());
    QCOMPARE(shown.completions(QStringLiteral("other")), QStringList());
    QCOMPARE(
        shown.completions(QStringLiteral("other/")),
        QStringList({QStringLiteral("other/ready"), QStringLiteral("other/finished"), QStringLiteral("other/disabled"),
                     QStringLiteral("other/active"), QStringLiteral("other/inactive")}));
}

void tst_WalkthroughPropertiesDialog::completesTargetsOfTheForm()
{
    ShownDialog shown({}, someNames());
    auto* target = shown.input<QLineEdit>("target");
    QTest::keyClicks(target, QStringLiteral("op"));
    QCOMPARE(target->completer()->currentCompletion(), QStringLiteral("open"));
}

void tst_WalkthroughPropertiesDialog::findsNamesInForm()
{
    QWidget form;
    form.setProperty("walkthroughWidget", QStringLiteral("window"));
    auto* outer = new QWidget(&form);
    outer->setProperty("walkthroughWidget", QStringLiteral("panel"));
    auto* inner = new QWidget(outer);
    inner->setProperty("walkthroughName", QStringLiteral("hint"));
    inner->setProperty("walkthroughWidget", QStringLiteral("panel"));
    const WalkthroughNames names = WalkthroughNames::in(form);
    QCOMPARE(names.targets, QStringList({QStringLiteral("panel"), QStringLiteral("window")}));
    QCOMPARE(names.hints, QStringList(QStringLiteral("hint")));
}

QTEST_MAIN(tst_WalkthroughPropertiesDialog)
#include "tst_WalkthroughPropertiesDialog.moc"
