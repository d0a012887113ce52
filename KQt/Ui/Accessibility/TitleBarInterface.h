#pragma once

#include <QAccessibleWidget>

namespace Kestrel::Gui {

class StyledDockWidgetTitlebar;

namespace Detail {

/// The title bar of a dockable panel, called by the title that it shows.
class TitleBarInterface : public QAccessibleWidget
{
public:
    explicit TitleBarInterface(StyledDockWidgetTitlebar* bar);

    QString text(QAccessible::Text kind) const override;
};

} // namespace Detail
} // namespace Kestrel::Gui
