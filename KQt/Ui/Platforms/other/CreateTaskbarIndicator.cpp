#include <KQt/Ui/TaskbarIndicator.h>

namespace Kestrel::Gui {

namespace {

/// For systems whose taskbars show no progress.
class NoIndicator : public TaskbarIndicator
{
public:
    void setWindow(QWindow* /*window*/) override {}
    void show() override {}
    void hide() override {}
    void reset() override {}
    void pause() override {}
    void stop() override {}
    void setRange(int /*minimum*/, int /*maximum*/) override {}
    void setValue(int /*value*/) override {}
};

} // namespace

std::unique_ptr<TaskbarIndicator> createTaskbarIndicator()
{
    return std::make_unique<NoIndicator>();
}

} // namespace Kestrel::Gui
