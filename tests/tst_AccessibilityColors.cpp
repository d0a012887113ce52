#include <KQt/Ui/AdvancedColorPicker.h>
#include <KQt/Ui/AdvancedColorPickerPopup.h>
#include <KQt/Ui/PenPicker.h>
#include <KQt/Ui/RColorPicker.h>
#include <KQt/Ui/RColorPickerPopup.h>
#include <KQt/Ui/WidgetColorPickerButton.h>

#include "support/AccessibleUpdates.h"
#include "support/PopupFinder.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QSignalSpy>

#include <QtTest>

#include <memory>

using Kestrel::Gui::AdvancedColorPicker;
using Kestrel::Gui::AdvancedColorPickerPopup;
using Kestrel::Gui::PenPicker;
using Kestrel::Gui::RColorPicker;
using Kestrel::Gui::WidgetColorPickerButton;
using namespace TestSupport;

namespace {

QList<QAbstractButton*> swatchesOf(const AdvancedColorPickerPopup& popup)
{
    QList<QAbstractButton*> swatches;
    const auto buttons = popup.findChildren<QAbstractButton*>();
    for (QAbstractButton* button : buttons) {
        if (button->inherits("Kestrel::Gui::PickerButton"))
            swatches.append(button);
    }
    return swatches;
}

/// The buttons that show a colour, as far as they are alike.
template <typename Picker>
class tst_Picker
{
public:
    static void nameIsTheColorUnlessThereIsOne()
    {
        Picker picker;
        picker.setColor(QColor(18, 52, 86));
        QCOMPARE(nameOf(&picker), QStringLiteral("#123456"));
        QCOMPARE(valueOf(&picker), QStringLiteral("#123456"));
        QCOMPARE(descriptionOf(&picker), QString());

        picker.setAccessibleName(QStringLiteral("Outline"));
        QCOMPARE(nameOf(&picker), QStringLiteral("Outline"));
        QCOMPARE(valueOf(&picker), QStringLiteral("#123456"));
        QCOMPARE(descriptionOf(&picker), QStringLiteral("#123456"));

        picker.setToolTip(QStringLiteral("Colour of the outline"));
        QCOMPARE(descriptionOf(&picker), QStringLiteral("Colour of the outline"));
    }

    static void changesAreAnnouncedWhileItIsVisible()
    {
        Picker picker;
        picker.show();
        const AccessibleUpdates updates;
        picker.setColor(Qt::red);
        QCOMPARE(updates.count(&picker, QAccessible::ValueChanged), 1);
        QCOMPARE(updates.count(&picker, QAccessible::NameChanged), 1);
        picker.hide();
        picker.setColor(Qt::blue);
        QCOMPARE(updates.count(&picker, QAccessible::ValueChanged), 1);
    }
};

} // namespace

/// What assistive technology is told about swatches, slots and pickers.
class tst_AccessibilityColors : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void swatchesAreRadioButtonsNamedByColor();
    void pressingASwatchChoosesIt();
    void aSlotTellsItsNewColor();
    void fieldsOfThePopupHaveNames();
    void advancedPicker();
    void advancedPopupIsAChildOfItsPicker();
    void namedPicker();
    void namedPopupIsAChildOfItsPicker();
    void eyedropperButton();
    void pressOpensThePopup();
    void disabledPickerCannotBePressed();
    void invalidColorHasNoText();
    void subclassesAreSeenTheSameWay();
    void penPicker();
    void changesAreAnnounced();
    void changesOfThePenAreAnnounced();
    void interfacesDieWithTheirWidgets();
    void nothingIsSentWhileNobodyListens();
    void theNextApplicationIsServedToo();
};

