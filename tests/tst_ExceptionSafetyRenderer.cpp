#include <KQt/Ui/WidgetRenderer.h>

#include "support/Thrown.h"
#include "support/WarningCatcher.h"

#include <QPainter>
#include <QtTest>

#include <memory>
#include <stdexcept>

using Kestrel::Gui::WidgetRenderer;
using TestSupport::Fuse;
using TestSupport::isThrownBy;
using TestSupport::WarningCatcher;

namespace {

const QRect wholeScreen(0, 0, 700, 500);

/// Paints itself in one colour, and throws afterwards when it is to.
class Probe : public QWidget
{
public:
    Probe(Qt::GlobalColor color, QWidget* parent)
        : QWidget(parent)
        , m_color(color)
    {
    }

    Fuse onPaint;

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter(this).fillRect(rect(), m_color);
        onPaint();
    }

private:
    Qt::GlobalColor m_color;
};

struct Stage
{
    Stage()
    {
        window.setGeometry(40, 30, 300, 200);
        // Where a widget lies in its parent counts twice, which is of no interest here.
        left->setGeometry(10, 10, 30, 20);
        right->setGeometry(60, 10, 30, 20);
        first->resize(30, 20);
        inner->setGeometry(5, 5, 10, 10);
        second->resize(30, 20);
        window.show();
        renderer.ChangeRendererFrame(wholeScreen);
    }

    /// Has the picture drawn anew.
    void change() const
    {
        QEvent event(QEvent::ZOrderChange);
        QCoreApplication::sendEvent(second, &event);
    }
    QColor pixel(const QPoint& inWindow) const
    {
        const QImage picture = renderer.GetMaskImage().toImage();
        return picture.pixelColor(window.mapToGlobal(inWindow) * picture.devicePixelRatio());
    }

    QWidget tracked;
    QWidget window{nullptr, Qt::FramelessWindowHint | Qt::BypassWindowManagerHint};
    QWidget* left = new QWidget(&window);
    QWidget* right = new QWidget(&window);
    Probe* first = new Probe(Qt::red, left);
    Probe* inner = new Probe(Qt::yellow, first);
    Probe* second = new Probe(Qt::blue, right);
    WidgetRenderer renderer{&tracked, nullptr};
};

/// Takes over the two widgets and not their window.
void takeOver(Stage& stage)
{
    for (Probe* probe : {stage.first, stage.second}) {
        probe->hide();
        probe->show();
    }
}

} // namespace

/// What paint handlers and frames without an area throw while the picture is drawn.
class tst_ExceptionSafetyRenderer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void paintHandler_data();
    void paintHandler();
    void paintHandlerOfADeletedWidget();
    void invertedFrameTakesNothingOver();
};

void tst_ExceptionSafetyRenderer::paintHandler_data()
{
    QTest::addColumn<int>("which");
    QTest::newRow("first") << 0;
    QTest::newRow("child of the first") << 1;
    QTest::newRow("last") << 2;
}

// Widgets and window can be painted and drawn again, as ever.
void tst_ExceptionSafetyRenderer::paintHandler()
{
    QFETCH(int, which);
    Stage stage;
    takeOver(stage);
    stage.change();
    const QImage before = stage.renderer.GetMaskImage().toImage();
    const QImage windowBefore = stage.window.grab().toImage();
    QCOMPARE(stage.pixel(QPoint(12, 12)), QColor(Qt::red));
    QCOMPARE(stage.pixel(QPoint(62, 12)), QColor(Qt::blue));

    Probe* const probes[] = {stage.first, stage.inner, stage.second};
    for (int round = 0; round < 3; ++round) {
        probes[which]->onPaint.arm();
        QVERIFY(isThrownBy([&] { stage.change(); }));
        QCOMPARE(stage.renderer.GetMaskImage().toImage(), before);

        const WarningCatcher catcher;
        stage.change();
        QCOMPARE(stage.renderer.GetMaskImage().toImage(), before);
        QCOMPARE(stage.window.grab().toImage(), windowBefore);
        stage.window.repaint();
        QCOMPARE(catcher.warnings(), QStringList());
    }

    stage.second->hide();
    QCOMPARE(stage.pixel(QPoint(62, 12)), QColor(Qt::black));
    QVERIFY(stage.second->mask().isEmpty());
    QVERIFY(!stage.second->testAttribute(Qt::WA_MouseNoMask));
}

void tst_ExceptionSafetyRenderer::paintHandlerOfADeletedWidget()
{
    Stage stage;
    takeOver(stage);
    stage.second->onPaint.arm();
    QVERIFY(isThrownBy([&] { stage.change(); }));
    delete stage.second;
    QCoreApplication::processEvents();
    QCOMPARE(stage.pixel(QPoint(62, 12)), QColor(Qt::black));
    QCOMPARE(stage.pixel(QPoint(12, 12)), QColor(Qt::red));
}

// Taken for the rectangle that it turns inside out, it would hold the widget, which could not be drawn then.
void tst_ExceptionSafetyRenderer::invertedFrameTakesNothingOver()
{
    Stage stage;
    stage.first->hide();
    stage.renderer.ChangeRendererFrame(QRect(wholeScreen.bottomRight(), wholeScreen.topLeft()));
    stage.first->show();
    QVERIFY(!stage.first->testAttribute(Qt::WA_MouseNoMask));
    QVERIFY(stage.renderer.GetMaskImage().isNull());
    QEvent event(QEvent::ZOrderChange);
    QCoreApplication::sendEvent(stage.first, &event);
    stage.first->hide();
}

QTEST_MAIN(tst_ExceptionSafetyRenderer)
#include "tst_ExceptionSafetyRenderer.moc"
