#pragma once

#include <QString>
#include <QStringList>

#include <functional>

namespace TestSupport {

/// What happened to the scripted objects of one test, in order, and how many of them are alive.
struct CallRecorder
{
    QStringList calls;
    int living = 0;
    /// Is told of each call once it was recorded.
    std::function<void(const QString&)> onCall;

    void add(const QString& call)
    {
        calls += call;
        if (onCall)
            onCall(call);
    }

    /// The calls that begin with one of @p starts, in order.
    QStringList callsOf(const QStringList& starts) const
    {
        QStringList found;
        for (const QString& call : calls) {
            for (const QString& start : starts) {
                if (call.startsWith(start)) {
                    found += call;
                    break;
                }
            }
        }
        return found;
    }
};

inline QString hex(quint32 value)
{
    return QStringLiteral("0x%1").arg(value, 0, 16);
}

inline QString text(const wchar_t* wide)
{
    return wide ? QString::fromWCharArray(wide) : QStringLiteral("null");
}

} // namespace TestSupport
