#include <KQt/Ui/RColorPicker.h>
#include <KQt/Ui/RColorPickerPopup.h>

#include "support/ContextTranslator.h"
#include "support/NamedPaletteListing.h"
#include "support/Render.h"

#include <QAbstractSpinBox>
#include <QColorDialog>
#include <QCursor>
#include <QDialogButtonBox>
#include <QMetaProperty>
#include <QPushButton>
#include <QSignalSpy>
#include <QTimer>

#include <QtTest>

#include <memory>

using Kestrel::Gui::RColorPicker;
using Kestrel::Gui::RColorPickerPopup;
using TestSupport::ContextTranslator;
using TestSupport::listedColors;
using TestSupport::render;

namespace {

QRect listedCell(int index)
{
    return {index % 8 * 16 + 8, index / 8 * 16 + 34, 12, 12};
}

const QPoint onMore(70, 130);
const QPoint onDefault(70, 15);
const QPoint onNothing(3, 60);

/// A press as the system sends it; QTest would turn the corner (0, 0) into the middle.
void press(QWidget& widget, const QPointF& position)
{
    QMouseEvent event(QEvent::MouseButtonPress, position, widget.mapToGlobal(position.toPoint()), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
}

/// Shows the popup away from the cursor, so that nothing is hovered.
void showAwayFromCursor(RColorPickerPopup& popup)
{
    QCursor::setPos(1, 1);
    popup.move(300, 300);
    popup.show();
    QVERIFY(QTest::qWaitForWindowExposed(&popup));
    QCoreApplication::processEvents();
}

/// Runs @p operate on the colour dialog as soon as it is open.
template <typename Operate>
void withDialog(Operate operate)
{
    auto* timer = new QTimer(qApp);
    timer->setInterval(5);
    QObject::connect(timer, &QTimer::timeout, qApp, [timer, operate] {
        auto* dialog = qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        delete timer;
        operate(dialog);
    });
    timer->start();
}

struct Record
{
    QStringList entries;

    explicit Record(RColorPickerPopup& popup)
    {
        QObject::connect(&popup, &RColorPickerPopup::selected, &popup, [this, &popup](const QColor& color) {
            entries << QStringLiteral("selected %1%2")
                           .arg(color.name(), popup.isVisible() ? QString() : QStringLiteral(" hidden"));
        });
        QObject::connect(&popup, &RColorPickerPopup::closed, &popup, [this] { entries << QStringLiteral("closed"); });
    }
};

} // namespace

class tst_RColorPickerPopup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void defaults();
    void metaObject();
    void propertiesReadBack();
    void paintsFrameCellsAndButtons();
    void paintsTranslatedTexts();
    void buttonsFollowTheWidth();
    void hoveredCellIsFramedAndRemembered();
    void hoveredButtonIsFilled();
    void buttonWithoutHover();
    void buttonUnderCursorKeepsPenForOutline();
    void pressOnEachCellSelectsIt();
    void pressBetweenCellsSelectsNothing();
    void pressBeforeFirstPaintingSelectsNothing();
    void pressOutsideClosesAndReportsTwice();
    void pressOnDefault();
    void positionsAreWholeOnDefaultAndExactOnMore();
    void dialogStartsWithHoverColorAndIsStyled();
    void acceptedDialogSelects();
    void cancelledDialogKeepsItsColorForTheNextOne();
    void everyHideReportsClosed();
    void deletedFromItsOwnSignals();
    void deletedWhileDialogIsOpen();
};

void tst_RColorPickerPopup::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_RColorPickerPopup::defaults()
{
    RColorPickerPopup popup;
    QCOMPARE(popup.size(), QSize(140, 145));
    QCOMPARE(popup.windowType(), Qt::Popup);
    QCOMPARE(popup.frameShape(), QFrame::StyledPanel);
    QCOMPARE(popup.frameShadow(), QFrame::Plain);
    QCOMPARE(popup.ButtonNormalColor(), QColor(Qt::lightGray));
    QCOMPARE(popup.ButtonHoverColor(), QColor(Qt::yellow));
    QCOMPARE(popup.ButtonNormalTextColor(), QColor(Qt::black));
    QCOMPARE(popup.ButtonHoverTextColor(), QColor(Qt::blue));
    QCOMPARE(popup.BorderDialogColor(), popup.palette().color(QPalette::Text));
    QCOMPARE(popup.BorderButtonColor(), QColor(Qt::black));
    QCOMPARE(popup.BorderSmallButtonColor(), QColor(Qt::darkGray));
}

