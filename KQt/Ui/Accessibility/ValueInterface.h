#pragma once

#include <QAccessibleWidget>

namespace Kestrel::Gui::Detail {

/// A widget that shows a value by its look alone, for which there is a text.
///
/// The text is the value, and the name too unless the application or a label gave one; then it is the description where
/// the application gave none, since not every platform reads values that are no numbers.
class ValueInterface : public QAccessibleWidget
{
public:
    QString text(QAccessible::Text kind) const override;

protected:
    using QAccessibleWidget::QAccessibleWidget;

    /// Empty where there is no value.
    virtual QString valueText() const = 0;
    /// What stands for a name where there is neither a given one nor a value.
    virtual QString fallbackName() const;

private:
    QString name() const;
};

} // namespace Kestrel::Gui::Detail
