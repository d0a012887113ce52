#include <KQt/Ui/Accessibility/RColorPickerPopupInterface.h>

#include <KQt/Ui/Accessibility/RColorPickerPopupItemInterface.h>
#include <KQt/Ui/Accessibility/RColorPickerPopupKeyboard.h>
#include <KQt/Ui/RColorPickerPopup.h>
#include <KQt/Ui/RColorPickerPopupLayout.h>

namespace Kestrel::Gui::Detail {

RColorPickerPopupInterface::RColorPickerPopupInterface(RColorPickerPopup* popup)
    : QAccessibleWidget(popup, QAccessible::List)
    , m_items(popupItemCount, 0)
{
}

RColorPickerPopupInterface::~RColorPickerPopupInterface()
{
    for (const QAccessible::Id item : qAsConst(m_items)) {
        if (item != 0)
            QAccessible::deleteAccessibleInterface(item);
    }
}

RColorPickerPopup* RColorPickerPopupInterface::popup() const
{
    return static_cast<RColorPickerPopup*>(object());
}

// To Qt a window belongs to the application, and there popups are left out.
QAccessibleInterface* RColorPickerPopupInterface::parent() const
{
    QWidget* const picker = popup()->parentWidget();
    return picker ? QAccessible::queryAccessibleInterface(picker) : QAccessibleWidget::parent();
}

QString RColorPickerPopupInterface::text(QAccessible::Text kind) const
{
    QString given = QAccessibleWidget::text(kind);
    if (kind != QAccessible::Name || !given.isEmpty())
        return given;
    //: Name of the popup with the named colours, read out by screen readers.
    return RColorPickerPopup::tr("Colors");
}

int RColorPickerPopupInterface::childCount() const
{
    return popupItemCount;
}

QAccessibleInterface* RColorPickerPopupInterface::child(int index) const
{
    if (index < 0 || index >= popupItemCount)
        return nullptr;
    if (m_items.at(index) != 0)
        return QAccessible::accessibleInterface(m_items.at(index));
    auto* const made = new RColorPickerPopupItemInterface(popup(), index);
    m_items[index] = QAccessible::registerAccessibleInterface(made);
    return made;
}

int RColorPickerPopupInterface::indexOfChild(const QAccessibleInterface* child) const
{
    const auto* const item = dynamic_cast<const RColorPickerPopupItemInterface*>(child);
    return item && item->popup() == popup() ? item->item() : -1;
}

QAccessibleInterface* RColorPickerPopupInterface::childAt(int x, int y) const
{
    const QPoint position = popup()->mapFromGlobal(QPoint(x, y));
    for (int item = 0; popup()->isVisible() && item < popupItemCount; ++item) {
        if (popupItemRect(item, popup()->width()).contains(position))
            return child(item);
    }
    return nullptr;
}

QAccessibleInterface* RColorPickerPopupInterface::focusChild() const
{
    return child(RColorPickerPopupKeyboard::of(*popup()).item());
}

} // namespace Kestrel::Gui::Detail
