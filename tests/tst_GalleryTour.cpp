#include "Appearance.h"
#include "GalleryHint.h"
#include "LanguageSwitch.h"
#include "MainWindow.h"
#include "PageFrame.h"
#include "Tour.h"

#include "support/Render.h"
#include "support/TestHint.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QSettings>
#include <QStackedWidget>
#include <QTemporaryDir>
#include <QToolBar>
#include <QTreeWidget>
#include <QtTest>

#include <memory>

using namespace Gallery;

namespace {

/// The gallery with its tour and settings of its own.
class TouredGallery
{
public:
    explicit TouredGallery(const QString& settingsFile)
        : settings(settingsFile, QSettings::IniFormat)
    {
        window.show();
        window.activateWindow();
    }

    GalleryHint* shownHint() const
    {
        const QList<GalleryHint*> hints = window.findChildren<GalleryHint*>();
        for (GalleryHint* hint : hints) {
            if (hint->isVisible())
                return hint;
        }
        return nullptr;
    }

    bool waitForHint(const char* name) const
    {
        return QTest::qWaitFor([&] {
            const GalleryHint* hint = shownHint();
            return hint && const_cast<GalleryHint*>(hint)->hintName() == QLatin1String(name);
        });
    }

    /// Waits until the controller has decided once more what to show: a hint of the test's own then is.
    bool waitForDecision()
    {
        const QString name = QStringLiteral("probe");
        auto* prototype = new TestSupport::TestHint;
        const QStringList condition = {QStringLiteral("probe/wanted")};
        prototype->addPage(name, QStringLiteral("page-filter"), QString(), condition);
        QList<QPointer<TestSupport::TestHint>>& copies = prototype->clones();
        tour.controller().addHints(prototype);
        const QPointer<TestSupport::TestHint> probe = copies.first();
        tour.controller().gotoState(condition.first());
        return QTest::qWaitFor([&probe] { return probe && probe->isVisible(); });
    }

    void press(const char* button) const
    {
        auto* widget = shownHint()->findChild<QPushButton*>(QLatin1String(button));
        QTest::mouseClick(widget, Qt::LeftButton);
    }

    LanguageSwitch language;
    QSettings settings;
    MainWindow window{language};
    Tour tour{window, settings};
};

} // namespace

/// The gallery's own tour: its hints, and that it is not shown again to those who said so.
class tst_GalleryTour : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    static void initTestCase();
    void init();
    void cleanup();

    void fromStartToEnd();
    void standsInsideTheWindowInEitherDirection();
    void pressingTheTargetGoesOn();
    void byKeyboard();
    void focusReturns();
    void notNow();
    void escapeIsNotNow();
    void neverAgain();
    void languageChange();
    void followsThePalette();
    void cloneHasPagesOfItsOwn();
    void walkthroughPage();

