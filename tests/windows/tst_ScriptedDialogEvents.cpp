#include "windows/DialogStage.h"
#include "windows/MallocSpy.h"
#include "windows/OkButton.h"

#include <QApplication>
#include <QtTest>

#include <memory>

using Kestrel::Gui::StandardDialogs;
using namespace TestSupport;

namespace {

using OpenMode = StandardDialogs::OpenMode;

constexpr auto filesAndDirectories = OpenMode::Files | OpenMode::Directories;
constexpr HRESULT cancelled = static_cast<HRESULT>(0x800704C7);

const QString folder = QStringLiteral("C:\\films\\summer");
const QString closeCall = QStringLiteral("Close(0x0)");

/// A stage whose dialog has a real OK button.
struct EventsStage : DialogStage
{
    OkButton ok{recorder};

    EventsStage()
    {
        script.window = ok.window();
        script.selection.items = itemsOf({folder});
    }

    /// Opens for files and folders, and does @p whileShown meanwhile.
    QStringList openWith(const std::function<void(ScriptedFileDialog&)>& whileShown)
    {
        script.whileShown = whileShown;
        return open(filesAndDirectories);
    }

    bool isHooked() const { return ok.procedure() != OkButton::ownProcedure(); }

    /// The messages and closings since the last call of it.
    QStringList takeMessages()
    {
        const QStringList messages =
            recorder.callsOf({QStringLiteral("button("), QStringLiteral("second("), QStringLiteral("Close(")});
        recorder.calls.clear();
        return messages;
    }
};

QString messageCall(UINT message, WPARAM wParam, LPARAM lParam = 0)
{
    return QStringLiteral("button(%1, %2, %3)").arg(hex(message)).arg(qulonglong(wParam)).arg(lParam);
}

} // namespace

class tst_ScriptedDialogEvents : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();

    void unknownOperationsSucceed();
    void referencesAreNotCounted();
    void queryTouchesNothing();

    void folderChangeHooksTheButton();
    void windowLookupFails_data();
    void windowLookupFails();
    void buttonIsLookedForAgain();
    void secondFolderChangeLeavesTheHook();
    void secondFolderChangeHooksAgain();
    void handlingGoesBack_data();
    void handlingGoesBack();
    void buttonIsFreeForTheNextDialog();
    void buttonDiesWithTheDialog();

    void messagesThatClose_data();
    void messagesThatClose();
    void messagesPassWithoutSelection_data();
    void messagesPassWithoutSelection();
    void selectionMayGoAgain();
    void selectionBeforeTheButtonIsKnown();
    void nothingIsLockedDuringACall();

    void selectionIsTheResult();
    void selectionWinsOverResults();
    void withoutSelectionTheResultsCount();
    void cancelledSelectionIsNoResult();
    void lastSelectionCounts();
    void selectionItemsThatFail();
    void folderViewFails_data();
    void folderViewFails();
    void selectionFails();
    void selectionCountFails();
    void selectionAsksInOrder();

    void cleanUpInOrder_data();
    void cleanUpInOrder();
    void stringsAreGivenBack();
};

void tst_ScriptedDialogEvents::initTestCase()
{
    QCOMPARE(QGuiApplication::platformName(), QStringLiteral("windows"));
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    EventsStage stage;
    QVERIFY(stage.dialogClass.isRegistered());
    QVERIFY(stage.ok.button());
    QCOMPARE(GetDlgItem(stage.ok.window(), 1), stage.ok.button());
    QVERIFY(!stage.isHooked());
}

void tst_ScriptedDialogEvents::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_ScriptedDialogEvents::unknownOperationsSucceed()
{
    EventsStage stage;
    stage.openWith([&](ScriptedFileDialog& dialog) {
        stage.recorder.calls.clear();
        IFileDialogEvents* events = dialog.events();
        auto violation = static_cast<FDE_SHAREVIOLATION_RESPONSE>(77);
        auto overwrite = static_cast<FDE_OVERWRITE_RESPONSE>(78);
        QCOMPARE(events->OnFileOk(&dialog), S_OK);
        QCOMPARE(events->OnFolderChanging(&dialog, nullptr), S_OK);
        QCOMPARE(events->OnShareViolation(&dialog, nullptr, &violation), S_OK);
        QCOMPARE(events->OnTypeChange(&dialog), S_OK);
        QCOMPARE(events->OnOverwrite(&dialog, nullptr, &overwrite), S_OK);
        QCOMPARE(int(violation), 77);
        QCOMPARE(int(overwrite), 78);
        QCOMPARE(stage.recorder.calls, QStringList());
        QVERIFY(!stage.isHooked());
    });
    QVERIFY(stage.endedWell());
}

