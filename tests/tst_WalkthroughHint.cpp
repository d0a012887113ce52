#include "support/TestHint.h"
#include <QtTest>
class tst_WalkthroughHint : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void startedHintShowsInItsTargetsWindow()
    {
        QWidget w;
        w.resize(400, 300);
        QWidget t(&w);
        w.show();
        auto* h = new TestSupport::TestHint;
        h->addPage(QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("bottom"));
        h->start({&t});
        QTRY_VERIFY(h->isVisible());
        QCOMPARE(h->parentWidget(), &w);
    }
};
QTEST_MAIN(tst_WalkthroughHint)
#include "tst_WalkthroughHint.moc"
