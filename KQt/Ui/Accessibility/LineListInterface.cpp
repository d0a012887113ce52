#include <KQt/Ui/Accessibility/LineListInterface.h>

#include <KQt/Ui/Accessibility/LineListItemInterface.h>

#include <QComboBox>
#include <QListView>

#include <algorithm>
#include <functional>

namespace Kestrel::Gui::Detail {

LineListInterface::LineListInterface(QListView* view, QComboBox* box)
    : QAccessibleWidget(view, QAccessible::List)
    , m_box(box)
{
}

LineListInterface::~LineListInterface()
{
    for (const Item& item : qAsConst(m_items))
        QAccessible::deleteAccessibleInterface(item.id);
}

QListView* LineListInterface::view() const
{
    return static_cast<QListView*>(object());
}

QModelIndex LineListInterface::indexOfRow(int row) const
{
    return view()->model() ? view()->model()->index(row, view()->modelColumn(), view()->rootIndex()) : QModelIndex();
}

// The view's own parent is the window of the list, which is nothing that a user knows of.
QAccessibleInterface* LineListInterface::parent() const
{
    return QAccessible::queryAccessibleInterface(m_box);
}

int LineListInterface::childCount() const
{
    return view()->model() ? view()->model()->rowCount(view()->rootIndex()) : 0;
}

QAccessibleInterface* LineListInterface::child(int index) const
{
    const QModelIndex wanted = indexOfRow(index);
    if (!wanted.isValid())
        return nullptr;
    dropRemovedItems();
    for (const Item& item : qAsConst(m_items)) {
        if (item.index == wanted)
            return QAccessible::accessibleInterface(item.id);
    }
    auto* const made = new LineListItemInterface(view(), m_box, wanted);
    m_items.append({wanted, QAccessible::registerAccessibleInterface(made)});
    return made;
}

void LineListInterface::dropRemovedItems() const
{
    const auto isRemoved = [](const Item& item) { return !item.index.isValid(); };
    const auto firstRemoved = std::stable_partition(m_items.begin(), m_items.end(), std::not_fn(isRemoved));
    for (auto item = firstRemoved; item != m_items.end(); ++item)
        QAccessible::deleteAccessibleInterface(item->id);
    m_items.erase(firstRemoved, m_items.end());
}

int LineListInterface::indexOfChild(const QAccessibleInterface* child) const
{
    const auto* const item = dynamic_cast<const LineListItemInterface*>(child);
    return item && item->list() == view() ? item->row() : -1;
}

QAccessibleInterface* LineListInterface::childAt(int x, int y) const
{
    const QModelIndex index = view()->indexAt(view()->viewport()->mapFromGlobal(QPoint(x, y)));
    return index.isValid() ? child(index.row()) : nullptr;
}

QAccessibleInterface* LineListInterface::focusChild() const
{
    const QModelIndex current = view()->currentIndex();
    return view()->hasFocus() && current.isValid() ? child(current.row()) : nullptr;
}

} // namespace Kestrel::Gui::Detail
