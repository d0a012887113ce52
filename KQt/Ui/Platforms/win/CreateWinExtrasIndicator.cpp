#include <KQt/Ui/Platforms/win/WinExtrasIndicator.h>

namespace Kestrel::Gui {

std::unique_ptr<TaskbarIndicator> createTaskbarIndicator()
{
    return std::make_unique<WinExtrasIndicator>();
}

} // namespace Kestrel::Gui
