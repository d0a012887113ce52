#include <KQt/Ui/HighlightFrame.h>
#include <KQt/Ui/PreviewImageLabel.h>
#include <KQt/Ui/StyledDockWidgetTitlebar.h>

#include "support/AccessibleUpdates.h"
#include "support/ContextTranslator.h"
#include "support/TestHint.h"

#include <QAbstractButton>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QToolButton>
#include <QVBoxLayout>

#include <QtTest>

using Kestrel::Gui::HighlightFrame;
using Kestrel::Gui::PreviewImageLabel;
using Kestrel::Gui::StyledDockWidgetTitlebar;
using namespace TestSupport;

namespace {

QAbstractButton* buttonOf(const QWidget& widget, const char* name)
{
    return widget.findChild<QAbstractButton*>(QLatin1String(name));
}

} // namespace

/// What assistive technology is told about tiles, title bars, frames and hints.
class tst_AccessibilityTiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tileButtonsHaveNames();
    void tileButtonsCanBePressed();
    void disabledTileButtonCannotBePressed();
    void titleBarIsCalledByItsTitle();
    void titleBarButtonsHaveNames();
    void titleBarButtonsCanBePressed();
    void otherButtonsAreQtsBusiness();
    void highlightFrameIsIgnored();
    void hintIsAMessage();
    void hintIsAnnouncedWhenItIsShown();
};

void tst_AccessibilityTiles::tileButtonsHaveNames()
{
    PreviewImageLabel tile;
    QCOMPARE(nameOf(buttonOf(tile, "starButton")), QStringLiteral("Applied effects"));
    QCOMPARE(nameOf(buttonOf(tile, "playButton")), QStringLiteral("Play"));
    QCOMPARE(descriptionOf(buttonOf(tile, "starButton")), QString());
    QCOMPARE(accessible(buttonOf(tile, "playButton"))->role(), QAccessible::PushButton);
    const ContextTranslator translator("Kestrel::Gui::PreviewImageLabel");
    QCOMPARE(nameOf(buttonOf(tile, "playButton")), QStringLiteral("<Play>"));
    buttonOf(tile, "playButton")->setToolTip(QStringLiteral("Preview"));
    QCOMPARE(nameOf(buttonOf(tile, "playButton")), QStringLiteral("Preview"));
}

void tst_AccessibilityTiles::tileButtonsCanBePressed()
{
    PreviewImageLabel tile;
    tile.resize(100, 80);
    tile.show();
    tile.setStarIsVisible(true);
    tile.setPlayIsVisible(true);
    QSignalSpy star(&tile, &PreviewImageLabel::starClicked);
    QSignalSpy play(&tile, &PreviewImageLabel::playClicked);
    press(accessible(buttonOf(tile, "starButton")));
    QTRY_COMPARE(star.count(), 1);
    QCOMPARE(play.count(), 0);
    press(accessible(buttonOf(tile, "playButton")));
    QTRY_COMPARE(play.count(), 1);
    QVERIFY(!accessible(buttonOf(tile, "playButton"))->state().pressed);
}

void tst_AccessibilityTiles::disabledTileButtonCannotBePressed()
{
    PreviewImageLabel tile;
    tile.show();
    tile.setPlayIsVisible(true);
    tile.SetItemsEnabled(false);
    QSignalSpy play(&tile, &PreviewImageLabel::playClicked);
    QVERIFY(accessible(buttonOf(tile, "playButton"))->state().disabled);
    press(accessible(buttonOf(tile, "playButton")));
    QCoreApplication::processEvents();
    QCOMPARE(play.count(), 0);
}

void tst_AccessibilityTiles::titleBarIsCalledByItsTitle()
{
    StyledDockWidgetTitlebar bar;
    QCOMPARE(accessible(&bar)->role(), QAccessible::TitleBar);
    QCOMPARE(nameOf(&bar), QStringLiteral("Playlist"));
    bar.setAccessibleName(QStringLiteral("Clips"));
    QCOMPARE(nameOf(&bar), QStringLiteral("Clips"));
}

void tst_AccessibilityTiles::titleBarButtonsHaveNames()
{
    StyledDockWidgetTitlebar bar;
    QCOMPARE(nameOf(buttonOf(bar, "Restore")), QStringLiteral("Unpin playlist"));
    QCOMPARE(nameOf(buttonOf(bar, "Close")), QStringLiteral("Close"));
    bar.SetRestoreButtonTooltip(QStringLiteral("Pin playlist"));
    QCOMPARE(nameOf(buttonOf(bar, "Restore")), QStringLiteral("Pin playlist"));
}

