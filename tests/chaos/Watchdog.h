#pragma once

#include <QTimer>

/// Ends what waits for a person: dialogs, menus, drags, and the eyedropper. Runs in their nested event loops.
class Watchdog : public QObject
{
    Q_OBJECT

public:
    Watchdog();

private:
    static void endWhatWaits();

    QTimer m_timer;
};
