#include <KQt/Ui/StatefulTaskbarIndicator.h>

#include <algorithm>
#include <tuple>

namespace Kestrel::Gui {

StatefulTaskbarIndicator::StatefulTaskbarIndicator() = default;
StatefulTaskbarIndicator::~StatefulTaskbarIndicator() = default;

void StatefulTaskbarIndicator::show()
{
    State state = m_state;
    state.visible = true;
    setState(state);
}

void StatefulTaskbarIndicator::hide()
{
    State state = m_state;
    state.visible = false;
    setState(state);
}

void StatefulTaskbarIndicator::reset()
{
    State state = m_state;
    state.value = state.minimum;
    setState(state);
}

void StatefulTaskbarIndicator::pause()
{
    State state = m_state;
    state.paused = true;
    setState(state);
}

void StatefulTaskbarIndicator::stop()
{
    State state = m_state;
    state.stopped = true;
    setState(state);
}

void StatefulTaskbarIndicator::setRange(int minimum, int maximum)
{
    State state = m_state;
    state.minimum = minimum;
    state.maximum = std::max(minimum, maximum);
    if (state.value < state.minimum || state.value > state.maximum)
        state.value = state.minimum;
    setState(state);
}

void StatefulTaskbarIndicator::setValue(int value)
{
    State state = m_state;
    state.value = std::clamp(value, state.minimum, state.maximum);
    setState(state);
}

StatefulTaskbarIndicator::Look StatefulTaskbarIndicator::look() const
{
    if (!m_state.visible)
        return Look::Hidden;
    if (m_state.stopped)
        return Look::Stopped;
    if (m_state.paused)
        return Look::Paused;
    if (m_state.minimum == 0 && m_state.maximum == 0)
        return Look::Busy;
    return Look::Normal;
}

void StatefulTaskbarIndicator::setState(const State& state)
{
    const auto parts = [](const State& s) {
        return std::tie(s.visible, s.paused, s.stopped, s.minimum, s.maximum, s.value);
    };
    if (parts(state) == parts(m_state))
        return;
    m_state = state;
    stateChanged();
}

} // namespace Kestrel::Gui
