#include <KQt/Ui/ClippingTextLineEdit.h>

#include "support/DirectionalMarks.h"
#include "support/MetaListing.h"

#include <QAction>
#include <QFontMetrics>
#include <QPointer>
#include <QSignalSpy>
#include <QToolButton>

#include <QtTest>

#include <memory>

using Kestrel::Gui::ClippingTextLineEdit;
using TestSupport::marked;

namespace {

const QString longText = QStringLiteral("a sentence that needs more room than there is");

/// A window on the screen with a line edit that is too narrow for longText and another widget for the focus.
class Form : public QWidget
{
public:
    Form()
        : edit(*new ClippingTextLineEdit(this))
        , m_other(*new QLineEdit(this))
    {
        constexpr QSize size(600, 100);
        resize(size);
        m_other.move(0, 2 * height() / 3);
        edit.resize(narrow(), height() / 2);
        m_other.setFocus();
        show();
        activateWindow();
    }

    int narrow() const { return QFontMetrics(edit.font()).horizontalAdvance(marked(longText)) / 2; }
    int wide() const { return narrow() * 3; }
    QString elided() const { return QFontMetrics(edit.font()).elidedText(marked(longText), Qt::ElideRight, narrow()); }

    void enter(Qt::FocusReason reason = Qt::OtherFocusReason) { edit.setFocus(reason); }
    void leave(Qt::FocusReason reason = Qt::OtherFocusReason) { m_other.setFocus(reason); }

    /// Replaces the whole text as a user does.
    void type(const QString& text)
    {
        edit.selectAll();
        QTest::keyClicks(&edit, text);
    }

    ClippingTextLineEdit& edit;

private:
    QLineEdit& m_other;
};

} // namespace

class tst_ClippingTextLineEdit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void defaults();
    void metaObject();
    void textIsKeptBetweenMarks();
    void elidesToTheWholeWidth();
    void settingTheTextEmitsNothing();
    void cursorGoesToTheStart();
    void focusShowsTheWholeText();
    void baseClassSeesTheFocus();
    void leavingWithoutTypingEmitsNothing();
    void textsBeyondTheMaximumStayWhole();
    void typingIsStoredWhenTheFocusLeaves();
    void longTypingIsElided();
    void typingBesideTheMarks_data();
    void typingBesideTheMarks();
    void everyLossOfTheFocusStores_data();
    void everyLossOfTheFocusStores();
    void resizeLosesUncommittedTyping();
    void settingTheTextLosesUncommittedTyping();
    void baseClassSeesResizes();
    void slotSetsTheTextAnew();
    void deletedFromItsSignal();

private:
    std::unique_ptr<Form> m_form;
};

void tst_ClippingTextLineEdit::init()
{
    m_form = std::make_unique<Form>();
    QTRY_VERIFY(m_form->isActiveWindow());
}

void tst_ClippingTextLineEdit::cleanup()
{
    m_form.reset();
}

void tst_ClippingTextLineEdit::defaults()
{
    QWidget parent;
    const ClippingTextLineEdit edit(&parent);
    QCOMPARE(edit.parentWidget(), &parent);
    QCOMPARE(edit.GetOriginalText(), QString());
    QCOMPARE(edit.text(), QString());
    QCOMPARE(edit.toolTip(), QString());
}

void tst_ClippingTextLineEdit::metaObject()
{
    const QMetaObject& meta = ClippingTextLineEdit::staticMetaObject;
    QCOMPARE(meta.superClass(), &QLineEdit::staticMetaObject);
    QCOMPARE(TestSupport::ownProperties(meta), QStringList());
    QCOMPARE(TestSupport::ownMethods(meta), QStringList{QStringLiteral("signal OriginalTextChanged(QString)")});
}

void tst_ClippingTextLineEdit::textIsKeptBetweenMarks()
{
    ClippingTextLineEdit& edit = m_form->edit;
    edit.SetOriginalText(QStringLiteral("abc"));
    QCOMPARE(edit.text(), QStringLiteral("\u202aabc\u202c"));
    QCOMPARE(edit.GetOriginalText(), QStringLiteral("abc"));
    // Marks of the caller's own go with the edit's: all of them and not only the outer two, on purpose.
    edit.SetOriginalText(QStringLiteral("a\u202ab\u202cc\u200e"));
    QCOMPARE(edit.GetOriginalText(), QStringLiteral("abc\u200e"));
    edit.SetOriginalText(QString());
    QCOMPARE(edit.text(), QStringLiteral("\u202a\u202c"));
    QCOMPARE(edit.GetOriginalText(), QString());
}

