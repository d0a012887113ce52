#include <KQt/Ui/SeparatorDelegate.h>

#include <KQt/Ui/SeparatorStyle.h>

#include <QApplication>
#include <QComboBox>
#include <QListView>
#include <QPainter>
#include <QStandardItemModel>

#include <QtTest>

#include <functional>

using Kestrel::Gui::SeparatorDelegate;
using Kestrel::Gui::SeparatorStyle;

namespace {

constexpr QRect row(10, 5, 60, 21);

QImage picture(const std::function<void(QPainter&)>& draw)
{
    QImage image(90, 40, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    draw(painter);
    return image;
}

QStyleOptionViewItem optionFor(const QRect& rect)
{
    QStyleOptionViewItem option;
    option.font = QApplication::font();
    option.fontMetrics = QFontMetrics(option.font);
    option.rect = rect;
    return option;
}

QImage painted(const QAbstractItemDelegate& delegate, const QModelIndex& index, const QRect& rect = row)
{
    return picture([&](QPainter& painter) { delegate.paint(&painter, optionFor(rect), index); });
}

/// Every pixel of the line from @p left to @p right at @p y, and nothing else, in a pen of one pixel.
QImage grayLine(int left, int right, int y, const QColor& color = QColor(128, 128, 128))
{
    QImage image = picture([](QPainter&) {});
    for (int x = left; x <= right; ++x)
        image.setPixelColor(x, y, color);
    return image;
}

/// Fills rows with one colour, and notes whether it is asked for anything else.
class Proxy : public QAbstractItemDelegate
{
public:
    mutable int sizesAsked = 0;
    mutable QModelIndex painted;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        painted = index;
        painter->fillRect(option.rect, Qt::cyan);
    }
    QSize sizeHint(const QStyleOptionViewItem& /*option*/, const QModelIndex& /*index*/) const override
    {
        ++sizesAsked;
        return {500, 500};
    }
};

/// A model of an ordinary row, a separator row, and another ordinary row that is taller.
class Rows : public QStandardItemModel
{
public:
    Rows()
    {
        appendRow(new QStandardItem(QStringLiteral("one")));
        appendRow(SeparatorDelegate::createSeparatorItem().release());
        auto* tall = new QStandardItem(QStringLiteral("tall"));
        tall->setSizeHint({123, 77});
        appendRow(tall);
    }

    QModelIndex ordinary() const { return index(0, 0); }
    QModelIndex separator() const { return index(1, 0); }
    QModelIndex tall() const { return index(2, 0); }
};

/// A delegate with its look at hand.
struct Fixture
{
    QWidget parent;
    SeparatorDelegate delegate{&parent};
    SeparatorStyle* style = parent.findChild<SeparatorStyle*>();
    Rows rows;
};

} // namespace

class tst_SeparatorDelegate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void metaObjectAddsNothing();
    void looksAreAHiddenChildOfTheParent();
    void styleSheetSetsTheLooks();
    void looksLiveAsLongAsTheParentWidget();
    void looksMayDieBeforeTheDelegate();
    void withoutParentNoWindowIsLeftBehind();

    void createdItemCanNeitherBeSelectedNorActivated();
    void marker_data();
    void marker();
    void setSeparatorKeepsTheFlags();
    void separatorsOfAComboBoxAreRecognised();

    void defaultLineCrossesTheWholeRow();
    void lineFollowsTheLooks_data();
    void lineFollowsTheLooks();
    void lineIsThePainters_data();
    void lineIsThePainters();
    void nothingIsDrawnOnceTheMarginsMeet();
    void penIsLeftOnThePainter();
    void ordinaryRowsArePaintedByTheBaseClass();
    void ordinaryRowsArePaintedByTheProxy();
    void proxyMayDieBeforeTheDelegate();

    void ordinarySizesAreTheBaseClasses();
    void separatorIsAsHighAsTheLooksSay();
    void separatorBelowOneIsAsTallAsTheFirstOrdinaryItem();
    void separatorBelowOneWalksColumnsWithinRows();
    void allSeparatorsHaveTheBaseClassesSize();
    void worksInTheListOfAComboBox();
};

void tst_SeparatorDelegate::metaObjectAddsNothing()
{
    const QMetaObject& meta = SeparatorDelegate::staticMetaObject;
    QCOMPARE(meta.className(), "Kestrel::Gui::SeparatorDelegate");
    QCOMPARE(meta.superClass(), &QStyledItemDelegate::staticMetaObject);
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    QCOMPARE(meta.methodCount(), meta.methodOffset());
}

