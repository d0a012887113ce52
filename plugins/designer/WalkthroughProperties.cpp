#include "WalkthroughProperties.h"

#include <QVariant>
#include <QWidget>

#include <tuple>

namespace Kestrel::Gui::Designer {

namespace {

auto values(const WalkthroughProperties& properties)
{
    return std::tie(properties.target, properties.hint, properties.alignment, properties.conditions);
}

} // namespace

WalkthroughProperties WalkthroughProperties::of(const QWidget& widget)
{
    return {widget.property(PropertyName::target).toString(), widget.property(PropertyName::hint).toString(),
            widget.property(PropertyName::alignment).toString(),
            widget.property(PropertyName::conditions).toStringList()};
}

bool operator==(const WalkthroughProperties& left, const WalkthroughProperties& right)
{
    return values(left) == values(right);
}

bool operator!=(const WalkthroughProperties& left, const WalkthroughProperties& right)
{
    return !(left == right);
}

} // namespace Kestrel::Gui::Designer
