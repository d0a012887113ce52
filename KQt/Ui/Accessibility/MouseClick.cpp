#include <KQt/Ui/Accessibility/MouseClick.h>

#include <QCoreApplication>
#include <QMouseEvent>
#include <QPointer>
#include <QTimer>
#include <QWidget>

namespace Kestrel::Gui::Detail {

namespace {

void send(QWidget* widget, QEvent::Type type, Qt::MouseButtons held)
{
    const QPoint middle = widget->rect().center();
    QMouseEvent event(type, middle, widget->mapToGlobal(middle), Qt::LeftButton, held, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

void click(QWidget* widget)
{
    if (!widget->isEnabled() || !widget->isVisible())
        return;
    const QPointer<QWidget> watched(widget); // a slot may delete it
    send(widget, QEvent::MouseButtonPress, Qt::LeftButton);
    if (watched)
        send(widget, QEvent::MouseButtonRelease, Qt::NoButton);
}

} // namespace

void clickLater(QWidget* widget)
{
    QTimer::singleShot(0, widget, [widget] { click(widget); });
}

} // namespace Kestrel::Gui::Detail
