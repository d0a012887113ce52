#include <Basalt/IoPath.h>

#include <QtTest>

using Kestrel::ioPath;

class tst_IoPath : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsItsText();
    void removesTheSuffix_data();
    void removesTheSuffix();
};

void tst_IoPath::keepsItsText()
{
    const std::string text = "/media/\xc3\x84pfel/\xe6\x98\xa0\xe7\x94\xbb/";
    QCOMPARE(ioPath(text).ToUtf8(), text);
    QCOMPARE(ioPath().ToUtf8(), std::string());
}

void tst_IoPath::removesTheSuffix_data()
{
    QTest::addColumn<QByteArray>("path");
    QTest::addColumn<QByteArray>("expected");
    const auto row = [](const char* name, const char* path, const char* expected) {
        QTest::newRow(name) << QByteArray(path) << QByteArray(expected);
    };
    row("last component", "/media/disc/VIDEO_TS", "/media/disc");
    row("trailing separator", "/media/disc/VIDEO_TS/", "/media/disc");
    row("root", "/VIDEO_TS", "/");
    row("drive", "D:/VIDEO_TS", "D:/");
    row("UTF-8", "/media/\xc3\x84/VIDEO_TS", "/media/\xc3\x84");
    row("twice goes once", "/VIDEO_TS/VIDEO_TS", "/VIDEO_TS");
    row("relative", "disc/VIDEO_TS", "disc");
    row("nothing else", "VIDEO_TS", "");
    row("absent", "/media/disc", "/media/disc");
    row("absent, trailing separator stays", "/media/disc/", "/media/disc/");
    row("in the middle", "/media/VIDEO_TS/disc", "/media/VIDEO_TS/disc");
    row("part of a name", "/media/MY_VIDEO_TS", "/media/MY_VIDEO_TS");
    row("longer name", "/media/VIDEO_TS2", "/media/VIDEO_TS2");
    row("other case", "/media/video_ts", "/media/video_ts");
    row("empty", "", "");
    row("separator", "/", "/");
#ifdef Q_OS_WIN
    row("backslashes", "D:\\disc\\VIDEO_TS", "D:\\disc");
    row("drive with backslash", "D:\\VIDEO_TS\\", "D:\\");
#endif
}

void tst_IoPath::removesTheSuffix()
{
    QFETCH(QByteArray, path);
    QFETCH(QByteArray, expected);
    const ioPath result = Kestrel::Core::RemoveDirectorySuffixIfRequired(ioPath(path.toStdString()), "VIDEO_TS");
    QCOMPARE(QByteArray::fromStdString(result.ToUtf8()), expected);

    // An empty suffix is the last component of no path.
    const ioPath unchanged = Kestrel::Core::RemoveDirectorySuffixIfRequired(ioPath(path.toStdString()), "");
    QCOMPARE(QByteArray::fromStdString(unchanged.ToUtf8()), path);
}

QTEST_APPLESS_MAIN(tst_IoPath)
#include "tst_IoPath.moc"
