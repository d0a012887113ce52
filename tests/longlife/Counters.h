#pragma once

#include <QByteArray>
#include <QMap>

#include <functional>
#include <vector>

/// Something that must not become more while the application is used.
struct Counter
{
    /// What the readings of a long run are compared with.
    enum class Limit {
        WarmedUp, ///< the readings after the first rounds: what is made at the first use may stay
        Untouched ///< the reading before the first round: nothing may stay
    };

    const char* name;
    std::function<qint64()> read;
    Limit limit;
    qint64 tolerance;
    double tolerancePerRound;
    /// What is counted, by kind; empty where it has none.
    std::function<QMap<QByteArray, int>()> kinds;
};

const std::vector<Counter>& counters();