void tst_ScriptedDialogEvents::referencesAreNotCounted()
{
    // The object lives on the stack of the call: the number is a fixed one on purpose.
    EventsStage stage;
    stage.openWith([](ScriptedFileDialog& dialog) {
        IFileDialogEvents* events = dialog.events();
        for (int i = 0; i < 3; ++i)
            QCOMPARE(events->AddRef(), 42UL);
        for (int i = 0; i < 9; ++i)
            QCOMPARE(events->Release(), 42UL);
        QCOMPARE(events->OnFileOk(&dialog), S_OK);
    });
    QVERIFY(stage.endedWell());
}

void tst_ScriptedDialogEvents::queryTouchesNothing()
{
    EventsStage stage;
    stage.openWith([](ScriptedFileDialog& dialog) {
        int marker = 0;
        for (const IID& id : {IID_IUnknown, IID_IFileDialogEvents, IID_IFileDialogControlEvents, IID_IMarshal}) {
            void* object = &marker;
            QCOMPARE(dialog.events()->QueryInterface(id, &object), S_OK);
            QCOMPARE(object, static_cast<void*>(&marker));
        }
        QCOMPARE(dialog.events()->QueryInterface(IID_IUnknown, nullptr), S_OK);
    });
    QVERIFY(stage.endedWell());
}

void tst_ScriptedDialogEvents::folderChangeHooksTheButton()
{
    EventsStage stage;
    stage.openWith([&](ScriptedFileDialog& dialog) {
        QVERIFY(!stage.isHooked());
        stage.recorder.calls.clear();
        QCOMPARE(dialog.events()->OnFolderChange(&dialog), S_OK);
        QVERIFY(stage.isHooked());
        QCOMPARE(stage.recorder.calls,
                 (QStringList{QStringLiteral("QueryInterface(IOleWindow)"), QStringLiteral("GetWindow")}));
    });
    QVERIFY(!stage.isHooked());
    QVERIFY(stage.endedWell());
}

void tst_ScriptedDialogEvents::windowLookupFails_data()
{
    QTest::addColumn<int>("step");
    QTest::newRow("IOleWindow") << 0;
    QTest::newRow("GetWindow") << 1;
    QTest::newRow("no window") << 2;
    QTest::newRow("no button") << 3;
}

void tst_ScriptedDialogEvents::windowLookupFails()
{
    QFETCH(int, step);
    EventsStage stage;
    if (step == 0)
        stage.script.oleWindowResult = E_NOINTERFACE;
    if (step == 1)
        stage.script.getWindowResult = E_FAIL;
    if (step == 2)
        stage.script.window = nullptr;
    if (step == 3)
        SetWindowLongPtrW(stage.ok.button(), GWLP_ID, 7);

    stage.openWith([&](ScriptedFileDialog& dialog) {
        QCOMPARE(dialog.events()->OnFolderChange(&dialog), S_OK);
        QVERIFY(!stage.isHooked());
        QCOMPARE(dialog.events()->OnSelectionChange(&dialog), S_OK);
    });
    QVERIFY(!stage.isHooked());
    QVERIFY(stage.endedWell());
}

void tst_ScriptedDialogEvents::buttonIsLookedForAgain()
{
    EventsStage stage;
    stage.script.getWindowResult = E_FAIL;
    stage.openWith([&](ScriptedFileDialog& dialog) {
        dialog.events()->OnFolderChange(&dialog);
        QVERIFY(!stage.isHooked());
        dialog.script().getWindowResult = S_OK;
        QCOMPARE(dialog.events()->OnFolderChange(&dialog), S_OK);
        QVERIFY(stage.isHooked());
    });
    QVERIFY(!stage.isHooked());
}

