#include <KQt/Ui/Accessibility/LineComboBoxInterface.h>

#include <KQt/Ui/Accessibility/LineNames.h>

#include <QAbstractItemView>
#include <QComboBox>

namespace Kestrel::Gui::Detail {

LineComboBoxInterface::LineComboBoxInterface(QComboBox* box)
    : ValueInterface(box, QAccessible::ComboBox)
{
}

QComboBox* LineComboBoxInterface::box() const
{
    return static_cast<QComboBox*>(object());
}

QAccessible::State LineComboBoxInterface::state() const
{
    QAccessible::State state = ValueInterface::state();
    state.hasPopup = true;
    state.expandable = true;
    state.expanded = box()->view()->isVisible();
    state.collapsed = !state.expanded;
    return state;
}

QStringList LineComboBoxInterface::actionNames() const
{
    return QStringList{showMenuAction(), pressAction()} + ValueInterface::actionNames();
}

void LineComboBoxInterface::doAction(const QString& actionName)
{
    if (actionName != showMenuAction() && actionName != pressAction()) {
        ValueInterface::doAction(actionName);
        return;
    }
    if (box()->view()->isVisible())
        box()->hidePopup();
    else if (box()->isEnabled())
        box()->showPopup();
}

int LineComboBoxInterface::childCount() const
{
    return 1;
}

QAccessibleInterface* LineComboBoxInterface::child(int index) const
{
    return index == 0 ? QAccessible::queryAccessibleInterface(box()->view()) : nullptr;
}

int LineComboBoxInterface::indexOfChild(const QAccessibleInterface* child) const
{
    return child && child->object() == box()->view() ? 0 : -1;
}

// The list is a window of its own and does not lie on the box.
QAccessibleInterface* LineComboBoxInterface::childAt(int /*x*/, int /*y*/) const
{
    return nullptr;
}

QString LineComboBoxInterface::valueText() const
{
    return lineItemName(*box(), box()->currentIndex());
}

} // namespace Kestrel::Gui::Detail