void tst_SeparatorDelegate::looksAreAHiddenChildOfTheParent()
{
    QWidget parent;
    const SeparatorDelegate delegate(&parent);
    QCOMPARE(delegate.parent(), &parent);
    const auto looks = parent.findChildren<SeparatorStyle*>(QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(looks.size(), 1);
    parent.show();
    QVERIFY(QTest::qWaitForWindowExposed(&parent));
    QVERIFY(!looks.first()->isVisible());
    QVERIFY(looks.first()->isHidden());
}

void tst_SeparatorDelegate::styleSheetSetsTheLooks()
{
    // Before anything is shown: the list asks for sizes early.
    QWidget parent;
    parent.setStyleSheet(
        QStringLiteral("Kestrel--Gui--SeparatorStyle { qproperty-height: 9; qproperty-color: #1464f6; }"));
    const SeparatorDelegate delegate(&parent);
    const Rows rows;
    QCOMPARE(delegate.sizeHint(optionFor(row), rows.separator()), QSize(0, 9));
    QCOMPARE(painted(delegate, rows.separator()), grayLine(10, 69, 15, QColor(0x14, 0x64, 0xf6)));
}

void tst_SeparatorDelegate::looksLiveAsLongAsTheParentWidget()
{
    auto parent = std::make_unique<QWidget>();
    auto* delegate = new SeparatorDelegate(parent.get());
    const QPointer<SeparatorStyle> style = parent->findChild<SeparatorStyle*>();
    delete delegate;
    QVERIFY(style);
    parent.reset();
    QVERIFY(!style);
}

void tst_SeparatorDelegate::looksMayDieBeforeTheDelegate()
{
    auto parent = std::make_unique<QWidget>();
    SeparatorDelegate delegate(parent.get());
    delegate.setParent(nullptr);
    parent.reset();

    // Without looks a separator is a row like any other.
    const Rows rows;
    const QStyledItemDelegate base;
    QCOMPARE(painted(delegate, rows.separator()), painted(base, rows.separator()));
    QCOMPARE(delegate.sizeHint(optionFor(row), rows.separator()), base.sizeHint(optionFor(row), rows.separator()));
}

void tst_SeparatorDelegate::withoutParentNoWindowIsLeftBehind()
{
    const QWidgetList before = QApplication::allWidgets();
    {
        const SeparatorDelegate delegate(nullptr);
        QVERIFY(!delegate.parent());
        const QWidgetList all = QApplication::allWidgets();
        QCOMPARE(all.size(), before.size() + 1);
        for (const QWidget* widget : all)
            QVERIFY(before.contains(const_cast<QWidget*>(widget)) || !widget->isVisible());
        QCOMPARE(painted(delegate, Rows().separator()).size(), QSize(90, 40));
    }
    QCOMPARE(QApplication::allWidgets().size(), before.size());
}

void tst_SeparatorDelegate::createdItemCanNeitherBeSelectedNorActivated()
{
    const std::unique_ptr<QStandardItem> item = SeparatorDelegate::createSeparatorItem();
    QCOMPARE(item->data(Qt::AccessibleDescriptionRole), QVariant(QStringLiteral("separator")));
    QCOMPARE(item->text(), QString());
    const Qt::ItemFlags defaults = QStandardItem().flags();
    QVERIFY(defaults.testFlag(Qt::ItemIsSelectable) && defaults.testFlag(Qt::ItemIsEnabled));
    QCOMPARE(item->flags(), defaults & ~Qt::ItemFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled));
}

void tst_SeparatorDelegate::marker_data()
{
    QTest::addColumn<QVariant>("data");
    QTest::addColumn<bool>("is");
    QTest::newRow("the word") << QVariant(QStringLiteral("separator")) << true;
    QTest::newRow("as bytes") << QVariant(QByteArray("separator")) << true;
    QTest::newRow("capital") << QVariant(QStringLiteral("Separator")) << false;
    QTest::newRow("longer") << QVariant(QStringLiteral("separators")) << false;
    QTest::newRow("blank") << QVariant(QStringLiteral("separator ")) << false;
    QTest::newRow("empty") << QVariant(QString()) << false;
    QTest::newRow("none") << QVariant() << false;
    QTest::newRow("number") << QVariant(1) << false;
}

