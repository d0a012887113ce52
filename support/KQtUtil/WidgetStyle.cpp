#include <KQtUtil/WidgetStyle.h>

#include <QCoreApplication>
#include <QEvent>
#include <QString>
#include <QStyle>
#include <QVariant>
#include <QWidget>

namespace Kestrel::Util {

void ApplyWidgetStyle(QWidget* widget, const QString& styleName, const char* propertyName)
{
    if (!widget)
        return;
    widget->setProperty(propertyName, styleName);
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
    // Widgets that remember a size hint forget it, and layouts ask for the new one.
    QEvent change(QEvent::StyleChange);
    QCoreApplication::sendEvent(widget, &change);
}

} // namespace Kestrel::Util
