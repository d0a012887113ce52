#include <KQt/Ui/Accessibility/Announcements.h>

#include <QVariant>
#include <QWidget>

namespace Kestrel::Gui::Detail {

namespace {

void send(QWidget* widget, QAccessible::Event type)
{
    QAccessibleEvent event(widget, type);
    QAccessible::updateAccessibility(&event);
}

} // namespace

void sendValueChange(QWidget* widget)
{
    if (!widget->isVisible())
        return;
    const QAccessibleInterface* const shown = QAccessible::queryAccessibleInterface(widget);
    if (!shown)
        return;
    QAccessibleValueChangeEvent event(widget, shown->text(QAccessible::Value));
    QAccessible::updateAccessibility(&event);
    // The value is also the name, or the description where the application gave a name.
    send(widget, QAccessible::NameChanged);
    send(widget, QAccessible::DescriptionChanged);
}

void sendNameChange(QWidget* widget)
{
    if (widget->isVisible())
        send(widget, QAccessible::NameChanged);
}

void sendAlert(QWidget* widget)
{
    if (widget->isVisible())
        send(widget, QAccessible::Alert);
}

} // namespace Kestrel::Gui::Detail
