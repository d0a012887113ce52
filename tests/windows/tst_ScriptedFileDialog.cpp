#include "windows/DialogStage.h"
#include "windows/MallocSpy.h"

#include <KQt/Ui/Platforms/NativeFileDialog.h>

#include <boost/exception/all.hpp>

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>
#include <stdexcept>

using Kestrel::Gui::nativeFileDialog;
using Kestrel::Gui::StandardDialogs;
using namespace TestSupport;

namespace {

using OpenMode = StandardDialogs::OpenMode;

constexpr auto filesAndDirectories = OpenMode::Files | OpenMode::Directories;
constexpr HRESULT cancelled = static_cast<HRESULT>(0x800704C7);
constexpr char recordFile[] = "KQt/Ui/Platforms/win/StandardDialogs.cpp";

const QString twoTypes = QStringLiteral("Images (*.jpg *.png);;All files (*)");
const QString twoTypesCall = QStringLiteral("SetFileTypes(Images|*.jpg;*.png, All files|*)");

QStringList listOf(std::initializer_list<const char*> texts)
{
    QStringList list;
    for (const char* text : texts)
        list += QString::fromUtf8(text);
    return list;
}

/// Shows what is protected.
class Dialogs : public StandardDialogs
{
public:
    enum class Implementation { Native, Qt };

    static QStringList open(Implementation implementation, QFileDialog::Options options)
    {
        const auto mode = implementation == Implementation::Qt ? ImplMode::Qt : ImplMode::Native;
        return GetOpenImpl(nullptr, QStringLiteral("Pick"), QString(), QString(), nullptr, OpenMode::Files, options,
                           mode);
    }
};

bool systemIsOld = false;

/// What was thrown, as a caller of the native function sees it.
struct Thrown
{
    QString what;
    QString file;
    QString function;
    int line = -1;
};

Thrown thrownByNativeDialog(OpenMode mode, const QString& filter)
{
    Thrown thrown;
    try {
        nativeFileDialog()(nullptr, QStringLiteral("Pick"), QString(), filter, nullptr, mode);
    } catch (const boost::exception& e) {
        if (const auto* error = dynamic_cast<const std::runtime_error*>(&e))
            thrown.what = QString::fromUtf8(error->what());
        if (const auto* file = boost::get_error_info<boost::throw_file>(e))
            thrown.file = QString::fromUtf8(*file);
        if (const auto* function = boost::get_error_info<boost::throw_function>(e))
            thrown.function = QString::fromUtf8(*function);
        if (const auto* line = boost::get_error_info<boost::throw_line>(e))
            thrown.line = *line;
    }
    return thrown;
}

/// One step that fails, and what is called until then and for the clean-up.
struct Failure
{
    const char* name;
    std::function<void(DialogStage&)> arrange;
    OpenMode mode;
    const char* message;
    int line; ///< 0 for one that is not fixed
    QStringList calls;
    bool writesFilterBack;
};

QVector<Failure> failures()
{
    const auto begin = listOf({"CoInitializeEx(6)", "CoCreateInstance"});
    const auto end = listOf({"release dialog", "CoUninitialize"});
    const auto withOptions = begin + listOf({"GetOptions", "SetOptions(0x101840)"});
    const auto withTypes = withOptions + listOf({"SetTitle(Pick)"}) + QStringList(twoTypesCall);
    const auto open = withTypes + listOf({"SetFileTypeIndex(0)"});
    const auto endWithFilter = listOf({"GetFileTypeIndex"}) + end;

    return {
        {"CoInitializeEx", [](DialogStage& stage) { stage.initialize.answerNextWith(RPC_E_CHANGED_MODE); },
         OpenMode::Files, "CoInitializeEx failed", 375, listOf({"CoInitializeEx(6)"}), false},
        {"CoCreateInstance", [](DialogStage& stage) { stage.script.createResult = E_FAIL; }, OpenMode::Files,
         "Create dialog instance failed", 383, begin + listOf({"CoUninitialize"}), false},
        {"CoCreateInstance without a dialog", [](DialogStage& stage) { stage.script.createsNull = true; },
         OpenMode::Files, "Create dialog instance failed", 383, begin + listOf({"CoUninitialize"}), false},
        {"GetOptions", [](DialogStage& stage) { stage.script.getOptionsResult = E_FAIL; }, OpenMode::Files,
         "Get dialog option failed", 245, begin + listOf({"GetOptions"}) + end, false},
        {"SetOptions", [](DialogStage& stage) { stage.script.setOptionsResult = E_INVALIDARG; }, OpenMode::Files,
         "Set dialog option failed", 261, withOptions + end, false},
        {"SetFileTypes", [](DialogStage& stage) { stage.script.setFileTypesResult = E_UNEXPECTED; }, OpenMode::Files,
         "Set dialog file types failed", 0, withTypes + end, false},
        {"Advise", [](DialogStage& stage) { stage.script.adviseResult = E_OUTOFMEMORY; }, filesAndDirectories,
         "Advise dialog failed", 401, open + listOf({"Advise"}) + endWithFilter, true},
        {"Show", [](DialogStage& stage) { stage.script.showResult = E_ABORT; }, OpenMode::Files, "Show dialog failed",
         412, open + listOf({"Show(0x0)"}) + endWithFilter, true},
        {"Show of files and folders", [](DialogStage& stage) { stage.script.showResult = E_FAIL; }, filesAndDirectories,
         "Show dialog failed", 412, open + listOf({"Advise", "Show(0x0)", "Unadvise(4711)"}) + endWithFilter, true},
    };
}

void addFailureRows()
{
    QTest::addColumn<int>("row");
    const auto rows = failures();
    for (int i = 0; i < rows.size(); ++i)
        QTest::newRow(rows[i].name) << i;
}

} // namespace

