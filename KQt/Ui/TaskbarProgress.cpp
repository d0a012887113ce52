#include <KQt/Ui/TaskbarProgress.h>

#include <KQt/Ui/TaskbarIndicator.h>

#include <cmath>
#include <limits>

namespace Kestrel::Gui {

namespace {

constexpr double percent = 100.0;

/// The nearest int where @p value is beyond all of them; towards zero otherwise.
int truncated(double value)
{
    using Int = std::numeric_limits<int>;
    if (value >= Int::max())
        return Int::max();
    if (value <= Int::min())
        return Int::min();
    return static_cast<int>(value);
}

int percentOf(double fraction)
{
    if (std::isnan(fraction))
        return 0;
    constexpr double half = 0.5;
    return truncated(fraction * percent + half);
}

} // namespace

struct TaskbarProgress::Implementation
{
    Implementation() = default;
    ~Implementation() { indicator->hide(); }
    Q_DISABLE_COPY(Implementation)

    const std::unique_ptr<TaskbarIndicator> indicator = createTaskbarIndicator();
};

TaskbarProgress::TaskbarProgress(QWindow* window)
    : m_implementation(std::make_unique<Implementation>())
{
    m_implementation->indicator->setWindow(window);
    m_implementation->indicator->show();
}

TaskbarProgress::~TaskbarProgress()
{
    m_implementation->indicator->reset();
    m_implementation->indicator->hide();
}

void TaskbarProgress::SetProgress(double fraction)
{
    m_implementation->indicator->show();
    m_implementation->indicator->setRange(0, static_cast<int>(percent));
    m_implementation->indicator->setValue(percentOf(fraction));
}

void TaskbarProgress::SetIndeterminate()
{
    m_implementation->indicator->show();
    m_implementation->indicator->setRange(0, 0);
}

void TaskbarProgress::Pause()
{
    m_implementation->indicator->pause();
}

void TaskbarProgress::Stop()
{
    m_implementation->indicator->stop();
}

void TaskbarProgress::Reset()
{
    m_implementation->indicator->reset();
    m_implementation->indicator->hide();
}

} // namespace Kestrel::Gui