private:
    QString settingsFile() const { return m_folder->filePath(QStringLiteral("gallery.ini")); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_GalleryTour::initTestCase()
{
    // The gallery has a look of its own, and fonts as large as on a desktop.
    qApp->setStyleSheet(QString());
    QApplication::setStyle(QStringLiteral("fusion"));
    QApplication::setFont(QFont(QStringLiteral("sans-serif"), 10));
}

void tst_GalleryTour::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

void tst_GalleryTour::cleanup()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_GalleryTour::fromStartToEnd()
{
    TouredGallery gallery(settingsFile());
    for (const char* name : {"tour-pages", "tour-filter", "tour-appearance", "tour-language", "tour-open"}) {
        QVERIFY2(gallery.waitForHint(name), name);
        const GalleryHint* hint = gallery.shownHint();
        QVERIFY(gallery.window.rect().adjusted(5, 5, -5, -5).contains(hint->geometry()));
        QVERIFY(!hint->textLabel()->text().isEmpty());
        QVERIFY(hint->getTargetWidget()->isVisible());
        const auto* filter = gallery.window.findChild<QLineEdit*>(QStringLiteral("filter"));
        const QRect avoid(filter->mapTo(&gallery.window, QPoint(0, 0)), filter->size());
        QVERIFY2(!hint->geometry().intersects(avoid), name);
        gallery.press("next");
    }
    // The last one waits for a page.
    QVERIFY(gallery.waitForDecision());
    QVERIFY(!gallery.shownHint());
    gallery.window.showPage(QStringLiteral("walkthrough"));
    QVERIFY(gallery.waitForHint("tour-walkthrough"));
    gallery.press("next");
    QVERIFY(!gallery.shownHint());
    QVERIFY(!gallery.settings.contains(QStringLiteral("tour/neverAgain")));
}

void tst_GalleryTour::standsInsideTheWindowInEitherDirection()
{
    const Qt::LayoutDirection before = QGuiApplication::layoutDirection();
    const auto restore = qScopeGuard([before] { QGuiApplication::setLayoutDirection(before); });
    TouredGallery gallery(settingsFile());
    QVERIFY(gallery.waitForHint("tour-pages"));
    for (const Qt::LayoutDirection direction : {Qt::RightToLeft, Qt::LeftToRight}) {
        QGuiApplication::setLayoutDirection(direction);
        const GalleryHint* hint = gallery.shownHint();
        const QWidget* target = hint->getTargetWidget();
        QTRY_COMPARE(target->x() > gallery.window.width() / 2, direction == Qt::RightToLeft);
        // The hint follows its frame from the event loop.
        QTRY_VERIFY(!hint->geometry().intersects(target->geometry()) &&
                    gallery.window.rect().contains(hint->geometry()) &&
                    hint->width() > hint->layout()->minimumSize().width() / 2);
    }
}

void tst_GalleryTour::pressingTheTargetGoesOn()
{
    TouredGallery gallery(settingsFile());
    QVERIFY(gallery.waitForHint("tour-pages"));
    auto* list = gallery.window.findChild<QListView*>(QStringLiteral("pages"));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
    QVERIFY(gallery.waitForHint("tour-filter"));
    gallery.press("next");

    // Two targets in one frame.
    QVERIFY(gallery.waitForHint("tour-appearance"));
    const auto* bar = gallery.window.findChild<QToolBar*>();
    QRect both;
    for (const char* action : {"dark", "rightToLeft"}) {
        const QWidget* button = bar->widgetForAction(gallery.window.findChild<QAction*>(QLatin1String(action)));
        both |= QRect(button->mapTo(&gallery.window, QPoint(0, 0)), button->size());
    }
    QCOMPARE(gallery.shownHint()->getTargetWidget()->geometry(), both.adjusted(-3, -3, 3, 3) & gallery.window.rect());
    QTest::mouseClick(bar->widgetForAction(gallery.window.findChild<QAction*>(QStringLiteral("rightToLeft"))),
                      Qt::LeftButton);
    QVERIFY(gallery.waitForHint("tour-language"));
    gallery.window.setRightToLeft(false);
}

void tst_GalleryTour::byKeyboard()
{
    TouredGallery gallery(settingsFile());
    if (!QTest::qWaitFor([&gallery] { return gallery.window.isActiveWindow(); }))
        QSKIP("windows are not activated here");
    QVERIFY(gallery.waitForHint("tour-pages"));
    auto* hint = gallery.shownHint();
    QCOMPARE(QApplication::focusWidget(), hint->closeButton());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), hint->disableForSessionButton());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), hint->disableForeverButton());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QVERIFY(gallery.waitForHint("tour-filter"));
}

void tst_GalleryTour::focusReturns()
{
    TouredGallery gallery(settingsFile());
    if (!QTest::qWaitFor([&gallery] { return gallery.window.isActiveWindow(); }))
        QSKIP("windows are not activated here");
    auto* filter = gallery.window.findChild<QLineEdit*>(QStringLiteral("filter"));
    filter->setFocus();
    QVERIFY(gallery.waitForHint("tour-pages"));
    QVERIFY(!filter->hasFocus());
    gallery.press("notNow");
    QVERIFY(filter->hasFocus());
}

void tst_GalleryTour::notNow()
{
    {
        TouredGallery gallery(settingsFile());
        QVERIFY(gallery.waitForHint("tour-pages"));
        gallery.press("notNow");
        QVERIFY(!gallery.tour.controller().isEnabled());
        QVERIFY(gallery.waitForDecision());
        QVERIFY(!gallery.shownHint());
        QVERIFY(!gallery.settings.contains(QStringLiteral("tour/neverAgain")));
    }
    // At the next start the tour begins anew.
    const TouredGallery next(settingsFile());
    QVERIFY(next.waitForHint("tour-pages"));
}

void tst_GalleryTour::escapeIsNotNow()
{
    TouredGallery gallery(settingsFile());
    QVERIFY(gallery.waitForHint("tour-pages"));
    QTest::keyClick(gallery.shownHint()->closeButton(), Qt::Key_Escape);
    QVERIFY(!gallery.shownHint());
    QVERIFY(!gallery.tour.controller().isEnabled());
}

void tst_GalleryTour::neverAgain()
{
    {
        TouredGallery gallery(settingsFile());
        QVERIFY(gallery.waitForHint("tour-pages"));
        gallery.press("neverAgain");
        QVERIFY(!gallery.tour.controller().isEnabled());
        QVERIFY(gallery.settings.value(QStringLiteral("tour/neverAgain")).toBool());
    }
    TouredGallery next(settingsFile());
    QTRY_VERIFY(next.tour.controller().isRunning());
    QVERIFY(next.waitForDecision());
    QVERIFY(!next.shownHint());
    QVERIFY(!next.tour.controller().isEnabled());
}

