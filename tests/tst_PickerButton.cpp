#include <KQt/Ui/PickerButton.h>

#include "support/Render.h"

#include <QtTest>

using Kestrel::Gui::PickerButton;

class tst_PickerButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isACheckableToolButtonOfItsColor();
    void hasAMetaObject();
    void settingTheColorAlwaysTells();
    void settingTheColorTellsNothingWhileBlocked();
    void settingTheColorRepaints();
    void uncheckedShowsNothingButItsColor_data();
    void uncheckedShowsNothingButItsColor();
    void checkedShowsARingOfDotsAroundItsColor_data();
    void checkedShowsARingOfDotsAroundItsColor();
    void translucentColorLetsTheBackgroundThrough();
    void invalidColorPaintsWithoutACrash();
    void neitherFocusNorHoverNorPressShows();
};

void tst_PickerButton::isACheckableToolButtonOfItsColor()
{
    QWidget parent;
    const auto* const swatch = new PickerButton(Qt::green, &parent);
    QCOMPARE(swatch->color(), QColor(Qt::green));
    QVERIFY(swatch->isCheckable());
    QVERIFY(!swatch->isChecked());
    QCOMPARE(swatch->parentWidget(), &parent);
    QVERIFY(qobject_cast<const QToolButton*>(swatch));
    QVERIFY(!PickerButton(Qt::green).parentWidget());
}

void tst_PickerButton::hasAMetaObject()
{
    const QMetaObject& meta = PickerButton::staticMetaObject;
    QCOMPARE(meta.className(), "Kestrel::Gui::PickerButton");
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    QCOMPARE(meta.method(meta.methodOffset()).methodSignature(), QByteArray("colorChanged(QColor)"));
    QCOMPARE(meta.method(meta.methodOffset()).methodType(), QMetaMethod::Signal);
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
}

// A drop of the colour that a slot already has is a change for the popup all the same.
void tst_PickerButton::settingTheColorAlwaysTells()
{
    PickerButton swatch(Qt::red);
    QSignalSpy changed(&swatch, &PickerButton::colorChanged);
    swatch.setColor(Qt::blue);
    QCOMPARE(swatch.color(), QColor(Qt::blue));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.takeFirst().constFirst().value<QColor>(), QColor(Qt::blue));
    swatch.setColor(Qt::blue);
    QCOMPARE(changed.count(), 1);
    swatch.setColor(QColor());
    QCOMPARE(changed.count(), 2);
    QVERIFY(!changed.last().first().value<QColor>().isValid());
}

void tst_PickerButton::settingTheColorTellsNothingWhileBlocked()
{
    PickerButton swatch(Qt::red);
    QSignalSpy changed(&swatch, &PickerButton::colorChanged);
    const QSignalBlocker silent(&swatch);
    swatch.setColor(Qt::blue);
    QCOMPARE(swatch.color(), QColor(Qt::blue));
    QCOMPARE(changed.count(), 0);
}

void tst_PickerButton::settingTheColorRepaints()
{
    PickerButton swatch(Qt::red);
    swatch.setFixedSize(20, 20);
    swatch.show();
    QVERIFY(QTest::qWaitForWindowExposed(&swatch));
    QCoreApplication::processEvents();

    struct PaintCounter : QObject
    {
        int paints = 0;
        bool eventFilter(QObject*, QEvent* event) override
        {
            paints += event->type() == QEvent::Paint ? 1 : 0;
            return false;
        }
    } counter;
    swatch.installEventFilter(&counter);
    swatch.setColor(Qt::blue);
    QTRY_VERIFY(counter.paints > 0);
}

void tst_PickerButton::uncheckedShowsNothingButItsColor_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addRow("palette swatch") << QSize(20, 20);
    QTest::addRow("user slot") << QSize(18, 18);
    QTest::addRow("not square") << QSize(33, 9);
}

void tst_PickerButton::uncheckedShowsNothingButItsColor()
{
    QFETCH(QSize, size);
    PickerButton swatch(QColor(10, 200, 30));
    swatch.setFixedSize(size);
    const QImage image = TestSupport::render(swatch);
    QCOMPARE(image.size(), size);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            QCOMPARE(image.pixelColor(x, y), QColor(10, 200, 30));
    }
}

void tst_PickerButton::checkedShowsARingOfDotsAroundItsColor_data()
{
    uncheckedShowsNothingButItsColor_data();
}

void tst_PickerButton::checkedShowsARingOfDotsAroundItsColor()
{
    QFETCH(QSize, size);
    PickerButton swatch(QColor(10, 200, 30));
    swatch.setFixedSize(size);
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    swatch.setChecked(true);
    swatch.render(&image, {}, {}, {});

    QImage dots(size, QImage::Format_RGB32);
    dots.fill(Qt::white);
    QPainter(&dots).fillRect(dots.rect(), QBrush(Qt::black, Qt::Dense5Pattern));

    int black = 0;
    int ring = 0;
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const bool inside = x >= 3 && x < size.width() - 3 && y >= 3 && y < size.height() - 3;
            const QColor expected = inside ? QColor(10, 200, 30) : dots.pixelColor(x, y);
            QVERIFY2(image.pixelColor(x, y) == expected, qPrintable(QStringLiteral("at %1, %2").arg(x).arg(y)));
            ring += inside ? 0 : 1;
            black += !inside && image.pixelColor(x, y) == QColor(Qt::black) ? 1 : 0;
        }
    }
    // Dots, neither a frame nor nothing.
    QVERIFY(black > ring / 8);
    QVERIFY(black < ring);
}

void tst_PickerButton::translucentColorLetsTheBackgroundThrough()
{
    PickerButton swatch(QColor(255, 0, 0, 51));
    swatch.setFixedSize(20, 20);
    QImage image(swatch.size(), QImage::Format_RGB32);
    image.fill(Qt::white);
    swatch.render(&image, {}, {}, {});
    const QColor seen = image.pixelColor(10, 10);
    QCOMPARE(seen.red(), 255);
    QVERIFY2(qAbs(seen.green() - 204) <= 1, qPrintable(seen.name()));
    QCOMPARE(seen.green(), seen.blue());
}

void tst_PickerButton::invalidColorPaintsWithoutACrash()
{
    PickerButton swatch{QColor()};
    swatch.setFixedSize(20, 20);
    TestSupport::render(swatch);
    swatch.setChecked(true);
    TestSupport::render(swatch);
    QVERIFY(!swatch.color().isValid());
}

void tst_PickerButton::neitherFocusNorHoverNorPressShows()
{
    QWidget window;
    PickerButton swatch(Qt::cyan, &window);
    swatch.setFixedSize(20, 20);
    swatch.setFocusPolicy(Qt::StrongFocus);
    window.show();
    window.activateWindow();
    swatch.setFocus();
    swatch.setDown(true);
    swatch.setText(QStringLiteral("text"));
    swatch.setAttribute(Qt::WA_UnderMouse);
    const QImage image = TestSupport::render(swatch);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            QCOMPARE(image.pixelColor(x, y), QColor(Qt::cyan));
    }
}

QTEST_MAIN(tst_PickerButton)
#include "tst_PickerButton.moc"
