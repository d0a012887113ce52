#include <KQt/Ui/Platforms/win/TaskbarListIndicator.h>

namespace Kestrel::Gui {

std::unique_ptr<TaskbarIndicator> createTaskbarIndicator()
{
    return std::make_unique<TaskbarListIndicator>();
}

} // namespace Kestrel::Gui
