#pragma once

#include "WalkthroughProperties.h"

#include <QMap>
#include <QPointer>
#include <QUndoCommand>
#include <QVariant>
#include <QWidget>

QT_BEGIN_NAMESPACE
class QDesignerFormWindowInterface;
class QDesignerPropertySheetExtension;
QT_END_NAMESPACE

namespace Kestrel::Gui::Designer {

/// Sets the walkthrough properties of a widget in a form, all in one step that can be undone. A property without a
/// value is removed.
class WalkthroughPropertiesCommand : public QUndoCommand
{
public:
    /// @param form owns the command, through its history.
    WalkthroughPropertiesCommand(QDesignerFormWindowInterface& form, QWidget& widget,
                                 const WalkthroughProperties& properties);
    ~WalkthroughPropertiesCommand() override;

    void redo() override;
    void undo() override;

private:
    using Values = QMap<QString, QVariant>;

    QDesignerPropertySheetExtension* sheet() const;
    Values currentValues() const;
    void apply(const Values& values);
    void set(const QString& name, const QVariant& value);
    void remove(const QString& name);
    void renewPropertyEditor();

    QDesignerFormWindowInterface& m_form;
    QPointer<QWidget> m_widget;
    Values m_before;
    Values m_after;
};

} // namespace Kestrel::Gui::Designer
