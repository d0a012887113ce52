#include <KQt/Ui/Accessibility/TitleBarInterface.h>

#include <KQt/Ui/StyledDockWidgetTitlebar.h>

#include <QLabel>

namespace Kestrel::Gui::Detail {

TitleBarInterface::TitleBarInterface(StyledDockWidgetTitlebar* bar)
    : QAccessibleWidget(bar, QAccessible::TitleBar)
{
}

QString TitleBarInterface::text(QAccessible::Text kind) const
{
    if (kind == QAccessible::Name && widget()->accessibleName().isEmpty()) {
        if (const auto* const title = widget()->findChild<QLabel*>(QStringLiteral("Title")))
            return title->text();
    }
    return QAccessibleWidget::text(kind);
}

} // namespace Kestrel::Gui::Detail
