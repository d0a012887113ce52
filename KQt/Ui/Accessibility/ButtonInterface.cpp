#include <KQt/Ui/Accessibility/ButtonInterface.h>

#include <QAbstractButton>

namespace Kestrel::Gui::Detail {

ButtonInterface::ButtonInterface(QAbstractButton* button, QAccessible::Role role)
    : ValueInterface(button, role)
{
}

QAbstractButton* ButtonInterface::button() const
{
    return static_cast<QAbstractButton*>(object());
}

QAccessible::State ButtonInterface::state() const
{
    QAccessible::State state = ValueInterface::state();
    state.pressed = button()->isDown();
    state.checkable = button()->isCheckable();
    state.checked = button()->isChecked();
    return state;
}

QStringList ButtonInterface::actionNames() const
{
    QStringList names;
    if (button()->isEnabled())
        names.append(pressAction());
    return names + ValueInterface::actionNames();
}

void ButtonInterface::doAction(const QString& actionName)
{
    if (!actionNames().contains(actionName))
        return;
    if (actionName == setFocusAction())
        ValueInterface::doAction(actionName);
    else
        press();
}

void ButtonInterface::press()
{
    QMetaObject::invokeMethod(button(), &QAbstractButton::click, Qt::QueuedConnection);
}

QString ButtonInterface::valueText() const
{
    return {};
}

QString ButtonInterface::fallbackName() const
{
    const QString text = button()->text().remove(QLatin1Char('&'));
    return text.isEmpty() ? button()->toolTip() : text;
}

} // namespace Kestrel::Gui::Detail
