#include <KQt/Ui/LineWidthDelegate.h>

#include "support/ContextTranslator.h"
#include "support/WarningCatcher.h"

#include <QPainter>
#include <QStandardItemModel>

#include <QtTest>

using Kestrel::Gui::LineWidthDelegate;
using TestSupport::ContextTranslator;
using TestSupport::WarningCatcher;

namespace {

const QRect itemRect(5, 7, 90, 24);

/// An item of @p width painted by @p paint on a white ground.
template <typename Paint>
QImage painted(int width, Paint paint)
{
    QStandardItemModel model(1, 1);
    model.setData(model.index(0, 0), width, Qt::UserRole);
    QStyleOptionViewItem option;
    option.rect = itemRect;
    QImage image(110, 40, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setPen(Qt::darkGreen);
    paint(painter, option, model.index(0, 0));
    painter.end();
    return image;
}

QImage shownBy(const LineWidthDelegate& delegate, int width)
{
    return painted(width, [&](QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) {
        delegate.paint(&painter, option, index);
    });
}

QImage wordExpected(int width, const QString& word)
{
    return painted(width, [&](QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) {
        QStyledItemDelegate().paint(&painter, option, index);
        painter.drawText(itemRect.translated(8, 0), Qt::AlignLeft | Qt::AlignVCenter, word);
    });
}

} // namespace

class tst_LineWidthDelegate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void drawsLineOfWidth_data();
    void drawsLineOfWidth();
    void belowOneIsTheWord_data();
    void belowOneIsTheWord();
    void wordIsTranslatedInItsOwnContext();
    void handsThePainterBack_data();
    void handsThePainterBack();
};

void tst_LineWidthDelegate::drawsLineOfWidth_data()
{
    QTest::addColumn<int>("width");
    for (int width = 1; width <= 5; ++width)
        QTest::addRow("%d", width) << width;
}

void tst_LineWidthDelegate::drawsLineOfWidth()
{
    QFETCH(int, width);
    const QImage expected =
        painted(width, [&](QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) {
            QStyledItemDelegate().paint(&painter, option, index);
            painter.setPen(QPen(Qt::darkGreen, width));
            painter.drawLine(5 + 8, 7 + 24 / 2, 5 + 90 - 1 - 8, 7 + 24 / 2);
        });
    QCOMPARE(shownBy(LineWidthDelegate(), width), expected);
}

void tst_LineWidthDelegate::belowOneIsTheWord_data()
{
    QTest::addColumn<int>("width");
    QTest::newRow("zero") << 0;
    QTest::newRow("negative") << -3;
}

void tst_LineWidthDelegate::belowOneIsTheWord()
{
    QFETCH(int, width);
    const WarningCatcher catcher;
    QCOMPARE(shownBy(LineWidthDelegate(), width), wordExpected(width, QStringLiteral("none")));
    QCOMPARE(catcher.warnings(), QStringList());
}

void tst_LineWidthDelegate::wordIsTranslatedInItsOwnContext()
{
    QVERIFY(shownBy(LineWidthDelegate(), 0) != wordExpected(0, ContextTranslator::translated("none")));
    const ContextTranslator translator("Kestrel::Gui::LineWidthDelegate");
    QCOMPARE(LineWidthDelegate::tr("none"), ContextTranslator::translated("none"));
    QCOMPARE(shownBy(LineWidthDelegate(), 0), wordExpected(0, ContextTranslator::translated("none")));
}

void tst_LineWidthDelegate::handsThePainterBack_data()
{
    belowOneIsTheWord_data();
    QTest::newRow("line") << 4;
}

void tst_LineWidthDelegate::handsThePainterBack()
{
    QFETCH(int, width);
    painted(width, [](QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) {
        const QPen before(Qt::red, 7, Qt::DashLine);
        painter.setPen(before);
        const QTransform transform = painter.transform();
        LineWidthDelegate().paint(&painter, option, index);
        QCOMPARE(painter.pen(), before);
        QCOMPARE(painter.transform(), transform);
    });
}

QTEST_MAIN(tst_LineWidthDelegate)
#include "tst_LineWidthDelegate.moc"
