#pragma once

#include <KQt/Ui/Check.h>
#include <KQt/Ui/Export.h>
#include <KQt/Ui/SelectionFrameWidget/IFrameRenderSource.h>
#include <KQt/Ui/SelectionFrameWidget/ISelectionFrameEventHandler.h>
#include <KQt/Ui/SelectionFrameWidget/SelectionFrameCaption.h>
#include <KQt/Ui/SelectionFrameWidget/SelectionFrameGeometry.h>

#include <QFont>
#include <QGraphicsItem>
#include <QGraphicsPixmapItem>
#include <QGraphicsScene>
#include <QGraphicsSceneHoverEvent>
#include <QGraphicsSceneMouseEvent>
#include <QGraphicsTextItem>
#include <QGraphicsView>
#include <QPainterPath>
#include <QPointF>
#include <QRectF>
#include <QScopeGuard>
#include <QString>

#include <algorithm>
#include <memory>

namespace Kestrel::Gui {

/// Makes a graphics item a rectangular selection frame that the user moves and resizes with the mouse.
///
/// The frame is dashed and highlighted under the mouse; its corners and sides can be grabbed, and while it is moved or
/// resized a caption tells its position and size in per cent of the work rect. Moving is clamped to the work rect.
/// Resizing leaves at least 16 x 16 units; it is clamped to the scene's rect while the ratio is kept, to nothing
/// otherwise. Scene rectangles may be mirrored (negative width or height) by the program; resizing never mirrors.
///
/// The item's origin lies one caption height above the frame. Without a scene there is nothing to clamp resizing to.
///
/// @tparam T QGraphicsItem, QGraphicsPixmapItem or QGraphicsTextItem; the frame behaves the same on all of them.
template <typename T>
class SelectionFrameGraphicsItem : public T, public IFrameRenderSource
{
public:
    /// Where a point lies on the frame. Corners have even values, clockwise from the left-top one.
    enum FrameSides {
        None = -2,   ///< outside
        Inside = -1, ///< in no corner or side: a press moves the frame
        LeftTopCorner = 0,
        TopSide = 1,
        RightTopCorner = 2,
        RightSide = 3,
        RightBottomCorner = 4,
        BottomSide = 5,
        LeftBottomCorner = 6,
        LeftSide = 7
    };

    /// @param eventHandler not owned; must outlive the item. Throws std::invalid_argument where it is null.
    explicit SelectionFrameGraphicsItem(ISelectionFrameEventHandler* eventHandler, QGraphicsItem* parent = nullptr);
    ~SelectionFrameGraphicsItem() override;

    /// Stores the work rect, then places the frame; both in scene coordinates.
    void Initialize(const QRectF& workRect, const QRectF& frameInScene);

    /// Places the frame and tells the handler, also where the frame does not change.
    void SetFrameInScene(const QRectF& frame);
    void SetFrameInScene(const QPointF& topLeft, const QPointF& bottomRight);
    void SetRelativeFrameInScene(const QRectF& relative);
    QRectF GetFrameInScene() const override;

    /// Converts between scene coordinates and fractions of the work rect. An empty rect has a null relative one; an
    /// empty work rect is divided by as it stands.
    QRectF AbsoluteFromRelative(const QRectF& r) const;
    QRectF RelativeFromAbsolute(const QRectF& r) const;

    /// Width divided by height that resizing keeps; 1 at first. While the ratio is kept, setting another one re-shapes
    /// the frame at once, unless the frame has the shape of the work rect.
    void SetAspectRatio(double ratio);

    /// Whether resizing keeps the ratio; switching it on re-shapes the frame like SetAspectRatio().
    void SetKeepAspectRatio(bool keep);
    bool keepAspectRatio() const;

    /// Stored for who renders the scene, without a range check; it does not show in the item's own painting.
    void SetTransparency(int transparency);
    int GetTransparency() const override;

    /// Takes the caption's text from the translators that are installed now.
    void LanguageChanged();