// The linker leads the library's question for the system's age here, see CMakeLists.txt.
bool realIsVistaOrGreater() asm("__real__ZN7Kestrel4Core23IsWindowsVistaOrGreaterEv");
bool answerIsVistaOrGreater() asm("__wrap__ZN7Kestrel4Core23IsWindowsVistaOrGreaterEv");

bool answerIsVistaOrGreater()
{
    return !systemIsOld && realIsVistaOrGreater();
}

class tst_ScriptedFileDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();

    void callsInOrder();
    void onlyWhatIsAskedFor();
    void modes_data();
    void modes();
    void ownOptionsStay();
    void eventsOnlyForFilesAndFolders_data();
    void eventsOnlyForFilesAndFolders();
    void successesAreToldBySign();
    void apartmentIsPaired();

    void failureIsLoggedOnceAndQtFollows_data();
    void failureIsLoggedOnceAndQtFollows();
    void failureNamesItsPlace_data();
    void failureNamesItsPlace();
    void qtDialogOfEachMode_data();
    void qtDialogOfEachMode();
    void nextDialogAfterAFailure();
    void qtAloneWhenAsked();
    void qtAloneOnOldSystems();
    void optionsReachQtAlone();

    void cancelIsNoFailure_data();
    void cancelIsNoFailure();
    void silentFailures_data();
    void silentFailures();

    void startFolder_data();
    void startFolder();
    void startFolderIsReleased();
    void ownerIsTheParent();
    void parentDiesWhileOpen();
    void parentDiesAndShowFails();

    void results_data();
    void results();
    void listOfResultsFails_data();
    void listOfResultsFails();

    void fileTypes_data();
    void fileTypes();
    void selectedFilterDoesNotPreselect();
    void filterIsWrittenBack_data();
    void filterIsWrittenBack();
    void filterIsNotAskedForWhenNobodyWantsIt();

    void stringsAreGivenBack();
};

void tst_ScriptedFileDialog::initTestCase()
{
    QCOMPARE(QGuiApplication::platformName(), QStringLiteral("windows"));
    // Qt's dialog would otherwise be the scripted one again.
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QVERIFY(nativeFileDialog());
    DialogStage stage;
    QVERIFY(stage.dialogClass.isRegistered());
}

void tst_ScriptedFileDialog::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_ScriptedFileDialog::callsInOrder()
{
    DialogStage stage;
    stage.script.results.items = itemsOf(listOf({"C:\\a\\one.png", "C:\\a\\two.png"}));

    const QStringList chosen =
        StandardDialogs::getOpen(nullptr, QStringLiteral("Pick"), QStringLiteral("C:/windows"), twoTypes,
                                 &stage.selectedFilter, OpenMode::Files | OpenMode::Multiple);

    QCOMPARE(chosen, listOf({"C:/a/one.png", "C:/a/two.png"}));
    QCOMPARE(stage.selectedFilter, QStringLiteral("Images (*.jpg *.png)"));
    QCOMPARE(stage.recorder.calls, listOf({"CoInitializeEx(6)",
                                           "CoCreateInstance",
                                           "GetOptions",
                                           "SetOptions(0x101a40)",
                                           "SetTitle(Pick)",
                                           "SetFolder(C:\\windows)",
                                           "SetFileTypes(Images|*.jpg;*.png, All files|*)",
                                           "SetFileTypeIndex(0)",
                                           "Show(0x0)",
                                           "GetResults",
                                           "GetCount",
                                           "GetItemAt(0)",
                                           "GetDisplayName(0x80058000)",
                                           "release item C:\\a\\one.png",
                                           "GetItemAt(1)",
                                           "GetDisplayName(0x80058000)",
                                           "release item C:\\a\\two.png",
                                           "release items",
                                           "GetFileTypeIndex",
                                           "release dialog",
                                           "CoUninitialize"}));
    QVERIFY(stage.endedWell());
}

