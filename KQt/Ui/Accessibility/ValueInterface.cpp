#include <KQt/Ui/Accessibility/ValueInterface.h>

namespace Kestrel::Gui::Detail {

QString ValueInterface::text(QAccessible::Text kind) const
{
    if (kind == QAccessible::Name)
        return name();
    if (kind == QAccessible::Value)
        return valueText();
    if (kind != QAccessible::Description)
        return QAccessibleWidget::text(kind);

    const QString given = QAccessibleWidget::text(QAccessible::Description);
    const QString description = given.isEmpty() ? valueText() : given;
    return description == name() ? QString() : description;
}

QString ValueInterface::fallbackName() const
{
    return {};
}

QString ValueInterface::name() const
{
    QString given = QAccessibleWidget::text(QAccessible::Name);
    if (!given.isEmpty())
        return given;
    const QString value = valueText();
    return value.isEmpty() ? fallbackName() : value;
}

} // namespace Kestrel::Gui::Detail