void tst_ClippingTextLineEdit::elidesToTheWholeWidth()
{
    ClippingTextLineEdit& edit = m_form->edit;
    const QFontMetrics metrics(edit.font());
    edit.SetOriginalText(longText);
    for (const bool frame : {true, false}) {
        edit.setFrame(frame);
        int elided = 0;
        for (int width = m_form->wide(); width > 0; --width) {
            edit.resize(width, 30);
            // The frame and the margins are not taken off on purpose: the ellipsis may lie under the frame's edge.
            const QString expected = metrics.elidedText(marked(longText), Qt::ElideRight, width);
            QCOMPARE(edit.text(), expected);
            QCOMPARE(edit.toolTip(), expected == marked(longText) ? QString() : marked(longText));
            elided += expected == marked(longText) ? 0 : 1;
        }
        QVERIFY(elided >= m_form->narrow());
    }
    QCOMPARE(edit.GetOriginalText(), longText);
}

void tst_ClippingTextLineEdit::settingTheTextEmitsNothing()
{
    const QSignalSpy changed(&m_form->edit, &ClippingTextLineEdit::OriginalTextChanged);
    m_form->edit.SetOriginalText(longText);
    QCOMPARE(m_form->edit.text(), m_form->elided());
    QCOMPARE(changed.count(), 0);
}

void tst_ClippingTextLineEdit::cursorGoesToTheStart()
{
    ClippingTextLineEdit& edit = m_form->edit;
    edit.SetOriginalText(longText);
    QCOMPARE(edit.cursorPosition(), 0);
    edit.setCursorPosition(5);
    edit.resize(edit.width(), 31);
    QCOMPARE(edit.cursorPosition(), 0);
    edit.setCursorPosition(5);
    m_form->enter();
    QCOMPARE(edit.cursorPosition(), 0);
    edit.setCursorPosition(5);
    m_form->leave();
    QCOMPARE(edit.cursorPosition(), 0);
}

void tst_ClippingTextLineEdit::focusShowsTheWholeText()
{
    ClippingTextLineEdit& edit = m_form->edit;
    edit.SetOriginalText(longText);
    QCOMPARE(edit.text(), m_form->elided());
    QCOMPARE(edit.toolTip(), marked(longText));
    m_form->enter();
    QVERIFY(edit.hasFocus());
    QCOMPARE(edit.text(), marked(longText));
    QCOMPARE(edit.toolTip(), QString());
    edit.resize(m_form->narrow() / 2, 30);
    QCOMPARE(edit.text(), marked(longText));
    edit.resize(m_form->narrow(), 30);
    m_form->leave();
    QCOMPARE(edit.text(), m_form->elided());
    QCOMPARE(edit.toolTip(), marked(longText));
}

void tst_ClippingTextLineEdit::baseClassSeesTheFocus()
{
    ClippingTextLineEdit& edit = m_form->edit;
    edit.SetOriginalText(longText);
    // The tab key selects the text, which is the whole text by then.
    m_form->enter(Qt::TabFocusReason);
    QCOMPARE(edit.selectedText(), marked(longText));

    // Editing is finished after the new original is known and shown.
    QStringList events;
    connect(&edit, &ClippingTextLineEdit::OriginalTextChanged, &edit,
            [&events](const QString& text) { events << QStringLiteral("changed ") + text; });
    connect(&edit, &QLineEdit::editingFinished, &edit,
            [&] { events << QStringLiteral("finished ") + edit.GetOriginalText(); });
    m_form->type(QStringLiteral("typed"));
    m_form->leave();
    QCOMPARE(events, (QStringList{QStringLiteral("changed typed"), QStringLiteral("finished typed")}));
}

void tst_ClippingTextLineEdit::leavingWithoutTypingEmitsNothing()
{
    const QSignalSpy changed(&m_form->edit, &ClippingTextLineEdit::OriginalTextChanged);
    for (const QString& text : {QStringLiteral("short"), longText}) {
        m_form->edit.SetOriginalText(text);
        m_form->enter();
        m_form->leave();
        QCOMPARE(m_form->edit.GetOriginalText(), text);
        QCOMPARE(changed.count(), 0);
    }
}

