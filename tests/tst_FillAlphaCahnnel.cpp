#include <KQt/Ui/SelectionFrameWidget/SelectionFrameWidget.h>

#include "support/AlphaReference.h"
#include "support/WarningCatcher.h"

#include <QImage>
#include <QtTest>

#include <algorithm>
#include <cstring>
#include <limits>
#include <random>
#include <stdexcept>

using AlphaReference::pixelByPixel;
using AlphaReference::samePixels;
using Kestrel::Gui::FillAlphaCahnnel;

Q_DECLARE_METATYPE(QImage::Format)

namespace {

const QSize Size(23, 17);

/// A picture of random bits, with a colour table where the format takes one.
QImage randomImage(QImage::Format format, unsigned seed, const QSize& size = Size)
{
    std::mt19937 random(seed);
    QImage image(size, format);
    for (int y = 0; y < image.height(); ++y) {
        uchar* line = image.scanLine(y);
        for (int x = 0; x < image.bytesPerLine(); ++x)
            line[x] = static_cast<uchar>(random());
    }
    if (image.depth() <= 8 && format != QImage::Format_Alpha8 && format != QImage::Format_Grayscale8) {
        QVector<QRgb> table(1 << image.depth());
        for (QRgb& color : table)
            color = static_cast<QRgb>(random());
        // Colours that are indices at the same time: black without alpha is 0.
        table[0] = qRgba(0, 0, 0, 255);
        table[1] = qRgba(0, 0, 1, 128);
        image.setColorTable(table);
    }
    return image;
}

} // namespace

class tst_FillAlphaCahnnel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyFormat_data();
    void everyFormat();
    void everyAlphaOfEveryPixel_data();
    void everyAlphaOfEveryPixel();
    void clearsAndKeeps();
    void colorsAreWrittenUnpremultiplied();
    void rectIsInclusive();
    void rectPastTheImage_data();
    void rectPastTheImage();
    void alphaOutOfRange_data();
    void alphaOutOfRange();
    void nullImage();
    void copiesAreDetached();
    void foreignBuffersAreLeftAlone();
    void outsideRectsDetachNothing();
    void ratioOfDevicePixelsIsIgnored();
};

void tst_FillAlphaCahnnel::everyFormat_data()
{
    QTest::addColumn<QImage::Format>("format");
    const QMetaEnum names = QMetaEnum::fromType<QImage::Format>();
    for (int format = QImage::Format_Invalid + 1; format < QImage::NImageFormats; ++format) {
        const char* name = names.valueToKey(format);
        QTest::newRow(name ? name : QByteArray::number(format).constData()) << static_cast<QImage::Format>(format);
    }
}

void tst_FillAlphaCahnnel::everyFormat()
{
    QFETCH(const QImage::Format, format);
    const QRect whole(QPoint(0, 0), Size);
    const QVector<QRect> rects = {whole,
                                  QRect(3, 2, 10, 9),
                                  QRect(22, 16, 1, 1),
                                  QRect(7, 0, 9, 17),
                                  QRect(0, 5, 23, 1),
                                  QRect(-5, -5, 12, 12),
                                  QRect(15, 10, 50, 50)};
    unsigned seed = 1;
    for (const QRect& rect : rects) {
        for (int alpha : {0, 1, 77, 128, 254, 255}) {
            const QImage source = randomImage(format, ++seed);
            QImage image = source;
            {
                // A warning for every pixel would drown the application's log.
                const TestSupport::WarningCatcher messages;
                FillAlphaCahnnel(image, rect, alpha);
                QCOMPARE(messages.warnings(), QStringList());
            }
            QVERIFY2(samePixels(image, pixelByPixel(source, rect, alpha)),
                     ("alpha " + QByteArray::number(alpha) + " at " + QByteArray::number(rect.x())).constData());
        }
    }
}

void tst_FillAlphaCahnnel::everyAlphaOfEveryPixel_data()
{
    QTest::addColumn<QImage::Format>("format");
    QTest::newRow("ARGB32") << QImage::Format_ARGB32;
    QTest::newRow("ARGB32 premultiplied") << QImage::Format_ARGB32_Premultiplied;
    QTest::newRow("RGB32") << QImage::Format_RGB32;
    QTest::newRow("RGBA8888") << QImage::Format_RGBA8888;
    QTest::newRow("RGBA8888 premultiplied") << QImage::Format_RGBA8888_Premultiplied;
}

