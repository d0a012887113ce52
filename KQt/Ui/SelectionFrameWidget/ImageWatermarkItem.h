#pragma once

#include <KQt/Ui/SelectionFrameWidget/SelectionFrameGraphicsItem.h>

QT_BEGIN_NAMESPACE
class QPixmap;
QT_END_NAMESPACE

namespace Kestrel::Gui {

/// A picture stretched into a selection frame. The ratio is kept at first.
class KQTUI_EXPORT ImageWatermarkItem : public SelectionFrameGraphicsItem<QGraphicsPixmapItem>
{
public:
    /// @param eventHandler not owned; must outlive the item. Throws std::invalid_argument where it is null.
    explicit ImageWatermarkItem(ISelectionFrameEventHandler* eventHandler, QGraphicsItem* parent = nullptr);
    ~ImageWatermarkItem() override;

    /// Shows @p image in @p frameInScene, and makes the shape of that rect the ratio that resizing keeps.
    void SetImage(const QPixmap& image, const QRectF& frameInScene);

    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;
};

} // namespace Kestrel::Gui
