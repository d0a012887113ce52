#include "Appearance.h"
#include "CommandLine.h"
#include "LanguageSwitch.h"
#include "MainWindow.h"
#include "Page.h"
#include "PageFrame.h"
#include "PageList.h"
#include "PageRegistry.h"
#include "Screenshots.h"
#include "SignalLog.h"
#include "widgets/ColorSwatch.h"
#include "widgets/DropPad.h"
#include "widgets/InkPad.h"
#include "widgets/SignalLamp.h"

#include <KQt/Ui/AdvancedColorPicker.h>
#include <KQt/Ui/ExtendedLabel.h>
#include <KQt/Ui/StyledDockWidgetTitlebar.h>
#include <KQt/Ui/WidgetMouseHandler.h>

#include <QAbstractScrollArea>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QDragEnterEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMimeData>
#include <QPushButton>
#include <QSet>
#include <QSlider>
#include <QTemporaryDir>
#include <QTemporaryFile>
#include <QtTest>
#include <QVBoxLayout>

#include <algorithm>
#include <memory>

using namespace Gallery;
using Kestrel::Gui::AdvancedColorPicker;
using Kestrel::Gui::WidgetMouseHandler;

namespace {

const QString pickerSlug = QStringLiteral("advanced-colour-picker");
const QString eventsSlug = QStringLiteral("event-helpers");

/// A page that shows what its functions are told to, for the pictures.
class PageForPictures : public Page
{
public:
    explicit PageForPictures(QWidget* parent)
        : Page(QStringLiteral("A page of the test"), parent)
    {
        if (hasContent)
            stage()->addWidget(new QLabel(QStringLiteral("content")));
    }

    std::vector<Popup> popups() override { return opened; }

    static bool hasContent;
    static std::vector<Popup> opened;
};

bool PageForPictures::hasContent = true;
std::vector<Page::Popup> PageForPictures::opened; // clazy:exclude=non-pod-global-static

QCheckBox* checkBox(QWidget& page, const QString& text)
{
    const auto boxes = page.findChildren<QCheckBox*>();
    const auto found =
        std::find_if(boxes.begin(), boxes.end(), [&text](QCheckBox* box) { return box->text() == text; });
    return found == boxes.end() ? nullptr : *found;
}

QPushButton* pushButton(QWidget& page, const QString& text)
{
    const auto buttons = page.findChildren<QPushButton*>();
    const auto found =
        std::find_if(buttons.begin(), buttons.end(), [&text](QPushButton* button) { return button->text() == text; });
    return found == buttons.end() ? nullptr : *found;
}

QString logText(const QWidget& page)
{
    return page.findChild<SignalLog*>()->toPlainText();
}

/// Whether no parent cuts the widget off; what scrolls may be out of sight.
bool isWithinParents(const QWidget& widget)
{
    for (const QWidget* parent = widget.parentWidget(); parent; parent = parent->parentWidget()) {
        if (qobject_cast<QAbstractScrollArea*>(parent->parentWidget()))
            return true;
        if (!parent->rect().contains(QRect(widget.mapTo(parent, QPoint()), widget.size())))
            return false;
    }
    return true;
}

bool hasRoom(const QAbstractButton& button)
{
    const QSize needed = button.minimumSizeHint();
    return button.width() >= needed.width() && button.height() >= needed.height();
}

bool hasRoom(const QLabel& label)
{
    // The bar is as high as it is, whatever the font.
    if (qobject_cast<const Kestrel::Gui::StyledDockWidgetTitlebar*>(label.parentWidget()->parentWidget()))
        return true;
    if (label.hasHeightForWidth())
        return label.height() >= label.heightForWidth(label.width());
    const QSize needed = label.minimumSizeHint();
    // Labels that elide their texts may be as narrow as they like.
    const bool elides = qobject_cast<const Kestrel::Gui::ExtendedLabel*>(&label) != nullptr;
    return label.height() >= needed.height() && (elides || label.width() >= needed.width());
}

/// Texts in a page that cannot be seen whole.
template <typename Widget>
QStringList cutOffIn(const QWidget& page)
{
    QStringList texts;
    const auto widgets = page.findChildren<Widget*>();
    for (const Widget* widget : widgets) {
        if (widget->isVisible() && !widget->text().isEmpty() && !(hasRoom(*widget) && isWithinParents(*widget)))
            texts << widget->text();
    }
    return texts;
}

QStringList cutOff(const QWidget& page)
{
    return cutOffIn<QAbstractButton>(page) + cutOffIn<QLabel>(page);
}

QStringList popupTexts(const QWidget* popup)
{
    QStringList texts;
    const auto labels = popup->findChildren<QLabel*>();
    for (const QLabel* label : labels)
        texts << label->text();
    return texts;
}

/// The page's popup of that name, opened.
QWidget* open(Page& page, const QString& name)
{
    for (const Page::Popup& popup : page.popups()) {
        if (popup.name == name)
            return popup.open();
    }
    return nullptr;
}

/// Sends what the platform sends when something is dragged over @p target and dropped.
void dragAndDrop(QWidget& target, const QString& text)
{
    QMimeData data;
    data.setText(text);
    const QPoint at = target.rect().center();
    QDragEnterEvent enter(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&target, &enter);
    QDropEvent drop(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&target, &drop);
}

} // namespace

