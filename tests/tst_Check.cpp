#include <KQt/Ui/Check.h>
#include <KQt/Ui/WidgetMouseHandler.h>
#include <KQt/Ui/WidgetResizeHandler.h>

#include "support/CheckProbe.h"

#include <boost/exception/all.hpp>

#include <QRegularExpression>
#include <QtTest>

#include <exception>
#include <functional>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <typeinfo>

using Kestrel::Gui::WidgetMouseHandler;
using Kestrel::Gui::WidgetResizeHandler;
using Kestrel::Gui::Detail::librarySourcePath;

namespace {

template <typename Exception>
using Thrown = boost::exception_detail::clone_impl<boost::exception_detail::error_info_injector<Exception>>;

using Probe = CheckProbe<QString>;

struct Caught
{
    std::string what;
    std::string function;
    std::string file;
    int line = 0;
    const std::type_info* type = nullptr;
};

/// Runs @p fail, which has to throw, and reads what it threw as a caller would.
Caught catchFrom(const std::function<void()>& fail)
{
    Caught caught;
    try {
        fail();
    } catch (const boost::exception& e) {
        if (const auto* function = boost::get_error_info<boost::throw_function>(e))
            caught.function = *function;
        if (const auto* file = boost::get_error_info<boost::throw_file>(e))
            caught.file = *file;
        if (const auto* line = boost::get_error_info<boost::throw_line>(e))
            caught.line = *line;
        if (const auto* standard = dynamic_cast<const std::exception*>(&e)) {
            caught.what = standard->what();
            caught.type = &typeid(*standard);
        }
    }
    return caught;
}

/// Whether @p fail throws something that a handler for @p Exception catches.
template <typename Exception>
bool isCaughtAs(const std::function<void()>& fail)
{
    try {
        fail();
    } catch (const Exception&) {
        return true;
    } catch (...) {
        return false;
    }
    return false;
}

void failArgument()
{
    Probe().failArgument(QString(), 1);
}

void failPlatform()
{
    Probe().failPlatform();
}

void refuseNullWidget()
{
    const WidgetMouseHandler handler(nullptr);
}

void refuseNullObject()
{
    const WidgetResizeHandler handler(nullptr);
}

} // namespace

class tst_Check : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theTypeIsTheWrappedStandardException();
    void callersCatchWhatTheyKnow();
    void whatIsMessageLineFeedCallStack_data();
    void whatIsMessageLineFeedCallStack();
    void theStackStartsAtTheFacility();
    void thePlaceIsThatOfTheDetectingFunction();
    void thePlaceOfALibraryCheck_data();
    void thePlaceOfALibraryCheck();
    void theMacrosNeverReturn();
    void exceptionPointersKeepEverything();
    void sourcePathStartsAtTheLibrary_data();
    void sourcePathStartsAtTheLibrary();
    void sourcePathIsAConstant();
    void noPathOfTheBuildMachine();
};

void tst_Check::theTypeIsTheWrappedStandardException()
{
    QVERIFY(*catchFrom(failArgument).type == typeid(Thrown<std::invalid_argument>));
    QVERIFY(*catchFrom(failPlatform).type == typeid(Thrown<std::runtime_error>));
    QVERIFY(*catchFrom(refuseNullWidget).type == typeid(Thrown<std::invalid_argument>));
    QVERIFY(*catchFrom(refuseNullObject).type == typeid(Thrown<std::invalid_argument>));
}

void tst_Check::callersCatchWhatTheyKnow()
{
    // The last three are thrown in the library and caught here, across its boundary.
    QVERIFY(isCaughtAs<std::invalid_argument>(failArgument));
    QVERIFY(isCaughtAs<std::logic_error>(failArgument));
    QVERIFY(!isCaughtAs<std::runtime_error>(failArgument));
    QVERIFY(isCaughtAs<std::runtime_error>(failPlatform));
    QVERIFY(!isCaughtAs<std::logic_error>(failPlatform));
    QVERIFY(isCaughtAs<std::invalid_argument>(refuseNullWidget));
    QVERIFY(isCaughtAs<std::exception>(refuseNullWidget));
    QVERIFY(isCaughtAs<boost::exception>(refuseNullWidget));
}

void tst_Check::whatIsMessageLineFeedCallStack_data()
{
    QTest::addColumn<int>("check");
    QTest::addColumn<QByteArray>("message");
    QTest::newRow("argument") << 0 << QByteArray("the argument is wrong");
    QTest::newRow("platform") << 1 << QByteArray("the platform failed");
    QTest::newRow("null widget") << 2 << QByteArray("Parent object can't be NULL");
    QTest::newRow("null object") << 3 << QByteArray("Parent object can't be NULL");
}

