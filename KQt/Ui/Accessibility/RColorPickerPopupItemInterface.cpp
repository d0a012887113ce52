#include <KQt/Ui/Accessibility/RColorPickerPopupItemInterface.h>

#include <KQt/Ui/Accessibility/RColorPickerPopupKeyboard.h>
#include <KQt/Ui/NamedPalette.h>
#include <KQt/Ui/RColorPicker.h>
#include <KQt/Ui/RColorPickerPopup.h>
#include <KQt/Ui/RColorPickerPopupLayout.h>

#include <QTimer>

namespace Kestrel::Gui::Detail {

namespace {

// As the popup paints them, where the notes for their translators are.
constexpr const char* defaultText = "Default";
constexpr const char* moreText = "More...";

const NamedColor& cellColor(int item)
{
    return namedPalette.at(static_cast<std::size_t>(item - popupFirstCellItem));
}

const RColorPicker* pickerOf(const RColorPickerPopup& popup)
{
    return qobject_cast<const RColorPicker*>(popup.parentWidget());
}

} // namespace

RColorPickerPopupItemInterface::RColorPickerPopupItemInterface(RColorPickerPopup* popup, int item)
    : m_popup(popup)
    , m_item(item)
{
}

const RColorPickerPopup* RColorPickerPopupItemInterface::popup() const
{
    return m_popup;
}

int RColorPickerPopupItemInterface::item() const
{
    return m_item;
}

bool RColorPickerPopupItemInterface::isCell() const
{
    return m_item != popupDefaultItem && m_item != popupMoreItem;
}

bool RColorPickerPopupItemInterface::isValid() const
{
    return !m_popup.isNull();
}

// A painted cell is no object.
QObject* RColorPickerPopupItemInterface::object() const
{
    return nullptr;
}

QWindow* RColorPickerPopupItemInterface::window() const
{
    return m_popup ? m_popup->windowHandle() : nullptr;
}

QAccessibleInterface* RColorPickerPopupItemInterface::parent() const
{
    return m_popup ? QAccessible::queryAccessibleInterface(m_popup) : nullptr;
}

QAccessibleInterface* RColorPickerPopupItemInterface::child(int /*index*/) const
{
    return nullptr;
}

int RColorPickerPopupItemInterface::childCount() const
{
    return 0;
}

int RColorPickerPopupItemInterface::indexOfChild(const QAccessibleInterface* /*child*/) const
{
    return -1;
}

QAccessibleInterface* RColorPickerPopupItemInterface::childAt(int /*x*/, int /*y*/) const
{
    return nullptr;
}

QString RColorPickerPopupItemInterface::text(QAccessible::Text kind) const
{
    if (kind == QAccessible::Name)
        return name();
    return kind == QAccessible::Description ? description() : QString();
}

QString RColorPickerPopupItemInterface::name() const
{
    if (m_item == popupDefaultItem)
        return RColorPickerPopup::tr(defaultText);
    if (m_item == popupMoreItem)
        return RColorPickerPopup::tr(moreText);
    // One of the names ends in a space.
    return RColorPickerPopup::tr(cellColor(m_item).name).trimmed();
}

QString RColorPickerPopupItemInterface::description() const
{
    if (isCell())
        return cellColor(m_item).color().name();
    const RColorPicker* const picker = m_popup ? pickerOf(*m_popup) : nullptr;
    return m_item == popupDefaultItem && picker ? picker->DefaultColor().name() : QString();
}

void RColorPickerPopupItemInterface::setText(QAccessible::Text /*kind*/, const QString& /*text*/)
{
}

QRect RColorPickerPopupItemInterface::rect() const
{
    if (!m_popup || !m_popup->isVisible())
        return {};
    const QRect place = popupItemRect(m_item, m_popup->width());
    return {m_popup->mapToGlobal(place.topLeft()), place.size()};
}

QAccessible::Role RColorPickerPopupItemInterface::role() const
{
    return isCell() ? QAccessible::ListItem : QAccessible::PushButton;
}

QAccessible::State RColorPickerPopupItemInterface::state() const
{
    QAccessible::State state;
    state.invalid = !isValid();
    if (state.invalid)
        return state;
    const RColorPicker* const picker = pickerOf(*m_popup);
    state.focusable = true;
    state.focused = RColorPickerPopupKeyboard::of(*m_popup).item() == m_item;
    state.invisible = !m_popup->isVisible();
    state.disabled = !m_popup->isEnabled();
    state.selectable = isCell();
    state.selected = isCell() && picker && picker->color().rgba() == cellColor(m_item).color().rgba();
    return state;
}

void* RColorPickerPopupItemInterface::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
}

QStringList RColorPickerPopupItemInterface::actionNames() const
{
    return m_popup && m_popup->isEnabled() ? QStringList{pressAction(), setFocusAction()} : QStringList();
}

void RColorPickerPopupItemInterface::doAction(const QString& actionName)
{
    if (!actionNames().contains(actionName) || !m_popup->isVisible())
        return;
    RColorPickerPopupKeyboard* const keyboard = &RColorPickerPopupKeyboard::of(*m_popup);
    if (actionName == setFocusAction())
        keyboard->moveTo(m_item);
    else // Not at once: "More..." has an event loop of its own, and the caller waits for an answer.
        QTimer::singleShot(0, keyboard, [keyboard, item = m_item] { keyboard->choose(item); });
}

QStringList RColorPickerPopupItemInterface::keyBindingsForAction(const QString& /*actionName*/) const
{
    return {};
}

} // namespace Kestrel::Gui::Detail
