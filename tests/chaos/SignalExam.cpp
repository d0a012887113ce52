#include "SignalExam.h"

#include "Contracts.h"
#include "Zoo.h"

#include <KQt/Ui/AdvancedColorPicker.h>
#include <KQt/Ui/AdvancedColorPickerPopup.h>
#include <KQt/Ui/AdvancedComboBox.h>
#include <KQt/Ui/ClickableLabel.h>
#include <KQt/Ui/ClippingTextLineEdit.h>
#include <KQt/Ui/ColorPickerOpacityAdapter.h>
#include <KQt/Ui/CustomSliderWithZeroTick.h>
#include <KQt/Ui/ExtendedLabel.h>
#include <KQt/Ui/FontStylePicker.h>
#include <KQt/Ui/HighlightFrame.h>
#include <KQt/Ui/PenPicker.h>
#include <KQt/Ui/PresetComboBox.h>
#include <KQt/Ui/PreviewImageLabel.h>
#include <KQt/Ui/RColorPicker.h>
#include <KQt/Ui/RColorPickerPopup.h>
#include <KQt/Ui/StyledDockWidgetTitlebar.h>
#include <KQt/Ui/TextAlignPicker.h>
#include <KQt/Ui/WalkthroughController.h>
#include <KQt/Ui/WidgetColorPickerButton.h>
#include <KQt/Ui/WidgetMouseHandler.h>
#include <KQt/Ui/WidgetResizeHandler.h>

#include <support/FocusEvents.h>
#include <support/MouseEvents.h>

#include <QAbstractButton>
#include <QApplication>
#include <QMainWindow>
#include <QResizeEvent>
#include <QSignalSpy>
#include <QToolButton>

#include <vector>

using namespace Kestrel::Gui;

namespace {

/// A signal of one component while it is asked, from the construction on.
class Promise
{
public:
    template <typename Sender, typename Signal>
    Promise(Contracts& contracts, const Sender* sender, Signal signal)
        : m_contracts(contracts)
        , m_name(QStringLiteral("%1::%2").arg(QLatin1String(sender->metaObject()->className()),
                                              QLatin1String(QMetaMethod::fromSignal(signal).name())))
        , m_spy(sender, signal)
    {
    }

    /// Notes a breach unless the signal came @p times since the last question.
    void expect(int times, const char* when)
    {
        if (m_spy.count() != times)
            m_contracts.note(
                QStringLiteral("%1 came %2 times instead of %3 when %4")
                    .arg(m_name, QString::number(m_spy.count()), QString::number(times), QLatin1String(when)));
        m_last = m_spy.isEmpty() ? QVariant() : m_spy.last().value(0);
        m_spy.clear();
    }

    /// Forgets what came since the last question.
    void clear() { m_spy.clear(); }