void tst_Check::whatIsMessageLineFeedCallStack()
{
    QFETCH(int, check);
    QFETCH(QByteArray, message);
    void (*const checks[])() = {failArgument, failPlatform, refuseNullWidget, refuseNullObject};

    const QByteArray what = QByteArray::fromStdString(catchFrom(checks[check]).what);
    QVERIFY2(what.startsWith(message + '\n'), what.constData());
    const QByteArray callStack = what.mid(message.size() + 1);
    QVERIFY(!callStack.trimmed().isEmpty());
    QVERIFY2(!callStack.startsWith('\n'), "one line feed after the message");
    QVERIFY2(!callStack.endsWith('\n'), "none of the facility's own at the end");
}

void tst_Check::theStackStartsAtTheFacility()
{
#if defined(Q_OS_WIN) || defined(KQTUI_STATIC)
    QSKIP("frames have names where the library's symbols are in a dynamic table");
#else
    const QList<QByteArray> lines = QByteArray::fromStdString(catchFrom(refuseNullWidget).what).split('\n');
    QVERIFY(lines.size() > 3);
    QVERIFY2(lines[1].contains("throwInvalidArgument"), lines[1].constData());
    QVERIFY2(lines[2].contains("WidgetMouseHandler::WidgetMouseHandler(QWidget*)"), lines[2].constData());
#endif
}

void tst_Check::thePlaceIsThatOfTheDetectingFunction()
{
    const Probe probe;
    const Caught argument = catchFrom([&probe] { probe.failArgument(QString(), 1); });
    QCOMPARE(argument.function, std::string(probe.signature));
    QCOMPARE(argument.file, std::string("KQt/Ui/Nested/Probe.h"));
    QCOMPARE(argument.line, probe.line);
    // Class, template arguments and parameter types, however a compiler spells the rest.
    const QByteArray function = QByteArray::fromStdString(argument.function);
    for (const char* part : {"CheckProbe", "failArgument", "QString", "int"})
        QVERIFY2(function.contains(part), function.constData());

    const Caught platform = catchFrom([&probe] { probe.failPlatform(); });
    QCOMPARE(platform.function, std::string(probe.signature));
    QVERIFY(platform.function.find("failPlatform") != std::string::npos);
    QCOMPARE(platform.file, std::string("KQt/Ui/Nested/Probe.h"));
    QCOMPARE(platform.line, probe.line);
    QVERIFY(platform.line > argument.line);
}

void tst_Check::thePlaceOfALibraryCheck_data()
{
    QTest::addColumn<bool>("mouse");
    QTest::addColumn<QByteArray>("function");
    QTest::addColumn<QByteArray>("file");
    QTest::newRow("WidgetMouseHandler") << true
                                        << QByteArray("Kestrel::Gui::WidgetMouseHandler::WidgetMouseHandler(QWidget")
                                        << QByteArray("KQt/Ui/WidgetMouseHandler.cpp");
    QTest::newRow("WidgetResizeHandler") << false
                                         << QByteArray("Kestrel::Gui::WidgetResizeHandler::WidgetResizeHandler(QObject")
                                         << QByteArray("KQt/Ui/WidgetResizeHandler.cpp");
}

void tst_Check::thePlaceOfALibraryCheck()
{
    QFETCH(bool, mouse);
    QFETCH(QByteArray, function);
    QFETCH(QByteArray, file);
    const Caught caught = mouse ? catchFrom(refuseNullWidget) : catchFrom(refuseNullObject);
    QVERIFY2(caught.function.find(function.toStdString()) != std::string::npos, caught.function.c_str());
    QCOMPARE(QByteArray::fromStdString(caught.file), file);
    QVERIFY(caught.line > 0);
}

void tst_Check::theMacrosNeverReturn()
{
    // A function that ends in a check needs no return value; the compiler's warnings are errors in the release build.
    const auto argument = []() -> int { KQTUI_THROW_INVALID_ARGUMENT("no value"); };
    const auto platform = []() -> int { KQTUI_THROW_RUNTIME_ERROR("no value"); };
    QVERIFY_EXCEPTION_THROWN(argument(), std::invalid_argument);
    QVERIFY_EXCEPTION_THROWN(platform(), std::runtime_error);
}