void tst_ScriptedDialogEvents::secondFolderChangeLeavesTheHook()
{
    EventsStage stage;
    stage.openWith([&](ScriptedFileDialog& dialog) {
        dialog.events()->OnFolderChange(&dialog);
        dialog.events()->OnSelectionChange(&dialog);
        const LONG_PTR hook = stage.ok.procedure();
        stage.recorder.calls.clear();

        QCOMPARE(dialog.events()->OnFolderChange(&dialog), S_OK);

        QCOMPARE(stage.ok.procedure(), hook);
        // The button is known, nobody has to look for it.
        QCOMPARE(stage.recorder.calls, QStringList());
        // What is selected still is, and messages reach the button once.
        QCOMPARE(stage.ok.send(WM_LBUTTONUP), OkButton::ownAnswer);
        QCOMPARE(stage.takeMessages(), (QStringList{closeCall, messageCall(WM_LBUTTONUP, 0)}));
    });
    QVERIFY(!stage.isHooked());
}

void tst_ScriptedDialogEvents::secondFolderChangeHooksAgain()
{
    EventsStage stage;
    stage.openWith([&](ScriptedFileDialog& dialog) {
        dialog.events()->OnFolderChange(&dialog);
        dialog.events()->OnSelectionChange(&dialog);
        const LONG_PTR hook = stage.ok.procedure();
        stage.ok.setProcedure(OkButton::secondProcedure());
        stage.ok.send(WM_LBUTTONUP);
        QCOMPARE(stage.takeMessages(), QStringList(QStringLiteral("second(0x202, 0, 0)")));

        QCOMPARE(dialog.events()->OnFolderChange(&dialog), S_OK);

        QCOMPARE(stage.ok.procedure(), hook);
        QCOMPARE(stage.ok.send(WM_LBUTTONUP), OkButton::secondAnswer);
        // The selection is the one from before.
        QCOMPARE(stage.takeMessages(), (QStringList{closeCall, QStringLiteral("second(0x202, 0, 0)")}));
    });
    // The handling that was there last comes back, not the first one.
    QCOMPARE(stage.ok.procedure(), OkButton::secondProcedure());
}

void tst_ScriptedDialogEvents::handlingGoesBack_data()
{
    QTest::addColumn<int>("result");
    QTest::newRow("OK") << int(S_OK);
    QTest::newRow("cancelled") << int(cancelled);
    QTest::newRow("failed") << int(E_FAIL);
}

void tst_ScriptedDialogEvents::handlingGoesBack()
{
    QFETCH(int, result);
    EventsStage stage;
    stage.script.showResult = result;
    stage.openWith([&](ScriptedFileDialog& dialog) {
        dialog.events()->OnFolderChange(&dialog);
        dialog.events()->OnSelectionChange(&dialog);
        QVERIFY(stage.isHooked());
    });
    QVERIFY(!stage.isHooked());
    QCOMPARE(stage.recorder.living, 0);
    stage.takeMessages();
    stage.ok.send(WM_LBUTTONUP);
    QCOMPARE(stage.takeMessages(), QStringList(messageCall(WM_LBUTTONUP, 0)));
    QCOMPARE(stage.log.records().size(), result == E_FAIL ? 1 : 0);
}

void tst_ScriptedDialogEvents::buttonIsFreeForTheNextDialog()
{
    EventsStage stage;
    stage.openWith([&](ScriptedFileDialog& dialog) {
        dialog.events()->OnFolderChange(&dialog);
        dialog.events()->OnSelectionChange(&dialog);
    });
    stage.ok.setProcedure(OkButton::secondProcedure());
    stage.openWith([&](ScriptedFileDialog& dialog) {
        dialog.events()->OnFolderChange(&dialog);
        stage.takeMessages();
        // Nothing is selected in the new dialog.
        QCOMPARE(stage.ok.send(WM_LBUTTONUP), OkButton::secondAnswer);
        QCOMPARE(stage.takeMessages(), QStringList(QStringLiteral("second(0x202, 0, 0)")));
        dialog.events()->OnSelectionChange(&dialog);
        stage.takeMessages();
        int closed = 0;
        dialog.script().onClose = [&] { ++closed; };
        stage.ok.send(WM_LBUTTONUP);
        // It is the new dialog that is closed.
        QCOMPARE(closed, 1);
    });
    QCOMPARE(stage.ok.procedure(), OkButton::secondProcedure());
    QVERIFY(stage.endedWell());
}

