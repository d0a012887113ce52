#include "Habit.h"

#include "Stage.h"

#include <support/MouseEvents.h>

#include <KQt/Ui/AnypointWidgetDrag.h>
#include <KQt/Ui/SelectionFrameWidget/ImageWatermarkItem.h>
#include <KQt/Ui/SelectionFrameWidget/SelectionFrameWidget.h>
#include <KQt/Ui/SelectionFrameWidget/TextWatermarkItem.h>

#include <QGraphicsScene>

using namespace Kestrel::Gui;

namespace {

void drag(QWidget& widget, const QPoint& from, const QPoint& to)
{
    TestSupport::sendMouse(&widget, QEvent::MouseMove, from, Qt::NoButton, Qt::NoButton);
    TestSupport::sendMouse(&widget, QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton);
    TestSupport::sendMouse(&widget, QEvent::MouseMove, (from + to) / 2, Qt::NoButton, Qt::LeftButton);
    TestSupport::sendMouse(&widget, QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton);
    TestSupport::sendMouse(&widget, QEvent::MouseButtonRelease, to, Qt::LeftButton, Qt::NoButton);
}

/// Inside of a frame, and at its corner: it is moved there and back, resized there and back.
void dragFrames(Stage& stage)
{
    const auto views = stage.all<SelectionFrameWidget>();
    for (SelectionFrameWidget* const view : views) {
        view->EnableEditMode(true);
        const auto items = view->scene()->items();
        for (const QGraphicsItem* const item : items) {
            const QRect frame = view->mapFromScene(item->sceneBoundingRect()).boundingRect();
            const QPoint away(15, 10);
            drag(*view->viewport(), frame.center(), frame.center() + away);
            drag(*view->viewport(), frame.center() + away, frame.center());
            drag(*view->viewport(), frame.bottomRight(), frame.bottomRight() - away);
            drag(*view->viewport(), frame.bottomRight() - away, frame.bottomRight());
        }
        Stage::settle();
    }
}

void changeFrames(Stage& stage)
{
    const auto views = stage.all<SelectionFrameWidget>();
    for (SelectionFrameWidget* const view : views) {
        const int step = stage.round() % 4;
        view->EnableEditMode(step % 2);
        view->SetBGColor(QColor::fromHsv(step * 60, 200, 200));
        view->SetWorkRect(QRectF(10, 10, 180 - step, 130 - step));
        const auto items = view->scene()->items();
        for (QGraphicsItem* const item : items) {
            if (auto* const text = dynamic_cast<TextWatermarkItem*>(item))
                text->SetText(QStringLiteral("watermark %1").arg(step));
            if (auto* const image = dynamic_cast<ImageWatermarkItem*>(item)) {
                QPixmap pixmap(30 + step, 20);
                pixmap.fill(Qt::blue);
                image->SetImage(pixmap, QRectF(90, 20, 60, 40));
            }
        }
        view->RenderToImage();
        Stage::settle();
    }
}

void dragPanels(Stage& stage)
{
    const auto drags = stage.all<AnypointWidgetDrag>();
    for (const AnypointWidgetDrag* const filter : drags) {
        auto* const panel = qobject_cast<QWidget*>(filter->parent());
        const QPoint home = panel->pos();
        drag(*panel, QPoint(5, 5), QPoint(30, 25));
        panel->move(home);
    }
}

} // namespace

std::vector<Habit> frameHabits()
{
    return {{"drag frames", dragFrames}, {"change frames", changeFrames}, {"drag panels", dragPanels}};
}
