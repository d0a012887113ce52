#pragma once

#include <functional>
#include <vector>

class Stage;

/// Something that users do again and again, from its start to its end: afterwards everything is as it was.
struct Habit
{
    const char* name;
    std::function<void(Stage&)> live;
};

std::vector<Habit> accessibilityHabits();
std::vector<Habit> colorHabits();
std::vector<Habit> frameHabits();
std::vector<Habit> popupHabits();
std::vector<Habit> progressHabits();
std::vector<Habit> tourHabits();
std::vector<Habit> windowHabits();
