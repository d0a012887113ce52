#pragma once

#include <KQt/Ui/SelectionFrameWidget/SelectionFrameGraphicsItem.h>

#include <QColor>

namespace Kestrel::Gui {

/// A text laid into a selection frame, filled and outlined in two colours. The ratio is not kept at first.
///
/// Fonts are meant for a work rect whose longer side is 640 units and scale with it. A new text makes the frame grow
/// when it is placed next, up to the size of the work rect; afterwards the text is wrapped and clipped to the frame.
class KQTUI_EXPORT TextWatermarkItem : public SelectionFrameGraphicsItem<QGraphicsTextItem>
{
public:
    /// @param eventHandler not owned; must outlive the item. Throws std::invalid_argument where it is null.
    explicit TextWatermarkItem(ISelectionFrameEventHandler* eventHandler, QGraphicsItem* parent = nullptr);
    ~TextWatermarkItem() override;

    QString GetText() const;
    void SetText(const QString& text);

    QColor GetFillColor() const;
    void SetFillColor(const QColor& color);

    QColor GetOutlineColor() const;
    void SetOutlineColor(const QColor& color);

    /// The font as it was set, not the one scaled to the work rect.
    QFont GetFont() const;
    void SetFont(const QFont& font);

    /// False: nothing of the rendered picture is cleared.
    bool IsBackgroundAlphaChannelNeeded() const override;

    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;
    void UpdateContents() override;
    /// Scales the font, too.
    void SetWorkRect(const QRectF& workRect) override;

protected:
    void AdjustFrame(QRectF& sceneFrame) override;

private:
    void UpdateFont();
    void PaintText(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget);

    QString m_text;
    QColor m_fillColor = Qt::darkBlue;
    QColor m_outlineColor = Qt::red;
    QFont m_font;
    bool m_textChanged = false;
};

} // namespace Kestrel::Gui