void tst_ClippingTextLineEdit::textsBeyondTheMaximumStayWhole()
{
    constexpr int maximum = 10;
    QSignalSpy changed(&m_form->edit, &ClippingTextLineEdit::OriginalTextChanged);
    m_form->edit.setMaxLength(maximum);
    m_form->edit.SetOriginalText(longText);
    m_form->enter();
    QCOMPARE(m_form->edit.text(), marked(longText).left(maximum));
    m_form->edit.resize(m_form->narrow() - 1, m_form->edit.height());
    m_form->leave();
    QCOMPARE(m_form->edit.GetOriginalText(), longText);
    QCOMPARE(changed.count(), 0);

    m_form->enter();
    m_form->type(QStringLiteral("typed"));
    m_form->leave();
    QCOMPARE(m_form->edit.GetOriginalText(), QStringLiteral("typed"));
    QCOMPARE(changed.count(), 1);
}

void tst_ClippingTextLineEdit::typingIsStoredWhenTheFocusLeaves()
{
    ClippingTextLineEdit& edit = m_form->edit;
    const QSignalSpy changed(&edit, &ClippingTextLineEdit::OriginalTextChanged);
    edit.SetOriginalText(QStringLiteral("before"));
    m_form->enter();
    m_form->type(QStringLiteral("after"));
    QCOMPARE(changed.count(), 0);
    QCOMPARE(edit.GetOriginalText(), QStringLiteral("before"));
    m_form->leave();
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.first().first().toString(), QStringLiteral("after"));
    // What the user typed is kept without marks around it, on purpose: it is the user's text as it stands.
    QCOMPARE(edit.text(), QStringLiteral("after"));
    QCOMPARE(edit.GetOriginalText(), QStringLiteral("after"));
    QCOMPARE(edit.toolTip(), QString());

    m_form->enter();
    QCOMPARE(edit.text(), QStringLiteral("after"));
    m_form->leave();
    QCOMPARE(changed.count(), 1);
}

void tst_ClippingTextLineEdit::longTypingIsElided()
{
    ClippingTextLineEdit& edit = m_form->edit;
    m_form->enter();
    m_form->type(longText);
    m_form->leave();
    QCOMPARE(edit.text(), QFontMetrics(edit.font()).elidedText(longText, Qt::ElideRight, edit.width()));
    QVERIFY(edit.text() != longText);
    QCOMPARE(edit.toolTip(), longText);
    QCOMPARE(edit.GetOriginalText(), longText);
}

void tst_ClippingTextLineEdit::typingBesideTheMarks_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("readBack");

    // Only a text that begins with the first mark is stripped of its marks, on purpose.
    QTest::newRow("before the first mark")
        << Qt::Key_Home << QStringLiteral("x\u202aabc\u202c") << QStringLiteral("x\u202aabc\u202c");
    QTest::newRow("behind the last mark")
        << Qt::Key_End << QStringLiteral("\u202aabc\u202cx") << QStringLiteral("abcx");
}

void tst_ClippingTextLineEdit::typingBesideTheMarks()
{
    QFETCH(Qt::Key, key);
    QFETCH(QString, typed);
    QFETCH(QString, readBack);
    ClippingTextLineEdit& edit = m_form->edit;
    const QSignalSpy changed(&edit, &ClippingTextLineEdit::OriginalTextChanged);
    edit.SetOriginalText(QStringLiteral("abc"));
    m_form->enter();
    QTest::keyClick(&edit, key);
    QTest::keyClicks(&edit, QStringLiteral("x"));
    m_form->leave();
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.first().first().toString(), typed);
    QCOMPARE(edit.GetOriginalText(), readBack);
}

void tst_ClippingTextLineEdit::everyLossOfTheFocusStores_data()
{
    QTest::addColumn<Qt::FocusReason>("reason");

    QTest::newRow("tab") << Qt::TabFocusReason;
    QTest::newRow("mouse") << Qt::MouseFocusReason;
    QTest::newRow("context menu") << Qt::PopupFocusReason;
    QTest::newRow("another window") << Qt::ActiveWindowFocusReason;
}

