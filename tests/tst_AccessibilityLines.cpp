#include <KQt/Ui/LineStyleComboBox.h>
#include <KQt/Ui/LineWidthComboBox.h>

#include "support/AccessibleUpdates.h"
#include "support/ContextTranslator.h"

#include <QAbstractItemView>
#include <QLabel>
#include <QListView>
#include <QSignalSpy>

#include <QtTest>

#include <memory>

using Kestrel::Gui::LineStyleComboBox;
using Kestrel::Gui::LineWidthComboBox;
using namespace TestSupport;

namespace {

void addValues(QComboBox& box, std::initializer_list<int> values)
{
    for (const int value : values)
        box.addItem(QString(), value);
}

QStringList itemNames(const QComboBox& box)
{
    QAccessibleInterface* const list = accessible(box.view());
    QStringList names;
    for (int i = 0; i < list->childCount(); ++i)
        names.append(list->child(i)->text(QAccessible::Name));
    return names;
}

} // namespace

/// What assistive technology is told about line styles and widths, which are drawn and not written.
class tst_AccessibilityLines : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void stylesInWords();
    void widthsInWords();
    void currentItemIsTheValue();
    void aGivenNameStays();
    void wordsAreTranslated();
    void ownTextsComeFirst();
    void theListBelongsToTheBox();
    void itemsKnowTheirPlaceAndState();
    void pressOpensAndCloses();
    void pressingAnItemChoosesIt();
    void itemsFollowTheModel();
    void theCurrentItemOfTheListIsAnnounced();
    void interfacesDieWithTheirWidgets();
    void otherListsAreQtsBusiness();
};

void tst_AccessibilityLines::stylesInWords()
{
    LineStyleComboBox box;
    addValues(box, {0, 1, 2, 3, 4, 5, 6, 7, -1});
    QCOMPARE(itemNames(box),
             (QStringList{QStringLiteral("none"), QStringLiteral("solid"), QStringLiteral("dash"),
                          QStringLiteral("dot"), QStringLiteral("dash dot"), QStringLiteral("dash dot dot"),
                          QStringLiteral("custom"), QStringLiteral("none"), QStringLiteral("none")}));
}

void tst_AccessibilityLines::widthsInWords()
{
    LineWidthComboBox box;
    addValues(box, {0, 1, 2, 12, -3});
    QCOMPARE(itemNames(box), (QStringList{QStringLiteral("none"), QStringLiteral("1 px"), QStringLiteral("2 px"),
                                          QStringLiteral("12 px"), QStringLiteral("none")}));
}

void tst_AccessibilityLines::currentItemIsTheValue()
{
    LineStyleComboBox styles;
    addValues(styles, {1, 2, 3});
    styles.setCurrentIndex(1);
    QCOMPARE(accessible(&styles)->role(), QAccessible::ComboBox);
    QCOMPARE(valueOf(&styles), QStringLiteral("dash"));
    QCOMPARE(nameOf(&styles), QStringLiteral("dash"));

    LineWidthComboBox widths;
    QCOMPARE(valueOf(&widths), QStringLiteral("none")); // what an empty box shows
    addValues(widths, {0, 2});
    widths.setCurrentIndex(1);
    QCOMPARE(valueOf(&widths), QStringLiteral("2 px"));
}

void tst_AccessibilityLines::aGivenNameStays()
{
    QWidget window;
    LineStyleComboBox box(&window);
    addValues(box, {1, 2});
    QLabel label(QStringLiteral("&Style:"), &window);
    label.setBuddy(&box);
    QCOMPARE(nameOf(&box), QStringLiteral("Style:"));
    QCOMPARE(valueOf(&box), QStringLiteral("solid"));
    QCOMPARE(descriptionOf(&box), QStringLiteral("solid"));
    box.setAccessibleName(QStringLiteral("Outline"));
    QCOMPARE(nameOf(&box), QStringLiteral("Outline"));
}

void tst_AccessibilityLines::wordsAreTranslated()
{
    LineStyleComboBox styles;
    addValues(styles, {2});
    LineWidthComboBox widths;
    addValues(widths, {0, 2});
    {
        const ContextTranslator translator("Kestrel::Gui::LineStyleComboBox");
        QCOMPARE(itemNames(styles), QStringList{QStringLiteral("<dash>")});
    }
    const ContextTranslator translator("Kestrel::Gui::LineWidthComboBox");
    QCOMPARE(itemNames(widths), (QStringList{QStringLiteral("<none>"), QStringLiteral("<2 px>")}));
}

void tst_AccessibilityLines::ownTextsComeFirst()
{
    LineWidthComboBox box;
    box.addItem(QStringLiteral("Hairline"), 1);
    addValues(box, {2});
    box.setItemData(1, QStringLiteral("two points"), Qt::AccessibleTextRole);
    QCOMPARE(itemNames(box), (QStringList{QStringLiteral("Hairline"), QStringLiteral("two points")}));
    QCOMPARE(valueOf(&box), QStringLiteral("Hairline"));
}

void tst_AccessibilityLines::theListBelongsToTheBox()
{
    LineStyleComboBox box;
    addValues(box, {1, 2});
    QAccessibleInterface* const combo = accessible(&box);
    QAccessibleInterface* const list = accessible(box.view());
    QCOMPARE(combo->childCount(), 1);
    QCOMPARE(combo->child(0), list);
    QCOMPARE(combo->indexOfChild(list), 0);
    QCOMPARE(list->parent(), combo);
    QCOMPARE(list->role(), QAccessible::List);
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(list->child(i)->role(), QAccessible::ListItem);
        QCOMPARE(list->child(i)->parent(), list);
        QCOMPARE(list->indexOfChild(list->child(i)), i);
        QCOMPARE(list->child(i), list->child(i));
    }
    QVERIFY(!list->child(2));
    QVERIFY(!list->child(-1));
}

