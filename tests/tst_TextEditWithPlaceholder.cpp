#include <KQt/Ui/TextEditWithPlaceholder.h>

#include "support/MetaListing.h"
#include "support/Render.h"
#include "support/WindowSystem.h"

#include <QLineEdit>
#include <QPainter>
#include <QPaintEvent>
#include <QScreen>
#include <QSignalBlocker>

#include <QtTest>

#include <memory>
#include <utility>

using Kestrel::Gui::TextEditWithPlaceholder;
using TestSupport::render;

Q_DECLARE_METATYPE(Qt::TextInteractionFlag)

namespace {

const QString hint = QStringLiteral("What do you think?");

/// Counts the paintings of a widget. It stops those of one that paints for ever, so that the test ends.
class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget& widget) { widget.installEventFilter(this); }

    int paintings = 0;
    QRegion painted;

protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        constexpr int endless = 100;
        if (event->type() != QEvent::Paint)
            return false;
        painted += static_cast<QPaintEvent*>(event)->region();
        return ++paintings > endless;
    }
};

/// A window on the screen with an empty editor and another widget that has the focus.
class Form : public QWidget
{
public:
    explicit Form(QPoint position = {10, 10})
        : edit(*new TextEditWithPlaceholder(this))
        , m_other(*new QLineEdit(this))
    {
        resize(600, 300);
        edit.setGeometry(QRect(position, QSize(200, 100)));
        m_other.setGeometry(0, 250, 100, 30);
        m_other.setFocus();
        show();
        activateWindow();
    }

    void enter() { edit.setFocus(); }
    void leave() { m_other.setFocus(); }

    /// What the last paintings left on the screen, other than render(), which paints anew.
    QImage onScreen() const
    {
        QCoreApplication::processEvents();
        const QRect part(edit.viewport()->mapTo(this, {}), edit.viewport()->size());
        return screen()
            ->grabWindow(winId(), part.x(), part.y(), part.width(), part.height())
            .toImage()
            .convertToFormat(QImage::Format_RGB32);
    }

    /// Whether painting everything anew would change nothing on the screen.
    bool isUpToDate() const
    {
        const QImage before = onScreen();
        edit.viewport()->update();
        return onScreen() == before;
    }

    /// Whether the hint's first or a later line is on the screen, the place of the text cursor left out.
    bool showsLine(int line) const
    {
        constexpr int besideTheCursor = 20;
        const int height = edit.fontMetrics().height();
        const QImage picture = onScreen();
        for (int y = 5 + line * height; y < 5 + (line + 1) * height; ++y) {
            for (int x = besideTheCursor; x < picture.width(); ++x) {
                if (picture.pixelColor(x, y) != edit.palette().color(QPalette::Base))
                    return true;
            }
        }
        return false;
    }

    TextEditWithPlaceholder& edit;

private:
    QLineEdit& m_other;
};

/// Tells whether the editor accepted its last paint event, which comes to it unaccepted.
class FrankEditor : public TextEditWithPlaceholder
{
public:
    using TextEditWithPlaceholder::TextEditWithPlaceholder;

    bool accepted = false;

protected:
    void paintEvent(QPaintEvent* event) override
    {
        event->ignore();
        TextEditWithPlaceholder::paintEvent(event);
        accepted = event->isAccepted();
    }
};

/// A plain editor on which a hint is drawn by hand.
class ReferenceEditor : public QPlainTextEdit
{
public:
    ReferenceEditor(const TextEditWithPlaceholder& edit, QString text, QColor color)
        : QPlainTextEdit(edit.parentWidget())
        , m_text(std::move(text))
        , m_color(std::move(color))
    {
        setPalette(edit.palette());
        setEnabled(edit.isEnabled());
        setGeometry(edit.geometry());
        show();
    }

protected:
    void paintEvent(QPaintEvent* event) override
    {
        QPlainTextEdit::paintEvent(event);
        QPainter painter(viewport());
        m_color.setAlpha(128);
        painter.setPen(m_color);
        painter.drawText(QRect(QPoint(5, 5), geometry().bottomRight()), Qt::AlignLeft | Qt::AlignTop, m_text);
    }

private:
    QString m_text;
    QColor m_color;
};

/// What the viewport of @p edit shows with @p text as a hint of @p color on it.
QImage expectedPicture(const TextEditWithPlaceholder& edit, const QString& text, const QColor& color)
{
    return render(*ReferenceEditor(edit, text, color).viewport());
}

QImage expectedPicture(const TextEditWithPlaceholder& edit, const QString& text)
{
    return expectedPicture(edit, text, edit.palette().color(QPalette::Active, QPalette::Text));
}

} // namespace

