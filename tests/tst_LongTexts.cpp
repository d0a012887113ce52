#include <KQt/Ui/AdvancedComboBox.h>
#include <KQt/Ui/ClippingTextLineEdit.h>
#include <KQt/Ui/ExtendedLabel.h>

#include "support/DirectionalMarks.h"
#include "support/FocusEvents.h"

#include <QSignalSpy>

#include <QtTest>

using Kestrel::Gui::AdvancedComboBox;
using Kestrel::Gui::ClippingTextLineEdit;
using Kestrel::Gui::ExtendedLabel;
using TestSupport::marked;
using TestSupport::sendFocus;

namespace {

// In UTF-16 units.
constexpr int Megabyte = 1024 * 1024 / static_cast<int>(sizeof(QChar));
constexpr int SomeLines = 1000;

QString repeated(const QString& text, int size = Megabyte)
{
    return text.repeated(size / text.size());
}

/// Whether Qt's metrics keep to the width that they are given; with wine's fonts they overrun it from right to left.
bool metricsKeepTheWidth(const QString& text)
{
#ifdef Q_OS_WIN
    return !text.isRightToLeft();
#else
    Q_UNUSED(text)
    return true;
#endif
}

} // namespace

/// Texts that no person would read, but a file may hold: they look as texts of some lines do.
class tst_LongTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void label_data() { texts(); }
    void label();
    void lineEdit_data() { texts(); }
    void lineEdit();
    void comboBox_data() { texts(); }
    void comboBox();

private:
    static void texts();
};

void tst_LongTexts::texts()
{
    QTest::addColumn<QString>("part");
    QTest::newRow("one word") << QStringLiteral("x");
    QTest::newRow("words") << QStringLiteral("the quick brown fox ");
    QTest::newRow("wide letters") << QStringLiteral("\u6f22\u5b57");
    QTest::newRow("right to left") << QStringLiteral("\u0645\u0631\u062d\u0628\u0627 ");
    QTest::newRow("letters that do not join") << QStringLiteral("\u05e9\u05dc\u05d5\u05dd ");
    QTest::newRow("unpaired surrogates") << QString(QChar(0xd83d));
    QTest::newRow("lines") << QStringLiteral("line\n");
}

void tst_LongTexts::label()
{
    QFETCH(const QString, part);
    const QString text = repeated(part);
    ExtendedLabel label;
    ExtendedLabel ofSomeLines;
    ofSomeLines.SetOriginalText(repeated(part, SomeLines));
    for (const auto mode : {Qt::ElideRight, Qt::ElideMiddle, Qt::ElideLeft}) {
        label.SetElideMode(mode);
        label.SetOriginalText(text);
        ofSomeLines.SetElideMode(mode);
        for (const int width : {200, 150}) {
            for (ExtendedLabel* shown : {&label, &ofSomeLines}) {
                shown->resize(width, 20);
                shown->grab();
            }
            QVERIFY(label.text().contains(QChar(0x2026)));
            QCOMPARE(label.text(), ofSomeLines.text());
            QVERIFY(!metricsKeepTheWidth(part) || label.fontMetrics().horizontalAdvance(label.text()) <= width);
        }
        QCOMPARE(label.toolTip(), marked(text));
        QCOMPARE(label.GetOriginalText(), text);
    }
}

void tst_LongTexts::lineEdit()
{
    QFETCH(const QString, part);
    const QString text = repeated(part);
    ClippingTextLineEdit edit;
    ClippingTextLineEdit ofSomeLines;
    const QSignalSpy changed(&edit, &ClippingTextLineEdit::OriginalTextChanged);
    edit.SetOriginalText(text);
    ofSomeLines.SetOriginalText(repeated(part, SomeLines));
    for (ClippingTextLineEdit* shown : {&edit, &ofSomeLines}) {
        shown->resize(200, 24);
        shown->grab();
    }
    QVERIFY(edit.text().contains(QChar(0x2026)));
    QCOMPARE(edit.text(), ofSomeLines.text());
    QVERIFY(!metricsKeepTheWidth(part) || edit.fontMetrics().horizontalAdvance(edit.text()) <= edit.width());
    sendFocus(edit, QEvent::FocusIn);
    QCOMPARE(edit.text(), marked(text).left(edit.maxLength()));
    sendFocus(edit, QEvent::FocusOut);
    QCOMPARE(edit.GetOriginalText(), text);
    QCOMPARE(changed.count(), 0);
}

// The list of a combo box measures its items, and so does every list of Qt's: only the closed box is looked at.
void tst_LongTexts::comboBox()
{
    QFETCH(const QString, part);
    const QString text = repeated(part);
    AdvancedComboBox box;
    box.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box.resize(200, 24);
    box.addItem(text);
    box.grab();
    QCOMPARE(box.currentText(), text);
    QCOMPARE(box.toolTip(), text);
}

QTEST_MAIN(tst_LongTexts)
#include "tst_LongTexts.moc"
