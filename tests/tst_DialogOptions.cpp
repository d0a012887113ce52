#include <KQt/Ui/DialogOptions.h>
#include <KQt/Ui/StandardDialogs.h>

#include <QtTest>

using Kestrel::Gui::nativeDialogOptions;
using Kestrel::Gui::StandardDialogs;

namespace {

using OpenMode = StandardDialogs::OpenMode;

// The system's own names and values; this file is compiled where its headers are not.
constexpr quint32 fosOverwritePrompt = 0x2;
constexpr quint32 fosNoChangeDir = 0x8;
constexpr quint32 fosPickFolders = 0x20;
constexpr quint32 fosForceFileSystem = 0x40;
constexpr quint32 fosAllowMultiSelect = 0x200;
constexpr quint32 fosPathMustExist = 0x800;
constexpr quint32 fosFileMustExist = 0x1000;
constexpr quint32 fosNoDereferenceLinks = 0x100000;
constexpr quint32 fosForceShowHidden = 0x10000000;
constexpr quint32 fosSupportStreamableItems = 0x80000000;

} // namespace

class tst_DialogOptions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void modes_data();
    void modes();
    void everyModeAddsFourFlags();
    void ownOptionsStay_data();
    void ownOptionsStay();
    void askingTwiceAddsNothing();
};

void tst_DialogOptions::modes_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<quint32>("added");

    QTest::newRow("none") << 0 << 0x101840U;
    QTest::newRow("Multiple") << 1 << 0x101A40U;
    QTest::newRow("Files") << 2 << 0x101840U;
    QTest::newRow("Files+Multiple") << 3 << 0x101A40U;
    QTest::newRow("Directories") << 4 << 0x101860U;
    QTest::newRow("Directories+Multiple") << 5 << 0x101A60U;
    QTest::newRow("Files+Directories") << 6 << 0x101840U;
    QTest::newRow("Files+Directories+Multiple") << 7 << 0x101A40U;
}

void tst_DialogOptions::modes()
{
    QFETCH(int, mode);
    QFETCH(quint32, added);
    QCOMPARE(nativeDialogOptions(0, static_cast<OpenMode>(mode)), added);
}

void tst_DialogOptions::everyModeAddsFourFlags()
{
    constexpr quint32 always = fosForceFileSystem | fosPathMustExist | fosFileMustExist | fosNoDereferenceLinks;
    for (int mode = 0; mode < 8; ++mode) {
        const quint32 options = nativeDialogOptions(0, static_cast<OpenMode>(mode));
        QCOMPARE(options & always, always);
        QCOMPARE((options & fosAllowMultiSelect) != 0, (mode & 1) != 0);
        // A dialog that picks folders shows no files: folders among files are taken otherwise.
        QCOMPARE((options & fosPickFolders) != 0, (mode & 4) != 0 && (mode & 2) == 0);
        QCOMPARE(options & ~(always | fosAllowMultiSelect | fosPickFolders), 0U);
    }
}

void tst_DialogOptions::ownOptionsStay_data()
{
    QTest::addColumn<quint32>("own");

    QTest::newRow("Windows' defaults") << (fosNoChangeDir | fosPathMustExist | fosFileMustExist);
    QTest::newRow("others") << (fosOverwritePrompt | fosForceShowHidden | fosSupportStreamableItems);
    QTest::newRow("those that modes add") << (fosPickFolders | fosAllowMultiSelect);
    QTest::newRow("all") << 0xFFFFFFFFU;
}

void tst_DialogOptions::ownOptionsStay()
{
    QFETCH(quint32, own);
    for (int mode = 0; mode < 8; ++mode) {
        const auto openMode = static_cast<OpenMode>(mode);
        QCOMPARE(nativeDialogOptions(own, openMode), own | nativeDialogOptions(0, openMode));
    }
}

void tst_DialogOptions::askingTwiceAddsNothing()
{
    for (int mode = 0; mode < 8; ++mode) {
        const auto openMode = static_cast<OpenMode>(mode);
        const quint32 once = nativeDialogOptions(fosNoChangeDir, openMode);
        QCOMPARE(nativeDialogOptions(once, openMode), once);
    }
}

QTEST_APPLESS_MAIN(tst_DialogOptions)
#include "tst_DialogOptions.moc"
