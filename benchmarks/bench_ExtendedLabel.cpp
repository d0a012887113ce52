#include <KQt/Ui/ExtendedLabel.h>

#include <KSqueezedTextLabel>

#include <QApplication>
#include <QVBoxLayout>

#include <benchmark/benchmark.h>

namespace {

void setWholeText(Kestrel::Gui::ExtendedLabel& label, const QString& text)
{
    label.SetOriginalText(text);
}

void setWholeText(KSqueezedTextLabel& label, const QString& text)
{
    label.setTextElideMode(Qt::ElideRight);
    label.setText(text);
}

/// A thousand labels in a layout, resized by a step of one pixel at a time.
template <typename Label>
void resizeByAStep(benchmark::State& state, const QString& text)
{
    constexpr int labels = 1000;
    constexpr int narrow = 100;
    constexpr int wide = 200;
    constexpr int height = 20 * labels;

    QWidget window;
    QWidget form(&window);
    auto* layout = new QVBoxLayout(&form);
    for (int i = 0; i < labels; ++i) {
        auto* label = new Label(&form);
        label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        setWholeText(*label, text);
        layout->addWidget(label);
    }
    int width = wide;
    int step = -1;
    form.resize(width, height);
    window.show();
    QCoreApplication::processEvents();

    for (auto _ : state) {
        if (width + step < narrow || width + step > wide)
            step = -step;
        width += step;
        form.resize(width, height);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    }
    state.SetItemsProcessed(state.iterations() * labels);
}

/// The text never fits: it is elided at every width.
template <typename Label>
void resizeElided(benchmark::State& state)
{
    resizeByAStep<Label>(state, QStringLiteral("A sentence that needs more room than the label has at any time"));
}
BENCHMARK_TEMPLATE(resizeElided, Kestrel::Gui::ExtendedLabel)->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(resizeElided, KSqueezedTextLabel)->Unit(benchmark::kMillisecond);

/// The text always fits: no resize changes what is shown.
template <typename Label>
void resizeFitting(benchmark::State& state)
{
    resizeByAStep<Label>(state, QStringLiteral("Short"));
}
BENCHMARK_TEMPLATE(resizeFitting, Kestrel::Gui::ExtendedLabel)->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(resizeFitting, KSqueezedTextLabel)->Unit(benchmark::kMillisecond);

/// One label, of which the text does not fit.
void resizeOne(benchmark::State& state, const QString& text)
{
    Kestrel::Gui::ExtendedLabel label;
    label.SetOriginalText(text);
    label.show();
    int width = 100;
    for (auto _ : state) {
        width = 300 - width;
        label.resize(width, 20);
    }
}

/// A megabyte costs what its first thousands of letters cost.
void resizeMegabyte(benchmark::State& state)
{
    resizeOne(state, QStringLiteral("words ").repeated(512 * 1024 / 6));
}
BENCHMARK(resizeMegabyte)->Unit(benchmark::kMillisecond);

void resizeTwoThousandLetters(benchmark::State& state)
{
    resizeOne(state, QStringLiteral("words ").repeated(2000 / 6));
}
BENCHMARK(resizeTwoThousandLetters)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
