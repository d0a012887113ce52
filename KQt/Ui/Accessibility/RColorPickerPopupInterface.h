#pragma once

#include <QAccessibleWidget>
#include <QVector>

namespace Kestrel::Gui {

class RColorPickerPopup;

namespace Detail {

/// The popup of an RColorPicker, which paints itself: a list of the "Default" button, the cells and the "More..."
/// button. The items are made when they are asked for.
class RColorPickerPopupInterface : public QAccessibleWidget
{
public:
    explicit RColorPickerPopupInterface(RColorPickerPopup* popup);
    ~RColorPickerPopupInterface() override;

    Q_DISABLE_COPY_MOVE(RColorPickerPopupInterface)

    QAccessibleInterface* parent() const override;
    QString text(QAccessible::Text kind) const override;
    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;

private:
    RColorPickerPopup* popup() const;

    mutable QVector<QAccessible::Id> m_items; // 0 for one that nobody has asked for
};

} // namespace Detail
} // namespace Kestrel::Gui
