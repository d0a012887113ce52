#include <KQt/Ui/RColorPicker.h>
#include <KQt/Ui/RColorPickerPopup.h>

#include "support/AccessibleUpdates.h"
#include "support/ContextTranslator.h"
#include "support/NamedPaletteListing.h"

#include <QColorDialog>
#include <QSet>
#include <QSignalSpy>

#include <QtTest>

#include <algorithm>
#include <iterator>
#include <memory>

using Kestrel::Gui::RColorPicker;
using namespace TestSupport;

namespace {

constexpr int defaultItem = 0;
constexpr int moreItem = 41;

/// A picker with its popup open.
struct OpenPicker
{
    OpenPicker()
    {
        picker.move(300, 100);
        picker.show();
        picker.showPopup();
        list = accessible(&picker.GetPickerPopup());
    }

    QAccessibleInterface* item(int index) const { return list->child(index); }

    RColorPicker picker;
    QAccessibleInterface* list = nullptr;
};

} // namespace

/// What assistive technology is told about the popup that paints itself.
class tst_AccessibilityPalettePopup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aListOfCellsBetweenTwoButtons();
    void cellsHaveNamesAndColors();
    void namesAreTranslated();
    void rectanglesAreOnTheScreen();
    void itemsAreFoundByPosition();
    void buttonsFollowTheWidth();
    void theCellOfTheColorIsSelected();
    void focusMovesTheFrame();
    void theFrameIsAnnounced();
    void pressChooses_data();
    void pressChooses();
    void pressOpensTheDialogLater();
    void aClosedPopupCannotBePressed();
    void childrenKeepTheirIdentity();
    void childrenOutliveNothing();
    void aPressThatComesTooLateIsDropped();
};

void tst_AccessibilityPalettePopup::aListOfCellsBetweenTwoButtons()
{
    const OpenPicker open;
    QCOMPARE(open.list->role(), QAccessible::List);
    QCOMPARE(open.list->text(QAccessible::Name), QStringLiteral("Colors"));
    QCOMPARE(open.list->childCount(), 42);
    for (int i = 0; i < 42; ++i) {
        QAccessibleInterface* const item = open.item(i);
        QVERIFY(item && item->isValid());
        QCOMPARE(item->role(), i == defaultItem || i == moreItem ? QAccessible::PushButton : QAccessible::ListItem);
        QCOMPARE(item->parent(), open.list);
        QCOMPARE(open.list->indexOfChild(item), i);
        QCOMPARE(item->childCount(), 0);
        QVERIFY(!item->object());
        QVERIFY(!item->state().invisible);
        QVERIFY(item->state().focusable);
    }
    QVERIFY(!open.list->child(-1));
    QVERIFY(!open.list->child(42));
    QCOMPARE(open.list->indexOfChild(accessible(qApp)), -1);
    QVERIFY(!open.list->focusChild());
}

void tst_AccessibilityPalettePopup::cellsHaveNamesAndColors()
{
    const OpenPicker open;
    QCOMPARE(std::size(listedColors), std::size_t{40});
    int item = 1;
    for (const ListedColor& listed : listedColors) {
        QCOMPARE(open.item(item)->text(QAccessible::Name), QString::fromLatin1(listed.name).trimmed());
        QCOMPARE(open.item(item)->text(QAccessible::Description), QColor(listed.red, listed.green, listed.blue).name());
        ++item;
    }
    QCOMPARE(open.item(defaultItem)->text(QAccessible::Name), QStringLiteral("Default"));
    QCOMPARE(open.item(defaultItem)->text(QAccessible::Description), QStringLiteral("#ffff00"));
    QCOMPARE(open.item(moreItem)->text(QAccessible::Name), QStringLiteral("More..."));
}

void tst_AccessibilityPalettePopup::namesAreTranslated()
{
    const OpenPicker open;
    const ContextTranslator translator("Kestrel::Gui::RColorPickerPopup");
    QCOMPARE(open.list->text(QAccessible::Name), QStringLiteral("<Colors>"));
    QCOMPARE(open.item(defaultItem)->text(QAccessible::Name), QStringLiteral("<Default>"));
    QCOMPARE(open.item(1)->text(QAccessible::Name), QStringLiteral("<Black>"));
    QCOMPARE(open.item(moreItem)->text(QAccessible::Name), QStringLiteral("<More...>"));
}

void tst_AccessibilityPalettePopup::rectanglesAreOnTheScreen()
{
    const OpenPicker open;
    const QPoint origin = open.picker.GetPickerPopup().mapToGlobal(QPoint(0, 0));
    QCOMPARE(open.item(1)->rect(), QRect(8, 34, 12, 12).translated(origin));
    QCOMPARE(open.item(8)->rect(), QRect(120, 34, 12, 12).translated(origin));
    QCOMPARE(open.item(40)->rect(), QRect(120, 98, 12, 12).translated(origin));
    QCOMPARE(open.item(defaultItem)->rect(), QRect(4, 5, 132, 20).translated(origin));
    QCOMPARE(open.item(moreItem)->rect(), QRect(4, 119, 132, 20).translated(origin));
    open.picker.GetPickerPopup().hide();
    QVERIFY(open.item(1)->rect().isNull());
    QVERIFY(open.item(1)->state().invisible);
}

void tst_AccessibilityPalettePopup::itemsAreFoundByPosition()
{
    const OpenPicker open;
    for (int i = 0; i < 42; ++i) {
        const QPoint middle = open.item(i)->rect().center();
        QCOMPARE(open.list->childAt(middle.x(), middle.y()), open.item(i));
    }
    const QPoint gap = open.picker.GetPickerPopup().mapToGlobal(QPoint(22, 40));
    QVERIFY(!open.list->childAt(gap.x(), gap.y()));
}