    /// As expect(), for a signal that must carry @p value.
    template <typename Value>
    void expectValue(const Value& value, const char* when)
    {
        expect(1, when);
        if (m_last.value<Value>() != value)
            m_contracts.note(QStringLiteral("%1 carried another value when %2").arg(m_name, QLatin1String(when)));
    }

private:
    Contracts& m_contracts;
    QString m_name;
    QSignalSpy m_spy;
    QVariant m_last;
};

void press(QWidget& widget)
{
    TestSupport::sendMouse(&widget, QEvent::MouseButtonPress, {2, 2}, Qt::LeftButton, Qt::LeftButton);
}

void release(QWidget& widget)
{
    TestSupport::sendMouse(&widget, QEvent::MouseButtonRelease, {2, 2}, Qt::LeftButton, Qt::NoButton);
}

void pressKey(QWidget& widget, int key)
{
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
}

QAbstractButton* uncheckedSwatch(const QWidget& popup)
{
    const auto buttons = popup.findChild<QWidget*>(QStringLiteral("colorButtonsFrame"))->findChildren<QToolButton*>();
    for (QToolButton* button : buttons) {
        if (!button->isChecked())
            return button;
    }
    return nullptr;
}

void ask(AdvancedColorPicker& picker, Contracts& contracts)
{
    Promise started(contracts, &picker, &AdvancedColorPicker::colorSelectionStarted);
    Promise changed(contracts, &picker, &AdvancedColorPicker::changedColor);
    Promise done(contracts, &picker, &AdvancedColorPicker::doneSelectionWithColor);
    picker.setColor(Qt::red);
    picker.setColor(QColor(1, 2, 3, 4));
    changed.expect(0, "a colour was set");
    picker.showPopup();
    started.expect(1, "the popup opened");
    picker.hide();
    done.expectValue(picker.color(), "the picker was hidden");
    changed.expect(0, "the popup opened and closed");
}

void ask(AdvancedColorPickerPopup& popup, Contracts& contracts)
{
    Promise changed(contracts, &popup, &AdvancedColorPickerPopup::changedColor);
    Promise hidden(contracts, &popup, &AdvancedColorPickerPopup::hidedWithColor);
    popup.setColor(QColor(1, 2, 3));
    popup.setColor(QColor(3, 2, 1, 77));
    changed.expect(0, "a colour was set");
    uncheckedSwatch(popup)->click();
    changed.clear();
    uncheckedSwatch(popup)->click();
    changed.expect(2, "another swatch was clicked, so that two of them changed");
    popup.hide();
    hidden.expectValue(popup.color(), "the popup was hidden");
}

void ask(AdvancedComboBox& box, Contracts& contracts)
{
    Promise wheel(contracts, &box, &AdvancedComboBox::mouseWheelEnabledChanged);
    Promise wide(contracts, &box, &AdvancedComboBox::widePopupEnabledChanged);
    Promise elide(contracts, &box, &AdvancedComboBox::elideItemTextChanged);
    for (int round = 0; round < 2; ++round) {
        box.setMouseWheelEnabled(!box.mouseWheelEnabled());
        box.setMouseWheelEnabled(box.mouseWheelEnabled());
        wheel.expect(1, "it changed, and was written again");
        box.setWidePopupEnabled(!box.widePopupEnabled());
        box.setWidePopupEnabled(box.widePopupEnabled());
        wide.expect(1, "it changed, and was written again");
        box.setElideItemText(!box.elideItemText());
        box.setElideItemText(box.elideItemText());
        elide.expect(1, "it changed, and was written again");
    }
}

template <typename Label>
void askForClicks(Label& label, Contracts& contracts)
{
    label.SetClickable(true);
    Promise clicked(contracts, &label, &Label::clicked);
    Promise clickable(contracts, &label, &Label::ClickableChanged);
    press(label);
    release(label);
    clicked.expect(1, "it was pressed and released");
    label.SetClickable(true);
    clickable.expect(0, "it was written again");
    label.SetClickable(false);
    clickable.expectValue(false, "it changed");
    press(label);
    release(label);
    clicked.expect(0, "it was pressed while not clickable");
}

void ask(ClickableLabel& label, Contracts& contracts)
{
    askForClicks(label, contracts);
}

void ask(ExtendedLabel& label, Contracts& contracts)
{
    Promise text(contracts, &label, &ExtendedLabel::OriginalTextChanged);
    label.SetOriginalText(QStringLiteral("another text"));
    text.expect(0, "a text was set");
    askForClicks(label, contracts);
}

void ask(ClippingTextLineEdit& edit, Contracts& contracts)
{
    TestSupport::sendFocus(edit, QEvent::FocusOut);
    Promise text(contracts, &edit, &ClippingTextLineEdit::OriginalTextChanged);
    edit.SetOriginalText(QStringLiteral("another text"));
    TestSupport::sendFocus(edit, QEvent::FocusIn);
    TestSupport::sendFocus(edit, QEvent::FocusOut);
    text.expect(0, "a text was set, and the focus came and went");
    TestSupport::sendFocus(edit, QEvent::FocusIn);
    edit.setText(QStringLiteral("typed"));
    text.expect(0, "a text was typed");
    TestSupport::sendFocus(edit, QEvent::FocusOut);
    text.expectValue(QStringLiteral("typed"), "the focus left what was typed");
}

void ask(ColorPickerOpacityAdapter& adapter, Contracts& contracts)
{
    Promise changed(contracts, &adapter, &ColorPickerOpacityAdapter::colorChanged);
    adapter.setColor(QColor(1, 2, 3, 40));
    changed.expectValue(adapter.color(), "a colour was set");
    auto* slider = adapter.parent()->findChild<CustomSliderWithZeroTick*>();
    slider->setValue(slider->value() == 7 ? 8 : 7);
    changed.expectValue(adapter.color(), "the slider moved");
}

void ask(FontStylePicker& picker, Contracts& contracts)
{
    Promise changed(contracts, &picker, &FontStylePicker::styleChanged);
    const auto buttons = picker.findChildren<QToolButton*>();
    for (QToolButton* button : buttons) {
        button->click();
        changed.expect(1, "a toggle was clicked");
    }
    picker.setFont(picker.apply(QFont()));
    changed.expect(0, "its own font was set");
}

void ask(HighlightFrame& frame, Contracts& contracts)
{
    QCoreApplication::processEvents();
    const QRect before = frame.geometry();
    Promise moved(contracts, &frame, &HighlightFrame::geometryChanged);
    QCoreApplication::processEvents();
    if (frame.geometry() == before)
        moved.expect(0, "nothing moved");
}

void ask(PenPicker& picker, Contracts& contracts)
{
    picker.setPen(QPen(QColor(1, 2, 3), 1));
    Promise changed(contracts, &picker, &PenPicker::penChanged);
    picker.setPen(QPen(QColor(3, 2, 1), 1));
    changed.expect(0, "the colour alone was set");
    picker.setPen(QPen(QColor(3, 2, 1), 3));
    changed.expect(1, "the width was set");
}

void ask(PresetComboBox& box, Contracts& contracts)
{
    Promise activated(contracts, &box, &PresetComboBox::ShowPopupActivated);
    box.showPopup();
    activated.expect(1, "the popup was asked for");
    press(box);
    release(box);
    activated.expect(1, "it was pressed");
}

void ask(PreviewImageLabel& tile, Contracts& contracts)
{
    tile.SetItemsEnabled(true);
    auto* star = tile.findChild<QWidget*>(QStringLiteral("starButton"));
    auto* play = tile.findChild<QWidget*>(QStringLiteral("playButton"));
    Promise starClicked(contracts, &tile, &PreviewImageLabel::starClicked);
    Promise playClicked(contracts, &tile, &PreviewImageLabel::playClicked);
    press(*star);
    release(*star);
    starClicked.expect(1, "the star was clicked");
    playClicked.expect(0, "the star was clicked");
    press(*play);
    release(*play);
    starClicked.expect(0, "the play button was clicked");
    playClicked.expect(1, "the play button was clicked");
    tile.SetItemsEnabled(false);
    press(*play);
    release(*play);
    playClicked.expect(0, "the disabled play button was clicked");
}

void ask(RColorPicker& picker, Contracts& contracts)
{
    Promise changed(contracts, &picker, &RColorPicker::changedColor);
    picker.setColor(Qt::green);
    changed.expect(0, "a colour was set");
    picker.showPopup();
    pressKey(picker.GetPickerPopup(), Qt::Key_Home);
    pressKey(picker.GetPickerPopup(), Qt::Key_Return);
    changed.expectValue(picker.DefaultColor(), "the default colour was chosen");
    if (picker.property("pressed").toBool())
        contracts.note(QStringLiteral("a colour was chosen, and the picker is still pressed"));
}

void ask(RColorPickerPopup& popup, Contracts& contracts)
{
    Promise selected(contracts, &popup, &RColorPickerPopup::selected);
    Promise closed(contracts, &popup, &RColorPickerPopup::closed);
    pressKey(popup, Qt::Key_Home);
    pressKey(popup, Qt::Key_Return);
    selected.expect(1, "an item was chosen by keyboard");
    closed.expect(1, "an item was chosen by keyboard");
}

void ask(StyledDockWidgetTitlebar& bar, Contracts& contracts)
{
    Promise close(contracts, &bar, &StyledDockWidgetTitlebar::Close);
    Promise detach(contracts, &bar, &StyledDockWidgetTitlebar::Detach);
    bar.findChild<QAbstractButton*>(QStringLiteral("Restore"))->click();
    detach.expect(1, "restore was clicked");
    close.expect(0, "restore was clicked");
    bar.findChild<QAbstractButton*>(QStringLiteral("Close"))->click();
    close.expect(1, "close was clicked");
    detach.expect(0, "close was clicked");
}

void ask(TextAlignPicker& picker, Contracts& contracts)
{
    Promise changed(contracts, &picker, &TextAlignPicker::alignmentChanged);
    picker.setAlignment(Qt::AlignRight);
    changed.expect(0, "an alignment was set");
    const auto buttons = picker.findChildren<QToolButton*>();
    for (QToolButton* button : buttons) {
        button->click();
        changed.expect(1, "a button was clicked");
    }
}

void ask(WidgetColorPickerButton& button, Contracts& contracts)
{
    Promise changed(contracts, &button, &WidgetColorPickerButton::colorChanged);
    Promise started(contracts, &button, &WidgetColorPickerButton::pickingStarted);
    button.setColor(QColor(1, 2, 3));
    button.setColor(QColor(1, 2, 3));
    changed.expect(2, "a colour was set twice");
    started.expect(0, "a colour was set");
}

void ask(WidgetMouseHandler& handler, Contracts& contracts)
{
    auto& pad = static_cast<QWidget&>(*handler.parent());
    Promise pressed(contracts, &handler, &WidgetMouseHandler::MouseButtonPressed);
    Promise released(contracts, &handler, &WidgetMouseHandler::MouseButtonReleased);
    Promise entered(contracts, &handler, &WidgetMouseHandler::MouseEntered);
    Promise left(contracts, &handler, &WidgetMouseHandler::MouseLeaved);
    press(pad);
    pressed.expect(1, "a button went down");
    released.expect(0, "a button went down");
    release(pad);
    released.expect(1, "the button came up");
    QEvent enter(QEvent::Enter);
    QCoreApplication::sendEvent(&pad, &enter);
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&pad, &leave);
    entered.expect(1, "the mouse came and left");
    left.expect(1, "the mouse came and left");
}

