#include <KQt/Ui/TextAlignPicker.h>

#include "support/ContextTranslator.h"
#include "support/LayoutRequests.h"
#include "support/Render.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QMouseEvent>
#include <QPointer>
#include <QToolButton>
#include <QtTest>

#include <memory>

using Kestrel::Gui::TextAlignPicker;
using TestSupport::ContextTranslator;

namespace {

struct Row
{
    int alignment;
    const char* tag;
    const char* toolTip;
};

// From left to right.
constexpr Row Strip[] = {
    {0x01, "AlignLeft", "Align left"},
    {0x02, "AlignRight", "Align right"},
    {0x08, "AlignJustify", "Justify"},
    {0x84, "AlignCenter", "Align center"},
};

QList<QToolButton*> buttonsOf(const QWidget& picker)
{
    QList<QToolButton*> buttons;
    for (int i = 0; i < picker.layout()->count(); ++i)
        buttons << qobject_cast<QToolButton*>(picker.layout()->itemAt(i)->widget());
    return buttons;
}

QStringList toolTipsOf(const QWidget& picker)
{
    QStringList texts;
    const auto buttons = buttonsOf(picker);
    for (const QToolButton* button : buttons)
        texts << button->toolTip();
    return texts;
}

QStringList expectedToolTips()
{
    QStringList texts;
    for (const Row& row : Strip)
        texts << QString::fromLatin1(row.toolTip);
    return texts;
}

/// The tag of the checked button; "none", or all of them where there are several.
QString checked(const QWidget& picker)
{
    QStringList tags;
    const auto buttons = buttonsOf(picker);
    for (const QToolButton* button : buttons) {
        if (button->isChecked())
            tags << button->property("styleTag").toString();
    }
    return tags.isEmpty() ? QStringLiteral("none") : tags.join(QLatin1Char(' '));
}

QToolButton* button(const QWidget& picker, const char* tag)
{
    const auto candidates = buttonsOf(picker);
    for (QToolButton* candidate : candidates) {
        if (candidate->property("styleTag").toString() == QLatin1String(tag))
            return candidate;
    }
    return nullptr;
}

} // namespace

class tst_TextAlignPicker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void metaObject();
    void strip();
    void nothingIsCheckedAtFirst();
    void stylesByTag();
    void reportsClicks_data();
    void reportsClicks();
    void reportsAClickOnTheCheckedButton();
    void reportsTheArrowKeys();
    void setsAlignments_data();
    void setsAlignments();
    void keepsTheClickedAlignment();
    void zeroLeavesTheCheckedButton();
    void availableAlignmentsChangeNothing();
    void aSlotMayDeleteThePicker();
    void followsTheLanguage();
    void handsNoChangeToTheBaseClass();
    void ignoresMouseMoves();
    void parentOwnsIt();
};

void tst_TextAlignPicker::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_TextAlignPicker::metaObject()
{
    const QMetaObject& meta = TextAlignPicker::staticMetaObject;
    QCOMPARE(meta.className(), "Kestrel::Gui::TextAlignPicker");
    QCOMPARE(meta.superClass(), &QFrame::staticMetaObject);
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    struct Method
    {
        const char* signature;
        QMetaMethod::MethodType type;
        QMetaMethod::Access access;
    };
    const QList<Method> methods = {
        {"alignmentChanged(Qt::Alignment)", QMetaMethod::Signal, QMetaMethod::Public},
        {"setAvailableAlignments(Qt::Alignment)", QMetaMethod::Slot, QMetaMethod::Public},
        {"setAlignment(Qt::Alignment)", QMetaMethod::Slot, QMetaMethod::Public},
        {"updateAlignment()", QMetaMethod::Slot, QMetaMethod::Private},
    };
    QCOMPARE(meta.methodCount() - meta.methodOffset(), methods.size());
    for (int i = 0; i < methods.size(); ++i) {
        const QMetaMethod method = meta.method(meta.methodOffset() + i);
        QCOMPARE(method.methodSignature(), QByteArray(methods.at(i).signature));
        QCOMPARE(method.methodType(), methods.at(i).type);
        QCOMPARE(method.access(), methods.at(i).access);
    }
}

