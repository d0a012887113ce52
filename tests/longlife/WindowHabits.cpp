#include "Habit.h"

#include "Stage.h"

#include <KQt/Ui/AlwaysOnTop.h>
#include <KQt/Ui/StyledDockWidgetTitlebar.h>

#include <QApplication>
#include <QDockWidget>
#include <QEvent>

using namespace Kestrel::Gui;

namespace {

void resizeTheWindow(Stage& stage)
{
    const QSize size = stage.window().size();
    for (const QSize& other : {size / 2, size + QSize(100, 50), size}) {
        stage.window().resize(other);
        Stage::settle();
    }
}

void hideAndShow(Stage& stage)
{
    stage.window().hide();
    Stage::settle();
    stage.window().show();
    Stage::settle();
}

/// What the desktop and its settings do to all windows.
void changeTheDesktop(Stage& stage)
{
    const Qt::LayoutDirection direction = QGuiApplication::layoutDirection();
    const QPalette palette = QApplication::palette();
    const QFont font = QApplication::font();
    QPalette dark = palette;
    dark.setColor(QPalette::Window, Qt::darkGray);
    QFont large = font;
    large.setPointSize(font.pointSize() + 3);

    QGuiApplication::setLayoutDirection(direction == Qt::LeftToRight ? Qt::RightToLeft : Qt::LeftToRight);
    QApplication::setPalette(dark);
    QApplication::setFont(large);
    Stage::settle();
    QEvent language(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&stage.window(), &language);
    Stage::settle();
    QApplication::setFont(font);
    QApplication::setPalette(palette);
    QGuiApplication::setLayoutDirection(direction);
    Stage::settle();
}

/// A second window with everything, from its opening to its closing.
void openAnotherWindow(Stage& /*stage*/)
{
    {
        QMainWindow window;
        Stage::furnish(window);
        Stage::settle();
        window.grab();
    }
    Stage::settle();
}

void detachDocks(Stage& stage)
{
    const auto docks = stage.all<QDockWidget>();
    for (QDockWidget* const dock : docks) {
        dock->setFloating(true);
        Stage::settle();
        dock->setFloating(false);
        Stage::settle();
    }
}

class OnTop : private Helpers::AlwaysOnTop
{
public:
    explicit OnTop(QWidget& window)
        : AlwaysOnTop(window)
    {
    }
    using AlwaysOnTop::SetAlwaysOnTop;
};

void stayOnTop(Stage& stage)
{
    OnTop(stage.window()).SetAlwaysOnTop(true);
    stage.window().show();
    Stage::settle();
    OnTop(stage.window()).SetAlwaysOnTop(false);
    stage.window().show();
    Stage::settle();
}

} // namespace

std::vector<Habit> windowHabits()
{
    return {
        {"resize the window", resizeTheWindow},
        {"hide and show the window", hideAndShow},
        {"change the desktop", changeTheDesktop},
        {"open another window", openAnotherWindow},
        {"detach docks", detachDocks},
        {"stay on top", stayOnTop},
    };
}
