#include <KQt/Ui/AdvancedComboView.h>

#include <KQt/Ui/AdvancedComboBox.h>

#include "support/Render.h"
#include "support/WarningCatcher.h"

#include <QProxyStyle>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QStringListModel>
#include <QStyledItemDelegate>
#include <QStyleFactory>
#include <QStyleOptionComboBox>
#include <QStyleOptionMenuItem>

#include <QtTest>

#include <functional>
#include <memory>

using Kestrel::Gui::AdvancedComboBox;
using Kestrel::Gui::AdvancedComboView;
using TestSupport::render;
using TestSupport::WarningCatcher;

namespace {

QString longText()
{
    return QStringLiteral("A text that is much longer than the box");
}

/// Counts how often it is asked for the size of the second item: of the first a list asks at each resize anyway.
class CountingDelegate : public QStyledItemDelegate
{
public:
    mutable int asked = 0;
    int extra = 0;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        asked += index.row() == 1 ? 1 : 0;
        return QStyledItemDelegate::sizeHint(option, index) + QSize(extra, 0);
    }
    void changeHint(int more)
    {
        extra = more;
        Q_EMIT sizeHintChanged({});
    }
};

/// A style that says whether popups are menus, and draws an empty menu in one colour.
class MenuStyle : public QProxyStyle
{
public:
    explicit MenuStyle(bool menus)
        : QProxyStyle(QStyleFactory::create(QStringLiteral("fusion")))
        , m_menus(menus)
    {
    }

    mutable QVector<QRect> emptyAreas;
    mutable const QWidget* painted = nullptr;
    mutable bool optionIsAsItShouldBe = false;
    mutable bool editable = false;

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override
    {
        if (hint != SH_ComboBox_Popup)
            return QProxyStyle::styleHint(hint, option, widget, data);
        if (const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option))
            editable = combo->editable;
        return m_menus ? 1 : 0;
    }

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override
    {
        if (element != CE_MenuEmptyArea) {
            QProxyStyle::drawControl(element, option, painter, widget);
            return;
        }
        const auto* menu = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
        painted = widget;
        emptyAreas << menu->menuRect;
        optionIsAsItShouldBe = menu->state == State_None && menu->checkType == QStyleOptionMenuItem::NotCheckable &&
                               menu->maxIconWidth == 0 && menu->tabWidth == 0 && menu->palette == widget->palette();
        painter->fillRect(menu->menuRect, Qt::magenta);
    }

private:
    bool m_menus;
};

/// The list with what is protected in it open.
class OpenView : public AdvancedComboView
{
public:
    using AdvancedComboView::AdvancedComboView;
    using AdvancedComboView::viewOptions;
};

/// The list of a box, shown alone so that its size is the test's.
class Fixture
{
public:
    explicit Fixture(bool wide = true)
        : view(std::make_unique<OpenView>(&box, wide))
    {
        box.addItems({QStringLiteral("1"), longText(), QStringLiteral("3")});
        view->setModel(box.model());
        view->setItemDelegate(&delegate);
        view->resize(100, 200);
        view->show();
        settle();
    }

    /// Lays out whatever is due, so that nothing but a measurement asks for sizes afterwards.
    void settle()
    {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents();
        view->doItemsLayout();
        QCoreApplication::processEvents();
    }

    void resizeView()
    {
        m_larger = !m_larger;
        view->resize(view->width(), m_larger ? 220 : 200);
    }

    /// How often @p counted is asked when the list, laid out, gets another size.
    int askedOnResize(const CountingDelegate& counted)
    {
        settle();
        resizeView(); // what laying out found out already is no news
        const int before = counted.asked;
        resizeView();
        return counted.asked - before;
    }

    AdvancedComboBox box;
    CountingDelegate delegate;
    std::unique_ptr<OpenView> view;

private:
    bool m_larger = false;
};

using Change = std::function<void(Fixture&)>;

} // namespace

Q_DECLARE_METATYPE(Change)

class tst_AdvancedComboView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wideListNeverCutsItems();
    void optionsUseTheBoxesFont();
    void menuBackgroundIsPaintedFirst();
    void noMenuBackgroundForLists();
    void editableIsToldToTheStyle();

    void minimumWidthIsTheWidestItem();
    void minimumWidthAllowsForTheScrollBar();
    void narrowListKeepsItsMinimumWidth();
    void modelColumnOfTheBoxCounts();
    void modelWithoutColumnsIsNoTrouble();

    void unchangedListIsMeasuredOnce();
    void changesMeasureAnew_data();
    void changesMeasureAnew();
    void replacedModelThatDiedIsMeasuredAnew();

    void fontAndStyleChangesLayOutAnewFromTheEventLoop();
    void otherChangesLeaveTheFlow();
    void viewMayDieBeforeTheEventLoopRuns();
    void viewOutlivesItsBox();
};

