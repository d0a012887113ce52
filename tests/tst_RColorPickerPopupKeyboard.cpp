#include <KQt/Ui/RColorPicker.h>
#include <KQt/Ui/RColorPickerPopup.h>

#include "support/AccessibleUpdates.h"
#include "support/Render.h"

#include <QColorDialog>
#include <QCursor>
#include <QImage>
#include <QSet>
#include <QShortcut>
#include <QSignalSpy>

#include <QtTest>

#include <memory>

using Kestrel::Gui::RColorPicker;
using Kestrel::Gui::RColorPickerPopup;
using namespace TestSupport;

namespace {

constexpr int none = -1;
constexpr int defaultItem = 0;
constexpr int moreItem = 41;

/// The item in a row and a column of the palette, counted from 0.
constexpr int cell(int row, int column)
{
    return 1 + row * 8 + column;
}

/// A picker with its popup open, and the cursor elsewhere.
struct OpenPicker
{
    OpenPicker()
    {
        QCursor::setPos(1, 1);
        picker.move(300, 100);
        picker.show();
        picker.showPopup();
    }

    RColorPickerPopup& popup() const { return picker.GetPickerPopup(); }

    void press(std::initializer_list<Qt::Key> keys) const
    {
        for (const Qt::Key key : keys)
            QTest::keyClick(&popup(), key);
    }

    /// The item with the keyboard's frame.
    int framed() const
    {
        for (int i = 0; i < 42; ++i) {
            if (accessible(&popup())->child(i)->state().focused)
                return i;
        }
        return none;
    }

    QImage picture() const { return TestSupport::render(popup()).convertToFormat(QImage::Format_RGB32); }

    RColorPicker picker;
};

} // namespace

/// The palette popup by keyboard.
class tst_RColorPickerPopupKeyboard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void noFrameBeforeAKey();
    void theFirstKeyShowsTheColorOfThePicker();
    void theFirstKeyShowsDefaultWithoutSuchACell();
    void arrowsMove_data();
    void arrowsMove();
    void homeAndEnd();
    void theColumnIsKeptBehindAButton();
    void everyItemIsReached();
    void arrowsPointWhereTheyGoInRightToLeftLayouts();
    void returnChooses_data();
    void returnChooses();
    void returnWithoutAFrameChoosesNothing();
    void outcomesAreThoseOfTheMouse();
    void moreOpensTheDialogAndKeepsTheFrame();
    void escapeCloses();
    void modifiersAreLeftAlone();
    void aShortcutDoesNotTakeTheKeys();
    void theMouseTakesTheFrameAway();
    void theFrameIsGoneAfterReopening();
    void theFrameIsPainted();
    void theRestIsPaintedAsEver();
    void thePopupHasNoChildren();
    void aSlotMayDeleteThePicker();
};

void tst_RColorPickerPopupKeyboard::noFrameBeforeAKey()
{
    const OpenPicker open;
    QCOMPARE(open.framed(), none);
}

void tst_RColorPickerPopupKeyboard::theFirstKeyShowsTheColorOfThePicker()
{
    OpenPicker open;
    open.picker.setColor(QColor(0, 147, 0));
    open.press({Qt::Key_Left});
    QCOMPARE(open.framed(), cell(1, 3));
}

void tst_RColorPickerPopupKeyboard::theFirstKeyShowsDefaultWithoutSuchACell()
{
    const OpenPicker open;
    open.press({Qt::Key_Down});
    QCOMPARE(open.framed(), defaultItem);

    RColorPickerPopup alone;
    alone.show();
    QTest::keyClick(&alone, Qt::Key_Right);
    QVERIFY(accessible(&alone)->child(defaultItem)->state().focused);
}

