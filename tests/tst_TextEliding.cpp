#include <KQt/Ui/TextEliding.h>

#include <QFontMetrics>
#include <QRandomGenerator>

#include <QtTest>

#include <iterator>
#include <limits>

using Kestrel::Gui::Detail::LongTextSize;

namespace {

QString repeated(const QString& text, int size)
{
    return text.repeated(size / text.size() + 1).left(size);
}

QString anyText(QRandomGenerator& random, int size)
{
    static const QString pieces[] = {
        QStringLiteral("word"),
        QStringLiteral(" "),
        QStringLiteral("i"),
        QStringLiteral("W"),
        QStringLiteral("ffi"),
        QStringLiteral("\n"),
        QStringLiteral("\t"),
        QStringLiteral("\u202a"),
        QStringLiteral("\u202e"),
        QStringLiteral("\u202c"),
        QStringLiteral("\u200f"),
        QStringLiteral("\u2067"),
        QStringLiteral("\u2069"),
        QStringLiteral("\u0301"),
        QStringLiteral("\u0645\u0631\u062d\u0628\u0627"),
        QStringLiteral("\u05e9\u05dc"),
        QStringLiteral("123"),
        QStringLiteral("\u6f22\u5b57"),
        QStringLiteral("\u200d"),
        QStringLiteral("\u00e9"),
        QStringLiteral("\U0001F600"),
        QString(QChar(0xd83d)),
        QString(QChar(0xdc00)),
    };
    QString text;
    while (text.size() < size)
        text += pieces[random.bounded(static_cast<int>(std::size(pieces)))];
    return text;
}

} // namespace

/// The metrics' own answer is right by definition; it only takes too long.
class tst_TextEliding : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void asTheMetrics_data();
    void asTheMetrics();
    void anyTextAsTheMetrics();
    void textsBeyondTheMetrics();

private:
    static void compare(const QString& text, int width);
};

void tst_TextEliding::compare(const QString& text, int width)
{
    const QFontMetrics metrics{QFont()};
    for (const auto mode : {Qt::ElideLeft, Qt::ElideRight, Qt::ElideMiddle, Qt::ElideNone})
        QCOMPARE(Kestrel::Gui::Detail::elidedText(metrics, text, mode, width), metrics.elidedText(text, mode, width));
}

void tst_TextEliding::asTheMetrics_data()
{
    QTest::addColumn<QString>("text");
    constexpr int size = 2 * LongTextSize;
    // Laying out marks upon marks takes the square of their number.
    const QString marks = repeated(QStringLiteral("\u0301"), LongTextSize / 2);
    QTest::newRow("as long as a text that is looked at") << repeated(QStringLiteral("text "), LongTextSize);
    QTest::newRow("longer by one") << repeated(QStringLiteral("text "), LongTextSize + 1);
    QTest::newRow("words") << repeated(QStringLiteral("the quick brown fox "), size);
    QTest::newRow("narrow") << repeated(QStringLiteral("i"), size);
    QTest::newRow("right to left") << repeated(QStringLiteral("\u0645\u0631\u062d\u0628\u0627 "), size);
    QTest::newRow("marks upon marks") << QStringLiteral("a") + marks + marks;
    QTest::newRow("marks at the end") << repeated(QStringLiteral("text "), size) + marks;
    QTest::newRow("marks at the start") << marks + repeated(QStringLiteral("text "), size);
    QTest::newRow("unpaired surrogates") << repeated(QString(QChar(0xd83d)), size);
    QTest::newRow("directional marks") << repeated(QStringLiteral("\u202ea\u202c"), size);
    QTest::newRow("a mark in the middle")
        << repeated(QStringLiteral("text "), size) + QStringLiteral("\u202b") + repeated(QStringLiteral("text "), size);
    QTest::newRow("lines") << repeated(QStringLiteral("line\n"), size);
    QTest::newRow("another writing at the end")
        << repeated(QStringLiteral("text "), size) + repeated(QStringLiteral("\u05e9\u05dc "), size);
    QTest::newRow("variants") << repeated(QStringLiteral("long"), size) + QStringLiteral("\u009cshort");
    QTest::newRow("one letter of many parts") << repeated(QStringLiteral("\u1100"), size);
}

void tst_TextEliding::asTheMetrics()
{
    QFETCH(const QString, text);
    for (const int width : {-10, 0, 50, 333, 1000000})
        compare(text, width);
}

void tst_TextEliding::anyTextAsTheMetrics()
{
    constexpr int rounds = 40;
    constexpr int widest = 700;
    QRandomGenerator random(1);
    for (int i = 0; i < rounds && !QTest::currentTestFailed(); ++i)
        compare(anyText(random, LongTextSize + random.bounded(LongTextSize)), random.bounded(widest));
}

// Of a text that is wider than they can count, the metrics believe that it fits.
void tst_TextEliding::textsBeyondTheMetrics()
{
    const QFontMetrics metrics{QFont()};
    constexpr int widestCount = std::numeric_limits<int>::max() / 64;
    constexpr int width = 100;
    const QString text =
        repeated(QStringLiteral("W"), widestCount / metrics.horizontalAdvance(QLatin1Char('W')) + 1000);
    const QString elided = Kestrel::Gui::Detail::elidedText(metrics, text, Qt::ElideRight, width);
    QCOMPARE(elided, metrics.elidedText(text.left(LongTextSize), Qt::ElideRight, width));
    QVERIFY(metrics.horizontalAdvance(elided) <= width);
}

QTEST_MAIN(tst_TextEliding)
#include "tst_TextEliding.moc"
