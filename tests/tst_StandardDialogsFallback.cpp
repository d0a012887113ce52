#include <KQt/Ui/Check.h>
#include <KQt/Ui/Platforms/NativeFileDialog.h>
#include <KQt/Ui/StandardDialogs.h>

#include "support/ModalDialog.h"

#include <glog/logging.h>

#include <QFileDialog>
#include <QtTest>
#include <QWidget>

#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

using Kestrel::Gui::StandardDialogs;
using OpenMode = StandardDialogs::OpenMode;
using TestSupport::ModalDialog;

namespace {

/// What the system's dialog is asked for.
struct Request
{
    QWidget* parent = nullptr;
    QString caption;
    QString dir;
    QString filter;
    QString* selectedFilter = nullptr;
    OpenMode mode = OpenMode();
};

/// The system's dialog of this test: notes what it is asked for, then does what the test says.
struct System
{
    bool hasDialog = true;
    std::vector<Request> requests;
    std::function<QStringList()> answer = [] { return QStringList(); };
};

System& theSystem()
{
    static System instance;
    return instance;
}

QStringList ask(QWidget* parent, const QString& caption, const QString& dir, const QString& filter,
                QString* selectedFilter, OpenMode mode)
{
    theSystem().requests.push_back({parent, caption, dir, filter, selectedFilter, mode});
    return theSystem().answer();
}

struct Record
{
    google::LogSeverity severity;
    std::string file;
    std::string baseName;
    int line;
    std::string message;
};

/// Keeps glog's records while it exists.
class RecordCatcher : public google::LogSink
{
public:
    RecordCatcher() { google::AddLogSink(this); }
    ~RecordCatcher() override { google::RemoveLogSink(this); }

    void send(google::LogSeverity severity, const char* file, const char* baseName, int line,
              const google::LogMessageTime&, const char* message, size_t length) override
    {
        records.push_back({severity, file, baseName, line, std::string(message, length)});
    }

    std::vector<Record> records;
};

struct Derived : StandardDialogs
{
    using StandardDialogs::GetOpenImpl;
    using StandardDialogs::ImplMode;
};

const QString caption = QStringLiteral("Choose something");

} // namespace

Q_DECLARE_METATYPE(std::function<void()>)

// In the place of the platform's: the library's internal objects are linked as an archive, which is only asked for what
// the program lacks.
Kestrel::Gui::NativeFileDialog Kestrel::Gui::nativeFileDialog()
{
    return theSystem().hasDialog ? &ask : nullptr;
}

/// How the system's dialog and Qt's take turns.
class tst_StandardDialogsFallback : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { theSystem() = System(); }

    void theSystemIsAsked();
    void modesReachTheSystem_data();
    void modesReachTheSystem();
    void theSystemsAnswerIsFinal_data();
    void theSystemsAnswerIsFinal();
    void aFailureIsLoggedOnceAndQtFollows();
    void otherExceptionsAreNotCaught();
    void parentGoesBeforeTheFallback();
    void withoutADialogOfTheSystem();
    void qtAlone_data();
    void qtAlone();
};

