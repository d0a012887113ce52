#include <KQt/Ui/IDragDropEventFilterObserver.h>

namespace Kestrel::Gui {

IDragDropEventFilterObserver::IDragDropEventFilterObserver() = default;
IDragDropEventFilterObserver::IDragDropEventFilterObserver(const IDragDropEventFilterObserver& /*other*/) = default;
IDragDropEventFilterObserver&
IDragDropEventFilterObserver::operator=(const IDragDropEventFilterObserver& /*other*/) = default;
IDragDropEventFilterObserver::~IDragDropEventFilterObserver() = default;

} // namespace Kestrel::Gui