void tst_SeparatorDelegate::marker()
{
    QFETCH(QVariant, data);
    QFETCH(bool, is);
    QStandardItemModel model(1, 1);
    model.setData(model.index(0, 0), QStringLiteral("separator"), Qt::DisplayRole);
    model.setData(model.index(0, 0), QStringLiteral("separator"), Qt::AccessibleTextRole);
    model.setData(model.index(0, 0), data, Qt::AccessibleDescriptionRole);
    QCOMPARE(SeparatorDelegate::isSeparator(model.index(0, 0)), is);
    QVERIFY(!SeparatorDelegate::isSeparator(QModelIndex()));
}

void tst_SeparatorDelegate::setSeparatorKeepsTheFlags()
{
    Fixture f;
    const Qt::ItemFlags flags = f.rows.ordinary().flags();
    SeparatorDelegate::setSeparator(&f.rows, f.rows.ordinary());

    QCOMPARE(f.rows.ordinary().flags(), flags);
    QCOMPARE(f.rows.ordinary().data(Qt::AccessibleDescriptionRole), QVariant(QStringLiteral("separator")));
    QCOMPARE(f.rows.ordinary().data().toString(), QStringLiteral("one"));
    QVERIFY(SeparatorDelegate::isSeparator(f.rows.ordinary()));
    QCOMPARE(painted(f.delegate, f.rows.ordinary()), grayLine(10, 69, 15));
    QCOMPARE(f.delegate.sizeHint(optionFor(row), f.rows.ordinary()), QSize(0, 2));
}

void tst_SeparatorDelegate::separatorsOfAComboBoxAreRecognised()
{
    QComboBox box;
    box.addItems({QStringLiteral("1"), QStringLiteral("2")});
    box.insertSeparator(1);
    QVERIFY(!SeparatorDelegate::isSeparator(box.model()->index(0, 0)));
    QVERIFY(SeparatorDelegate::isSeparator(box.model()->index(1, 0)));
    QVERIFY(!SeparatorDelegate::isSeparator(box.model()->index(2, 0)));
}

void tst_SeparatorDelegate::defaultLineCrossesTheWholeRow()
{
    const Fixture f;
    QCOMPARE(painted(f.delegate, f.rows.separator()), grayLine(10, 69, 15));
    // As high as it says, its middle is the upper of its two rows of pixels.
    QCOMPARE(painted(f.delegate, f.rows.separator(), QRect(10, 5, 60, 2)), grayLine(10, 69, 5));
}

void tst_SeparatorDelegate::lineFollowsTheLooks_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("left");
    QTest::addColumn<int>("right");
    QTest::addColumn<int>("down");
    QTest::addColumn<QColor>("color");
    QTest::newRow("margins") << 1 << 7 << 12 << 0 << QColor(128, 128, 128);
    QTest::newRow("down") << 1 << 0 << 0 << 4 << QColor(128, 128, 128);
    QTest::newRow("up, out of the row") << 1 << 0 << 0 << -14 << QColor(128, 128, 128);
    QTest::newRow("thick") << 5 << 3 << 8 << 0 << QColor(Qt::red);
    QTest::newRow("translucent") << 2 << 0 << 0 << 0 << QColor(0, 0, 255, 90);
    QTest::newRow("cosmetic") << 0 << 0 << 0 << 0 << QColor(Qt::blue);
    QTest::newRow("negative margins") << 1 << -5 << -8 << 0 << QColor(Qt::blue);
}

