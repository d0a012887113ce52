#include "Habit.h"

#include "Stage.h"

#include <KQt/Ui/HighlightFrame.h>
#include <KQt/Ui/TaskbarProgress.h>
#include <KQt/Ui/WidgetRenderer.h>

#include <memory>

using namespace Kestrel::Gui;

namespace {

void showProgress(Stage& stage)
{
    TaskbarProgress progress(stage.window().windowHandle());
    for (const double fraction : {0.0, 0.5, 1.0}) {
        progress.SetProgress(fraction);
        Stage::settle();
    }
    switch (stage.round() % 4) {
    case 0:
        progress.SetIndeterminate();
        break;
    case 1:
        progress.Pause();
        break;
    case 2:
        progress.Stop();
        break;
    default:
        progress.Reset();
        break;
    }
    Stage::settle();
}

/// What the renderer draws together moves, goes and comes back.
void moveRenderedWidgets(Stage& stage)
{
    for (WidgetRenderer* const renderer : stage.all<WidgetRenderer>()) {
        auto* const area = qobject_cast<QWidget*>(renderer->parent());
        renderer->ChangeRendererFrame(QRect(area->mapToGlobal(QPoint()), area->size()));
        const auto parts = area->findChildren<QWidget*>();
        for (QWidget* const part : parts) {
            const QPoint home = part->pos();
            part->move(home + QPoint(3, 2));
            Stage::settle();
            part->hide();
            Stage::settle();
            part->show();
            part->move(home);
            Stage::settle();
        }
        area->grab();
    }
}

void renderForAWhile(Stage& stage)
{
    for (const WidgetRenderer* const renderer : stage.all<WidgetRenderer>()) {
        auto* const area = qobject_cast<QWidget*>(renderer->parent());
        const auto passing = std::make_unique<WidgetRenderer>(area, nullptr);
        passing->ChangeRendererFrame(QRect(area->mapToGlobal(QPoint()), area->size()));
        area->resize(area->size() + QSize(5, 5));
        Stage::settle();
        area->resize(area->size() - QSize(5, 5));
        Stage::settle();
    }
}

void highlightWidgets(Stage& stage)
{
    const auto widgets = stage.window().centralWidget()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    QSet<QWidget*> some;
    for (int i = stage.round() % 3; i < widgets.size(); i += 3) {
        if (!widgets.at(i)->isWindow())
            some.insert(widgets.at(i));
    }
    const auto frame = std::make_unique<HighlightFrame>(some);
    Stage::settle();
}

} // namespace

std::vector<Habit> progressHabits()
{
    return {
        {"show progress", showProgress},
        {"move rendered widgets", moveRenderedWidgets},
        {"render for a while", renderForAWhile},
        {"highlight widgets", highlightWidgets},
    };
}
