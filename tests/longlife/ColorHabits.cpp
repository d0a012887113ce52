#include "Habit.h"

#include "Stage.h"

#include <KQt/Ui/AdvancedColorPicker.h>
#include <KQt/Ui/ColorPickerOpacityAdapter.h>
#include <KQt/Ui/PenPicker.h>
#include <KQt/Ui/RColorPicker.h>
#include <KQt/Ui/WidgetColorPickerButton.h>

#include <QCoreApplication>
#include <QCursor>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QPen>
#include <QTimer>

using namespace Kestrel::Gui;

namespace {

/// A few colours round about: what Qt keeps for each is there after the first rounds.
QColor color(const Stage& stage)
{
    constexpr int colors = 4;
    return QColor::fromHsv(stage.round() % colors * 80, 180, 220, 200);
}

void setColors(Stage& stage)
{
    for (AdvancedColorPicker* const picker : stage.all<AdvancedColorPicker>())
        picker->setColor(color(stage));
    for (RColorPicker* const picker : stage.all<RColorPicker>())
        picker->setColor(color(stage));
    for (ColorPickerOpacityAdapter* const adapter : stage.all<ColorPickerOpacityAdapter>())
        adapter->setColor(color(stage));
    for (PenPicker* const picker : stage.all<PenPicker>())
        picker->setPen(QPen(QBrush(color(stage)), stage.round() % 5 + 1));
    Stage::settle();
}

/// Over the window, and ended by a key.
void pickColors(Stage& stage)
{
    for (WidgetColorPickerButton* const button : stage.all<WidgetColorPickerButton>()) {
        QWidget* const window = &stage.window();
        QCursor::setPos(window->mapToGlobal(QPoint(stage.round() % 4 * 50 + 20, 20)));
        QTimer::singleShot(0, window, [window] {
            QKeyEvent key(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier);
            QCoreApplication::sendEvent(window, &key);
        });
        button->startPicking();
        Stage::settle();
    }
}

void dropColors(Stage& stage)
{
    for (QWidget* const widget : stage.all<QWidget>()) {
        if (!widget->acceptDrops())
            continue;
        QMimeData data;
        data.setColorData(color(stage));
        data.setUrls({QUrl::fromLocalFile(QStringLiteral("/tmp/file"))});
        const QPoint at(4, 4);
        QDragEnterEvent enter(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(widget, &enter);
        QDragMoveEvent move(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(widget, &move);
        QDragLeaveEvent leave;
        QCoreApplication::sendEvent(widget, &leave);
    }
    Stage::settle();
}

} // namespace

std::vector<Habit> colorHabits()
{
    return {{"set colours", setColors}, {"pick colours", pickColors}, {"drag colours over everything", dropColors}};
}
