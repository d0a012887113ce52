#include <KQt/Ui/FontStylePicker.h>

#include "support/ContextTranslator.h"
#include "support/LayoutRequests.h"
#include "support/Render.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPointer>
#include <QToolButton>
#include <QtTest>

#include <memory>

using Kestrel::Gui::FontStylePicker;
using TestSupport::ContextTranslator;

namespace {

/// The three buttons from left to right, found as an application finds them.
QList<QToolButton*> buttonsOf(const QWidget& picker)
{
    QList<QToolButton*> buttons;
    for (int i = 0; i < picker.layout()->count(); ++i)
        buttons << qobject_cast<QToolButton*>(picker.layout()->itemAt(i)->widget());
    return buttons;
}

QStringList tagsOf(const QWidget& picker)
{
    QStringList tags;
    const auto buttons = buttonsOf(picker);
    for (const QToolButton* button : buttons)
        tags << button->property("styleTag").toString();
    return tags;
}

QStringList toolTipsOf(const QWidget& picker)
{
    QStringList texts;
    const auto buttons = buttonsOf(picker);
    for (const QToolButton* button : buttons)
        texts << button->toolTip();
    return texts;
}

QList<bool> statesOf(const QWidget& picker)
{
    QList<bool> states;
    const auto buttons = buttonsOf(picker);
    for (const QToolButton* button : buttons)
        states << button->isChecked();
    return states;
}

QFont fontWith(int weight, QFont::Style style, bool underline)
{
    QFont font;
    font.setWeight(weight);
    font.setStyle(style);
    font.setUnderline(underline);
    return font;
}

QStringList words(std::initializer_list<const char*> texts)
{
    QStringList list;
    for (const char* text : texts)
        list << QString::fromLatin1(text);
    return list;
}

} // namespace

class tst_FontStylePicker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void metaObject();
    void strip();
    void nothingIsCheckedAtFirst();
    void stylesByTag();
    void applies_data();
    void applies();
    void keepsTheRestOfTheFont();
    void readsAFont_data();
    void readsAFont();
    void oneSignalForEachToggle();
    void clicksToggle();
    void aSlotMayChangeTheFontThatIsRead();
    void followsTheLanguage();
    void handsNoChangeToTheBaseClass();
    void ignoresMouseMoves();
    void parentOwnsIt();
};

void tst_FontStylePicker::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_FontStylePicker::metaObject()
{
    const QMetaObject& meta = FontStylePicker::staticMetaObject;
    QCOMPARE(meta.className(), "Kestrel::Gui::FontStylePicker");
    QCOMPARE(meta.superClass(), &QFrame::staticMetaObject);
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    QCOMPARE(meta.methodCount(), meta.methodOffset() + 1);
    const QMetaMethod method = meta.method(meta.methodOffset());
    QCOMPARE(method.methodType(), QMetaMethod::Signal);
    QCOMPARE(method.methodSignature(), QByteArray("styleChanged()"));
}

void tst_FontStylePicker::strip()
{
    const FontStylePicker picker;
    QVERIFY(!picker.parent());
    QCOMPARE(picker.windowFlags(), QFrame().windowFlags());
    auto* const layout = qobject_cast<QHBoxLayout*>(picker.layout());
    QVERIFY(layout);
    QCOMPARE(layout->contentsMargins(), QMargins());
    QCOMPARE(layout->spacing(), 2);
    QVERIFY(picker.testAttribute(Qt::WA_MouseTracking));

    QCOMPARE(tagsOf(picker), words({"Bold", "Italic", "Underline"}));
    QCOMPARE(toolTipsOf(picker), words({"Bold", "Italic", "Underline"}));
    QCOMPARE(picker.findChildren<QToolButton*>(), buttonsOf(picker));
    const auto buttons = buttonsOf(picker);
    for (const QToolButton* button : buttons) {
        QCOMPARE(button->parentWidget(), &picker);
        QVERIFY(button->isCheckable());
        QVERIFY(button->icon().isNull()); // a style sheet gives them their look
    }
}

void tst_FontStylePicker::nothingIsCheckedAtFirst()
{
    QCOMPARE(statesOf(FontStylePicker()), QList<bool>({false, false, false}));
}

