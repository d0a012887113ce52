#include <Basalt/ScopedFunctionCall.h>

#include <utility>

namespace Kestrel::Core {

// By value, as in the library that this stands in for. NOLINTNEXTLINE(performance-unnecessary-value-param)
ScopedFunctionCall::ScopedFunctionCall(std::function<void()> enter, std::function<void()> leave, bool runEnterNow)
    : m_leave(std::move(leave))
{
    if (runEnterNow && enter)
        enter();
}

ScopedFunctionCall::~ScopedFunctionCall()
{
    if (m_leave)
        m_leave();
}

} // namespace Kestrel::Core