void tst_ScriptedDialogEvents::buttonDiesWithTheDialog()
{
    // A real dialog destroys its window before Show() returns.
    CallRecorder recorder;
    auto ok = std::make_unique<OkButton>(recorder);
    DialogStage stage;
    stage.script.window = ok->window();
    stage.script.selection.items = itemsOf({folder});
    stage.script.whileShown = [&](ScriptedFileDialog& dialog) {
        dialog.events()->OnFolderChange(&dialog);
        dialog.events()->OnSelectionChange(&dialog);
        ok.reset();
    };
    QCOMPARE(stage.open(filesAndDirectories), QStringList(QStringLiteral("C:/films/summer")));
    QVERIFY(stage.endedWell());
}

void tst_ScriptedDialogEvents::messagesThatClose_data()
{
    QTest::addColumn<uint>("message");
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("closes");

    QTest::newRow("Return released") << uint(WM_KEYUP) << int(VK_RETURN) << true;
    QTest::newRow("Space released") << uint(WM_KEYUP) << int(VK_SPACE) << true;
    QTest::newRow("Return released with Alt") << uint(WM_SYSKEYUP) << int(VK_RETURN) << true;
    QTest::newRow("Space released with Alt") << uint(WM_SYSKEYUP) << int(VK_SPACE) << true;
    QTest::newRow("button released") << uint(WM_LBUTTONUP) << 0 << true;
    QTest::newRow("button released with Ctrl") << uint(WM_LBUTTONUP) << int(MK_CONTROL) << true;

    QTest::newRow("Return pressed") << uint(WM_KEYDOWN) << int(VK_RETURN) << false;
    QTest::newRow("Space pressed") << uint(WM_KEYDOWN) << int(VK_SPACE) << false;
    QTest::newRow("Return pressed with Alt") << uint(WM_SYSKEYDOWN) << int(VK_RETURN) << false;
    QTest::newRow("Return typed") << uint(WM_CHAR) << int(VK_RETURN) << false;
    QTest::newRow("Space typed") << uint(WM_CHAR) << int(VK_SPACE) << false;
    QTest::newRow("Tab released") << uint(WM_KEYUP) << int(VK_TAB) << false;
    QTest::newRow("Escape released") << uint(WM_KEYUP) << int(VK_ESCAPE) << false;
    QTest::newRow("F10 released") << uint(WM_SYSKEYUP) << int(VK_F10) << false;
    QTest::newRow("no key released") << uint(WM_KEYUP) << 0 << false;
    QTest::newRow("button pressed") << uint(WM_LBUTTONDOWN) << int(MK_LBUTTON) << false;
    QTest::newRow("double click") << uint(WM_LBUTTONDBLCLK) << int(MK_LBUTTON) << false;
    QTest::newRow("right button released") << uint(WM_RBUTTONUP) << 0 << false;
    QTest::newRow("middle button released") << uint(WM_MBUTTONUP) << 0 << false;
    QTest::newRow("moved") << uint(WM_MOUSEMOVE) << int(MK_LBUTTON) << false;
    QTest::newRow("moved, as the key's number") << uint(WM_MOUSEMOVE) << int(VK_RETURN) << false;
    QTest::newRow("clicked by a program") << uint(BM_CLICK) << 0 << false;
    QTest::newRow("nothing") << uint(WM_NULL) << int(VK_RETURN) << false;
    QTest::newRow("of a program") << uint(WM_USER + 5) << int(VK_SPACE) << false;
}

void tst_ScriptedDialogEvents::messagesThatClose()
{
    QFETCH(uint, message);
    QFETCH(int, key);
    QFETCH(bool, closes);
    constexpr LPARAM position = 0x00030002;
    EventsStage stage;
    stage.openWith([&](ScriptedFileDialog& dialog) {
        dialog.events()->OnFolderChange(&dialog);
        dialog.events()->OnSelectionChange(&dialog);
        stage.takeMessages();

        QCOMPARE(stage.ok.send(message, WPARAM(key), position), OkButton::ownAnswer);

        // The dialog is closed before the button handles the message, which would open the folder.
        const QString handled = messageCall(message, WPARAM(key), position);
        QCOMPARE(stage.takeMessages(), closes ? (QStringList{closeCall, handled}) : QStringList(handled));
    });
}

void tst_ScriptedDialogEvents::messagesPassWithoutSelection_data()
{
    messagesThatClose_data();
}