void tst_AccessibilityTiles::titleBarButtonsCanBePressed()
{
    StyledDockWidgetTitlebar bar;
    bar.show();
    QSignalSpy closed(&bar, &StyledDockWidgetTitlebar::Close);
    QSignalSpy detached(&bar, &StyledDockWidgetTitlebar::Detach);
    press(accessible(buttonOf(bar, "Restore")));
    QTRY_COMPARE(detached.count(), 1);
    press(accessible(buttonOf(bar, "Close")));
    QTRY_COMPARE(closed.count(), 1);
}

void tst_AccessibilityTiles::otherButtonsAreQtsBusiness()
{
    PreviewImageLabel tile; // installs the factory
    QToolButton tool;
    tool.setToolTip(QStringLiteral("tip"));
    QCOMPARE(nameOf(&tool), QString());
    QPushButton push;
    push.setToolTip(QStringLiteral("tip"));
    QCOMPARE(nameOf(&push), QString());
}

void tst_AccessibilityTiles::highlightFrameIsIgnored()
{
    QWidget window;
    auto* const target = new QPushButton(QStringLiteral("target"), &window);
    window.show();
    auto* const frame = new HighlightFrame(target);
    frame->setAccessibleName(QStringLiteral("frame"));
    QTRY_VERIFY(frame->isVisible());
    QAccessibleInterface* const shown = accessible(frame);
    QCOMPARE(shown->role(), QAccessible::NoRole);
    QVERIFY(shown->state().invisible);
    QVERIFY(!shown->state().focusable);
    QCOMPARE(shown->childCount(), 0);
    QVERIFY(shown->actionInterface()->actionNames().isEmpty());
    for (const auto kind : {QAccessible::Name, QAccessible::Description, QAccessible::Value, QAccessible::Help})
        QCOMPARE(shown->text(kind), QString());
}

void tst_AccessibilityTiles::hintIsAMessage()
{
    TestHint hint;
    QWidget* const page = hint.addPage(QStringLiteral("first"), QStringLiteral("target"));
    auto* const layout = new QVBoxLayout(page);
    layout->addWidget(new QLabel(QStringLiteral("<b>Colours</b>")));
    layout->addWidget(new QLabel(QStringLiteral("are chosen here.")));
    auto* const hidden = new QLabel(QStringLiteral("not now"));
    hidden->hide();
    layout->addWidget(hidden);
    QWidget* const second = hint.addPage(QStringLiteral("second"), QStringLiteral("target"));
    new QLabel(QStringLiteral("another page"), second);
    QCOMPARE(accessible(&hint)->role(), QAccessible::AlertMessage);
    QCOMPARE(nameOf(&hint), QStringLiteral("Colours are chosen here."));
    hint.setAccessibleName(QStringLiteral("Hint"));
    QCOMPARE(nameOf(&hint), QStringLiteral("Hint"));
}

void tst_AccessibilityTiles::hintIsAnnouncedWhenItIsShown()
{
    REQUIRE_ASSISTIVE_TECHNOLOGY();
    QWidget window;
    window.resize(400, 300);
    auto* const target = new QPushButton(QStringLiteral("target"), &window);
    window.show();
    auto* const hint = new TestHint; // becomes the window's
    hint->addPage(QStringLiteral("first"), QStringLiteral("target"), QStringLiteral("bottom"));

    const AccessibleUpdates updates;
    hint->start({target});
    QCOMPARE(updates.count(hint, QAccessible::Alert), 0);
    QTRY_VERIFY(hint->isVisible());
    QCOMPARE(updates.count(hint, QAccessible::Alert), 1);
    target->move(40, 0);
    QTRY_COMPARE(hint->getTargetWidget()->x(), 37);
    QCoreApplication::processEvents();
    QCOMPARE(updates.count(hint, QAccessible::Alert), 1); // moving is no news
    hint->finish();
    QCOMPARE(updates.count(hint, QAccessible::Alert), 1);
}

QTEST_MAIN(tst_AccessibilityTiles)
#include "tst_AccessibilityTiles.moc"