class tst_Gallery : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();

    void slugs_data();
    void slugs();
    void everyPageHasItsOwnSlug();
    void commandLine();
    void commandLineRefuses_data();
    void commandLineRefuses();
    void darkPaletteIsDark();
    void directionSwitchMirrorsTheWindow();
    void languageSwitchChangesTexts_data();
    void languageSwitchChangesTexts();
    void languageSwitchBuildsPagesAnew();
    void pageGoesWhileTheMouseIsOnIt();
    void pageKeepsItsStateWhileAnotherIsShown();
    void filterShortensTheList();
    void newEntriesKeepTheCurrentPage();
    void arrowKeysInTheFilterMoveThroughTheList();
    void noTextIsCutOff_data();
    void noTextIsCutOff();
    void logCountsSwarms();
    void pickersColorTheNoteAndLog();
    void pickerPopupsDifferInOpacity();
    void opacitySwitchReachesThePopup();
    void padLosesTheMouseWithoutPropagation();
    void hoverSwitch();
    void resizingThePadIsReported();
    void guardedFieldTakesNoDrop();
    void windowStaysOnTop();
    void picturesOfEveryPage();
    void emptyPicturesFail_data();
    void emptyPicturesFail();
    void picturesNeedAFolder();

private:
    /// A shown window with that page on view.
    std::unique_ptr<MainWindow> windowWith(const QString& slug);

    LanguageSwitch m_language;
};

void tst_Gallery::initTestCase()
{
    // The gallery has a look of its own.
    qApp->setStyleSheet(QString());
    QApplication::setStyle(QStringLiteral("fusion"));
    // As large as on a desktop; the offscreen platform's own is larger than on any.
    QApplication::setFont(QFont(QStringLiteral("sans-serif"), 10));
}

void tst_Gallery::cleanup()
{
    m_language.use(QStringLiteral("en"));
    applyScheme(Scheme::Light);
    PageForPictures::hasContent = true;
    PageForPictures::opened.clear();
    const auto widgets = QApplication::topLevelWidgets();
    QVERIFY(std::none_of(widgets.begin(), widgets.end(), [](QWidget* widget) { return widget->isVisible(); }));
}

std::unique_ptr<MainWindow> tst_Gallery::windowWith(const QString& slug)
{
    auto window = std::make_unique<MainWindow>(m_language);
    window->showPage(slug);
    window->show();
    // Hidden tests go on; the tests' own checks then fail.
    if (!QTest::qWaitForWindowExposed(window.get()))
        qWarning("the window is not exposed");
    return window;
}

void tst_Gallery::slugs_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    QTest::newRow("words") << QStringLiteral("Advanced colour picker") << pickerSlug;
    QTest::newRow("signs") << QStringLiteral("Labels & text, inputs!") << QStringLiteral("labels-text-inputs");
    QTest::newRow("already") << eventsSlug << eventsSlug;
    QTest::newRow("nothing") << QString() << QString();
}

void tst_Gallery::slugs()
{
    QFETCH(QString, text);
    QTEST(slug(text), "expected");
}

void tst_Gallery::everyPageHasItsOwnSlug()
{
    QSet<QString> seen;
    int position = 0;
    for (const PageRegistration& page : registeredPages()) {
        QVERIFY2(!seen.contains(page.slug()), page.title);
        seen.insert(page.slug());
        QVERIFY(page.position >= position);
        position = page.position;
    }
    QVERIFY(seen.contains(pickerSlug));
    QVERIFY(seen.contains(eventsSlug));
}

