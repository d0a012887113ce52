#pragma once

#include "WalkthroughNames.h"

#include <QStringListModel>
#include <QWidget>

QT_BEGIN_NAMESPACE
class QLineEdit;
class QListWidget;
class QPushButton;
QT_END_NAMESPACE

namespace Kestrel::Gui::Designer {

/// Edits the conditions of a hint: a list, and a line to add another one, completed from the names of the form.
///
/// The children have the object names "condition", "add", "list" and "remove".
class ConditionListEditor : public QWidget
{
    Q_OBJECT

public:
    explicit ConditionListEditor(QWidget* parent = nullptr);
    ~ConditionListEditor() override;

    /// The list in its order, and after it what stands in the line and is a condition.
    QStringList conditions() const;
    void setConditions(const QStringList& conditions);

    /// The names that the line is completed with.
    void setNames(const WalkthroughNames& names);

    /// Whether the line is empty or a condition.
    bool isAcceptable() const;
    /// The button that takes the line into the list.
    QPushButton* addButton() const;

Q_SIGNALS:
    /// The text of the line changed.
    void lineChanged(const QString& text);

private:
    void addCondition();
    void removeConditions();
    void followLine(const QString& text);
    void followSelection();

    WalkthroughNames m_names;
    QStringListModel m_candidates;
    QLineEdit* m_line;
    QPushButton* m_add;
    QListWidget* m_list;
    QPushButton* m_remove;
};

} // namespace Kestrel::Gui::Designer
