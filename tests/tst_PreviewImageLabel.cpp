#include <KQt/Ui/PreviewImageLabel.h>

#include "support/AllEventTypes.h"
#include "support/ContextTranslator.h"
#include "support/EventRecorder.h"
#include "support/MouseEvents.h"
#include "support/Render.h"

#include <QContextMenuEvent>
#include <QHBoxLayout>
#include <QMetaProperty>
#include <QPointer>
#include <QToolButton>
#include <QtTest>

#include <memory>

using Kestrel::Gui::PreviewImageLabel;
using TestSupport::ContextTranslator;
using TestSupport::sendMouse;

namespace {

QToolButton* starOf(const PreviewImageLabel& tile)
{
    return tile.findChild<QToolButton*>(QStringLiteral("starButton"), Qt::FindDirectChildrenOnly);
}
QToolButton* playOf(const PreviewImageLabel& tile)
{
    return tile.findChild<QToolButton*>(QStringLiteral("playButton"), Qt::FindDirectChildrenOnly);
}

void press(QWidget* button, Qt::MouseButton mouse = Qt::LeftButton)
{
    sendMouse(button, QEvent::MouseButtonPress, {3, 3}, mouse, mouse);
}
void release(QWidget* button, Qt::MouseButton mouse = Qt::LeftButton)
{
    sendMouse(button, QEvent::MouseButtonRelease, {3, 3}, mouse, Qt::NoButton);
}

/// A tile with both buttons shown, and spies on what it and its buttons emit.
struct ShownTile
{
    ShownTile()
    {
        tile.resize(200, 120);
        tile.setStarIsVisible(true);
        tile.setPlayIsVisible(true);
        tile.show();
    }

    PreviewImageLabel tile;
    QToolButton* star = starOf(tile);
    QToolButton* play = playOf(tile);
    QSignalSpy starClicked{&tile, &PreviewImageLabel::starClicked};
    QSignalSpy playClicked{&tile, &PreviewImageLabel::playClicked};
};

QString starText()
{
    return QStringLiteral("Applied effects");
}

} // namespace

class tst_PreviewImageLabel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void metaObject();
    void parentIsNotUsed();
    void children();
    void stylesByTag();
    void showsThePicture();
    void durationLabelIsTheOwners();
    void showsTheStar();
    void showsThePlayButton();
    void placesTheButtons_data();
    void placesTheButtons();
    void polishesBeforePlacing();
    void placesWhenResizedOnly();
    void reportsClicks_data();
    void reportsClicks();
    void buttonsSeeNoPressAndNoRelease();
    void theTileSeesNoClickOnAButton();
    void pressNeedsTheButtonEnabled();
    void releaseOnTheStarNeedsThePlayButton();
    void releaseOnTheStarIgnoresItsOwnState();
    void releaseOnPlayNeedsItEnabled();
    void releaseWithoutPress();
    void enablesThePlayButtonAlone();
    void noContextMenuOnTheButtons();
    void otherEventsPass();
    void strangersAreConsumedButNotClicked();
    void followsTheLanguage();
    void aSlotMayDeleteTheTile_data();
    void aSlotMayDeleteTheTile();
};

void tst_PreviewImageLabel::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_PreviewImageLabel::metaObject()
{
    const QMetaObject& meta = PreviewImageLabel::staticMetaObject;
    QCOMPARE(meta.className(), "Kestrel::Gui::PreviewImageLabel");
    QCOMPARE(meta.superClass(), &QLabel::staticMetaObject);
    QCOMPARE(meta.methodCount(), meta.methodOffset() + 2);
    const char* const signatures[] = {"starClicked()", "playClicked()"};
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(meta.method(meta.methodOffset() + i).methodType(), QMetaMethod::Signal);
        QCOMPARE(meta.method(meta.methodOffset() + i).methodSignature(), QByteArray(signatures[i]));
    }

    QCOMPARE(meta.propertyCount(), meta.propertyOffset() + 1);
    const QMetaProperty property = meta.property(meta.propertyOffset());
    QCOMPARE(property.name(), "starIsVisible");
    QCOMPARE(property.type(), QVariant::Bool);
    QVERIFY(property.isReadable() && property.isWritable());
    QVERIFY(!property.hasNotifySignal());
    const PreviewImageLabel tile;
    QVERIFY(property.isDesignable(&tile) && property.isScriptable(&tile) && property.isStored(&tile));
}