    bool IsBackgroundAlphaChannelNeeded() const override;
    bool IsInfoCaptionInsideFrame() const override;
    bool IsInfoCaptionVisible() const override;

    /// The zone of the frame under a point of the scene: up to 10 units outside the frame still grab it.
    FrameSides FrameSideForMousePosition(const QPointF& scenePos) const;

    /// Corner of the frame, in the scene, next to @p place (a value of FrameSides); a null point outside 0..7.
    QPointF CornerPointForPlace(int place) const;

    /// Covers the caption above the frame and the frame.
    QRectF boundingRect() const override;
    /// The frame alone: the caption cannot be clicked.
    QPainterPath shape() const override;
    /// By the shape for every base class; a text item would answer by its document's size.
    bool contains(const QPointF& point) const override;
    /// Paints frame and caption; what lies in the frame is painted by the derived class before.
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

protected:
    void hoverEnterEvent(QGraphicsSceneHoverEvent* event) override;
    void hoverMoveEvent(QGraphicsSceneHoverEvent* event) override;
    void hoverLeaveEvent(QGraphicsSceneHoverEvent* event) override;
    void mousePressEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent* event) override;

public:
    /// Called after every placement, for a derived class to lay out its content anew.
    virtual void UpdateContents();

    /// The rect, in scene coordinates, that moving is clamped to and that relative frames are fractions of. The frame
    /// stays where it is.
    virtual void SetWorkRect(const QRectF& workRect);
    virtual QRectF GetWorkRect() const;

protected:
    /// Called before every placement, for a derived class to correct the frame that is asked for.
    virtual void AdjustFrame(QRectF& sceneFrame);

    /// The frame in item coordinates.
    QRectF GetPaintingRect() const;

    /// Expires with the item: a call of the handler, and with it a placement, may delete it.
    using LifeWatch = std::weak_ptr<const bool>;
    LifeWatch WatchLife() const { return m_life; }

private:
    QPointF startPos() const;
    QPointF stopPos() const;
    QRectF GetSelectionFrameRect() const;
    QGraphicsView* GetParentView() const;
    QRectF GetParentViewFrame() const;
    void CheckCursor();

    void setCursorForMousePosition(const QPointF& scenePos);
    void HandleHover(QGraphicsSceneHoverEvent* event);
    void HandleLeave();
    void HandleDragging(const QPointF& scenePos);
    void HandleResizing(const QPointF& scenePos);
    void RestoreAspectRatio();
    void EndInteraction();

    /// Paints the item anew after the scope, unless a call of the handler deletes it there. One that throws leaves the
    /// scope too.
    auto UpdateAtEnd()
    {
        return qScopeGuard([this, life = WatchLife()] {
            if (!life.expired())
                this->update();
        });
    }

    void PlaceFrame(QRectF sceneFrame);
    void MoveOriginTo(const QPointF& scenePos);
    Detail::FrameCorners CornersInScene() const;
    Detail::SceneEdges EdgesOfScene() const;
    const Detail::CaptionLayout& CurrentCaption() const;
    QRectF CaptionRect() const;

    QString m_captionTemplate;
    QPointF m_pressTopLeft;
    QPointF m_pressBottomRight;
    QPointF m_pressPosition;
    bool m_resizing = false;
    bool m_dragging = false;
    bool m_keepAspectRatio = true;
    FrameSides m_currentSide = None;
    double m_aspectRatio = 1.0;
    QRectF m_frameRect;
    QRectF m_workRect;
    QFont m_captionFont{QStringLiteral("Helvetica"), 8};
    bool m_hovered = false;
    int m_transparency = 255;
    ISelectionFrameEventHandler* m_eventHandler;

    mutable Detail::CaptionLayout m_captionLayout;
    std::shared_ptr<const bool> m_life = std::make_shared<const bool>(true);
};

