#pragma once

#include <QAccessibleWidget>

namespace Kestrel::Gui {

class HighlightFrame;

namespace Detail {

/// A frame that only decorates: nothing for assistive technology to read, find or act on.
class HighlightFrameInterface : public QAccessibleWidget
{
public:
    explicit HighlightFrameInterface(HighlightFrame* frame);

    QAccessible::State state() const override;
    QString text(QAccessible::Text kind) const override;
    QStringList actionNames() const override;
    int childCount() const override;
};

} // namespace Detail
} // namespace Kestrel::Gui
