#include <KQt/Ui/StyledDockWidgetTitlebar.h>

#include "support/ContextTranslator.h"
#include "support/LayoutRequests.h"
#include "support/Render.h"

#include <QDockWidget>
#include <QGridLayout>
#include <QLabel>
#include <QMainWindow>
#include <QPointer>
#include <QPushButton>
#include <QScrollArea>
#include <QSplitter>
#include <QStackedLayout>
#include <QtTest>

#include <functional>
#include <memory>

using Kestrel::Gui::StyledDockWidgetTitlebar;
using TestSupport::ContextTranslator;

using Place = std::function<void(QWidget&, QWidget*)>;
Q_DECLARE_METATYPE(Place)

namespace {

constexpr int barHeight = 25;
constexpr QSize handleSize(9, 13); // of the test's own dragdrop.png

template <typename Object>
Object* child(const QObject& bar, const char* name)
{
    return bar.findChild<Object*>(QString::fromLatin1(name));
}

QPushButton* restoreOf(const QObject& bar)
{
    return child<QPushButton>(bar, "Restore");
}
QPushButton* closeOf(const QObject& bar)
{
    return child<QPushButton>(bar, "Close");
}

/// What is in @p layout: names of widgets and layouts, "spacer" for the rest.
QStringList contents(const QLayout& layout)
{
    QStringList names;
    for (int i = 0; i < layout.count(); ++i) {
        QLayoutItem* const item = layout.itemAt(i);
        if (item->widget())
            names << item->widget()->objectName();
        else
            names << (item->layout() ? item->layout()->objectName() : QStringLiteral("spacer"));
    }
    return names;
}

QStringList names(std::initializer_list<const char*> texts)
{
    QStringList list;
    for (const char* text : texts)
        list << QString::fromLatin1(text);
    return list;
}

/// Title, its tool tips and the window's title.
QStringList textsOf(const StyledDockWidgetTitlebar& bar)
{
    return {bar.windowTitle(), child<QLabel>(bar, "Title")->text(), restoreOf(bar)->toolTip(), closeOf(bar)->toolTip()};
}

QStringList sourceTexts()
{
    return names({"StyledDockWidgetTitlebar", "Playlist", "Unpin playlist", "Close"});
}

/// Fills the bar with what wants more than 25 pixels.
void stuff(StyledDockWidgetTitlebar& bar)
{
    auto* const title = child<QLabel>(bar, "Title");
    title->setText(QStringLiteral("A title\nin several\nlines"));
    QFont font = title->font();
    font.setPixelSize(60);
    title->setFont(font);
    QPixmap large(90, 90);
    large.fill(Qt::red);
    child<QLabel>(bar, "icon")->setPixmap(large);
    restoreOf(bar)->setMinimumHeight(70);
    closeOf(bar)->setIcon(large);
    closeOf(bar)->setIconSize(large.size());
}

} // namespace

class tst_StyledDockWidgetTitlebar : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void metaObject();
    void itself();
    void border();
    void handle();
    void title();
    void buttons_data();
    void buttons();
    void line();
    void layouts();
    void usesTheWholeRectangles();
    void texts();
    void closeEmitsClose();
    void restoreEmitsDetach();
    void floatingIsStyled_data();
    void floatingIsStyled();
    void restoreToolTip();
    void followsTheLanguage();
    void onlyTheLanguageRetranslates();
    void handsNoChangeToTheBaseClass();
    void neverTallerInALayout_data();
    void neverTallerInALayout();
    void neverTallerByItself();
    void titleBarOfADock();
    void aSlotMayDeleteTheBar();
    void parentOwnsIt();
};

void tst_StyledDockWidgetTitlebar::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_StyledDockWidgetTitlebar::metaObject()
{
    const QMetaObject& meta = StyledDockWidgetTitlebar::staticMetaObject;
    QCOMPARE(meta.className(), "Kestrel::Gui::StyledDockWidgetTitlebar");
    QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(meta.propertyCount(), meta.propertyOffset()); // "floating" is dynamic
    QCOMPARE(meta.methodCount(), meta.methodOffset() + 2);
    const char* const signatures[] = {"Close()", "Detach()"};
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(meta.method(meta.methodOffset() + i).methodType(), QMetaMethod::Signal);
        QCOMPARE(meta.method(meta.methodOffset() + i).methodSignature(), QByteArray(signatures[i]));
    }
}

