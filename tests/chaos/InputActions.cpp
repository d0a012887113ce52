#include "Actions.h"

#include "Chance.h"
#include "OddValues.h"
#include "Zoo.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QFocusEvent>
#include <QHoverEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPointer>
#include <QWheelEvent>
#include <QWidget>

namespace {

// On the widget, at its edge, or beside it.
QPoint anywhereOn(const QWidget& widget, Chance& chance)
{
    return {chance.between(-5, widget.width() + 5), chance.between(-5, widget.height() + 5)};
}

Qt::KeyboardModifiers modifiers(Chance& chance)
{
    return chance.oneIn(4) ? Qt::KeyboardModifiers(static_cast<int>(chance.bits() & Qt::KeyboardModifierMask))
                           : Qt::NoModifier;
}

void sendMouse(QWidget& widget, QEvent::Type type, const QPoint& at, Qt::MouseButton button, Qt::MouseButtons buttons,
               Chance& chance)
{
    QMouseEvent event(type, at, widget.mapToGlobal(at), button, buttons, modifiers(chance));
    QCoreApplication::sendEvent(&widget, &event);
}

void click(Zoo& zoo, Chance& chance)
{
    const QPointer<QWidget> widget = zoo.anyWidget();
    const QPoint at = anywhereOn(*widget, chance);
    const auto button = chance.oneIn(5) ? Qt::RightButton : Qt::LeftButton;
    sendMouse(*widget, QEvent::MouseButtonPress, at, button, button, chance);
    if (widget)
        sendMouse(*widget, QEvent::MouseButtonRelease, at, button, Qt::NoButton, chance);
}

void dragMouse(Zoo& zoo, Chance& chance)
{
    const QPointer<QWidget> widget = zoo.anyWidget();
    sendMouse(*widget, QEvent::MouseButtonPress, anywhereOn(*widget, chance), Qt::LeftButton, Qt::LeftButton, chance);
    for (int moves = chance.below(5); widget && moves > 0; --moves)
        sendMouse(*widget, QEvent::MouseMove, anywhereOn(*widget, chance), Qt::NoButton, Qt::LeftButton, chance);
    if (widget)
        sendMouse(*widget, QEvent::MouseButtonRelease, anywhereOn(*widget, chance), Qt::LeftButton, Qt::NoButton,
                  chance);
}

void looseMouse(Zoo& zoo, Chance& chance)
{
    QWidget* widget = zoo.anyWidget();
    constexpr QEvent::Type types[] = {QEvent::MouseButtonPress, QEvent::MouseButtonRelease, QEvent::MouseMove,
                                      QEvent::MouseButtonDblClick};
    const QEvent::Type type = types[chance.below(4)];
    sendMouse(*widget, type, anywhereOn(*widget, chance), type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton,
              Qt::MouseButtons(chance.below(8)), chance);
}

void hover(Zoo& zoo, Chance& chance)
{
    QWidget* widget = zoo.anyWidget();
    constexpr QEvent::Type types[] = {QEvent::HoverEnter, QEvent::HoverMove, QEvent::HoverLeave};
    const QPoint at = anywhereOn(*widget, chance);
    if (chance.oneIn(2)) {
        QHoverEvent event(types[chance.below(3)], at, anywhereOn(*widget, chance));
        QCoreApplication::sendEvent(widget, &event);
        return;
    }
    if (chance.oneIn(2)) {
        QEnterEvent event(at, widget->mapTo(widget->window(), at), widget->mapToGlobal(at));
        QCoreApplication::sendEvent(widget, &event);
    } else {
        QEvent event(QEvent::Leave);
        QCoreApplication::sendEvent(widget, &event);
    }
}

void turnWheel(Zoo& zoo, Chance& chance)
{
    QWidget* widget = zoo.anyWidget();
    const QPoint at = anywhereOn(*widget, chance);
    QWheelEvent event(at, widget->mapToGlobal(at), {}, QPoint(0, chance.between(-360, 360)), Qt::NoButton,
                      modifiers(chance), Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(widget, &event);
}

void pressKey(Zoo& zoo, Chance& chance)
{
    static const std::vector<int> keys = {Qt::Key_Left, Qt::Key_Right,  Qt::Key_Up,        Qt::Key_Down,
                                          Qt::Key_Home, Qt::Key_End,    Qt::Key_Tab,       Qt::Key_Return,
                                          Qt::Key_F4,   Qt::Key_Escape, Qt::Key_Space,     Qt::Key_Delete,
                                          Qt::Key_A,    Qt::Key_5,      Qt::Key_NumberSign};
    const QPointer<QWidget> widget = zoo.anyWidget();
    const int key = chance.oneOf(keys);
    const QString text = key < 0x80 ? QString(QChar(key)).toLower() : QString();
    QKeyEvent press(QEvent::KeyPress, key, modifiers(chance), text);
    QCoreApplication::sendEvent(widget, &press);
    if (!widget)
        return;
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(widget, &release);
}

void askForMenu(Zoo& zoo, Chance& chance)
{
    QWidget* widget = zoo.anyWidget();
    const QPoint at = anywhereOn(*widget, chance);
    QContextMenuEvent event(QContextMenuEvent::Mouse, at, widget->mapToGlobal(at));
    QCoreApplication::sendEvent(widget, &event);
}

void moveFocus(Zoo& zoo, Chance& chance)
{
    QWidget* widget = zoo.anyWidget();
    if (chance.oneIn(2)) {
        widget->setFocus(static_cast<Qt::FocusReason>(chance.below(Qt::NoFocusReason)));
        return;
    }
    QFocusEvent event(chance.oneIn(2) ? QEvent::FocusIn : QEvent::FocusOut);
    QCoreApplication::sendEvent(widget, &event);
}

void dropSomething(Zoo& zoo, Chance& chance)
{
    const QPointer<QWidget> widget = zoo.anyWidget();
    QMimeData data;
    OddValues::fill(data, chance);
    const QPoint at = anywhereOn(*widget, chance);
    QDragEnterEvent enter(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &enter);
    if (widget && chance.oneIn(2)) {
        QDragMoveEvent move(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(widget, &move);
    }
    if (!widget)
        return;
    if (chance.oneIn(3)) {
        QDragLeaveEvent leave;
        QCoreApplication::sendEvent(widget, &leave);
    } else {
        QDropEvent drop(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(widget, &drop);
    }
}

} // namespace

std::vector<Action> inputActions()
{
    return {
        {"click", 30, click},    {"drag with the mouse", 15, dragMouse}, {"loose mouse event", 10, looseMouse},
        {"hover", 15, hover},    {"turn the wheel", 8, turnWheel},       {"press a key", 20, pressKey},
        {"menu", 2, askForMenu}, {"move the focus", 8, moveFocus},       {"drop something", 8, dropSomething},
    };
}