template <typename T>
SelectionFrameGraphicsItem<T>::SelectionFrameGraphicsItem(ISelectionFrameEventHandler* eventHandler,
                                                          QGraphicsItem* parent)
    : T(parent)
    , m_eventHandler(eventHandler)
{
    if (!eventHandler)
        KQTUI_THROW_INVALID_ARGUMENT("eventHandler is NULL");
    // Exactly these: a text item comes with a flag of its own.
    this->setFlags(QGraphicsItem::ItemIsMovable | QGraphicsItem::ItemIsSelectable |
                   QGraphicsItem::ItemSendsGeometryChanges);
    this->setAcceptHoverEvents(true);
    m_captionTemplate = Detail::captionPattern();
}

template <typename T>
SelectionFrameGraphicsItem<T>::~SelectionFrameGraphicsItem() = default;

template <typename T>
void SelectionFrameGraphicsItem<T>::Initialize(const QRectF& workRect, const QRectF& frameInScene)
{
    SetWorkRect(workRect);
    SetFrameInScene(frameInScene);
}

template <typename T>
void SelectionFrameGraphicsItem<T>::SetFrameInScene(const QRectF& frame)
{
    PlaceFrame(frame);
}

template <typename T>
void SelectionFrameGraphicsItem<T>::SetFrameInScene(const QPointF& topLeft, const QPointF& bottomRight)
{
    PlaceFrame(QRectF(topLeft, bottomRight));
}

template <typename T>
void SelectionFrameGraphicsItem<T>::SetRelativeFrameInScene(const QRectF& relative)
{
    PlaceFrame(AbsoluteFromRelative(relative));
}

template <typename T>
QRectF SelectionFrameGraphicsItem<T>::GetFrameInScene() const
{
    return this->mapRectToScene(m_frameRect);
}

template <typename T>
QRectF SelectionFrameGraphicsItem<T>::AbsoluteFromRelative(const QRectF& r) const
{
    return {m_workRect.left() + r.x() * m_workRect.width(), m_workRect.top() + r.y() * m_workRect.height(),
            r.width() * m_workRect.width(), r.height() * m_workRect.height()};
}

template <typename T>
QRectF SelectionFrameGraphicsItem<T>::RelativeFromAbsolute(const QRectF& r) const
{
    if (r.isEmpty())
        return {};
    return {(r.x() - m_workRect.left()) / m_workRect.width(), (r.y() - m_workRect.top()) / m_workRect.height(),
            r.width() / m_workRect.width(), r.height() / m_workRect.height()};
}

template <typename T>
void SelectionFrameGraphicsItem<T>::SetAspectRatio(double ratio)
{
    if (qFuzzyCompare(ratio, m_aspectRatio))
        return;
    m_aspectRatio = ratio;
    if (m_keepAspectRatio)
        RestoreAspectRatio();
}

template <typename T>
void SelectionFrameGraphicsItem<T>::SetKeepAspectRatio(bool keep)
{
    if (keep == m_keepAspectRatio)
        return;
    m_keepAspectRatio = keep;
    if (m_keepAspectRatio)
        RestoreAspectRatio();
}

template <typename T>
bool SelectionFrameGraphicsItem<T>::keepAspectRatio() const
{
    return m_keepAspectRatio;
}

template <typename T>
void SelectionFrameGraphicsItem<T>::SetTransparency(int transparency)
{
    m_transparency = transparency;
}

template <typename T>
int SelectionFrameGraphicsItem<T>::GetTransparency() const
{
    return m_transparency;
}

template <typename T>
void SelectionFrameGraphicsItem<T>::LanguageChanged()
{
    this->prepareGeometryChange(); // another text is wider or narrower
    m_captionTemplate = Detail::captionPattern();
    this->update();
}

template <typename T>
bool SelectionFrameGraphicsItem<T>::IsBackgroundAlphaChannelNeeded() const
{
    return true;
}

template <typename T>
bool SelectionFrameGraphicsItem<T>::IsInfoCaptionInsideFrame() const
{
    return EdgesOfScene().top > GetFrameInScene().top() - CurrentCaption().size().height();
}

