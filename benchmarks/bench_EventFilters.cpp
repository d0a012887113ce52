// What an event filter costs for events that it does not handle, next to an empty filter and none.

#include <KQt/Ui/DisableDragAndDropEventFilter.h>
#include <KQt/Ui/WidgetMouseHandler.h>
#include <KQt/Ui/WidgetResizeHandler.h>

#include <QApplication>
#include <QEvent>
#include <QWidget>

#include <benchmark/benchmark.h>

#include <memory>

namespace {

/// A widget whose own handling of an event costs nothing.
class Sink : public QWidget
{
protected:
    bool event(QEvent* event) override
    {
        benchmark::DoNotOptimize(event);
        return true;
    }
};

class EmptyFilter : public QObject
{
public:
    using QObject::QObject;
    bool eventFilter(QObject* watched, QEvent* event) override { return QObject::eventFilter(watched, event); }
};

using MakeFilter = QObject* (*)(QWidget*);

QObject* noFilter(QWidget* /*widget*/)
{
    return nullptr;
}

QObject* emptyFilter(QWidget* widget)
{
    auto* filter = new EmptyFilter(widget);
    widget->installEventFilter(filter);
    return filter;
}

QObject* mouseHandler(QWidget* widget)
{
    return new Kestrel::Gui::WidgetMouseHandler(widget);
}

QObject* resizeHandler(QWidget* widget)
{
    return new Kestrel::Gui::WidgetResizeHandler(widget);
}

QObject* dragAndDropFilter(QWidget* widget)
{
    auto* filter = new Kestrel::Gui::DisableDragAndDropEventFilter(widget);
    widget->installEventFilter(filter);
    return filter;
}

/// An event's whole way: application, filters, widget.
void send(benchmark::State& state, MakeFilter makeFilter)
{
    Sink widget;
    makeFilter(&widget);
    QEvent event(QEvent::UpdateRequest);
    for (auto _ : state)
        QCoreApplication::sendEvent(&widget, &event);
}

/// The filter's own share of it.
void filterAlone(benchmark::State& state, MakeFilter makeFilter)
{
    Sink widget;
    QObject* filter = makeFilter(&widget);
    QEvent event(QEvent::UpdateRequest);
    for (auto _ : state) {
        benchmark::DoNotOptimize(filter);
        benchmark::DoNotOptimize(filter->eventFilter(&widget, &event));
    }
}

BENCHMARK_CAPTURE(send, none, noFilter);
BENCHMARK_CAPTURE(send, empty, emptyFilter);
BENCHMARK_CAPTURE(send, WidgetMouseHandler, mouseHandler);
BENCHMARK_CAPTURE(send, WidgetResizeHandler, resizeHandler);
BENCHMARK_CAPTURE(send, DisableDragAndDropEventFilter, dragAndDropFilter);
BENCHMARK_CAPTURE(filterAlone, empty, emptyFilter);
BENCHMARK_CAPTURE(filterAlone, WidgetMouseHandler, mouseHandler);
BENCHMARK_CAPTURE(filterAlone, WidgetResizeHandler, resizeHandler);
BENCHMARK_CAPTURE(filterAlone, DisableDragAndDropEventFilter, dragAndDropFilter);

} // namespace

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
