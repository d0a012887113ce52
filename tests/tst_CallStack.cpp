#include <Basalt/CallStack.h>

#include <QRegularExpression>
#include <QtTest>

class tst_CallStack : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void oneNumberedFrameALine();
    void callersAreNamedOutwards();
    void depthIsBounded();
    void staysInsideTheProcess();
};

namespace {

QStringList linesOf(const std::string& callStack)
{
    return QString::fromStdString(callStack).split(QLatin1Char('\n'));
}

#if defined(__GNUC__)
__attribute__((noinline))
#endif
std::string
stackBelow(int depth)
{
    if (depth == 0)
        return Kestrel::GetCallStack();
    std::string below = stackBelow(depth - 1);
    below.reserve(below.size() + 1); // keeps the call from becoming a jump
    return below;
}

} // namespace

void tst_CallStack::oneNumberedFrameALine()
{
    const QStringList lines = linesOf(Kestrel::GetCallStack());
    QVERIFY(!lines.isEmpty());
    const QRegularExpression frame(QStringLiteral("^ ?(\\d+)# \\S"));
    for (int i = 0; i < lines.size(); ++i) {
        const auto match = frame.match(lines[i]);
        QVERIFY2(match.hasMatch(), qPrintable(lines[i]));
        QCOMPARE(match.captured(1).toInt(), i);
    }
}

void tst_CallStack::callersAreNamedOutwards()
{
#ifdef Q_OS_WIN
    QSKIP("frames are modules and offsets on Windows");
#else
    // The test is called by Qt's meta-object system, which is called by QTest.
    const QStringList lines = linesOf(Kestrel::GetCallStack());
    const int invoke =
        lines.indexOf(QRegularExpression(QStringLiteral(".*QMetaMethod::invoke\\(.* in libQt5Core\\.so.*")));
    const int exec = lines.indexOf(QRegularExpression(QStringLiteral(".*QTest::qExec\\(.* in libQt5Test\\.so.*")));
    QVERIFY2(invoke > 0, qPrintable(lines.join(QLatin1Char('\n'))));
    QVERIFY2(exec > invoke, qPrintable(lines.join(QLatin1Char('\n'))));
    QVERIFY2(lines.first().contains(QLatin1String("tst_CallStack")), "the caller's own frame comes first");
#endif
}

void tst_CallStack::depthIsBounded()
{
    const int shallow = linesOf(stackBelow(0)).size();
    const int deep = linesOf(stackBelow(10)).size();
    QVERIFY(deep > shallow);
    QVERIFY(linesOf(stackBelow(500)).size() <= 64);
}

void tst_CallStack::staysInsideTheProcess()
{
    // Paths of the machine are kept out of messages.
    const auto lines = linesOf(Kestrel::GetCallStack());
    for (const QString& line : lines) {
        QVERIFY2(!line.contains(QLatin1String(" /")), qPrintable(line));
        QVERIFY2(!line.contains(QLatin1String(":\\")), qPrintable(line));
    }
}

QTEST_APPLESS_MAIN(tst_CallStack)
#include "tst_CallStack.moc"
