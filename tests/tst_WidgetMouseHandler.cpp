#include <KQt/Ui/WidgetMouseHandler.h>

#include <QtTest>

class tst_WidgetMouseHandler : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void builds() { QVERIFY(true); }
};

QTEST_MAIN(tst_WidgetMouseHandler)
#include "tst_WidgetMouseHandler.moc"
