#include "Habit.h"

#include "Stage.h"

#include <QAccessible>

namespace {

/// What a screen reader asks of everything it comes across.
void readAloud(QAccessibleInterface* interface)
{
    if (!interface || !interface->isValid())
        return;
    interface->text(QAccessible::Name);
    interface->text(QAccessible::Description);
    interface->text(QAccessible::Value);
    interface->state();
    interface->rect();
    for (int i = 0; i < interface->childCount(); ++i)
        readAloud(interface->child(i));
}

void readTheWindow(Stage& stage)
{
    readAloud(QAccessible::queryAccessibleInterface(&stage.window()));
    // Popups are no children of the window.
    for (QWidget* const widget : stage.all<QWidget>())
        readAloud(QAccessible::queryAccessibleInterface(widget));
}

} // namespace

std::vector<Habit> accessibilityHabits()
{
    return {{"have the window read aloud", readTheWindow}};
}
