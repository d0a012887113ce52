#include <KQt/Ui/Platforms/NativeFileDialog.h>

namespace Kestrel::Gui {

// For every system but Windows, whose dialog is in win/StandardDialogs.cpp.
NativeFileDialog nativeFileDialog()
{
    return nullptr;
}

} // namespace Kestrel::Gui
