#pragma once

#include <QAccessible>
#include <QPersistentModelIndex>
#include <QPointer>

QT_BEGIN_NAMESPACE
class QComboBox;
class QListView;
QT_END_NAMESPACE

namespace Kestrel::Gui::Detail {

/// An item in the list of a box for line styles or widths: its sample in words. Pressing it chooses it.
class LineListItemInterface : public QAccessibleInterface, public QAccessibleActionInterface
{
public:
    LineListItemInterface(QListView* view, QComboBox* box, const QModelIndex& index);

    const QListView* list() const;
    /// -1 once the row is removed.
    int row() const;

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
    void choose();

    QPointer<QListView> m_view;
    QPointer<QComboBox> m_box;
    QPersistentModelIndex m_index;
};

} // namespace Kestrel::Gui::Detail