class tst_TextEditWithPlaceholder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void defaults();
    void metaObject();
    void baseClassHasNoPlaceholder();
    void hintIsHalfTransparentTextAtFiveByFive_data();
    void hintIsHalfTransparentTextAtFiveByFive();
    void hintHasTheColorOfTheState();
    void hintStartsLeftInRightToLeftLayoutsToo();
    void nothingIsPaintedWithFocusOrText();
    void paintEventIsAcceptedWithTheHint();
    void hintFollowsTheFocus_data();
    void hintFollowsTheFocus();
    void hintFollowsTheText_data();
    void hintFollowsTheText();
    void newHintIsShownAtOnce();
    void sameHintPaintsNothing();
    void newHintBesideFocusOrTextPaintsNothing();
    void partialPaintingIsCompleted();
    void neverPaintsForEver_data();
    void neverPaintsForEver();

private:
    std::unique_ptr<Form> m_form;
};

void tst_TextEditWithPlaceholder::init()
{
    m_form = std::make_unique<Form>();
    QTRY_VERIFY(m_form->isActiveWindow());
}

void tst_TextEditWithPlaceholder::cleanup()
{
    m_form.reset();
}

void tst_TextEditWithPlaceholder::defaults()
{
    QWidget parent;
    TextEditWithPlaceholder edit(&parent);
    QCOMPARE(edit.parentWidget(), &parent);
    QCOMPARE(edit.placeholderText(), QString());
    edit.setPlaceholderText(hint);
    QCOMPARE(edit.placeholderText(), hint);
}

void tst_TextEditWithPlaceholder::metaObject()
{
    const QMetaObject& meta = TextEditWithPlaceholder::staticMetaObject;
    QCOMPARE(meta.superClass(), &QPlainTextEdit::staticMetaObject);
    QCOMPARE(TestSupport::ownProperties(meta), QStringList{QStringLiteral("placeholderText QString")});
    QCOMPARE(TestSupport::ownMethods(meta), QStringList());
}

void tst_TextEditWithPlaceholder::baseClassHasNoPlaceholder()
{
    // QPlainTextEdit has a property of the same name, which it would show in its own way and with focus, too.
    TextEditWithPlaceholder edit;
    QVERIFY(edit.setProperty("placeholderText", hint));
    QCOMPARE(edit.placeholderText(), hint);
    QCOMPARE(edit.QPlainTextEdit::placeholderText(), QString());
}

void tst_TextEditWithPlaceholder::hintIsHalfTransparentTextAtFiveByFive_data()
{
    QTest::addColumn<QPoint>("position");
    QTest::addColumn<QString>("text");

    const QString lines = QStringLiteral("a hint of\nseveral lines, one of which is far longer than the editor");
    // The area reaches to the editor's right and bottom in its parent, kept so: far from the corner it is larger than
    // the viewport, which clips it; left of the corner it ends early.
    for (const QPoint position : {QPoint(0, 0), QPoint(300, 150), QPoint(-100, 0), QPoint(0, -80)}) {
        QTest::addRow("one line at %d, %d", position.x(), position.y()) << position << hint;
        QTest::addRow("lines at %d, %d", position.x(), position.y()) << position << lines;
    }
}

void tst_TextEditWithPlaceholder::hintIsHalfTransparentTextAtFiveByFive()
{
    QFETCH(QPoint, position);
    QFETCH(QString, text);
    TextEditWithPlaceholder& edit = m_form->edit;
    edit.move(position);
    const QImage blank = render(*edit.viewport());
    edit.setPlaceholderText(text);
    const QImage picture = render(*edit.viewport());
    QVERIFY(picture != blank);
    QCOMPARE(picture, expectedPicture(edit, text));
}

void tst_TextEditWithPlaceholder::hintHasTheColorOfTheState()
{
    TextEditWithPlaceholder& edit = m_form->edit;
    edit.setPlaceholderText(hint);
    QPalette palette = edit.palette();
    palette.setColor(QPalette::Active, QPalette::Text, Qt::red);
    palette.setColor(QPalette::Inactive, QPalette::Text, Qt::green);
    palette.setColor(QPalette::Disabled, QPalette::Text, QColor(0, 0, 255, 40)); // its own opacity counts for nothing
    edit.setPalette(palette);
    QCOMPARE(render(*edit.viewport()), expectedPicture(edit, hint, Qt::red));
    edit.setEnabled(false);
    QCOMPARE(render(*edit.viewport()), expectedPicture(edit, hint, Qt::blue));
}

void tst_TextEditWithPlaceholder::hintStartsLeftInRightToLeftLayoutsToo()
{
    // Mirrored it would lie at the right of an area that is larger than the viewport, and nobody would see it.
    TextEditWithPlaceholder& edit = m_form->edit;
    edit.move(300, 100);
    edit.setLayoutDirection(Qt::RightToLeft);
    edit.setPlaceholderText(hint);
    QCOMPARE(render(*edit.viewport()), expectedPicture(edit, hint));
}