void tst_FillAlphaCahnnel::everyAlphaOfEveryPixel()
{
    QFETCH(const QImage::Format, format);
    // A column for every alpha that a pixel can have, for every alpha that can be asked for.
    const QImage source = [format] {
        QImage image = randomImage(format, 99, QSize(256, 3));
        for (int x = 0; x < 256; ++x) {
            for (int y = 0; y < 3; ++y)
                image.setPixel(x, y, qRgba(x / 2, x / 3, y * 100 * x / 255, x));
        }
        return image;
    }();
    for (int alpha = 0; alpha < 256; ++alpha) {
        QImage image = source;
        FillAlphaCahnnel(image, image.rect(), alpha);
        QVERIFY2(samePixels(image, pixelByPixel(source, source.rect(), alpha)), QByteArray::number(alpha).constData());
        if (format == QImage::Format_ARGB32) {
            for (int x = 0; x < 256; ++x)
                QCOMPARE(qAlpha(image.pixel(x, 1)), x * alpha / 255);
        }
    }
}

void tst_FillAlphaCahnnel::clearsAndKeeps()
{
    const QImage source = randomImage(QImage::Format_ARGB32, 7);
    QImage image = source;
    FillAlphaCahnnel(image, image.rect(), 255);
    QCOMPARE(image, source);
    FillAlphaCahnnel(image, image.rect(), 0);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            QCOMPARE(image.pixel(x, y), source.pixel(x, y) & 0x00ffffffU);
    }
}

void tst_FillAlphaCahnnel::colorsAreWrittenUnpremultiplied()
{
    // The renderer's pictures are premultiplied, and what composes them counts on the colours staying as they were
    // rendered: only the alpha is lowered.
    QImage image(2, 1, QImage::Format_ARGB32_Premultiplied);
    image.setPixel(0, 0, qRgba(200, 100, 50, 255));
    image.setPixel(1, 0, qRgba(100, 50, 25, 128));
    FillAlphaCahnnel(image, image.rect(), 100);
    QCOMPARE(image.pixel(0, 0), qRgba(200, 100, 50, 100));
    QCOMPARE(image.pixel(1, 0), qRgba(100, 50, 25, 50));
}

void tst_FillAlphaCahnnel::rectIsInclusive()
{
    QImage image(10, 10, QImage::Format_ARGB32);
    image.fill(Qt::white);
    FillAlphaCahnnel(image, QRect(QPoint(2, 3), QPoint(5, 7)), 0);
    for (int y = 0; y < 10; ++y) {
        for (int x = 0; x < 10; ++x)
            QCOMPARE(qAlpha(image.pixel(x, y)), x >= 2 && x <= 5 && y >= 3 && y <= 7 ? 0 : 255);
    }
}

void tst_FillAlphaCahnnel::rectPastTheImage_data()
{
    constexpr int low = std::numeric_limits<int>::min();
    constexpr int high = std::numeric_limits<int>::max();
    QTest::addColumn<QRect>("rect");
    QTest::newRow("around") << QRect(-100, -100, 1000, 1000);
    QTest::newRow("left") << QRect(-100, 0, 50, 50);
    QTest::newRow("right") << QRect(23, 0, 50, 50);
    QTest::newRow("above") << QRect(0, -50, 50, 50);
    QTest::newRow("below") << QRect(0, 17, 50, 50);
    QTest::newRow("corner") << QRect(20, 14, 50, 50);
    QTest::newRow("null") << QRect();
    QTest::newRow("empty") << QRect(5, 5, 0, 10);
    QTest::newRow("inverted") << QRect(QPoint(10, 10), QPoint(2, 2));
    QTest::newRow("everything") << QRect(QPoint(low, low), QPoint(high, high));
    QTest::newRow("half of everything") << QRect(QPoint(10, low), QPoint(high, high));
    QTest::newRow("far away") << QRect(QPoint(high - 1, high - 1), QPoint(high, high));
    QTest::newRow("inverted, all the way") << QRect(QPoint(high, high), QPoint(low, low));
}

void tst_FillAlphaCahnnel::rectPastTheImage()
{
    QFETCH(const QRect, rect);
    for (const QImage::Format format : {QImage::Format_ARGB32, QImage::Format_ARGB32_Premultiplied,
                                        QImage::Format_RGB16, QImage::Format_Indexed8, QImage::Format_RGBA64}) {
        const QImage source = randomImage(format, 3);
        QImage image = source;
        {
            const TestSupport::WarningCatcher messages;
            FillAlphaCahnnel(image, rect, 60);
            QCOMPARE(messages.warnings(), QStringList());
        }
        QVERIFY(samePixels(image, pixelByPixel(source, rect, 60)));
    }
}

void tst_FillAlphaCahnnel::alphaOutOfRange_data()
{
    QTest::addColumn<int>("alpha");
    QTest::newRow("one too many") << 256;
    QTest::newRow("one too few") << -1;
    QTest::newRow("most") << std::numeric_limits<int>::max();
    QTest::newRow("least") << std::numeric_limits<int>::min();
}

