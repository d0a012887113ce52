#include <KQt/Ui/ExtendedLabel.h>

#include "support/DirectionalMarks.h"
#include "support/LabelPresses.h"
#include "support/MetaListing.h"
#include "support/Render.h"

#include <QFontMetrics>
#include <QSignalSpy>
#include <QVBoxLayout>

#include <QtTest>

using Kestrel::Gui::ExtendedLabel;
using TestSupport::marked;

namespace {

const QString longText = QStringLiteral("a sentence that needs more room than there is");

int widthOf(const QString& text)
{
    return QFontMetrics(QLabel().font()).horizontalAdvance(marked(text));
}

/// A label on the screen: hidden widgets hear of a new size only when they are shown.
class ShownLabel
{
public:
    ShownLabel()
        : label(*new ExtendedLabel(&m_window))
    {
        m_window.show();
    }

private:
    QWidget m_window;

public:
    ExtendedLabel& label;
};

/// Notes the events that tell of a new text or tool tip.
class NewsWatch : public QObject
{
public:
    explicit NewsWatch(QWidget* label)
        : m_label(label)
    {
        label->installEventFilter(this);
        label->parentWidget()->installEventFilter(this);
    }

    int toolTips = 0;
    int layoutRequests = 0;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        toolTips += event->type() == QEvent::ToolTipChange && watched == m_label ? 1 : 0;
        layoutRequests += event->type() == QEvent::LayoutRequest ? 1 : 0;
        return false;
    }

private:
    QWidget* m_label;
};

} // namespace

class tst_ExtendedLabel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaults();
    void metaObject();
    void constantNamesTheProperty() { LabelPresses::constantNamesTheProperty<ExtendedLabel>(); }
    void isAChildLikeAnyLabel() { LabelPresses::isAChildLikeAnyLabel<ExtendedLabel>(); }
    void clickableIsReportedOnChange() { LabelPresses::clickableIsReportedOnChange<ExtendedLabel>(); }
    void everyButtonsPressIsAClick() { LabelPresses::everyButtonsPressIsAClick<ExtendedLabel>(); }
    void clickedFirst() { LabelPresses::clickedComesBeforeTheLabelsOwnHandling<ExtendedLabel>(); }
    void unclickableStillHandlesPresses() { LabelPresses::unclickableStillHandlesPresses<ExtendedLabel>(); }
    void pressesGoOnToTheParent() { LabelPresses::pressesGoOnToTheParent<ExtendedLabel>(); }
    void linksAreActivated() { LabelPresses::linksAreActivated<ExtendedLabel>(); }
    void deletedFromItsSignals() { LabelPresses::deletedFromItsSignals<ExtendedLabel>(); }

    void textIsKeptBetweenMarks_data();
    void textIsKeptBetweenMarks();
    void settingTheTextEmitsNothing();
    void elidesToTheWidthInsideTheFrame_data();
    void elidesToTheWidthInsideTheFrame();
    void everyResizeRenewsText();
    void elideModeTakesEffectAtTheNextUpdate();
    void withoutClippingTheWholeTextIsShown();
    void settingTheSameClippingRenewsText();
    void staticToolTipIsLeftAlone();
    void dynamicToolTipTakesEffectAtTheNextUpdate();
    void newFontShowsAtTheNextUpdate();
    void fontThatComesAfterTheTextIsMeasuredAnew();
    void textsOfSeveralLengths();
    void resizeThatChangesNothingSetsNothing();
    void textSetBehindItsBackIsReplaced();
    void baseClassSeesResizes();
};

void tst_ExtendedLabel::defaults()
{
    const ExtendedLabel label;
    QCOMPARE(label.GetOriginalText(), QString());
    QCOMPARE(label.text(), QString());
    QCOMPARE(label.toolTip(), QString());
    QVERIFY(label.GetClipText());
    QVERIFY(label.IsClickable());
    QVERIFY(label.dynamicTooltip());
}