void tst_PreviewImageLabel::parentIsNotUsed()
{
    // Whoever makes a tile puts it into a layout, which gives it its parent; until then it has none.
    QWidget parent;
    QHBoxLayout layout(&parent);
    auto* const tile = new PreviewImageLabel(&parent);
    QVERIFY(!tile->parent());
    QVERIFY(tile->isWindow());
    QCOMPARE(tile->windowFlags(), QLabel().windowFlags());
    layout.addWidget(tile);
    QCOMPARE(tile->parentWidget(), &parent);
}

void tst_PreviewImageLabel::children()
{
    PreviewImageLabel tile;
    const QList<QWidget*> all = tile.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(all.size(), 3);
    const char* const names[] = {"starButton", "playButton", "durationLabel"};
    const char* const tags[] = {"star", "play", "duration"};
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(all.at(i)->objectName(), QString::fromLatin1(names[i]));
        QCOMPARE(all.at(i)->property("styleTag").toString(), QString::fromLatin1(tags[i]));
        QVERIFY(all.at(i)->isEnabled());
    }
    QCOMPARE(starOf(tile)->toolTip(), starText());
    QCOMPARE(playOf(tile)->toolTip(), QString());
    QVERIFY(starOf(tile)->isHidden());
    QVERIFY(playOf(tile)->isHidden());

    auto* const duration = tile.GetDurationLabel();
    QCOMPARE(duration, all.at(2));
    QVERIFY(!duration->isHidden());
    QCOMPARE(static_cast<int>(duration->alignment()), 0x84);
    QCOMPARE(duration->text(), QString());

    tile.show();
    QVERIFY(!starOf(tile)->isVisible() && !playOf(tile)->isVisible());
    QVERIFY(duration->isVisible());
}

void tst_PreviewImageLabel::stylesByTag()
{
    ShownTile t;
    t.tile.GetDurationLabel()->setGeometry(2, 90, 40, 20);
    t.tile.setStyleSheet(QStringLiteral("[styleTag] { border: none; }"
                                        "QToolButton[styleTag=\"star\"] { background: #ff0000; }"
                                        "QToolButton[styleTag=\"play\"] { background: #00ff00; }"
                                        "QLabel[styleTag=\"duration\"] { background: #0000ff; }"));
    const QImage picture = TestSupport::render(t.tile);
    QCOMPARE(picture.pixelColor(t.star->geometry().center()), QColor(Qt::red));
    QCOMPARE(picture.pixelColor(t.play->geometry().center()), QColor(Qt::green));
    QCOMPARE(picture.pixelColor(t.tile.GetDurationLabel()->geometry().center()), QColor(Qt::blue));
}

void tst_PreviewImageLabel::showsThePicture()
{
    PreviewImageLabel tile;
    QPixmap pixmap(60, 40);
    pixmap.fill(Qt::magenta);
    tile.setPixmap(pixmap);
    tile.GetDurationLabel()->hide();
    tile.resize(60, 40);
    QCOMPARE(TestSupport::render(tile).pixelColor(30, 20), QColor(Qt::magenta));
    QVERIFY(tile.sizeHint().width() >= 60 && tile.sizeHint().height() >= 40);
}

void tst_PreviewImageLabel::durationLabelIsTheOwners()
{
    PreviewImageLabel tile;
    QLabel* duration = tile.GetDurationLabel();
    duration->setText(QStringLiteral("1:23"));
    duration->setGeometry(5, 6, 70, 20);
    tile.show();
    tile.resize(tile.size() + QSize(40, 30));
    QCOMPARE(duration->text(), QStringLiteral("1:23"));
    QCOMPARE(duration->geometry(), QRect(5, 6, 70, 20));
}

void tst_PreviewImageLabel::showsTheStar()
{
    PreviewImageLabel tile;
    tile.resize(200, 120);
    QVERIFY(!tile.getStarIsVisible());
    tile.setStarIsVisible(true);
    QVERIFY(!tile.getStarIsVisible()); // a hidden tile shows nothing
    QVERIFY(!starOf(tile)->isHidden());
    tile.show();
    QVERIFY(tile.getStarIsVisible());
    QVERIFY(!tile.getPlayIsVisible());
    QCOMPARE(tile.property("starIsVisible"), QVariant(true));

    QVERIFY(tile.setProperty("starIsVisible", false));
    QVERIFY(!starOf(tile)->isVisible());
    QVERIFY(!tile.getStarIsVisible());

    tile.setStarIsVisible(true);
    tile.resize(220, 130);
    QCOMPARE(starOf(tile)->geometry().topRight(), QPoint(219, 9));
}

