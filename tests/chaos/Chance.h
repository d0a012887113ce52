#pragma once

#include <QRandomGenerator>

/// The same numbers at each run of the same seed.
class Chance
{
public:
    explicit Chance(quint32 seed)
        : m_random(seed)
    {
    }

    /// 0..@p limit - 1; 0 for a limit of 0.
    int below(int limit) { return limit > 0 ? m_random.bounded(limit) : 0; }
    int between(int least, int most) { return least + below(most - least + 1); }
    bool oneIn(int count) { return below(count) == 0; }
    quint32 bits() { return m_random.generate(); }

    template <typename Container>
    auto oneOf(const Container& container) -> decltype(container[0])
    {
        return container[static_cast<decltype(container.size())>(below(static_cast<int>(container.size())))];
    }

private:
    QRandomGenerator m_random;
};