void tst_ExtendedLabel::metaObject()
{
    const QMetaObject& meta = ExtendedLabel::staticMetaObject;
    QCOMPARE(meta.superClass(), &QLabel::staticMetaObject);
    QCOMPARE(TestSupport::ownProperties(meta),
             (QStringList{QStringLiteral("originalText QString OriginalTextChanged"), QStringLiteral("clipText bool"),
                          QStringLiteral("clickable bool ClickableChanged"), QStringLiteral("dynamicTooltip bool")}));
    QCOMPARE(TestSupport::ownMethods(meta),
             (QStringList{QStringLiteral("signal clicked()"), QStringLiteral("signal OriginalTextChanged(QString)"),
                          QStringLiteral("signal ClickableChanged(bool)")}));

    ExtendedLabel label;
    label.resize(widthOf(longText) + 100, 20);
    QVERIFY(label.setProperty("originalText", longText));
    QCOMPARE(label.property("originalText").toString(), longText);
    QCOMPARE(label.text(), marked(longText));
    QVERIFY(label.setProperty("clipText", false));
    QCOMPARE(label.property("clipText").toBool(), false);
    QVERIFY(label.setProperty("dynamicTooltip", false));
    QCOMPARE(label.property("dynamicTooltip").toBool(), false);
}

void tst_ExtendedLabel::textIsKeptBetweenMarks_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("readBack");

    const auto row = [](const char* name, const QString& text, const QString& readBack) {
        QTest::newRow(name) << text << readBack;
    };
    row("plain", QStringLiteral("abc"), QStringLiteral("abc"));
    row("empty", QString(), QString());
    row("mixed directions", QStringLiteral("abc \u05d0\u05d1 1"), QStringLiteral("abc \u05d0\u05d1 1"));
    // Marks of the caller's own go with the label's: all of them and not only the outer two, on purpose.
    row("marks inside", QStringLiteral("a\u202ab\u202cc\u202c"), QStringLiteral("abc"));
    row("marks around", QStringLiteral("\u202aabc\u202c"), QStringLiteral("abc"));
    row("other marks", QStringLiteral("\u200ea\u202bb\u202dc\u2066"), QStringLiteral("\u200ea\u202bb\u202dc\u2066"));
}

void tst_ExtendedLabel::textIsKeptBetweenMarks()
{
    QFETCH(QString, text);
    QFETCH(QString, readBack);
    ExtendedLabel label;
    label.resize(widthOf(text) + 100, 20);
    label.SetOriginalText(text);
    QCOMPARE(label.text(), QChar(0x202a) + text + QChar(0x202c));
    QCOMPARE(label.GetOriginalText(), readBack);
}

void tst_ExtendedLabel::settingTheTextEmitsNothing()
{
    // The signal is there for forms and bindings that ask the property for one; nothing emits it, on purpose.
    ShownLabel shown;
    ExtendedLabel& label = shown.label;
    const QSignalSpy changed(&label, &ExtendedLabel::OriginalTextChanged);
    label.SetOriginalText(longText);
    label.setProperty("originalText", QStringLiteral("other"));
    label.SetClipText(false);
    label.resize(10, 10);
    label.SetClipText(true);
    QCOMPARE(changed.count(), 0);
}

void tst_ExtendedLabel::elidesToTheWidthInsideTheFrame_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("frame");
    QTest::addColumn<Qt::TextElideMode>("mode");

    const QString mixed = QStringLiteral("left \u05d9\u05de\u05d9\u05df \u05dc\u05e9\u05de\u05d0\u05dc and left again");
    for (const int frame : {0, 1, 7}) {
        for (const auto mode : {Qt::ElideLeft, Qt::ElideMiddle, Qt::ElideRight, Qt::ElideNone}) {
            QTest::addRow("frame %d, mode %d", frame, mode) << longText << frame << mode;
            QTest::addRow("mixed, frame %d, mode %d", frame, mode) << mixed << frame << mode;
        }
    }
}

void tst_ExtendedLabel::elidesToTheWidthInsideTheFrame()
{
    QFETCH(QString, text);
    QFETCH(int, frame);
    QFETCH(Qt::TextElideMode, mode);
    ShownLabel shown;
    ExtendedLabel& label = shown.label;
    if (frame != 0) {
        label.setFrameStyle(QFrame::Box | QFrame::Plain);
        label.setLineWidth(frame);
    }
    QCOMPARE(label.frameWidth(), frame);
    label.SetElideMode(mode);
    label.SetOriginalText(text);
    const QFontMetrics metrics(label.font());
    const int whole = metrics.horizontalAdvance(marked(text)) + 2 * frame;

    int elided = 0;
    for (int width = whole + 3; width > 0; --width) {
        label.resize(width, 20);
        const QString expected = metrics.elidedText(marked(text), mode, width - 2 * frame);
        QCOMPARE(label.text(), expected);
        // The tool tip tells the whole text, marks and all, as long as the label does not.
        QCOMPARE(label.toolTip(), expected == marked(text) ? QString() : marked(text));
        elided += expected == marked(text) ? 0 : 1;
    }
    QVERIFY(mode == Qt::ElideNone ? elided == 0 : elided > whole / 2);
    QCOMPARE(label.GetOriginalText(), text);
}

