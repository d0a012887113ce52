#pragma once

#include <functional>
#include <vector>

class Chance;
class Zoo;

/// Something that a person, a program or the system does.
struct Action
{
    const char* name;
    int weight; ///< how often, compared with others
    std::function<void(Zoo&, Chance&)> run;
};

/// What a person does: mouse, keyboard, drag and drop.
std::vector<Action> inputActions();
/// What an application does: properties, models, windows, popups, dialogs.
std::vector<Action> programActions();
/// What the desktop does: style, palette, font, language, direction.
std::vector<Action> desktopActions();
