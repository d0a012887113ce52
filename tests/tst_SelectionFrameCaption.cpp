#include <KQt/Ui/SelectionFrameWidget/SelectionFrameCaption.h>

#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <QRectF>
#include <QTranslator>
#include <QtTest>

#include <limits>

using namespace Kestrel::Gui::Detail;

Q_DECLARE_METATYPE(CaptionValues)

namespace {

constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr int Most = std::numeric_limits<int>::max();
constexpr int Least = std::numeric_limits<int>::min();

QImage canvas(QRgb colour = qRgb(10, 20, 30))
{
    QImage image(120, 60, QImage::Format_ARGB32_Premultiplied);
    image.fill(colour);
    return image;
}

/// One sentence in the place of every other.
class Shouting : public QTranslator
{
public:
    QString translate(const char* context, const char* text, const char* /*disambiguation*/, int /*n*/) const override
    {
        const bool ours =
            QLatin1String(context) == QLatin1String("QObject") && QLatin1String(text).startsWith(QLatin1String("Left"));
        return ours ? QStringLiteral("%4# %3# %2# %1#") : QString();
    }
    bool isEmpty() const override { return false; }
};

} // namespace

class tst_SelectionFrameCaption : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void patternHasPerCentSigns();
    void patternIsTranslated();
    void valuesAreCutOffToWholePerCent_data();
    void valuesAreCutOffToWholePerCent();
    void layoutWritesTheValues();
    void layoutIsTheTextAndItsMargin();
    void layoutFollowsFontAndResolution();
    void frameIsDashedOverBlack();
    void highlightedFrameHasItsColour();
    void captionIsAWhiteBoxWithText();
    void painterIsLeftAsItWas();
    void endlessRectsArePainted();
};

void tst_SelectionFrameCaption::patternHasPerCentSigns()
{
    QCOMPARE(captionPattern(), QStringLiteral("Left: %1% Top: %2% Width: %3% Height: %4%"));
}

void tst_SelectionFrameCaption::patternIsTranslated()
{
    Shouting translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    const QString translated = captionPattern();
    QVERIFY(QCoreApplication::removeTranslator(&translator));
    QCOMPARE(translated, QStringLiteral("%4% %3% %2% %1%"));
}

void tst_SelectionFrameCaption::valuesAreCutOffToWholePerCent_data()
{
    QTest::addColumn<QRectF>("relative");
    QTest::addColumn<CaptionValues>("values");
    QTest::newRow("whole") << QRectF(0.25, 0.5, 0.75, 1.0) << CaptionValues{25, 50, 75, 100};
    QTest::newRow("never up") << QRectF(0.259, 0.999, 0.015, 0.0099) << CaptionValues{25, 99, 1, 0};
    QTest::newRow("toward zero") << QRectF(-0.259, -0.009, -1.5, 2.0) << CaptionValues{-25, 0, -150, 200};
    QTest::newRow("no number") << QRectF(qQNaN(), 0, qQNaN(), 0) << CaptionValues{0, 0, 0, 0};
    QTest::newRow("endless") << QRectF(Infinity, -Infinity, Infinity, -Infinity)
                             << CaptionValues{Most, Least, Most, Least};
    QTest::newRow("huge") << QRectF(1e9, -1e9, 1e300, -1e300) << CaptionValues{Most, Least, Most, Least};
}

void tst_SelectionFrameCaption::valuesAreCutOffToWholePerCent()
{
    QFETCH(QRectF, relative);
    QFETCH(CaptionValues, values);
    QCOMPARE(captionValues(relative), values);
}

void tst_SelectionFrameCaption::layoutWritesTheValues()
{
    CaptionLayout layout;
    layout.update(captionPattern(), {1, 20, 300, -4}, QFont(), nullptr);
    QCOMPARE(layout.text(), QStringLiteral("Left: 1% Top: 20% Width: 300% Height: -4%"));
    layout.update(captionPattern(), {1, 20, 300, 4}, QFont(), nullptr);
    QCOMPARE(layout.text(), QStringLiteral("Left: 1% Top: 20% Width: 300% Height: 4%"));
    layout.update(QStringLiteral("%4 %3 %2 %1"), {1, 20, 300, 4}, QFont(), nullptr);
    QCOMPARE(layout.text(), QStringLiteral("4 300 20 1"));
}

void tst_SelectionFrameCaption::layoutIsTheTextAndItsMargin()
{
    CaptionLayout layout;
    QCOMPARE(layout.size(), QSizeF());
    layout.update(captionPattern(), {0, 0, 50, 50}, QFont(), nullptr);
    const QSizeF text = QFontMetricsF(QFont()).size(Qt::TextSingleLine, layout.text());
    QCOMPARE(layout.size(), text + QSizeF(10, 5));
}

