#pragma once

#include "WalkthroughProperties.h"

#include <QMap>
#include <QVariant>

QT_BEGIN_NAMESPACE
class QDesignerDynamicPropertySheetExtension;
class QDesignerFormEditorInterface;
class QDesignerPropertySheetExtension;
QT_END_NAMESPACE

namespace Kestrel::Gui::Designer {

/// The walkthrough properties of a widget in a form, as the form editor keeps them for saving.
class FormProperties
{
public:
    /// Values by property name, in the form editor's own types; a property that is not there has none.
    using Values = QMap<QString, QVariant>;

    /// Both must live as long as this object.
    FormProperties(const QDesignerFormEditorInterface& editor, QWidget& widget);

    Values values() const;
    /// Adds, changes and removes properties so that exactly these are there.
    void setValues(const Values& values);

    /// The values as a walkthrough reads them.
    WalkthroughProperties read() const;

private:
    bool has(const QString& name) const;
    void set(const QString& name, const QVariant& value);
    void remove(const QString& name);

    QWidget& m_widget;
    QDesignerPropertySheetExtension* m_sheet;
    QDesignerDynamicPropertySheetExtension* m_dynamic;
};

} // namespace Kestrel::Gui::Designer
