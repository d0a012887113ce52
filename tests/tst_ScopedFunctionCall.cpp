#include <Basalt/ScopedFunctionCall.h>

#include <QtTest>

#include <functional>
#include <stdexcept>
#include <type_traits>

using Kestrel::Core::ScopedFunctionCall;

static_assert(!std::is_copy_constructible_v<ScopedFunctionCall> && !std::is_copy_assignable_v<ScopedFunctionCall>,
              "a copy would leave twice");

class tst_ScopedFunctionCall : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_calls.clear(); }

    void entersAtConstructionAndLeavesAtDestruction();
    void leavesOnlyWhereEnterIsNotWanted();
    void leavesWhenUnwinding();
    void doesNotLeaveWhatItNeverEntered();
    void skipsEmptyFunctions();

private:
    std::function<void()> note(const char* call)
    {
        return [this, call] { m_calls << QLatin1String(call); };
    }

    QStringList m_calls;
};

void tst_ScopedFunctionCall::entersAtConstructionAndLeavesAtDestruction()
{
    {
        const ScopedFunctionCall guard(note("enter"), note("leave"), true);
        QCOMPARE(m_calls, QStringList({QStringLiteral("enter")}));
    }
    QCOMPARE(m_calls, QStringList({QStringLiteral("enter"), QStringLiteral("leave")}));
}

void tst_ScopedFunctionCall::leavesOnlyWhereEnterIsNotWanted()
{
    {
        const ScopedFunctionCall guard(note("enter"), note("leave"), false);
        QVERIFY(m_calls.isEmpty());
    }
    QCOMPARE(m_calls, QStringList({QStringLiteral("leave")}));
}

void tst_ScopedFunctionCall::leavesWhenUnwinding()
{
    try {
        const ScopedFunctionCall guard(note("enter"), note("leave"), true);
        throw std::runtime_error("out");
    } catch (const std::runtime_error&) {
        m_calls << QStringLiteral("caught");
    }
    QCOMPARE(m_calls, QStringList({QStringLiteral("enter"), QStringLiteral("leave"), QStringLiteral("caught")}));
}

void tst_ScopedFunctionCall::doesNotLeaveWhatItNeverEntered()
{
    const auto fail = [] { throw std::runtime_error("no entry"); };
    QVERIFY_EXCEPTION_THROWN(ScopedFunctionCall(fail, note("leave"), true), std::runtime_error);
    QVERIFY(m_calls.isEmpty());
}

void tst_ScopedFunctionCall::skipsEmptyFunctions()
{
    {
        const ScopedFunctionCall noEnter(nullptr, note("leave"), true);
        const ScopedFunctionCall noLeave(note("enter"), nullptr, true);
    }
    QCOMPARE(m_calls, QStringList({QStringLiteral("enter"), QStringLiteral("leave")}));
}

QTEST_APPLESS_MAIN(tst_ScopedFunctionCall)
#include "tst_ScopedFunctionCall.moc"