void tst_AccessibilityPalettePopup::buttonsFollowTheWidth()
{
    const OpenPicker open;
    open.picker.GetPickerPopup().resize(200, 145);
    QCOMPARE(open.item(defaultItem)->rect().width(), 192);
    QCOMPARE(open.item(moreItem)->rect().width(), 192);
    QCOMPARE(open.item(1)->rect().width(), 12);
}

void tst_AccessibilityPalettePopup::theCellOfTheColorIsSelected()
{
    OpenPicker open;
    for (int i = 0; i < 42; ++i)
        QVERIFY(!open.item(i)->state().selected);
    open.picker.setColor(QColor(139, 0, 0));
    for (int i = 0; i < 42; ++i)
        QCOMPARE(bool(open.item(i)->state().selected), i == 9);
}

void tst_AccessibilityPalettePopup::theFrameIsAnnounced()
{
    REQUIRE_ASSISTIVE_TECHNOLOGY();
    const OpenPicker open;
    const AccessibleUpdates updates;
    act(open.item(12), QAccessibleActionInterface::setFocusAction());
    const auto& noted = AccessibleUpdates::noted();
    QVERIFY(std::any_of(noted.cbegin(), noted.cend(), [&](const AccessibleUpdates::Update& update) {
        return update.object == &open.picker.GetPickerPopup() && update.type == QAccessible::Focus &&
               update.child == 12;
    }));
}

void tst_AccessibilityPalettePopup::focusMovesTheFrame()
{
    const OpenPicker open;
    act(open.item(12), QAccessibleActionInterface::setFocusAction());
    QVERIFY(open.item(12)->state().focused);
    QCOMPARE(open.list->focusChild(), open.item(12));
    act(open.item(moreItem), QAccessibleActionInterface::setFocusAction());
    QVERIFY(!open.item(12)->state().focused);
    QVERIFY(open.item(moreItem)->state().focused);
    open.picker.GetPickerPopup().hide();
    QVERIFY(!open.item(moreItem)->state().focused);
}

void tst_AccessibilityPalettePopup::pressChooses_data()
{
    QTest::addColumn<int>("item");
    QTest::addColumn<QColor>("chosen");
    QTest::newRow("first cell") << 1 << QColor(0, 0, 0);
    QTest::newRow("a cell in the middle") << 12 << QColor(0, 147, 0);
    QTest::newRow("last cell") << 40 << QColor(255, 255, 255);
    QTest::newRow("default") << defaultItem << QColor(Qt::yellow);
}

void tst_AccessibilityPalettePopup::pressChooses()
{
    QFETCH(int, item);
    QFETCH(QColor, chosen);
    const OpenPicker open;
    QSignalSpy changed(&open.picker, &RColorPicker::changedColor);
    press(open.item(item));
    QTRY_COMPARE(changed.count(), 1);
    QCOMPARE(changed.constFirst().constFirst().value<QColor>(), chosen);
    QVERIFY(!open.picker.GetPickerPopup().isVisible());
    QCOMPARE(open.picker.color(), chosen);
}

void tst_AccessibilityPalettePopup::pressOpensTheDialogLater()
{
    const OpenPicker open;
    bool opened = false;
    QTimer closer;
    QObject::connect(&closer, &QTimer::timeout, &closer, [&] {
        if (auto* const dialog = qobject_cast<QColorDialog*>(QApplication::activeModalWidget())) {
            opened = true;
            dialog->reject();
        }
    });
    closer.start(1);
    press(open.item(moreItem));
    QVERIFY(!opened); // whoever asked has an answer before the dialog is there
    QTRY_VERIFY(opened);
    QTRY_VERIFY(!QApplication::activeModalWidget());
}

void tst_AccessibilityPalettePopup::aClosedPopupCannotBePressed()
{
    const OpenPicker open;
    QSignalSpy changed(&open.picker, &RColorPicker::changedColor);
    press(open.item(3));
    open.picker.GetPickerPopup().hide();
    press(open.item(3));
    act(open.item(3), QAccessibleActionInterface::setFocusAction());
    QCoreApplication::processEvents();
    QCOMPARE(changed.count(), 0);
    QVERIFY(!open.item(3)->state().focused);
}

void tst_AccessibilityPalettePopup::childrenKeepTheirIdentity()
{
    const OpenPicker open;
    QSet<QAccessible::Id> ids;
    for (int round = 0; round < 2; ++round) {
        for (int i = 0; i < 42; ++i)
            ids.insert(QAccessible::uniqueId(open.item(i)));
    }
    QCOMPARE(ids.size(), 42);
}

void tst_AccessibilityPalettePopup::childrenOutliveNothing()
{
    auto open = std::make_unique<OpenPicker>();
    const QAccessible::Id child = QAccessible::uniqueId(open->item(3));
    const QAccessible::Id list = QAccessible::uniqueId(open->list);

    // A client that lets go of the list lets go of its items, and gets new ones when it comes back.
    QAccessible::deleteAccessibleInterface(list);
    QVERIFY(!QAccessible::accessibleInterface(child));
    QAccessibleInterface* const again = accessible(&open->picker.GetPickerPopup());
    const QAccessible::Id second = QAccessible::uniqueId(again->child(3));
    QVERIFY(QAccessible::accessibleInterface(second)->isValid());
    open.reset();
    QVERIFY(!QAccessible::accessibleInterface(second));
}

void tst_AccessibilityPalettePopup::aPressThatComesTooLateIsDropped()
{
    auto open = std::make_unique<OpenPicker>();
    press(open->item(3));
    open.reset();
    QCoreApplication::processEvents();
}

QTEST_MAIN(tst_AccessibilityPalettePopup)
#include "tst_AccessibilityPalettePopup.moc"
