#include <KQtUtil/WidgetStyle.h>

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
    widget->update();
}

} // namespace Kestrel::Util