void tst_RColorPickerPopup::metaObject()
{
    const QMetaObject& meta = RColorPickerPopup::staticMetaObject;
    QCOMPARE(meta.className(), "Kestrel::Gui::RColorPickerPopup");
    QCOMPARE(meta.superClass(), &QFrame::staticMetaObject);
    const QStringList expected = {QStringLiteral("ButtonNormalColor"),     QStringLiteral("ButtonHoverColor"),
                                  QStringLiteral("ButtonNormalTextColor"), QStringLiteral("ButtonHoverTextColor"),
                                  QStringLiteral("BorderDialogColor"),     QStringLiteral("BorderButtonColor"),
                                  QStringLiteral("BorderSmallButtonColor")};
    QStringList names;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        const QMetaProperty property = meta.property(i);
        names << QString::fromLatin1(property.name());
        QCOMPARE(property.userType(), int(QMetaType::QColor));
        QVERIFY(property.isReadable() && property.isWritable() && !property.hasNotifySignal());
    }
    QCOMPARE(names, expected);
    QCOMPARE(meta.method(meta.methodOffset()).methodSignature(), QByteArray("selected(QColor)"));
    QCOMPARE(meta.method(meta.methodOffset() + 1).methodSignature(), QByteArray("closed()"));
}

void tst_RColorPickerPopup::propertiesReadBack()
{
    RColorPickerPopup popup;
    const QMetaObject& meta = *popup.metaObject();
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i)
        QVERIFY(meta.property(i).write(&popup, QColor(i, 2 * i, 1)));
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i)
        QCOMPARE(meta.property(i).read(&popup).value<QColor>(), QColor(i, 2 * i, 1));
}

void tst_RColorPickerPopup::paintsFrameCellsAndButtons()
{
    RColorPickerPopup popup;
    popup.SetBorderDialogColor(Qt::red);
    popup.SetBorderSmallButtonColor(Qt::green);
    popup.SetBorderButtonColor(Qt::cyan);
    popup.SetButtonNormalColor(Qt::magenta);
    showAwayFromCursor(popup);
    const QImage image = render(popup);

    for (const QPoint& corner : {QPoint(0, 0), QPoint(139, 0), QPoint(0, 144), QPoint(139, 144)})
        QCOMPARE(image.pixelColor(corner), QColor(Qt::red));
    QVERIFY(image.pixelColor(1, 1) != QColor(Qt::red));

    for (int i = 0; i < 40; ++i) {
        const QRect cell = listedCell(i);
        const QColor color(listedColors[i].red, listedColors[i].green, listedColors[i].blue);
        QCOMPARE(image.pixelColor(cell.topLeft()), QColor(Qt::green));
        QCOMPARE(image.pixelColor(cell.topLeft() + QPoint(12, 12)), QColor(Qt::green)); // a pen's outline is one more
        QCOMPARE(image.pixelColor(cell.topLeft() + QPoint(1, 1)), color);
        QCOMPARE(image.pixelColor(cell.topLeft() + QPoint(11, 11)), color);
        QVERIFY(image.pixelColor(cell.topLeft() - QPoint(2, 2)) != QColor(Qt::blue));
    }

    for (int top : {5, 119}) {
        QCOMPARE(image.pixelColor(4, top), QColor(Qt::cyan));
        QCOMPARE(image.pixelColor(4 + 132, top + 20), QColor(Qt::cyan));
        QCOMPARE(image.pixelColor(5, top + 1), QColor(Qt::magenta));
        QCOMPARE(image.pixelColor(4 + 131, top + 19), QColor(Qt::magenta));
    }
}