void tst_PreviewImageLabel::showsThePlayButton()
{
    PreviewImageLabel tile;
    tile.show();
    tile.setPlayIsVisible(true);
    QVERIFY(tile.getPlayIsVisible());
    QVERIFY(playOf(tile)->isVisible());
    QVERIFY(!tile.getStarIsVisible());
    tile.setPlayIsVisible(false);
    QVERIFY(!tile.getPlayIsVisible());
    tile.setPlayIsVisible(true);
    tile.hide();
    QVERIFY(!tile.getPlayIsVisible());
}

void tst_PreviewImageLabel::placesTheButtons_data()
{
    QTest::addColumn<QSize>("tileSize");
    QTest::addColumn<QSize>("buttonSize");
    // Each half is rounded down by itself, so an odd button in an even tile is not where its rounded middle would be.
    QTest::newRow("even in even") << QSize(200, 120) << QSize(30, 20);
    QTest::newRow("odd in even") << QSize(200, 120) << QSize(31, 21);
    QTest::newRow("even in odd") << QSize(201, 121) << QSize(30, 20);
    QTest::newRow("odd in odd") << QSize(201, 121) << QSize(31, 21);
    QTest::newRow("larger than the tile") << QSize(51, 41) << QSize(90, 81);
}

void tst_PreviewImageLabel::placesTheButtons()
{
    QFETCH(QSize, tileSize);
    QFETCH(QSize, buttonSize);
    ShownTile t;
    t.star->setFixedSize(buttonSize);
    t.play->setFixedSize(buttonSize);
    t.tile.resize(10, 10);
    t.tile.resize(tileSize);
    QCOMPARE(t.star->geometry(), QRect(QPoint(tileSize.width() - buttonSize.width(), 9), buttonSize));
    QCOMPARE(t.play->geometry(), QRect(QPoint(tileSize.width() / 2 - buttonSize.width() / 2,
                                              tileSize.height() / 2 - buttonSize.height() / 2),
                                       buttonSize));
}

void tst_PreviewImageLabel::polishesBeforePlacing()
{
    // A button that was never shown has no style yet: it gets the sizes of the sheet first.
    PreviewImageLabel tile;
    tile.setStyleSheet(QStringLiteral("QToolButton { border: none; padding: 0; margin: 0; }"
                                      "#starButton { min-width: 44px; max-width: 44px; }"
                                      "#playButton { min-width: 36px; max-width: 36px;"
                                      " min-height: 18px; max-height: 18px; }"));
    QResizeEvent event(QSize(200, 120), QSize());
    tile.resize(200, 120); // no event while the tile is hidden
    QCoreApplication::sendEvent(&tile, &event);
    QCOMPARE(starOf(tile)->width(), 44);
    QCOMPARE(starOf(tile)->pos(), QPoint(200 - 44, 9));
    QCOMPARE(playOf(tile)->size(), QSize(36, 18));
    QCOMPARE(playOf(tile)->pos(), QPoint(100 - 18, 60 - 9));
}

void tst_PreviewImageLabel::placesWhenResizedOnly()
{
    ShownTile t;
    t.star->move(1, 2);
    t.play->move(3, 4);
    t.tile.setText(QStringLiteral("text"));
    t.tile.setStarIsVisible(false);
    t.tile.setStarIsVisible(true);
    t.tile.setPlayIsVisible(true);
    QCOMPARE(t.star->pos(), QPoint(1, 2));
    QCOMPARE(t.play->pos(), QPoint(3, 4));
}

void tst_PreviewImageLabel::reportsClicks_data()
{
    QTest::addColumn<bool>("star");
    QTest::addColumn<int>("mouseButton");
    for (const bool star : {true, false}) {
        const char* const name = star ? "star" : "play";
        // Mouse buttons are not told apart.
        QTest::addRow("%s, left", name) << star << int(Qt::LeftButton);
        QTest::addRow("%s, right", name) << star << int(Qt::RightButton);
        QTest::addRow("%s, middle", name) << star << int(Qt::MiddleButton);
    }
}

