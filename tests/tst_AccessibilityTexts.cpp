#include <KQt/Ui/AdvancedComboBox.h>
#include <KQt/Ui/ClickableLabel.h>
#include <KQt/Ui/ClippingTextLineEdit.h>
#include <KQt/Ui/ExtendedLabel.h>

#include "support/AccessibleUpdates.h"

#include <QAbstractItemView>
#include <QSignalSpy>
#include <QVBoxLayout>

#include <QtTest>

using Kestrel::Gui::AdvancedComboBox;
using Kestrel::Gui::ClickableLabel;
using Kestrel::Gui::ClippingTextLineEdit;
using Kestrel::Gui::ExtendedLabel;
using namespace TestSupport;

namespace {

const QString longText = QStringLiteral("a sentence that needs more room than there is");

/// A narrow window with a text widget, and another one that can take the focus away.
template <typename Widget>
struct Shown
{
    Shown()
    {
        auto* const layout = new QVBoxLayout(&window);
        layout->addWidget(&other);
        layout->addWidget(&widget);
        widget.setFixedWidth(60);
        other.setFocus();
        window.show();
        QApplication::setActiveWindow(&window);
    }

    QWidget window;
    QLineEdit other;
    Widget widget;
};

} // namespace

/// What assistive technology is told about texts that are shown elided.
class tst_AccessibilityTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void labelTellsItsWholeText();
    void labelWithoutMarks();
    void labelWithAnOrdinaryText();
    void labelAnnouncesANewText();
    void labelIsTheNameOfItsBuddy();
    void clickableLabelsCanBePressed();
    void editTellsItsWholeText();
    void editByCharacters();
    void editBySelection();
    void editKeepsASecret();
    void editIsChangedWithoutTheFocus();
    void editIsChangedWhileItIsEdited();
    void readOnlyEditIsNotChanged();
    void comboBoxTellsItsWholeText();
};

void tst_AccessibilityTexts::labelTellsItsWholeText()
{
    Shown<ExtendedLabel> shown;
    shown.widget.SetOriginalText(longText);
    QVERIFY(!shown.widget.text().contains(longText));
    QCOMPARE(accessible(&shown.widget)->role(), QAccessible::StaticText);
    QCOMPARE(nameOf(&shown.widget), longText);
    QVERIFY(!shown.widget.toolTip().isEmpty());
    QCOMPARE(descriptionOf(&shown.widget), QString()); // not the same thing twice
    shown.widget.SetDynamicTooltip(false);
    shown.widget.setToolTip(QStringLiteral("more"));
    QCOMPARE(descriptionOf(&shown.widget), QStringLiteral("more"));
    shown.widget.setAccessibleName(QStringLiteral("Path"));
    QCOMPARE(nameOf(&shown.widget), QStringLiteral("Path"));
}

void tst_AccessibilityTexts::labelWithoutMarks()
{
    QString text = QStringLiteral("a");
    for (const ushort mark : {0x200e, 0x200f, 0x2066, 0x2069, 0x202b, 0x061c})
        text += QChar(mark) + QStringLiteral("b");
    ExtendedLabel label;
    label.SetOriginalText(text);
    QCOMPARE(nameOf(&label), QStringLiteral("abbbbbb"));
}

void tst_AccessibilityTexts::labelWithAnOrdinaryText()
{
    ExtendedLabel label;
    QCOMPARE(nameOf(&label), QString());
    label.setText(QStringLiteral("<b>bold</b> words"));
    QCOMPARE(nameOf(&label), QStringLiteral("bold words"));
    label.setTextFormat(Qt::PlainText);
    QCOMPARE(nameOf(&label), QStringLiteral("<b>bold</b> words"));
}

void tst_AccessibilityTexts::labelAnnouncesANewText()
{
    REQUIRE_ASSISTIVE_TECHNOLOGY();
    Shown<ExtendedLabel> shown;
    shown.widget.SetOriginalText(longText);
    const QString before = shown.widget.text();
    const AccessibleUpdates updates;
    // It looks the same, for the end of the text is cut off.
    shown.widget.SetOriginalText(longText + QStringLiteral(" today"));
    QCOMPARE(shown.widget.text(), before);
    QCOMPARE(updates.count(&shown.widget, QAccessible::NameChanged), 1);
}

