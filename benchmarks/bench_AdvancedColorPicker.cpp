#include <KQt/Ui/AdvancedColorPicker.h>
#include <KQt/Ui/AdvancedColorPickerPopup.h>

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QColorDialog>
#include <QGridLayout>
#include <QToolButton>

#include <memory>

using Kestrel::Gui::AdvancedColorPicker;
using Kestrel::Gui::AdvancedColorPickerPopup;

namespace {

constexpr int Rows = 11;
constexpr int Columns = 12;

/// As many tool buttons as the popup has swatches, and nothing else.
std::unique_ptr<QWidget> plainButtons()
{
    auto window = std::make_unique<QWidget>();
    auto* const grid = new QGridLayout(window.get());
    for (int row = 0; row < Rows; ++row) {
        for (int column = 0; column < Columns; ++column)
            grid->addWidget(new QToolButton, row, column);
    }
    return window;
}

AdvancedColorPickerPopup* openPopup()
{
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget* const window : windows) {
        if (auto* const popup = qobject_cast<AdvancedColorPickerPopup*>(window))
            return popup;
    }
    return nullptr;
}

/// Shows nothing of its own: runs what showing has posted, the first paint included, as the event loop would.
void paint()
{
    QCoreApplication::processEvents();
}

void buildPicker(benchmark::State& state)
{
    for (auto _ : state) {
        auto picker = std::make_unique<AdvancedColorPicker>();
        benchmark::DoNotOptimize(picker.get());
        state.PauseTiming();
        picker.reset();
        state.ResumeTiming();
    }
}

void buildPlainButtons(benchmark::State& state)
{
    for (auto _ : state) {
        auto window = plainButtons();
        benchmark::DoNotOptimize(window.get());
        state.PauseTiming();
        window.reset();
        state.ResumeTiming();
    }
}

void buildAndShowPicker(benchmark::State& state)
{
    for (auto _ : state) {
        auto picker = std::make_unique<AdvancedColorPicker>();
        picker->setColor(Qt::red);
        picker->showPopup();
        paint();
        state.PauseTiming();
        picker.reset();
        state.ResumeTiming();
    }
}

void buildAndShowColorDialog(benchmark::State& state)
{
    for (auto _ : state) {
        auto dialog = std::make_unique<QColorDialog>();
        dialog->setOption(QColorDialog::DontUseNativeDialog);
        dialog->setCurrentColor(Qt::red);
        dialog->show();
        paint();
        state.PauseTiming();
        dialog.reset();
        state.ResumeTiming();
    }
}

void openAgain(benchmark::State& state)
{
    AdvancedColorPicker picker;
    picker.setColor(Qt::red);
    picker.showPopup();
    AdvancedColorPickerPopup* const popup = openPopup();
    paint();
    for (auto _ : state) {
        state.PauseTiming();
        popup->hide();
        QCoreApplication::processEvents();
        state.ResumeTiming();
        picker.showPopup();
        paint();
    }
}

BENCHMARK(buildPicker)->Unit(benchmark::kMicrosecond);
BENCHMARK(buildPlainButtons)->Unit(benchmark::kMicrosecond);
BENCHMARK(buildAndShowPicker)->Unit(benchmark::kMicrosecond);
BENCHMARK(buildAndShowColorDialog)->Unit(benchmark::kMicrosecond);
BENCHMARK(openAgain)->Unit(benchmark::kMicrosecond);

} // namespace

// Peers: building is held against buildPlainButtons, building and showing against buildAndShowColorDialog, and opening
// again against buildAndShowPicker.
int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