void tst_ScriptedFileDialog::onlyWhatIsAskedFor()
{
    DialogStage stage;

    QCOMPARE(StandardDialogs::getOpen(nullptr, QString(), QString(), QString(), &stage.selectedFilter, OpenMode::Files),
             QStringList());

    QCOMPARE(stage.recorder.calls,
             listOf({"CoInitializeEx(6)", "CoCreateInstance", "GetOptions", "SetOptions(0x101840)", "Show(0x0)",
                     "GetResults", "GetCount", "release items", "release dialog", "CoUninitialize"}));
    QCOMPARE(stage.selectedFilter, QStringLiteral("as before"));
    QVERIFY(stage.endedWell());
}

void tst_ScriptedFileDialog::modes_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("call");

    QTest::newRow("none is Files") << 0 << "SetOptions(0x101840)";
    QTest::newRow("Multiple is Files+Multiple") << 1 << "SetOptions(0x101a40)";
    QTest::newRow("Files") << 2 << "SetOptions(0x101840)";
    QTest::newRow("Files+Multiple") << 3 << "SetOptions(0x101a40)";
    QTest::newRow("Directories") << 4 << "SetOptions(0x101860)";
    QTest::newRow("Directories+Multiple") << 5 << "SetOptions(0x101a60)";
    QTest::newRow("Files+Directories") << 6 << "SetOptions(0x101840)";
    QTest::newRow("Files+Directories+Multiple") << 7 << "SetOptions(0x101a40)";
}

void tst_ScriptedFileDialog::modes()
{
    QFETCH(int, mode);
    QFETCH(QString, call);
    DialogStage stage;
    stage.open(static_cast<OpenMode>(mode));
    QCOMPARE(stage.recorder.callsOf({QStringLiteral("SetOptions")}), QStringList(call));
    QVERIFY(stage.endedWell());
}

void tst_ScriptedFileDialog::ownOptionsStay()
{
    DialogStage stage;
    stage.script.options = 0x90000028;
    stage.open(OpenMode::Files);
    QCOMPARE(stage.recorder.callsOf({QStringLiteral("SetOptions")}), listOf({"SetOptions(0x90101868)"}));
}

void tst_ScriptedFileDialog::eventsOnlyForFilesAndFolders_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("subscribes");

    for (int mode = 0; mode < 8; ++mode)
        QTest::addRow("%d", mode) << mode << (mode == 6 || mode == 7);
}

void tst_ScriptedFileDialog::eventsOnlyForFilesAndFolders()
{
    QFETCH(int, mode);
    QFETCH(bool, subscribes);
    DialogStage stage;
    bool subscribed = false;
    stage.script.whileShown = [&](ScriptedFileDialog& dialog) { subscribed = dialog.events() != nullptr; };

    stage.open(static_cast<OpenMode>(mode));

    QCOMPARE(subscribed, subscribes);
    QCOMPARE(stage.recorder.callsOf({QStringLiteral("Advise"), QStringLiteral("Unadvise")}),
             subscribes ? listOf({"Advise", "Unadvise(4711)"}) : QStringList());
    QVERIFY(stage.endedWell());
}

void tst_ScriptedFileDialog::successesAreToldBySign()
{
    DialogStage stage;
    stage.filter = twoTypes;
    stage.script.getOptionsResult = S_FALSE;
    stage.script.setOptionsResult = S_FALSE;
    stage.script.setFileTypesResult = S_FALSE;
    stage.script.getFileTypeIndexResult = S_FALSE;
    stage.script.adviseResult = S_FALSE;
    stage.script.showResult = S_FALSE;
    stage.script.results = {S_FALSE, S_FALSE, {{QStringLiteral("C:\\a"), S_FALSE, S_FALSE}}};
    stage.script.fileTypeIndex = 2;

    QCOMPARE(stage.open(filesAndDirectories), listOf({"C:/a"}));
    QCOMPARE(stage.selectedFilter, QStringLiteral("All files (*)"));
    QVERIFY(stage.endedWell());
}