void tst_TextEditWithPlaceholder::nothingIsPaintedWithFocusOrText()
{
    TextEditWithPlaceholder& edit = m_form->edit;
    edit.setCursorWidth(0);
    const QImage blank = render(*edit.viewport());
    edit.setPlaceholderText(hint);
    QVERIFY(render(*edit.viewport()) != blank);
    m_form->enter();
    QCOMPARE(render(*edit.viewport()), blank);
    m_form->leave();
    QVERIFY(render(*edit.viewport()) != blank);
    edit.setPlainText(QStringLiteral(" "));
    QCOMPARE(render(*edit.viewport()), blank);
    edit.clear();
    QVERIFY(render(*edit.viewport()) != blank);
    edit.setPlaceholderText(QString());
    QCOMPARE(render(*edit.viewport()), blank);
}

void tst_TextEditWithPlaceholder::paintEventIsAcceptedWithTheHint()
{
    FrankEditor edit;
    render(*edit.viewport());
    QVERIFY(!edit.accepted);
    edit.setPlaceholderText(hint);
    render(*edit.viewport());
    QVERIFY(edit.accepted);
}

void tst_TextEditWithPlaceholder::hintFollowsTheFocus_data()
{
    QTest::addColumn<int>("cursorWidth");
    QTest::addColumn<Qt::TextInteractionFlag>("interaction");

    QTest::newRow("with a cursor") << 1 << Qt::TextEditable;
    QTest::newRow("without a cursor") << 0 << Qt::TextEditable;
    QTest::newRow("read-only") << 1 << Qt::TextSelectableByMouse;
    QTest::newRow("nothing to do") << 1 << Qt::NoTextInteraction; // QPlainTextEdit paints nothing at all then
}

void tst_TextEditWithPlaceholder::hintFollowsTheFocus()
{
    SKIP_WITHOUT_A_PICTURE_OF_THE_SCREEN();
    QFETCH(int, cursorWidth);
    QFETCH(Qt::TextInteractionFlag, interaction);
    TextEditWithPlaceholder& edit = m_form->edit;
    edit.setCursorWidth(cursorWidth);
    edit.setTextInteractionFlags(interaction);
    edit.setPlaceholderText(hint + QLatin1Char('\n') + hint);
    for (int round = 0; round < 2; ++round) {
        QTRY_VERIFY(m_form->showsLine(0) && m_form->showsLine(1));
        QVERIFY(m_form->isUpToDate());
        m_form->enter();
        QTRY_VERIFY(!m_form->showsLine(0) && !m_form->showsLine(1));
        m_form->leave();
    }
}

void tst_TextEditWithPlaceholder::hintFollowsTheText_data()
{
    QTest::addColumn<bool>("silent");

    QTest::newRow("with signals") << false;
    QTest::newRow("without signals") << true;
}

void tst_TextEditWithPlaceholder::hintFollowsTheText()
{
    SKIP_WITHOUT_A_PICTURE_OF_THE_SCREEN();
    QFETCH(bool, silent);
    TextEditWithPlaceholder& edit = m_form->edit;
    edit.setPlaceholderText(hint + QLatin1Char('\n') + hint);
    QTRY_VERIFY(m_form->showsLine(0) && m_form->showsLine(1));
    for (int round = 0; round < 2; ++round) {
        const QSignalBlocker blocker(silent ? &edit : nullptr);
        edit.insertPlainText(QStringLiteral("i"));
        QTRY_VERIFY(!m_form->showsLine(0) && !m_form->showsLine(1));
        QVERIFY(m_form->isUpToDate());
        edit.textCursor().document()->clear();
        QTRY_VERIFY(m_form->showsLine(0) && m_form->showsLine(1));
        QVERIFY(m_form->isUpToDate());
    }
}

void tst_TextEditWithPlaceholder::newHintIsShownAtOnce()
{
    SKIP_WITHOUT_A_PICTURE_OF_THE_SCREEN();
    TextEditWithPlaceholder& edit = m_form->edit;
    QTRY_VERIFY(m_form->isUpToDate());
    const PaintCounter editor(edit);
    const PaintCounter viewport(*edit.viewport());
    for (const QString& text : {hint, QStringLiteral("Another, longer one?"), QString()}) {
        const int before = editor.paintings;
        edit.setPlaceholderText(text);
        QCOMPARE(m_form->showsLine(0), !text.isEmpty());
        QVERIFY(editor.paintings > before); // frame included
        QVERIFY(m_form->isUpToDate());
    }
    QVERIFY(viewport.paintings > 0);
}

