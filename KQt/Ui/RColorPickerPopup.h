#pragma once

#include <KQt/Ui/Export.h>

#include <QColor>
#include <QFrame>
#include <QRectF>
#include <QVector>

#include <memory>

namespace Kestrel::Gui {

namespace Detail {
class RColorPickerPopupKeyboard;
} // namespace Detail

/// The popup of RColorPicker: a "Default" button, 40 fixed colours in 8 columns and 5 rows, and a "More..." button that
/// opens a QColorDialog. It paints itself and has no child widgets.
///
/// Cells are 12 x 12 pixels at a distance of 16 and do not move with the popup's size; the two buttons follow its
/// width. The cell and the button under the cursor are highlighted when the popup is painted, and only then.
///
/// By keyboard, arrow keys, Home and End move a frame from item to item, Return and Space choose the framed one as a
/// press of the mouse does, and Escape closes. The frame shows after the first of these keys.
class KQTUI_EXPORT RColorPickerPopup : public QFrame
{
    Q_OBJECT
    // clazy:excludeall=qproperty-without-notify
    Q_PROPERTY(QColor ButtonNormalColor READ ButtonNormalColor WRITE SetButtonNormalColor)
    Q_PROPERTY(QColor ButtonHoverColor READ ButtonHoverColor WRITE SetButtonHoverColor)
    Q_PROPERTY(QColor ButtonNormalTextColor READ ButtonNormalTextColor WRITE SetButtonNormalTextColor)
    Q_PROPERTY(QColor ButtonHoverTextColor READ ButtonHoverTextColor WRITE SetButtonHoverTextColor)
    Q_PROPERTY(QColor BorderDialogColor READ BorderDialogColor WRITE SetBorderDialogColor)
    Q_PROPERTY(QColor BorderButtonColor READ BorderButtonColor WRITE SetBorderButtonColor)
    Q_PROPERTY(QColor BorderSmallButtonColor READ BorderSmallButtonColor WRITE SetBorderSmallButtonColor)

public:
    /// @param parent where RColorPicker is the parent, it is the colour dialog's parent too.
    explicit RColorPickerPopup(QWidget* parent = nullptr);
    ~RColorPickerPopup() override;

    /// The colour that the "Default" button chooses.
    void selectDefaultColor(QColor color);
    /// The colour that the dialog behind "More..." starts with, until another cell is hovered or chosen.
    void selectHoverColor(QColor color);

    /// Draws one text button. Leaves the painter with the text's pen.
    /// @param hover whether the button is painted as the one under the cursor; its outline then has the painter's pen.
    void paintButton(QPainter* painter, QRectF rect, QString text, bool hover);

    QColor ButtonNormalColor() const;
    void SetButtonNormalColor(QColor color);

    QColor ButtonHoverColor() const;
    void SetButtonHoverColor(QColor color);

    /// The colour of the buttons' texts, hovered or not.
    QColor ButtonNormalTextColor() const;
    void SetButtonNormalTextColor(QColor color);

    /// Kept for style sheets that set it; nothing is painted with it.
    QColor ButtonHoverTextColor() const;
    void SetButtonHoverTextColor(QColor color);

    QColor BorderDialogColor() const;
    void SetBorderDialogColor(QColor color);

    QColor BorderButtonColor() const;
    void SetBorderButtonColor(QColor color);

    /// The outline of the colour cells.
    QColor BorderSmallButtonColor() const;
    void SetBorderSmallButtonColor(QColor color);

Q_SIGNALS:
    /// A cell, the default colour, or a colour of the dialog was chosen; the popup closes afterwards.
    void selected(QColor color);
    /// Follows every hide; a press outside and the "More..." button emit it once more of their own. It comes while the
    /// popup is being hidden: a slot that deletes the popup or its picker does so with deleteLater().
    void closed();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    friend class Detail::RColorPickerPopupKeyboard;

    struct Cell
    {
        QColor color;
        QRectF rect;
    };

    void paintFrame(QPainter& painter) const;
    void paintCells(QPainter& painter);
    void paintHoveredCells(QPainter& painter, const QPointF& hoverPoint);
    void choose(const QColor& color);
    void chooseInDialog();

    QColor m_hoverColor;
    QColor m_defaultColor;
    QVector<Cell> m_cells;
    QRectF m_moreRect;
    QRectF m_defaultRect;
    QColor m_buttonNormalColor = Qt::lightGray;
    QColor m_buttonHoverColor = Qt::yellow;
    QColor m_buttonNormalTextColor = Qt::black;
    QColor m_buttonHoverTextColor = Qt::blue;
    QColor m_borderDialogColor;
    QColor m_borderButtonColor = m_buttonNormalTextColor;
    QColor m_borderSmallButtonColor = Qt::darkGray;
    std::unique_ptr<Detail::RColorPickerPopupKeyboard> m_keyboard;
};

} // namespace Kestrel::Gui