void tst_ScriptedFileDialog::apartmentIsPaired()
{
    DialogStage stage;
    // Qt has initialised the thread, so that this is one more time.
    stage.open(OpenMode::Files);
    QCOMPARE(stage.initialize.results(), QVector<HRESULT>{S_FALSE});
    QCOMPARE(stage.recorder.calls.first(), QStringLiteral("CoInitializeEx(6)"));
    QCOMPARE(stage.recorder.calls.last(), QStringLiteral("CoUninitialize"));
    QCOMPARE(stage.recorder.calls.count(QStringLiteral("CoUninitialize")), 1);
    QVERIFY(stage.endedWell());
}

void tst_ScriptedFileDialog::failureIsLoggedOnceAndQtFollows_data()
{
    addFailureRows();
}

void tst_ScriptedFileDialog::failureIsLoggedOnceAndQtFollows()
{
    QFETCH(int, row);
    const Failure failure = failures().at(row);
    QStringList callsBeforeQt;
    DialogStage stage;
    stage.filter = twoTypes;
    stage.script.fileTypeIndex = 2;
    failure.arrange(stage);
    stage.recorder.onCall = [&](const QString&) {
        if (stage.qtDialogs.dialogs().isEmpty() && !QApplication::activeModalWidget())
            callsBeforeQt = stage.recorder.calls;
    };

    // A cancelled dialog of Qt for one file gives one empty string.
    QCOMPARE(stage.open(failure.mode), listOf({""}));

    QCOMPARE(callsBeforeQt, failure.calls);
    QCOMPARE(stage.recorder.living, 0);
    QCOMPARE(stage.initialize.unpaired(), 0);

    QCOMPARE(stage.log.records().size(), 1);
    const LogRecord& record = stage.log.records().constFirst();
    QCOMPARE(record.severity, 1);
    QCOMPARE(record.file, QLatin1String(recordFile));
    QCOMPARE(record.line, 447);
    // The call stack follows the text, as in what() of every failure.
    QVERIFY2(record.text.startsWith(QLatin1String(failure.message) + QStringLiteral("\n 0# ")),
             qPrintable(record.text));

    QCOMPARE(stage.qtDialogs.dialogs().size(), 1);
    const SeenQtDialog& dialog = stage.qtDialogs.dialogs().constFirst();
    QCOMPARE(dialog.title, QStringLiteral("Pick"));
    QCOMPARE(dialog.fileMode, QFileDialog::ExistingFile);
    QVERIFY(dialog.hidesFilterDetails);
    // The native dialog's choice was written back on its way out; Qt's dialog begins with it.
    QCOMPARE(dialog.selectedNameFilter,
             failure.writesFilterBack ? QStringLiteral("All files") : QStringLiteral("Images"));
}

void tst_ScriptedFileDialog::failureNamesItsPlace_data()
{
    addFailureRows();
}

void tst_ScriptedFileDialog::failureNamesItsPlace()
{
    QFETCH(int, row);
    const Failure failure = failures().at(row);
    DialogStage stage;
    failure.arrange(stage);

    const Thrown thrown = thrownByNativeDialog(failure.mode, twoTypes);

    QVERIFY2(thrown.what.startsWith(QLatin1String(failure.message) + QStringLiteral("\n 0# ")),
             qPrintable(thrown.what));
    QVERIFY(!thrown.function.isEmpty());
    QCOMPARE(thrown.file, QLatin1String(recordFile));
    if (failure.line != 0)
        QCOMPARE(thrown.line, failure.line);
    QVERIFY(thrown.line > 0);
    // Nobody logs or shows anything but getOpen.
    QVERIFY(stage.endedWell());
}

