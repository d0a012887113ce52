#include <KQt/Ui/SelectionFrameWidget/SelectionFrameGraphicsItem.h>

namespace Kestrel::Gui {

template class SelectionFrameGraphicsItem<QGraphicsItem>;
template class SelectionFrameGraphicsItem<QGraphicsPixmapItem>;
template class SelectionFrameGraphicsItem<QGraphicsTextItem>;

} // namespace Kestrel::Gui
