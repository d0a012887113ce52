#pragma once

#include "WalkthroughNames.h"
#include "WalkthroughProperties.h"

#include <QDialog>

QT_BEGIN_NAMESPACE
class QComboBox;
class QDialogButtonBox;
class QFormLayout;
class QLineEdit;
QT_END_NAMESPACE

namespace Kestrel::Gui::Designer {

class ConditionListEditor;

/// Edits what a walkthrough reads from one widget.
///
/// The inputs have the object names "target", "hint", "alignment" and "conditions". A value that the dialog does not
/// offer, such as an alignment of another kind, stays as it is until another one is chosen.
class WalkthroughPropertiesDialog : public QDialog
{
    Q_OBJECT

public:
    /// @param names are those of the form, for completion.
    WalkthroughPropertiesDialog(const WalkthroughProperties& properties, WalkthroughNames names,
                                QWidget* parent = nullptr);
    ~WalkthroughPropertiesDialog() override;

    /// As the inputs have it, names without spaces around them.
    WalkthroughProperties properties() const;

private:
    void completeTargets();
    void fillAlignments(const QString& current);
    QFormLayout* inputs();
    void followNames();
    void followCondition();

    WalkthroughNames m_names;
    QLineEdit* m_target;
    QLineEdit* m_hint;
    QComboBox* m_alignment;
    ConditionListEditor* m_conditions;
    QDialogButtonBox* m_buttons;
};

} // namespace Kestrel::Gui::Designer
