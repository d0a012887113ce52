#include <KQt/Ui/AdvancedColorPicker.h>
#include <KQt/Ui/AdvancedColorPickerPopup.h>
#include <KQt/Ui/PenPicker.h>
#include <KQt/Ui/RColorPicker.h>
#include <KQt/Ui/RColorPickerPopup.h>
#include <KQt/Ui/StandardDialogs.h>
#include <KQt/Ui/WidgetColorPickerButton.h>

#include "support/MouseEvents.h"
#include "support/PopupFinder.h"
#include "support/Thrown.h"

#include <QColorDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QSignalSpy>
#include <QSlider>
#include <QtTest>

#include <functional>
#include <memory>

using namespace Kestrel::Gui;
using TestSupport::Fuse;
using TestSupport::isThrownBy;
using TestSupport::onlyWindow;
using TestSupport::sendMouse;

namespace {

const QPoint onBlack(14, 40); // the first cell of the named palette
const QPoint onMore(70, 130);

void press(QWidget& widget, const QPoint& position)
{
    sendMouse(&widget, QEvent::MouseButtonPress, position, Qt::LeftButton, Qt::LeftButton);
}

void pressKey(QWidget& widget, int key)
{
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
}

/// Throws from the loop of the modal dialog that is shown next.
void throwFromNextDialog()
{
    auto* timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, qApp, [timer] {
        const QWidget* const dialog = QApplication::activeModalWidget();
        if (!dialog || !dialog->isVisible())
            return;
        delete timer;
        throw TestSupport::Thrown();
    });
    timer->start(1);
}

/// Cancels the modal dialog that is shown next.
template <typename Dialog>
void rejectNextDialog(int& rejected)
{
    auto* timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, qApp, [timer, &rejected] {
        auto* const dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
        if (!dialog || !dialog->isVisible())
            return;
        delete timer;
        ++rejected;
        dialog->reject();
    });
    timer->start(1);
}

} // namespace

/// What slots of the colour pickers and of their dialogs throw. The eyedropper's are with its own tests.
class tst_ExceptionSafetyPickers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void advancedChange_data();
    void advancedChange();
    void advancedEnd_data();
    void advancedEnd();
    void advancedStart();
    void advancedPopupDiesWithItsPicker();

    void namedChoice_data();
    void namedChoice();
    void namedClosing_data();
    void namedClosing();
    void namedKeyboard();
    void namedDialog();

    void warningDialog();
};