void tst_GalleryTour::languageChange()
{
    TouredGallery gallery(settingsFile());
    QVERIFY(gallery.waitForHint("tour-pages"));
    gallery.window.setLanguage(QStringLiteral("de"));
    auto* next = gallery.shownHint()->findChild<QPushButton*>(QStringLiteral("next"));
    QTRY_COMPARE(next->text(), QStringLiteral("Weiter"));
    QVERIFY(!gallery.shownHint()->textLabel()->text().startsWith(QStringLiteral("Every family")));
    gallery.window.setLanguage(QStringLiteral("en"));
    QTRY_COMPARE(next->text(), QStringLiteral("Next"));
    QVERIFY(gallery.shownHint()->textLabel()->text().startsWith(QStringLiteral("Every family")));
}

void tst_GalleryTour::followsThePalette()
{
    TouredGallery gallery(settingsFile());
    QVERIFY(gallery.waitForHint("tour-pages"));
    for (const Scheme scheme : {Scheme::Dark, Scheme::Light}) {
        gallery.window.setScheme(scheme);
        QCoreApplication::processEvents();
        GalleryHint* hint = gallery.shownHint();
        const QImage image = TestSupport::render(*hint);
        QCOMPARE(image.pixelColor(6, image.height() / 2), palette(scheme).color(QPalette::Base));
        QCOMPARE(image.pixelColor(0, image.height() / 2), palette(scheme).color(QPalette::Highlight));
        QWidget* frame = hint->getTargetWidget();
        // On the screen's pixels: a picture at another scale mixes the line with what lies beside it.
        const QImage window = gallery.window.grab().toImage();
        QCOMPARE(window.pixelColor(frame->geometry().topLeft() * window.devicePixelRatio() + QPoint(1, 1)),
                 palette(scheme).color(QPalette::Highlight));
    }
}

void tst_GalleryTour::cloneHasPagesOfItsOwn()
{
    const QVector<HintDescription> descriptions = {
        {QStringLiteral("a"), QStringLiteral("t"), QStringLiteral("left"), {QStringLiteral("a/ready")}, "A", "first"},
        {QStringLiteral("b"), QStringLiteral("u"), QStringLiteral("top"), {}, "B", "second"}};
    const GalleryHint prototype("Test", descriptions);
    const std::unique_ptr<Kestrel::Gui::WalkthroughHint> copy(prototype.clone());
    QVERIFY(qobject_cast<GalleryHint*>(copy.get()));
    QCOMPARE(copy->stackedWidget()->count(), 2);
    QVERIFY(copy->stackedWidget()->widget(0) != prototype.stackedWidget()->widget(0));
    copy->stackedWidget()->setCurrentIndex(1);
    QCOMPARE(copy->hintName(), QStringLiteral("b"));
    QCOMPARE(copy->widgetName(), QStringLiteral("u"));
    QCOMPARE(copy->alignment(), QStringLiteral("top"));
    QCOMPARE(copy->textLabel()->text(), QStringLiteral("second"));
    copy->stackedWidget()->setCurrentIndex(0);
    QCOMPARE(copy->conditionList(), QStringList({QStringLiteral("a/ready")}));
    QVERIFY(copy->sizeHint().isValid());
}

void tst_GalleryTour::walkthroughPage()
{
    TouredGallery gallery(settingsFile());
    gallery.tour.controller().setEnabled(false);
    gallery.window.showPage(QStringLiteral("walkthrough"));
    QWidget* page = gallery.window.currentFrame();
    const auto* groups = page->findChild<QTreeWidget*>(QStringLiteral("groups"));
    const auto activeState = [groups](const char* group) {
        const auto items = groups->findItems(QLatin1String(group), Qt::MatchExactly);
        return items.isEmpty() ? QString() : items.first()->text(1);
    };
    const auto* hints = page->findChild<QTreeWidget*>(QStringLiteral("hints"));
    const auto unmet = [hints](const char* hint) {
        return hints->findItems(QLatin1String(hint), Qt::MatchExactly).constFirst()->text(1);
    };
    QTRY_COMPARE(activeState("demo"), QStringLiteral("stopped"));
    QTRY_COMPARE(activeState("demo-save"), QStringLiteral("active"));
    QCOMPARE(unmet("hint-save"), QStringLiteral("1"));
    QCOMPARE(unmet("hint-lamps"), QStringLiteral("2"));

    QTest::mouseClick(page->findChild<QPushButton*>(QStringLiteral("start")), Qt::LeftButton);
    QVERIFY(gallery.waitForHint("hint-save"));
    QCOMPARE(activeState("demo"), QStringLiteral("running"));
    QCOMPARE(unmet("hint-save"), QStringLiteral("0"));
    gallery.press("next");
    QVERIFY(gallery.waitForHint("hint-lamps"));
    QTRY_COMPARE(activeState("hint-save"), QStringLiteral("finished"));
    QTest::mouseClick(page->findChild<QPushButton*>(QStringLiteral("stop")), Qt::LeftButton);
    QTRY_VERIFY(!gallery.shownHint());
    QTRY_COMPARE(activeState("demo"), QStringLiteral("stopped"));
}

QTEST_MAIN(tst_GalleryTour)
#include "tst_GalleryTour.moc"
