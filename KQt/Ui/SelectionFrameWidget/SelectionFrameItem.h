#pragma once

#include <KQt/Ui/SelectionFrameWidget/SelectionFrameGraphicsItem.h>

namespace Kestrel::Gui {

/// A bare selection frame that chooses a region: the work rect outside of it is dimmed.
///
/// The frame never leaves the work rect: a larger one is cropped, or scaled down while the ratio is kept. The ratio is
/// not kept at first.
///
/// The veil reaches beyond the item's bounding rect. A view that shows it repaints it as a whole
/// (QGraphicsView::FullViewportUpdate) where the work rect changes. Painting leaves the painter in
/// QPainter::CompositionMode_Source: who lends the painter to other items saves and restores it.
class KQTUI_EXPORT SelectionFrameItem : public SelectionFrameGraphicsItem<QGraphicsItem>
{
public:
    /// @param eventHandler not owned; must outlive the item. Throws std::invalid_argument where it is null.
    explicit SelectionFrameItem(ISelectionFrameEventHandler* eventHandler, QGraphicsItem* parent = nullptr);
    ~SelectionFrameItem() override;

    /// False: nothing of the rendered picture is cleared.
    bool IsBackgroundAlphaChannelNeeded() const override;

    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;
    void UpdateContents() override;
    void SetWorkRect(const QRectF& workRect) override;

protected:
    void AdjustFrame(QRectF& sceneFrame) override;
};

} // namespace Kestrel::Gui
