#pragma once

#include <KQt/Ui/StatefulTaskbarIndicator.h>

#include <QElapsedTimer>
#include <QString>
#include <QTimer>
#include <QVariantMap>

namespace Kestrel::Gui {

/// Progress of the application's entry in docks: the signal com.canonical.Unity.LauncherEntry.Update on the session
/// bus.
///
/// Sent from the event loop when something has changed, so that the steps of one call make one message; the two
/// messages that clear the entry, at the start and in the destructor, are sent at once. The entry is cleared for good
/// when the window is deleted. Nothing is sent without a window, a desktop file name or a bus.
class LauncherEntryIndicator : public StatefulTaskbarIndicator
{
public:
    LauncherEntryIndicator();
    ~LauncherEntryIndicator() override;

    void setWindow(QWindow* window) override;

protected:
    void stateChanged() override;

private:
    QVariantMap properties() const;
    void scheduleUpdate();
    void sendIfChanged();
    void send(const QVariantMap& properties);
    void windowDeleted();

    QString m_applicationUri; // empty where nobody listens
    QTimer m_timer;
    QElapsedTimer m_sinceUpdate; // invalid before the first
    QVariantMap m_sent;
    bool m_hasWindow = false;
};

} // namespace Kestrel::Gui