void tst_TextAlignPicker::strip()
{
    TextAlignPicker picker;
    QVERIFY(!picker.parent());
    QCOMPARE(picker.windowFlags(), QFrame().windowFlags());
    auto* const layout = qobject_cast<QHBoxLayout*>(picker.layout());
    QVERIFY(layout);
    QCOMPARE(layout->contentsMargins(), QMargins());
    QCOMPARE(layout->spacing(), 2);
    QVERIFY(picker.testAttribute(Qt::WA_MouseTracking));

    const QList<QToolButton*> buttons = buttonsOf(picker);
    QCOMPARE(buttons.size(), static_cast<int>(std::size(Strip)));
    QCOMPARE(picker.findChildren<QToolButton*>(), buttons);
    for (int i = 0; i < buttons.size(); ++i) {
        QCOMPARE(buttons.at(i)->parentWidget(), &picker);
        QCOMPARE(buttons.at(i)->property("styleTag").toString(), QString::fromLatin1(Strip[i].tag));
        QCOMPARE(buttons.at(i)->toolTip(), QString::fromLatin1(Strip[i].toolTip));
        QVERIFY(buttons.at(i)->isCheckable());
        QVERIFY(buttons.at(i)->icon().isNull()); // a style sheet gives them their look
        QCOMPARE(buttons.at(i)->sizePolicy(), QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred));
    }

    const QList<QButtonGroup*> groups = picker.findChildren<QButtonGroup*>();
    QCOMPARE(groups.size(), 1);
    QCOMPARE(groups.first()->parent(), &picker);
    QVERIFY(groups.first()->exclusive());
    for (int i = 0; i < buttons.size(); ++i)
        QCOMPARE(groups.first()->id(buttons.at(i)), -2 - i); // as QButtonGroup numbers by itself
}

void tst_TextAlignPicker::nothingIsCheckedAtFirst()
{
    TextAlignPicker picker;
    QCOMPARE(checked(picker), QStringLiteral("none"));
    QCOMPARE(picker.alignment(), Qt::Alignment());
}

void tst_TextAlignPicker::stylesByTag()
{
    TextAlignPicker picker;
    picker.setStyleSheet(QStringLiteral("QToolButton { border: none; min-width: 20px; min-height: 20px; }"
                                        "[styleTag=\"AlignLeft\"] { background: #ff0000; }"
                                        "[styleTag=\"AlignRight\"] { background: #00ff00; }"
                                        "[styleTag=\"AlignJustify\"] { background: #0000ff; }"
                                        "[styleTag=\"AlignCenter\"] { background: #ffff00; }"));
    picker.show();
    const QImage picture = TestSupport::render(picker);
    const QList<QColor> colors = {Qt::red, Qt::green, Qt::blue, Qt::yellow};
    for (int i = 0; i < colors.size(); ++i)
        QCOMPARE(picture.pixelColor(buttonsOf(picker).at(i)->geometry().center()), colors.at(i));
}

void tst_TextAlignPicker::reportsClicks_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < static_cast<int>(std::size(Strip)); ++i)
        QTest::newRow(Strip[i].tag) << i;
}

void tst_TextAlignPicker::reportsClicks()
{
    QFETCH(int, index);
    TextAlignPicker picker;
    picker.show();
    // Another button first: the alignment is not added to what was chosen before.
    QTest::mouseClick(buttonsOf(picker).at((index + 1) % 4), Qt::LeftButton);
    QList<Qt::Alignment> changes;
    connect(&picker, &TextAlignPicker::alignmentChanged, &picker, [&](Qt::Alignment alignment) {
        QCOMPARE(picker.alignment(), alignment); // stored before it is told
        changes << alignment;
    });
    QTest::mouseClick(buttonsOf(picker).at(index), Qt::LeftButton);
    QCOMPARE(changes.size(), 1);
    QCOMPARE(static_cast<int>(changes.first()), Strip[index].alignment);
    QCOMPARE(static_cast<int>(picker.alignment()), Strip[index].alignment);
    QCOMPARE(checked(picker), QString::fromLatin1(Strip[index].tag));
}