void tst_AccessibilityColors::swatchesAreRadioButtonsNamedByColor()
{
    AdvancedColorPickerPopup popup;
    const QList<QAbstractButton*> swatches = swatchesOf(popup);
    QCOMPARE(swatches.size(), 132);
    QStringList names;
    for (QAbstractButton* swatch : swatches) {
        QCOMPARE(accessible(swatch)->role(), QAccessible::RadioButton);
        QVERIFY(accessible(swatch)->state().checkable);
        names.append(nameOf(swatch));
    }
    QVERIFY(names.contains(QStringLiteral("#003748")));
    QVERIFY(names.contains(QStringLiteral("#dfedd6")));
    QCOMPARE(names.count(QColor(Qt::gray).name()), 12);
}

void tst_AccessibilityColors::pressingASwatchChoosesIt()
{
    AdvancedColorPickerPopup popup;
    popup.setColor(Qt::white);
    popup.show();
    QAbstractButton* const swatch = swatchesOf(popup).at(17);
    QSignalSpy changed(&popup, &AdvancedColorPickerPopup::changedColor);
    QVERIFY(!accessible(swatch)->state().checked);
    press(accessible(swatch));
    QTRY_VERIFY(changed.count() > 0);
    QVERIFY(accessible(swatch)->state().checked);
    QCOMPARE(popup.color().name(), nameOf(swatch));
}

void tst_AccessibilityColors::aSlotTellsItsNewColor()
{
    REQUIRE_ASSISTIVE_TECHNOLOGY();
    AdvancedColorPickerPopup popup;
    popup.show();
    QAbstractButton* const slot = swatchesOf(popup).constFirst();
    slot->click();
    const AccessibleUpdates updates;
    popup.setColor(QColor(1, 2, 3));
    QVERIFY(updates.count(slot, QAccessible::NameChanged) > 0);
    QCOMPARE(nameOf(slot), QStringLiteral("#010203"));
    popup.setColor(Qt::gray); // the slots are those of the whole process
}

void tst_AccessibilityColors::fieldsOfThePopupHaveNames()
{
    const AdvancedColorPickerPopup popup;
    const auto nameOfThe = [&popup](const char* field) {
        return nameOf(popup.findChild<QWidget*>(QLatin1String(field)));
    };
    QCOMPARE(nameOfThe("colorEdit"), QStringLiteral("Color"));
    QCOMPARE(nameOfThe("opacityEdit"), QStringLiteral("OPACITY"));
    QCOMPARE(nameOfThe("opacitySlider"), QStringLiteral("OPACITY"));
}

void tst_AccessibilityColors::advancedPicker()
{
    AdvancedColorPicker picker;
    QCOMPARE(accessible(&picker)->role(), QAccessible::ButtonDropDown);
    QVERIFY(accessible(&picker)->state().hasPopup);
    tst_Picker<AdvancedColorPicker>::nameIsTheColorUnlessThereIsOne();
}

void tst_AccessibilityColors::advancedPopupIsAChildOfItsPicker()
{
    AdvancedColorPicker picker;
    picker.setColor(Qt::red);
    auto* const popup = onlyWindow<AdvancedColorPickerPopup>();
    QVERIFY(popup);
    QAccessibleInterface* const button = accessible(&picker);
    QCOMPARE(button->childCount(), 1);
    QCOMPARE(button->child(0)->object(), popup);
    QCOMPARE(button->indexOfChild(accessible(popup)), 0);
    QCOMPARE(accessible(popup)->parent(), button);
    QCOMPARE(valueOf(popup), QStringLiteral("#ff0000"));
    QVERIFY(accessible(popup)->state().invisible);

    // A popup without a picker has the application above it, as every window has.
    AdvancedColorPickerPopup alone;
    QCOMPARE(accessible(&alone)->parent(), accessible(qApp));
}

void tst_AccessibilityColors::namedPicker()
{
    RColorPicker picker;
    QCOMPARE(accessible(&picker)->role(), QAccessible::ButtonDropDown);
    QVERIFY(accessible(&picker)->state().hasPopup);
    tst_Picker<RColorPicker>::nameIsTheColorUnlessThereIsOne();
}

