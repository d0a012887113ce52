#include <KQt/Ui/ScreenPixel.h>
#include <KQt/Ui/WidgetColorPicker.h>

#include <QApplication>
#include <QCursor>
#include <QImage>
#include <QScreen>
#include <QTimer>
#include <QWidget>

#include <benchmark/benchmark.h>

namespace {

using Kestrel::Gui::WidgetColorPicker;

/// A shown target of 400 x 300 with the cursor over it.
struct Target
{
    QWidget widget;

    Target()
    {
        widget.setStyleSheet(QStringLiteral("background: #336699"));
        widget.setGeometry(300, 200, 400, 300);
        widget.show();
        QCursor::setPos(widget.mapToGlobal(QPoint(200, 150)));
        for (int i = 0; i < 100; ++i)
            QCoreApplication::processEvents();
    }
};

void grabOnePixel(benchmark::State& state)
{
    const Target target;
    const QPoint position = QCursor::pos();
    for (auto _ : state) {
        const QImage image =
            QGuiApplication::primaryScreen()->grabWindow(0, position.x(), position.y(), 1, 1).toImage();
        benchmark::DoNotOptimize(image.pixel(0, 0));
    }
}
BENCHMARK(grabOnePixel);

void grabWholeTarget(benchmark::State& state)
{
    const Target target;
    const QRect area(target.widget.mapToGlobal(QPoint(0, 0)), target.widget.size());
    for (auto _ : state) {
        const QImage image =
            QGuiApplication::primaryScreen()->grabWindow(0, area.x(), area.y(), area.width(), area.height()).toImage();
        benchmark::DoNotOptimize(image.pixel(200, 150));
    }
}
BENCHMARK(grabWholeTarget);

/// What an eyedropper does for its colour, whatever the size of its target.
void sample(benchmark::State& state)
{
    const Target target;
    const QPointF position = QCursor::pos();
    for (auto _ : state)
        benchmark::DoNotOptimize(Kestrel::Gui::Detail::screenPixel(position));
}
BENCHMARK(sample);

/// A whole pick() that ends at once: the frame, the nested loop and the sample.
void pick(benchmark::State& state)
{
    Target target;
    WidgetColorPicker picker;
    for (auto _ : state) {
        QTimer::singleShot(0, &picker, &WidgetColorPicker::stop);
        benchmark::DoNotOptimize(picker.pick(&target.widget, {}));
    }
}
BENCHMARK(pick);

} // namespace

int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