void tst_ScriptedDialogEvents::messagesPassWithoutSelection()
{
    QFETCH(uint, message);
    QFETCH(int, key);
    EventsStage stage;
    stage.script.selection.items.clear();
    stage.openWith([&](ScriptedFileDialog& dialog) {
        dialog.events()->OnFolderChange(&dialog);
        for (const bool asked : {false, true}) {
            if (asked)
                dialog.events()->OnSelectionChange(&dialog);
            stage.takeMessages();
            QCOMPARE(stage.ok.send(message, WPARAM(key), 5), OkButton::ownAnswer);
            QCOMPARE(stage.takeMessages(), QStringList(messageCall(message, WPARAM(key), 5)));
        }
    });
}

void tst_ScriptedDialogEvents::selectionMayGoAgain()
{
    EventsStage stage;
    stage.openWith([&](ScriptedFileDialog& dialog) {
        const auto closes = [&] {
            stage.takeMessages();
            stage.ok.send(WM_LBUTTONUP);
            return stage.takeMessages().contains(closeCall);
        };
        dialog.events()->OnFolderChange(&dialog);
        dialog.events()->OnSelectionChange(&dialog);
        QVERIFY(closes());
        dialog.script().selection.items.clear();
        dialog.events()->OnSelectionChange(&dialog);
        QVERIFY(!closes());
        dialog.script().selection.items = itemsOf({folder});
        dialog.events()->OnSelectionChange(&dialog);
        QVERIFY(closes());
        dialog.script().selection.items = {{folder, E_FAIL}};
        dialog.events()->OnSelectionChange(&dialog);
        QVERIFY(!closes());
    });
}

void tst_ScriptedDialogEvents::selectionBeforeTheButtonIsKnown()
{
    EventsStage stage;
    const QStringList chosen = stage.openWith([&](ScriptedFileDialog& dialog) {
        QCOMPARE(dialog.events()->OnSelectionChange(&dialog), S_OK);
        dialog.events()->OnFolderChange(&dialog);
        stage.takeMessages();
        // The mark of a button begins with its hook, without a selection.
        stage.ok.send(WM_LBUTTONUP);
        QCOMPARE(stage.takeMessages(), QStringList(messageCall(WM_LBUTTONUP, 0)));
    });
    QCOMPARE(chosen, QStringList(QStringLiteral("C:/films/summer")));
    QVERIFY(stage.endedWell());
}

void tst_ScriptedDialogEvents::nothingIsLockedDuringACall()
{
    // Both the dialog's closing and the button's own handling come back to the button.
    EventsStage stage;
    stage.openWith([&](ScriptedFileDialog& dialog) {
        dialog.events()->OnFolderChange(&dialog);
        dialog.events()->OnSelectionChange(&dialog);
        bool comesBack = true;
        const auto comeBack = [&] {
            if (!comesBack)
                return;
            comesBack = false;
            stage.ok.send(WM_KILLFOCUS);
            dialog.events()->OnSelectionChange(&dialog);
            dialog.events()->OnFolderChange(&dialog);
        };
        dialog.script().onClose = comeBack;
        stage.takeMessages();
        stage.ok.send(WM_LBUTTONUP);
        QCOMPARE(stage.takeMessages(),
                 (QStringList{closeCall, messageCall(WM_KILLFOCUS, 0), messageCall(WM_LBUTTONUP, 0)}));

        comesBack = true;
        dialog.script().onClose = nullptr;
        stage.recorder.onCall = [&](const QString& call) {
            if (call.startsWith(QStringLiteral("button(0x202")))
                comeBack();
        };
        stage.ok.send(WM_LBUTTONUP);
        stage.recorder.onCall = nullptr;
        QCOMPARE(stage.takeMessages(),
                 (QStringList{closeCall, messageCall(WM_LBUTTONUP, 0), messageCall(WM_KILLFOCUS, 0)}));
    });
    QVERIFY(stage.endedWell());
}

void tst_ScriptedDialogEvents::selectionIsTheResult()
{
    EventsStage stage;
    stage.script.selection.items = itemsOf({folder, QStringLiteral("D:\\x.png")});
    // The scripted dialog's Show() answers what Close() asked for, as the system's does.
    stage.script.showResult = E_FAIL;
    const QStringList chosen = stage.openWith([&](ScriptedFileDialog& dialog) {
        dialog.script().onClose = [&dialog] { dialog.script().showResult = S_OK; };
        dialog.events()->OnFolderChange(&dialog);
        dialog.events()->OnSelectionChange(&dialog);
        stage.ok.send(WM_KEYUP, VK_RETURN);
    });
    QCOMPARE(chosen, (QStringList{QStringLiteral("C:/films/summer"), QStringLiteral("D:/x.png")}));
    QVERIFY(stage.endedWell());
}

