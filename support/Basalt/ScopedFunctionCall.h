#pragma once

#include <functional>

namespace Kestrel::Core {

/// Runs one function on the way into a scope and another on every way out of it, unwinding included.
///
/// @p leave runs exactly once, in the destructor. An enter function that throws leaves nothing to undo: the guard was
/// never built, so @p leave is not called. Empty functions are skipped. @p leave must not throw.
class ScopedFunctionCall
{
public:
    /// @param runEnterNow whether the constructor calls @p enter; without it only @p leave will run.
    ScopedFunctionCall(std::function<void()> enter, std::function<void()> leave, bool runEnterNow);
    ~ScopedFunctionCall();

    ScopedFunctionCall(const ScopedFunctionCall&) = delete;
    ScopedFunctionCall& operator=(const ScopedFunctionCall&) = delete;

private:
    std::function<void()> m_leave;
};

} // namespace Kestrel::Core
