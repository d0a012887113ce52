#include <KQt/Ui/TaskbarIndicator.h>

namespace Kestrel::Gui {

TaskbarIndicator::~TaskbarIndicator() = default;

} // namespace Kestrel::Gui
