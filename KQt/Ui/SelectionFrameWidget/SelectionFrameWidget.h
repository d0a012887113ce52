#pragma once

#include <KQt/Ui/Export.h>

#include <QGraphicsView>
#include <QPointer>
#include <QRectF>

#include <array>
#include <memory>

QT_BEGIN_NAMESPACE
class QGraphicsRectItem;
class QWindow;
QT_END_NAMESPACE

namespace Kestrel::Gui {

/// A transparent view laid over a window, for selection frames on what the window shows.
///
/// The application puts its frames on scene(), which belongs to the widget. Everything outside the work rect is veiled.
/// In edit mode the mouse of the window below moves the frames: the window no longer sees presses, releases and double
/// clicks, but still sees moves, enter, leave and hover events. Positions in the window count as positions in the view.
///
/// Under Wayland, where applications do not place their windows, give the widget a parent in the window below: as a
/// window of its own it cannot be laid over another one.
///
/// Frames may be deleted while they tell their handler something, the widget itself may not: use deleteLater() there.
class KQTUI_EXPORT SelectionFrameWidget : public QGraphicsView
{
    Q_OBJECT

public:
    /// The scene's rect becomes the widget's rect as it is now; follow later changes of size with
    /// scene()->setSceneRect().
    /// @param window the window whose mouse is taken in edit mode; not owned, may be deleted first, must not be null
    SelectionFrameWidget(QWidget* parent, QWindow* window);
    ~SelectionFrameWidget() override;

    /// Off at first.
    void EnableEditMode(bool enable);

    /// Colour of the veil, which becomes more transparent than the black one at first: alpha 180 whatever @p color has.
    void SetBGColor(QColor color);

    /// Lays the veil around @p work, whose origin is the scene rect's. Exact at the left for a work rect that is
    /// centred horizontally: the strip there is as wide as the one at the right.
    void SetWorkRect(QRectF work);

    /// The scene as it looks now, in the widget's size, less opaque inside each frame that asks for it: a frame of
    /// transparency 255 leaves its area clear. Throws std::invalid_argument for a frame's transparency outside 0..255.
    QImage RenderToImage();

    /// Feeds the watched window's mouse to the view in edit mode; consumes presses, releases and double clicks.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // Cleared by the strips themselves: a scene that is emptied or deleted takes them along.
    using VeilStrips = std::array<QGraphicsRectItem*, 4>;
    class VeilStrip;

    void CreateVeil();

    QPointer<QGraphicsScene> m_scene;
    bool m_editMode = false;
    QRectF m_workRect;
    std::shared_ptr<VeilStrips> m_veil = std::make_shared<VeilStrips>(VeilStrips{});
};

/// Multiplies the alpha of the pixels in @p rect by @p alpha / 255, cut off to whole numbers; colours stay as
/// QImage::pixel() gives them, in premultiplied formats too. Parts of @p rect outside the image are left out.
/// @param alpha 0..255; throws std::invalid_argument outside, with the image untouched.
KQTUI_EXPORT void FillAlphaCahnnel(QImage& image, const QRect& rect, int alpha);

} // namespace Kestrel::Gui