void ask(WidgetResizeHandler& handler, Contracts& contracts)
{
    Promise resized(contracts, &handler, &WidgetResizeHandler::Resized);
    QResizeEvent event({40, 30}, {20, 10});
    QCoreApplication::sendEvent(handler.parent(), &event);
    resized.expectValue(QSize(20, 10), "it was resized");
}

void ask(WalkthroughController& controller, Contracts& contracts)
{
    Promise disabled(contracts, &controller, &WalkthroughController::hintsDisabledForever);
    controller.setEnabled(false);
    controller.setEnabled(true);
    QCoreApplication::processEvents();
    disabled.expect(0, "the application switched hints off and on");
}

/// Puts a widget into the state in which people use it, whatever it went through.
void wake(QWidget* widget)
{
    for (; widget; widget = widget->parentWidget()) {
        widget->setEnabled(true);
        widget->show();
    }
    QCoreApplication::processEvents();
}

template <typename Component>
bool tryToAsk(QObject* object, Contracts& contracts)
{
    auto* component = qobject_cast<Component*>(object);
    if (!component)
        return false;
    ask(*component, contracts);
    return true;
}

template <typename... Components>
bool askAsOneOf(QObject* object, Contracts& contracts)
{
    return (tryToAsk<Components>(object, contracts) || ...);
}