void tst_AdvancedComboView::wideListNeverCutsItems()
{
    AdvancedComboBox box;
    const AdvancedComboView wide(&box, true);
    const AdvancedComboView narrow(&box, false);
    QCOMPARE(wide.textElideMode(), Qt::ElideNone);
    QCOMPARE(narrow.textElideMode(), QListView().textElideMode());
    QVERIFY(!wide.parent());
    QVERIFY(wide.metaObject() == &QListView::staticMetaObject);
}

void tst_AdvancedComboView::optionsUseTheBoxesFont()
{
    Fixture f;
    QFont font = f.box.font();
    font.setPixelSize(31);
    f.box.setFont(font);
    QVERIFY(f.view->font() != font);
    QCOMPARE(f.view->viewOptions().font, font);
    QVERIFY(f.view->viewOptions().showDecorationSelected);

    OpenView alone(nullptr, false);
    QCOMPARE(alone.viewOptions().font, alone.font());
    QVERIFY(alone.viewOptions().showDecorationSelected);
}

void tst_AdvancedComboView::menuBackgroundIsPaintedFirst()
{
    MenuStyle style(true);
    Fixture f(false);
    f.box.setStyle(&style);
    style.emptyAreas.clear();
    const QImage image = render(*f.view->viewport());

    QVERIFY(!style.emptyAreas.isEmpty());
    QCOMPARE(style.painted, f.view.get());
    QVERIFY(style.optionIsAsItShouldBe);
    QVERIFY(!style.editable);
    QCOMPARE(style.emptyAreas.last(), f.view->viewport()->rect());
    QCOMPARE(image.pixelColor(image.width() - 5, image.height() - 5), QColor(Qt::magenta));

    // The items lie on it.
    f.box.setItemData(2, QColor(Qt::green), Qt::BackgroundRole);
    const QRect last = f.view->visualRect(f.box.model()->index(2, 0));
    QCOMPARE(render(*f.view->viewport()).pixelColor(last.right() - 2, last.center().y()), QColor(Qt::green));

    // Only as much as is to be painted.
    style.emptyAreas.clear();
    QImage part(50, 50, QImage::Format_ARGB32_Premultiplied);
    f.view->viewport()->render(&part, {}, QRect(10, 20, 30, 15));
    QCOMPARE(style.emptyAreas.last(), QRect(10, 20, 30, 15));
}

void tst_AdvancedComboView::noMenuBackgroundForLists()
{
    MenuStyle style(false);
    Fixture f(false);
    f.box.setStyle(&style);
    const QImage image = render(*f.view->viewport());
    QVERIFY(style.emptyAreas.isEmpty());

    QListView plain;
    plain.setModel(f.box.model());
    plain.resize(f.view->size());
    QCOMPARE(image.pixelColor(image.width() - 5, image.height() - 5),
             render(*plain.viewport()).pixelColor(image.width() - 5, image.height() - 5));
}

void tst_AdvancedComboView::editableIsToldToTheStyle()
{
    MenuStyle style(true);
    Fixture f(false);
    f.box.setStyle(&style);
    f.box.setEditable(true);
    style.editable = false;
    render(*f.view->viewport());
    QVERIFY(style.editable);
}

void tst_AdvancedComboView::minimumWidthIsTheWidestItem()
{
    Fixture f;
    f.resizeView();
    QCOMPARE(f.view->minimumWidth(), f.view->sizeHintForIndex(f.box.model()->index(1, 0)).width());
    QVERIFY(f.view->minimumWidth() >= QFontMetrics(f.box.font()).horizontalAdvance(longText()));
    QCOMPARE(f.view->verticalScrollBar()->maximum(), 0);
}

void tst_AdvancedComboView::minimumWidthAllowsForTheScrollBar()
{
    Fixture f;
    for (int i = 0; i < 100; ++i)
        f.box.addItem(QString::number(i));
    f.settle();
    QVERIFY(f.view->verticalScrollBar()->maximum() > 0);
    f.resizeView();
    const int widest = f.view->sizeHintForColumn(0);
    QVERIFY(f.view->verticalScrollBar()->width() > 0);
    QCOMPARE(f.view->minimumWidth(), widest + f.view->verticalScrollBar()->width());
}