void tst_StyledDockWidgetTitlebar::itself()
{
    const StyledDockWidgetTitlebar bar;
    QCOMPARE(bar.objectName(), QStringLiteral("StyledDockWidgetTitlebar"));
    QCOMPARE(bar.size(), QSize(493, barHeight));
    QCOMPARE(bar.styleSheet(), QString());
    QCOMPARE(bar.dynamicPropertyNames(), QList<QByteArray>({"floating"}));
    QCOMPARE(bar.property("floating"), QVariant(false));
}

void tst_StyledDockWidgetTitlebar::border()
{
    const StyledDockWidgetTitlebar bar;
    auto* const border = child<QFrame>(bar, "Border");
    QVERIFY(border);
    QCOMPARE(border->parentWidget(), &bar);
    QCOMPARE(border->sizePolicy(), QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding));
    QCOMPARE(border->minimumSize(), QSize(0, barHeight));
    QCOMPARE(border->maximumSize(), QSize(16777215, barHeight));
    QCOMPARE(static_cast<int>(border->frameShape()), 6);
    QCOMPARE(static_cast<int>(border->frameShadow()), 0x20);
    QCOMPARE(bar.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly), QList<QWidget*>({border}));
}

void tst_StyledDockWidgetTitlebar::handle()
{
    const StyledDockWidgetTitlebar bar;
    auto* const icon = child<QLabel>(bar, "icon");
    QVERIFY(icon);
    QCOMPARE(icon->sizePolicy(), QSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred));
    QCOMPARE(icon->alignment(), Qt::Alignment(Qt::AlignCenter));
    const QPixmap pixmap = icon->pixmap(Qt::ReturnByValue);
    QCOMPARE(pixmap.size(), handleSize);
    QCOMPARE(pixmap.toImage().pixelColor(4, 6), QColor(200, 40, 120));
}

void tst_StyledDockWidgetTitlebar::title()
{
    const StyledDockWidgetTitlebar bar;
    auto* const title = child<QLabel>(bar, "Title");
    QVERIFY(title);
    QCOMPARE(title->sizePolicy(), QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Minimum));
    QCOMPARE(static_cast<int>(title->alignment()), 129);
}

void tst_StyledDockWidgetTitlebar::buttons_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("Restore") << QByteArray("Restore");
    QTest::newRow("Close") << QByteArray("Close");
}

void tst_StyledDockWidgetTitlebar::buttons()
{
    QFETCH(QByteArray, name);
    const StyledDockWidgetTitlebar bar;
    auto* const button = child<QPushButton>(bar, name.constData());
    QVERIFY(button);
    QCOMPARE(button->minimumSize(), QSize(0, 0));
    QCOMPARE(button->maximumSize(), QSize(16777215, 16777215));
    QCOMPARE(button->styleSheet(), QString());
    QCOMPARE(button->text(), QString());
    QCOMPARE(button->parentWidget(), child<QFrame>(bar, "Border"));
}

void tst_StyledDockWidgetTitlebar::line()
{
    const StyledDockWidgetTitlebar bar;
    auto* const line = child<QFrame>(bar, "line");
    QVERIFY(line);
    QCOMPARE(static_cast<int>(line->frameShape()), 4);
    QCOMPARE(static_cast<int>(line->frameShadow()), 0x30);
}