template <typename T>
bool SelectionFrameGraphicsItem<T>::IsInfoCaptionVisible() const
{
    return m_dragging || m_resizing;
}

template <typename T>
typename SelectionFrameGraphicsItem<T>::FrameSides
SelectionFrameGraphicsItem<T>::FrameSideForMousePosition(const QPointF& scenePos) const
{
    return static_cast<FrameSides>(Detail::zoneAt(scenePos, CornersInScene()));
}

template <typename T>
QPointF SelectionFrameGraphicsItem<T>::CornerPointForPlace(int place) const
{
    return Detail::cornerPoint(place, CornersInScene());
}

template <typename T>
QRectF SelectionFrameGraphicsItem<T>::boundingRect() const
{
    const QSizeF caption = CurrentCaption().size();
    return {0, 0, std::max(caption.width(), m_frameRect.width()), caption.height() + m_frameRect.height()};
}

template <typename T>
QPainterPath SelectionFrameGraphicsItem<T>::shape() const
{
    QPainterPath path;
    path.addRect(m_frameRect);
    return path;
}

template <typename T>
bool SelectionFrameGraphicsItem<T>::contains(const QPointF& point) const
{
    return shape().contains(point);
}

template <typename T>
void SelectionFrameGraphicsItem<T>::paint(QPainter* painter, const QStyleOptionGraphicsItem* /*option*/,
                                          QWidget* /*widget*/)
{
    Detail::paintFrame(*painter, m_frameRect, m_hovered);
    if (IsInfoCaptionVisible())
        Detail::paintCaption(*painter, CaptionRect(), CurrentCaption().text(), m_captionFont);
}

template <typename T>
void SelectionFrameGraphicsItem<T>::hoverEnterEvent(QGraphicsSceneHoverEvent* event)
{
    HandleHover(event);
}

template <typename T>
void SelectionFrameGraphicsItem<T>::hoverMoveEvent(QGraphicsSceneHoverEvent* event)
{
    HandleHover(event);
}

template <typename T>
void SelectionFrameGraphicsItem<T>::hoverLeaveEvent(QGraphicsSceneHoverEvent* /*event*/)
{
    HandleLeave();
}

template <typename T>
void SelectionFrameGraphicsItem<T>::mousePressEvent(QGraphicsSceneMouseEvent* event)
{
    if (!(event->buttons() & Qt::LeftButton))
        return;
    const LifeWatch life = WatchLife();
    const QPointF scenePos = event->scenePos();
    setCursorForMousePosition(scenePos);
    if (life.expired())
        return;
    const FrameSides zone = FrameSideForMousePosition(scenePos);
    // A press whose handler throws has not happened: the moves that follow have nothing to start from.
    auto undo = qScopeGuard([this, life] {
        if (!life.expired())
            EndInteraction();
    });
    if (zone == Inside) {
        m_dragging = true;
        m_resizing = false;
        m_eventHandler->SetCursor(Qt::ClosedHandCursor);
        if (life.expired())
            return;
        m_pressPosition = scenePos;
        m_pressTopLeft = startPos();
        m_pressBottomRight = stopPos();
    } else if (zone != None) {
        m_resizing = true;
        m_dragging = false;
        m_currentSide = zone;
    }
    this->update();
    m_eventHandler->InteractionStateChanged();
    undo.dismiss();
}

template <typename T>
void SelectionFrameGraphicsItem<T>::mouseMoveEvent(QGraphicsSceneMouseEvent* event)
{
    if (!(event->buttons() & Qt::LeftButton))
        return;
    const LifeWatch life = WatchLife();
    if (m_dragging)
        HandleDragging(event->scenePos());
    else if (m_resizing)
        HandleResizing(event->scenePos());
    if (!life.expired())
        this->update();
}

