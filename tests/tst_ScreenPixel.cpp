#include <KQt/Ui/ScreenPixel.h>

#include "support/PixelBoard.h"
#include "support/WindowSystem.h"

#include <QGuiApplication>
#include <QScreen>

#include <QtTest>

using Kestrel::Gui::Detail::screenPixel;
using Kestrel::Gui::Detail::windowPixel;
using TestSupport::PixelBoard;

namespace {

/// A window with a board that begins at a whole pixel for every ratio in use.
struct Scene
{
    QWidget window;
    PixelBoard* board = new PixelBoard(&window);

    Scene()
    {
        window.setGeometry(200, 152, 160, 120);
        board->setGeometry(20, 28, 100, 60);
    }

    /// The global position of a device pixel of the board, as the system reports a mouse there: a whole number of
    /// pixels, multiplied by the ratio's reciprocal.
    QPointF positionOf(const QPoint& pixel) const
    {
        const qreal ratio = board->devicePixelRatioF();
        const QPointF native = QPointF(board->mapToGlobal(QPoint(0, 0))) * ratio + pixel;
        return {qRound(native.x()) * (1.0 / ratio), qRound(native.y()) * (1.0 / ratio)};
    }
};

} // namespace

class tst_ScreenPixel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void screenGivesEveryDevicePixel();
    void windowGivesEveryDevicePixel();
    void hiddenWindowIsReadAsWell();
    void translucentWindowGivesAnOpaqueColor();
    void withoutPictureTheColorIsInvalid();
};

void tst_ScreenPixel::screenGivesEveryDevicePixel()
{
    Scene scene;
    SKIP_WITHOUT_A_PICTURE_OF_THE_SCREEN();
    if (TestSupport::grabsTheScreenAmiss())
        QSKIP("this platform finds the pixels of the screen at a scale of 1 only");
    scene.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&scene.window));
    const QPoint first(31, 17);
    QTRY_COMPARE(screenPixel(scene.positionOf(first)), PixelBoard::colorAt(first.x(), first.y()));
    // A run of pixels longer than any ratio's period, along the diagonal for both directions.
    for (int i = 0; i < 40; ++i)
        QCOMPARE(screenPixel(scene.positionOf(QPoint(i, i))), PixelBoard::colorAt(i, i));
}

void tst_ScreenPixel::windowGivesEveryDevicePixel()
{
    Scene scene;
    scene.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&scene.window));
    for (int i = 0; i < 40; ++i) {
        const QColor color = windowPixel(scene.window, scene.positionOf(QPoint(i, i)));
        QCOMPARE(color, PixelBoard::colorAt(i, i));
    }
}

void tst_ScreenPixel::hiddenWindowIsReadAsWell()
{
    Scene scene;
    const QPoint pixel(12, 34);
    QCOMPARE(windowPixel(scene.window, scene.positionOf(pixel)), PixelBoard::colorAt(12, 34));
    // The window's own ground beside the board, and the last pixel.
    scene.window.setStyleSheet(QStringLiteral("background: #123456"));
    for (const QPoint& at : {QPoint(3, 3), QPoint(159, 119)})
        QCOMPARE(windowPixel(scene.window, scene.window.mapToGlobal(at)), QColor(0x12, 0x34, 0x56));
}

void tst_ScreenPixel::translucentWindowGivesAnOpaqueColor()
{
    QWidget window;
    window.setAttribute(Qt::WA_TranslucentBackground);
    window.setGeometry(200, 152, 160, 120);
    const QColor color = windowPixel(window, window.mapToGlobal(QPoint(10, 10)));
    QVERIFY(color.isValid());
    QCOMPARE(color.alpha(), 255);
}

void tst_ScreenPixel::withoutPictureTheColorIsInvalid()
{
    if (QGuiApplication::platformName() != QLatin1String("offscreen"))
        QSKIP("needs a platform without a picture of an empty screen");
    QVERIFY(!screenPixel(QGuiApplication::primaryScreen()->geometry().center()).isValid());
    QVERIFY(!screenPixel(QPointF(-1e6, 1e6)).isValid()); // on no screen
}

QTEST_MAIN(tst_ScreenPixel)
#include "tst_ScreenPixel.moc"
