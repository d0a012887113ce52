#include <KQt/Ui/MeasuringDelegate.h>

#include <QApplication>
#include <QListView>
#include <QStandardItemModel>

#include <QtTest>

#include <functional>
#include <memory>

using Kestrel::Gui::MeasuringDelegate;

namespace {

/// A list that counts how often an item's text is asked for: once for each measurement.
class CountingModel : public QStandardItemModel
{
public:
    using QStandardItemModel::QStandardItemModel;

    QVariant data(const QModelIndex& index, int role) const override
    {
        measurements += role == Qt::DisplayRole;
        if (role == Qt::DisplayRole && onAsked)
            onAsked();
        return QStandardItemModel::data(index, role);
    }

    mutable int measurements = 0;
    std::function<void()> onAsked;
};

struct List
{
    QListView view;
    CountingModel model;
    MeasuringDelegate delegate;

    List()
    {
        for (const char* text : {"short", "a good deal longer", "two\nlines", ""})
            model.appendRow(new QStandardItem(QString::fromLatin1(text)));
        view.setModel(&model);
    }

    QStyleOptionViewItem option() const
    {
        QStyleOptionViewItem option;
        option.initFrom(&view);
        option.widget = &view;
        option.font = view.font();
        option.fontMetrics = QFontMetrics(option.font);
        option.locale = view.locale();
        option.decorationSize = QSize(16, 16);
        return option;
    }

    QVector<QSize> sizes(const QAbstractItemDelegate& by, const QStyleOptionViewItem& option) const
    {
        QVector<QSize> sizes;
        for (int row = 0; row < model.rowCount(); ++row)
            sizes << by.sizeHint(option, model.index(row, 0));
        return sizes;
    }

    /// Whether the delegate measures now, and gives the ordinary delegate's sizes.
    bool measures(const QStyleOptionViewItem& option)
    {
        model.measurements = 0;
        const QVector<QSize> measured = sizes(delegate, option);
        const bool asked = model.measurements > 0;
        if (measured != sizes(QStyledItemDelegate(), option))
            qFatal("sizes differ from the ordinary delegate's");
        return asked;
    }
    bool measures() { return measures(option()); }
};

} // namespace

class tst_MeasuringDelegate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void measuresOnce();
    void modelChangesMeasureAnew_data();
    void modelChangesMeasureAnew();
    void otherConditionsMeasureAnew_data();
    void otherConditionsMeasureAnew();
    void wrappedTextsAreMeasuredEachTime();
    void forgets();
    void otherModelsAndColumns();
    void modelThatChangesWhileItIsAsked();
    void invalidIndex();
};

void tst_MeasuringDelegate::measuresOnce()
{
    List list;
    QVERIFY(list.measures());
    QVERIFY(!list.measures());
}

void tst_MeasuringDelegate::modelChangesMeasureAnew_data()
{
    QTest::addColumn<int>("change");
    for (int change = 0; change < 7; ++change)
        QTest::addRow("%d", change) << change;
}

void tst_MeasuringDelegate::modelChangesMeasureAnew()
{
    QFETCH(int, change);
    List list;
    list.measures();
    QStandardItemModel& model = list.model;
    const std::function<void()> changes[] = {
        [&] { model.item(0)->setText(QStringLiteral("another text, which is longer than before")); },
        [&] { model.insertRow(0, new QStandardItem(QStringLiteral("new"))); },
        [&] { model.removeRow(1); },
        [&] { model.sort(0, Qt::DescendingOrder); },
        [&] { model.item(2)->setSizeHint(QSize(77, 33)); },
        [&] { model.insertColumn(0); },
        [&] { model.item(1)->setIcon(QPixmap(40, 40)); },
    };
    changes[change]();
    QVERIFY(list.measures());
    QVERIFY(!list.measures());
}

void tst_MeasuringDelegate::otherConditionsMeasureAnew_data()
{
    QTest::addColumn<int>("condition");
    QTest::newRow("font") << 0;
    QTest::newRow("icon size") << 1;
    QTest::newRow("locale") << 2;
}

void tst_MeasuringDelegate::otherConditionsMeasureAnew()
{
    QFETCH(int, condition);
    List list;
    list.measures();
    QStyleOptionViewItem option = list.option();
    if (condition == 0) {
        option.font.setPointSize(option.font.pointSize() + 7);
        option.fontMetrics = QFontMetrics(option.font);
    } else if (condition == 1) {
        option.decorationSize = QSize(32, 32);
    } else {
        option.locale = QLocale(QLocale::Arabic, QLocale::Egypt);
    }
    QVERIFY(list.measures(option));
    QVERIFY(!list.measures(option));
}

void tst_MeasuringDelegate::wrappedTextsAreMeasuredEachTime()
{
    List list;
    QStyleOptionViewItem option = list.option();
    option.features |= QStyleOptionViewItem::WrapText;
    option.rect = QRect(0, 0, 40, 400);
    QVERIFY(list.measures(option));
    QVERIFY(list.measures(option));
}

void tst_MeasuringDelegate::forgets()
{
    List list;
    list.measures();
    list.delegate.forget();
    QVERIFY(list.measures());
}

void tst_MeasuringDelegate::otherModelsAndColumns()
{
    List list;
    list.measures();
    auto other = std::make_unique<QStandardItemModel>(1, 2);
    other->setData(other->index(0, 1), QStringLiteral("a text in the second column of another model"));
    const QStyleOptionViewItem option = list.option();
    const QStyledItemDelegate ordinary;
    for (int column : {0, 1, 0})
        QCOMPARE(list.delegate.sizeHint(option, other->index(0, column)),
                 ordinary.sizeHint(option, other->index(0, column)));
    other.reset();
    QVERIFY(list.measures());
}

void tst_MeasuringDelegate::modelThatChangesWhileItIsAsked()
{
    List list;
    list.model.onAsked = [&list] {
        list.model.onAsked = nullptr;
        list.model.removeRows(1, 3);
    };
    const QStyleOptionViewItem option = list.option();
    QVERIFY(list.delegate.sizeHint(option, list.model.index(3, 0)).isValid());
    QVERIFY(list.measures());
}

void tst_MeasuringDelegate::invalidIndex()
{
    const List list;
    const QStyleOptionViewItem option = list.option();
    QCOMPARE(MeasuringDelegate().sizeHint(option, QModelIndex()),
             QStyledItemDelegate().sizeHint(option, QModelIndex()));
}

QTEST_MAIN(tst_MeasuringDelegate)
#include "tst_MeasuringDelegate.moc"