void tst_AccessibilityColors::namedPopupIsAChildOfItsPicker()
{
    RColorPicker picker;
    QAccessibleInterface* const button = accessible(&picker);
    QAccessibleInterface* const popup = accessible(&picker.GetPickerPopup());
    QCOMPARE(button->childCount(), 1);
    QCOMPARE(button->child(0), popup);
    QCOMPARE(button->indexOfChild(popup), 0);
    QCOMPARE(popup->parent(), button);
    QVERIFY(!button->child(1));
}

void tst_AccessibilityColors::eyedropperButton()
{
    WidgetColorPickerButton button;
    QCOMPARE(accessible(&button)->role(), QAccessible::PushButton);
    QVERIFY(!accessible(&button)->state().hasPopup);
    QCOMPARE(accessible(&button)->childCount(), 0);
    tst_Picker<WidgetColorPickerButton>::nameIsTheColorUnlessThereIsOne();

    // Picking has a loop of its own; whoever asks for it must not be kept in there.
    QWidget target;
    target.show();
    button.setTargetWidget(&target);
    QSignalSpy started(&button, &WidgetColorPickerButton::pickingStarted);
    QSignalSpy finished(&button, &WidgetColorPickerButton::pickingFinished);
    QObject::connect(&button, &WidgetColorPickerButton::pickingStarted, &button,
                     [&] { QTimer::singleShot(0, &button, &WidgetColorPickerButton::stopPicking); });
    press(accessible(&button));
    QCOMPARE(started.count(), 0);
    QTRY_COMPARE(finished.count(), 1);
}

void tst_AccessibilityColors::pressOpensThePopup()
{
    AdvancedColorPicker advanced;
    advanced.show();
    QVERIFY(
        accessible(&advanced)->actionInterface()->actionNames().contains(QAccessibleActionInterface::showMenuAction()));
    act(accessible(&advanced), QAccessibleActionInterface::showMenuAction());
    QTRY_VERIFY(onlyWindow<AdvancedColorPickerPopup>()->isVisible());

    RColorPicker named;
    named.show();
    press(accessible(&named));
    QTRY_VERIFY(named.GetPickerPopup().isVisible());
}

void tst_AccessibilityColors::disabledPickerCannotBePressed()
{
    RColorPicker picker;
    picker.setEnabled(false);
    picker.show();
    QVERIFY(!accessible(&picker)->actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));
    press(accessible(&picker));
    QCoreApplication::processEvents();
    QVERIFY(!picker.GetPickerPopup().isVisible());
}

void tst_AccessibilityColors::invalidColorHasNoText()
{
    AdvancedColorPicker picker;
    QCOMPARE(valueOf(&picker), QString());
    QCOMPARE(nameOf(&picker), QString());
    picker.setToolTip(QStringLiteral("Outline"));
    QCOMPARE(nameOf(&picker), QStringLiteral("Outline"));
}

void tst_AccessibilityColors::subclassesAreSeenTheSameWay()
{
    class Special : public RColorPicker
    {
    };
    Special picker;
    picker.setColor(Qt::red);
    QCOMPARE(nameOf(&picker), QStringLiteral("#ff0000"));
}

void tst_AccessibilityColors::penPicker()
{
    PenPicker picker;
    picker.setPen(QPen(QColor(1, 2, 3), 2));
    QCOMPARE(accessible(&picker)->role(), QAccessible::Grouping);
    QCOMPARE(valueOf(&picker), QStringLiteral("2 px, #010203"));
    QCOMPARE(accessible(&picker)->childCount(), 2);
    QCOMPARE(accessible(&picker)->child(0)->role(), QAccessible::ComboBox);
    QCOMPARE(accessible(&picker)->child(1)->role(), QAccessible::ButtonDropDown);
    picker.setPen(QPen(Qt::NoPen));
    QCOMPARE(valueOf(&picker), QStringLiteral("none, #000000"));
}