void tst_TextAlignPicker::reportsAClickOnTheCheckedButton()
{
    TextAlignPicker picker;
    picker.show();
    qRegisterMetaType<Qt::Alignment>("Qt::Alignment"); // for the spy
    QSignalSpy changed(&picker, &TextAlignPicker::alignmentChanged);
    QTest::mouseClick(button(picker, "AlignRight"), Qt::LeftButton);
    QTest::mouseClick(button(picker, "AlignRight"), Qt::LeftButton);
    QCOMPARE(changed.count(), 2);
    QCOMPARE(changed.last().first().value<Qt::Alignment>(), Qt::Alignment(Qt::AlignRight));
    QCOMPARE(picker.alignment(), Qt::Alignment(Qt::AlignRight));
}

void tst_TextAlignPicker::reportsTheArrowKeys()
{
    TextAlignPicker picker;
    picker.show();
    picker.activateWindow();
    QTRY_VERIFY(picker.isActiveWindow());
    button(picker, "AlignLeft")->setFocus();
    QTest::mouseClick(button(picker, "AlignLeft"), Qt::LeftButton);
    qRegisterMetaType<Qt::Alignment>("Qt::Alignment"); // for the spy
    QSignalSpy changed(&picker, &TextAlignPicker::alignmentChanged);
    // The strip starts where texts do.
    QTest::keyClick(button(picker, "AlignLeft"), picker.isRightToLeft() ? Qt::Key_Left : Qt::Key_Right);
    QCOMPARE(checked(picker), QStringLiteral("AlignRight"));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(picker.alignment(), Qt::Alignment(Qt::AlignRight));
}

void tst_TextAlignPicker::setsAlignments_data()
{
    QTest::addColumn<int>("flags");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* name, Qt::Alignment flags, const char* expected) {
        QTest::newRow(name) << static_cast<int>(flags) << QString::fromLatin1(expected);
    };
    row("none", {}, "none");
    row("left", Qt::AlignLeft, "AlignLeft");
    row("right", Qt::AlignRight, "AlignRight");
    row("justify", Qt::AlignJustify, "AlignJustify");
    row("centre", Qt::AlignCenter, "AlignCenter");
    row("one half of centre", Qt::AlignHCenter, "AlignCenter");
    row("the other half of centre", Qt::AlignVCenter, "AlignCenter");
    // Bits that two buttons share: the last button that has one of them takes the check mark from those before it.
    row("left and vertically centred", Qt::AlignLeft | Qt::AlignVCenter, "AlignCenter");
    row("left and right", Qt::AlignLeft | Qt::AlignRight, "AlignRight");
    row("right and justify", Qt::AlignRight | Qt::AlignJustify, "AlignJustify");
    row("left and top", Qt::AlignLeft | Qt::AlignTop, "AlignLeft");
    row("top", Qt::AlignTop, "none");
    row("all", Qt::AlignLeft | Qt::AlignRight | Qt::AlignJustify | Qt::AlignCenter, "AlignCenter");
}

void tst_TextAlignPicker::setsAlignments()
{
    QFETCH(int, flags);
    QFETCH(QString, expected);
    TextAlignPicker picker;
    int changes = 0;
    connect(&picker, &TextAlignPicker::alignmentChanged, &picker, [&changes] { ++changes; });
    picker.setAlignment(static_cast<Qt::Alignment>(flags));
    QCOMPARE(checked(picker), expected);
    QCOMPARE(changes, 0);
    QCOMPARE(picker.alignment(), Qt::Alignment());
}

void tst_TextAlignPicker::keepsTheClickedAlignment()
{
    // alignment() tells what the user chose last: the program knows what it has set itself.
    TextAlignPicker picker;
    picker.show();
    picker.setAlignment(Qt::AlignJustify);
    QCOMPARE(picker.alignment(), Qt::Alignment());
    QTest::mouseClick(button(picker, "AlignLeft"), Qt::LeftButton);
    picker.setAlignment(Qt::AlignRight);
    QCOMPARE(checked(picker), QStringLiteral("AlignRight"));
    QCOMPARE(picker.alignment(), Qt::Alignment(Qt::AlignLeft));
}