void tst_Gallery::commandLine()
{
    CommandLine commandLine;
    const auto defaults = commandLine.read({QStringLiteral("gallery")});
    QVERIFY(defaults);
    QVERIFY(!defaults->help);
    QVERIFY(defaults->screenshotFolder.isEmpty());
    QVERIFY(defaults->page.isEmpty());
    QVERIFY(!defaults->scheme);
    QVERIFY(!defaults->rightToLeft);
    QVERIFY(!defaults->language);

    const auto all =
        CommandLine().read({QStringLiteral("gallery"), QStringLiteral("--screenshots"), QStringLiteral("there"),
                            QStringLiteral("--palette=dark"), QStringLiteral("--rtl"), QStringLiteral("--language"),
                            QStringLiteral("de"), QStringLiteral("--page"), QStringLiteral("Event helpers")});
    QVERIFY(all);
    QCOMPARE(all->screenshotFolder, QStringLiteral("there"));
    QCOMPARE(all->page, eventsSlug);
    QVERIFY(all->scheme == Scheme::Dark);
    QVERIFY(all->rightToLeft == true);
    QVERIFY(all->language == QStringLiteral("de"));

    QVERIFY(CommandLine().read({QStringLiteral("gallery"), QStringLiteral("--help")})->help);
}

void tst_Gallery::commandLineRefuses_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("culprit");
    QTest::newRow("unknown option") << QStringList{QStringLiteral("--colour")} << QStringLiteral("colour");
    QTest::newRow("unknown letter") << QStringList{QStringLiteral("-x")} << QStringLiteral("x");
    QTest::newRow("surplus argument") << QStringList{QStringLiteral("surplus")} << QStringLiteral("surplus");
    QTest::newRow("missing value") << QStringList{QStringLiteral("--screenshots")} << QStringLiteral("screenshots");
    QTest::newRow("empty folder") << QStringList{QStringLiteral("--screenshots=")} << QStringLiteral("screenshots");
    QTest::newRow("palette") << QStringList{QStringLiteral("--palette=pink")} << QStringLiteral("pink");
    QTest::newRow("language") << QStringList{QStringLiteral("--language=xx")} << QStringLiteral("xx");
    QTest::newRow("page") << QStringList{QStringLiteral("--page=nowhere")} << QStringLiteral("nowhere");
}

void tst_Gallery::commandLineRefuses()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, culprit);
    CommandLine commandLine;
    QVERIFY(!commandLine.read(QStringList{QStringLiteral("gallery")} + arguments));
    QVERIFY2(commandLine.errorText().contains(culprit), qPrintable(commandLine.errorText()));
    QVERIFY(commandLine.usage().contains(QStringLiteral("--screenshots")));
}

void tst_Gallery::darkPaletteIsDark()
{
    const auto window = windowWith(pickerSlug);
    auto* dark = window->findChild<QAction*>(QStringLiteral("dark"));
    const auto brightness = [&window] {
        return window->grab().toImage().pixelColor(2, window->height() / 2).lightness();
    };
    const int light = brightness();
    dark->trigger();
    QVERIFY(brightness() < light / 2);
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        const int text = window->palette().color(group, QPalette::WindowText).lightness();
        QVERIFY(text > window->palette().color(group, QPalette::Window).lightness() + 40);
    }
    dark->trigger();
    QCOMPARE(brightness(), light);
}

void tst_Gallery::directionSwitchMirrorsTheWindow()
{
    const auto window = windowWith(pickerSlug);
    const auto* list = window->findChild<PageList*>();
    const auto listCentre = [&] { return list->mapTo(window.get(), list->rect().center()).x(); };
    QVERIFY(listCentre() < window->width() / 2);
    window->findChild<QAction*>(QStringLiteral("rightToLeft"))->trigger();
    QTRY_VERIFY(listCentre() > window->width() / 2);
    window->setRightToLeft(false);
    QTRY_VERIFY(listCentre() < window->width() / 2);
}

