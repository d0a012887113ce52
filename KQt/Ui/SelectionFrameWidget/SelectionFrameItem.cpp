#include <KQt/Ui/SelectionFrameWidget/SelectionFrameItem.h>

#include <QBrush>
#include <QPainter>
#include <QPen>

namespace Kestrel::Gui {

namespace {

// Height of the strip for the caption above the frame. Fixed on purpose: it does not follow the caption's font.
constexpr double CaptionAllowance = 19.0;

const QColor VeilColour(50, 50, 50, 127);
const QColor HoleColour(50, 50, 50, 0);

void scaleInto(QRectF& frame, const QRectF& work)
{
    if (frame.width() > work.width()) {
        const double factor = work.width() / frame.width();
        frame.setWidth(work.width());
        frame.setHeight(frame.height() * factor);
    }
    if (frame.height() > work.height()) {
        const double factor = work.height() / frame.height();
        frame.setHeight(work.height());
        frame.setWidth(frame.width() * factor);
    }
}

void moveInto(QRectF& frame, const QRectF& work)
{
    if (work.left() > frame.left())
        frame.moveLeft(work.left());
    if (work.top() > frame.top())
        frame.moveTop(work.top());
    if (frame.right() > work.right())
        frame.moveRight(work.right());
    if (frame.bottom() > work.bottom())
        frame.moveBottom(work.bottom());
}

void crop(QRectF& frame, const QRectF& work)
{
    if (work.left() > frame.left())
        frame.setLeft(work.left());
    if (work.top() > frame.top())
        frame.setTop(work.top());
    if (frame.right() > work.right())
        frame.setRight(work.right());
    if (frame.bottom() > work.bottom())
        frame.setBottom(work.bottom());
}

} // namespace

SelectionFrameItem::SelectionFrameItem(ISelectionFrameEventHandler* eventHandler, QGraphicsItem* parent)
    : SelectionFrameGraphicsItem<QGraphicsItem>(eventHandler, parent)
{
    SetKeepAspectRatio(false);
}

SelectionFrameItem::~SelectionFrameItem() = default;

bool SelectionFrameItem::IsBackgroundAlphaChannelNeeded() const
{
    return false;
}

void SelectionFrameItem::paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget)
{
    const QBrush savedBrush = painter->brush();
    const QPen savedPen = painter->pen();
    const QRectF frame = GetFrameInScene();

    QRectF veil = GetWorkRect();
    veil.moveTopLeft(veil.topLeft() - frame.topLeft());
    veil.translate(0, CaptionAllowance);
    painter->setPen(Qt::NoPen);
    painter->setBrush(VeilColour);
    painter->drawRect(Detail::paintableRect(veil));

    QRectF hole = frame;
    hole.moveTopLeft({0, CaptionAllowance});
    painter->setBrush(HoleColour);
    // Stays set on purpose: the frame's lines replace what is below them, too.
    painter->setCompositionMode(QPainter::CompositionMode_Source);
    painter->drawRect(Detail::paintableRect(hole));

    painter->setBrush(savedBrush);
    painter->setPen(savedPen);
    SelectionFrameGraphicsItem<QGraphicsItem>::paint(painter, option, widget);
}

void SelectionFrameItem::UpdateContents()
{
}

void SelectionFrameItem::SetWorkRect(const QRectF& workRect)
{
    SelectionFrameGraphicsItem<QGraphicsItem>::SetWorkRect(workRect);
}

void SelectionFrameItem::AdjustFrame(QRectF& sceneFrame)
{
    const QRectF work = GetWorkRect();
    if (keepAspectRatio()) {
        scaleInto(sceneFrame, work);
        moveInto(sceneFrame, work);
    } else {
        crop(sceneFrame, work);
    }
}

} // namespace Kestrel::Gui
