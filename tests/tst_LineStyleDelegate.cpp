#include <KQt/Ui/LineStyleDelegate.h>

#include <QPainter>
#include <QStandardItemModel>

#include <QtTest>

using Kestrel::Gui::LineStyleDelegate;

class tst_LineStyleDelegate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void drawsOrdinaryItemAndLineInStyle_data();
    void drawsOrdinaryItemAndLineInStyle();
    void handsThePenBack();
    void isNoClassOfItsOwnToTheMetaObject();
};

void tst_LineStyleDelegate::drawsOrdinaryItemAndLineInStyle_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("selected");
    for (int style = 0; style <= 5; ++style) {
        QTest::addRow("%d", style) << style << QString() << false;
        QTest::addRow("%d, text, selected", style) << style << QStringLiteral("Text") << true;
    }
}

void tst_LineStyleDelegate::drawsOrdinaryItemAndLineInStyle()
{
    QFETCH(int, style);
    QFETCH(QString, text);
    QFETCH(bool, selected);
    QStandardItemModel model(1, 1);
    model.setData(model.index(0, 0), text);
    model.setData(model.index(0, 0), style, Qt::UserRole);
    QStyleOptionViewItem option;
    option.rect = QRect(5, 7, 90, 23);
    option.state.setFlag(QStyle::State_Selected, selected);

    QImage shown(110, 40, QImage::Format_ARGB32_Premultiplied);
    shown.fill(Qt::white);
    QImage expected = shown;
    {
        QPainter painter(&shown);
        painter.setPen(Qt::darkGreen);
        LineStyleDelegate().paint(&painter, option, model.index(0, 0));
    }
    {
        QPainter painter(&expected);
        painter.setPen(Qt::darkGreen);
        QStyledItemDelegate().paint(&painter, option, model.index(0, 0));
        QPen pen(Qt::darkGreen);
        pen.setWidth(2);
        pen.setStyle(Qt::PenStyle(style));
        painter.setPen(pen);
        painter.drawLine(5 + 8, 7 + 23 / 2, 5 + 90 - 1 - 8, 7 + 23 / 2);
    }
    QCOMPARE(shown, expected);
}

void tst_LineStyleDelegate::handsThePenBack()
{
    QStandardItemModel model(1, 1);
    model.setData(model.index(0, 0), 3, Qt::UserRole);
    QStyleOptionViewItem option;
    option.rect = QRect(0, 0, 50, 20);
    QImage image(50, 20, QImage::Format_RGB32);
    QPainter painter(&image);
    const QPen before(Qt::red, 7, Qt::DashLine);
    painter.setPen(before);
    LineStyleDelegate().paint(&painter, option, model.index(0, 0));
    QCOMPARE(painter.pen(), before);
}

void tst_LineStyleDelegate::isNoClassOfItsOwnToTheMetaObject()
{
    QCOMPARE(LineStyleDelegate().metaObject(), &QStyledItemDelegate::staticMetaObject);
}

QTEST_MAIN(tst_LineStyleDelegate)
#include "tst_LineStyleDelegate.moc"
