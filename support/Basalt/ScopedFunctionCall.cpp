#include <Basalt/ScopedFunctionCall.h>

#include <utility>

namespace Kestrel::Core {

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