void tst_SelectionFrameCaption::layoutFollowsFontAndResolution()
{
    CaptionLayout layout;
    QFont font;
    layout.update(captionPattern(), {0, 0, 50, 50}, font, nullptr);
    const QSizeF before = layout.size();
    font.setPointSize(font.pointSize() * 2);
    layout.update(captionPattern(), {0, 0, 50, 50}, font, nullptr);
    QVERIFY(layout.size().width() > before.width());
    QVERIFY(layout.size().height() > before.height());

    QImage fine = canvas();
    fine.setDotsPerMeterX(fine.dotsPerMeterX() * 3);
    fine.setDotsPerMeterY(fine.dotsPerMeterY() * 3);
    layout.update(captionPattern(), {0, 0, 50, 50}, font, &fine);
    QCOMPARE(layout.size(), QFontMetricsF(font, &fine).size(Qt::TextSingleLine, layout.text()) + QSizeF(10, 5));
    QVERIFY(layout.size().height() > QFontMetricsF(font).height() + 5);
}

void tst_SelectionFrameCaption::frameIsDashedOverBlack()
{
    QImage image = canvas();
    {
        QPainter painter(&image);
        paintFrame(painter, QRectF(20, 10, 80, 40), false);
    }
    int black = 0;
    int white = 0;
    for (int x = 30; x < 90; ++x) {
        const QRgb colour = image.pixel(x, 10);
        black += colour == qRgb(0, 0, 0);
        white += colour == qRgb(255, 255, 255);
    }
    QVERIFY(black > 0);
    QVERIFY(white > 0);
    QCOMPARE(black + white, 60);
    // A pen of two pixels lies on either side of the edge; nothing is filled.
    QVERIFY(image.pixel(60, 9) != qRgb(10, 20, 30));
    QCOMPARE(image.pixel(60, 12), qRgb(10, 20, 30));
    QCOMPARE(image.pixel(60, 7), qRgb(10, 20, 30));
    QCOMPARE(image.pixel(60, 30), qRgb(10, 20, 30));
}

void tst_SelectionFrameCaption::highlightedFrameHasItsColour()
{
    QImage image = canvas();
    {
        QPainter painter(&image);
        paintFrame(painter, QRectF(20, 10, 80, 40), true);
    }
    int orange = 0;
    int white = 0;
    for (int x = 30; x < 90; ++x) {
        orange += image.pixel(x, 10) == qRgb(0xE8, 0x6E, 0x59);
        white += image.pixel(x, 10) == qRgb(255, 255, 255);
    }
    QVERIFY(orange > 0);
    QCOMPARE(white, 0);
}

void tst_SelectionFrameCaption::captionIsAWhiteBoxWithText()
{
    QImage image = canvas();
    {
        QPainter painter(&image);
        paintCaption(painter, QRectF(10, 10, 100, 30), QStringLiteral("50%"), QFont());
    }
    QCOMPARE(image.pixel(14, 14), qRgb(255, 255, 255));
    QCOMPARE(image.pixel(5, 5), qRgb(10, 20, 30));
    QCOMPARE(image.pixel(10, 25), qRgb(0, 0, 0));
    QCOMPARE(image.pixel(60, 10), qRgb(0, 0, 0));
    QCOMPARE(image.pixel(110, 25), qRgb(0, 0, 0));
    QCOMPARE(image.pixel(60, 40), qRgb(0, 0, 0));

    // Dark blue letters in the middle.
    QRect inked;
    for (int y = 12; y < 38; ++y) {
        for (int x = 12; x < 108; ++x) {
            const QColor colour = image.pixelColor(x, y);
            if (colour.blue() >= 128 && colour.red() < 100)
                inked |= QRect(x, y, 1, 1);
        }
    }
    QVERIFY(!inked.isEmpty());
    QVERIFY2(qAbs(inked.center().x() - 60) <= 2, qPrintable(QString::number(inked.center().x())));
    QVERIFY2(qAbs(inked.center().y() - 25) <= 3, qPrintable(QString::number(inked.center().y())));
}

void tst_SelectionFrameCaption::painterIsLeftAsItWas()
{
    QImage image = canvas();
    QPainter painter(&image);
    const QPen pen(Qt::green, 7);
    const QBrush brush(Qt::red, Qt::CrossPattern);
    QFont font;
    font.setPointSize(33);
    painter.setPen(pen);
    painter.setBrush(brush);
    painter.setFont(font);
    paintFrame(painter, QRectF(20, 10, 80, 40), true);
    paintCaption(painter, QRectF(10, 10, 100, 30), QStringLiteral("50%"), QFont());
    QCOMPARE(painter.pen(), pen);
    QCOMPARE(painter.brush(), brush);
    QCOMPARE(painter.font(), font);
}

// Lines without an end would keep the painter busy for ever.
void tst_SelectionFrameCaption::endlessRectsArePainted()
{
    QImage image = canvas();
    QPainter painter(&image);
    for (const QRectF& rect :
         {QRectF(-Infinity, 10, Infinity, 20), QRectF(qQNaN(), qQNaN(), 5, 5), QRectF(-1e300, -1e300, 2e300, 2e300)}) {
        paintFrame(painter, rect, false);
        paintCaption(painter, rect, QStringLiteral("50%"), QFont());
    }
    QVERIFY(painter.isActive());
}

QTEST_MAIN(tst_SelectionFrameCaption)
#include "tst_SelectionFrameCaption.moc"