void tst_RColorPickerPopupKeyboard::arrowsMove_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("to");
    const auto row = [](const char* name, int from, Qt::Key key, int to) {
        QTest::newRow(name) << from << int(key) << to;
    };
    row("right", cell(2, 3), Qt::Key_Right, cell(2, 4));
    row("left", cell(2, 3), Qt::Key_Left, cell(2, 2));
    row("up", cell(2, 3), Qt::Key_Up, cell(1, 3));
    row("down", cell(2, 3), Qt::Key_Down, cell(3, 3));
    row("right at the edge", cell(2, 7), Qt::Key_Right, cell(2, 7));
    row("left at the edge", cell(2, 0), Qt::Key_Left, cell(2, 0));
    row("up from the first row", cell(0, 5), Qt::Key_Up, defaultItem);
    row("down from the last row", cell(4, 5), Qt::Key_Down, moreItem);
    row("up from default", defaultItem, Qt::Key_Up, defaultItem);
    row("left from default", defaultItem, Qt::Key_Left, defaultItem);
    row("right from default", defaultItem, Qt::Key_Right, defaultItem);
    row("down from more", moreItem, Qt::Key_Down, moreItem);
    row("left from more", moreItem, Qt::Key_Left, moreItem);
    row("right from more", moreItem, Qt::Key_Right, moreItem);
}

void tst_RColorPickerPopupKeyboard::arrowsMove()
{
    QFETCH(int, from);
    QFETCH(int, key);
    QFETCH(int, to);
    const OpenPicker open;
    act(accessible(&open.popup())->child(from), QAccessibleActionInterface::setFocusAction());
    QTest::keyClick(&open.popup(), Qt::Key(key));
    QCOMPARE(open.framed(), to);
}

void tst_RColorPickerPopupKeyboard::homeAndEnd()
{
    const OpenPicker open;
    open.press({Qt::Key_End});
    QCOMPARE(open.framed(), moreItem);
    open.press({Qt::Key_Home});
    QCOMPARE(open.framed(), defaultItem);
}

void tst_RColorPickerPopupKeyboard::theColumnIsKeptBehindAButton()
{
    const OpenPicker open;
    act(accessible(&open.popup())->child(cell(4, 6)), QAccessibleActionInterface::setFocusAction());
    open.press({Qt::Key_Down, Qt::Key_Up});
    QCOMPARE(open.framed(), cell(4, 6));
    open.press({Qt::Key_Home, Qt::Key_Down});
    QCOMPARE(open.framed(), cell(0, 6));
}

void tst_RColorPickerPopupKeyboard::everyItemIsReached()
{
    const OpenPicker open;
    QSet<int> reached;
    const auto go = [&](Qt::Key key) {
        open.press({key});
        reached.insert(open.framed());
    };
    go(Qt::Key_Home);
    for (int row = 0; row < 5; ++row) {
        go(Qt::Key_Down);
        for (int column = 1; column < 8; ++column)
            go(row % 2 == 0 ? Qt::Key_Right : Qt::Key_Left);
    }
    go(Qt::Key_Down);
    QCOMPARE(reached.size(), 42);
    QVERIFY(!reached.contains(none));
}

void tst_RColorPickerPopupKeyboard::arrowsPointWhereTheyGoInRightToLeftLayouts()
{
    // The palette is painted the same way in both directions, so a key that were mirrored would point away from where
    // the frame goes.
    OpenPicker open;
    open.popup().setLayoutDirection(Qt::RightToLeft);
    QAccessibleInterface* const list = accessible(&open.popup());
    act(list->child(cell(2, 3)), QAccessibleActionInterface::setFocusAction());
    const int before = list->focusChild()->rect().left();
    open.press({Qt::Key_Right});
    QVERIFY(list->focusChild()->rect().left() > before);
    open.press({Qt::Key_Left, Qt::Key_Left});
    QVERIFY(list->focusChild()->rect().left() < before);
}

void tst_RColorPickerPopupKeyboard::returnChooses_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Enter") << int(Qt::Key_Enter);
    QTest::newRow("Space") << int(Qt::Key_Space);
}

