#include "ConditionListEditor.h"

#include <QCompleter>
#include <QGridLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

namespace Kestrel::Gui::Designer {

ConditionListEditor::ConditionListEditor(QWidget* parent)
    : QWidget(parent)
    , m_line(new QLineEdit(this))
    , m_add(new QPushButton(tr("&Add"), this))
    , m_list(new QListWidget(this))
    , m_remove(new QPushButton(tr("&Remove"), this))
{
    m_line->setObjectName(QStringLiteral("condition"));
    m_line->setPlaceholderText(tr("name/state"));
    m_line->setToolTip(
        tr("The name of a hint with \"ready\", \"finished\" or \"disabled\", or the name of a target with "
           "\"active\" or \"inactive\", for example \"save/active\""));
    m_add->setObjectName(QStringLiteral("add"));
    m_list->setObjectName(QStringLiteral("list"));
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_remove->setObjectName(QStringLiteral("remove"));

    auto* completer = new QCompleter(&m_candidates, this);
    completer->setFilterMode(Qt::MatchContains);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    m_line->setCompleter(completer);
    setFocusProxy(m_line);

    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_line, 0, 0);
    layout->addWidget(m_add, 0, 1);
    layout->addWidget(m_list, 1, 0);
    layout->addWidget(m_remove, 1, 1, Qt::AlignTop);

    connect(m_line, &QLineEdit::textChanged, this, &ConditionListEditor::followLine);
    connect(m_add, &QPushButton::clicked, this, &ConditionListEditor::addCondition);
    connect(m_remove, &QPushButton::clicked, this, &ConditionListEditor::removeConditions);
    connect(m_list, &QListWidget::itemSelectionChanged, this, &ConditionListEditor::followSelection);
    followLine({});
    followSelection();
}

ConditionListEditor::~ConditionListEditor() = default;

QStringList ConditionListEditor::conditions() const
{
    QStringList result;
    for (int row = 0; row < m_list->count(); ++row)
        result.append(m_list->item(row)->text());
    const QString pending = m_line->text().trimmed();
    if (isCondition(pending) && !result.contains(pending))
        result.append(pending);
    return result;
}

void ConditionListEditor::setConditions(const QStringList& conditions)
{
    m_list->clear();
    m_list->addItems(conditions);
}

void ConditionListEditor::setNames(const WalkthroughNames& names)
{
    m_names = names;
    followLine(m_line->text());
}

bool ConditionListEditor::isAcceptable() const
{
    const QString pending = m_line->text().trimmed();
    return pending.isEmpty() || isCondition(pending);
}

QPushButton* ConditionListEditor::addButton() const
{
    return m_add;
}

void ConditionListEditor::addCondition()
{
    const QStringList all = conditions();
    m_line->clear();
    setConditions(all);
}

void ConditionListEditor::removeConditions()
{
    const auto selected = m_list->selectedItems();
    qDeleteAll(selected);
}

void ConditionListEditor::followLine(const QString& text)
{
    const QString pending = text.trimmed();
    const QStringList candidates = m_names.conditions(pending);
    // A completer forgets what it shows when its model is reset.
    if (m_candidates.stringList() != candidates)
        m_candidates.setStringList(candidates);
    m_add->setEnabled(isCondition(pending));
    Q_EMIT lineChanged(text);
}

void ConditionListEditor::followSelection()
{
    m_remove->setEnabled(!m_list->selectedItems().isEmpty());
}

} // namespace Kestrel::Gui::Designer
