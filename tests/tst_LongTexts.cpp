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

constexpr int Megabyte = 1024 * 1024 / static_cast<int>(sizeof(QChar)); // in UTF-16 units

QString repeated(const QString& text)
{
    return text.repeated(Megabyte / text.size());
}

} // namespace

/// Texts that no person would read, but a file may hold.
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
    QTest::addColumn<QString>("text");
    QTest::newRow("one word") << repeated(QStringLiteral("x"));
    QTest::newRow("words") << repeated(QStringLiteral("the quick brown fox "));
    QTest::newRow("wide letters") << repeated(QStringLiteral("\u6f22\u5b57"));
    // Letters that join take another form where a text is cut, and may be wider for it: these do not.
    QTest::newRow("right to left") << repeated(QStringLiteral("\u05e9\u05dc\u05d5\u05dd "));
    QTest::newRow("unpaired surrogates") << repeated(QString(QChar(0xd83d)));
    QTest::newRow("lines") << repeated(QStringLiteral("line\n"));
}

void tst_LongTexts::label()
{
    QFETCH(const QString, text);
    ExtendedLabel label;
    for (const auto mode : {Qt::ElideRight, Qt::ElideMiddle, Qt::ElideLeft}) {
        label.SetElideMode(mode);
        label.SetOriginalText(text);
        for (const int width : {200, 150}) {
            label.resize(width, 20);
            label.grab();
            QVERIFY(label.fontMetrics().horizontalAdvance(label.text()) <= width);
            QVERIFY(label.text().contains(QChar(0x2026)));
        }
        QCOMPARE(label.toolTip(), marked(text));
        QCOMPARE(label.GetOriginalText(), text);
    }
}

void tst_LongTexts::lineEdit()
{
    QFETCH(const QString, text);
    ClippingTextLineEdit edit;
    const QSignalSpy changed(&edit, &ClippingTextLineEdit::OriginalTextChanged);
    edit.resize(200, 24);
    edit.SetOriginalText(text);
    edit.grab();
    QVERIFY(edit.fontMetrics().horizontalAdvance(edit.text()) <= edit.width());
    sendFocus(edit, QEvent::FocusIn);
    QCOMPARE(edit.text(), marked(text).left(edit.maxLength()));
    sendFocus(edit, QEvent::FocusOut);
    QCOMPARE(edit.GetOriginalText(), text);
    QCOMPARE(changed.count(), 0);
}

// The list of a combo box measures its items, and so does every list of Qt's: only the closed box is looked at.
void tst_LongTexts::comboBox()
{
    QFETCH(const QString, text);
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
