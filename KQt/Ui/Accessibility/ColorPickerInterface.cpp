#include <KQt/Ui/Accessibility/ColorPickerInterface.h>

#include <KQt/Ui/Accessibility/AdvancedColorPickerPopupInterface.h>
#include <KQt/Ui/AdvancedColorPicker.h>
#include <KQt/Ui/RColorPicker.h>
#include <KQt/Ui/RColorPickerPopup.h>
#include <KQt/Ui/WidgetColorPickerButton.h>

namespace Kestrel::Gui::Detail {

namespace {

template <typename Picker>
QColor colorOf(const QObject* picker)
{
    return static_cast<const Picker*>(picker)->color();
}

QWidget* namedPopupOf(const QObject* picker)
{
    return &static_cast<const RColorPicker*>(picker)->GetPickerPopup();
}

QWidget* advancedPopupOf(const QObject* picker)
{
    return AdvancedColorPickerPopupInterface::popupOf(*static_cast<const AdvancedColorPicker*>(picker));
}

} // namespace

ColorPickerInterface::ColorPickerInterface(AdvancedColorPicker* picker)
    : ColorPickerInterface(picker, colorOf<AdvancedColorPicker>, advancedPopupOf)
{
}

ColorPickerInterface::ColorPickerInterface(RColorPicker* picker)
    : ColorPickerInterface(picker, colorOf<RColorPicker>, namedPopupOf)
{
}

ColorPickerInterface::ColorPickerInterface(WidgetColorPickerButton* picker)
    : ColorPickerInterface(picker, colorOf<WidgetColorPickerButton>, nullptr)
{
}

ColorPickerInterface::ColorPickerInterface(QAbstractButton* picker, ColorReader color, PopupReader popup)
    : ButtonInterface(picker, popup ? QAccessible::ButtonDropDown : QAccessible::PushButton)
    , m_color(color)
    , m_popup(popup)
{
}

QWidget* ColorPickerInterface::popup() const
{
    return m_popup ? m_popup(object()) : nullptr;
}

QAccessible::State ColorPickerInterface::state() const
{
    QAccessible::State state = ButtonInterface::state();
    state.hasPopup = m_popup != nullptr;
    return state;
}

QStringList ColorPickerInterface::actionNames() const
{
    QStringList names = ButtonInterface::actionNames();
    if (m_popup && button()->isEnabled())
        names.append(showMenuAction());
    return names;
}

int ColorPickerInterface::childCount() const
{
    return ButtonInterface::childCount() + (m_popup ? 1 : 0);
}

QAccessibleInterface* ColorPickerInterface::child(int index) const
{
    return m_popup && index == ButtonInterface::childCount() ? QAccessible::queryAccessibleInterface(popup())
                                                             : ButtonInterface::child(index);
}

int ColorPickerInterface::indexOfChild(const QAccessibleInterface* child) const
{
    return m_popup && child && child->object() == popup() ? ButtonInterface::childCount()
                                                          : ButtonInterface::indexOfChild(child);
}

QString ColorPickerInterface::valueText() const
{
    const QColor color = m_color(object());
    return color.isValid() ? color.name() : QString();
}

} // namespace Kestrel::Gui::Detail