void tst_ScriptedFileDialog::qtDialogOfEachMode_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("fileMode");
    QTest::addColumn<QStringList>("cancelledResult");
    const auto one = listOf({""});

    QTest::newRow("none") << 0 << int(QFileDialog::ExistingFile) << one;
    QTest::newRow("Multiple") << 1 << int(QFileDialog::ExistingFiles) << QStringList();
    QTest::newRow("Files") << 2 << int(QFileDialog::ExistingFile) << one;
    QTest::newRow("Files+Multiple") << 3 << int(QFileDialog::ExistingFiles) << QStringList();
    QTest::newRow("Directories") << 4 << int(QFileDialog::Directory) << one;
    QTest::newRow("Directories+Multiple") << 5 << int(QFileDialog::Directory) << one;
    QTest::newRow("Files+Directories") << 6 << int(QFileDialog::ExistingFile) << one;
    QTest::newRow("Files+Directories+Multiple") << 7 << int(QFileDialog::ExistingFiles) << QStringList();
}

void tst_ScriptedFileDialog::qtDialogOfEachMode()
{
    QFETCH(int, mode);
    QFETCH(int, fileMode);
    QFETCH(QStringList, cancelledResult);
    DialogStage stage;
    stage.script.createResult = E_FAIL;

    QCOMPARE(stage.open(static_cast<OpenMode>(mode)), cancelledResult);

    QCOMPARE(stage.log.records().size(), 1);
    QCOMPARE(stage.qtDialogs.dialogs().size(), 1);
    QCOMPARE(int(stage.qtDialogs.dialogs().constFirst().fileMode), fileMode);
}

void tst_ScriptedFileDialog::nextDialogAfterAFailure()
{
    DialogStage stage;
    stage.script.showResult = E_FAIL;
    stage.open(OpenMode::Files);
    stage.open(OpenMode::Files);
    QCOMPARE(stage.log.records().size(), 2);
    QCOMPARE(stage.qtDialogs.dialogs().size(), 2);

    stage.script.showResult = S_OK;
    stage.script.results.items = itemsOf(listOf({"C:\\a"}));
    QCOMPARE(stage.open(OpenMode::Files), listOf({"C:/a"}));
    QCOMPARE(stage.log.records().size(), 2);
    QCOMPARE(stage.qtDialogs.dialogs().size(), 2);
}

void tst_ScriptedFileDialog::qtAloneWhenAsked()
{
    DialogStage stage;
    QCOMPARE(Dialogs::open(Dialogs::Implementation::Qt, {}), listOf({""}));
    QCOMPARE(StandardDialogs::getOpenFileName(nullptr, QStringLiteral("Pick")), QString());
    QCOMPARE(StandardDialogs::getOpenFileNames(nullptr, QStringLiteral("Pick")), QStringList());

    QCOMPARE(stage.qtDialogs.dialogs().size(), 3);
    QVERIFY(!stage.recorder.calls.contains(QStringLiteral("CoCreateInstance")));
    QVERIFY(stage.log.records().isEmpty());
}

void tst_ScriptedFileDialog::qtAloneOnOldSystems()
{
    DialogStage stage;
    systemIsOld = true;
    const QStringList chosen = stage.open(OpenMode::Files);
    systemIsOld = false;

    QCOMPARE(chosen, listOf({""}));
    QCOMPARE(stage.qtDialogs.dialogs().size(), 1);
    QVERIFY(!stage.recorder.calls.contains(QStringLiteral("CoCreateInstance")));
    QVERIFY(stage.log.records().isEmpty());
}

void tst_ScriptedFileDialog::optionsReachQtAlone()
{
    {
        DialogStage stage;
        Dialogs::open(Dialogs::Implementation::Native, QFileDialog::HideNameFilterDetails);
        QCOMPARE(stage.recorder.callsOf({QStringLiteral("SetOptions")}), listOf({"SetOptions(0x101840)"}));
        QVERIFY(stage.endedWell());
    }
    for (const bool hides : {true, false}) {
        DialogStage stage;
        stage.script.createResult = E_FAIL;
        Dialogs::open(Dialogs::Implementation::Native,
                      hides ? QFileDialog::HideNameFilterDetails : QFileDialog::Options());
        QCOMPARE(stage.qtDialogs.dialogs().size(), 1);
        QCOMPARE(stage.qtDialogs.dialogs().constFirst().hidesFilterDetails, hides);
    }
}

void tst_ScriptedFileDialog::cancelIsNoFailure_data()
{
    QTest::addColumn<int>("mode");
    for (int mode = 0; mode < 8; ++mode)
        QTest::addRow("%d", mode) << mode;
}