void tst_RColorPickerPopup::paintsTranslatedTexts()
{
    RColorPickerPopup popup;
    showAwayFromCursor(popup);
    const QImage english = render(popup);
    const ContextTranslator translator("Kestrel::Gui::RColorPickerPopup");
    const QImage translated = render(popup);
    QVERIFY(english.copy(4, 5, 133, 21) != translated.copy(4, 5, 133, 21));
    QVERIFY(english.copy(4, 119, 133, 21) != translated.copy(4, 119, 133, 21));
    QCOMPARE(RColorPickerPopup::tr("Default"), ContextTranslator::translated("Default"));
}

void tst_RColorPickerPopup::buttonsFollowTheWidth()
{
    RColorPickerPopup popup;
    popup.SetBorderButtonColor(Qt::cyan);
    popup.resize(200, 200);
    showAwayFromCursor(popup);
    const QImage image = render(popup);
    QCOMPARE(image.pixelColor(4 + 192, 5), QColor(Qt::cyan));
    QCOMPARE(image.pixelColor(4 + 192, 119), QColor(Qt::cyan)); // the height changes nothing
}

void tst_RColorPickerPopup::hoveredCellIsFramedAndRemembered()
{
    RColorPicker picker;
    RColorPickerPopup& popup = picker.GetPickerPopup();
    showAwayFromCursor(popup);
    const int index = 18;
    const QRect cell = listedCell(index);
    QCursor::setPos(popup.mapToGlobal(cell.center()));
    if (QCursor::pos() != popup.mapToGlobal(cell.center()))
        QSKIP("the platform does not place the cursor");
    const QImage image = render(popup);
    QCOMPARE(image.pixelColor(cell.topLeft() - QPoint(2, 2)), QColor(Qt::blue));
    QCOMPARE(image.pixelColor(cell.topLeft() + QPoint(14, 14)), QColor(Qt::blue));
    QVERIFY(image.pixelColor(listedCell(index + 1).topLeft() + QPoint(14, 14)) != QColor(Qt::blue));

    QColor initial;
    withDialog([&initial](QColorDialog* dialog) {
        initial = dialog->currentColor();
        dialog->reject();
    });
    press(popup, onMore);
    QCOMPARE(initial, QColor(50, 205, 50));
    QCursor::setPos(1, 1);
}

void tst_RColorPickerPopup::hoveredButtonIsFilled()
{
    RColorPickerPopup popup;
    showAwayFromCursor(popup);
    QCursor::setPos(popup.mapToGlobal(onMore));
    if (QCursor::pos() != popup.mapToGlobal(onMore))
        QSKIP("the platform does not place the cursor");
    const QImage image = render(popup);
    QCOMPARE(image.pixelColor(6, 121), QColor(Qt::yellow));
    QCOMPARE(image.pixelColor(6, 7), QColor(Qt::lightGray));
    QCursor::setPos(1, 1);
}

