#pragma once

#include <QDir>
#include <QFile>
#include <QMap>
#include <QStringList>

namespace TestSupport {

/// The threads of this process, by their number in the system, with their names (15 characters at most). Linux.
inline QMap<int, QString> processThreads()
{
    QMap<int, QString> threads;
    const QDir tasks(QStringLiteral("/proc/self/task"));
    const QStringList numbers = tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString& number : numbers) {
        QFile name(tasks.filePath(number + QStringLiteral("/comm")));
        if (name.open(QIODevice::ReadOnly))
            threads.insert(number.toInt(), QString::fromUtf8(name.readAll()).trimmed());
    }
    return threads;
}

/// Which threads have come since its construction: those that were there at any look().
class ThreadWatch
{
public:
    /// Names that were seen, sorted. A thread has the name of its maker until it gives itself one: look again.
    QStringList newNames() const
    {
        QStringList names = m_new.values();
        names.sort();
        return names;
    }

    void look()
    {
        const QMap<int, QString> now = processThreads();
        for (auto thread = now.begin(); thread != now.end(); ++thread) {
            if (!m_before.contains(thread.key()))
                m_new.insert(thread.key(), thread.value());
        }
    }

    /// Looks, and tells what was seen.
    QStringList namesAfterLooking()
    {
        look();
        return newNames();
    }

private:
    const QMap<int, QString> m_before = processThreads();
    QMap<int, QString> m_new;
};

} // namespace TestSupport
