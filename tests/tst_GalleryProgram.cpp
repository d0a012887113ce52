#include "PageRegistry.h"

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTemporaryFile>
#include <QtTest>

namespace {

struct Run
{
    int exitCode = -1;
    QString output;
    QString errors;
};

/// Runs the gallery to its end in @p folder.
Run runGallery(const QStringList& arguments, const QString& folder = QDir::tempPath(),
               const QProcessEnvironment& environment = QProcessEnvironment::systemEnvironment())
{
    QProcess process;
    process.setWorkingDirectory(folder);
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(KQTUI_GALLERY), arguments);
    constexpr int longest = 120000; // milliseconds
    if (!process.waitForFinished(longest) || process.exitStatus() != QProcess::NormalExit)
        return {-1, {}, process.errorString()};
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

QStringList pageFiles()
{
    QStringList files;
    for (const Gallery::PageRegistration& page : Gallery::registeredPages())
        files << page.slug() + QStringLiteral(".png");
    return files;
}

} // namespace

/// The gallery as a program: its command line, its exit codes, what it writes.
class tst_GalleryProgram : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wrongUsage_data();
    void wrongUsage();
    void help();
    void version();
    void writesEveryPageAndSaysWhere();
    void onePageOnly();
    void palettesDirectionsAndLanguagesDiffer();
    void withoutADisplayRendersToTheDefaultFolder();
    void unwritableFolder();
};

void tst_GalleryProgram::wrongUsage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("unknown option") << QStringList{QStringLiteral("--no-such-option")};
    QTest::newRow("surplus argument") << QStringList{QStringLiteral("surplus")};
    QTest::newRow("unknown page") << QStringList{QStringLiteral("--page"), QStringLiteral("nowhere")};
    QTest::newRow("missing value") << QStringList{QStringLiteral("--screenshots")};
}

void tst_GalleryProgram::wrongUsage()
{
    QFETCH(QStringList, arguments);
    const Run run = runGallery(arguments);
    QCOMPARE(run.exitCode, 2);
    QVERIFY(run.errors.contains(QStringLiteral("Usage:")));
    QVERIFY(run.output.isEmpty());
}

void tst_GalleryProgram::help()
{
    const Run run = runGallery({QStringLiteral("--help")});
    QCOMPARE(run.exitCode, 0);
    for (const char* option : {"--screenshots", "--palette", "--rtl", "--language", "--page", "--help"})
        QVERIFY2(run.output.contains(QLatin1String(option)), option);
}

void tst_GalleryProgram::version()
{
    const Run run = runGallery({QStringLiteral("--version")});
    QCOMPARE(run.exitCode, 0);
    QVERIFY(QRegularExpression(QStringLiteral("^kqtui-gallery \\d+\\.\\d+\\.\\d+\n$")).match(run.output).hasMatch());
}

void tst_GalleryProgram::writesEveryPageAndSaysWhere()
{
    const QTemporaryDir folder;
    const Run run = runGallery({QStringLiteral("--screenshots"), QStringLiteral("new/folder")}, folder.path());
    QVERIFY2(run.exitCode == 0, qPrintable(run.errors));
    const QDir pictures(folder.filePath(QStringLiteral("new/folder")));
    const auto files = pageFiles();
    for (const QString& file : files) {
        QVERIFY2(!QImage(pictures.filePath(file)).isNull(), qPrintable(file));
        QVERIFY2(run.output.contains(pictures.canonicalPath() + QLatin1Char('/') + file), qPrintable(run.output));
    }
    QCOMPARE(run.output.count(QLatin1Char('\n')), pictures.entryList({QStringLiteral("*.png")}).count());
}

void tst_GalleryProgram::onePageOnly()
{
    const QTemporaryDir folder;
    const Run run = runGallery(
        {QStringLiteral("--screenshots"), folder.path(), QStringLiteral("--page"), QStringLiteral("event-helpers")});
    QVERIFY2(run.exitCode == 0, qPrintable(run.errors));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList{QStringLiteral("event-helpers.png")});
}

void tst_GalleryProgram::palettesDirectionsAndLanguagesDiffer()
{
    const QTemporaryDir folder;
    QVector<QImage> pictures;
    for (const QString& option :
         {QStringLiteral("--palette=light"), QStringLiteral("--palette=dark"), QStringLiteral("--rtl"),
          QStringLiteral("--language=de"), QStringLiteral("--language=ar")}) {
        const Run run = runGallery({QStringLiteral("--screenshots"), folder.path(), QStringLiteral("--page"),
                                    QStringLiteral("event-helpers"), option});
        QVERIFY2(run.exitCode == 0, qPrintable(run.errors));
        const QImage picture(folder.filePath(QStringLiteral("event-helpers.png")));
        QVERIFY(!picture.isNull());
        QVERIFY2(!pictures.contains(picture), qPrintable(option));
        pictures << picture;
    }
}

void tst_GalleryProgram::withoutADisplayRendersToTheDefaultFolder()
{
    const QTemporaryDir folder;
    QProcessEnvironment bare = QProcessEnvironment::systemEnvironment();
    for (const char* variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        bare.remove(QLatin1String(variable));
    const Run run = runGallery({}, folder.path(), bare);
    QVERIFY2(run.exitCode == 0, qPrintable(run.errors));
    QVERIFY(run.output.contains(QStringLiteral("gallery-screenshots")));
    const auto files = pageFiles();
    for (const QString& file : files)
        QVERIFY(QFile::exists(folder.filePath(QStringLiteral("gallery-screenshots/") + file)));
}

void tst_GalleryProgram::unwritableFolder()
{
    QTemporaryFile file;
    QVERIFY(file.open());
    const Run run = runGallery({QStringLiteral("--screenshots"), file.fileName()});
    QCOMPARE(run.exitCode, 1);
    QVERIFY(run.errors.contains(file.fileName()));
}

QTEST_GUILESS_MAIN(tst_GalleryProgram)
#include "tst_GalleryProgram.moc"
