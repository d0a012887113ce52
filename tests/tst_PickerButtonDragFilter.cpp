#include <KQt/Ui/PickerButtonDragFilter.h>

#include <KQt/Ui/PickerButton.h>

#include "support/DragWatcher.h"
#include "support/MouseEvents.h"
#include "support/Sanitizers.h"
#include "support/Thrown.h"

#include <QtTest>

#include <memory>

using Kestrel::Gui::PickerButton;
using Kestrel::Gui::PickerButtonDragFilter;
using TestSupport::DragWatcher;
using TestSupport::sendMouse;

#define SKIP_WHERE_DRAGS_END_AT_ONCE                                                                                   \
    if (!DragWatcher::runsDrags())                                                                                     \
    QSKIP("this platform ends a drag at once, nothing can happen in it")

class tst_PickerButtonDragFilter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void hasAMetaObject();
    void farMoveDragsTheColor_data();
    void farMoveDragsTheColor();
    void shortMoveDragsNothing();
    void distanceIsManhattan();
    void moveWithoutTheLeftButtonDragsNothing();
    void otherButtonsDoNotSetTheStart();
    void releaseOfAnyButtonForgetsTheStart();
    void startIsSharedByAllFilters();
    void swatchStillGetsItsEvents();
    void otherWidgetsAreLeftAlone();
    void swatchMayDieInTheDrag();
    void filterMayDieInTheDrag();
    void exceptionEndsTheDrag();

private:
    void press(const QPoint& position, Qt::MouseButton button = Qt::LeftButton)
    {
        sendMouse(m_swatch.get(), QEvent::MouseButtonPress, position, button, button);
    }
    void release(const QPoint& position, Qt::MouseButton button = Qt::LeftButton)
    {
        sendMouse(m_swatch.get(), QEvent::MouseButtonRelease, position, button, Qt::NoButton);
    }
    void move(const QPoint& position, Qt::MouseButtons buttons = Qt::LeftButton)
    {
        sendMouse(m_swatch.get(), QEvent::MouseMove, position, Qt::NoButton, buttons);
    }

    std::unique_ptr<PickerButtonDragFilter> m_filter;
    std::unique_ptr<PickerButton> m_swatch;
};

void tst_PickerButtonDragFilter::init()
{
    m_filter = std::make_unique<PickerButtonDragFilter>();
    m_swatch = std::make_unique<PickerButton>(QColor(12, 34, 56));
    m_swatch->setFixedSize(20, 16);
    m_swatch->installEventFilter(m_filter.get());
}

void tst_PickerButtonDragFilter::cleanup()
{
    if (m_swatch)
        release(QPoint());
    m_swatch.reset();
    m_filter.reset();
}

void tst_PickerButtonDragFilter::hasAMetaObject()
{
    QCOMPARE(m_filter->metaObject()->className(), "Kestrel::Gui::PickerButtonDragFilter");
    QObject parent;
    QCOMPARE((new PickerButtonDragFilter(&parent))->parent(), &parent);
}

void tst_PickerButtonDragFilter::farMoveDragsTheColor_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addRow("opaque") << QColor(12, 34, 56);
    QTest::addRow("translucent") << QColor(12, 34, 56, 128);
}

void tst_PickerButtonDragFilter::farMoveDragsTheColor()
{
    QFETCH(QColor, color);
    m_swatch->setColor(color);
    DragWatcher watcher(m_filter.get());
    press(QPoint(3, 4));
    QCOMPARE(watcher.drags(), 0);
    move(QPoint(3 + QApplication::startDragDistance(), 4));
    QCOMPARE(watcher.drags(), 1);
    QCOMPARE(watcher.color, color);
    QVERIFY(watcher.formats.contains(QStringLiteral("application/x-color")));
    QCOMPARE(watcher.actions, Qt::DropActions(Qt::CopyAction));
    QCOMPARE(watcher.picture.size(), QSize(20, 16));
    QImage filled(20, 16, QImage::Format_ARGB32_Premultiplied);
    filled.fill(color);
    QCOMPARE(watcher.picture.convertToFormat(QImage::Format_ARGB32_Premultiplied), filled);
    // At the bottom centre, not in the middle: the colour stays in sight above the pointer.
    QCOMPARE(watcher.hotSpot, QPoint(10, 16));
    // Nothing piles up on the filter.
    QTRY_VERIFY(!watcher.drag);
    QVERIFY(m_filter->children().isEmpty());
}

void tst_PickerButtonDragFilter::shortMoveDragsNothing()
{
    DragWatcher watcher(m_filter.get());
    press(QPoint(3, 4));
    move(QPoint(3 + QApplication::startDragDistance() - 1, 4));
    QCoreApplication::processEvents();
    QCOMPARE(watcher.drags(), 0);
    release(QPoint(5, 4));
    QVERIFY(m_swatch->isChecked());
}

void tst_PickerButtonDragFilter::distanceIsManhattan()
{
    const int half = (QApplication::startDragDistance() + 1) / 2;
    DragWatcher watcher(m_filter.get());
    press(QPoint(9, 9));
    move(QPoint(9 - half, 9 - half + 1));
    QCOMPARE(watcher.drags(), 0);
    move(QPoint(9 - half, 9 - half));
    QCOMPARE(watcher.drags(), 1);
}

void tst_PickerButtonDragFilter::moveWithoutTheLeftButtonDragsNothing()
{
    DragWatcher watcher(m_filter.get());
    move(QPoint(500, 500), Qt::NoButton);
    move(QPoint(500, 500), Qt::RightButton);
    QCOMPARE(watcher.drags(), 0);
    move(QPoint(500, 500), Qt::RightButton | Qt::LeftButton);
    QCOMPARE(watcher.drags(), 1);
}