void tst_ClippingTextLineEdit::everyLossOfTheFocusStores()
{
    QFETCH(Qt::FocusReason, reason);
    ClippingTextLineEdit& edit = m_form->edit;
    const QSignalSpy changed(&edit, &ClippingTextLineEdit::OriginalTextChanged);
    m_form->enter();
    m_form->type(QStringLiteral("typed"));
    // Menus and other windows take the focus away with such an event while the edit stays its window's focus widget.
    QFocusEvent lost(QEvent::FocusOut, reason);
    QCoreApplication::sendEvent(&edit, &lost);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(edit.GetOriginalText(), QStringLiteral("typed"));

    QFocusEvent back(QEvent::FocusIn, reason);
    QCoreApplication::sendEvent(&edit, &back);
    QCOMPARE(edit.text(), QStringLiteral("typed"));
    m_form->leave(reason);
    QCOMPARE(changed.count(), 1);
}

void tst_ClippingTextLineEdit::resizeLosesUncommittedTyping()
{
    // The original text comes back and the typing is gone: kept, applications commit before they lay out.
    ClippingTextLineEdit& edit = m_form->edit;
    const QSignalSpy changed(&edit, &ClippingTextLineEdit::OriginalTextChanged);
    edit.SetOriginalText(QStringLiteral("before"));
    m_form->enter();
    m_form->type(QStringLiteral("typed"));
    edit.resize(m_form->wide(), 30);
    QCOMPARE(edit.text(), marked(QStringLiteral("before")));
    QCOMPARE(edit.cursorPosition(), 0);
    m_form->leave();
    QCOMPARE(changed.count(), 0);
    QCOMPARE(edit.GetOriginalText(), QStringLiteral("before"));
}

void tst_ClippingTextLineEdit::settingTheTextLosesUncommittedTyping()
{
    ClippingTextLineEdit& edit = m_form->edit;
    const QSignalSpy changed(&edit, &ClippingTextLineEdit::OriginalTextChanged);
    m_form->enter();
    m_form->type(QStringLiteral("typed"));
    edit.SetOriginalText(longText);
    QCOMPARE(edit.text(), marked(longText)); // still edited, so the whole of it
    m_form->leave();
    QCOMPARE(changed.count(), 0);
    QCOMPARE(edit.text(), m_form->elided());
}

void tst_ClippingTextLineEdit::baseClassSeesResizes()
{
    ClippingTextLineEdit& edit = m_form->edit;
    // The position at the right in either direction: that is the one which a resize moves.
    const auto atTheRight = edit.isRightToLeft() ? QLineEdit::LeadingPosition : QLineEdit::TrailingPosition;
    QAction action;
    edit.addAction(&action, atTheRight);
    const auto* button = edit.findChild<QToolButton*>();
    QVERIFY(button);
    const int before = edit.width() - button->x();
    edit.resize(m_form->wide(), edit.height());
    QCOMPARE(edit.width() - button->x(), before);
}

void tst_ClippingTextLineEdit::slotSetsTheTextAnew()
{
    ClippingTextLineEdit& edit = m_form->edit;
    int changes = 0;
    connect(&edit, &ClippingTextLineEdit::OriginalTextChanged, &edit, [&] {
        ++changes;
        edit.SetOriginalText(longText);
    });
    m_form->enter();
    m_form->type(QStringLiteral("typed"));
    m_form->leave();
    QCOMPARE(changes, 1);
    QCOMPARE(edit.text(), m_form->elided());
    QCOMPARE(edit.GetOriginalText(), longText);
}

void tst_ClippingTextLineEdit::deletedFromItsSignal()
{
    const QPointer<ClippingTextLineEdit> edit = &m_form->edit;
    connect(edit, &ClippingTextLineEdit::OriginalTextChanged, [edit] { delete edit; });
    m_form->enter();
    m_form->type(QStringLiteral("typed"));
    // The event alone: what moves the focus touches the widget again after it.
    QFocusEvent lost(QEvent::FocusOut);
    edit->event(&lost);
    QVERIFY(!edit);
}

QTEST_MAIN(tst_ClippingTextLineEdit)
#include "tst_ClippingTextLineEdit.moc"
