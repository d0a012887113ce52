#include "WalkthroughPropertiesDialog.h"

#include "ConditionListEditor.h"

#include <QComboBox>
#include <QCompleter>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace Kestrel::Gui::Designer {

WalkthroughPropertiesDialog::WalkthroughPropertiesDialog(const WalkthroughProperties& properties,
                                                         WalkthroughNames names, QWidget* parent)
    : QDialog(parent)
    , m_names(std::move(names))
    , m_target(new QLineEdit(properties.target, this))
    , m_hint(new QLineEdit(properties.hint, this))
    , m_alignment(new QComboBox(this))
    , m_conditions(new ConditionListEditor(this))
    , m_buttons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this))
{
    setWindowTitle(tr("Walkthrough Properties"));
    m_target->setObjectName(QStringLiteral("target"));
    m_hint->setObjectName(QStringLiteral("hint"));
    m_alignment->setObjectName(QStringLiteral("alignment"));
    m_conditions->setObjectName(QStringLiteral("conditions"));
    completeTargets();
    fillAlignments(properties.alignment);
    m_conditions->setConditions(properties.conditions);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(inputs());
    layout->addWidget(m_buttons);

    connect(m_target, &QLineEdit::textChanged, this, &WalkthroughPropertiesDialog::followNames);
    connect(m_hint, &QLineEdit::textChanged, this, &WalkthroughPropertiesDialog::followNames);
    connect(m_conditions, &ConditionListEditor::lineChanged, this, &WalkthroughPropertiesDialog::followCondition);
    connect(m_buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    followNames();
}

WalkthroughPropertiesDialog::~WalkthroughPropertiesDialog() = default;

WalkthroughProperties WalkthroughPropertiesDialog::properties() const
{
    return {m_target->text().trimmed(), m_hint->text().trimmed(), m_alignment->currentData().toString(),
            m_conditions->conditions()};
}

void WalkthroughPropertiesDialog::completeTargets()
{
    auto* completer = new QCompleter(m_names.targets, this);
    completer->setFilterMode(Qt::MatchContains);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    m_target->setCompleter(completer);
}

void WalkthroughPropertiesDialog::fillAlignments(const QString& current)
{
    m_alignment->addItem(tr("none"), QString());
    m_alignment->addItem(tr("left"), QStringLiteral("left"));
    m_alignment->addItem(tr("top"), QStringLiteral("top"));
    m_alignment->addItem(tr("right"), QStringLiteral("right"));
    m_alignment->addItem(tr("bottom"), QStringLiteral("bottom"));
    if (m_alignment->findData(current) < 0)
        m_alignment->addItem(current, current);
    m_alignment->setCurrentIndex(m_alignment->findData(current));
}

QFormLayout* WalkthroughPropertiesDialog::inputs()
{
    m_target->setToolTip(tr("On a widget: the name under which hints point at it. On a page of hints: the name of the "
                            "widget that the hint points at."));
    m_hint->setToolTip(tr("On a page of hints: the name of the hint."));
    m_alignment->setToolTip(tr("On a page of hints: where the hint stands beside its target."));
    m_conditions->setToolTip(tr("On a page of hints: what must all be so for the hint to show."));
    auto* layout = new QFormLayout;
    layout->addRow(tr("&Target name:"), m_target);
    layout->addRow(tr("&Hint name:"), m_hint);
    layout->addRow(tr("A&lignment:"), m_alignment);
    layout->addRow(tr("&Conditions:"), m_conditions);
    return layout;
}

void WalkthroughPropertiesDialog::followNames()
{
    WalkthroughNames names = m_names;
    names.add(m_target->text().trimmed(), m_hint->text().trimmed());
    m_conditions->setNames(names);
}

void WalkthroughPropertiesDialog::followCondition()
{
    QPushButton* ok = m_buttons->button(QDialogButtonBox::Ok);
    ok->setEnabled(m_conditions->isAcceptable());
    // Return takes what was typed into the list, and only then closes the dialog.
    const bool adding = m_conditions->addButton()->isEnabled() || !m_conditions->isAcceptable();
    (adding ? m_conditions->addButton() : ok)->setDefault(true);
}

} // namespace Kestrel::Gui::Designer