void tst_Gallery::languageSwitchChangesTexts_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("windowTitle");
    QTest::addColumn<QString>("pageTitle");
    QTest::addColumn<QString>("opacity");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("German") << QStringLiteral("de") << QStringLiteral("KQtUi-Galerie")
                            << QStringLiteral("Erweiterte Farbauswahl") << QStringLiteral("DECKKRAFT")
                            << Qt::LeftToRight;
    QTest::newRow("Arabic") << QStringLiteral("ar") << QStringLiteral("معرض KQtUi")
                            << QStringLiteral("منتقي الألوان المتقدم") << QStringLiteral("العتامة") << Qt::RightToLeft;
}

void tst_Gallery::languageSwitchChangesTexts()
{
    QFETCH(QString, code);
    QFETCH(QString, pageTitle);
    QFETCH(QString, opacity);
    const auto window = windowWith(pickerSlug);
    const auto title = [&window] {
        return window->currentFrame()->findChild<QLabel*>(QStringLiteral("title"))->text();
    };
    QCOMPARE(window->windowTitle(), QStringLiteral("KQtUi gallery"));
    QCOMPARE(title(), QStringLiteral("Advanced colour picker"));

    window->findChild<QAction*>(code)->trigger();
    QTEST(window->windowTitle(), "windowTitle");
    QCOMPARE(title(), pageTitle);
    QTEST(QGuiApplication::layoutDirection(), "direction");
    QCOMPARE(window->findChild<QListView*>()->currentIndex().data().toString(), pageTitle);
    QWidget* popup = open(*window->currentFrame()->page(), QStringLiteral("with-opacity"));
    QVERIFY(popup);
    QVERIFY(popupTexts(popup).contains(opacity));
    popup->close();

    window->findChild<QAction*>(QStringLiteral("en"))->trigger();
    QCOMPARE(window->windowTitle(), QStringLiteral("KQtUi gallery"));
    QCOMPARE(title(), QStringLiteral("Advanced colour picker"));
    QCOMPARE(QGuiApplication::layoutDirection(), Qt::LeftToRight);
}

void tst_Gallery::languageSwitchBuildsPagesAnew()
{
    const auto window = windowWith(eventsSlug);
    const QPointer<PageFrame> before = window->currentFrame();
    window->setLanguage(QStringLiteral("de"));
    QVERIFY(!before);
    QVERIFY(window->currentFrame());
    QVERIFY(window->currentFrame()->findChild<InkPad*>());
}

// The mouse leaves the pad while the page is taken down; the page must still be whole then.
void tst_Gallery::pageGoesWhileTheMouseIsOnIt()
{
    if (QGuiApplication::platformName() == QLatin1String("offscreen"))
        QSKIP("the offscreen platform has no pointer that could enter a widget");
    const auto window = windowWith(eventsSlug);
    const auto* pad = window->currentFrame()->findChild<InkPad*>();
    QTest::mouseMove(window->windowHandle(), pad->mapTo(window.get(), pad->rect().center()));
    QTRY_VERIFY(pad->underMouse());
    QSignalSpy left(pad->findChild<WidgetMouseHandler*>(), &WidgetMouseHandler::MouseLeaved);
    window->setLanguage(QStringLiteral("de"));
    QCOMPARE(left.count(), 1);
}

void tst_Gallery::pageKeepsItsStateWhileAnotherIsShown()
{
    const auto window = windowWith(eventsSlug);
    const QPointer<PageFrame> events = window->currentFrame();
    window->showPage(pickerSlug);
    QVERIFY(window->currentFrame() != events);
    QVERIFY(window->currentFrame()->findChild<AdvancedColorPicker*>());
    window->showPage(eventsSlug);
    QCOMPARE(window->currentFrame(), events.data());
    window->showPage(QStringLiteral("nowhere"));
    QCOMPARE(window->currentFrame(), events.data());
}

void tst_Gallery::filterShortensTheList()
{
    PageList list;
    list.setEntries({{QStringLiteral("Apple"), {}},
                     {QStringLiteral("Pear"), {QStringLiteral("Stalk"), QStringLiteral("Core")}},
                     {QStringLiteral("Pineapple"), {}}});
    list.setCurrent(1);
    QSignalSpy changed(&list, &PageList::currentChanged);
    auto* filter = list.findChild<QLineEdit*>();
    const auto* model = list.findChild<QListView*>()->model();

    QTest::keyClicks(filter, QStringLiteral("aPPl"));
    QCOMPARE(model->rowCount(), 2);
    const int fitting = list.current();
    QVERIFY(fitting != 1);
    QCOMPARE(changed.count(), 1);

    // Nothing fits: what is on view stays.
    QTest::keyClicks(filter, QStringLiteral("xyz"));
    QCOMPARE(model->rowCount(), 0);
    QCOMPARE(list.current(), fitting);
    QCOMPARE(changed.count(), 1);

    list.setCurrent(1);
    QCOMPARE(list.current(), 1);
    QVERIFY(filter->text().isEmpty());
    QCOMPARE(changed.count(), 2);
    QCOMPARE(changed.last().first().toInt(), 1);

    // A component finds its page, whatever the title.
    list.setCurrent(0);
    QTest::keyClicks(filter, QStringLiteral("core"));
    QCOMPARE(model->rowCount(), 1);
    QCOMPARE(list.current(), 1);
}