void tst_Check::exceptionPointersKeepEverything()
{
    const Caught direct = catchFrom(refuseNullWidget);

    boost::exception_ptr boostPointer;
    std::exception_ptr standardPointer;
    try {
        refuseNullWidget();
    } catch (...) {
        boostPointer = boost::current_exception();
        standardPointer = std::current_exception();
    }
    for (const Caught& again : {catchFrom([&] { boost::rethrow_exception(boostPointer); }),
                                catchFrom([&] { std::rethrow_exception(standardPointer); })}) {
        QVERIFY(again.type && *again.type == typeid(Thrown<std::invalid_argument>));
        QCOMPARE(again.function, direct.function);
        QCOMPARE(again.file, direct.file);
        QCOMPARE(again.line, direct.line);
        QVERIFY(again.what.rfind("Parent object can't be NULL\n", 0) == 0);
    }
}

void tst_Check::sourcePathStartsAtTheLibrary_data()
{
    QTest::addColumn<QByteArray>("path");
    QTest::addColumn<QByteArray>("expected");
    const auto row = [](const char* name, const auto& path, const char* expected) {
        QTest::newRow(name) << QByteArray(librarySourcePath(path).text) << QByteArray(expected);
    };
    row("from the source tree", "KQt/Ui/Check.cpp", "KQt/Ui/Check.cpp");
    row("absolute", "/home/me/kqtui/KQt/Ui/Check.cpp", "KQt/Ui/Check.cpp");
    row("relative", "../../KQt/Ui/Check.cpp", "KQt/Ui/Check.cpp");
    row("nested", "/usr/include/KQt/Ui/SelectionFrameWidget/SelectionFrameGraphicsItem.h",
        "KQt/Ui/SelectionFrameWidget/SelectionFrameGraphicsItem.h");
    row("Windows", R"(C:\src\kqtui\KQt\Ui\Platforms\win\StandardDialogs.cpp)",
        "KQt/Ui/Platforms/win/StandardDialogs.cpp");
    row("Windows, mixed", R"(C:\src/kqtui\KQt/Ui\Check.cpp)", "KQt/Ui/Check.cpp");
    row("Windows, relative", R"(..\..\KQt\Ui\Check.cpp)", "KQt/Ui/Check.cpp");
    row("checked out below a folder of the same name", "/work/KQt/Ui/build/../KQt/Ui/Check.cpp", "KQt/Ui/Check.cpp");
    row("a folder that only ends alike", "/work/myKQt/Ui/tests/tst.cpp", "/work/myKQt/Ui/tests/tst.cpp");
    row("a test", "tests/tst_Check.cpp", "tests/tst_Check.cpp");
    row("empty", "", "");
    row("cut short", "/src/KQt/Ui", "/src/KQt/Ui");
}

void tst_Check::sourcePathStartsAtTheLibrary()
{
    QFETCH(QByteArray, path);
    QFETCH(QByteArray, expected);
    QCOMPARE(path, expected);
}

void tst_Check::sourcePathIsAConstant()
{
    // Boost keeps the pointer, so the text has to outlive every exception; and no left-out part may reach a binary.
    constexpr auto path = librarySourcePath("/home/me/KQt/Ui/A.cpp");
    static_assert(path.text[0] == 'K' && path.text[7] == 'A' && path.text[12] == '\0');
    const char* const first = KQTUI_SOURCE_FILE;
    QCOMPARE(QByteArray(first).right(19), QByteArray("tests/tst_Check.cpp"));
}

void tst_Check::noPathOfTheBuildMachine()
{
    const QRegularExpression absolute(QStringLiteral(R"x((^|[\s("])(/|[A-Za-z]:[\\/])\w)x"),
                                      QRegularExpression::MultilineOption);
    QVERIFY(absolute.match(QStringLiteral(" 0# main in /usr/bin/x")).hasMatch());
    QVERIFY(absolute.match(QStringLiteral(R"(at C:\x)")).hasMatch());
    for (const auto check : {failArgument, failPlatform, refuseNullWidget, refuseNullObject}) {
        try {
            check();
            QFAIL("no exception");
        } catch (const boost::exception& e) {
            const QString text = QString::fromStdString(boost::diagnostic_information(e));
            QVERIFY2(!absolute.match(text).hasMatch(), qPrintable(text));
            QVERIFY(!text.contains(QCoreApplication::applicationDirPath()));
        }
    }
}

QTEST_MAIN(tst_Check)
#include "tst_Check.moc"
