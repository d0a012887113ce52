#include <KQt/Ui/WidgetResizeHandler.h>

#include <QtTest>

class tst_WidgetResizeHandler : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void builds() { QVERIFY(true); }
};

QTEST_MAIN(tst_WidgetResizeHandler)
#include "tst_WidgetResizeHandler.moc"