void tst_PreviewImageLabel::reportsClicks()
{
    QFETCH(bool, star);
    QFETCH(int, mouseButton);
    const auto mouse = static_cast<Qt::MouseButton>(mouseButton);
    ShownTile t;
    QToolButton* const button = star ? t.star : t.play;
    QToolButton* const other = star ? t.play : t.star;
    bool downInSlot = true;
    connect(&t.tile, star ? &PreviewImageLabel::starClicked : &PreviewImageLabel::playClicked, this,
            [&] { downInSlot = button->isDown(); });

    press(button, mouse);
    QVERIFY(button->isDown());
    QVERIFY(!other->isDown());
    QCOMPARE(t.starClicked.count() + t.playClicked.count(), 0);
    release(button, mouse);
    QVERIFY(!button->isDown());
    QVERIFY(!downInSlot);
    QCOMPARE(t.starClicked.count(), star ? 1 : 0);
    QCOMPARE(t.playClicked.count(), star ? 0 : 1);
}

void tst_PreviewImageLabel::buttonsSeeNoPressAndNoRelease()
{
    ShownTile t;
    for (QToolButton* button : {t.star, t.play}) {
        QSignalSpy pressed(button, &QToolButton::pressed);
        QSignalSpy released(button, &QToolButton::released);
        QSignalSpy clicked(button, &QToolButton::clicked);
        press(button);
        release(button);
        QCOMPARE(pressed.count() + released.count() + clicked.count(), 0);
    }
}