void tst_TextAlignPicker::zeroLeavesTheCheckedButton()
{
    // An exclusive group never gives up its checked button, so a picker cannot be cleared.
    TextAlignPicker picker;
    picker.setAlignment(Qt::AlignLeft);
    picker.setAlignment({});
    QCOMPARE(checked(picker), QStringLiteral("AlignLeft"));
    picker.setAlignment(Qt::AlignTop);
    QCOMPARE(checked(picker), QStringLiteral("AlignLeft"));
}

void tst_TextAlignPicker::availableAlignmentsChangeNothing()
{
    // Applications call it; every picker offers all four nevertheless.
    TextAlignPicker picker;
    picker.show();
    picker.setAlignment(Qt::AlignRight);
    int changes = 0;
    connect(&picker, &TextAlignPicker::alignmentChanged, &picker, [&changes] { ++changes; });
    const QImage before = TestSupport::render(picker);
    for (const Qt::Alignment alignments : {Qt::Alignment(), Qt::Alignment(Qt::AlignLeft), Qt::Alignment(0xff)}) {
        picker.setAvailableAlignments(alignments);
        QVERIFY(QMetaObject::invokeMethod(&picker, "setAvailableAlignments", Q_ARG(Qt::Alignment, alignments)));
        const auto buttons = buttonsOf(picker);
        for (const QToolButton* each : buttons)
            QVERIFY(each->isVisible() && each->isEnabled());
        QCOMPARE(checked(picker), QStringLiteral("AlignRight"));
    }
    QCOMPARE(TestSupport::render(picker), before);
    QCOMPARE(picker.alignment(), Qt::Alignment());
    QCOMPARE(changes, 0);
}

void tst_TextAlignPicker::aSlotMayDeleteThePicker()
{
    QPointer<TextAlignPicker> picker = new TextAlignPicker;
    picker->show();
    connect(picker, &TextAlignPicker::alignmentChanged, [&picker] { delete picker; });
    button(*picker, "AlignLeft")->click();
    QVERIFY(!picker);
}

void tst_TextAlignPicker::followsTheLanguage()
{
    QStringList translated;
    for (const Row& row : Strip)
        translated << ContextTranslator::translated(row.toolTip);
    TextAlignPicker picker;
    {
        const ContextTranslator translator("Kestrel::Gui::TextAlignPicker");
        QTRY_COMPARE(toolTipsOf(picker), translated);
        QCOMPARE(toolTipsOf(TextAlignPicker()), translated);
        QVERIFY(button(picker, "AlignCenter")); // roles are no texts
    }
    QTRY_COMPARE(toolTipsOf(picker), expectedToolTips());

    const auto buttons = buttonsOf(picker);
    for (QToolButton* each : buttons)
        each->setToolTip(QStringLiteral("changed"));
    QEvent other(QEvent::LocaleChange);
    QCoreApplication::sendEvent(&picker, &other);
    QCOMPARE(toolTipsOf(picker).count(QStringLiteral("changed")), 4);
    QEvent language(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&picker, &language);
    QCOMPARE(toolTipsOf(picker), expectedToolTips());
}

void tst_TextAlignPicker::handsNoChangeToTheBaseClass()
{
    // A panel's font is not the picker's business: it keeps its place whatever changes.
    TextAlignPicker picker;
    QVERIFY(!TestSupport::fontChangeReachesQWidget(&picker));
    QFrame plain;
    plain.setLayout(new QHBoxLayout);
    QVERIFY(TestSupport::fontChangeReachesQWidget(&plain));
}

void tst_TextAlignPicker::ignoresMouseMoves()
{
    // As a plain widget does, so that the move goes on to the parent.
    TextAlignPicker picker;
    QMouseEvent move(QEvent::MouseMove, {1, 1}, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&picker, &move);
    QVERIFY(!move.isAccepted());
}

void tst_TextAlignPicker::parentOwnsIt()
{
    auto parent = std::make_unique<QWidget>();
    const QPointer<TextAlignPicker> picker = new TextAlignPicker(parent.get());
    QCOMPARE(picker->parentWidget(), parent.get());
    parent.reset();
    QVERIFY(!picker);
}

QTEST_MAIN(tst_TextAlignPicker)
#include "tst_TextAlignPicker.moc"