void tst_FillAlphaCahnnel::alphaOutOfRange()
{
    QFETCH(const int, alpha);
    const QImage source = randomImage(QImage::Format_ARGB32_Premultiplied, 5);
    for (const QRect& rect : {source.rect(), QRect()}) {
        QImage image = source;
        QByteArray message;
        try {
            FillAlphaCahnnel(image, rect, alpha);
        } catch (const std::invalid_argument& error) {
            message = error.what();
        }
        QVERIFY2(message.startsWith("Alpha Value must be in [0; 255] range\n"), message.constData());
        // Not even a copy was made.
        QCOMPARE(image.constBits(), source.constBits());
    }
}

void tst_FillAlphaCahnnel::nullImage()
{
    const TestSupport::WarningCatcher messages;
    QImage image;
    FillAlphaCahnnel(image, QRect(0, 0, 10, 10), 100);
    QVERIFY(image.isNull());
    FillAlphaCahnnel(image, QRect(), 0);
    QCOMPARE(messages.warnings(), QStringList());
    try {
        FillAlphaCahnnel(image, QRect(0, 0, 10, 10), 300);
        QFAIL("the range is checked first");
    } catch (const std::invalid_argument&) {
        QVERIFY(image.isNull());
    }
}

void tst_FillAlphaCahnnel::copiesAreDetached()
{
    for (const QImage::Format format :
         {QImage::Format_ARGB32, QImage::Format_ARGB32_Premultiplied, QImage::Format_Alpha8, QImage::Format_RGBA64,
          QImage::Format_ARGB4444_Premultiplied}) {
        const QImage source = randomImage(format, 5);
        const QImage untouched = source.copy();
        QImage image = source;
        FillAlphaCahnnel(image, QRect(2, 2, 10, 10), 50);
        QVERIFY(image.constBits() != source.constBits());
        QCOMPARE(source, untouched);

        // A picture of its own is written in place.
        QImage own = source.copy();
        const uchar* bits = own.constBits();
        FillAlphaCahnnel(own, QRect(2, 2, 10, 10), 50);
        QCOMPARE(own.constBits(), bits);
        QVERIFY(samePixels(own, image));
    }
}

void tst_FillAlphaCahnnel::foreignBuffersAreLeftAlone()
{
    QVector<QRgb> buffer(8 * 8, qRgba(10, 20, 30, 200));
    const auto* readOnly = reinterpret_cast<const uchar*>(buffer.constData());
    QImage image(readOnly, 8, 8, QImage::Format_ARGB32);
    FillAlphaCahnnel(image, image.rect(), 0);
    QCOMPARE(buffer, QVector<QRgb>(8 * 8, qRgba(10, 20, 30, 200)));
    QCOMPARE(image.pixel(3, 3), qRgba(10, 20, 30, 0));
    // A writable buffer of the caller's is written, with its own length of line.
    QVector<QRgb> wide(10 * 8, qRgba(10, 20, 30, 200));
    QImage writable(reinterpret_cast<uchar*>(wide.data()), 8, 8, 40, QImage::Format_ARGB32);
    FillAlphaCahnnel(writable, writable.rect(), 0);
    for (int i = 0; i < wide.size(); ++i)
        QCOMPARE(qAlpha(wide.at(i)), i % 10 < 8 ? 0 : 200);
}

void tst_FillAlphaCahnnel::outsideRectsDetachNothing()
{
    const QImage source = randomImage(QImage::Format_ARGB32_Premultiplied, 5);
    QImage image = source;
    for (const QRect& rect : {QRect(), QRect(-10, -10, 5, 5), QRect(100, 0, 5, 5), QRect(QPoint(9, 9), QPoint(2, 2))}) {
        FillAlphaCahnnel(image, rect, 0);
        QCOMPARE(image.constBits(), source.constBits());
    }
}

void tst_FillAlphaCahnnel::ratioOfDevicePixelsIsIgnored()
{
    QImage image(10, 10, QImage::Format_ARGB32);
    image.fill(Qt::white);
    image.setDevicePixelRatio(2.0);
    FillAlphaCahnnel(image, QRect(6, 6, 2, 2), 0);
    QCOMPARE(qAlpha(image.pixel(6, 6)), 0);
    QCOMPARE(qAlpha(image.pixel(7, 7)), 0);
    QCOMPARE(qAlpha(image.pixel(8, 8)), 255);
    QCOMPARE(image.devicePixelRatio(), 2.0);
}

QTEST_MAIN(tst_FillAlphaCahnnel)
#include "tst_FillAlphaCahnnel.moc"
