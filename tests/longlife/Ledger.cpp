#include "Ledger.h"

#include "Counters.h"

#include <algorithm>

Ledger::Ledger()
    : m_accounts(counters().size())
{
}

void Ledger::readUntouched()
{
    for (std::size_t i = 0; i < m_accounts.size(); ++i)
        m_accounts[i].untouched = counters()[i].read();
}

void Ledger::read()
{
    for (std::size_t i = 0; i < m_accounts.size(); ++i) {
        const Counter& counter = counters()[i];
        Account& account = m_accounts[i];
        if (m_readings == 0 && counter.kinds)
            account.kindsAtStart = counter.kinds();
        const qint64 value = counter.read();
        account.last[m_readings % Compared] = value;
        if (m_readings == 0)
            account.start = value;
        else if (m_readings < Compared)
            account.start = std::max(account.start, value);
    }
    ++m_readings;
}

QString Ledger::line() const
{
    QStringList parts;
    for (std::size_t i = 0; i < m_accounts.size(); ++i)
        parts << QStringLiteral("%1 %2")
                     .arg(m_accounts[i].last[(m_readings - 1) % Compared])
                     .arg(QLatin1String(counters()[i].name));
    return parts.join(QStringLiteral(", "));
}

QStringList Ledger::growth() const
{
    QStringList lines;
    for (std::size_t i = 0; i < m_accounts.size(); ++i) {
        const Counter& counter = counters()[i];
        const Account& account = m_accounts[i];
        const qint64 start = counter.limit == Counter::Limit::Untouched ? account.untouched : account.start;
        const qint64 end = *std::min_element(account.last.begin(), account.last.end());
        if (end <= start + counter.tolerance + static_cast<qint64>(counter.tolerancePerRound * m_readings))
            continue;
        lines << QStringLiteral("%1, from %2 to %3 in %4 rounds")
                     .arg(QLatin1String(counter.name))
                     .arg(start)
                     .arg(end)
                     .arg(m_readings);
        if (counter.kinds)
            lines.last() += moreKinds(account.kindsAtStart, counter.kinds()).join(QString());
    }
    return lines;
}

QStringList Ledger::moreKinds(const QMap<QByteArray, int>& before, const QMap<QByteArray, int>& now)
{
    QStringList lines;
    for (auto kind = now.begin(); kind != now.end(); ++kind) {
        const int more = kind.value() - before.value(kind.key());
        if (more > 0)
            lines << QStringLiteral("\n    +%1 %2").arg(more).arg(QString::fromUtf8(kind.key()));
    }
    return lines;
}
