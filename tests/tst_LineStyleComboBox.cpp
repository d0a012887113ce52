#include <KQt/Ui/LineStyleComboBox.h>

#include "support/Render.h"

#include <QListView>
#include <QSignalSpy>
#include <QStyledItemDelegate>
#include <QStyleOptionComboBox>

#include <QtTest>

using Kestrel::Gui::LineStyleComboBox;
using TestSupport::render;

namespace {

int arrowWidthOf(const QComboBox& box)
{
    QStyleOptionComboBox option;
    option.initFrom(&box);
    return box.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow, &box).width();
}

} // namespace

class tst_LineStyleComboBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hasListViewOnItsOwnModelAndDelegate();
    void fillsNothingByItself();
    void metaObjectAddsNothing();
    void closedBoxShowsLineInStyle_data();
    void closedBoxShowsLineInStyle();
    void noPenShowsNoLine();
    void narrowBoxEndsBeforeArrow();
    void itemTextLiesUnderTheLine();
    void staysAnOrdinaryComboBox();
};

void tst_LineStyleComboBox::hasListViewOnItsOwnModelAndDelegate()
{
    LineStyleComboBox box;
    QVERIFY(box.view()->metaObject() == &QListView::staticMetaObject);
    QCOMPARE(box.view()->model(), box.model());
    QVERIFY(qobject_cast<QStyledItemDelegate*>(box.itemDelegate()));
    QCOMPARE(box.itemDelegate()->parent(), &box);
    // The list uses it as well.
    QCOMPARE(box.view()->itemDelegate(), box.itemDelegate());
}

void tst_LineStyleComboBox::fillsNothingByItself()
{
    QWidget parent;
    LineStyleComboBox box(&parent);
    QCOMPARE(box.parentWidget(), &parent);
    QCOMPARE(box.count(), 0);
    QCOMPARE(box.currentIndex(), -1);
}

void tst_LineStyleComboBox::metaObjectAddsNothing()
{
    const QMetaObject& meta = LineStyleComboBox::staticMetaObject;
    QCOMPARE(meta.className(), "Kestrel::Gui::LineStyleComboBox");
    QCOMPARE(meta.superClass(), &QComboBox::staticMetaObject);
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    QCOMPARE(meta.methodCount(), meta.methodOffset());
}

void tst_LineStyleComboBox::closedBoxShowsLineInStyle_data()
{
    QTest::addColumn<int>("style");
    QTest::newRow("solid") << 1;
    QTest::newRow("dash") << 2;
    QTest::newRow("dot") << 3;
    QTest::newRow("dash dot") << 4;
    QTest::newRow("dash dot dot") << 5;
}

void tst_LineStyleComboBox::closedBoxShowsLineInStyle()
{
    QFETCH(int, style);
    LineStyleComboBox box;
    QComboBox plain;
    for (QComboBox* each : {static_cast<QComboBox*>(&box), &plain}) {
        each->addItem(QString(), style);
        each->resize(160, 31);
    }

    QImage expected = render(plain);
    {
        QPainter painter(&expected);
        box.ensurePolished(); // a style sheet sets the palette
        QPen pen(box.palette().color(box.foregroundRole()), 2);
        pen.setStyle(Qt::PenStyle(style));
        painter.setPen(pen);
        const int y = 31 / 2;
        painter.drawLine(8, y, 159 - 4 - arrowWidthOf(box), y);
    }
    QCOMPARE(render(box), expected);
    QVERIFY(render(box) != render(plain));
}

void tst_LineStyleComboBox::noPenShowsNoLine()
{
    LineStyleComboBox box;
    QComboBox plain;
    for (QComboBox* each : {static_cast<QComboBox*>(&box), &plain}) {
        each->addItem(QStringLiteral("none"), 0);
        each->resize(160, 31);
    }
    QCOMPARE(render(box), render(plain));
}

void tst_LineStyleComboBox::narrowBoxEndsBeforeArrow()
{
    LineStyleComboBox box;
    QComboBox plain;
    for (QComboBox* each : {static_cast<QComboBox*>(&box), &plain}) {
        each->addItem(QString(), 1);
        each->resize(20 + 8 + 4 + arrowWidthOf(box), 30);
    }
    const QImage with = render(box);
    const QImage without = render(plain);
    const int last = box.width() - 1 - 4 - arrowWidthOf(box);
    for (int x = 0; x < box.width(); ++x) {
        // Square caps make a line of two pixels one pixel longer at each end.
        const bool inside = x >= 8 && x <= last;
        const bool outside = x < 8 - 1 || x > last + 1;
        if (inside)
            QVERIFY2(with.pixel(x, 15) != without.pixel(x, 15), qPrintable(QString::number(x)));
        if (outside)
            QVERIFY2(with.pixel(x, 15) == without.pixel(x, 15), qPrintable(QString::number(x)));
    }
}

void tst_LineStyleComboBox::itemTextLiesUnderTheLine()
{
    LineStyleComboBox box;
    QComboBox plain;
    for (QComboBox* each : {static_cast<QComboBox*>(&box), &plain}) {
        each->addItem(QStringLiteral("Text"), 1);
        each->resize(160, 30);
    }
    const QImage with = render(box);
    const QImage without = render(plain);
    QVERIFY(with != without);
    // Only the line's rows differ: the text is still there.
    for (int y = 0; y < 30; ++y) {
        if (y >= 14 && y <= 15)
            continue;
        for (int x = 0; x < 160; ++x)
            QCOMPARE(with.pixel(x, y), without.pixel(x, y));
    }
}

void tst_LineStyleComboBox::staysAnOrdinaryComboBox()
{
    LineStyleComboBox box;
    for (int style = 1; style <= 5; ++style)
        box.addItem(QString(), style);
    QSignalSpy changed(&box, QOverload<int>::of(&QComboBox::currentIndexChanged));
    QTest::keyClick(&box, Qt::Key_Down);
    QCOMPARE(box.currentIndex(), 1);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(box.currentData().toInt(), 2);
}

QTEST_MAIN(tst_LineStyleComboBox)
#include "tst_LineStyleComboBox.moc"