void tst_AccessibilityLines::itemsKnowTheirPlaceAndState()
{
    LineWidthComboBox box;
    addValues(box, {0, 1, 2});
    box.setCurrentIndex(2);
    QAccessibleInterface* const list = accessible(box.view());
    QVERIFY(list->child(2)->state().selected);
    QVERIFY(list->child(0)->state().invisible);
    QVERIFY(list->child(0)->rect().isNull());

    box.show();
    box.showPopup();
    QVERIFY(QTest::qWaitForWindowExposed(box.view()->window()));
    QVERIFY(!list->child(0)->state().invisible);
    for (int i = 0; i < 3; ++i) {
        const QRect place = list->child(i)->rect();
        QVERIFY(!place.isEmpty());
        QCOMPARE(list->childAt(place.center().x(), place.center().y()), list->child(i));
    }
    act(list->child(1), QAccessibleActionInterface::setFocusAction());
    QVERIFY(list->child(1)->state().focused);
    QVERIFY(!list->child(0)->state().focused);
    QCOMPARE(box.currentIndex(), 2);
    box.hidePopup();
}

void tst_AccessibilityLines::pressOpensAndCloses()
{
    LineStyleComboBox box;
    addValues(box, {1, 2});
    box.show();
    QAccessibleInterface* const combo = accessible(&box);
    QVERIFY(combo->state().collapsed);
    press(combo);
    QTRY_VERIFY(box.view()->isVisible());
    QVERIFY(combo->state().expanded);
    act(combo, QAccessibleActionInterface::showMenuAction());
    QTRY_VERIFY(!box.view()->isVisible());
}

void tst_AccessibilityLines::pressingAnItemChoosesIt()
{
    LineWidthComboBox box;
    addValues(box, {0, 1, 2});
    box.show();
    QSignalSpy activated(&box, QOverload<int>::of(&QComboBox::activated));
    QAccessibleInterface* const item = accessible(box.view())->child(1);
    QVERIFY(item->isValid());
    QCOMPARE(item->text(QAccessible::Name), QStringLiteral("1 px"));
    QVERIFY(item->actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));
    press(item);
    QCOMPARE(box.currentIndex(), 1);
    QCOMPARE(activated.count(), 1);

    box.showPopup();
    press(accessible(box.view())->child(2));
    QCOMPARE(box.currentIndex(), 2);
    QCOMPARE(activated.count(), 2);
    QTRY_VERIFY(!box.view()->isVisible());
}

void tst_AccessibilityLines::itemsFollowTheModel()
{
    LineWidthComboBox box;
    addValues(box, {0, 1, 2});
    QAccessibleInterface* const list = accessible(box.view());
    const QAccessible::Id two = QAccessible::uniqueId(list->child(2));
    const QAccessible::Id one = QAccessible::uniqueId(list->child(1));
    box.removeItem(1);
    // Assistive technology that is there may have looked already, and with that the item is gone.
    if (QAccessibleInterface* const left = QAccessible::accessibleInterface(one)) {
        QVERIFY(!left->isValid());
        QCOMPARE(left->text(QAccessible::Name), QString());
        QVERIFY(left->state().invalid);
        press(left);
        QCOMPARE(box.currentIndex(), 0);
    }
    QCOMPARE(QAccessible::uniqueId(list->child(1)), two);
    QCOMPARE(list->childCount(), 2);
    QVERIFY(!QAccessible::accessibleInterface(one)); // dropped as soon as a child is asked for
    box.clear();
    QCOMPARE(list->childCount(), 0);
    QVERIFY(!list->child(0));
}

void tst_AccessibilityLines::theCurrentItemOfTheListIsAnnounced()
{
    REQUIRE_ASSISTIVE_TECHNOLOGY();
    LineWidthComboBox box;
    addValues(box, {0, 1, 2});
    box.show();
    box.showPopup();
    QVERIFY(QTest::qWaitForWindowExposed(box.view()->window()));
    const AccessibleUpdates updates;
    box.setCurrentIndex(2);
    QVERIFY(updates.count(&box, QAccessible::ValueChanged) > 0);
    box.hidePopup();
}

void tst_AccessibilityLines::interfacesDieWithTheirWidgets()
{
    auto box = std::make_unique<LineWidthComboBox>();
    addValues(*box, {0, 1});
    const QAccessible::Id combo = QAccessible::uniqueId(accessible(box.get()));
    const QAccessible::Id list = QAccessible::uniqueId(accessible(box->view()));
    const QAccessible::Id item = QAccessible::uniqueId(accessible(box->view())->child(1));
    // Another view in the same box has items of its own.
    box->setView(new QListView);
    QVERIFY(!QAccessible::accessibleInterface(item));
    const QAccessible::Id second = QAccessible::uniqueId(accessible(box->view())->child(1));
    QVERIFY(QAccessible::accessibleInterface(second)->isValid());
    box.reset();
    for (const QAccessible::Id id : {combo, list, item, second})
        QVERIFY(!QAccessible::accessibleInterface(id));
}

void tst_AccessibilityLines::otherListsAreQtsBusiness()
{
    LineWidthComboBox ours; // installs the factory
    QListView view;
    QVERIFY(accessible(&view)->tableInterface());
    QComboBox box;
    box.setView(new QListView);
    QVERIFY(accessible(box.view())->tableInterface());
}

QTEST_MAIN(tst_AccessibilityLines)
#include "tst_AccessibilityLines.moc"
