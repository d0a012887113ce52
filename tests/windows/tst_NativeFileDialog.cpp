#include "windows/DialogOperator.h"
#include "windows/LogRecords.h"
#include "windows/QtDialogEnder.h"

#include <KQt/Ui/StandardDialogs.h>

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

using Kestrel::Gui::StandardDialogs;
using namespace TestSupport;

namespace {

using OpenMode = StandardDialogs::OpenMode;

const QString caption = QStringLiteral("Pick something, 図");
const QString twoTypes = QStringLiteral("Text (*.txt *.text);;All files (*)");

/// The folder that dialogs open in, and what is in it.
class Files
{
public:
    Files()
    {
        QDir(m_folder.path()).mkdir(QStringLiteral("folder"));
        for (const char* name : {"a.txt", "b.txt", "c.png", "Überblick 図.txt"}) {
            QFile file(path(QString::fromUtf8(name)));
            file.open(QIODevice::WriteOnly);
        }
    }

    QString folder() const { return m_folder.path(); }
    QString path(const QString& name) const { return m_folder.filePath(name); }

private:
    QTemporaryDir m_folder;
};

/// One call of getOpen() with somebody who operates the dialog.
struct Session
{
    LogRecords log;
    QtDialogEnder qtDialogs;
    QString dir;
    QString selectedFilter = QStringLiteral("as before");
    bool sawDialog = false;
    bool endedByItself = false;

    QStringList open(OpenMode mode, const std::function<void(DialogOperator&)>& act, QWidget* parent = nullptr)
    {
        DialogOperator user(caption, act);
        const QStringList chosen = StandardDialogs::getOpen(parent, caption, dir, twoTypes, &selectedFilter, mode);
        user.finish();
        sawDialog = user.sawDialog();
        endedByItself = user.endedByItself();
        return chosen;
    }

    /// Whether the system's dialog was there, went when it was told to, and nothing else appeared.
    bool endedWell() const
    {
        return sawDialog && endedByItself && log.records().isEmpty() && qtDialogs.dialogs().isEmpty();
    }
};

std::function<void(DialogOperator&)> enter(const QString& name)
{
    return [name](DialogOperator& user) {
        user.enterFileName(name);
        user.accept();
    };
}

void cancel(DialogOperator& user)
{
    user.cancel();
}

} // namespace

class tst_NativeFileDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void cancelIsAnEmptyList_data();
    void cancelIsAnEmptyList();
    void oneFile_data();
    void oneFile();
    void severalFiles();
    void folder();
    void filesWhereFoldersAreOfferedToo_data();
    void filesWhereFoldersAreOfferedToo();
    void buttonIsHookedForFilesAndFolders_data();
    void buttonIsHookedForFilesAndFolders();

    void title();
    void ownerIsTheParent();
    void startFolderMissing();
    void fileTypes();
    void firstTypeIsChosenAtTheStart();
    void filterIsWrittenBack_data();
    void filterIsWrittenBack();
    void oneAfterTheOther();

private:
    Files m_files;
};

void tst_NativeFileDialog::initTestCase()
{
    QCOMPARE(QGuiApplication::platformName(), QStringLiteral("windows"));
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

void tst_NativeFileDialog::cancelIsAnEmptyList_data()
{
    QTest::addColumn<int>("mode");
    for (int mode = 0; mode < 8; ++mode)
        QTest::addRow("%d", mode) << mode;
}

void tst_NativeFileDialog::cancelIsAnEmptyList()
{
    QFETCH(int, mode);
    Session session;
    session.dir = m_files.folder();
    QCOMPARE(session.open(static_cast<OpenMode>(mode), cancel), QStringList());
    QVERIFY(session.endedWell());
}

void tst_NativeFileDialog::oneFile_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("plain") << "a.txt";
    QTest::newRow("other scripts") << "Überblick 図.txt";
}

void tst_NativeFileDialog::oneFile()
{
    QFETCH(QString, name);
    // The name alone is entered: that it is found shows that the dialog opened where it was told to.
    Session session;
    session.dir = m_files.folder();
    QCOMPARE(session.open(OpenMode::Files, enter(name)), QStringList(m_files.path(name)));
    QVERIFY(session.endedWell());
}

void tst_NativeFileDialog::severalFiles()
{
    Session session;
    session.dir = m_files.folder();
    const QStringList chosen =
        session.open(OpenMode::Files | OpenMode::Multiple, enter(QStringLiteral("\"a.txt\" \"b.txt\"")));
    QCOMPARE(chosen, (QStringList{m_files.path(QStringLiteral("a.txt")), m_files.path(QStringLiteral("b.txt"))}));
    QVERIFY(session.endedWell());
}

void tst_NativeFileDialog::folder()
{
    Session session;
    session.dir = m_files.folder();
    const QStringList chosen = session.open(OpenMode::Directories, enter(QStringLiteral("folder")));
    QCOMPARE(chosen, QStringList(m_files.path(QStringLiteral("folder"))));
    QVERIFY(session.endedWell());
}

void tst_NativeFileDialog::filesWhereFoldersAreOfferedToo_data()
{
    QTest::addColumn<bool>("multiple");
    QTest::newRow("one") << false;
    QTest::newRow("several") << true;
}