void tst_PickerButtonDragFilter::otherButtonsDoNotSetTheStart()
{
    DragWatcher watcher(m_filter.get());
    press(QPoint(100, 100));
    press(QPoint(0, 0), Qt::RightButton);
    move(QPoint(100, 100));
    QCOMPARE(watcher.drags(), 0);
    move(QPoint(0, 0));
    QCOMPARE(watcher.drags(), 1);
}

void tst_PickerButtonDragFilter::releaseOfAnyButtonForgetsTheStart()
{
    DragWatcher watcher(m_filter.get());
    press(QPoint(100, 100));
    release(QPoint(100, 100), Qt::RightButton);
    move(QPoint(0, 0));
    QCOMPARE(watcher.drags(), 0);
    move(QPoint(100, 100));
    QCOMPARE(watcher.drags(), 1);
}

// There is one mouse: a press on a swatch of one popup counts for the filter of another.
void tst_PickerButtonDragFilter::startIsSharedByAllFilters()
{
    PickerButtonDragFilter otherFilter;
    PickerButton other(Qt::red);
    other.installEventFilter(&otherFilter);
    DragWatcher watcher(m_filter.get());
    sendMouse(&other, QEvent::MouseButtonPress, QPoint(100, 100), Qt::LeftButton, Qt::LeftButton);
    move(QPoint(100, 100));
    QCOMPARE(watcher.drags(), 0);
    sendMouse(&other, QEvent::MouseButtonRelease, QPoint(100, 100), Qt::LeftButton, Qt::NoButton);
    move(QPoint(100, 100));
    QCOMPARE(watcher.drags(), 1);
}

void tst_PickerButtonDragFilter::swatchStillGetsItsEvents()
{
    press(QPoint(3, 3));
    QVERIFY(m_swatch->isDown());
    release(QPoint(3, 3));
    QVERIFY(m_swatch->isChecked());
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseMove, QEvent::MouseButtonRelease}) {
        QMouseEvent event(type, QPoint(1, 1), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QVERIFY(!m_filter->eventFilter(m_swatch.get(), &event));
    }
    QEvent other(QEvent::Enter);
    QVERIFY(!m_filter->eventFilter(m_swatch.get(), &other));
}

void tst_PickerButtonDragFilter::otherWidgetsAreLeftAlone()
{
    QToolButton other;
    other.installEventFilter(m_filter.get());
    DragWatcher watcher(m_filter.get());
    sendMouse(&other, QEvent::MouseButtonPress, QPoint(0, 0), Qt::LeftButton, Qt::LeftButton);
    sendMouse(&other, QEvent::MouseMove, QPoint(300, 300), Qt::NoButton, Qt::LeftButton);
    QCOMPARE(watcher.drags(), 0);
    // Nor do they set or forget where a drag started.
    press(QPoint(200, 200));
    sendMouse(&other, QEvent::MouseButtonRelease, QPoint(0, 0), Qt::LeftButton, Qt::NoButton);
    move(QPoint(200, 200));
    QCOMPARE(watcher.drags(), 0);
}

void tst_PickerButtonDragFilter::swatchMayDieInTheDrag()
{
    SKIP_WHERE_DRAGS_END_AT_ONCE;
    PickerButton* const swatch = m_swatch.release();
    DragWatcher watcher(m_filter.get(), [swatch] { delete swatch; });
    sendMouse(swatch, QEvent::MouseButtonPress, QPoint(0, 0), Qt::LeftButton, Qt::LeftButton);
    QVERIFY(sendMouse(swatch, QEvent::MouseMove, QPoint(300, 0), Qt::NoButton, Qt::LeftButton));
    QCOMPARE(watcher.drags(), 1);
}

// The application deletes the popup, and with it the filter, while a colour of it is dragged.
void tst_PickerButtonDragFilter::filterMayDieInTheDrag()
{
    SKIP_WHERE_DRAGS_END_AT_ONCE;
    DragWatcher watcher(m_filter.get(), [this] {
        m_swatch.reset();
        m_filter.reset();
    });
    PickerButton* const swatch = m_swatch.get();
    press(QPoint(0, 0));
    sendMouse(swatch, QEvent::MouseMove, QPoint(300, 0), Qt::NoButton, Qt::LeftButton);
    QCOMPARE(watcher.drags(), 1);
    QVERIFY(!m_filter);
    QTRY_VERIFY(!watcher.drag);
    m_swatch = std::make_unique<PickerButton>(Qt::red);
}

// Qt refuses a drag while there is another.
void tst_PickerButtonDragFilter::exceptionEndsTheDrag()
{
    SKIP_WHERE_DRAGS_END_AT_ONCE;
    if (TestSupport::hasAddressSanitizer)
        QSKIP("Qt loses the drag's loop when an exception passes");
    const QPoint far(0, QApplication::startDragDistance());
    press(QPoint());
    {
        DragWatcher watcher(m_filter.get(), [] { throw TestSupport::Thrown(); });
        QVERIFY(TestSupport::isThrownBy([&] { move(far); }));
        QVERIFY(!watcher.drag);
    }
    QVERIFY(!QGuiApplication::overrideCursor());
    release(far);

    press(QPoint());
    DragWatcher watcher(m_filter.get());
    move(far);
    QCOMPARE(watcher.drags(), 1);
    QCOMPARE(watcher.color, QColor(12, 34, 56));
}

QTEST_MAIN(tst_PickerButtonDragFilter)
#include "tst_PickerButtonDragFilter.moc"