void tst_SeparatorDelegate::lineFollowsTheLooks()
{
    QFETCH(int, width);
    QFETCH(int, left);
    QFETCH(int, right);
    QFETCH(int, down);
    QFETCH(QColor, color);
    const Fixture f;
    f.style->setLineWidth(width);
    f.style->setMarginLeft(left);
    f.style->setMarginRight(right);
    f.style->setVerticalPosition(down);
    f.style->setColor(color);

    const QImage expected = picture([&](QPainter& painter) {
        painter.setPen(QPen(QBrush(color), width, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
        painter.drawLine(10 + left, 15 + down, 69 - right, 15 + down);
    });
    QCOMPARE(painted(f.delegate, f.rows.separator()), expected);
    if (width == 1)
        QCOMPARE(expected, grayLine(10 + left, 69 - right, 15 + down, color));
}

void tst_SeparatorDelegate::lineIsThePainters_data()
{
    QTest::addColumn<int>("lineWidth");
    QTest::addColumn<QColor>("color");
    QTest::addColumn<QTransform>("transform");
    QTest::addColumn<bool>("smooth");
    const QColor translucent(200, 30, 60, 100);
    QTest::newRow("plain") << 1 << QColor(Qt::red) << QTransform() << false;
    QTest::newRow("translucent") << 1 << translucent << QTransform() << false;
    QTest::newRow("thick") << 3 << translucent << QTransform() << false;
    QTest::newRow("cosmetic") << 0 << QColor(Qt::red) << QTransform() << false;
    QTest::newRow("moved") << 1 << translucent << QTransform::fromTranslate(3, -2) << false;
    QTest::newRow("moved by half a pixel") << 1 << translucent << QTransform::fromTranslate(0.5, 0.5) << false;
    QTest::newRow("scaled") << 1 << translucent << QTransform::fromScale(1.3, 1.3) << false;
    QTest::newRow("turned") << 1 << translucent << QTransform().rotate(20) << false;
    QTest::newRow("smooth") << 1 << translucent << QTransform() << true;
}

void tst_SeparatorDelegate::lineIsThePainters()
{
    QFETCH(int, lineWidth);
    QFETCH(QColor, color);
    QFETCH(QTransform, transform);
    QFETCH(bool, smooth);
    QWidget parent;
    const SeparatorDelegate delegate(&parent);
    auto* const looks = parent.findChild<SeparatorStyle*>();
    looks->setLineWidth(lineWidth);
    looks->setColor(color);
    QStandardItemModel model;
    model.appendRow(SeparatorDelegate::createSeparatorItem().release());

    const auto prepared = [&](QPainter& painter) {
        painter.setTransform(transform);
        painter.setRenderHint(QPainter::Antialiasing, smooth);
        painter.setClipRect(QRect(0, 0, 50, 40));
    };
    const QImage shown = picture([&](QPainter& painter) {
        prepared(painter);
        delegate.paint(&painter, optionFor(row), model.index(0, 0));
    });
    const QImage expected = picture([&](QPainter& painter) {
        prepared(painter);
        painter.setPen(QPen(QBrush(color), lineWidth, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
        painter.drawLine(row.left(), row.center().y(), row.right(), row.center().y());
    });
    QCOMPARE(shown, expected);
    QVERIFY(shown != picture([](QPainter&) {}));
}

void tst_SeparatorDelegate::nothingIsDrawnOnceTheMarginsMeet()
{
    const Fixture f;
    const QImage nothing = picture([](QPainter&) {});
    f.style->setMarginLeft(30);
    f.style->setMarginRight(30);
    QCOMPARE(painted(f.delegate, f.rows.separator()), nothing);
    // One pixel would be left: a line has two ends.
    f.style->setMarginRight(29);
    QCOMPARE(painted(f.delegate, f.rows.separator()), nothing);
    f.style->setMarginRight(28);
    QCOMPARE(painted(f.delegate, f.rows.separator()), grayLine(40, 41, 15));
}

void tst_SeparatorDelegate::penIsLeftOnThePainter()
{
    // The painter is neither saved nor restored, not even where no line fits: kept, callers may count on the pen.
    for (const int margin : {0, 40}) {
        const Fixture f;
        f.style->setLineWidth(3);
        f.style->setColor(Qt::red);
        f.style->setMarginLeft(margin);
        f.style->setMarginRight(margin);
        picture([&](QPainter& painter) {
            painter.setPen(QPen(Qt::blue, 9));
            f.delegate.paint(&painter, optionFor(row), f.rows.separator());
            QCOMPARE(painter.pen(),
                     QPen(QBrush(Qt::red, Qt::SolidPattern), 3.0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
        });
    }
}

void tst_SeparatorDelegate::ordinaryRowsArePaintedByTheBaseClass()
{
    Fixture f;
    const QStyledItemDelegate base;
    QCOMPARE(painted(f.delegate, f.rows.ordinary()), painted(base, f.rows.ordinary()));
    QVERIFY(painted(f.delegate, f.rows.ordinary()) != painted(f.delegate, f.rows.separator()));

    Proxy proxy;
    f.delegate.setProxyDelegate(&proxy);
    f.delegate.setProxyDelegate(nullptr);
    QCOMPARE(painted(f.delegate, f.rows.ordinary()), painted(base, f.rows.ordinary()));
}

void tst_SeparatorDelegate::ordinaryRowsArePaintedByTheProxy()
{
    Fixture f;
    const Proxy proxy;
    f.delegate.setProxyDelegate(const_cast<Proxy*>(&proxy));
    QCOMPARE(painted(f.delegate, f.rows.ordinary()), painted(proxy, f.rows.ordinary()));
    QCOMPARE(proxy.painted, f.rows.ordinary());
    QCOMPARE(proxy.parent(), nullptr);

    proxy.painted = QModelIndex();
    QCOMPARE(painted(f.delegate, f.rows.separator()), grayLine(10, 69, 15));
    QCOMPARE(proxy.painted, QModelIndex());
}

void tst_SeparatorDelegate::proxyMayDieBeforeTheDelegate()
{
    Fixture f;
    auto proxy = std::make_unique<Proxy>();
    f.delegate.setProxyDelegate(proxy.get());
    proxy.reset();
    QCOMPARE(painted(f.delegate, f.rows.ordinary()), painted(QStyledItemDelegate(), f.rows.ordinary()));
}

void tst_SeparatorDelegate::ordinarySizesAreTheBaseClasses()
{
    // The proxy paints and is never asked for sizes: kept, lists are laid out for the base class's rows.
    Fixture f;
    Proxy proxy;
    f.delegate.setProxyDelegate(&proxy);
    const QStyledItemDelegate base;
    for (const QModelIndex& index : {f.rows.ordinary(), f.rows.tall()})
        QCOMPARE(f.delegate.sizeHint(optionFor(row), index), base.sizeHint(optionFor(row), index));
    QCOMPARE(f.delegate.sizeHint(optionFor(row), f.rows.tall()), QSize(123, 77));
    QCOMPARE(proxy.sizesAsked, 0);
}

void tst_SeparatorDelegate::separatorIsAsHighAsTheLooksSay()
{
    const Fixture f;
    QCOMPARE(f.delegate.sizeHint(optionFor(row), f.rows.separator()), QSize(0, 2));
    for (const int height : {1, 17}) {
        f.style->setHeight(height);
        QCOMPARE(f.delegate.sizeHint(optionFor(row), f.rows.separator()), QSize(0, height));
    }
}

void tst_SeparatorDelegate::separatorBelowOneIsAsTallAsTheFirstOrdinaryItem()
{
    Fixture f;
    const QStyledItemDelegate base;
    for (const int height : {0, -3}) {
        f.style->setHeight(height);
        QCOMPARE(f.delegate.sizeHint(optionFor(row), f.rows.separator()),
                 base.sizeHint(optionFor(row), f.rows.ordinary()));
    }
    f.rows.removeRow(0);
    QCOMPARE(f.delegate.sizeHint(optionFor(row), f.rows.index(0, 0)), QSize(123, 77));
}

void tst_SeparatorDelegate::separatorBelowOneWalksColumnsWithinRows()
{
    const Fixture f;
    f.style->setHeight(0);
    QStandardItemModel model;
    const auto sized = [](int height) {
        auto* item = new QStandardItem;
        item->setSizeHint({10, height});
        return item;
    };
    const auto separator = [] { return SeparatorDelegate::createSeparatorItem().release(); };
    model.appendRow({separator(), sized(31)});
    model.appendRow({sized(32), sized(33)});
    QCOMPARE(f.delegate.sizeHint(optionFor(row), model.index(0, 0)), QSize(10, 31));
}

void tst_SeparatorDelegate::allSeparatorsHaveTheBaseClassesSize()
{
    const Fixture f;
    f.style->setHeight(0);
    QStandardItemModel model;
    for (int i = 0; i < 2; ++i)
        model.appendRow(SeparatorDelegate::createSeparatorItem().release());
    // An ordinary item below a separator is not looked for.
    model.item(0)->appendRow(new QStandardItem(QStringLiteral("child")));
    model.item(1)->setSizeHint({44, 55});
    QCOMPARE(f.delegate.sizeHint(optionFor(row), model.index(1, 0)), QSize(44, 55));
    QCOMPARE(f.delegate.sizeHint(optionFor(row), model.index(0, 0)),
             QStyledItemDelegate().sizeHint(optionFor(row), model.index(0, 0)));
}

void tst_SeparatorDelegate::worksInTheListOfAComboBox()
{
    QComboBox box;
    box.addItems({QStringLiteral("1"), QStringLiteral("2")});
    box.insertSeparator(1);
    box.setView(new QListView);
    box.setItemDelegate(new SeparatorDelegate(box.view()));
    box.view()->resize(100, 100);
    box.view()->doItemsLayout();
    QCOMPARE(box.view()->visualRect(box.model()->index(1, 0)).height(), 2);
    QVERIFY(box.view()->visualRect(box.model()->index(0, 0)).height() > 2);
    QTest::keyClick(&box, Qt::Key_Down);
    QCOMPARE(box.currentIndex(), 2);
}

QTEST_MAIN(tst_SeparatorDelegate)
#include "tst_SeparatorDelegate.moc"