void tst_FontStylePicker::stylesByTag()
{
    FontStylePicker picker;
    picker.setStyleSheet(QStringLiteral("QToolButton { border: none; min-width: 20px; min-height: 20px; }"
                                        "[styleTag=\"Bold\"] { background: #ff0000; }"
                                        "[styleTag=\"Italic\"] { background: #00ff00; }"
                                        "[styleTag=\"Underline\"] { background: #0000ff; }"));
    picker.show();
    const QImage picture = TestSupport::render(picker);
    const QList<QColor> colors = {Qt::red, Qt::green, Qt::blue};
    for (int i = 0; i < colors.size(); ++i)
        QCOMPARE(picture.pixelColor(buttonsOf(picker).at(i)->geometry().center()), colors.at(i));
}

void tst_FontStylePicker::applies_data()
{
    QTest::addColumn<int>("toggles");
    for (int toggles = 0; toggles < 8; ++toggles)
        QTest::addRow("toggles %d", toggles) << toggles;
}

void tst_FontStylePicker::applies()
{
    QFETCH(int, toggles);
    FontStylePicker picker;
    for (int i = 0; i < 3; ++i)
        buttonsOf(picker).at(i)->setChecked((toggles & (1 << i)) != 0);
    for (const QFont& base : {fontWith(63, QFont::StyleOblique, true), fontWith(50, QFont::StyleNormal, false),
                              fontWith(99, QFont::StyleItalic, false)}) {
        const QFont font = picker.apply(base);
        QCOMPARE(font.weight(), (toggles & 1) != 0 ? 75 : 50);
        QCOMPARE(font.style(), (toggles & 2) != 0 ? QFont::StyleItalic : QFont::StyleNormal);
        QCOMPARE(font.underline(), (toggles & 4) != 0);
    }
}

void tst_FontStylePicker::keepsTheRestOfTheFont()
{
    QFont base(QStringLiteral("A family"));
    base.setPointSizeF(17.5);
    base.setOverline(true);
    base.setStrikeOut(true);
    base.setKerning(false);
    base.setStretch(QFont::Expanded);
    base.setCapitalization(QFont::SmallCaps);
    base.setLetterSpacing(QFont::AbsoluteSpacing, 3);
    base.setWordSpacing(5);
    base.setStyleHint(QFont::Monospace, QFont::NoAntialias);
    base.setHintingPreference(QFont::PreferFullHinting);
    QFont expected = base;
    expected.setWeight(75);
    expected.setStyle(QFont::StyleItalic);
    expected.setUnderline(true);

    FontStylePicker picker;
    const auto buttons = buttonsOf(picker);
    for (QToolButton* button : buttons)
        button->setChecked(true);
    const QFont font = picker.apply(base);
    QCOMPARE(font, expected);
    QCOMPARE(font.toString(), expected.toString());
    QCOMPARE(font.letterSpacing(), 3.0);
    QCOMPARE(font.styleHint(), QFont::Monospace);
}

void tst_FontStylePicker::readsAFont_data()
{
    QTest::addColumn<QFont>("font");
    QTest::addColumn<QList<bool>>("states");
    const auto row = [](const char* name, int weight, QFont::Style style, bool underline, const QList<bool>& states) {
        QTest::newRow(name) << fontWith(weight, style, underline) << states;
    };
    row("plain", 50, QFont::StyleNormal, false, {false, false, false});
    row("just not bold", 57, QFont::StyleNormal, false, {false, false, false});
    row("just bold", 58, QFont::StyleNormal, false, {true, false, false});
    row("bold", 75, QFont::StyleNormal, false, {true, false, false});
    row("black", 99, QFont::StyleNormal, false, {true, false, false});
    row("thin", 0, QFont::StyleNormal, false, {false, false, false});
    row("italic", 50, QFont::StyleItalic, false, {false, true, false});
    row("oblique", 50, QFont::StyleOblique, false, {false, true, false});
    row("underlined", 50, QFont::StyleNormal, true, {false, false, true});
    row("all", 75, QFont::StyleItalic, true, {true, true, true});
}

void tst_FontStylePicker::readsAFont()
{
    QFETCH(QFont, font);
    QFETCH(QList<bool>, states);
    FontStylePicker picker;
    for (const bool before : {false, true}) {
        const auto buttons = buttonsOf(picker);
        for (QToolButton* button : buttons)
            button->setChecked(before);
        picker.setFont(font);
        QCOMPARE(statesOf(picker), states);
    }
}