void tst_Gallery::newEntriesKeepTheCurrentPage()
{
    PageList list;
    list.setEntries({{QStringLiteral("Apple"), {}}, {QStringLiteral("Pear"), {}}});
    list.setCurrent(1);
    const QSignalSpy changed(&list, &PageList::currentChanged);
    list.setEntries({{QStringLiteral("Apfel"), {}}, {QStringLiteral("Birne"), {}}});
    QCOMPARE(list.current(), 1);
    QCOMPARE(changed.count(), 0);
    QCOMPARE(list.findChild<QListView*>()->currentIndex().data().toString(), QStringLiteral("Birne"));
}

void tst_Gallery::arrowKeysInTheFilterMoveThroughTheList()
{
    PageList list;
    list.setEntries({{QStringLiteral("Apple"), {}}, {QStringLiteral("Pear"), {}}});
    list.setCurrent(0);
    auto* filter = list.findChild<QLineEdit*>();
    QTest::keyClick(filter, Qt::Key_Down);
    QCOMPARE(list.current(), 1);
    QTest::keyClick(filter, Qt::Key_Up);
    QCOMPARE(list.current(), 0);
}

void tst_Gallery::noTextIsCutOff_data()
{
    QTest::addColumn<QString>("code");
    for (const Language& language : languages())
        QTest::newRow(qPrintable(language.code)) << language.code;
}

void tst_Gallery::noTextIsCutOff()
{
    QFETCH(QString, code);
    m_language.use(code);
    const auto window = windowWith(pickerSlug);
    for (const PageRegistration& page : registeredPages()) {
        window->showPage(page.slug());
        QCoreApplication::processEvents();
        const PageFrame& frame = *window->currentFrame();
        // Without scrolling sideways.
        QTRY_VERIFY2(frame.parentWidget()->width() >= frame.minimumSizeHint().width(), page.title);
        QTRY_COMPARE(cutOff(frame).join(QStringLiteral(" | ")), QString());
    }
}

void tst_Gallery::logCountsSwarms()
{
    SignalLog log;
    log.addCounted(QStringLiteral("moved(1)"));
    log.addCounted(QStringLiteral("moved(2)"));
    log.addCounted(QStringLiteral("hovered(1)"));
    log.addCounted(QStringLiteral("moved(3)"));
    QCOMPARE(log.toPlainText(), QStringLiteral("moved(3) ×3\nhovered(1)"));
    log.addCounted(QStringLiteral("hovered(2)"));
    QCOMPARE(log.toPlainText(), QStringLiteral("moved(3) ×3\nhovered(2) ×2"));
    log.add(QStringLiteral("pressed()"));
    log.addCounted(QStringLiteral("moved(4)"));
    QCOMPARE(log.toPlainText(), QStringLiteral("moved(3) ×3\nhovered(2) ×2\npressed()\nmoved(4)"));
    log.clear();
    log.addCounted(QStringLiteral("moved(5)"));
    QCOMPARE(log.toPlainText(), QStringLiteral("moved(5)"));
}

void tst_Gallery::pickersColorTheNoteAndLog()
{
    const auto window = windowWith(pickerSlug);
    Page& page = *window->currentFrame()->page();
    QWidget* popup = open(page, QStringLiteral("without-opacity"));
    QVERIFY(popup);
    auto* hex = popup->findChild<QLineEdit*>(QStringLiteral("colorEdit"));
    const QImage before = page.stageFrame()->grab().toImage();
    hex->setText(QStringLiteral("#0c59cf"));
    QVERIFY(page.stageFrame()->grab().toImage() != before);
    popup->close();

    QCOMPARE(logText(page), QStringLiteral("paper.colorSelectionStarted()\n"
                                           "paper.changedColor(#0c59cf)\n"
                                           "paper.doneSelectionWithColor(#0c59cf)"));
    const auto swatches = page.findChildren<ColorSwatch*>();
    QVERIFY(std::any_of(swatches.begin(), swatches.end(),
                        [](ColorSwatch* swatch) { return swatch->color() == QColor(0x0c59cf); }));

    pushButton(page, QStringLiteral("Clear"))->click();
    QVERIFY(logText(page).isEmpty());
    pushButton(page, QStringLiteral("Random colours"))->click();
    QVERIFY(logText(page).isEmpty());
}

