#include <KQt/Ui/AdvancedColorPicker.h>
#include <KQt/Ui/PenPicker.h>

#include <QApplication>

#include <benchmark/benchmark.h>

namespace {

template <typename Widget>
void build(benchmark::State& state)
{
    for (auto _ : state) {
        Widget widget;
        benchmark::DoNotOptimize(&widget);
    }
}
BENCHMARK_TEMPLATE(build, Kestrel::Gui::AdvancedColorPicker);
BENCHMARK_TEMPLATE(build, Kestrel::Gui::PenPicker);

} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