void tst_ScriptedFileDialog::cancelIsNoFailure()
{
    QFETCH(int, mode);
    DialogStage stage;
    stage.filter = twoTypes;
    stage.script.fileTypeIndex = 2;
    stage.script.showResult = cancelled;
    stage.script.results.items = itemsOf(listOf({"C:\\a"}));

    QCOMPARE(stage.open(static_cast<OpenMode>(mode)), QStringList());

    QVERIFY(stage.endedWell());
    QVERIFY(!stage.recorder.calls.contains(QStringLiteral("GetResults")));
    // The user may have changed the type before the dialog was cancelled.
    QCOMPARE(stage.selectedFilter, QStringLiteral("All files (*)"));
}

void tst_ScriptedFileDialog::silentFailures_data()
{
    QTest::addColumn<int>("which");
    QTest::newRow("SetTitle") << 0;
    QTest::newRow("SetFolder") << 1;
    QTest::newRow("SetFileTypeIndex") << 2;
    QTest::newRow("all of them") << 3;
}

void tst_ScriptedFileDialog::silentFailures()
{
    QFETCH(int, which);
    DialogStage stage;
    stage.script.results.items = itemsOf(listOf({"C:\\a"}));
    if (which == 0 || which == 3)
        stage.script.setTitleResult = E_FAIL;
    if (which == 1 || which == 3)
        stage.script.setFolderResult = E_FAIL;
    if (which == 2 || which == 3)
        stage.script.setFileTypeIndexResult = E_FAIL;

    QCOMPARE(StandardDialogs::getOpen(nullptr, QStringLiteral("Pick"), QStringLiteral("C:/windows"), twoTypes,
                                      &stage.selectedFilter, OpenMode::Files),
             listOf({"C:/a"}));

    QCOMPARE(stage.recorder.callsOf({QStringLiteral("Set")}),
             listOf({"SetOptions(0x101840)", "SetTitle(Pick)", "SetFolder(C:\\windows)",
                     "SetFileTypes(Images|*.jpg;*.png, All files|*)", "SetFileTypeIndex(0)"}));
    QVERIFY(stage.endedWell());
}

void tst_ScriptedFileDialog::startFolder_data()
{
    QTest::addColumn<QString>("dir");
    QTest::addColumn<QStringList>("calls");

    QTest::newRow("none") << QString() << QStringList();
    QTest::newRow("forward slashes") << "C:/windows/system32" << listOf({"SetFolder(C:\\windows\\system32)"});
    QTest::newRow("backslashes") << "C:\\windows\\system32" << listOf({"SetFolder(C:\\windows\\system32)"});
    QTest::newRow("missing") << "C:/no such folder/at all" << QStringList();
    QTest::newRow("missing drive") << "Q:/nowhere" << QStringList();
    QTest::newRow("no path") << "<>|\"?*" << QStringList();
}

void tst_ScriptedFileDialog::startFolder()
{
    QFETCH(QString, dir);
    QFETCH(QStringList, calls);
    DialogStage stage;
    StandardDialogs::getOpen(nullptr, QString(), dir, QString(), nullptr, OpenMode::Files);
    QCOMPARE(stage.recorder.callsOf({QStringLiteral("SetFolder")}), calls);
    QVERIFY(stage.endedWell());
}

void tst_ScriptedFileDialog::startFolderIsReleased()
{
    DialogStage stage;
    IShellItem* kept = nullptr;
    stage.script.onSetFolder = [&](IShellItem* folder) {
        kept = folder;
        kept->AddRef();
    };
    StandardDialogs::getOpen(nullptr, QString(), QStringLiteral("C:/windows"), QString(), nullptr, OpenMode::Files);
    QVERIFY(kept);
    // Nobody but the test holds it any more.
    QCOMPARE(kept->Release(), 0UL);
}

void tst_ScriptedFileDialog::ownerIsTheParent()
{
    QWidget window;
    window.show();
    QWidget child(&window);
    for (QWidget* parent : {&window, &child}) {
        DialogStage stage;
        stage.open(OpenMode::Files, parent);
        const auto owner = static_cast<quint32>(parent->winId());
        QCOMPARE(stage.recorder.callsOf({QStringLiteral("Show")}),
                 QStringList(QStringLiteral("Show(%1)").arg(hex(owner))));
        QVERIFY(owner != 0);
    }
}

void tst_ScriptedFileDialog::parentDiesWhileOpen()
{
    auto parent = std::make_unique<QWidget>();
    DialogStage stage;
    stage.script.results.items = itemsOf(listOf({"C:\\a"}));
    stage.script.whileShown = [&](ScriptedFileDialog&) { parent.reset(); };

    QCOMPARE(stage.open(OpenMode::Files, parent.get()), listOf({"C:/a"}));
    QVERIFY(stage.endedWell());
}

