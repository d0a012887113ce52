#include <KQt/Ui/AdvancedComboBox.h>
#include <KQt/Ui/ClippingTextLineEdit.h>
#include <KQt/Ui/CustomSliderWithZeroTick.h>
#include <KQt/Ui/PresetComboBox.h>
#include <KQt/Ui/TextAlignPicker.h>

#include "support/FocusEvents.h"
#include "support/Thrown.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QProxyStyle>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QToolButton>
#include <QtTest>

#include <functional>
#include <memory>

using namespace Kestrel::Gui;
using TestSupport::Fuse;
using TestSupport::isThrownBy;
using TestSupport::sendFocus;

namespace {

/// Throws as its style sheet is set, which its painting does.
class Slider : public CustomSliderWithZeroTick
{
public:
    Slider()
        : CustomSliderWithZeroTick(Qt::Horizontal)
    {
    }

    Fuse onStyle;
    int paints = 0;

protected:
    void changeEvent(QEvent* event) override
    {
        CustomSliderWithZeroTick::changeEvent(event);
        if (event->type() == QEvent::StyleChange)
            onStyle();
    }
    void paintEvent(QPaintEvent* event) override
    {
        ++paints;
        CustomSliderWithZeroTick::paintEvent(event);
    }
};

/// Throws as it draws a combo box.
class Style : public QProxyStyle
{
public:
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override
    {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        if (control == CC_ComboBox)
            onDraw();
    }

    mutable Fuse onDraw;
};

/// Throws as it is asked for its items' texts.
class Model : public QStandardItemModel
{
public:
    QVariant data(const QModelIndex& index, int role) const override
    {
        if (role == Qt::SizeHintRole)
            onSize();
        return QStandardItemModel::data(index, role);
    }

    mutable Fuse onSize;
};

} // namespace

/// Sliders, boxes and edits: what slots, styles, models and subclasses throw.
class tst_ExceptionSafetyInputs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sliderGoesOnPainting();
    void lineEditLosesTheFocus();
    void comboBoxPainting();
    void comboBoxMeasuring();
    void presetComboBox();
    void alignmentPicker();
};

void tst_ExceptionSafetyInputs::sliderGoesOnPainting()
{
    Slider slider;
    slider.resize(200, 30);
    slider.setStyleSheet(QStringLiteral("QSlider { qproperty-tickWidth: 3; qproperty-tickHeight: 16; }"));
    slider.show();
    QVERIFY(QTest::qWaitForWindowExposed(&slider));
    const QImage before = slider.grab().toImage();

    slider.onStyle.arm();
    QVERIFY(isThrownBy([&slider] { slider.grab(); }));
    QVERIFY(slider.updatesEnabled());
    QCOMPARE(slider.grab().toImage(), before);
    slider.paints = 0;
    slider.update();
    QTRY_COMPARE(slider.paints, 1);
}

// It has lost it, whatever a slot says to what was typed.
void tst_ExceptionSafetyInputs::lineEditLosesTheFocus()
{
    ClippingTextLineEdit edit;
    edit.resize(60, 30);
    edit.SetOriginalText(QStringLiteral("some text that is far too long for the edit"));
    Fuse fuse;
    connect(&edit, &ClippingTextLineEdit::OriginalTextChanged, this, [&fuse] { fuse(); });
    const QSignalSpy changed(&edit, &ClippingTextLineEdit::OriginalTextChanged);
    const QSignalSpy finished(&edit, &QLineEdit::editingFinished);
    const QString typed = QStringLiteral("another text that is far too long for the edit");
    const auto leave = [&] { sendFocus(edit, QEvent::FocusOut); };

    sendFocus(edit, QEvent::FocusIn);
    edit.setText(typed);
    fuse.arm();
    QVERIFY(isThrownBy(leave));
    QCOMPARE(edit.GetOriginalText(), typed);
    QVERIFY(edit.text() != typed);
    QCOMPARE(edit.toolTip(), typed);
    QCOMPARE(finished.size(), 1);

    sendFocus(edit, QEvent::FocusIn);
    QCOMPARE(edit.text(), typed);
    edit.setText(QStringLiteral("some text that is far too long for the edit"));
    leave();
    QCOMPARE(changed.size(), 1);
    QCOMPARE(finished.size(), 2);
    QVERIFY(edit.text() != edit.GetOriginalText());
}

void tst_ExceptionSafetyInputs::comboBoxPainting()
{
    if (!qApp->styleSheet().isEmpty())
        QSKIP("the application's style sheet paints combo boxes and does not ask their style");
    Style style;
    AdvancedComboBox box;
    box.setStyle(&style);
    box.addItem(QStringLiteral("an item"));
    box.resize(100, 30);
    const QImage before = box.grab().toImage();
    style.onDraw.arm();
    QVERIFY(isThrownBy([&box] { box.grab(); }));
    QVERIFY(!box.paintingActive());
    QCOMPARE(box.grab().toImage(), before);
}

void tst_ExceptionSafetyInputs::comboBoxMeasuring()
{
    Model model;
    for (const char* text : {"short", "a somewhat longer text, for it to be the widest"})
        model.appendRow(new QStandardItem(QString::fromLatin1(text)));
    AdvancedComboBox box;
    box.setModel(&model);
    const auto measure = [&box] {
        QResizeEvent resize(QSize(50, 60), QSize(50, 50));
        QCoreApplication::sendEvent(box.view()->viewport(), &resize);
    };
    model.onSize.arm(1);
    QVERIFY(isThrownBy([&] { box.view()->sizeHintForColumn(0); }));
    measure();
    QCOMPARE(box.view()->minimumWidth(), box.view()->sizeHintForColumn(0));
    QVERIFY(box.view()->minimumWidth() > box.fontMetrics().horizontalAdvance(model.item(1)->text()));
}

void tst_ExceptionSafetyInputs::presetComboBox()
{
    PresetComboBox box;
    Fuse fuse;
    connect(&box, &PresetComboBox::ShowPopupActivated, this, [&fuse] { fuse(); });
    const QSignalSpy spy(&box, &PresetComboBox::ShowPopupActivated);
    fuse.arm();
    QVERIFY(isThrownBy([&box] { box.showPopup(); }));
    box.showPopup();
    QCOMPARE(spy.size(), 1);
}

void tst_ExceptionSafetyInputs::alignmentPicker()
{
    TextAlignPicker picker;
    Fuse fuse;
    QVector<Qt::Alignment> told;
    connect(&picker, &TextAlignPicker::alignmentChanged, this, [&](Qt::Alignment alignment) {
        fuse();
        told.append(alignment);
    });
    const auto buttons = picker.findChildren<QToolButton*>();
    fuse.arm();
    QVERIFY(isThrownBy([&] { buttons.at(1)->click(); }));
    buttons.at(2)->click();
    QCOMPARE(told, {picker.alignment()});
}

QTEST_MAIN(tst_ExceptionSafetyInputs)
#include "tst_ExceptionSafetyInputs.moc"