std::vector<QPointer<QObject>> everythingIn(Zoo& zoo)
{
    std::vector<QPointer<QObject>> all;
    for (const QPointer<QObject>& exhibit : zoo.exhibits()) {
        all.push_back(exhibit);
        const auto parts = exhibit->findChildren<QObject*>();
        all.insert(all.end(), parts.begin(), parts.end());
    }
    return all;
}

} // namespace

int examineSignals(Zoo& zoo, Contracts& contracts)
{
    int asked = 0;
    for (const QPointer<QObject>& object : everythingIn(zoo)) {
        while (QWidget* popup = QApplication::activePopupWidget())
            popup->close();
        if (object)
            wake(object->isWidgetType() ? static_cast<QWidget*>(object.data())
                                        : qobject_cast<QWidget*>(object->parent()));
        if (!object)
            continue;
        asked +=
            askAsOneOf<AdvancedColorPicker, AdvancedColorPickerPopup, AdvancedComboBox, ClickableLabel, ExtendedLabel,
                       ClippingTextLineEdit, ColorPickerOpacityAdapter, FontStylePicker, HighlightFrame, PenPicker,
                       PresetComboBox, PreviewImageLabel, RColorPicker, RColorPickerPopup, StyledDockWidgetTitlebar,
                       TextAlignPicker, WidgetColorPickerButton, WidgetMouseHandler, WidgetResizeHandler>(object,
                                                                                                          contracts);
    }
    ask(zoo.controller(), contracts);
    return asked + 1;
}
