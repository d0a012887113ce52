#pragma once

#include <QApplication>
#include <QWidget>

namespace TestSupport {

/// The only window of a class that there is at the moment; null where there is none or more than one.
template <typename Window>
Window* onlyWindow()
{
    Window* found = nullptr;
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget* const window : windows) {
        auto* const match = qobject_cast<Window*>(window);
        if (match && found)
            return nullptr;
        if (match)
            found = match;
    }
    return found;
}

} // namespace TestSupport