void tst_RColorPickerPopup::buttonWithoutHover()
{
    RColorPickerPopup popup;
    popup.SetBorderButtonColor(Qt::red);
    popup.SetButtonNormalTextColor(Qt::darkGreen);
    QImage image(60, 40, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setBrush(Qt::cyan);
    popup.paintButton(&painter, QRectF(5, 5, 40, 20), QString(), false);
    // The text's pen stays, so that a sequence of buttons behaves as one does.
    QCOMPARE(painter.pen().color(), QColor(Qt::darkGreen));
    QCOMPARE(painter.brush().color(), QColor(Qt::cyan));
    painter.end();
    QCOMPARE(image.pixelColor(5, 5), QColor(Qt::red));
    QCOMPARE(image.pixelColor(45, 25), QColor(Qt::red));
    QCOMPARE(image.pixelColor(20, 15), QColor(Qt::lightGray));
}

void tst_RColorPickerPopup::buttonUnderCursorKeepsPenForOutline()
{
    RColorPickerPopup popup;
    popup.SetButtonHoverTextColor(Qt::red);
    QImage image(60, 40, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setPen(Qt::darkCyan);
    popup.paintButton(&painter, QRectF(5, 5, 40, 20), QString(), true);
    // The hover text colour is a property without effect: the text keeps the normal colour.
    QCOMPARE(painter.pen().color(), QColor(Qt::black));
    painter.end();
    QCOMPARE(image.pixelColor(5, 5), QColor(Qt::darkCyan));
    QCOMPARE(image.pixelColor(20, 15), QColor(Qt::yellow));
}

void tst_RColorPickerPopup::pressOnEachCellSelectsIt()
{
    for (int i = 0; i < 40; ++i) {
        RColorPickerPopup popup;
        showAwayFromCursor(popup);
        const Record record(popup);
        const QRect cell = listedCell(i);
        press(popup, i % 2 ? cell.topLeft() : cell.topLeft() + QPoint(12, 12)); // both borders belong to the cell
        const QColor color(listedColors[i].red, listedColors[i].green, listedColors[i].blue);
        QCOMPARE(record.entries, (QStringList{QStringLiteral("selected ") + color.name(), QStringLiteral("closed")}));
        QVERIFY(!popup.isVisible());
    }
}

void tst_RColorPickerPopup::pressBetweenCellsSelectsNothing()
{
    RColorPickerPopup popup;
    showAwayFromCursor(popup);
    const Record record(popup);
    for (const QPoint& position :
         {listedCell(0).topLeft() + QPoint(14, 6), listedCell(9).topLeft() - QPoint(1, 1), onNothing})
        press(popup, position);
    QCOMPARE(record.entries, QStringList());
    QVERIFY(popup.isVisible());
}

void tst_RColorPickerPopup::pressBeforeFirstPaintingSelectsNothing()
{
    RColorPickerPopup popup;
    const Record record(popup);
    press(popup, listedCell(3).center());
    press(popup, onDefault);
    QCOMPARE(record.entries, QStringList());
}

void tst_RColorPickerPopup::pressOutsideClosesAndReportsTwice()
{
    RColorPickerPopup popup;
    showAwayFromCursor(popup);
    const Record record(popup);
    press(popup, QPoint(140, 20)); // the first pixel that is not the popup's
    QVERIFY(!popup.isVisible());
    // Once for the hide and once for the press: owners take it as one, the second call changes nothing.
    QCOMPARE(record.entries, (QStringList{QStringLiteral("closed"), QStringLiteral("closed")}));
}

void tst_RColorPickerPopup::pressOnDefault()
{
    RColorPickerPopup popup;
    popup.selectDefaultColor(QColor(1, 2, 3));
    showAwayFromCursor(popup);
    const Record record(popup);
    press(popup, onDefault);
    QCOMPARE(record.entries, (QStringList{QStringLiteral("selected #010203"), QStringLiteral("closed")}));
    QVERIFY(!popup.isVisible());
}

void tst_RColorPickerPopup::positionsAreWholeOnDefaultAndExactOnMore()
{
    RColorPickerPopup popup;
    popup.selectDefaultColor(QColor(1, 2, 3));
    showAwayFromCursor(popup);
    const Record record(popup);
    // 136.4 rounds to the right edge 136, which belongs to "Default"; on "More..." it lies outside.
    press(popup, QPointF(136.4, 130));
    QCOMPARE(record.entries, QStringList());
    press(popup, QPointF(136.4, 15));
    QCOMPARE(record.entries.value(0), QStringLiteral("selected #010203"));
}

void tst_RColorPickerPopup::dialogStartsWithHoverColorAndIsStyled()
{
    RColorPicker picker;
    RColorPickerPopup& popup = picker.GetPickerPopup();
    showAwayFromCursor(popup);
    popup.selectHoverColor(QColor(9, 8, 7));
    QStringList atOpening;
    const Record record(popup);
    withDialog([&](QColorDialog* dialog) {
        atOpening = record.entries;
        QCOMPARE(dialog->currentColor(), QColor(9, 8, 7));
        QCOMPARE(dialog->parentWidget(), &picker);
        QVERIFY(dialog->testOption(QColorDialog::DontUseNativeDialog)); // a desktop's own has nothing to style
        const auto spinBoxes = dialog->findChildren<QAbstractSpinBox*>();
        QVERIFY(!spinBoxes.isEmpty());
        for (const QAbstractSpinBox* box : spinBoxes)
            QCOMPARE(box->buttonSymbols(), QAbstractSpinBox::NoButtons);
        const auto* buttons = dialog->findChild<QDialogButtonBox*>();
        QCOMPARE(buttons->button(QDialogButtonBox::Ok)->property("styleHint").toString(),
                 QStringLiteral("activeButton"));
        QCOMPARE(buttons->button(QDialogButtonBox::Cancel)->property("styleHint").toString(),
                 QStringLiteral("rejectButton"));
        dialog->reject();
    });
    press(popup, onMore);
    // Before the dialog, so that the owner looks closed; the dialog then makes Qt hide the popup, which reports it
    // again.
    QCOMPARE(atOpening.value(0), QStringLiteral("closed"));
    QVERIFY(!record.entries.join(QString()).contains(QLatin1String("selected")));
    popup.hide();
}

void tst_RColorPickerPopup::acceptedDialogSelects()
{
    RColorPicker picker;
    RColorPickerPopup& popup = picker.GetPickerPopup();
    showAwayFromCursor(popup);
    const Record record(popup);
    withDialog([](QColorDialog* dialog) {
        dialog->setCurrentColor(QColor(10, 20, 30));
        dialog->accept();
    });
    press(popup, onMore);
    QCOMPARE(record.entries.first(), QStringLiteral("closed"));
    QCOMPARE(record.entries.filter(QStringLiteral("selected")).size(), 1);
    QVERIFY(record.entries.filter(QStringLiteral("selected")).constFirst().startsWith(QStringLiteral("selected #0a141e")));
    QVERIFY(!popup.isVisible());
    QCOMPARE(picker.color(), QColor(10, 20, 30));
}

void tst_RColorPickerPopup::cancelledDialogKeepsItsColorForTheNextOne()
{
    RColorPicker picker;
    picker.setColor(Qt::darkRed);
    RColorPickerPopup& popup = picker.GetPickerPopup();
    showAwayFromCursor(popup);
    withDialog([](QColorDialog* dialog) {
        dialog->setCurrentColor(QColor(10, 20, 30));
        dialog->reject();
    });
    press(popup, onMore);
    QCOMPARE(picker.color(), QColor(Qt::darkRed));

    // Cancelling keeps the picker's colour but not the dialog's starting point: people go on where they stopped.
    QColor second;
    popup.show();
    withDialog([&second](QColorDialog* dialog) {
        second = dialog->currentColor();
        dialog->reject();
    });
    press(popup, onMore);
    QCOMPARE(second, QColor(10, 20, 30));
    popup.hide();
}

void tst_RColorPickerPopup::everyHideReportsClosed()
{
    RColorPickerPopup popup;
    const Record record(popup);
    for (int i = 1; i <= 3; ++i) {
        popup.show();
        popup.hide();
        QCOMPARE(record.entries.size(), i);
    }
}

void tst_RColorPickerPopup::deletedFromItsOwnSignals()
{
    for (const QPoint& position : {listedCell(0).center(), onDefault, onMore}) {
        auto picker = std::make_unique<RColorPicker>();
        RColorPickerPopup* popup = &picker->GetPickerPopup();
        showAwayFromCursor(*popup);
        // Qt does not survive the deletion of a widget that is being hidden, so closed() may do it before the dialog
        // only.
        if (position == onMore)
            connect(popup, &RColorPickerPopup::closed, this, [&picker] { picker.reset(); });
        else
            connect(popup, &RColorPickerPopup::selected, this, [&picker] { picker.reset(); });
        press(*popup, position);
        QVERIFY(!picker);
    }
}

void tst_RColorPickerPopup::deletedWhileDialogIsOpen()
{
    auto picker = std::make_unique<RColorPicker>();
    RColorPickerPopup* popup = &picker->GetPickerPopup();
    showAwayFromCursor(*popup);
    withDialog([&picker](QColorDialog*) { picker.reset(); });
    press(*popup, onMore);
    QVERIFY(!picker);
}

QTEST_MAIN(tst_RColorPickerPopup)
#include "tst_RColorPickerPopup.moc"