void tst_FontStylePicker::oneSignalForEachToggle()
{
    FontStylePicker picker;
    QSignalSpy changed(&picker, &FontStylePicker::styleChanged);
    picker.setFont(fontWith(75, QFont::StyleNormal, true));
    QCOMPARE(changed.count(), 2);
    picker.setFont(fontWith(58, QFont::StyleNormal, true));
    QCOMPARE(changed.count(), 2);
    picker.setFont(fontWith(50, QFont::StyleItalic, false));
    QCOMPARE(changed.count(), 5);
    buttonsOf(picker).at(1)->setChecked(false);
    QCOMPARE(changed.count(), 6);
}

void tst_FontStylePicker::clicksToggle()
{
    FontStylePicker picker;
    picker.show();
    QSignalSpy changed(&picker, &FontStylePicker::styleChanged);
    // Independent of one another: none is unchecked by the next.
    const auto buttons = buttonsOf(picker);
    for (QToolButton* button : buttons)
        QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(changed.count(), 3);
    QCOMPARE(statesOf(picker), QList<bool>({true, true, true}));
    QTest::keyClick(buttonsOf(picker).at(1), Qt::Key_Space);
    QCOMPARE(changed.count(), 4);
    QCOMPARE(statesOf(picker), QList<bool>({true, false, true}));
}

void tst_FontStylePicker::aSlotMayChangeTheFontThatIsRead()
{
    // A label's font() is a reference to what its setFont() replaces: a panel that shows each step in its sample must
    // not lose the steps that are still to come.
    FontStylePicker picker;
    QLabel sample;
    connect(&picker, &FontStylePicker::styleChanged, &sample, [&] { sample.setFont(picker.apply(sample.font())); });
    sample.setFont(fontWith(75, QFont::StyleItalic, true));
    picker.setFont(sample.font());
    QCOMPARE(statesOf(picker), QList<bool>({true, true, true}));

    QFont shared = fontWith(75, QFont::StyleItalic, true);
    FontStylePicker other;
    connect(&other, &FontStylePicker::styleChanged, &other, [&] { shared = other.apply(shared); });
    other.setFont(shared);
    QCOMPARE(statesOf(other), QList<bool>({true, true, true}));
}

void tst_FontStylePicker::followsTheLanguage()
{
    FontStylePicker picker;
    {
        const ContextTranslator translator("Kestrel::Gui::FontStylePicker");
        QTRY_COMPARE(toolTipsOf(picker), words({"<Bold>", "<Italic>", "<Underline>"}));
        QCOMPARE(toolTipsOf(FontStylePicker()), words({"<Bold>", "<Italic>", "<Underline>"}));
        QCOMPARE(tagsOf(picker), words({"Bold", "Italic", "Underline"})); // roles are no texts
    }
    QTRY_COMPARE(toolTipsOf(picker), words({"Bold", "Italic", "Underline"}));

    // All three are set anew, whatever the application had made of them.
    const auto buttons = buttonsOf(picker);
    for (QToolButton* button : buttons)
        button->setToolTip(QStringLiteral("changed"));
    QEvent other(QEvent::LocaleChange);
    QCoreApplication::sendEvent(&picker, &other);
    QCOMPARE(toolTipsOf(picker), words({"changed", "changed", "changed"}));
    QEvent language(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&picker, &language);
    QCOMPARE(toolTipsOf(picker), words({"Bold", "Italic", "Underline"}));
}

void tst_FontStylePicker::handsNoChangeToTheBaseClass()
{
    // A panel's font is not the picker's business: it keeps its place whatever changes.
    FontStylePicker picker;
    QVERIFY(!TestSupport::fontChangeReachesQWidget(&picker));
    QFrame plain;
    plain.setLayout(new QHBoxLayout);
    QVERIFY(TestSupport::fontChangeReachesQWidget(&plain));
}

void tst_FontStylePicker::ignoresMouseMoves()
{
    // As a plain widget does, so that the move goes on to the parent.
    FontStylePicker picker;
    QMouseEvent move(QEvent::MouseMove, {1, 1}, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&picker, &move);
    QVERIFY(!move.isAccepted());
}

void tst_FontStylePicker::parentOwnsIt()
{
    auto parent = std::make_unique<QWidget>();
    const QPointer<FontStylePicker> picker = new FontStylePicker(parent.get());
    QCOMPARE(picker->parentWidget(), parent.get());
    const QPointer<QToolButton> button = buttonsOf(*picker).constFirst();
    parent.reset();
    QVERIFY(!picker);
    QVERIFY(!button);
}

QTEST_MAIN(tst_FontStylePicker)
#include "tst_FontStylePicker.moc"
