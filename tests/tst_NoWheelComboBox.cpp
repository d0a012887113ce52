#include <KQt/Ui/NoWheelComboBox.h>

#include "support/ComboBoxes.h"
#include "support/Render.h"

#include <QHBoxLayout>
#include <QLineEdit>

#include <QtTest>

using Kestrel::Gui::NoWheelComboBox;
using TestSupport::editFieldOf;
using TestSupport::elidedTo;
using TestSupport::ReferenceComboBox;
using TestSupport::render;
using TestSupport::ScrollingForm;
using TestSupport::turnWheelOver;
using TestSupport::widthThatFits;

namespace {

QString longText()
{
    return QStringLiteral("A text that is much longer than the box");
}

} // namespace

class tst_NoWheelComboBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void metaObjectAddsNothing();
    void wheelScrollsWhatLiesAround();
    void wheelOverFocusedBoxChangesNothing();
    void takesFocusByTabAndClickButNotByWheel();
    void narrowBoxElidesAndTellsTheWholeTextInAToolTip();
    void elidesExactlyFromTheWidthThatNoLongerFits();
    void clearsAToolTipSetFromOutside();
    void emptyBoxPaints();
    void keyboardChoosesAsInAnyBox();
};

void tst_NoWheelComboBox::metaObjectAddsNothing()
{
    const QMetaObject& meta = NoWheelComboBox::staticMetaObject;
    QCOMPARE(meta.className(), "Kestrel::Gui::NoWheelComboBox");
    QCOMPARE(meta.superClass(), &QComboBox::staticMetaObject);
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    QCOMPARE(meta.methodCount(), meta.methodOffset());
}

void tst_NoWheelComboBox::wheelScrollsWhatLiesAround()
{
    auto* box = new NoWheelComboBox;
    box->addItems({QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3")});
    ScrollingForm form(box);
    QVERIFY(QTest::qWaitForWindowExposed(&form));
    QTRY_VERIFY(form.verticalScrollBar()->maximum() > 0);

    turnWheelOver(*box);

    QCOMPARE(box->currentIndex(), 0);
    QVERIFY(form.verticalScrollBar()->value() > 0);

    // An ordinary box in its place keeps the wheel to itself: the test can fail.
    auto* plain = new QComboBox;
    plain->addItems({QStringLiteral("1"), QStringLiteral("2")});
    ScrollingForm other(plain);
    QVERIFY(QTest::qWaitForWindowExposed(&other));
    QTRY_VERIFY(other.verticalScrollBar()->maximum() > 0);
    turnWheelOver(*plain);
    QCOMPARE(plain->currentIndex(), 1);
    QCOMPARE(other.verticalScrollBar()->value(), 0);
}

void tst_NoWheelComboBox::wheelOverFocusedBoxChangesNothing()
{
    auto* box = new NoWheelComboBox;
    box->addItems({QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3")});
    ScrollingForm form(box);
    form.activateWindow();
    QTRY_VERIFY(form.isActiveWindow());
    box->setFocus();
    QTRY_VERIFY(box->hasFocus());

    turnWheelOver(*box);

    QCOMPARE(box->currentIndex(), 0);
}

void tst_NoWheelComboBox::takesFocusByTabAndClickButNotByWheel()
{
    QWidget window;
    auto* layout = new QHBoxLayout(&window);
    auto* other = new QLineEdit;
    auto* box = new NoWheelComboBox; // empty, for an open list would take the focus
    layout->addWidget(other);
    layout->addWidget(box);
    QCOMPARE(box->focusPolicy(), Qt::StrongFocus);
    window.show();
    window.activateWindow();
    QTRY_VERIFY(window.isActiveWindow());
    other->setFocus();
    QTRY_VERIFY(other->hasFocus());

    turnWheelOver(*box);
    QVERIFY(other->hasFocus());

    QTest::keyClick(other, Qt::Key_Tab);
    QVERIFY(box->hasFocus());

    other->setFocus();
    QTest::mouseClick(box, Qt::LeftButton);
    QVERIFY(box->hasFocus());
}

void tst_NoWheelComboBox::narrowBoxElidesAndTellsTheWholeTextInAToolTip()
{
    NoWheelComboBox box;
    box.addItem(longText());
    box.resize(120, 30);

    const QImage narrow = render(box);

    const QString shown = elidedTo(box, longText(), editFieldOf(box).width());
    QVERIFY(shown != longText());
    QCOMPARE(box.toolTip(), longText());
    ReferenceComboBox reference(shown, box.size());
    QCOMPARE(narrow, render(reference));
    ReferenceComboBox uncut(longText(), box.size());
    QVERIFY(narrow != render(uncut));

    box.resize(widthThatFits(box, longText()) + 20, 30);
    render(box);
    QCOMPARE(box.toolTip(), QString());
}

void tst_NoWheelComboBox::elidesExactlyFromTheWidthThatNoLongerFits()
{
    NoWheelComboBox box;
    box.addItem(longText());
    box.resize(widthThatFits(box, longText()), 30);
    render(box);
    QCOMPARE(box.toolTip(), QString());

    box.resize(box.width() - 1, 30);
    render(box);
    QCOMPARE(box.toolTip(), longText());
}

void tst_NoWheelComboBox::clearsAToolTipSetFromOutside()
{
    // The tool tip belongs to the box: each painting sets it, an application's own included.
    NoWheelComboBox box;
    box.addItem(QStringLiteral("short"));
    box.resize(200, 30);
    box.setToolTip(QStringLiteral("from outside"));
    render(box);
    QCOMPARE(box.toolTip(), QString());
}

void tst_NoWheelComboBox::emptyBoxPaints()
{
    NoWheelComboBox box;
    box.resize(100, 30);
    box.setToolTip(QStringLiteral("from outside"));
    ReferenceComboBox reference(QString(), box.size());
    reference.clear();
    QCOMPARE(render(box), render(reference));
    QCOMPARE(box.toolTip(), QString());
}

void tst_NoWheelComboBox::keyboardChoosesAsInAnyBox()
{
    NoWheelComboBox box;
    box.addItems({QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3")});
    const QSignalSpy activated(&box, QOverload<int>::of(&QComboBox::activated));
    QTest::keyClick(&box, Qt::Key_Down);
    QCOMPARE(box.currentIndex(), 1);
    QTest::keyClick(&box, Qt::Key_End);
    QCOMPARE(box.currentIndex(), 2);
    QCOMPARE(activated.count(), 2);
}

QTEST_MAIN(tst_NoWheelComboBox)
#include "tst_NoWheelComboBox.moc"