void tst_ScriptedFileDialog::parentDiesAndShowFails()
{
    auto parent = std::make_unique<QWidget>();
    DialogStage stage;
    stage.script.showResult = E_FAIL;
    stage.script.whileShown = [&](ScriptedFileDialog&) { parent.reset(); };

    QCOMPARE(stage.open(OpenMode::Files, parent.get()), listOf({""}));

    QCOMPARE(stage.log.records().size(), 1);
    QCOMPARE(stage.qtDialogs.dialogs().size(), 1);
    QVERIFY(!stage.qtDialogs.dialogs().constFirst().parent);
}

void tst_ScriptedFileDialog::results_data()
{
    QTest::addColumn<QVector<ItemScript>>("items");
    QTest::addColumn<QStringList>("paths");
    const auto a = QStringLiteral("C:\\a");
    const auto b = QStringLiteral("C:\\b");
    const auto c = QStringLiteral("C:\\c");
    const auto ac = listOf({"C:/a", "C:/c"});

    QTest::newRow("none") << QVector<ItemScript>() << QStringList();
    QTest::newRow("one") << itemsOf({a}) << listOf({"C:/a"});
    QTest::newRow("in their order") << itemsOf({c, a, b}) << listOf({"C:/c", "C:/a", "C:/b"});
    QTest::newRow("an item missing") << QVector<ItemScript>{{a}, {b, E_FAIL}, {c}} << ac;
    QTest::newRow("a name missing") << QVector<ItemScript>{{a}, {b, S_OK, E_FAIL}, {c}} << ac;
    QTest::newRow("first and last missing")
        << QVector<ItemScript>{{a, E_FAIL}, {b}, {c, S_OK, E_FAIL}} << listOf({"C:/b"});
    QTest::newRow("all missing") << QVector<ItemScript>{{a, E_FAIL}, {b, S_OK, E_INVALIDARG}} << QStringList();
    QTest::newRow("an empty name") << itemsOf({a, QString(), c}) << listOf({"C:/a", "", "C:/c"});
    QTest::newRow("a share") << itemsOf({QStringLiteral("\\\\server\\share\\x")}) << listOf({"//server/share/x"});
    QTest::newRow("other scripts") << itemsOf({QStringLiteral("C:\\Изображения\\図 🎬.png")})
                                   << listOf({"C:/Изображения/図 🎬.png"});
    QTest::newRow("very long") << itemsOf({QStringLiteral("C:\\") + QString(30000, u'x')})
                               << QStringList(QStringLiteral("C:/") + QString(30000, u'x'));
}

void tst_ScriptedFileDialog::results()
{
    QFETCH(QVector<ItemScript>, items);
    QFETCH(QStringList, paths);
    DialogStage stage;
    stage.script.results.items = items;
    QCOMPARE(stage.open(OpenMode::Files | OpenMode::Multiple), paths);
    QVERIFY(stage.endedWell());
}

void tst_ScriptedFileDialog::listOfResultsFails_data()
{
    QTest::addColumn<bool>("list");
    QTest::newRow("GetResults") << true;
    QTest::newRow("GetCount") << false;
}

void tst_ScriptedFileDialog::listOfResultsFails()
{
    QFETCH(bool, list);
    DialogStage stage;
    stage.script.results.items = itemsOf(listOf({"C:\\a"}));
    (list ? stage.script.results.result : stage.script.results.countResult) = E_FAIL;

    QCOMPARE(stage.open(OpenMode::Files), QStringList());

    QVERIFY(stage.recorder.callsOf({QStringLiteral("GetItemAt")}).isEmpty());
    QVERIFY(stage.endedWell());
}

void tst_ScriptedFileDialog::fileTypes_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QStringList>("calls");
    const QString index = QStringLiteral("SetFileTypeIndex(0)");

    QTest::newRow("none") << QString() << QStringList();
    // No types to set, but not the empty filter either: the index is set all the same.
    QTest::newRow("only separators") << ";;;;" << QStringList(index);
    QTest::newRow("two") << twoTypes << QStringList{twoTypesCall, index};
    QTest::newRow("no patterns") << "Text ( )" << QStringList{QStringLiteral("SetFileTypes(Text|*)"), index};
    QTest::newRow("no parentheses") << "Everything"
                                    << QStringList{QStringLiteral("SetFileTypes(Everything|Everything)"), index};
    QTest::newRow("other scripts") << QStringLiteral("Изображения 🎬 (*.図)")
                                   << QStringList{QStringLiteral("SetFileTypes(Изображения 🎬|*.図)"), index};
}

