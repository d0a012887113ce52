#include "widgets/FrameStage.h"

#include <KQt/Ui/SelectionFrameWidget/ISelectionFrameEventHandler.h>
#include <KQt/Ui/SelectionFrameWidget/SelectionFrameWidget.h>

#include <QEvent>
#include <QGraphicsEffect>
#include <QGraphicsScene>
#include <QPainter>
#include <QVBoxLayout>
#include <QWindow>

#include <utility>

namespace Gallery {

namespace {

using Kestrel::Gui::ISelectionFrameEventHandler;
using Kestrel::Gui::SelectionFrameWidget;

class StageHandler : public ISelectionFrameEventHandler
{
public:
    StageHandler(QWidget* stage, FrameStage::Listener listener)
        : m_stage(stage)
        , m_listener(std::move(listener))
    {
    }

    void InteractionStateChanged() override
    {
        if (m_listener.stateChanged)
            m_listener.stateChanged();
    }
    void FrameChanged(const QRectF& relativeFrame) override
    {
        if (m_listener.frameChanged)
            m_listener.frameChanged(relativeFrame);
    }
    void SetCursor(Qt::CursorShape shape) override { m_stage->setCursor(shape); }

private:
    QWidget* m_stage;
    FrameStage::Listener m_listener;
};

/// Paints a widget on a layer of its own: a region frame clears what it is painted on, which must not be the window.
class OwnLayer : public QGraphicsEffect
{
public:
    using QGraphicsEffect::QGraphicsEffect;

protected:
    void draw(QPainter* painter) override
    {
        QPoint offset;
        const QPixmap layer = sourcePixmap(Qt::LogicalCoordinates, &offset);
        painter->drawPixmap(offset, layer);
    }
};

} // namespace

FrameStage::FrameStage(QWidget* content, const QSize& size, QWidget* parent)
    : QWidget(parent)
    , m_noWindowYet(std::make_unique<QWindow>())
{
    setFixedSize(size);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(content);
    createFrames();
}

FrameStage::~FrameStage()
{
    delete m_frames; // before the handlers of its items
}

void FrameStage::createFrames()
{
    m_frames = new SelectionFrameWidget(this, m_noWindowYet.get());
    m_frames->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_frames->setFrameShape(QFrame::NoFrame);
    m_frames->setFocusPolicy(Qt::NoFocus);
    m_frames->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_frames->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_frames->setViewportUpdateMode(QGraphicsView::FullViewportUpdate);
    m_frames->setGraphicsEffect(new OwnLayer(m_frames));
    m_frames->setGeometry(rect());
    m_frames->scene()->setSceneRect(rect());
    m_frames->raise();
}

ISelectionFrameEventHandler* FrameStage::createHandler(Listener listener)
{
    m_handlers.push_back(std::make_unique<StageHandler>(this, std::move(listener)));
    return m_handlers.back().get();
}

void FrameStage::addFrame(QGraphicsItem* frame)
{
    m_frames->scene()->addItem(frame);
}

QRectF FrameStage::setWorkMargin(int margin)
{
    const QRectF work = rect().adjusted(margin, margin, -margin, -margin);
    m_frames->SetWorkRect(work);
    return work;
}

bool FrameStage::event(QEvent* event)
{
    if (event->type() == QEvent::Show)
        becomeWindow();
    else if (event->type() == QEvent::WinIdChange && windowHandle())
        windowHandle()->installEventFilter(m_frames); // another parent may mean another window
    return QWidget::event(event);
}

void FrameStage::becomeWindow()
{
    if (windowHandle())
        return;
    setAttribute(Qt::WA_DontCreateNativeAncestors);
    setAttribute(Qt::WA_NativeWindow);
    winId();
}

} // namespace Gallery
