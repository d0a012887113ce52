// What a refused precondition costs, next to a plain throw of the same standard exception.

#include <KQt/Ui/Check.h>
#include <KQt/Ui/WidgetResizeHandler.h>

#include <benchmark/benchmark.h>

#include <stdexcept>

namespace {

[[noreturn]] void throwPlain()
{
    throw std::invalid_argument("Parent object can't be NULL");
}

[[noreturn]] void throwChecked()
{
    KQTUI_THROW_INVALID_ARGUMENT("Parent object can't be NULL");
}

/// Calls @p fail with @p depth more frames on the stack.
template <typename Fail>
void below(int depth, Fail fail)
{
    if (depth > 0)
        below(depth - 1, fail);
    else
        fail();
    benchmark::ClobberMemory(); // keeps the call from becoming a jump
}

template <typename Fail>
void measure(benchmark::State& state, Fail fail)
{
    for (auto _ : state) {
        try {
            below(static_cast<int>(state.range(0)), fail);
        } catch (const std::invalid_argument& e) {
            benchmark::DoNotOptimize(e.what());
        }
    }
}

void plainThrow(benchmark::State& state)
{
    measure(state, throwPlain);
}

void checkedThrow(benchmark::State& state)
{
    measure(state, throwChecked);
}

void refusedParent(benchmark::State& state)
{
    measure(state, [] { const Kestrel::Gui::WidgetResizeHandler handler(nullptr); });
}

// The argument is the number of frames between the throw and the handler.
BENCHMARK(plainThrow)->Arg(0)->Arg(50);
BENCHMARK(checkedThrow)->Arg(0)->Arg(50);
BENCHMARK(refusedParent)->Arg(0)->Arg(50);

} // namespace

BENCHMARK_MAIN();
