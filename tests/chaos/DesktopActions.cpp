#include "Actions.h"

#include "Chance.h"
#include "OddValues.h"
#include "Zoo.h"

#include <QApplication>
#include <QEvent>
#include <QMainWindow>
#include <QPixmap>
#include <QStyle>
#include <QStyleFactory>
#include <QThread>

namespace {

void changeStyle(Zoo& /*zoo*/, Chance& chance)
{
    const auto names = QStyleFactory::keys();
    QApplication::setStyle(chance.oneOf(names));
}

void changePalette(Zoo& zoo, Chance& chance)
{
    QPalette palette;
    for (const auto role : {QPalette::Window, QPalette::Text, QPalette::Base, QPalette::Button, QPalette::Highlight})
        palette.setColor(role, OddValues::color(chance));
    if (chance.oneIn(3))
        QApplication::setPalette(palette);
    else
        zoo.anyExhibitedWidget()->setPalette(palette);
}

void changeFont(Zoo& zoo, Chance& chance)
{
    const QFont font(QStringLiteral("sans-serif"), chance.between(1, 30));
    if (chance.oneIn(3))
        QApplication::setFont(font);
    else
        zoo.anyExhibitedWidget()->setFont(font);
}

void changeStyleSheet(Zoo& zoo, Chance& chance)
{
    static const std::vector<QString> sheets = {
        QString(),
        QStringLiteral("* { padding: 3px; }"),
        QStringLiteral("Kestrel--Gui--SeparatorStyle { qproperty-height: 30; }"),
        QStringLiteral("QWidget { background: yellow; border: 7px solid red; }"),
        QStringLiteral("this is no style sheet {"),
    };
    zoo.anyExhibitedWidget()->setStyleSheet(chance.oneOf(sheets));
}

void changeLanguage(Zoo& zoo, Chance& /*chance*/)
{
    QEvent event(QEvent::LanguageChange);
    QCoreApplication::sendEvent(zoo.window(), &event);
}

void changeDirection(Zoo& zoo, Chance& chance)
{
    const auto direction = chance.oneIn(2) ? Qt::RightToLeft : Qt::LeftToRight;
    if (chance.oneIn(3))
        QGuiApplication::setLayoutDirection(direction);
    else
        zoo.anyExhibitedWidget()->setLayoutDirection(direction);
}

void changeScreen(Zoo& zoo, Chance& /*chance*/)
{
    QEvent event(QEvent::ScreenChangeInternal);
    QCoreApplication::sendEvent(zoo.anyExhibitedWidget(), &event);
}

void paint(Zoo& zoo, Chance& /*chance*/)
{
    zoo.window()->grab();
}

void letTimersRun(Zoo& /*zoo*/, Chance& chance)
{
    constexpr int longest = 60; // milliseconds: the walkthrough's timer and the deferred layouts run
    QThread::msleep(static_cast<unsigned long>(chance.below(longest)));
    QCoreApplication::processEvents();
}

} // namespace

std::vector<Action> desktopActions()
{
    return {
        {"change the style", 1, changeStyle},       {"change the palette", 2, changePalette},
        {"change the font", 2, changeFont},         {"change the style sheet", 3, changeStyleSheet},
        {"change the language", 2, changeLanguage}, {"change the direction", 2, changeDirection},
        {"change the screen", 2, changeScreen},     {"paint", 3, paint},
        {"let timers run", 2, letTimersRun},
    };
}