void tst_ExceptionSafetyPickers::cleanup()
{
    QVERIFY(!QApplication::activePopupWidget());
    QVERIFY(!QApplication::activeModalWidget());
    QVERIFY(!QApplication::overrideCursor());
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_ExceptionSafetyPickers::advancedChange_data()
{
    QTest::addColumn<bool>("typed");
    QTest::newRow("typed") << true;
    QTest::newRow("opacity") << false;
}

void tst_ExceptionSafetyPickers::advancedChange()
{
    QFETCH(bool, typed);
    AdvancedColorPicker picker;
    auto* popup = onlyWindow<AdvancedColorPickerPopup>();
    picker.show();
    picker.showPopup();
    auto* edit = popup->findChild<QLineEdit*>(QStringLiteral("colorEdit"));
    auto* slider = popup->findChild<QSlider*>(QStringLiteral("opacitySlider"));
    Fuse fuse;
    connect(&picker, &AdvancedColorPicker::changedColor, this, [&fuse] { fuse(); });
    const QSignalSpy spy(&picker, &AdvancedColorPicker::changedColor);
    int value = 50;
    const auto change = [&] {
        ++value;
        if (typed)
            edit->setText(QStringLiteral("#1234%1").arg(value));
        else
            slider->setValue(value);
    };
    fuse.arm();
    QVERIFY(isThrownBy(change));
    QVERIFY(!popup->signalsBlocked());
    QVERIFY(!edit->signalsBlocked());
    change();
    QCOMPARE(spy.size(), 1);
    QCOMPARE(picker.color(), popup->color());
    typed ? slider->setValue(77) : edit->setText(QStringLiteral("#123456"));
    QCOMPARE(spy.size(), 2);
    popup->hide();
}

void tst_ExceptionSafetyPickers::advancedEnd_data()
{
    QTest::addColumn<int>("way");
    QTest::newRow("popup hidden") << 0;
    QTest::newRow("popup closed") << 1;
    QTest::newRow("escape") << 2;
    QTest::newRow("press outside") << 3;
    QTest::newRow("picker hidden") << 4;
}

// It closes, and closes again the next time: an open popup has the mouse to itself.
void tst_ExceptionSafetyPickers::advancedEnd()
{
    QFETCH(int, way);
    AdvancedColorPicker picker;
    auto* popup = onlyWindow<AdvancedColorPickerPopup>();
    picker.show();
    picker.setColor(QColor(1, 2, 3));
    Fuse fuse;
    connect(&picker, &AdvancedColorPicker::doneSelectionWithColor, this, [&fuse] { fuse(); });
    const QSignalSpy spy(&picker, &AdvancedColorPicker::doneSelectionWithColor);
    const auto end = [&] {
        switch (way) {
        case 0:
            popup->hide();
            break;
        case 1:
            popup->close();
            break;
        case 2:
            pressKey(*popup, Qt::Key_Escape);
            break;
        case 3:
            press(*popup, QPoint(-20, -20));
            break;
        default:
            picker.hide();
        }
    };
    for (int round = 0; round < 2; ++round) {
        picker.show();
        picker.showPopup();
        QVERIFY(popup->isVisible());
        fuse.arm();
        QVERIFY(isThrownBy(end));
        QVERIFY(!popup->isVisible());
        QCOMPARE(spy.size(), round);

        picker.show();
        picker.showPopup();
        QVERIFY(popup->isVisible());
        end();
        QVERIFY(!popup->isVisible());
        QCOMPARE(spy.size(), round + 1);
        QCOMPARE(spy.last().first().value<QColor>(), QColor(1, 2, 3));
    }
}

void tst_ExceptionSafetyPickers::advancedStart()
{
    AdvancedColorPicker picker;
    const auto* popup = onlyWindow<AdvancedColorPickerPopup>();
    picker.show();
    Fuse fuse;
    connect(&picker, &AdvancedColorPicker::colorSelectionStarted, this, [&fuse] { fuse(); });
    fuse.arm();
    QVERIFY(isThrownBy([&picker] { picker.showPopup(); }));
    QVERIFY(!popup->isVisible());
    picker.showPopup();
    QVERIFY(popup->isVisible());
    picker.hide();
}

// At once, for none of its signals is being answered any more.
void tst_ExceptionSafetyPickers::advancedPopupDiesWithItsPicker()
{
    auto picker = std::make_unique<AdvancedColorPicker>();
    const QPointer<AdvancedColorPickerPopup> popup = onlyWindow<AdvancedColorPickerPopup>();
    Fuse fuse;
    connect(picker.get(), &AdvancedColorPicker::changedColor, this, [&fuse] { fuse(); });
    connect(picker.get(), &AdvancedColorPicker::doneSelectionWithColor, this, [&fuse] { fuse(); });
    picker->show();
    picker->showPopup();
    fuse.arm();
    QVERIFY(isThrownBy([&] { popup->findChild<QLineEdit*>()->setText(QStringLiteral("#123456")); }));
    fuse.arm();
    QVERIFY(isThrownBy([&] { popup->hide(); }));
    picker.reset();
    QVERIFY(!popup);
}

void tst_ExceptionSafetyPickers::namedChoice_data()
{
    QTest::addColumn<bool>("ofPopup");
    QTest::newRow("selected") << true;
    QTest::newRow("changedColor") << false;
}

// The colour is chosen and the popup closed, whatever the slot says to it.
void tst_ExceptionSafetyPickers::namedChoice()
{
    QFETCH(bool, ofPopup);
    RColorPicker picker;
    RColorPickerPopup& popup = picker.GetPickerPopup();
    picker.show();
    Fuse fuse;
    if (ofPopup)
        connect(&popup, &RColorPickerPopup::selected, this, [&fuse] { fuse(); });
    else
        connect(&picker, &RColorPicker::changedColor, this, [&fuse] { fuse(); });
    const QSignalSpy spy(&picker, &RColorPicker::changedColor);
    const auto choose = [&] {
        picker.showPopup();
        popup.grab(); // it knows its cells once it has painted them
        press(popup, onBlack);
    };
    fuse.arm();
    QVERIFY(isThrownBy(choose));
    QVERIFY(!popup.isVisible());
    QCOMPARE(picker.property("pressed"), QVariant(false));
    QCOMPARE(picker.color(), QColor(Qt::black));

    picker.setColor(Qt::red);
    const int before = spy.size();
    choose();
    QVERIFY(!popup.isVisible());
    QCOMPARE(picker.color(), QColor(Qt::black));
    QCOMPARE(spy.size(), before + 1);
}

void tst_ExceptionSafetyPickers::namedClosing_data()
{
    QTest::addColumn<int>("way");
    QTest::newRow("hidden") << 0;
    QTest::newRow("closed") << 1;
    QTest::newRow("escape") << 2;
    QTest::newRow("press outside") << 3;
    QTest::newRow("choice") << 4;
}

void tst_ExceptionSafetyPickers::namedClosing()
{
    QFETCH(int, way);
    RColorPicker picker;
    RColorPickerPopup& popup = picker.GetPickerPopup();
    picker.show();
    Fuse fuse;
    connect(&popup, &RColorPickerPopup::closed, this, [&fuse] { fuse(); });
    const auto close = [&] {
        switch (way) {
        case 0:
            popup.hide();
            break;
        case 1:
            popup.close();
            break;
        case 2:
            pressKey(popup, Qt::Key_Escape);
            break;
        case 3:
            press(popup, QPoint(-20, -20));
            break;
        default:
            popup.grab();
            press(popup, onBlack);
        }
    };
    for (int round = 0; round < 2; ++round) {
        picker.showPopup();
        fuse.arm();
        QVERIFY(isThrownBy(close));
        QVERIFY(!popup.isVisible());
        picker.showPopup();
        QVERIFY(popup.isVisible());
        close();
        QVERIFY(!popup.isVisible());
        QCOMPARE(picker.property("pressed"), QVariant(false));
    }
}

// The frame of the keyboard goes with the next press of the mouse, as it does when nothing was thrown.
void tst_ExceptionSafetyPickers::namedKeyboard()
{
    RColorPicker picker;
    RColorPickerPopup& popup = picker.GetPickerPopup();
    picker.show();
    picker.showPopup();
    const QImage plain = popup.grab().toImage();
    Fuse fuse;
    connect(&picker, &RColorPicker::changedColor, this, [&fuse] { fuse(); });
    pressKey(popup, Qt::Key_Home);
    fuse.arm();
    QVERIFY(isThrownBy([&popup] { pressKey(popup, Qt::Key_Return); }));

    picker.showPopup();
    pressKey(popup, Qt::Key_Home);
    QVERIFY(popup.grab().toImage() != plain);
    press(popup, QPoint(3, 60)); // on nothing
    QCOMPARE(popup.grab().toImage(), plain);
    popup.hide();
}

void tst_ExceptionSafetyPickers::namedDialog()
{
    RColorPicker picker;
    RColorPickerPopup& popup = picker.GetPickerPopup();
    picker.show();
    const auto ask = [&] {
        picker.showPopup();
        popup.grab();
        press(popup, onMore);
    };
    throwFromNextDialog();
    QVERIFY(isThrownBy(ask));
    QVERIFY(!picker.findChild<QColorDialog*>());
    QVERIFY(!QApplication::activeModalWidget());

    int rejected = 0;
    rejectNextDialog<QColorDialog>(rejected);
    ask();
    QCOMPARE(rejected, 1);
    popup.hide();
}

void tst_ExceptionSafetyPickers::warningDialog()
{
    for (const bool withParent : {true, false}) {
        QWidget window;
        window.show();
        QWidget* parent = withParent ? &window : nullptr;
        const auto warn = [parent] {
            StandardDialogs::showWarning(parent, QStringLiteral("title"), QStringLiteral("text"));
        };
        throwFromNextDialog();
        QVERIFY(isThrownBy(warn));
        QVERIFY(!window.findChild<QMessageBox*>());
        QVERIFY(!QApplication::activeModalWidget());
        QCOMPARE(QApplication::topLevelWidgets().size(), 1);

        int rejected = 0;
        rejectNextDialog<QMessageBox>(rejected);
        warn();
        QCOMPARE(rejected, 1);
    }
}

QTEST_MAIN(tst_ExceptionSafetyPickers)
#include "tst_ExceptionSafetyPickers.moc"
