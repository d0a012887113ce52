// One step of dragging a 400 x 300 frame in a 1920 x 1080 view, until the view has painted it: the library's frame and
// a plain item that paints the same two outlines and the same caption and is moved with setPos().

#include <KQt/Ui/SelectionFrameWidget/ISelectionFrameEventHandler.h>
#include <KQt/Ui/SelectionFrameWidget/SelectionFrameGraphicsItem.h>

#include <QApplication>
#include <QFontMetricsF>
#include <QGraphicsScene>
#include <QGraphicsSceneMouseEvent>
#include <QGraphicsView>
#include <QPainter>

#include <benchmark/benchmark.h>

namespace {

const QRectF SceneRect(0, 0, 1920, 1080);
const QRectF StartFrame(300, 300, 400, 300);
const QPointF PressPosition(500, 450);

class SilentHandler : public Kestrel::Gui::ISelectionFrameEventHandler
{
public:
    void InteractionStateChanged() override {}
    void FrameChanged(const QRectF& /*relativeFrame*/) override {}
    void SetCursor(Qt::CursorShape /*shape*/) override {}
};

class Frame : public Kestrel::Gui::SelectionFrameGraphicsItem<QGraphicsItem>
{
public:
    using SelectionFrameGraphicsItem::mouseMoveEvent;
    using SelectionFrameGraphicsItem::mousePressEvent;
    using SelectionFrameGraphicsItem::SelectionFrameGraphicsItem;
};

class PlainItem : public QGraphicsItem
{
public:
    PlainItem()
    {
        const QFontMetricsF metrics(m_font);
        m_captionSize = metrics.size(Qt::TextSingleLine, caption()) + QSizeF(10, 5);
    }

    QRectF boundingRect() const override
    {
        return {0, 0, StartFrame.width(), m_captionSize.height() + StartFrame.height()};
    }

    void paint(QPainter* painter, const QStyleOptionGraphicsItem* /*option*/, QWidget* /*widget*/) override
    {
        const QRectF frame(QPointF(0, m_captionSize.height()), StartFrame.size());
        painter->setPen(QPen(Qt::black, 2.0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
        painter->drawRect(frame);
        QPen dashes(Qt::white, 2.0, Qt::DashLine, Qt::SquareCap, Qt::BevelJoin);
        dashes.setCosmetic(true);
        painter->setPen(dashes);
        painter->drawRect(frame);

        const QRectF box(QPointF(0, 0), m_captionSize);
        painter->setFont(m_font);
        painter->setPen(Qt::darkBlue);
        painter->fillRect(box, Qt::white);
        painter->drawText(box, Qt::AlignHCenter | Qt::AlignVCenter | Qt::TextSingleLine, caption());
        painter->setPen(Qt::black);
        painter->drawRect(box);
    }

private:
    // The same amount of text, told in the same way.
    QString caption() const
    {
        return QStringLiteral("Left: %1% Top: %2% Width: %3% Height: %4%")
            .arg(QString::number(static_cast<int>(pos().x() / SceneRect.width() * 100)),
                 QString::number(static_cast<int>(pos().y() / SceneRect.height() * 100)),
                 QString::number(static_cast<int>(StartFrame.width() / SceneRect.width() * 100)),
                 QString::number(static_cast<int>(StartFrame.height() / SceneRect.height() * 100)));
    }

    QFont m_font{QStringLiteral("Helvetica"), 8};
    QSizeF m_captionSize;
};

/// A shown view, painted once.
class Stage
{
public:
    explicit Stage(QGraphicsItem* item)
    {
        m_scene.setSceneRect(SceneRect);
        m_scene.addItem(item);
        m_view.setFrameShape(QFrame::NoFrame);
        m_view.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        m_view.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        m_view.resize(SceneRect.size().toSize());
        m_view.show();
        paint();
    }

    /// Until everything that is scheduled has been painted.
    void paint() const { QApplication::processEvents(); }

private:
    QGraphicsScene m_scene;
    QGraphicsView m_view{&m_scene};
};

/// Back and forth over 256 units, one unit a step.
QPointF offset(int step)
{
    const int phase = step & 511;
    const double distance = phase < 256 ? phase : 511 - phase;
    return {distance, distance / 2};
}

void selectionFrame(benchmark::State& state)
{
    SilentHandler handler;
    auto* frame = new Frame(&handler);
    const Stage stage(frame);
    frame->Initialize(SceneRect, StartFrame);

    QGraphicsSceneMouseEvent press(QEvent::GraphicsSceneMousePress);
    press.setButton(Qt::LeftButton);
    press.setButtons(Qt::LeftButton);
    press.setScenePos(PressPosition);
    frame->mousePressEvent(&press);
    stage.paint();

    QGraphicsSceneMouseEvent move(QEvent::GraphicsSceneMouseMove);
    move.setButtons(Qt::LeftButton);
    int step = 0;
    for (auto _ : state) {
        move.setScenePos(PressPosition + offset(step++));
        frame->mouseMoveEvent(&move);
        stage.paint();
    }
}

void plainItem(benchmark::State& state)
{
    auto* item = new PlainItem;
    const Stage stage(item);
    item->setPos(StartFrame.topLeft());
    stage.paint();

    int step = 0;
    for (auto _ : state) {
        item->setPos(StartFrame.topLeft() + offset(step++));
        stage.paint();
    }
}

BENCHMARK(selectionFrame)->Unit(benchmark::kMicrosecond);
BENCHMARK(plainItem)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
