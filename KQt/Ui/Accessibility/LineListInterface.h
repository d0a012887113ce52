#pragma once

#include <QAccessibleWidget>
#include <QPersistentModelIndex>
#include <QVector>

QT_BEGIN_NAMESPACE
class QComboBox;
class QListView;
QT_END_NAMESPACE

namespace Kestrel::Gui::Detail {

/// The list of a box for line styles or widths: one item for each row. The items are made when they are asked for.
class LineListInterface : public QAccessibleWidget
{
public:
    LineListInterface(QListView* view, QComboBox* box);
    ~LineListInterface() override;

    Q_DISABLE_COPY_MOVE(LineListInterface)

    QAccessibleInterface* parent() const override;
    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;

private:
    struct Item
    {
        QPersistentModelIndex index;
        QAccessible::Id id;
    };

    QListView* view() const;
    QModelIndex indexOfRow(int row) const;
    void dropRemovedItems() const;

    QComboBox* m_box; // the view's owner, which outlives it
    mutable QVector<Item> m_items;
};

} // namespace Kestrel::Gui::Detail