void tst_ScriptedDialogEvents::selectionWinsOverResults()
{
    EventsStage stage;
    stage.script.results.items = itemsOf({QStringLiteral("D:\\other")});
    const QStringList chosen =
        stage.openWith([](ScriptedFileDialog& dialog) { dialog.events()->OnSelectionChange(&dialog); });
    QCOMPARE(chosen, QStringList(QStringLiteral("C:/films/summer")));
    QVERIFY(!stage.recorder.calls.contains(QStringLiteral("GetResults")));
    QVERIFY(stage.endedWell());
}

void tst_ScriptedDialogEvents::withoutSelectionTheResultsCount()
{
    EventsStage stage;
    stage.script.selection.items.clear();
    stage.script.results.items = itemsOf({QStringLiteral("D:\\other")});
    const QStringList chosen =
        stage.openWith([](ScriptedFileDialog& dialog) { dialog.events()->OnSelectionChange(&dialog); });
    QCOMPARE(chosen, QStringList(QStringLiteral("D:/other")));
    QVERIFY(stage.endedWell());
}

void tst_ScriptedDialogEvents::cancelledSelectionIsNoResult()
{
    EventsStage stage;
    stage.script.showResult = cancelled;
    const QStringList chosen =
        stage.openWith([](ScriptedFileDialog& dialog) { dialog.events()->OnSelectionChange(&dialog); });
    QCOMPARE(chosen, QStringList());
    QVERIFY(stage.endedWell());
}

void tst_ScriptedDialogEvents::lastSelectionCounts()
{
    EventsStage stage;
    const QStringList chosen = stage.openWith([](ScriptedFileDialog& dialog) {
        dialog.events()->OnSelectionChange(&dialog);
        dialog.script().selection.items = itemsOf({QStringLiteral("E:\\1"), QStringLiteral("E:\\2")});
        dialog.events()->OnSelectionChange(&dialog);
    });
    QCOMPARE(chosen, (QStringList{QStringLiteral("E:/1"), QStringLiteral("E:/2")}));
}

void tst_ScriptedDialogEvents::selectionItemsThatFail()
{
    EventsStage stage;
    stage.script.selection.items = {{folder, E_FAIL}, {QStringLiteral("E:\\1")}, {folder, S_OK, E_FAIL}};
    const QStringList chosen =
        stage.openWith([](ScriptedFileDialog& dialog) { QCOMPARE(dialog.events()->OnSelectionChange(&dialog), S_OK); });
    QCOMPARE(chosen, QStringList(QStringLiteral("E:/1")));
    QVERIFY(stage.endedWell());
}

void tst_ScriptedDialogEvents::folderViewFails_data()
{
    QTest::addColumn<int>("result");
    QTest::newRow("E_NOTIMPL") << int(E_NOTIMPL);
    QTest::newRow("E_NOINTERFACE") << int(E_NOINTERFACE);
    QTest::newRow("E_FAIL") << int(E_FAIL);
}

void tst_ScriptedDialogEvents::folderViewFails()
{
    QFETCH(int, result);
    EventsStage stage;
    const QStringList chosen = stage.openWith([&](ScriptedFileDialog& dialog) {
        dialog.events()->OnFolderChange(&dialog);
        dialog.events()->OnSelectionChange(&dialog);
        dialog.script().folderViewResult = result;
        dialog.script().selection.items.clear();

        QCOMPARE(int(dialog.events()->OnSelectionChange(&dialog)), result);

        stage.takeMessages();
        stage.ok.send(WM_LBUTTONUP);
        QCOMPARE(stage.takeMessages(), (QStringList{closeCall, messageCall(WM_LBUTTONUP, 0)}));
    });
    // Nothing changed: the selection before is still the one.
    QCOMPARE(chosen, QStringList(QStringLiteral("C:/films/summer")));
    QVERIFY(stage.endedWell());
}