void tst_AdvancedComboView::narrowListKeepsItsMinimumWidth()
{
    Fixture f(false);
    f.view->setMinimumWidth(7);
    const int before = f.delegate.asked;
    f.resizeView();
    QCOMPARE(f.view->minimumWidth(), 7);
    QCOMPARE(f.delegate.asked, before);
}

void tst_AdvancedComboView::modelColumnOfTheBoxCounts()
{
    Fixture f;
    QStandardItemModel model(1, 2);
    model.setItem(0, 0, new QStandardItem(QStringLiteral("x")));
    model.setItem(0, 1, new QStandardItem(longText()));
    f.box.setModel(&model);
    f.view->setModel(&model);
    f.settle();
    f.resizeView();
    QCOMPARE(f.view->minimumWidth(), f.view->sizeHintForColumn(0));
    f.box.setModelColumn(1);
    f.resizeView();
    QVERIFY(f.view->sizeHintForColumn(1) > f.view->sizeHintForColumn(0));
    QCOMPARE(f.view->minimumWidth(), f.view->sizeHintForColumn(1));
    f.view->setModel(nullptr);
}

void tst_AdvancedComboView::modelWithoutColumnsIsNoTrouble()
{
    Fixture f;
    QStandardItemModel empty;
    f.view->setModel(&empty);
    const WarningCatcher catcher;
    f.resizeView();
    f.settle();
    QCOMPARE(catcher.warnings().filter(QStringLiteral("Negative")), QStringList());
    QCOMPARE(f.view->minimumWidth(), 0);
}

void tst_AdvancedComboView::unchangedListIsMeasuredOnce()
{
    Fixture f;
    QCOMPARE(f.askedOnResize(f.delegate), 0);
    QCOMPARE(f.askedOnResize(f.delegate), 0);
    f.view->hide();
    f.view->show();
    QCOMPARE(f.askedOnResize(f.delegate), 0);
    QVERIFY(f.view->minimumWidth() > 0);
}

void tst_AdvancedComboView::changesMeasureAnew_data()
{
    QTest::addColumn<Change>("change");
    const auto row = [](const char* name, const Change& change) { QTest::newRow(name) << change; };
    row("item text", [](Fixture& f) { f.box.setItemText(0, longText() + longText()); });
    row("item added", [](Fixture& f) { f.box.addItem(longText() + longText()); });
    row("item removed", [](Fixture& f) { f.box.removeItem(1); });
    row("all removed", [](Fixture& f) { f.box.clear(); });
    row("icons added", [](Fixture& f) { f.box.setItemData(1, QColor(Qt::red), Qt::DecorationRole); });
    row("another model",
        [](Fixture& f) { f.view->setModel(new QStringListModel({QStringLiteral("x")}, f.view.get())); });
    row("model reset", [](Fixture& f) {
        auto* model = new QStringListModel({QStringLiteral("x")}, f.view.get());
        f.view->setModel(model);
        f.resizeView();
        model->setStringList({longText() + longText()});
    });
    row("root", [](Fixture& f) {
        auto* model = qobject_cast<QStandardItemModel*>(f.box.model());
        model->item(0)->appendRow(new QStandardItem(QStringLiteral("child")));
        f.resizeView();
        f.view->setRootIndex(model->index(0, 0));
    });
    row("box's font", [](Fixture& f) {
        QFont font = f.box.font();
        font.setPixelSize(33);
        f.box.setFont(font);
    });
    row("icon size", [](Fixture& f) {
        f.box.setItemData(1, QIcon(QPixmap(64, 64)), Qt::DecorationRole);
        f.resizeView();
        f.view->setIconSize({64, 64});
    });
    row("delegate's hint", [](Fixture& f) { f.delegate.changeHint(50); });
    row("style", [](Fixture& f) { f.view->setStyleSheet(QStringLiteral("*::item { padding-left: 40px; }")); });
    row("another delegate", [](Fixture& f) {
        auto* other = new CountingDelegate;
        other->setParent(f.view.get());
        other->extra = 70;
        f.view->setItemDelegate(other);
    });
    row("column's delegate", [](Fixture& f) {
        auto* other = new CountingDelegate;
        other->setParent(f.view.get());
        other->extra = 70;
        f.view->setItemDelegateForColumn(0, other);
    });
    row("row's delegate", [](Fixture& f) {
        auto* other = new CountingDelegate;
        other->setParent(f.view.get());
        other->extra = 70;
        f.view->setItemDelegateForRow(1, other);
    });
    row("row's delegate's hint", [](Fixture& f) {
        auto* other = new CountingDelegate;
        other->setParent(f.view.get());
        f.view->setItemDelegateForRow(1, other);
        f.resizeView();
        other->changeHint(90);
    });
    row("locale", [](Fixture& f) {
        f.box.setItemData(1, 1.5e12, Qt::DisplayRole);
        f.view->setLocale(QLocale::c());
        f.resizeView();
        f.view->setLocale(QLocale(QLocale::Arabic, QLocale::Egypt));
    });
}