void tst_AccessibilityColors::changesAreAnnounced()
{
    REQUIRE_ASSISTIVE_TECHNOLOGY();
    tst_Picker<AdvancedColorPicker>::changesAreAnnouncedWhileItIsVisible();
    tst_Picker<RColorPicker>::changesAreAnnouncedWhileItIsVisible();
    tst_Picker<WidgetColorPickerButton>::changesAreAnnouncedWhileItIsVisible();

    // Also where the colour is not shown.
    RColorPicker picker;
    picker.SetColorized(false);
    picker.show();
    const AccessibleUpdates updates;
    picker.setColor(Qt::red);
    QCOMPARE(updates.count(&picker, QAccessible::ValueChanged), 1);
}

void tst_AccessibilityColors::changesOfThePenAreAnnounced()
{
    REQUIRE_ASSISTIVE_TECHNOLOGY();
    PenPicker picker;
    accessible(&picker);
    picker.show();
    const AccessibleUpdates updates;
    picker.setPen(QPen(Qt::red)); // the width changes too
    QVERIFY(updates.count(&picker, QAccessible::ValueChanged) > 0);
    const int before = updates.count(&picker, QAccessible::ValueChanged);
    picker.findChild<QComboBox*>()->setCurrentIndex(3);
    QCOMPARE(updates.count(&picker, QAccessible::ValueChanged), before + 1);
}

void tst_AccessibilityColors::interfacesDieWithTheirWidgets()
{
    auto picker = std::make_unique<RColorPicker>();
    auto* const popup = &picker->GetPickerPopup();
    const QAccessible::Id button = QAccessible::uniqueId(accessible(picker.get()));
    const QAccessible::Id cell = QAccessible::uniqueId(accessible(popup)->child(5));
    QVERIFY(QAccessible::accessibleInterface(button)->isValid());
    QVERIFY(QAccessible::accessibleInterface(cell)->isValid());

    bool stillValid = true;
    QObject::connect(picker.get(), &QObject::destroyed, picker.get(), [&] {
        QAccessibleInterface* const left = QAccessible::accessibleInterface(button);
        stillValid = left && left->isValid();
    });
    picker.reset();
    QVERIFY(!stillValid);
    QVERIFY(!QAccessible::accessibleInterface(button));
    QVERIFY(!QAccessible::accessibleInterface(cell));
}

void tst_AccessibilityColors::nothingIsSentWhileNobodyListens()
{
    if (qEnvironmentVariableIsSet("QT_LINUX_ACCESSIBILITY_ALWAYS_ON"))
        QSKIP("somebody listens");
    RColorPicker picker;
    picker.show();
    AccessibleUpdates::noted().clear();
    const auto previous = QAccessible::installUpdateHandler([](QAccessibleEvent* event) {
        AccessibleUpdates::noted().append({event->object(), event->type(), 0});
    });
    picker.setColor(Qt::red);
    QAccessible::installUpdateHandler(previous);
    QVERIFY(AccessibleUpdates::noted().isEmpty());
}

void tst_AccessibilityColors::theNextApplicationIsServedToo()
{
    // main() has had an application before this one.
    RColorPicker picker;
    QCOMPARE(accessible(&picker)->role(), QAccessible::ButtonDropDown);
    QCOMPARE(accessible(&picker.GetPickerPopup())->childCount(), 42);
}

namespace {

/// Two applications, one after the other: what the first one leaves behind must serve the second.
bool anEarlierApplicationIsServed(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    RColorPicker picker;
    const bool served = accessible(&picker)->role() == QAccessible::ButtonDropDown;
    accessible(&picker.GetPickerPopup())->child(7);
    return served;
}

} // namespace

int main(int argc, char* argv[])
{
    if (!anEarlierApplicationIsServed(argc, argv))
        qFatal("the first application is not served");
    const QApplication application(argc, argv);
    tst_AccessibilityColors test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_AccessibilityColors.moc"
