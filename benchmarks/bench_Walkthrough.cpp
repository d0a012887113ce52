// A walkthrough's frame and hint following their targets.

#include <KQt/Ui/HighlightFrame.h>
#include <KQt/Ui/WalkthroughHint.h>

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QFocusFrame>
#include <QStackedWidget>

#include <vector>

using Kestrel::Gui::HighlightFrame;
using Kestrel::Gui::WalkthroughHint;

namespace {

class PlainHint : public WalkthroughHint
{
public:
    PlainHint()
        : m_pages(new QStackedWidget(this))
    {
        auto* page = new QWidget;
        page->setProperty("walkthroughAlignment", QStringLiteral("bottom"));
        m_pages->addWidget(page);
    }
    WalkthroughHint* clone() const override { return new PlainHint; }
    QStackedWidget* stackedWidget() const override { return m_pages; }
    QLabel* textLabel() const override { return nullptr; }
    QAbstractButton* closeButton() const override { return nullptr; }
    QAbstractButton* disableForSessionButton() const override { return nullptr; }
    QAbstractButton* disableForeverButton() const override { return nullptr; }
    QSize sizeHint() const override { return {200, 120}; }

private:
    QStackedWidget* m_pages;
};

/// A window with @p count widgets that the walkthrough points at and as many that it does not.
class Window
{
public:
    explicit Window(int count)
    {
        m_window.resize(1200, 800);
        for (int i = 0; i < 2 * count; ++i) {
            auto* widget = new QWidget(&m_window);
            widget->setGeometry(20 + (i * 40) % 1000, 20 + (i / 25) * 30, 30, 20);
            if (i % 2 == 0)
                m_targets.push_back(widget);
        }
        m_window.show();
        QCoreApplication::processEvents();
    }

    QSet<QWidget*> targets() const { return {m_targets.begin(), m_targets.end()}; }
    /// To and fro, by a pixel.
    void moveFirst()
    {
        m_isMoved = !m_isMoved;
        m_targets.front()->move(m_isMoved ? 21 : 20, 20);
    }
    QWidget* first() const { return m_targets.front(); }

private:
    QWidget m_window;
    std::vector<QWidget*> m_targets;
    bool m_isMoved = false;
};

/// One move of a target of a started hint, until frame and hint are in place.
void hintFollows(benchmark::State& state)
{
    Window window(int(state.range(0)));
    auto* hint = new PlainHint;
    hint->start(window.targets());
    while (!hint->isVisible())
        QCoreApplication::processEvents();
    for (auto _ : state) {
        window.moveFirst();
        QCoreApplication::processEvents();
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(hintFollows)->Arg(1)->Arg(10)->Arg(100)->Unit(benchmark::kMicrosecond);

/// Sixty moves in a row, as of a window that is dragged for a second.
void hintFollowsSixtyMoves(benchmark::State& state)
{
    Window window(1);
    auto* hint = new PlainHint;
    hint->start(window.targets());
    while (!hint->isVisible())
        QCoreApplication::processEvents();
    for (auto _ : state) {
        for (int i = 0; i < 60; ++i) {
            window.moveFirst();
            QCoreApplication::processEvents();
        }
    }
}
BENCHMARK(hintFollowsSixtyMoves)->Unit(benchmark::kMillisecond);

void frameFollows(benchmark::State& state)
{
    Window window(int(state.range(0)));
    auto* frame = new HighlightFrame(window.targets());
    while (!frame->isVisible())
        QCoreApplication::processEvents();
    for (auto _ : state) {
        window.moveFirst();
        QCoreApplication::processEvents();
    }
}
BENCHMARK(frameFollows)->Arg(1)->Arg(10)->Arg(100)->Unit(benchmark::kMicrosecond);

/// The peer: Qt's own frame that follows one widget.
void focusFrameFollows(benchmark::State& state)
{
    Window window(1);
    QFocusFrame frame;
    frame.setWidget(window.first());
    QCoreApplication::processEvents();
    for (auto _ : state) {
        window.moveFirst();
        QCoreApplication::processEvents();
    }
}
BENCHMARK(focusFrameFollows)->Unit(benchmark::kMicrosecond);

/// What moving a widget costs that nobody follows.
void nobodyFollows(benchmark::State& state)
{
    Window window(1);
    for (auto _ : state) {
        window.moveFirst();
        QCoreApplication::processEvents();
    }
}
BENCHMARK(nobodyFollows)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
