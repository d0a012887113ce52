#include <KQt/Ui/SelectionFrameWidget/ImageWatermarkItem.h>

#include <QPainter>
#include <QPixmap>

namespace Kestrel::Gui {

ImageWatermarkItem::ImageWatermarkItem(ISelectionFrameEventHandler* eventHandler, QGraphicsItem* parent)
    : SelectionFrameGraphicsItem<QGraphicsPixmapItem>(eventHandler, parent)
{
}

ImageWatermarkItem::~ImageWatermarkItem() = default;

void ImageWatermarkItem::SetImage(const QPixmap& image, const QRectF& frameInScene)
{
    const LifeWatch life = WatchLife();
    // A copy: the caller's rect may go with what the handler does when it hears of the placement.
    const double ratio = frameInScene.width() / frameInScene.height();
    setPixmap(image);
    SetFrameInScene(frameInScene);
    if (!life.expired())
        SetAspectRatio(ratio);
}

void ImageWatermarkItem::paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget)
{
    painter->drawPixmap(Detail::alignedRect(GetPaintingRect()), pixmap());
    SelectionFrameGraphicsItem<QGraphicsPixmapItem>::paint(painter, option, widget);
}

} // namespace Kestrel::Gui
