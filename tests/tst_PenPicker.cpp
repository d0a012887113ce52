#include <KQt/Ui/AdvancedColorPicker.h>
#include <KQt/Ui/AdvancedColorPickerPopup.h>
#include <KQt/Ui/LineWidthComboBox.h>
#include <KQt/Ui/PenPicker.h>

#include <QHBoxLayout>
#include <QMetaMethod>
#include <QMouseEvent>
#include <QSignalSpy>

#include <QtTest>

using Kestrel::Gui::AdvancedColorPicker;
using Kestrel::Gui::LineWidthComboBox;
using Kestrel::Gui::PenPicker;

class tst_PenPicker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject();
    void layout();
    void offersFiveWidths();
    void penOfEachWidth_data();
    void penOfEachWidth();
    void setPen_data();
    void setPen();
    void changesByTheUserAreReported();
    void setPenReportsAChangedWidthOnly();
    void mouseMovesGoOnToTheParent();
};

void tst_PenPicker::metaObject()
{
    const QMetaObject& meta = PenPicker::staticMetaObject;
    QCOMPARE(meta.className(), "Kestrel::Gui::PenPicker");
    QCOMPARE(meta.superClass(), &QFrame::staticMetaObject);
    QList<QByteArray> methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        methods << meta.method(i).methodSignature();
    QCOMPARE(methods, (QList<QByteArray>{"penChanged()", "doneColorSelection(QColor)", "setPen(QPen)"}));
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
}

void tst_PenPicker::layout()
{
    PenPicker picker;
    auto* layout = qobject_cast<QHBoxLayout*>(picker.layout());
    QVERIFY(layout);
    QCOMPARE(layout->contentsMargins(), QMargins());
    QCOMPARE(layout->count(), 2);
    QVERIFY(qobject_cast<LineWidthComboBox*>(layout->itemAt(0)->widget()));
    QVERIFY(qobject_cast<AdvancedColorPicker*>(layout->itemAt(1)->widget()));
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(layout->itemAt(i)->widget()->parentWidget(), &picker);
        QCOMPARE(layout->itemAt(i)->widget()->sizePolicy(),
                 QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred));
    }
    QVERIFY(picker.hasMouseTracking());
}

void tst_PenPicker::offersFiveWidths()
{
    PenPicker picker;
    const auto* width = picker.findChild<LineWidthComboBox*>();
    QCOMPARE(width->count(), 5);
    for (int i = 0; i < 5; ++i) {
        QCOMPARE(width->itemText(i), QString());
        QVERIFY(width->itemIcon(i).isNull());
        QCOMPARE(width->itemData(i), QVariant(i));
    }
    QCOMPARE(width->currentIndex(), 0);
}

void tst_PenPicker::penOfEachWidth_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < 5; ++i)
        QTest::addRow("%d", i) << i;
}

void tst_PenPicker::penOfEachWidth()
{
    QFETCH(int, index);
    PenPicker picker;
    picker.findChild<AdvancedColorPicker*>()->setColor(Qt::darkGreen);
    picker.findChild<LineWidthComboBox*>()->setCurrentIndex(index);
    QCOMPARE(picker.pen(), QPen(Qt::darkGreen, index, index == 0 ? Qt::NoPen : Qt::SolidLine));
}

void tst_PenPicker::setPen_data()
{
    QTest::addColumn<QPen>("pen");
    QTest::addColumn<int>("index");
    QTest::newRow("no pen") << QPen(Qt::red, 3, Qt::NoPen) << 0;
    QTest::newRow("width 0") << QPen(Qt::red, 0) << 0;
    QTest::newRow("width 2") << QPen(Qt::red, 2) << 2;
    QTest::newRow("width 2.9") << QPen(Qt::red, 2.9) << 3;
    QTest::newRow("dashed") << QPen(Qt::red, 3, Qt::DashLine) << 3;
    QTest::newRow("width 4") << QPen(Qt::red, 4) << 4;
    QTest::newRow("width 9") << QPen(Qt::red, 9) << 4;
    QTest::newRow("translucent") << QPen(QColor(1, 2, 3, 4), 1) << 1;
}

void tst_PenPicker::setPen()
{
    QFETCH(QPen, pen);
    QFETCH(int, index);
    PenPicker picker;
    picker.setPen(pen);
    QCOMPARE(picker.findChild<LineWidthComboBox*>()->currentIndex(), index);
    QCOMPARE(picker.findChild<AdvancedColorPicker*>()->color(), pen.color());
    QCOMPARE(picker.pen().color(), pen.color());
}

void tst_PenPicker::changesByTheUserAreReported()
{
    PenPicker picker;
    QSignalSpy penChanged(&picker, &PenPicker::penChanged);
    QSignalSpy done(&picker, &PenPicker::doneColorSelection);
    QTest::keyClick(picker.findChild<LineWidthComboBox*>(), Qt::Key_Down);
    QCOMPARE(penChanged.count(), 1);
    QCOMPARE(picker.pen().width(), 1);

    auto* color = picker.findChild<AdvancedColorPicker*>();
    Q_EMIT color->changedColor(Qt::red);
    QCOMPARE(penChanged.count(), 2);
    QCOMPARE(done.count(), 0);
    Q_EMIT color->doneSelectionWithColor(Qt::blue);
    QCOMPARE(penChanged.count(), 2);
    QCOMPARE(done.count(), 1);
    QCOMPARE(done.first().first().value<QColor>(), QColor(Qt::blue));
}

void tst_PenPicker::setPenReportsAChangedWidthOnly()
{
    PenPicker picker;
    QSignalSpy penChanged(&picker, &PenPicker::penChanged);
    picker.setPen(QPen(Qt::red, 2));
    QCOMPARE(penChanged.count(), 1);
    picker.setPen(QPen(Qt::blue, 2)); // the colour picker is silent when it is set
    QCOMPARE(penChanged.count(), 1);
}

void tst_PenPicker::mouseMovesGoOnToTheParent()
{
    PenPicker picker;
    QMouseEvent move(QEvent::MouseMove, QPointF(2, 2), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    move.accept();
    QCoreApplication::sendEvent(&picker, &move);
    QVERIFY(!move.isAccepted());
}

QTEST_MAIN(tst_PenPicker)
#include "tst_PenPicker.moc"