void tst_ExtendedLabel::everyResizeRenewsText()
{
    ShownLabel shown;
    ExtendedLabel& label = shown.label;
    label.resize(widthOf(longText) / 2, 20);
    label.SetOriginalText(longText);
    const QString half = label.text();
    QVERIFY(half != marked(longText));
    label.resize(widthOf(longText) + 1, 20);
    QCOMPARE(label.text(), marked(longText));
    QCOMPARE(label.toolTip(), QString());
    label.resize(widthOf(longText) / 2, 20);
    QCOMPARE(label.text(), half);
    QCOMPARE(label.toolTip(), marked(longText));
}

void tst_ExtendedLabel::elideModeTakesEffectAtTheNextUpdate()
{
    ShownLabel shown;
    ExtendedLabel& label = shown.label;
    const int width = widthOf(longText) / 2;
    label.resize(width, 20);
    label.SetOriginalText(longText);
    const QString right = label.text();
    label.SetElideMode(Qt::ElideLeft);
    QCOMPARE(label.text(), right);
    label.resize(width, 21);
    QCOMPARE(label.text(), QFontMetrics(label.font()).elidedText(marked(longText), Qt::ElideLeft, width));
    QVERIFY(label.text() != right);
}

void tst_ExtendedLabel::withoutClippingTheWholeTextIsShown()
{
    ShownLabel shown;
    ExtendedLabel& label = shown.label;
    label.resize(widthOf(longText) / 2, 20);
    label.SetOriginalText(longText);
    QVERIFY(!label.toolTip().isEmpty());
    label.SetClipText(false);
    QVERIFY(!label.GetClipText());
    QCOMPARE(label.text(), marked(longText));
    QCOMPARE(label.toolTip(), QString());
    // A tool tip of the application's goes as well at the next update: the label looks after it.
    label.setToolTip(QStringLiteral("mine"));
    label.resize(widthOf(longText) / 3, 20);
    QCOMPARE(label.text(), marked(longText));
    QCOMPARE(label.toolTip(), QString());
    label.SetClipText(true);
    QVERIFY(label.text() != marked(longText));
    QCOMPARE(label.toolTip(), marked(longText));
}

void tst_ExtendedLabel::settingTheSameClippingRenewsText()
{
    ExtendedLabel label;
    label.resize(widthOf(longText) / 2, 20);
    label.SetOriginalText(longText);
    label.SetElideMode(Qt::ElideLeft);
    label.SetClipText(true); // no change of the property, and still an update
    QCOMPARE(label.text(), QFontMetrics(label.font()).elidedText(marked(longText), Qt::ElideLeft, label.width()));
}

void tst_ExtendedLabel::staticToolTipIsLeftAlone()
{
    ShownLabel shown;
    ExtendedLabel& label = shown.label;
    label.SetDynamicTooltip(false);
    label.setToolTip(QStringLiteral("mine"));
    label.resize(widthOf(longText) / 2, 20);
    label.SetOriginalText(longText);
    QVERIFY(label.text() != marked(longText));
    QCOMPARE(label.toolTip(), QStringLiteral("mine"));
    label.resize(widthOf(longText) + 1, 20);
    QCOMPARE(label.toolTip(), QStringLiteral("mine"));
    label.SetClipText(false);
    QCOMPARE(label.toolTip(), QStringLiteral("mine"));
}

void tst_ExtendedLabel::dynamicToolTipTakesEffectAtTheNextUpdate()
{
    ShownLabel shown;
    ExtendedLabel& label = shown.label;
    label.resize(widthOf(longText) / 2, 20);
    label.SetOriginalText(longText);
    label.SetDynamicTooltip(false);
    QCOMPARE(label.toolTip(), marked(longText));
    label.setToolTip(QStringLiteral("mine"));
    label.SetDynamicTooltip(true);
    QCOMPARE(label.toolTip(), QStringLiteral("mine"));
    label.resize(label.width(), 21);
    QCOMPARE(label.toolTip(), marked(longText));
}