void tst_PreviewImageLabel::theTileSeesNoClickOnAButton()
{
    ShownTile t;
    EventRecorder owner;
    t.tile.setParent(&owner);
    t.tile.show();
    for (QToolButton* button : {t.star, t.play}) {
        for (const bool enabled : {true, false}) {
            button->setEnabled(enabled);
            QMouseEvent down(QEvent::MouseButtonPress, {3, 3}, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
            QVERIFY(t.tile.eventFilter(button, &down));
            QMouseEvent up(QEvent::MouseButtonRelease, {3, 3}, Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
            QVERIFY(t.tile.eventFilter(button, &up));
            press(button);
            release(button);
        }
    }
    QCOMPARE(owner.count(QEvent::MouseButtonPress), 0);
    QCOMPARE(owner.count(QEvent::MouseButtonRelease), 0);
    press(t.tile.GetDurationLabel());
    QCOMPARE(owner.count(QEvent::MouseButtonPress), 1);
    t.tile.setParent(nullptr);
}

void tst_PreviewImageLabel::pressNeedsTheButtonEnabled()
{
    ShownTile t;
    for (QToolButton* button : {t.star, t.play}) {
        button->setEnabled(false);
        press(button);
        QVERIFY(!button->isDown());
        button->setEnabled(true);
    }
    // Each asks for its own state and not for the other's.
    t.play->setEnabled(false);
    press(t.star);
    QVERIFY(t.star->isDown());
    t.play->setEnabled(true);
    t.star->setEnabled(false);
    press(t.play);
    QVERIFY(t.play->isDown());
}

void tst_PreviewImageLabel::releaseOnTheStarNeedsThePlayButton()
{
    // A tile whose clip cannot be played reports no star either. The star stays pressed: the click is not over for it.
    ShownTile t;
    t.tile.SetItemsEnabled(false);
    press(t.star);
    release(t.star);
    QCOMPARE(t.starClicked.count() + t.playClicked.count(), 0);
    QVERIFY(t.star->isDown());
    QMouseEvent up(QEvent::MouseButtonRelease, {3, 3}, Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
    QVERIFY(t.tile.eventFilter(t.star, &up)); // consumed all the same

    t.tile.SetItemsEnabled(true);
    release(t.star);
    QCOMPARE(t.starClicked.count(), 1);
    QVERIFY(!t.star->isDown());
}

void tst_PreviewImageLabel::releaseOnTheStarIgnoresItsOwnState()
{
    // Owners that disable the star handle its clicks themselves; the release is reported as ever.
    ShownTile t;
    t.star->setEnabled(false);
    press(t.star);
    release(t.star);
    QCOMPARE(t.starClicked.count(), 1);
}

void tst_PreviewImageLabel::releaseOnPlayNeedsItEnabled()
{
    ShownTile t;
    press(t.play);
    t.play->setEnabled(false);
    t.play->setDown(true);
    release(t.play);
    QCOMPARE(t.playClicked.count(), 0);
    QVERIFY(t.play->isDown());
    t.play->setEnabled(true);
    t.star->setEnabled(false);
    release(t.play);
    QCOMPARE(t.playClicked.count(), 1);
}

void tst_PreviewImageLabel::releaseWithoutPress()
{
    ShownTile t;
    release(t.star);
    release(t.play);
    QCOMPARE(t.starClicked.count(), 1);
    QCOMPARE(t.playClicked.count(), 1);
}

void tst_PreviewImageLabel::enablesThePlayButtonAlone()
{
    // The star tells of effects, which a clip that cannot be played has too.
    ShownTile t;
    t.tile.SetItemsEnabled(false);
    QVERIFY(!t.play->isEnabled());
    QVERIFY(t.star->isEnabled());
    QVERIFY(t.tile.isEnabled() && t.tile.GetDurationLabel()->isEnabled());
    t.star->setEnabled(false);
    t.tile.SetItemsEnabled(true);
    QVERIFY(t.play->isEnabled());
    QVERIFY(!t.star->isEnabled());
}

void tst_PreviewImageLabel::noContextMenuOnTheButtons()
{
    ShownTile t;
    t.tile.setContextMenuPolicy(Qt::CustomContextMenu);
    QSignalSpy requested(&t.tile, &QWidget::customContextMenuRequested);
    const auto ask = [](QWidget* widget) {
        QContextMenuEvent event(QContextMenuEvent::Mouse, {3, 3}, widget->mapToGlobal({3, 3}));
        QCoreApplication::sendEvent(widget, &event);
    };
    ask(t.star);
    ask(t.play);
    QCOMPARE(requested.count(), 0);
    ask(t.tile.GetDurationLabel()); // which is not filtered
    QCOMPARE(requested.count(), 1);
}

void tst_PreviewImageLabel::otherEventsPass()
{
    ShownTile t;
    for (const QEvent::Type type :
         allEventTypesBut({QEvent::MouseButtonPress, QEvent::MouseButtonRelease, QEvent::ContextMenu})) {
        QEvent event(type);
        for (QToolButton* button : {t.star, t.play})
            QVERIFY2(!t.tile.eventFilter(button, &event), QByteArray::number(type).constData());
    }
    QCOMPARE(t.starClicked.count() + t.playClicked.count(), 0);
}

void tst_PreviewImageLabel::strangersAreConsumedButNotClicked()
{
    ShownTile t;
    QWidget stranger;
    stranger.installEventFilter(&t.tile);
    QMouseEvent down(QEvent::MouseButtonPress, {3, 3}, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QMouseEvent up(QEvent::MouseButtonRelease, {3, 3}, Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
    QVERIFY(t.tile.eventFilter(&stranger, &down));
    QVERIFY(t.tile.eventFilter(&stranger, &up));
    QVERIFY(!t.star->isDown() && !t.play->isDown());
    QCOMPARE(t.starClicked.count() + t.playClicked.count(), 0);
}

void tst_PreviewImageLabel::followsTheLanguage()
{
    PreviewImageLabel tile;
    {
        const ContextTranslator translator("Kestrel::Gui::PreviewImageLabel");
        QTRY_COMPARE(starOf(tile)->toolTip(), ContextTranslator::translated("Applied effects"));
        QCOMPARE(starOf(PreviewImageLabel())->toolTip(), ContextTranslator::translated("Applied effects"));
    }
    QTRY_COMPARE(starOf(tile)->toolTip(), starText());

    // Either button tells of the new language; the play button gets no text.
    for (QToolButton* button : {starOf(tile), playOf(tile)}) {
        starOf(tile)->setToolTip(QStringLiteral("changed"));
        QEvent event(QEvent::LanguageChange);
        QCoreApplication::sendEvent(button, &event);
        QCOMPARE(starOf(tile)->toolTip(), starText());
    }
    QCOMPARE(playOf(tile)->toolTip(), QString());
}

void tst_PreviewImageLabel::aSlotMayDeleteTheTile_data()
{
    QTest::addColumn<bool>("star");
    QTest::newRow("star") << true;
    QTest::newRow("play") << false;
}

void tst_PreviewImageLabel::aSlotMayDeleteTheTile()
{
    QFETCH(bool, star);
    QPointer<PreviewImageLabel> tile = new PreviewImageLabel;
    tile->setStarIsVisible(true);
    tile->setPlayIsVisible(true);
    tile->show();
    connect(tile, star ? &PreviewImageLabel::starClicked : &PreviewImageLabel::playClicked, [&tile] { delete tile; });
    QToolButton* const button = star ? starOf(*tile) : playOf(*tile);
    press(button);
    release(button);
    QVERIFY(!tile);
}

QTEST_MAIN(tst_PreviewImageLabel)
#include "tst_PreviewImageLabel.moc"
