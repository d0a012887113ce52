#include <KQt/Ui/Accessibility/HighlightFrameInterface.h>

#include <KQt/Ui/HighlightFrame.h>

namespace Kestrel::Gui::Detail {

HighlightFrameInterface::HighlightFrameInterface(HighlightFrame* frame)
    : QAccessibleWidget(frame, QAccessible::NoRole)
{
}

QAccessible::State HighlightFrameInterface::state() const
{
    QAccessible::State state;
    state.invisible = true;
    return state;
}

QString HighlightFrameInterface::text(QAccessible::Text /*kind*/) const
{
    return {};
}

QStringList HighlightFrameInterface::actionNames() const
{
    return {};
}

int HighlightFrameInterface::childCount() const
{
    return 0;
}

} // namespace Kestrel::Gui::Detail