void tst_Gallery::pickerPopupsDifferInOpacity()
{
    const auto window = windowWith(pickerSlug);
    Page& page = *window->currentFrame()->page();
    QCOMPARE(page.popups().size(), std::size_t(2));
    for (const Page::Popup& description : page.popups()) {
        QWidget* popup = description.open();
        QVERIFY(popup);
        QVERIFY(popup->isVisible());
        QCOMPARE(popup->findChild<QSlider*>()->isVisible(), description.name == QLatin1String("with-opacity"));
        popup->close();
    }
}

void tst_Gallery::opacitySwitchReachesThePopup()
{
    const auto window = windowWith(pickerSlug);
    Page& page = *window->currentFrame()->page();
    checkBox(page, QStringLiteral("Opacity of the marker"))->click();
    QWidget* popup = open(page, QStringLiteral("with-opacity"));
    QVERIFY(popup);
    QVERIFY(!popup->findChild<QSlider*>()->isVisible());
    popup->close();
}

void tst_Gallery::padLosesTheMouseWithoutPropagation()
{
    const auto window = windowWith(eventsSlug);
    Page& page = *window->currentFrame()->page();
    auto* pad = page.findChild<InkPad*>();
    const QPoint at(20, 30);
    QTest::mouseClick(pad, Qt::LeftButton, {}, at);
    QVERIFY(pad->hasInk());
    QVERIFY(logText(page).contains(QStringLiteral("MouseButtonPressed(20, 30)")));
    const auto lamps = page.findChildren<SignalLamp*>();
    QVERIFY(std::any_of(lamps.begin(), lamps.end(),
                        [](SignalLamp* lamp) { return lamp->isLit() && lamp->value() == QLatin1String("20, 30"); }));

    pushButton(page, QStringLiteral("Wipe the pad"))->click();
    QVERIFY(!pad->hasInk());
    checkBox(page, QStringLiteral("Events go on to the pad"))->click();
    QTest::mouseClick(pad, Qt::LeftButton, {}, QPoint(40, 50));
    QVERIFY(!pad->hasInk());
    QVERIFY(logText(page).contains(QStringLiteral("MouseButtonPressed(40, 50)")));
}

void tst_Gallery::hoverSwitch()
{
    const auto window = windowWith(eventsSlug);
    Page& page = *window->currentFrame()->page();
    auto* pad = page.findChild<InkPad*>();
    QVERIFY(pad->testAttribute(Qt::WA_Hover));
    QHoverEvent hover(QEvent::HoverMove, QPointF(7, 8), QPointF(6, 8));
    QCoreApplication::sendEvent(pad, &hover);
    QVERIFY(logText(page).contains(QStringLiteral("MouseHoverMoved(7, 8)")));
    checkBox(page, QStringLiteral("Hover events"))->click();
    QVERIFY(!pad->testAttribute(Qt::WA_Hover));
    QVERIFY(!pad->hasMouseTracking());
    checkBox(page, QStringLiteral("Moves without a button"))->click();
    QVERIFY(pad->hasMouseTracking());
}

void tst_Gallery::resizingThePadIsReported()
{
    const auto window = windowWith(eventsSlug);
    Page& page = *window->currentFrame()->page();
    const auto* pad = page.findChild<InkPad*>();
    const QSize before = pad->size();
    window->resize(window->size() + QSize(60, 40));
    QTRY_VERIFY(pad->size() != before);
    const QString size = QStringLiteral("%1×%2").arg(pad->width()).arg(pad->height());
    QVERIFY2(logText(page).contains(size + QLatin1Char(')')), qPrintable(logText(page)));
}