void tst_TextEditWithPlaceholder::sameHintPaintsNothing()
{
    SKIP_WITHOUT_A_PICTURE_OF_THE_SCREEN();
    TextEditWithPlaceholder& edit = m_form->edit;
    edit.setPlaceholderText(hint);
    QTRY_VERIFY(m_form->showsLine(0));
    const PaintCounter editor(edit);
    const PaintCounter viewport(*edit.viewport());
    edit.setPlaceholderText(hint);
    QCoreApplication::processEvents();
    QCOMPARE(editor.paintings, 0);
    QCOMPARE(viewport.paintings, 0);
}

void tst_TextEditWithPlaceholder::newHintBesideFocusOrTextPaintsNothing()
{
    SKIP_WITHOUT_A_PICTURE_OF_THE_SCREEN();
    TextEditWithPlaceholder& edit = m_form->edit;
    edit.setPlainText(QStringLiteral("text"));
    QTRY_VERIFY(m_form->showsLine(0));
    const PaintCounter editor(edit);
    edit.setPlaceholderText(hint);
    QCoreApplication::processEvents();
    QCOMPARE(editor.paintings, 0);

    edit.clear();
    m_form->enter();
    QTRY_VERIFY(!m_form->showsLine(0));
    const int before = editor.paintings;
    edit.setPlaceholderText(QStringLiteral("Another"));
    QCoreApplication::processEvents();
    QCOMPARE(editor.paintings, before);
    QVERIFY(!m_form->showsLine(0));
}

void tst_TextEditWithPlaceholder::partialPaintingIsCompleted()
{
    SKIP_WITHOUT_A_PICTURE_OF_THE_SCREEN();
    TextEditWithPlaceholder& edit = m_form->edit;
    edit.setPlaceholderText(hint);
    QTRY_VERIFY(m_form->showsLine(0));
    const QRect shown = QRect({5, 5}, edit.geometry().bottomRight()) & edit.viewport()->rect();
    for (int round = 0; round < 3; ++round) {
        const PaintCounter counter(*edit.viewport());
        edit.viewport()->update(0, 0, 3, 3);
        QTRY_VERIFY(counter.painted.boundingRect().contains(shown));
        QCoreApplication::processEvents();
        QCOMPARE(counter.paintings, 2);
        QVERIFY(m_form->showsLine(0));
    }
    const PaintCounter counter(*edit.viewport());
    edit.viewport()->update(shown);
    QTRY_COMPARE(counter.paintings, 1);
    QCoreApplication::processEvents();
    QCOMPARE(counter.paintings, 1);
}

void tst_TextEditWithPlaceholder::neverPaintsForEver_data()
{
    QTest::addColumn<QRect>("place");
    QTest::addColumn<bool>("covered");
    QTest::addColumn<QRegion>("mask");

    const QRect inside(300, 150, 200, 100);
    QTest::newRow("in the corner") << QRect(0, 0, 200, 100) << false << QRegion();
    QTest::newRow("far from the corner") << inside << false << QRegion();
    QTest::newRow("beyond the right edge") << QRect(500, 150, 200, 100) << false << QRegion();
    QTest::newRow("beyond the left edge") << QRect(-100, 10, 200, 100) << false << QRegion();
    QTest::newRow("under another widget") << inside << true << QRegion();
    QTest::newRow("masked") << inside << false << QRegion(0, 0, 50, 50);
    QTest::newRow("too small for the hint") << QRect(10, 10, 6, 6) << false << QRegion();
    QTest::newRow("no viewport") << QRect(10, 10, 2, 2) << false << QRegion();
    QTest::newRow("no size") << QRect(10, 10, 0, 0) << false << QRegion();
}

void tst_TextEditWithPlaceholder::neverPaintsForEver()
{
    QFETCH(QRect, place);
    QFETCH(bool, covered);
    QFETCH(QRegion, mask);
    TextEditWithPlaceholder& edit = m_form->edit;
    edit.setGeometry(place);
    if (!mask.isEmpty())
        edit.setMask(mask);
    if (covered) {
        auto* cover = new QWidget(m_form.get());
        cover->setAutoFillBackground(true);
        cover->setGeometry(place.translated(place.width() / 2, 0));
        cover->show();
    }
    QCoreApplication::processEvents();

    constexpr int roundsOfEvents = 20;
    constexpr int paintingsAtMost = 4;
    const PaintCounter counter(*edit.viewport());
    edit.setPlaceholderText(hint);
    for (int i = 0; i < roundsOfEvents; ++i)
        QCoreApplication::processEvents();
    QVERIFY2(counter.paintings <= paintingsAtMost, qPrintable(QString::number(counter.paintings)));

    const int before = counter.paintings;
    edit.viewport()->update(0, 0, 3, 3);
    for (int i = 0; i < roundsOfEvents; ++i)
        QCoreApplication::processEvents();
    QVERIFY2(counter.paintings <= before + paintingsAtMost, qPrintable(QString::number(counter.paintings)));
}

QTEST_MAIN(tst_TextEditWithPlaceholder)
#include "tst_TextEditWithPlaceholder.moc"
