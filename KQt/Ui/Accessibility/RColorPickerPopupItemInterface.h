#pragma once

#include <QAccessible>
#include <QPointer>

namespace Kestrel::Gui {

class RColorPickerPopup;

namespace Detail {

/// A cell or a button in the popup of RColorPicker. It can have the keyboard's frame put on it and be chosen, while the
/// popup is open; a cell is selected where the picker has its colour.
class RColorPickerPopupItemInterface : public QAccessibleInterface, public QAccessibleActionInterface
{
public:
    /// @param item numbered as in RColorPickerPopupLayout.h
    RColorPickerPopupItemInterface(RColorPickerPopup* popup, int item);

    const RColorPickerPopup* popup() const;
    int item() const;

    bool isValid() const override;
    QObject* object() const override;
    QWindow* window() const override;
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int index) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text kind, const QString& text) override;
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    QStringList actionNames() const override;
    void doAction(const QString& actionName) override;
    QStringList keyBindingsForAction(const QString& actionName) const override;

private:
    bool isCell() const;
    QString name() const;
    QString description() const;

    QPointer<RColorPickerPopup> m_popup;
    int m_item;
};

} // namespace Detail
} // namespace Kestrel::Gui
