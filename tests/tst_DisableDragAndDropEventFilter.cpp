#include <KQt/Ui/DisableDragAndDropEventFilter.h>

#include <QtTest>

class tst_DisableDragAndDropEventFilter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void builds() { QVERIFY(true); }
};

QTEST_MAIN(tst_DisableDragAndDropEventFilter)
#include "tst_DisableDragAndDropEventFilter.moc"