void tst_StyledDockWidgetTitlebar::layouts()
{
    const StyledDockWidgetTitlebar bar;
    auto* const outer = child<QHBoxLayout>(bar, "horizontalLayout_2");
    QVERIFY(outer);
    QCOMPARE(bar.layout(), outer);
    QCOMPARE(outer->spacing(), 0);
    QCOMPARE(outer->contentsMargins(), QMargins());
    QCOMPARE(contents(*outer), names({"Border"}));

    auto* const grid = child<QGridLayout>(bar, "gridLayout");
    QVERIFY(grid);
    QCOMPARE(child<QFrame>(bar, "Border")->layout(), grid);
    QCOMPARE(grid->horizontalSpacing(), 0);
    QCOMPARE(grid->verticalSpacing(), 0);
    QCOMPARE(grid->contentsMargins(), QMargins());
    QCOMPARE(contents(*grid), names({"horizontalLayout", "line"}));
    for (int i = 0; i < grid->count(); ++i) {
        int row = -1;
        int column = -1;
        int rows = -1;
        int columns = -1;
        grid->getItemPosition(i, &row, &column, &rows, &columns);
        QCOMPARE(QRect(column, row, columns, rows), QRect(0, i, 1, 1));
    }

    auto* const row = child<QHBoxLayout>(bar, "horizontalLayout");
    QVERIFY(row);
    QCOMPARE(row->spacing(), 0);
    QCOMPARE(contents(*row), names({"icon", "verticalLayout", "Restore", "Close"}));

    auto* const column = child<QVBoxLayout>(bar, "verticalLayout");
    QVERIFY(column);
    QCOMPARE(column->spacing(), 0);
    QCOMPARE(contents(*column), names({"spacer", "Title"}));
    QSpacerItem* const spacer = column->itemAt(0)->spacerItem();
    QVERIFY(spacer);
    QCOMPARE(spacer->sizeHint(), QSize(20, 2));
    QCOMPARE(spacer->sizePolicy(), QSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed));
}

void tst_StyledDockWidgetTitlebar::usesTheWholeRectangles()
{
    const StyledDockWidgetTitlebar bar;
    for (const char* name : {"Restore", "Close", "icon", "Title", "Border"})
        QVERIFY2(child<QWidget>(bar, name)->testAttribute(Qt::WA_LayoutUsesWidgetRect), name);
    QVERIFY(!child<QWidget>(bar, "line")->testAttribute(Qt::WA_LayoutUsesWidgetRect));
}

void tst_StyledDockWidgetTitlebar::texts()
{
    const StyledDockWidgetTitlebar bar;
    QCOMPARE(textsOf(bar), sourceTexts());
}

void tst_StyledDockWidgetTitlebar::closeEmitsClose()
{
    StyledDockWidgetTitlebar bar;
    bar.show();
    QSignalSpy close(&bar, &StyledDockWidgetTitlebar::Close);
    QSignalSpy detach(&bar, &StyledDockWidgetTitlebar::Detach);
    QTest::mouseClick(closeOf(bar), Qt::LeftButton);
    QCOMPARE(close.count(), 1);
    QCOMPARE(detach.count(), 0);
    QVERIFY(bar.isVisible()); // what closing means is the owner's business
}

void tst_StyledDockWidgetTitlebar::restoreEmitsDetach()
{
    StyledDockWidgetTitlebar bar;
    bar.show();
    QSignalSpy close(&bar, &StyledDockWidgetTitlebar::Close);
    QSignalSpy detach(&bar, &StyledDockWidgetTitlebar::Detach);
    QTest::mouseClick(restoreOf(bar), Qt::LeftButton);
    QCOMPARE(close.count(), 0);
    QCOMPARE(detach.count(), 1);
    QCOMPARE(bar.property("floating"), QVariant(false)); // and so is floating
}

void tst_StyledDockWidgetTitlebar::floatingIsStyled_data()
{
    QTest::addColumn<bool>("sheetOfTheWindow");
    QTest::newRow("sheet of the window") << true;
    QTest::newRow("sheet of the bar") << false;
}

void tst_StyledDockWidgetTitlebar::floatingIsStyled()
{
    QFETCH(bool, sheetOfTheWindow);
    QWidget window;
    auto* const bar = new StyledDockWidgetTitlebar(&window);
    (sheetOfTheWindow ? &window : bar)
        ->setStyleSheet(QStringLiteral(
            "#Restore { border: none; min-width: 20px; background: #ff0000; }"
            "Kestrel--Gui--StyledDockWidgetTitlebar[floating=\"true\"] #Restore { background: #00ff00; }"));
    window.show();
    const auto look = [bar] { return TestSupport::render(*restoreOf(*bar)).pixelColor(10, 5); };
    QCOMPARE(look(), QColor(Qt::red));
    bar->SetFloating(true);
    QCOMPARE(bar->property("floating"), QVariant(true));
    QCOMPARE(look(), QColor(Qt::green)); // at once, without an event
    bar->SetFloating(false);
    QCOMPARE(bar->property("floating"), QVariant(false));
    QCOMPARE(look(), QColor(Qt::red));
}

