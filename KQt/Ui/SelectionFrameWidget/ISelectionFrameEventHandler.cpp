#include <KQt/Ui/SelectionFrameWidget/ISelectionFrameEventHandler.h>

namespace Kestrel::Gui {

ISelectionFrameEventHandler::~ISelectionFrameEventHandler() = default;

} // namespace Kestrel::Gui
