#include <KQt/Ui/SelectionFrameWidget/IFrameRenderSource.h>

namespace Kestrel::Gui {

IFrameRenderSource::~IFrameRenderSource() = default;

} // namespace Kestrel::Gui