void tst_StyledDockWidgetTitlebar::restoreToolTip()
{
    StyledDockWidgetTitlebar bar;
    bar.SetRestoreButtonTooltip(QStringLiteral("Pin playlist"));
    QCOMPARE(textsOf(bar), names({"StyledDockWidgetTitlebar", "Playlist", "Pin playlist", "Close"}));
    // A new language brings the bar's own text back: it cannot translate its owner's.
    QEvent language(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&bar, &language);
    QCOMPARE(textsOf(bar), sourceTexts());
}

void tst_StyledDockWidgetTitlebar::followsTheLanguage()
{
    QStringList translated;
    const auto texts = sourceTexts();
    for (const QString& text : texts)
        translated << ContextTranslator::translated(text.toUtf8().constData());
    StyledDockWidgetTitlebar bar;
    {
        // The form's name is the context, as in the translations that applications have.
        const ContextTranslator translator("StyledDockWidgetTitlebar");
        QTRY_COMPARE(textsOf(bar), translated);
        QCOMPARE(textsOf(StyledDockWidgetTitlebar()), translated);
    }
    QTRY_COMPARE(textsOf(bar), sourceTexts());
    const ContextTranslator otherContext("Kestrel::Gui::StyledDockWidgetTitlebar");
    QCOMPARE(textsOf(StyledDockWidgetTitlebar()), sourceTexts());
}

void tst_StyledDockWidgetTitlebar::onlyTheLanguageRetranslates()
{
    StyledDockWidgetTitlebar bar;
    bar.SetRestoreButtonTooltip(QStringLiteral("mine"));
    for (const QEvent::Type type : {QEvent::LocaleChange, QEvent::FontChange, QEvent::StyleChange,
                                    QEvent::PaletteChange, QEvent::EnabledChange, QEvent::WindowTitleChange}) {
        QEvent event(type);
        QCoreApplication::sendEvent(&bar, &event);
        QCOMPARE(restoreOf(bar)->toolTip(), QStringLiteral("mine"));
    }
}

void tst_StyledDockWidgetTitlebar::handsNoChangeToTheBaseClass()
{
    // Its height is fixed whatever the font: no change makes it ask for a new layout.
    StyledDockWidgetTitlebar bar;
    QVERIFY(!TestSupport::fontChangeReachesQWidget(&bar));
    QWidget plain;
    QVERIFY(TestSupport::fontChangeReachesQWidget(&plain));
}

void tst_StyledDockWidgetTitlebar::neverTallerInALayout_data()
{
    QTest::addColumn<Place>("place");
    const auto row = [](const char* name, const Place& place) { QTest::newRow(name) << place; };
    row("column", [](QWidget& window, QWidget* bar) { (new QVBoxLayout(&window))->addWidget(bar); });
    row("column that stretches it", [](QWidget& window, QWidget* bar) {
        auto* const layout = new QVBoxLayout(&window);
        layout->addWidget(bar, 1);
        layout->addWidget(new QLabel);
    });
    row("row", [](QWidget& window, QWidget* bar) {
        auto* const layout = new QHBoxLayout(&window);
        layout->addWidget(bar);
        layout->addWidget(new QLabel);
    });
    row("grid over two rows",
        [](QWidget& window, QWidget* bar) { (new QGridLayout(&window))->addWidget(bar, 0, 0, 2, 1); });
    row("stack", [](QWidget& window, QWidget* bar) { (new QStackedLayout(&window))->addWidget(bar); });
    row("splitter", [](QWidget& window, QWidget* bar) {
        auto* const splitter = new QSplitter(Qt::Vertical);
        splitter->addWidget(bar);
        splitter->addWidget(new QLabel);
        (new QVBoxLayout(&window))->addWidget(splitter);
        splitter->setSizes({300, 10});
    });
    row("splitter side by side", [](QWidget& window, QWidget* bar) {
        auto* const splitter = new QSplitter(Qt::Horizontal);
        splitter->addWidget(bar);
        splitter->addWidget(new QLabel);
        (new QVBoxLayout(&window))->addWidget(splitter);
    });
    row("scroll area", [](QWidget& window, QWidget* bar) {
        auto* const area = new QScrollArea;
        area->setWidgetResizable(true);
        area->setWidget(bar);
        (new QVBoxLayout(&window))->addWidget(area);
    });
    row("no layout", [](QWidget& window, QWidget* bar) {
        bar->setParent(&window);
        bar->resize(400, 300);
    });
}