template <typename T>
void SelectionFrameGraphicsItem<T>::mouseReleaseEvent(QGraphicsSceneMouseEvent* event)
{
    const LifeWatch life = WatchLife();
    const auto repaint = UpdateAtEnd();
    if (event->button() != Qt::LeftButton)
        return;
    // Not the scene position: the cursor after a release is chosen by where the mouse is on the item.
    const QPointF itemPos = event->pos();
    EndInteraction();
    m_eventHandler->SetCursor(Qt::OpenHandCursor);
    if (life.expired())
        return;
    setCursorForMousePosition(itemPos);
    if (life.expired())
        return;
    m_eventHandler->InteractionStateChanged();
}

template <typename T>
void SelectionFrameGraphicsItem<T>::EndInteraction()
{
    m_dragging = false;
    m_resizing = false;
    m_currentSide = None;
}

template <typename T>
void SelectionFrameGraphicsItem<T>::UpdateContents()
{
}

template <typename T>
void SelectionFrameGraphicsItem<T>::SetWorkRect(const QRectF& workRect)
{
    // The caption, and with it the bounding rect, tells fractions of the work rect: a scene that is not told keeps
    // looking for the item where it no longer is.
    this->prepareGeometryChange();
    m_workRect = workRect;
}

template <typename T>
QRectF SelectionFrameGraphicsItem<T>::GetWorkRect() const
{
    return m_workRect;
}

template <typename T>
void SelectionFrameGraphicsItem<T>::AdjustFrame(QRectF& /*sceneFrame*/)
{
}

template <typename T>
QRectF SelectionFrameGraphicsItem<T>::GetPaintingRect() const
{
    return m_frameRect;
}

template <typename T>
QPointF SelectionFrameGraphicsItem<T>::startPos() const
{
    return this->mapToScene(m_frameRect.topLeft());
}

template <typename T>
QPointF SelectionFrameGraphicsItem<T>::stopPos() const
{
    return this->mapToScene(m_frameRect.bottomRight());
}

template <typename T>
QRectF SelectionFrameGraphicsItem<T>::GetSelectionFrameRect() const
{
    return m_frameRect;
}

template <typename T>
QGraphicsView* SelectionFrameGraphicsItem<T>::GetParentView() const
{
    const QGraphicsScene* scene = this->scene();
    if (!scene)
        KQTUI_THROW_INVALID_ARGUMENT("Scene is not specified");
    const QList<QGraphicsView*> views = scene->views();
    if (views.isEmpty())
        KQTUI_THROW_INVALID_ARGUMENT("Parent view is not specified for the scene");
    return views.first();
}

template <typename T>
QRectF SelectionFrameGraphicsItem<T>::GetParentViewFrame() const
{
    const QGraphicsView* view = GetParentView();
    if (!view)
        KQTUI_THROW_INVALID_ARGUMENT("Parent widget is NULL");
    return {QPointF(), QSizeF(view->frameRect().size())};
}

template <typename T>
void SelectionFrameGraphicsItem<T>::CheckCursor()
{
    m_eventHandler->SetCursor(m_resizing ? Qt::SizeAllCursor : Qt::ArrowCursor);
}

template <typename T>
void SelectionFrameGraphicsItem<T>::setCursorForMousePosition(const QPointF& scenePos)
{
    const Detail::FrameCorners corners = CornersInScene();
    m_eventHandler->SetCursor(m_hovered ? Detail::cursorForZone(Detail::zoneAt(scenePos, corners), corners)
                                        : Qt::ArrowCursor);
}

template <typename T>
void SelectionFrameGraphicsItem<T>::HandleHover(QGraphicsSceneHoverEvent* event)
{
    const bool inside = m_frameRect.contains(event->pos());
    if (!inside) {
        if (m_hovered)
            HandleLeave();
        return;
    }
    auto repaint = UpdateAtEnd();
    if (m_hovered)
        repaint.dismiss();
    m_hovered = true;
    setCursorForMousePosition(event->scenePos());
}

template <typename T>
void SelectionFrameGraphicsItem<T>::HandleLeave()
{
    const auto repaint = UpdateAtEnd();
    m_hovered = false;
    m_eventHandler->SetCursor(Qt::ArrowCursor);
}

