#pragma once

#include <QByteArray>
#include <QMap>
#include <QStringList>

#include <array>
#include <vector>

/// Reads all counters again and again, and tells at the end which have grown.
///
/// One reading may be above the others, by something of Qt's that is about to go. Compared are the highest of a few
/// readings at the start and the lowest of a few at the end, so that only what grows with the rounds counts.
class Ledger
{
public:
    /// How many readings are compared at either side.
    static constexpr int Compared = 5;

    Ledger();

    /// Before the first round, when everything has been made.
    void readUntouched();
    /// After each round, once all that is made at the first use is there.
    void read();

    int readings() const { return m_readings; }
    /// The last reading, for people.
    QString line() const;
    /// One for each counter that has grown, with what there is more of. Needs twice as many readings as are compared.
    QStringList growth() const;

private:
    struct Account
    {
        qint64 untouched = 0;
        qint64 start = 0;                  ///< highest of the first readings
        std::array<qint64, Compared> last; ///< round about, the next at m_readings % Compared
        QMap<QByteArray, int> kindsAtStart;
    };

    static QStringList moreKinds(const QMap<QByteArray, int>& before, const QMap<QByteArray, int>& now);

    std::vector<Account> m_accounts; // one for each counter: nothing in here grows
    int m_readings = 0;
};
