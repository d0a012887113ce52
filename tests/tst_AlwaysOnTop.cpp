#include <KQt/Ui/AlwaysOnTop.h>

#include <QtTest>

class tst_AlwaysOnTop : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void builds() { QVERIFY(true); }
};

QTEST_MAIN(tst_AlwaysOnTop)
#include "tst_AlwaysOnTop.moc"
