#include <KQt/Ui/RColorPicker.h>
#include <KQt/Ui/RColorPickerPopup.h>

#include <KColorCombo>

#include <QAbstractItemView>
#include <QApplication>
#include <QEvent>

#include <benchmark/benchmark.h>

namespace {

/// Notes the first painting of a widget or of anything inside it.
class PaintWatch : public QObject
{
public:
    PaintWatch() { qApp->installEventFilter(this); }

    bool painted = false;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint && watched->isWidgetType() &&
            static_cast<QWidget*>(watched)->window()->windowType() == Qt::Popup)
            painted = true;
        return false;
    }
};

template <typename Open, typename Close>
void openUntilPainted(benchmark::State& state, Open open, Close close)
{
    PaintWatch watch;
    for (auto _ : state) {
        watch.painted = false;
        open();
        while (!watch.painted)
            QCoreApplication::processEvents();
        state.PauseTiming();
        close();
        QCoreApplication::processEvents();
        state.ResumeTiming();
    }
}

void rColorPickerPopup(benchmark::State& state)
{
    Kestrel::Gui::RColorPicker picker;
    picker.show();
    openUntilPainted(
        state, [&] { picker.showPopup(); }, [&] { picker.GetPickerPopup().hide(); });
}
BENCHMARK(rColorPickerPopup);

void kColorComboPopup(benchmark::State& state)
{
    KColorCombo combo;
    combo.show();
    openUntilPainted(
        state, [&] { combo.showPopup(); }, [&] { combo.hidePopup(); });
}
BENCHMARK(kColorComboPopup);

} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", qEnvironmentVariableIsSet("DISPLAY") ? "xcb" : "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
