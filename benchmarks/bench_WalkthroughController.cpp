#include <KQt/Ui/WalkthroughController.h>

#include "../tests/support/Tour.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QPushButton>

#include <memory>

namespace {

using Kestrel::Gui::WalkthroughController;
using namespace TestSupport;

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

QVector<TourPage> pages(int count)
{
    QVector<TourPage> result;
    for (int i = 0; i < count; ++i) {
        const QString number = QString::number(i);
        result.append({str("hint") + number,
                       str("target") + number,
                       {str("hint") + number + str("/ready"), str("target") + number + str("/active")}});
    }
    return result;
}

std::unique_ptr<WalkthroughController> runningController(int hints)
{
    auto controller = std::make_unique<WalkthroughController>();
    if (hints > 0)
        controller->addHints(Tour().prototype(pages(hints)));
    while (!controller->isRunning())
        QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    return controller;
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

void unrelatedEventController(benchmark::State& state)
{
    const auto controller = runningController(int(state.range(0)));
    sendUnrelatedEvents(state);
}
BENCHMARK(unrelatedEventController)->Arg(0)->Arg(20);

/// Off and on again; two switches an iteration.
void setEnabled(benchmark::State& state)
{
    const auto controller = runningController(int(state.range(0)));
    bool enable = false;
    for (auto _ : state) {
        controller->setEnabled(enable);
        enable = !enable;
    }
}
BENCHMARK(setEnabled)->Arg(10)->Arg(50)->Arg(100)->Arg(200)->Unit(benchmark::kMillisecond);

/// The peer of setEnabled(): each group switched by itself.
void gotoStateOneByOne(benchmark::State& state)
{
    const auto controller = runningController(int(state.range(0)));
    bool enable = false;
    for (auto _ : state) {
        for (int i = 0; i < state.range(0); ++i)
            controller->gotoState(str("hint") + QString::number(i), enable ? str("ready") : str("disabled"));
        enable = !enable;
    }
}
BENCHMARK(gotoStateOneByOne)->Arg(10)->Arg(50)->Unit(benchmark::kMillisecond);

void addHintsAndStart(benchmark::State& state)
{
    for (auto _ : state)
        runningController(int(state.range(0)));
}
BENCHMARK(addHintsAndStart)->Arg(10)->Arg(50)->Unit(benchmark::kMillisecond);

/// A target of a started hint is moved; frame and hint have followed when the iteration ends.
void moveTarget(benchmark::State& state)
{
    QWidget window;
    window.resize(800, 600);
    auto* target = new QPushButton(&window);
    target->setProperty("walkthroughWidget", str("target0"));
    target->setGeometry(50, 50, 80, 30);
    const Tour tour;
    WalkthroughController controller;
    controller.addHints(tour.prototype(pages(1)));
    window.show();
    while (!tour.hint(0)->isVisible())
        QCoreApplication::processEvents();
    int x = 50;
    for (auto _ : state) {
        x = x == 50 ? 350 : 50;
        target->move(x, 50);
        QCoreApplication::processEvents();
        if (qAbs(tour.hint(0)->geometry().center().x() - target->geometry().center().x()) > 60)
            state.SkipWithError("the hint did not follow");
    }
}
BENCHMARK(moveTarget)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", qEnvironmentVariableIsSet("QT_QPA_PLATFORM") ? qgetenv("QT_QPA_PLATFORM") : "offscreen");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