void tst_ScriptedDialogEvents::selectionFails()
{
    EventsStage stage;
    stage.script.results.items = itemsOf({QStringLiteral("D:\\other")});
    const QStringList chosen = stage.openWith([&](ScriptedFileDialog& dialog) {
        dialog.events()->OnFolderChange(&dialog);
        dialog.events()->OnSelectionChange(&dialog);
        dialog.script().selection.result = E_ACCESSDENIED;

        QCOMPARE(dialog.events()->OnSelectionChange(&dialog), E_ACCESSDENIED);

        // The selection before is gone.
        stage.takeMessages();
        stage.ok.send(WM_LBUTTONUP);
        QCOMPARE(stage.takeMessages(), QStringList(messageCall(WM_LBUTTONUP, 0)));
    });
    QCOMPARE(chosen, QStringList(QStringLiteral("D:/other")));
    QVERIFY(stage.endedWell());
}

void tst_ScriptedDialogEvents::selectionCountFails()
{
    EventsStage stage;
    stage.script.selection.countResult = E_FAIL;
    stage.openWith([&](ScriptedFileDialog& dialog) {
        dialog.events()->OnFolderChange(&dialog);
        // The answer is that of the view, which did hand out its selection.
        QCOMPARE(dialog.events()->OnSelectionChange(&dialog), S_OK);
        stage.takeMessages();
        stage.ok.send(WM_LBUTTONUP);
        QCOMPARE(stage.takeMessages(), QStringList(messageCall(WM_LBUTTONUP, 0)));
    });
    QVERIFY(stage.endedWell());
}

void tst_ScriptedDialogEvents::selectionAsksInOrder()
{
    EventsStage stage;
    stage.script.selection.result = S_FALSE;
    stage.openWith([&](ScriptedFileDialog& dialog) {
        stage.recorder.calls.clear();
        QCOMPARE(dialog.events()->OnSelectionChange(&dialog), S_FALSE);
        QStringList calls = stage.recorder.calls;
        const QStringList asked = {QStringLiteral("QueryService(folder view)"),
                                   QStringLiteral("GetSelection(0)"),
                                   QStringLiteral("GetCount"),
                                   QStringLiteral("GetItemAt(0)"),
                                   QStringLiteral("GetDisplayName(0x80058000)"),
                                   QStringLiteral("release item ") + folder};
        QCOMPARE(calls.mid(0, asked.size()), asked);
        // The view may go before its list or after.
        calls = calls.mid(asked.size());
        calls.sort();
        QCOMPARE(calls, (QStringList{QStringLiteral("release items"), QStringLiteral("release view")}));
    });
    QVERIFY(stage.endedWell());
}

void tst_ScriptedDialogEvents::cleanUpInOrder_data()
{
    handlingGoesBack_data();
}

void tst_ScriptedDialogEvents::cleanUpInOrder()
{
    QFETCH(int, result);
    QStringList steps;
    EventsStage stage;
    stage.filter = QStringLiteral("All files (*)");
    stage.script.showResult = result;
    stage.script.whileShown = [&](ScriptedFileDialog& dialog) {
        dialog.events()->OnFolderChange(&dialog);
        dialog.events()->OnSelectionChange(&dialog);
        stage.recorder.onCall = [&](const QString& call) {
            const QStringList ofInterest = {QStringLiteral("Unadvise(4711)"), QStringLiteral("GetFileTypeIndex"),
                                            QStringLiteral("release dialog"), QStringLiteral("CoUninitialize")};
            if (ofInterest.contains(call))
                steps += call + (stage.isHooked() ? QStringLiteral(", hooked") : QString());
        };
    };
    stage.open(filesAndDirectories);
    stage.recorder.onCall = nullptr;
    QCOMPARE(QStringList(steps.mid(0, 4)),
             (QStringList{QStringLiteral("Unadvise(4711), hooked"), QStringLiteral("GetFileTypeIndex"),
                          QStringLiteral("release dialog"), QStringLiteral("CoUninitialize")}));
}

void tst_ScriptedDialogEvents::stringsAreGivenBack()
{
    EventsStage stage;
    stage.openWith([&](ScriptedFileDialog& dialog) {
        MallocSpy spy;
        dialog.events()->OnFolderChange(&dialog);
        for (int i = 0; i < 3; ++i)
            dialog.events()->OnSelectionChange(&dialog);
        QVERIFY(spy.taken() >= 3);
        QCOMPARE(spy.living(), 0);
    });
}

QTEST_MAIN(tst_ScriptedDialogEvents)
#include "tst_ScriptedDialogEvents.moc"
