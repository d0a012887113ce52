#include <Basalt/WindowsVersion.h>

#include <QtTest>

class tst_WindowsVersion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void vistaOrGreater();
};

void tst_WindowsVersion::vistaOrGreater()
{
#ifdef Q_OS_WIN
    // Qt 5.15 itself asks for Windows 7.
    QVERIFY(Kestrel::Core::IsWindowsVistaOrGreater());
#else
    QVERIFY(!Kestrel::Core::IsWindowsVistaOrGreater());
#endif
}

QTEST_APPLESS_MAIN(tst_WindowsVersion)
#include "tst_WindowsVersion.moc"
