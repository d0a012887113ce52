#include "Watchdog.h"

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QMenu>

Watchdog::Watchdog()
{
    constexpr int interval = 2; // milliseconds
    m_timer.setInterval(interval);
    connect(&m_timer, &QTimer::timeout, this, &Watchdog::endWhatWaits);
    m_timer.start();
}

void Watchdog::endWhatWaits()
{
    if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget()))
        dialog->reject();
    if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget()))
        menu->close();
    // Any key ends the eyedropper's picking, and this one a drag.
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QObject nobody;
    QCoreApplication::sendEvent(&nobody, &escape);
}
