#include "Habit.h"

#include "Stage.h"

#include <support/ModalDialog.h>
#include <support/MouseEvents.h>

#include <KQt/Ui/AdvancedColorPicker.h>
#include <KQt/Ui/RColorPicker.h>
#include <KQt/Ui/StandardDialogs.h>

#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDialog>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>
#include <QTimer>

using namespace Kestrel::Gui;

namespace {

void closePopups()
{
    while (QWidget* const popup = QApplication::activePopupWidget())
        popup->close();
}

void clickAt(QWidget& widget, const QPoint& position)
{
    TestSupport::sendMouse(&widget, QEvent::MouseButtonPress, position, Qt::LeftButton, Qt::LeftButton);
    TestSupport::sendMouse(&widget, QEvent::MouseButtonRelease, position, Qt::LeftButton, Qt::NoButton);
}

void chooseInBoxes(Stage& stage)
{
    const auto boxes = stage.all<QComboBox>();
    for (QComboBox* const box : boxes) {
        box->showPopup();
        Stage::settle();
        QTest::keyClick(box->view(), Qt::Key_Down);
        QTest::keyClick(box->view(), stage.round() % 2 ? Qt::Key_Return : Qt::Key_Escape);
        closePopups();
        box->setCurrentIndex(stage.round() % qMax(1, box->count()));
        Stage::settle();
    }
}

void openAdvancedPopups(Stage& stage)
{
    const auto pickers = stage.all<AdvancedColorPicker>();
    for (AdvancedColorPicker* const picker : pickers) {
        picker->showPopup();
        Stage::settle();
        QWidget* const popup = QApplication::activePopupWidget();
        if (!stage.await([popup] { return popup != nullptr; }, "the popup of an AdvancedColorPicker opens"))
            continue;
        const auto buttons = popup->findChildren<QAbstractButton*>();
        if (!buttons.isEmpty())
            clickAt(*buttons.at(stage.round() % qMin(4, buttons.size())), QPoint(3, 3));
        const auto sliders = popup->findChildren<QAbstractSlider*>();
        for (QAbstractSlider* const slider : sliders)
            slider->setValue(stage.round() % 2 ? slider->minimum() : slider->maximum());
        Stage::settle();
        closePopups();
        Stage::settle();
    }
}

void openNamedPopups(Stage& stage)
{
    const auto pickers = stage.all<RColorPicker>();
    for (RColorPicker* const picker : pickers) {
        picker->showPopup();
        Stage::settle();
        if (QWidget* const popup = QApplication::activePopupWidget())
            clickAt(*popup, popup->rect().center() + QPoint(stage.round() % 5 * 12, 0));
        closePopups();
        Stage::settle();
    }
}

void askForMenus(Stage& stage)
{
    QWidgetList widgets;
    for (QWidget* const widget : stage.all<QLineEdit>())
        widgets << widget;
    for (QWidget* const widget : stage.all<QPlainTextEdit>())
        widgets << widget;
    const QWidgetList all = widgets;
    for (QWidget* const widget : all) {
        // A spin box waits for its menu.
        QTimer::singleShot(0, &stage.window(), closePopups);
        QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(2, 2), widget->mapToGlobal(QPoint(2, 2)));
        QCoreApplication::sendEvent(widget, &event);
        Stage::settle();
        closePopups();
        Stage::settle();
    }
}

void openDialogs(Stage& stage)
{
    using Reject = TestSupport::ModalDialog<QDialog>;
    {
        const Reject user([](QDialog& dialog) { dialog.reject(); });
        StandardDialogs::showWarning(&stage.window(), QStringLiteral("title"), QStringLiteral("text"));
    }
    const Reject user([](QDialog& dialog) { dialog.reject(); });
    if (stage.round() % 2)
        StandardDialogs::getOpen(&stage.window());
    else
        StandardDialogs::getSaveFileName(&stage.window());
}

} // namespace

std::vector<Habit> popupHabits()
{
    return {
        {"choose in combo boxes", chooseInBoxes},
        {"open the palettes of advanced pickers", openAdvancedPopups},
        {"open the palettes of named colours", openNamedPopups},
        {"ask for menus", askForMenus},
        {"open dialogs", openDialogs},
    };
}