template <typename T>
void SelectionFrameGraphicsItem<T>::HandleDragging(const QPointF& scenePos)
{
    const Detail::FramePress press{{m_pressTopLeft, m_pressBottomRight}, m_pressPosition};
    PlaceFrame(Detail::draggedFrame(press, scenePos, GetFrameInScene().size(), GetWorkRect()));
}

template <typename T>
void SelectionFrameGraphicsItem<T>::HandleResizing(const QPointF& scenePos)
{
    const QRectF frame = GetFrameInScene();
    const auto zone = static_cast<Detail::FrameZone>(m_currentSide);
    const QRectF resized = m_keepAspectRatio
                               ? Detail::resizedKeepingRatio(frame, zone, scenePos, m_aspectRatio, EdgesOfScene())
                               : Detail::resizedFreely(frame, zone, scenePos);
    if (resized != frame) // compared as real numbers are, with a tolerance
        PlaceFrame(resized);
}

template <typename T>
void SelectionFrameGraphicsItem<T>::RestoreAspectRatio()
{
    const QRectF frame = GetFrameInScene();
    // On purpose the work rect's shape is what counts here, not the stored ratio.
    if (Detail::hasSameShape(frame, m_workRect))
        return;
    PlaceFrame(Detail::withRatioRestored(frame, m_aspectRatio, EdgesOfScene()));
}

template <typename T>
void SelectionFrameGraphicsItem<T>::PlaceFrame(QRectF sceneFrame)
{
    this->prepareGeometryChange();
    const QSizeF caption = CurrentCaption().size();
    AdjustFrame(sceneFrame);
    MoveOriginTo({sceneFrame.left(), sceneFrame.top() - caption.height()});
    m_frameRect = this->mapRectFromScene(sceneFrame);
    UpdateContents();
    this->update();
    m_eventHandler->FrameChanged(RelativeFromAbsolute(sceneFrame));
}

template <typename T>
void SelectionFrameGraphicsItem<T>::MoveOriginTo(const QPointF& scenePos)
{
    const QGraphicsItem* parent = this->parentItem();
    this->setPos(parent ? parent->mapFromScene(scenePos) : scenePos);
}

template <typename T>
Detail::FrameCorners SelectionFrameGraphicsItem<T>::CornersInScene() const
{
    return {startPos(), stopPos()};
}

template <typename T>
Detail::SceneEdges SelectionFrameGraphicsItem<T>::EdgesOfScene() const
{
    const QGraphicsScene* scene = this->scene();
    return scene ? Detail::sceneEdges(scene->sceneRect()) : Detail::SceneEdges{};
}

template <typename T>
const Detail::CaptionLayout& SelectionFrameGraphicsItem<T>::CurrentCaption() const
{
    const QGraphicsScene* scene = this->scene();
    const QList<QGraphicsView*> views = scene ? scene->views() : QList<QGraphicsView*>();
    const QPaintDevice* device = views.isEmpty() ? nullptr : views.first()->viewport();
    const Detail::CaptionValues values = Detail::captionValues(RelativeFromAbsolute(GetFrameInScene()));
    m_captionLayout.update(m_captionTemplate, values, m_captionFont, device);
    return m_captionLayout;
}

template <typename T>
QRectF SelectionFrameGraphicsItem<T>::CaptionRect() const
{
    const QSizeF caption = CurrentCaption().size();
    QPointF topLeft = m_frameRect.topLeft();
    if (!IsInfoCaptionInsideFrame())
        topLeft.ry() -= caption.height();
    return {topLeft, caption};
}

extern template class KQTUI_EXPORT SelectionFrameGraphicsItem<QGraphicsItem>;
extern template class KQTUI_EXPORT SelectionFrameGraphicsItem<QGraphicsPixmapItem>;
extern template class KQTUI_EXPORT SelectionFrameGraphicsItem<QGraphicsTextItem>;

} // namespace Kestrel::Gui