void tst_RColorPickerPopupKeyboard::returnChooses()
{
    QFETCH(int, key);
    const OpenPicker open;
    QSignalSpy changed(&open.picker, &RColorPicker::changedColor);
    open.press({Qt::Key_Home, Qt::Key_Down, Qt::Key_Right, Qt::Key(key)});
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.constFirst().constFirst().value<QColor>(), QColor(165, 42, 0));
    QVERIFY(!open.popup().isVisible());
}

void tst_RColorPickerPopupKeyboard::returnWithoutAFrameChoosesNothing()
{
    const OpenPicker open;
    QSignalSpy selected(&open.popup(), &RColorPickerPopup::selected);
    open.press({Qt::Key_Return});
    QCOMPARE(selected.count(), 0);
    QVERIFY(open.popup().isVisible());
}

void tst_RColorPickerPopupKeyboard::outcomesAreThoseOfTheMouse()
{
    const auto outcome = [](auto choose) {
        const OpenPicker open;
        open.picture(); // the popup knows its cells from painting them
        QStringList happened;
        QObject::connect(&open.popup(), &RColorPickerPopup::selected, &open.popup(),
                         [&](const QColor& color) { happened.append(color.name()); });
        QObject::connect(&open.popup(), &RColorPickerPopup::closed, &open.popup(),
                         [&] { happened.append(QStringLiteral("closed")); });
        choose(open);
        happened.append(open.picker.color().name());
        return happened;
    };
    const QStringList byMouse = outcome([](const OpenPicker& open) {
        QTest::mousePress(&open.popup(), Qt::LeftButton, Qt::NoModifier, QPoint(30, 40));
    });
    const QStringList byKeyboard = outcome([](const OpenPicker& open) {
        open.press({Qt::Key_Home, Qt::Key_Down, Qt::Key_Right, Qt::Key_Return});
    });
    QCOMPARE(byMouse.size(), 3);
    QCOMPARE(byKeyboard, byMouse);
}

void tst_RColorPickerPopupKeyboard::moreOpensTheDialogAndKeepsTheFrame()
{
    const OpenPicker open;
    bool opened = false;
    QTimer closer;
    QObject::connect(&closer, &QTimer::timeout, &closer, [&] {
        if (auto* const dialog = qobject_cast<QColorDialog*>(QApplication::activeModalWidget())) {
            opened = true;
            dialog->reject();
        }
    });
    closer.start(1);
    open.press({Qt::Key_End, Qt::Key_Return});
    QVERIFY(opened);
    if (open.popup().isVisible())
        QCOMPARE(open.framed(), moreItem);
}

void tst_RColorPickerPopupKeyboard::escapeCloses()
{
    const OpenPicker open;
    QSignalSpy closed(&open.popup(), &RColorPickerPopup::closed);
    QSignalSpy selected(&open.popup(), &RColorPickerPopup::selected);
    open.press({Qt::Key_Home, Qt::Key_Escape});
    QVERIFY(!open.popup().isVisible());
    QCOMPARE(closed.count(), 1);
    QCOMPARE(selected.count(), 0);
}

void tst_RColorPickerPopupKeyboard::modifiersAreLeftAlone()
{
    const OpenPicker open;
    QTest::keyClick(&open.popup(), Qt::Key_Right, Qt::ControlModifier);
    QCOMPARE(open.framed(), none);
    QTest::keyClick(&open.popup(), Qt::Key_Right, Qt::KeypadModifier);
    QCOMPARE(open.framed(), defaultItem);
}

void tst_RColorPickerPopupKeyboard::aShortcutDoesNotTakeTheKeys()
{
    const OpenPicker open;
    const auto overridden = [&](Qt::Key key) {
        QKeyEvent event(QEvent::ShortcutOverride, key, Qt::NoModifier);
        event.ignore();
        QCoreApplication::sendEvent(&open.popup(), &event);
        return event.isAccepted();
    };
    QVERIFY(overridden(Qt::Key_Home));
    QVERIFY(overridden(Qt::Key_Return));
    QVERIFY(!overridden(Qt::Key_A));
}