void tst_AccessibilityTexts::labelIsTheNameOfItsBuddy()
{
    Shown<ExtendedLabel> shown;
    shown.widget.SetOriginalText(longText);
    shown.widget.setBuddy(&shown.other);
    const auto relations = accessible(&shown.widget)->relations(QAccessible::Labelled);
    QCOMPARE(relations.size(), 1);
    QCOMPARE(relations.constFirst().first, accessible(&shown.other));
}

void tst_AccessibilityTexts::clickableLabelsCanBePressed()
{
    Shown<ExtendedLabel> extended;
    QSignalSpy extendedClicked(&extended.widget, &ExtendedLabel::clicked);
    press(accessible(&extended.widget));
    QTRY_COMPARE(extendedClicked.count(), 1);

    Shown<ClickableLabel> clickable;
    clickable.widget.setText(QStringLiteral("more"));
    QCOMPARE(nameOf(&clickable.widget), QStringLiteral("more"));
    QSignalSpy clicked(&clickable.widget, &ClickableLabel::clicked);
    press(accessible(&clickable.widget));
    QTRY_COMPARE(clicked.count(), 1);
    clickable.widget.SetClickable(false);
    QVERIFY(!accessible(&clickable.widget)
                 ->actionInterface()
                 ->actionNames()
                 .contains(QAccessibleActionInterface::pressAction()));
    press(accessible(&clickable.widget));
    QCoreApplication::processEvents();
    QCOMPARE(clicked.count(), 1);
}

void tst_AccessibilityTexts::editTellsItsWholeText()
{
    Shown<ClippingTextLineEdit> shown;
    shown.widget.SetOriginalText(longText);
    QVERIFY(!shown.widget.text().contains(longText));
    QCOMPARE(accessible(&shown.widget)->role(), QAccessible::EditableText);
    QCOMPARE(valueOf(&shown.widget), longText);
    QCOMPARE(descriptionOf(&shown.widget), QString());
    QVERIFY(accessible(&shown.widget)->state().editable);
    shown.widget.setFocus();
    QTRY_VERIFY(shown.widget.hasFocus());
    QCOMPARE(valueOf(&shown.widget), longText);
    shown.widget.setPlaceholderText(QStringLiteral("Path"));
    QCOMPARE(nameOf(&shown.widget), QStringLiteral("Path"));
}

void tst_AccessibilityTexts::editByCharacters()
{
    Shown<ClippingTextLineEdit> shown;
    shown.widget.SetOriginalText(longText);
    QAccessibleTextInterface* const text = accessible(&shown.widget)->textInterface();
    QVERIFY(text);
    QCOMPARE(text->characterCount(), longText.size());
    QCOMPARE(text->text(2, 10), QStringLiteral("sentence"));
    int start = 0;
    int end = 0;
    QCOMPARE(text->textAtOffset(3, QAccessible::WordBoundary, &start, &end), QStringLiteral("sentence"));
    QCOMPARE(start, 2);
    QCOMPARE(end, 10);

    shown.widget.setFocus();
    QTRY_VERIFY(shown.widget.hasFocus());
    shown.widget.home(false);
    QTest::keyClick(&shown.widget, Qt::Key_Right); // over the mark
    QTest::keyClick(&shown.widget, Qt::Key_Right);
    QCOMPARE(text->cursorPosition(), shown.widget.text().leftRef(shown.widget.cursorPosition()).size() - 1);
    text->setCursorPosition(4);
    QCOMPARE(text->cursorPosition(), 4);
    QVERIFY(shown.widget.text().leftRef(shown.widget.cursorPosition()).endsWith(QStringLiteral("a se")));
    QVERIFY(accessible(&shown.widget)->rect().intersects(text->characterRect(1)));
}

void tst_AccessibilityTexts::editBySelection()
{
    Shown<ClippingTextLineEdit> shown;
    shown.widget.SetOriginalText(longText);
    shown.widget.setFocus();
    QTRY_VERIFY(shown.widget.hasFocus());
    QAccessibleTextInterface* const text = accessible(&shown.widget)->textInterface();
    QCOMPARE(text->selectionCount(), 0);
    text->setSelection(0, 2, 10);
    QCOMPARE(shown.widget.selectedText(), QStringLiteral("sentence"));
    QCOMPARE(text->selectionCount(), 1);
    int start = 0;
    int end = 0;
    text->selection(0, &start, &end);
    QCOMPARE(start, 2);
    QCOMPARE(end, 10);
    text->removeSelection(0);
    QVERIFY(!shown.widget.hasSelectedText());
}