void tst_Gallery::guardedFieldTakesNoDrop()
{
    const auto window = windowWith(eventsSlug);
    Page& page = *window->currentFrame()->page();
    auto* field = page.findChild<DropPad*>();
    dragAndDrop(*field, QStringLiteral("first"));
    QCOMPARE(field->text(), QStringLiteral("first"));
    QVERIFY(logText(page).contains(QStringLiteral("dropEvent(\"first\")")));

    auto* guard = checkBox(page, QStringLiteral("Drop field is guarded"));
    guard->click();
    dragAndDrop(*field, QStringLiteral("second"));
    QCOMPARE(field->text(), QStringLiteral("first"));
    guard->click();
    dragAndDrop(*field, QStringLiteral("third"));
    QCOMPARE(field->text(), QStringLiteral("third"));
}

void tst_Gallery::windowStaysOnTop()
{
    const auto window = windowWith(eventsSlug);
    const QString text = QStringLiteral("Window stays on top");
    checkBox(*window->currentFrame(), text)->click();
    QVERIFY(window->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    QVERIFY(window->isVisible());

    // The state is the window's, not the page's.
    m_language.use(QStringLiteral("en"));
    window->setLanguage(QStringLiteral("en"));
    QVERIFY(window->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    QTRY_VERIFY(checkBox(*window->currentFrame(), text)->isChecked());

    checkBox(*window->currentFrame(), text)->click();
    QVERIFY(!window->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    QVERIFY(window->isVisible());
}

void tst_Gallery::picturesOfEveryPage()
{
    const QTemporaryDir folder;
    Screenshots screenshots(folder.filePath(QStringLiteral("made/on/demand")));
    screenshots.write();
    QVERIFY(screenshots.ok());
    const QDir pictures(folder.filePath(QStringLiteral("made/on/demand")));
    for (const PageRegistration& page : registeredPages())
        QVERIFY2(pictures.exists(page.slug() + QStringLiteral(".png")), page.title);
    for (const QString& popup : {QStringLiteral("with-opacity"), QStringLiteral("without-opacity")}) {
        const QImage picture(pictures.filePath(QStringLiteral("%1--%2.png").arg(pickerSlug, popup)));
        QVERIFY(!picture.isNull());
    }
}

void tst_Gallery::emptyPicturesFail_data()
{
    QTest::addColumn<bool>("hasContent");
    QTest::addColumn<QString>("popup");
    QTest::addColumn<bool>("expected");
    QTest::newRow("with content") << true << QString() << true;
    QTest::newRow("empty stage") << false << QString() << false;
    QTest::newRow("popup with content") << true << QStringLiteral("label") << true;
    QTest::newRow("popup of one colour") << true << QStringLiteral("blank") << false;
    QTest::newRow("popup that does not open") << true << QStringLiteral("none") << false;
}

void tst_Gallery::emptyPicturesFail()
{
    QFETCH(bool, hasContent);
    QFETCH(QString, popup);
    static const PageRegistration registration(1000, "Page for pictures",
                                               [](QWidget* parent) { return new PageForPictures(parent); });
    PageForPictures::hasContent = hasContent;
    QLabel label(QStringLiteral("label"));
    QWidget blank;
    blank.resize(50, 50);
    const auto show = [](QWidget& widget) {
        widget.show();
        return &widget;
    };
    if (popup == QLatin1String("label"))
        PageForPictures::opened = {{popup, [&] { return show(label); }}};
    else if (popup == QLatin1String("blank"))
        PageForPictures::opened = {{popup, [&] { return show(blank); }}};
    else if (popup == QLatin1String("none"))
        PageForPictures::opened = {{popup, [] { return nullptr; }}};

    const QTemporaryDir folder;
    Screenshots screenshots(folder.path());
    screenshots.write(QStringLiteral("page-for-pictures"));
    QTEST(screenshots.ok(), "expected");
    QVERIFY(QDir(folder.path()).exists(QStringLiteral("page-for-pictures.png")));
    QVERIFY(!QDir(folder.path()).exists(eventsSlug + QStringLiteral(".png")));
    QVERIFY(!label.isVisible());
    QVERIFY(!blank.isVisible());
}

void tst_Gallery::picturesNeedAFolder()
{
    QTemporaryFile file;
    QVERIFY(file.open());
    Screenshots screenshots(file.fileName());
    screenshots.write();
    QVERIFY(!screenshots.ok());
}

QTEST_MAIN(tst_Gallery)
#include "tst_Gallery.moc"