void tst_ScriptedFileDialog::fileTypes()
{
    QFETCH(QString, filter);
    QFETCH(QStringList, calls);
    DialogStage stage;
    stage.filter = filter;
    stage.open(OpenMode::Files);
    QCOMPARE(stage.recorder.callsOf({QStringLiteral("SetFileType")}), calls);
    QCOMPARE(stage.recorder.calls.contains(QStringLiteral("GetFileTypeIndex")), calls.size() == 2);
    QVERIFY(stage.endedWell());
}

void tst_ScriptedFileDialog::selectedFilterDoesNotPreselect()
{
    DialogStage stage;
    stage.filter = twoTypes;
    stage.selectedFilter = QStringLiteral("All files (*)");
    stage.open(OpenMode::Files);
    // Index 0 stands for the dialog's own default: its types count from 1.
    QCOMPARE(stage.recorder.callsOf({QStringLiteral("SetFileTypeIndex")}), listOf({"SetFileTypeIndex(0)"}));
    QCOMPARE(stage.selectedFilter, QStringLiteral("Images (*.jpg *.png)"));
}

void tst_ScriptedFileDialog::filterIsWrittenBack_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<uint>("index");
    QTest::addColumn<bool>("fails");
    QTest::addColumn<QString>("written");
    const QString before = QStringLiteral("as before");

    QTest::newRow("first") << twoTypes << 1U << false << "Images (*.jpg *.png)";
    QTest::newRow("second") << twoTypes << 2U << false << "All files (*)";
    QTest::newRow("beyond the last") << twoTypes << 3U << false << before;
    QTest::newRow("far beyond") << twoTypes << 0xFFFFFFFFU << false << before;
    QTest::newRow("none") << twoTypes << 0U << false << before;
    QTest::newRow("index fails") << twoTypes << 2U << true << before;
    QTest::newRow("no types") << QString() << 1U << false << before;
    QTest::newRow("only separators") << ";;" << 1U << false << before;
    QTest::newRow("as the dialog knew it")
        << "Images   (*.jpg; *.png ;;Text()" << 1U << false << "Images (Images (*.jpg *.png )";
    QTest::newRow("no patterns") << "Text ( )" << 1U << false << "Text (*)";
}

void tst_ScriptedFileDialog::filterIsWrittenBack()
{
    QFETCH(QString, filter);
    QFETCH(uint, index);
    QFETCH(bool, fails);
    QFETCH(QString, written);
    for (const HRESULT shown : {S_OK, cancelled}) {
        DialogStage stage;
        stage.filter = filter;
        stage.script.fileTypeIndex = index;
        stage.script.getFileTypeIndexResult = fails ? E_FAIL : S_OK;
        stage.script.showResult = shown;
        stage.open(OpenMode::Files);
        QCOMPARE(stage.selectedFilter, written);
        QVERIFY(stage.endedWell());
    }
}

void tst_ScriptedFileDialog::filterIsNotAskedForWhenNobodyWantsIt()
{
    DialogStage stage;
    StandardDialogs::getOpen(nullptr, QString(), QString(), twoTypes, nullptr, OpenMode::Files);
    QVERIFY(!stage.recorder.calls.contains(QStringLiteral("GetFileTypeIndex")));
    QVERIFY(stage.endedWell());
}

void tst_ScriptedFileDialog::stringsAreGivenBack()
{
    const auto open = [] {
        DialogStage stage;
        stage.script.results.items = itemsOf(listOf({"C:\\a", "C:\\b", "C:\\c"}));
        return StandardDialogs::getOpen(nullptr, QStringLiteral("Pick"), QStringLiteral("C:/windows"), twoTypes,
                                        &stage.selectedFilter, OpenMode::Files | OpenMode::Multiple);
    };
    // The shell keeps some of what it makes the first time.
    open();

    MallocSpy spy;
    QCOMPARE(open().size(), 3);
    // Three names, and the identifier list of the folder to begin with.
    QVERIFY(spy.taken() >= 4);
    QCOMPARE(spy.living(), 0);
}

QTEST_MAIN(tst_ScriptedFileDialog)
#include "tst_ScriptedFileDialog.moc"