void tst_AccessibilityTexts::editKeepsASecret()
{
    Shown<ClippingTextLineEdit> shown;
    shown.widget.setEchoMode(QLineEdit::Password);
    shown.widget.SetOriginalText(QStringLiteral("open sesame"));
    QAccessibleInterface* const edit = accessible(&shown.widget);
    QVERIFY(edit->state().passwordEdit);
    QVERIFY(!valueOf(&shown.widget).contains(QStringLiteral("sesame")));
    QVERIFY(!edit->textInterface()->text(0, 99).contains(QStringLiteral("sesame")));
    int start = 0;
    int end = 0;
    QVERIFY(edit->textInterface()->textAtOffset(0, QAccessible::WordBoundary, &start, &end).isEmpty());
    edit->editableTextInterface()->insertText(0, QStringLiteral("x"));
    QCOMPARE(shown.widget.GetOriginalText(), QStringLiteral("open sesame"));
}

void tst_AccessibilityTexts::editIsChangedWithoutTheFocus()
{
    Shown<ClippingTextLineEdit> shown;
    shown.widget.SetOriginalText(longText);
    QSignalSpy changed(&shown.widget, &ClippingTextLineEdit::OriginalTextChanged);
    QAccessibleEditableTextInterface* const edit = accessible(&shown.widget)->editableTextInterface();
    edit->replaceText(2, 10, QStringLiteral("word"));
    QCOMPARE(changed.count(), 1);
    QVERIFY(shown.widget.GetOriginalText().startsWith(QStringLiteral("a word that")));
    edit->deleteText(0, 2);
    edit->insertText(0, QStringLiteral("The "));
    QVERIFY(shown.widget.GetOriginalText().startsWith(QStringLiteral("The word that")));
    accessible(&shown.widget)->setText(QAccessible::Value, QStringLiteral("short"));
    QCOMPARE(changed.count(), 4);
    QCOMPARE(changed.constLast().constFirst().toString(), QStringLiteral("short"));
    QCOMPARE(valueOf(&shown.widget), QStringLiteral("short"));
}

void tst_AccessibilityTexts::editIsChangedWhileItIsEdited()
{
    Shown<ClippingTextLineEdit> shown;
    shown.widget.SetOriginalText(longText);
    shown.widget.setFocus();
    QTRY_VERIFY(shown.widget.hasFocus());
    QSignalSpy changed(&shown.widget, &ClippingTextLineEdit::OriginalTextChanged);
    accessible(&shown.widget)->editableTextInterface()->replaceText(0, longText.size(), QStringLiteral("short"));
    QCOMPARE(valueOf(&shown.widget), QStringLiteral("short"));
    QCOMPARE(changed.count(), 0);
    shown.other.setFocus();
    QCOMPARE(changed.count(), 1);
    QCOMPARE(shown.widget.GetOriginalText(), QStringLiteral("short"));
}

void tst_AccessibilityTexts::readOnlyEditIsNotChanged()
{
    Shown<ClippingTextLineEdit> shown;
    shown.widget.SetOriginalText(longText);
    shown.widget.setReadOnly(true);
    QVERIFY(accessible(&shown.widget)->state().readOnly);
    accessible(&shown.widget)->setText(QAccessible::Value, QStringLiteral("short"));
    QCOMPARE(shown.widget.GetOriginalText(), longText);
}

void tst_AccessibilityTexts::comboBoxTellsItsWholeText()
{
    Shown<AdvancedComboBox> shown;
    shown.widget.addItem(longText);
    shown.window.grab(); // the box elides when it is painted
    QCOMPARE(shown.widget.toolTip(), longText);
    QCOMPARE(accessible(&shown.widget)->role(), QAccessible::ComboBox);
    QCOMPARE(valueOf(&shown.widget), longText);
    shown.widget.setWidePopupEnabled(false);
    QCOMPARE(accessible(&shown.widget)->child(0), accessible(shown.widget.view()));
}

QTEST_MAIN(tst_AccessibilityTexts)
#include "tst_AccessibilityTexts.moc"
