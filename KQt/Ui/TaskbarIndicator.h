#pragma once

#include <QtGlobal>

#include <memory>

QT_BEGIN_NAMESPACE
class QWindow;
QT_END_NAMESPACE

namespace Kestrel::Gui {

/// What TaskbarProgress asks of the system. New indicators are hidden, have no window, the range 0 to 100 and the value
/// 0.
class TaskbarIndicator
{
public:
    virtual ~TaskbarIndicator();

    /// Called once, before everything else. @p window may be null, and may be deleted at any time.
    virtual void setWindow(QWindow* window) = 0;
    virtual void show() = 0;
    virtual void hide() = 0;
    /// Back to the least value; neither visibility nor look change.
    virtual void reset() = 0;
    virtual void pause() = 0;
    virtual void stop() = 0;
    /// 0 to 0 is busy.
    virtual void setRange(int minimum, int maximum) = 0;
    /// Values outside the range are shown as its nearest end.
    virtual void setValue(int value) = 0;

protected:
    TaskbarIndicator() = default;

private:
    Q_DISABLE_COPY(TaskbarIndicator)
};

/// The indicator of the system that the library was built for; never null. Each system's folder beneath Platforms/ has
/// this function in a file of its own, so that a test can put its own in its place when it is linked.
std::unique_ptr<TaskbarIndicator> createTaskbarIndicator();

} // namespace Kestrel::Gui