void tst_ExtendedLabel::newFontShowsAtTheNextUpdate()
{
    ShownLabel shown;
    ExtendedLabel& label = shown.label;
    label.resize(widthOf(longText) + 1, 20);
    label.SetOriginalText(longText);
    QFont large = label.font();
    large.setPointSize(large.pointSize() * 3);
    label.setFont(large);
    QCOMPARE(label.text(), marked(longText));
    label.resize(label.width(), 21);
    QVERIFY(label.text() != marked(longText));
    QCOMPARE(label.text(), QFontMetrics(large).elidedText(marked(longText), Qt::ElideRight, label.width()));
}

void tst_ExtendedLabel::fontThatComesAfterTheTextIsMeasuredAnew()
{
    ShownLabel shown;
    ExtendedLabel& label = shown.label;
    label.SetOriginalText(longText);
    for (const int pointSize : {6, 30, 9, 40, 9}) {
        QFont font = label.font();
        font.setPointSize(pointSize);
        label.setFont(font);
        const QFontMetrics metrics(label.font());
        const int whole = metrics.horizontalAdvance(marked(longText));
        for (const int width : {whole * 2, whole + 1, whole, whole - 1, whole / 2}) {
            label.resize(width, 60);
            QCOMPARE(label.text(), metrics.elidedText(marked(longText), Qt::ElideRight, width));
        }
    }
}

void tst_ExtendedLabel::textsOfSeveralLengths()
{
    // Qt's separator between the variants of a text, of which metrics choose the longest that fits.
    const QString variants = QStringLiteral("a long variant") + QChar(0x9c) + QStringLiteral("short");
    ShownLabel shown;
    ExtendedLabel& label = shown.label;
    label.SetOriginalText(variants);
    const QFontMetrics metrics(label.font());
    for (int width = widthOf(variants) * 2; width > 0; --width) {
        label.resize(width, 20);
        QCOMPARE(label.text(), metrics.elidedText(marked(variants), Qt::ElideRight, width));
    }
}

void tst_ExtendedLabel::resizeThatChangesNothingSetsNothing()
{
    QWidget window;
    auto* label = new ExtendedLabel;
    auto* layout = new QVBoxLayout(&window);
    layout->addWidget(label);
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    label->SetOriginalText(longText);
    window.resize(widthOf(longText) / 2, 60);
    window.show();
    QCoreApplication::processEvents();
    const QString elided = label->text();
    QVERIFY(elided != marked(longText));

    const NewsWatch watch(label);
    window.resize(window.width(), 80);
    QCoreApplication::processEvents();
    QCOMPARE(label->text(), elided);
    QCOMPARE(watch.toolTips, 0);
    QCOMPARE(watch.layoutRequests, 0);

    window.resize(widthOf(longText) / 4, 80);
    QCoreApplication::processEvents();
    QVERIFY(label->text() != elided);
    QVERIFY(watch.layoutRequests > 0);
    QCOMPARE(watch.toolTips, 0); // still the same whole text

    window.resize(widthOf(longText) * 2, 80);
    QCoreApplication::processEvents();
    QCOMPARE(label->text(), marked(longText));
    QCOMPARE(watch.toolTips, 1);
}

void tst_ExtendedLabel::textSetBehindItsBackIsReplaced()
{
    // setText() is QLabel's: what it shows lasts until the label looks after its text again.
    ShownLabel shown;
    ExtendedLabel& label = shown.label;
    label.resize(widthOf(longText) + 1, 20);
    label.SetOriginalText(longText);
    label.setText(QStringLiteral("other"));
    label.resize(label.width(), 21);
    QCOMPARE(label.text(), marked(longText));
}

void tst_ExtendedLabel::baseClassSeesResizes()
{
    // A text that wraps is laid out anew by QLabel when the width changes.
    ShownLabel shown;
    ExtendedLabel& label = shown.label;
    QLabel plain(label.parentWidget());
    plain.show();
    label.SetClipText(false);
    label.SetOriginalText(longText);
    plain.setText(label.text());
    for (QLabel* each : {&plain, static_cast<QLabel*>(&label)}) {
        each->setTextInteractionFlags(Qt::TextSelectableByMouse);
        each->setWordWrap(true);
        each->resize(widthOf(longText) * 2, 100);
        TestSupport::render(*each);
        each->resize(widthOf(longText) / 2, 100);
    }
    QCOMPARE(TestSupport::render(label), TestSupport::render(plain));
}

QTEST_MAIN(tst_ExtendedLabel)
#include "tst_ExtendedLabel.moc"
