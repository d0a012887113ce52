#include <KQt/Ui/Accessibility/LineListItemInterface.h>

#include <KQt/Ui/Accessibility/LineNames.h>

#include <QComboBox>
#include <QListView>

namespace Kestrel::Gui::Detail {

LineListItemInterface::LineListItemInterface(QListView* view, QComboBox* box, const QModelIndex& index)
    : m_view(view)
    , m_box(box)
    , m_index(index)
{
}

const QListView* LineListItemInterface::list() const
{
    return m_view;
}

int LineListItemInterface::row() const
{
    return m_index.row();
}

bool LineListItemInterface::isValid() const
{
    return m_view && m_box && m_index.isValid();
}

// A row is no object.
QObject* LineListItemInterface::object() const
{
    return nullptr;
}

QWindow* LineListItemInterface::window() const
{
    return m_view ? m_view->window()->windowHandle() : nullptr;
}

QAccessibleInterface* LineListItemInterface::parent() const
{
    return m_view ? QAccessible::queryAccessibleInterface(m_view) : nullptr;
}

QAccessibleInterface* LineListItemInterface::child(int /*index*/) const
{
    return nullptr;
}

int LineListItemInterface::childCount() const
{
    return 0;
}

int LineListItemInterface::indexOfChild(const QAccessibleInterface* /*child*/) const
{
    return -1;
}

QAccessibleInterface* LineListItemInterface::childAt(int /*x*/, int /*y*/) const
{
    return nullptr;
}

QString LineListItemInterface::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Name && isValid() ? lineItemName(*m_box, m_index.row()) : QString();
}

void LineListItemInterface::setText(QAccessible::Text /*kind*/, const QString& /*text*/)
{
}

QRect LineListItemInterface::rect() const
{
    if (!isValid() || !m_view->isVisible())
        return {};
    const QRect visual = m_view->visualRect(m_index);
    return {m_view->viewport()->mapToGlobal(visual.topLeft()), visual.size()};
}

QAccessible::Role LineListItemInterface::role() const
{
    return QAccessible::ListItem;
}

QAccessible::State LineListItemInterface::state() const
{
    QAccessible::State state;
    state.invalid = !isValid();
    if (state.invalid)
        return state;
    state.focusable = true;
    state.selectable = true;
    state.selected = m_box->currentIndex() == m_index.row();
    state.invisible = !m_view->isVisible();
    state.focused = !state.invisible && m_view->currentIndex() == m_index;
    state.offscreen = state.invisible || !m_view->viewport()->rect().intersects(m_view->visualRect(m_index));
    return state;
}

void* LineListItemInterface::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
}

QStringList LineListItemInterface::actionNames() const
{
    return isValid() ? QStringList{pressAction(), setFocusAction()} : QStringList();
}

void LineListItemInterface::doAction(const QString& actionName)
{
    if (!actionNames().contains(actionName))
        return;
    if (actionName == pressAction())
        choose();
    else
        m_view->setCurrentIndex(m_index);
}

/// What a click on the item does: the box takes it, closes, and says so.
void LineListItemInterface::choose()
{
    const int row = m_index.row();
    const QPointer<QComboBox> box = m_box; // a slot may delete it, and the item with it
    box->hidePopup();
    box->setCurrentIndex(row);
    if (box)
        Q_EMIT box->textActivated(box->itemText(row));
    if (box)
        Q_EMIT box->activated(row);
}

QStringList LineListItemInterface::keyBindingsForAction(const QString& /*actionName*/) const
{
    return {};
}

} // namespace Kestrel::Gui::Detail
