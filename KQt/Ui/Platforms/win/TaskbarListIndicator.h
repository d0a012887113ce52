#pragma once

#include <KQt/Ui/StatefulTaskbarIndicator.h>

#include <QAbstractNativeEventFilter>
#include <QObject>
#include <QPointer>
#include <QWindow>

// As system headers declare them, which are better kept out of ours.
struct HWND__;
struct ITaskbarList3;

namespace Kestrel::Gui {

/// The progress of a taskbar button through the shell's ITaskbarList3.
///
/// A button can only be told something once the shell has made it: windows hear of that by the message
/// "TaskbarButtonCreated", at every showing and when the shell has been restarted. A window that is on the screen
/// already is taken to have its button.
class TaskbarListIndicator : public QObject, public StatefulTaskbarIndicator, public QAbstractNativeEventFilter
{
public:
    TaskbarListIndicator();
    ~TaskbarListIndicator() override;

    void setWindow(QWindow* window) override;

    bool eventFilter(QObject* watched, QEvent* event) override;
    bool nativeEventFilter(const QByteArray& eventType, void* message, long* result) override;

protected:
    void stateChanged() override;

private:
    HWND__* nativeWindow() const;
    void buttonCreated(HWND__* window);
    bool prepareTaskbarList();
    void update();

    QPointer<QWindow> m_window;
    HWND__* m_button = nullptr; // the native window that has a button
    ITaskbarList3* m_taskbarList = nullptr;
};

} // namespace Kestrel::Gui
