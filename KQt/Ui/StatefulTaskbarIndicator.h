#pragma once

#include <KQt/Ui/TaskbarIndicator.h>

namespace Kestrel::Gui {

/// An indicator that keeps its state itself, for systems that only want to be told what to show.
///
/// Stopped outranks paused, and both last. A range that the value does not fit into brings the value back to its start.
class StatefulTaskbarIndicator : public TaskbarIndicator
{
public:
    enum class Look {
        Hidden,
        Normal,
        Busy,
        Paused,
        Stopped,
    };

    ~StatefulTaskbarIndicator() override;

    void show() override;
    void hide() override;
    void reset() override;
    void pause() override;
    void stop() override;
    void setRange(int minimum, int maximum) override;
    void setValue(int value) override;

protected:
    StatefulTaskbarIndicator();

    Look look() const;
    int minimum() const { return m_state.minimum; }
    int maximum() const { return m_state.maximum; }
    int value() const { return m_state.value; }

    /// Something of the above has changed.
    virtual void stateChanged() = 0;

private:
    struct State
    {
        bool visible = false;
        bool paused = false;
        bool stopped = false;
        int minimum = 0;
        int maximum = 100;
        int value = 0;
    };

    void setState(const State& state);

    State m_state;
};

} // namespace Kestrel::Gui
