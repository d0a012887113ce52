#pragma once

#include <shobjidl.h>
#include <windows.h>

/// Lets the OK button of a file dialog take selected folders: with a selection in the folder view, a click on it, or
/// Return or Space, closes the dialog before the button's own handling would open the folder instead.
///
/// One table for the process holds every button that was ever hooked; what it says of a button outlives the dialog.
namespace Kestrel::Gui::OkButtonHook {

/// Hooks @p button of @p dialog, which is not owned and must live until remove(). Nothing is selected yet.
void install(HWND button, IFileDialog* dialog);

/// Hooks a button again whose window procedure somebody else has set since install().
void renew(HWND button);

/// Tells whether the folder view has a selection. Buttons that were never hooked are ignored.
void setSelected(HWND button, bool selected);

/// Gives the button its former window procedure back.
void remove(HWND button);

} // namespace Kestrel::Gui::OkButtonHook