void tst_RColorPickerPopupKeyboard::theMouseTakesTheFrameAway()
{
    const OpenPicker open;
    open.press({Qt::Key_Home});
    QTest::mousePress(&open.popup(), Qt::LeftButton, Qt::NoModifier, QPoint(3, 60));
    QVERIFY(open.popup().isVisible());
    QCOMPARE(open.framed(), none);
}

void tst_RColorPickerPopupKeyboard::theFrameIsGoneAfterReopening()
{
    OpenPicker open;
    open.press({Qt::Key_Home, Qt::Key_Escape});
    open.picker.showPopup();
    QCOMPARE(open.framed(), none);
}

void tst_RColorPickerPopupKeyboard::theFrameIsPainted()
{
    const OpenPicker open;
    QPalette palette = open.popup().palette();
    palette.setColor(QPalette::WindowText, QColor(1, 200, 3));
    open.popup().setPalette(palette);
    const QImage before = open.picture();

    act(accessible(&open.popup())->child(cell(0, 0)), QAccessibleActionInterface::setFocusAction());
    const QImage onCell = open.picture();
    // Two pixels around the cell at (8, 34), which reaches to (20, 46) with its outline.
    for (const QPoint corner : {QPoint(6, 32), QPoint(7, 33), QPoint(22, 48), QPoint(21, 47), QPoint(6, 48)})
        QCOMPARE(onCell.pixelColor(corner), QColor(1, 200, 3));
    for (const QPoint inside : {QPoint(8, 34), QPoint(14, 40), QPoint(20, 46)})
        QCOMPARE(onCell.pixelColor(inside), before.pixelColor(inside));
    QCOMPARE(onCell.pixelColor(5, 31), before.pixelColor(5, 31));

    open.press({Qt::Key_Home});
    const QImage onDefault = open.picture();
    QCOMPARE(onDefault.pixelColor(2, 3), QColor(1, 200, 3));
    QCOMPARE(onDefault.pixelColor(138, 27), QColor(1, 200, 3));
    QCOMPARE(onDefault.pixelColor(4, 5), before.pixelColor(4, 5));
    QCOMPARE(onDefault.pixelColor(6, 32), before.pixelColor(6, 32));
}

void tst_RColorPickerPopupKeyboard::theRestIsPaintedAsEver()
{
    const OpenPicker open;
    const QImage before = open.picture();
    open.press({Qt::Key_Home, Qt::Key_Down});
    const QRect frame(6, 32, 17, 17);
    const QImage after = open.picture();
    QVERIFY(after != before);
    for (int y = 0; y < before.height(); ++y) {
        for (int x = 0; x < before.width(); ++x) {
            if (!frame.contains(x, y))
                QCOMPARE(after.pixel(x, y), before.pixel(x, y));
        }
    }
    open.popup().hide();
    open.popup().show();
    QCOMPARE(open.picture(), before);
}

void tst_RColorPickerPopupKeyboard::thePopupHasNoChildren()
{
    const RColorPickerPopup popup;
    QVERIFY(popup.children().isEmpty());
}

void tst_RColorPickerPopupKeyboard::aSlotMayDeleteThePicker()
{
    auto open = std::make_unique<OpenPicker>();
    QObject::connect(&open->picker, &RColorPicker::changedColor, qApp, [&] { open.reset(); });
    QTest::keyClick(&open->popup(), Qt::Key_Home);
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QCoreApplication::sendEvent(&open->popup(), &press);
    QVERIFY(!open);
}

QTEST_MAIN(tst_RColorPickerPopupKeyboard)
#include "tst_RColorPickerPopupKeyboard.moc"
