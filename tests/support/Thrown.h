#pragma once

#include <functional>
#include <utility>

namespace TestSupport {

/// What an application's handler throws. No exception of the standard library, so that nobody on its way knows it.
struct Thrown
{
};

/// Whether Thrown comes out of @p call.
template <typename Call>
bool isThrownBy(Call&& call)
{
    try {
        std::forward<Call>(call)();
    } catch (const Thrown&) {
        return true;
    }
    return false;
}

/// Throws once, when it is armed, after having let so many calls pass.
class Fuse
{
public:
    void arm(int callsToPass = 0) { m_callsToPass = callsToPass; }
    bool isArmed() const { return m_callsToPass >= 0; }

    void operator()()
    {
        if (m_callsToPass >= 0 && m_callsToPass-- == 0)
            throw Thrown();
    }

private:
    int m_callsToPass = -1;
};

} // namespace TestSupport
