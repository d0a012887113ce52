#pragma once

#include <QStringList>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace Kestrel::Gui::Designer {

/// What a WalkthroughController and its hints read from the dynamic properties of a widget. An empty value stands for a
/// property that is not there.
struct WalkthroughProperties
{
    QString target;         ///< "walkthroughWidget"
    QString hint;           ///< "walkthroughName"
    QString alignment;      ///< "walkthroughAlignment"
    QStringList conditions; ///< "walkthroughConditionList"

    static WalkthroughProperties of(const QWidget& widget);
};

bool operator==(const WalkthroughProperties& left, const WalkthroughProperties& right);
bool operator!=(const WalkthroughProperties& left, const WalkthroughProperties& right);

/// The names of the properties.
namespace PropertyName {
constexpr const char* target = "walkthroughWidget";
constexpr const char* hint = "walkthroughName";
constexpr const char* alignment = "walkthroughAlignment";
constexpr const char* conditions = "walkthroughConditionList";
} // namespace PropertyName

} // namespace Kestrel::Gui::Designer
