#include <KQt/Ui/AdvancedSpinBox.h>

#include "support/MetaListing.h"

#include <QLineEdit>
#include <QSignalSpy>

#include <QtTest>

using Kestrel::Gui::AdvancedSpinBox;

namespace {

/// A spin box whose line edit can be looked at and replaced.
class OpenSpinBox : public AdvancedSpinBox
{
public:
    using AdvancedSpinBox::AdvancedSpinBox;
    using AdvancedSpinBox::lineEdit;
    using AdvancedSpinBox::setLineEdit;
};

} // namespace

class tst_AdvancedSpinBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject();
    void isAChildOfItsParent();
    void lengthIsTheLineEditsOwn();
    void lengthLivesInTheLineEditOnly();
    void noMoreCharactersCanBeTyped();
    void staysASpinBox();
};

void tst_AdvancedSpinBox::metaObject()
{
    const QMetaObject& meta = AdvancedSpinBox::staticMetaObject;
    QCOMPARE(meta.superClass(), &QSpinBox::staticMetaObject);
    // "Lenght" is what forms and style sheets of applications say: kept.
    QCOMPARE(TestSupport::ownProperties(meta), QStringList{QStringLiteral("maxLenght int")});
    QCOMPARE(TestSupport::ownMethods(meta), QStringList());
}

void tst_AdvancedSpinBox::isAChildOfItsParent()
{
    QWidget parent;
    const AdvancedSpinBox box(&parent);
    QCOMPARE(box.parentWidget(), &parent);
}

void tst_AdvancedSpinBox::lengthIsTheLineEditsOwn()
{
    OpenSpinBox box;
    QCOMPARE(box.getMaxLenght(), QLineEdit().maxLength());
    box.setMaxLenght(3);
    QCOMPARE(box.getMaxLenght(), 3);
    QCOMPARE(box.lineEdit()->maxLength(), 3);
    box.lineEdit()->setMaxLength(4);
    QCOMPARE(box.getMaxLenght(), 4);
    QCOMPARE(box.property("maxLenght").toInt(), 4);
    QVERIFY(box.setProperty("maxLenght", 5));
    QCOMPARE(box.lineEdit()->maxLength(), 5);
}

void tst_AdvancedSpinBox::lengthLivesInTheLineEditOnly()
{
    // A new line edit comes with its own limit: the box keeps none to hand over.
    OpenSpinBox box;
    box.setMaxLenght(3);
    auto* other = new QLineEdit;
    other->setMaxLength(7);
    box.setLineEdit(other);
    QCOMPARE(box.getMaxLenght(), 7);
}

void tst_AdvancedSpinBox::noMoreCharactersCanBeTyped()
{
    OpenSpinBox box;
    box.setMaximum(99999);
    box.setMaxLenght(3);
    box.selectAll();
    QTest::keyClicks(&box, QStringLiteral("12345"));
    QCOMPARE(box.lineEdit()->text(), QStringLiteral("123"));
    QCOMPARE(box.value(), 123);
    QCOMPARE(box.getMaxLenght(), 3);

    // A fourth is taken again once there is room for it.
    box.setMaxLenght(4);
    QTest::keyClicks(&box, QStringLiteral("45"));
    QCOMPARE(box.value(), 1234);
}

void tst_AdvancedSpinBox::staysASpinBox()
{
    AdvancedSpinBox box;
    const QSignalSpy changed(&box, QOverload<int>::of(&QSpinBox::valueChanged));
    box.setMaxLenght(2);
    QTest::keyClick(&box, Qt::Key_Up);
    QCOMPARE(box.value(), 1);
    box.setValue(57);
    box.stepBy(-7);
    QCOMPARE(box.value(), 50);
    QCOMPARE(changed.count(), 3);
    QCOMPARE(box.sizeHint(), QSpinBox().sizeHint());
}

QTEST_MAIN(tst_AdvancedSpinBox)
#include "tst_AdvancedSpinBox.moc"
