#include "WalkthroughNames.h"

#include "WalkthroughProperties.h"

#include <QWidget>

#include <algorithm>

namespace Kestrel::Gui::Designer {

namespace {

constexpr QLatin1Char separator('/');

QStringList hintStates()
{
    return {QStringLiteral("ready"), QStringLiteral("finished"), QStringLiteral("disabled")};
}

QStringList targetStates()
{
    return {QStringLiteral("active"), QStringLiteral("inactive")};
}

void addOnce(QStringList& names, const QString& name)
{
    if (name.isEmpty())
        return;
    const auto place = std::lower_bound(names.begin(), names.end(), name);
    if (place == names.end() || *place != name)
        names.insert(place, name);
}

void appendPaths(QStringList& paths, const QStringList& groups, const QStringList& states)
{
    for (const QString& group : groups)
        for (const QString& state : states)
            paths.append(group + separator + state);
}

} // namespace

WalkthroughNames WalkthroughNames::in(const QWidget& mainContainer)
{
    WalkthroughNames names;
    const auto add = [&names](const QWidget& widget) {
        const WalkthroughProperties properties = WalkthroughProperties::of(widget);
        names.add(properties.target, properties.hint);
    };
    add(mainContainer);
    const auto widgets = mainContainer.findChildren<QWidget*>();
    for (const QWidget* widget : widgets)
        add(*widget);
    return names;
}

void WalkthroughNames::add(const QString& target, const QString& hint)
{
    addOnce(targets, target);
    addOnce(hints, hint);
}

QStringList WalkthroughNames::conditions(const QString& typed) const
{
    QStringList paths;
    appendPaths(paths, hints, hintStates());
    appendPaths(paths, targets, targetStates());
    const QString group = typed.section(separator, 0, 0);
    if (typed.contains(separator) && !group.isEmpty() && !hints.contains(group) && !targets.contains(group))
        appendPaths(paths, {group}, hintStates() + targetStates());
    return paths;
}

bool isCondition(const QString& text)
{
    const QStringList parts = text.split(separator);
    return parts.size() == 2 && !parts.first().isEmpty() && !parts.last().isEmpty();
}

} // namespace Kestrel::Gui::Designer
