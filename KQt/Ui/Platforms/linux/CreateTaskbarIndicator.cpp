#include <KQt/Ui/Platforms/linux/LauncherEntryIndicator.h>

namespace Kestrel::Gui {

std::unique_ptr<TaskbarIndicator> createTaskbarIndicator()
{
    return std::make_unique<LauncherEntryIndicator>();
}

} // namespace Kestrel::Gui
