#pragma once

#include <QAccessibleWidget>

namespace Kestrel::Gui {

class WalkthroughHint;

namespace Detail {

/// A hint: a message that is read out when it is shown. Its name is what its labels say.
class WalkthroughHintInterface : public QAccessibleWidget
{
public:
    explicit WalkthroughHintInterface(WalkthroughHint* hint);

    QString text(QAccessible::Text kind) const override;
};

} // namespace Detail
} // namespace Kestrel::Gui
