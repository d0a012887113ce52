#include <KQt/Ui/WidgetRenderer.h>

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QPushButton>
#include <QShowEvent>

#include <vector>

namespace {

using Kestrel::Gui::WidgetRenderer;

/// What any filter on the application costs at least.
class EmptyFilter : public QObject
{
public:
    bool eventFilter(QObject*, QEvent*) override { return false; }
};

void sendUnrelatedEvents(benchmark::State& state)
{
    QPushButton receiver;
    for (auto _ : state) {
        QEvent event(QEvent::User);
        QCoreApplication::sendEvent(&receiver, &event);
    }
}

void unrelatedEventNoFilter(benchmark::State& state)
{
    sendUnrelatedEvents(state);
}
BENCHMARK(unrelatedEventNoFilter);

void unrelatedEventEmptyFilter(benchmark::State& state)
{
    EmptyFilter filter;
    qApp->installEventFilter(&filter);
    sendUnrelatedEvents(state);
}
BENCHMARK(unrelatedEventEmptyFilter);

void unrelatedEventRenderer(benchmark::State& state)
{
    QWidget tracked;
    const WidgetRenderer renderer(&tracked, nullptr);
    sendUnrelatedEvents(state);
}
BENCHMARK(unrelatedEventRenderer);

/// One picture of n widgets, drawn because one of them was raised.
void updatePicture(benchmark::State& state)
{
    const int count = int(state.range(0));
    QWidget window;
    window.setGeometry(0, 0, 640, 480);
    QWidget tracked;
    WidgetRenderer renderer(&tracked, nullptr);
    renderer.ChangeRendererFrame(QRect(0, 0, 2000, 1500));
    std::vector<QWidget*> widgets;
    for (int i = 0; i < count; ++i) {
        widgets.push_back(new QWidget(&window));
        widgets.back()->setGeometry(i % 32 * 10, i / 32 * 10, 10, 10);
        QShowEvent show;
        QCoreApplication::sendEvent(widgets.back(), &show);
    }
    for (auto _ : state) {
        QEvent event(QEvent::ZOrderChange);
        QCoreApplication::sendEvent(widgets.front(), &event);
    }
    state.SetComplexityN(count);
}
BENCHMARK(updatePicture)->RangeMultiplier(2)->Range(16, 512)->Complexity()->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", qEnvironmentVariableIsSet("QT_QPA_PLATFORM") ? qgetenv("QT_QPA_PLATFORM") : "offscreen");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
