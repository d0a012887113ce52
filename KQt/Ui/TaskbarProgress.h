#pragma once

#include <KQt/Ui/Export.h>

#include <QtGlobal>

#include <memory>

QT_BEGIN_NAMESPACE
class QWindow;
QT_END_NAMESPACE

namespace Kestrel::Gui {

/// The progress of one long operation, shown on the taskbar button of a window.
///
/// The indicator is there from construction to destruction, apart from the time between Reset() and the next
/// SetProgress() or SetIndeterminate(). A paused or stopped operation is not resumed: its look stays until the object
/// is destroyed, and Pause() after Stop() changes nothing. The next operation has an object of its own. For the GUI
/// thread.
///
/// - Windows: the progress of the window's taskbar button, as soon as that button exists.
/// - Linux: the application's entry in docks that listen to the session bus for com.canonical.Unity.LauncherEntry. The
///   entry is that of QGuiApplication::desktopFileName(), which is read at construction; all windows share it, and the
///   last change by any object is what is seen. Changes go out from the event loop, less than 20 times a second. The
///   entry knows neither a busy nor a paused look: busy is an empty bar, paused looks like running, stopped asks for
///   attention ("urgent"). Without a desktop file name or a bus nothing is shown. QtDBus has a thread of its own for
///   the connection ("QDBusConnection"), which is started with the first object that has a desktop file name and stays.
/// - Elsewhere nothing is shown.
class KQTUI_EXPORT TaskbarProgress
{
public:
    /// @param window whose button shows the progress; not owned, may be deleted at any time. Without one nothing is
    /// shown.
    explicit TaskbarProgress(QWindow* window);
    /// Leaves no indicator behind.
    virtual ~TaskbarProgress();

    /// Shows @p fraction, 0 to 1, in whole per cent; halves are rounded up. Less is shown as 0, more as 1, not a number
    /// as 0.
    void SetProgress(double fraction);
    /// Shows that the operation runs, but not how far it is.
    void SetIndeterminate();
    /// Shows the operation as paused, at the value that it had.
    void Pause();
    /// Shows the operation as stopped or failed, at the value that it had.
    void Stop();
    /// Hides the indicator and forgets the value.
    void Reset();

private:
    Q_DISABLE_COPY(TaskbarProgress)

    struct Implementation;

    std::unique_ptr<Implementation> m_implementation;
};

} // namespace Kestrel::Gui