void tst_StyledDockWidgetTitlebar::neverTallerInALayout()
{
    QFETCH(Place, place);
    QWidget window;
    auto* const bar = new StyledDockWidgetTitlebar(&window);
    place(window, bar);
    window.resize(600, 400);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(bar->height(), barHeight);
    stuff(*bar);
    QCoreApplication::sendPostedEvents();
    QCOMPARE(bar->height(), barHeight);
    QCOMPARE(child<QFrame>(*bar, "Border")->height(), barHeight);
    QVERIFY(bar->sizeHint().height() <= barHeight);
    QVERIFY(bar->minimumSizeHint().height() <= barHeight);
}

void tst_StyledDockWidgetTitlebar::neverTallerByItself()
{
    StyledDockWidgetTitlebar bar;
    stuff(bar);
    bar.show();
    bar.resize(500, 200);
    QVERIFY(bar.height() <= barHeight);
    bar.adjustSize();
    QVERIFY(bar.height() <= barHeight);
}

void tst_StyledDockWidgetTitlebar::titleBarOfADock()
{
    QMainWindow window;
    auto* const dock = new QDockWidget;
    auto* const bar = new StyledDockWidgetTitlebar(dock);
    dock->setTitleBarWidget(bar);
    dock->setWidget(new QLabel(QStringLiteral("content")));
    window.addDockWidget(Qt::LeftDockWidgetArea, dock);
    window.resize(600, 400);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(bar->height(), barHeight);
    QCOMPARE(bar->parentWidget(), dock);
    stuff(*bar);
    QCoreApplication::sendPostedEvents();
    QCOMPARE(bar->height(), barHeight);
    QVERIFY(dock->widget()->y() >= bar->geometry().bottom());

    connect(dock, &QDockWidget::topLevelChanged, bar, &StyledDockWidgetTitlebar::SetFloating);
    dock->setFloating(true);
    dock->resize(400, 300);
    QCOMPARE(bar->property("floating"), QVariant(true));
    QTRY_VERIFY(dock->isWindow() && bar->width() > 0);
    QCOMPARE(bar->height(), barHeight);
    QSignalSpy detach(bar, &StyledDockWidgetTitlebar::Detach);
    restoreOf(*bar)->click();
    QCOMPARE(detach.count(), 1);
    dock->setFloating(false);
    QCOMPARE(bar->property("floating"), QVariant(false));
    connect(bar, &StyledDockWidgetTitlebar::Close, dock, &QDockWidget::close);
    closeOf(*bar)->click();
    QVERIFY(!dock->isVisible());
}

void tst_StyledDockWidgetTitlebar::aSlotMayDeleteTheBar()
{
    for (const char* name : {"Restore", "Close"}) {
        QPointer<StyledDockWidgetTitlebar> bar = new StyledDockWidgetTitlebar;
        bar->show();
        connect(bar, &StyledDockWidgetTitlebar::Close, [&bar] { delete bar; });
        connect(bar, &StyledDockWidgetTitlebar::Detach, [&bar] { delete bar; });
        child<QPushButton>(*bar, name)->click();
        QVERIFY(!bar);
    }
}

void tst_StyledDockWidgetTitlebar::parentOwnsIt()
{
    auto parent = std::make_unique<QWidget>();
    const QPointer<StyledDockWidgetTitlebar> bar = new StyledDockWidgetTitlebar(parent.get());
    QCOMPARE(bar->parentWidget(), parent.get());
    const QPointer<QPushButton> button = restoreOf(*bar);
    parent.reset();
    QVERIFY(!bar);
    QVERIFY(!button);
}

QTEST_MAIN(tst_StyledDockWidgetTitlebar)
#include "tst_StyledDockWidgetTitlebar.moc"