void tst_NativeFileDialog::filesWhereFoldersAreOfferedToo()
{
    QFETCH(bool, multiple);
    Session session;
    session.dir = m_files.folder();
    const QString a = m_files.path(QStringLiteral("a.txt"));
    const QString c = m_files.path(QStringLiteral("c.png"));
    const auto mode = OpenMode::Files | OpenMode::Directories;
    if (multiple) {
        QCOMPARE(session.open(mode | OpenMode::Multiple, enter(QStringLiteral("\"a.txt\" \"c.png\""))),
                 (QStringList{a, c}));
    } else {
        QCOMPARE(session.open(mode, enter(QStringLiteral("a.txt"))), QStringList(a));
    }
    QVERIFY(session.endedWell());
}

void tst_NativeFileDialog::buttonIsHookedForFilesAndFolders_data()
{
    cancelIsAnEmptyList_data();
}

void tst_NativeFileDialog::buttonIsHookedForFilesAndFolders()
{
    QFETCH(int, mode);
    const bool expected = mode == 6 || mode == 7;
    Session session;
    session.dir = m_files.folder();
    bool hooked = false;
    session.open(static_cast<OpenMode>(mode), [&](DialogOperator& user) {
        if (expected)
            user.waitFor([&user] { return user.isOkButtonHooked(); });
        hooked = user.isOkButtonHooked();
        user.cancel();
    });
    QCOMPARE(hooked, expected);
    QVERIFY(session.endedWell());
}

void tst_NativeFileDialog::title()
{
    Session session;
    QString title;
    session.open(OpenMode::Files, [&](DialogOperator& user) {
        title = user.title();
        user.cancel();
    });
    QCOMPARE(title, caption);
    QVERIFY(session.endedWell());
}

void tst_NativeFileDialog::ownerIsTheParent()
{
    QWidget parent;
    parent.show();
    QVERIFY(QTest::qWaitForWindowExposed(&parent));
    const auto handle = reinterpret_cast<HWND>(parent.winId());
    for (const bool owned : {true, false}) {
        Session session;
        HWND owner = nullptr;
        bool disabled = false;
        session.open(
            OpenMode::Files,
            [&](DialogOperator& user) {
                owner = user.owner();
                disabled = !IsWindowEnabled(handle);
                user.cancel();
            },
            owned ? &parent : nullptr);
        QVERIFY(session.endedWell());
        QCOMPARE(owner == handle, owned);
        QCOMPARE(disabled, owned);
    }
}

void tst_NativeFileDialog::startFolderMissing()
{
    Session session;
    session.dir = m_files.path(QStringLiteral("nowhere/at all"));
    const QString a = m_files.path(QStringLiteral("a.txt"));
    QCOMPARE(session.open(OpenMode::Files, enter(QDir::toNativeSeparators(a))), QStringList(a));
    QVERIFY(session.endedWell());
}

void tst_NativeFileDialog::fileTypes()
{
    Session session;
    QStringList types;
    session.open(OpenMode::Files, [&](DialogOperator& user) {
        types = user.fileTypes();
        user.cancel();
    });
    QCOMPARE(types, (QStringList{QStringLiteral("Text"), QStringLiteral("All files")}));
}

void tst_NativeFileDialog::firstTypeIsChosenAtTheStart()
{
    // What the caller's variable holds does not pre-select.
    Session session;
    session.selectedFilter = QStringLiteral("All files (*)");
    int index = -1;
    session.open(OpenMode::Files, [&](DialogOperator& user) {
        index = user.fileTypeIndex();
        user.cancel();
    });
    QCOMPARE(index, 0);
    QCOMPARE(session.selectedFilter, QStringLiteral("Text (*.txt *.text)"));
}

void tst_NativeFileDialog::filterIsWrittenBack_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<bool>("accepts");
    QTest::addColumn<QString>("written");

    QTest::newRow("the first, OK") << -1 << true << "Text (*.txt *.text)";
    QTest::newRow("the second, OK") << 1 << true << "All files (*)";
    QTest::newRow("the second, cancelled") << 1 << false << "All files (*)";
}

void tst_NativeFileDialog::filterIsWrittenBack()
{
    QFETCH(int, index);
    QFETCH(bool, accepts);
    QFETCH(QString, written);
    Session session;
    session.dir = m_files.folder();
    const QStringList chosen = session.open(OpenMode::Files, [&](DialogOperator& user) {
        if (index >= 0)
            user.chooseFileType(index);
        user.enterFileName(QStringLiteral("a.txt"));
        if (accepts)
            user.accept();
        else
            user.cancel();
    });
    QCOMPARE(session.selectedFilter, written);
    QCOMPARE(chosen, accepts ? QStringList(m_files.path(QStringLiteral("a.txt"))) : QStringList());
    QVERIFY(session.endedWell());
}

void tst_NativeFileDialog::oneAfterTheOther()
{
    for (int i = 0; i < 3; ++i) {
        Session session;
        session.dir = m_files.folder();
        const auto mode = OpenMode::Files | OpenMode::Directories;
        QCOMPARE(session.open(mode, enter(QStringLiteral("b.txt"))),
                 QStringList(m_files.path(QStringLiteral("b.txt"))));
        QVERIFY(session.endedWell());
    }
}

QTEST_MAIN(tst_NativeFileDialog)
#include "tst_NativeFileDialog.moc"