void tst_StandardDialogsFallback::initTestCase()
{
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

void tst_StandardDialogsFallback::theSystemIsAsked()
{
    QWidget parent;
    QString selectedFilter;
    StandardDialogs::getOpen(&parent, caption, QStringLiteral("/tmp"), QStringLiteral("All (*)"), &selectedFilter,
                             OpenMode::Directories);
    QCOMPARE(theSystem().requests.size(), std::size_t(1));
    const Request& request = theSystem().requests.front();
    QCOMPARE(request.parent, &parent);
    QCOMPARE(request.caption, caption);
    QCOMPARE(request.dir, QStringLiteral("/tmp"));
    QCOMPARE(request.filter, QStringLiteral("All (*)"));
    QCOMPARE(request.selectedFilter, &selectedFilter);
    QVERIFY(request.mode == OpenMode::Directories);
}

void tst_StandardDialogsFallback::modesReachTheSystem_data()
{
    QTest::addColumn<int>("given");
    QTest::addColumn<int>("asked");
    for (const auto& [given, asked] : {std::pair(0, 2), {1, 3}, {2, 2}, {3, 3}, {4, 4}, {5, 5}, {6, 6}, {7, 7}})
        QTest::addRow("%d", given) << given << asked;
}

// Without files and folders, files are meant.
void tst_StandardDialogsFallback::modesReachTheSystem()
{
    QFETCH(int, given);
    QFETCH(int, asked);
    StandardDialogs::getOpen(nullptr, {}, {}, {}, nullptr, static_cast<OpenMode>(given));
    QCOMPARE(static_cast<int>(theSystem().requests.at(0).mode), asked);
}

void tst_StandardDialogsFallback::theSystemsAnswerIsFinal_data()
{
    QTest::addColumn<QStringList>("answer");
    QTest::newRow("cancelled") << QStringList();
    QTest::newRow("two items") << QStringList({QStringLiteral("C:/a"), QStringLiteral("C:/b")});
}

void tst_StandardDialogsFallback::theSystemsAnswerIsFinal()
{
    QFETCH(QStringList, answer);
    theSystem().answer = [&] { return answer; };
    const RecordCatcher log;
    ModalDialog<QFileDialog> dialog([](QFileDialog&) {});
    QCOMPARE(StandardDialogs::getOpen(), answer);
    QVERIFY(!dialog.wasShown());
    QVERIFY(log.records.empty());
}

void tst_StandardDialogsFallback::aFailureIsLoggedOnceAndQtFollows()
{
    std::string what;
    theSystem().answer = [&]() -> QStringList {
        try {
            KQTUI_THROW_RUNTIME_ERROR("Show dialog failed");
        } catch (const std::exception& failure) {
            what = failure.what();
            throw;
        }
    };
    const RecordCatcher log;
    QFileDialog::Options options;
    ModalDialog<QFileDialog> dialog([&](QFileDialog& shown) { options = shown.options(); });
    QCOMPARE(StandardDialogs::getOpen(nullptr, caption), QStringList(QString()));

    QVERIFY(dialog.wasShown());
    QVERIFY(options.testFlag(QFileDialog::HideNameFilterDetails));
    QCOMPARE(log.records.size(), std::size_t(1));
    const Record& record = log.records.front();
    QCOMPARE(record.severity, google::GLOG_WARNING);
    QCOMPARE(record.severity, 1);
    QCOMPARE(record.file, std::string("KQt/Ui/Platforms/win/StandardDialogs.cpp"));
    QCOMPARE(record.baseName, std::string("StandardDialogs.cpp"));
    QCOMPARE(record.line, 447);
    QCOMPARE(record.message, what);
}

// Only what the library's own checks throw is answered with a dialog.
void tst_StandardDialogsFallback::otherExceptionsAreNotCaught()
{
    theSystem().answer = []() -> QStringList { throw 42; };
    const RecordCatcher log;
    ModalDialog<QFileDialog> dialog([](QFileDialog&) {});
    QVERIFY_EXCEPTION_THROWN(StandardDialogs::getOpen(), int);
    QVERIFY(!dialog.wasShown());
    QVERIFY(log.records.empty());
}

void tst_StandardDialogsFallback::parentGoesBeforeTheFallback()
{
    auto parent = std::make_unique<QWidget>();
    theSystem().answer = [&]() -> QStringList {
        parent.reset();
        throw std::runtime_error("gone");
    };
    const RecordCatcher log;
    bool hasParent = true;
    ModalDialog<QFileDialog> dialog([&](QFileDialog& shown) { hasParent = shown.parent() != nullptr; });
    StandardDialogs::getOpen(parent.get());
    QVERIFY(dialog.wasShown());
    QVERIFY(!hasParent);
}

void tst_StandardDialogsFallback::withoutADialogOfTheSystem()
{
    theSystem().hasDialog = false;
    const RecordCatcher log;
    ModalDialog<QFileDialog> dialog([](QFileDialog&) {});
    StandardDialogs::getOpen();
    QVERIFY(dialog.wasShown());
    QVERIFY(log.records.empty());
}

void tst_StandardDialogsFallback::qtAlone_data()
{
    using Call = std::function<void()>;
    QTest::addColumn<Call>("call");
    QTest::newRow("getOpenFileName") << Call([] { StandardDialogs::getOpenFileName(); });
    QTest::newRow("getOpenFileNames") << Call([] { StandardDialogs::getOpenFileNames(); });
    QTest::newRow("getSaveFileName") << Call([] { StandardDialogs::getSaveFileName(); });
    QTest::newRow("getExistingDirectory") << Call([] { StandardDialogs::getExistingDirectory(); });
    QTest::newRow("getDVDDirectory") << Call([] { StandardDialogs::getDVDDirectory(); });
    QTest::newRow("GetOpenImpl(Qt)") << Call(
        [] { Derived::GetOpenImpl(nullptr, {}, {}, {}, nullptr, OpenMode::Files, {}, Derived::ImplMode::Qt); });
}

// Only getOpen() shows the system's dialog by this way.
void tst_StandardDialogsFallback::qtAlone()
{
    QFETCH(std::function<void()>, call);
    ModalDialog<QFileDialog> dialog([](QFileDialog&) {});
    call();
    QVERIFY(dialog.wasShown());
    QVERIFY(theSystem().requests.empty());
}

QTEST_MAIN(tst_StandardDialogsFallback)
#include "tst_StandardDialogsFallback.moc"
