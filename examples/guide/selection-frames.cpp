#include <KQt/Ui/SelectionFrameWidget/ImageWatermarkItem.h>
#include <KQt/Ui/SelectionFrameWidget/ISelectionFrameEventHandler.h>
#include <KQt/Ui/SelectionFrameWidget/TextWatermarkItem.h>

#include <QApplication>
#include <QDebug>
#include <QGraphicsScene>
#include <QGraphicsView>

using namespace Kestrel::Gui;

// What the frames tell the application. It must live longer than they do.
class FrameEvents : public ISelectionFrameEventHandler
{
public:
    explicit FrameEvents(QWidget* area)
        : m_area(area)
    {
    }

    void InteractionStateChanged() override {}
    void FrameChanged(const QRectF& relativeFrame) override { qDebug() << "frame" << relativeFrame; }
    void SetCursor(Qt::CursorShape shape) override { m_area->setCursor(shape); }

private:
    QWidget* m_area;
};

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);

    const QRectF work(0, 0, 480, 270);
    QGraphicsView view;
    FrameEvents events(view.viewport());
    QGraphicsScene scene(work.adjusted(-40, -40, 40, 40));
    scene.addRect(work, Qt::NoPen, QColor(70, 110, 140));
    view.setScene(&scene);

    auto* text = new TextWatermarkItem(&events);
    scene.addItem(text);
    text->SetText(QStringLiteral("Draft"));
    text->SetFont(QFont(QStringLiteral("DejaVu Sans"), 48));
    text->SetFillColor(Qt::white);
    text->SetOutlineColor(Qt::darkRed);
    text->Initialize(work, QRectF(60, 60, 160, 60));

    auto* stamp = new ImageWatermarkItem(&events);
    scene.addItem(stamp);
    QPixmap picture(64, 64);
    picture.fill(Qt::darkYellow);
    stamp->SetWorkRect(work);
    stamp->SetImage(picture, QRectF(240, 130, 64, 64));

    view.show();
    return QApplication::exec();
}