void tst_AdvancedComboView::changesMeasureAnew()
{
    QFETCH(Change, change);
    Fixture f;
    f.resizeView();
    const int before = f.view->minimumWidth();
    change(f);
    f.settle();
    f.resizeView();
    QCOMPARE(f.view->minimumWidth(), qMax(0, f.view->sizeHintForColumn(0)));
    QVERIFY(f.view->minimumWidth() != before);
    QCOMPARE(f.askedOnResize(f.delegate), 0);
    f.view->setModel(nullptr);
}

void tst_AdvancedComboView::replacedModelThatDiedIsMeasuredAnew()
{
    Fixture f;
    for (int i = 0; i < 20; ++i) {
        // The allocator is free to put the next model where the last one was.
        QStringListModel model({QString(5 + i, QLatin1Char('x'))});
        f.view->setModel(&model);
        f.resizeView();
        QCOMPARE(f.view->minimumWidth(), f.view->sizeHintForColumn(0));
    }
}

void tst_AdvancedComboView::fontAndStyleChangesLayOutAnewFromTheEventLoop()
{
    for (const QEvent::Type type : {QEvent::FontChange, QEvent::StyleChange}) {
        Fixture f;
        f.view->setFlow(QListView::LeftToRight);
        QEvent event(type);
        QCoreApplication::sendEvent(f.view.get(), &event);
        QCOMPARE(f.view->flow(), QListView::LeftToRight);
        QTRY_COMPARE(f.view->flow(), QListView::TopToBottom);
        QVERIFY(!f.view->findChildren<QObject*>(QString(), Qt::FindDirectChildrenOnly).isEmpty());
    }
}

void tst_AdvancedComboView::otherChangesLeaveTheFlow()
{
    Fixture f;
    f.view->setFlow(QListView::LeftToRight);
    for (const QEvent::Type type : {QEvent::PaletteChange, QEvent::EnabledChange, QEvent::LanguageChange}) {
        QEvent event(type);
        QCoreApplication::sendEvent(f.view.get(), &event);
        f.settle();
        QCOMPARE(f.view->flow(), QListView::LeftToRight);
    }
}

void tst_AdvancedComboView::viewMayDieBeforeTheEventLoopRuns()
{
    for (const QEvent::Type type : {QEvent::FontChange, QEvent::StyleChange}) {
        Fixture f;
        const WarningCatcher catcher;
        QEvent event(type);
        QCoreApplication::sendEvent(f.view.get(), &event);
        f.view.reset();
        QCoreApplication::processEvents();
        QCOMPARE(catcher.warnings(), QStringList());
    }
    auto box = std::make_unique<AdvancedComboBox>();
    box->addItem(longText());
    QFont font = box->font();
    font.setPixelSize(40);
    box->setFont(font);
    box->setStyleSheet(QStringLiteral("QComboBox { color: red; }"));
    box.reset();
    QCoreApplication::processEvents();
}

void tst_AdvancedComboView::viewOutlivesItsBox()
{
    auto box = std::make_unique<AdvancedComboBox>();
    OpenView view(box.get(), true);
    QStringListModel model({longText()});
    view.setModel(&model);
    view.show();
    box.reset();
    QCoreApplication::processEvents();
    view.resize(300, 300);
    render(view);
    QCOMPARE(view.viewOptions().font, view.font());
    QCOMPARE(view.minimumWidth(), view.sizeHintForColumn(0));
}

QTEST_MAIN(tst_AdvancedComboView)
#include "tst_AdvancedComboView.moc"
