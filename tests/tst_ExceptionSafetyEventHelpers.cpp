#include <KQt/Ui/AlwaysOnTop.h>
#include <KQt/Ui/AnypointWidgetDrag.h>
#include <KQt/Ui/ClickableLabel.h>
#include <KQt/Ui/DragDropEventFilter.h>
#include <KQt/Ui/ExtendedLabel.h>
#include <KQt/Ui/IDragDropEventFilterObserver.h>
#include <KQt/Ui/PreviewImageLabel.h>
#include <KQt/Ui/WidgetMouseHandler.h>
#include <KQt/Ui/WidgetResizeHandler.h>

#include "support/MouseEvents.h"
#include "support/Thrown.h"

#include <QDragEnterEvent>
#include <QHoverEvent>
#include <QMimeData>
#include <QSignalSpy>
#include <QToolButton>
#include <QtTest>

#include <memory>
#include <utility>

using namespace Kestrel::Gui;
using TestSupport::Fuse;
using TestSupport::isThrownBy;
using TestSupport::sendMouse;

namespace {

/// Notes what reaches it.
class Receiver : public QWidget
{
public:
    QVector<QEvent::Type> received;

protected:
    bool event(QEvent* event) override
    {
        received.append(event->type());
        return QWidget::event(event);
    }
};

std::unique_ptr<QEvent> makeEvent(QEvent::Type type)
{
    switch (type) {
    case QEvent::HoverEnter:
    case QEvent::HoverMove:
    case QEvent::HoverLeave:
        return std::make_unique<QHoverEvent>(type, QPointF(3, 3), QPointF(2, 2));
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove:
        return std::make_unique<QMouseEvent>(type, QPointF(3, 3), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    default:
        return std::make_unique<QEvent>(type);
    }
}

/// Answers no until it welcomes; notes what is dropped.
class Observer : public IDragDropEventFilterObserver
{
public:
    bool CanDropUrl(const std::string&) override
    {
        onAsked();
        return true;
    }
    void DropUrl(const std::string& path) override
    {
        onDropped();
        dropped.append(QString::fromStdString(path));
    }

    Fuse onAsked;
    Fuse onDropped;
    QStringList dropped;
};

/// A widget that is dropped on, with an observer.
class DropZone
{
public:
    Observer observer;

    DropZone()
    {
        m_widget.setAcceptDrops(true);
        m_widget.installEventFilter(&m_filter);
        m_filter.InstallDragDropObserver(&observer);
    }

    void send(QDropEvent& event) { QCoreApplication::sendEvent(&m_widget, &event); }

    /// Makes the widget what Qt delivers the drag's further events to.
    void enter(const QMimeData& data)
    {
        QDragEnterEvent event(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        send(event);
    }

private:
    QWidget m_widget;
    DragDropEventFilter m_filter;
};

/// Throws as it moves.
class Mover : public QWidget
{
public:
    Fuse onMove;

protected:
    void moveEvent(QMoveEvent*) override { onMove(); }
};

/// The flags of a window, kept by an application's own functions.
class Flags : public Helpers::AlwaysOnTop
{
public:
    Flags()
        : AlwaysOnTop(
              [this] {
                  onRead();
                  return flags;
              },
              [this](Qt::WindowFlags written) {
                  onWrite();
                  flags = written;
              })
    {
    }

    Fuse onRead;
    Fuse onWrite;
    Qt::WindowFlags flags = Qt::Window;
};

} // namespace

/// The helpers around a widget's events: what a slot, an observer or a function of the application throws comes out of
/// the event's delivery, and the next event finds everything as it was.
class tst_ExceptionSafetyEventHelpers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void mouseHandler_data();
    void mouseHandler();
    void resizeHandler_data();
    void resizeHandler();
    void dragDropObserver_data();
    void dragDropObserver();
    void dropOfSeveral();
    void widgetDrag();
    void alwaysOnTop();
    void labels();
    void previewButtons_data();
    void previewButtons();
};

void tst_ExceptionSafetyEventHelpers::mouseHandler_data()
{
    QTest::addColumn<QEvent::Type>("type");
    QTest::newRow("press") << QEvent::MouseButtonPress;
    QTest::newRow("release") << QEvent::MouseButtonRelease;
    QTest::newRow("move") << QEvent::MouseMove;
    QTest::newRow("enter") << QEvent::Enter;
    QTest::newRow("leave") << QEvent::Leave;
    QTest::newRow("hover move") << QEvent::HoverMove;
    QTest::newRow("hover enter") << QEvent::HoverEnter;
    QTest::newRow("hover leave") << QEvent::HoverLeave;
}

void tst_ExceptionSafetyEventHelpers::mouseHandler()
{
    QFETCH(QEvent::Type, type);
    Receiver widget;
    WidgetMouseHandler handler(&widget);
    Fuse fuse;
    int signalCount = 0;
    const auto light = [&] {
        fuse();
        ++signalCount;
    };
    connect(&handler, &WidgetMouseHandler::MouseButtonPressed, this, light);
    connect(&handler, &WidgetMouseHandler::MouseButtonReleased, this, light);
    connect(&handler, &WidgetMouseHandler::MouseMoved, this, light);
    connect(&handler, &WidgetMouseHandler::MouseEntered, this, light);
    connect(&handler, &WidgetMouseHandler::MouseLeaved, this, light);
    connect(&handler, &WidgetMouseHandler::MouseHoverMoved, this, light);
    connect(&handler, &WidgetMouseHandler::MouseHoverEntered, this, light);
    connect(&handler, &WidgetMouseHandler::MouseHoverLeaved, this, light);

    fuse.arm();
    const auto event = makeEvent(type);
    QVERIFY(isThrownBy([&] { QCoreApplication::sendEvent(&widget, event.get()); }));
    QVERIFY(!widget.received.contains(type));

    // The next one is reported and goes on, or is swallowed, as ever.
    QCoreApplication::sendEvent(&widget, makeEvent(type).get());
    QCOMPARE(widget.received.count(type), 1);
    handler.EnableEventPropagation(false);
    QCoreApplication::sendEvent(&widget, makeEvent(type).get());
    QCOMPARE(widget.received.count(type), 1);
    QCOMPARE(signalCount, 2);
}

void tst_ExceptionSafetyEventHelpers::resizeHandler_data()
{
    QTest::addColumn<bool>("shown");
    QTest::newRow("resize") << false;
    QTest::newRow("show") << true;
}

void tst_ExceptionSafetyEventHelpers::resizeHandler()
{
    QFETCH(bool, shown);
    Receiver widget;
    const WidgetResizeHandler handler(&widget);
    Fuse fuse;
    connect(&handler, &WidgetResizeHandler::Resized, this, [&fuse] { fuse(); });
    const QSignalSpy spy(&handler, &WidgetResizeHandler::Resized);
    const auto send = [&] {
        const std::unique_ptr<QEvent> event = shown ? std::unique_ptr<QEvent>(std::make_unique<QShowEvent>())
                                                    : std::make_unique<QResizeEvent>(QSize(9, 8), QSize(7, 6));
        QCoreApplication::sendEvent(&widget, event.get());
    };
    fuse.arm();
    widget.received.clear();
    QVERIFY(isThrownBy(send));
    QCOMPARE(widget.received, {});
    send();
    QCOMPARE(spy.size(), 1);
    QCOMPARE(widget.received, {shown ? QEvent::Show : QEvent::Resize});
}

void tst_ExceptionSafetyEventHelpers::dragDropObserver_data()
{
    QTest::addColumn<QEvent::Type>("type");
    QTest::newRow("enter") << QEvent::DragEnter;
    QTest::newRow("move") << QEvent::DragMove;
    QTest::newRow("drop") << QEvent::Drop;
}

void tst_ExceptionSafetyEventHelpers::dragDropObserver()
{
    QFETCH(QEvent::Type, type);
    DropZone zone;
    QMimeData data;
    data.setUrls({QUrl(QStringLiteral("file:///one"))});
    QDropEvent drop(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QDragMoveEvent move(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QDropEvent& event = type == QEvent::Drop ? drop : type == QEvent::DragMove ? move : static_cast<QDropEvent&>(enter);
    zone.enter(data);
    event.ignore();

    (type == QEvent::Drop ? zone.observer.onDropped : zone.observer.onAsked).arm();
    QVERIFY(isThrownBy([&] { zone.send(event); }));
    QVERIFY(!event.isAccepted());
    zone.send(event);
    QVERIFY(event.isAccepted());
    QCOMPARE(zone.observer.dropped.size(), type == QEvent::Drop ? 1 : 0);
}

// What was dropped before the one that throws has arrived; the rest is the next drop's.
void tst_ExceptionSafetyEventHelpers::dropOfSeveral()
{
    DropZone zone;
    QMimeData data;
    data.setUrls({QUrl(QStringLiteral("file:///one")), QUrl(QStringLiteral("file:///two"))});
    QDropEvent drop(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    zone.enter(data);
    zone.observer.onDropped.arm(1);
    QVERIFY(isThrownBy([&] { zone.send(drop); }));
    QCOMPARE(zone.observer.dropped, {QStringLiteral("/one")});
    zone.send(drop);
    QCOMPARE(zone.observer.dropped.mid(1), QStringList({QStringLiteral("/one"), QStringLiteral("/two")}));
}

// The gesture goes on with the next move: the button is still down.
void tst_ExceptionSafetyEventHelpers::widgetDrag()
{
    Mover mover;
    mover.setGeometry(50, 60, 100, 80);
    mover.show();
    AnypointWidgetDrag drag(&mover);
    Receiver handle;
    handle.installEventFilter(&drag);
    const QPoint start = mover.pos();
    sendMouse(&handle, QEvent::MouseButtonPress, QPoint(5, 5), Qt::LeftButton, Qt::LeftButton);
    mover.onMove.arm();
    QVERIFY(isThrownBy([&] { sendMouse(&handle, QEvent::MouseMove, QPoint(25, 5), Qt::NoButton, Qt::LeftButton); }));
    sendMouse(&handle, QEvent::MouseMove, QPoint(35, 15), Qt::NoButton, Qt::LeftButton);
    QCOMPARE(mover.pos(), start + QPoint(30, 10));
    handle.received.clear();
    sendMouse(&handle, QEvent::MouseButtonRelease, QPoint(35, 15), Qt::LeftButton, Qt::NoButton);
    QCOMPARE(handle.received, {});
    sendMouse(&handle, QEvent::MouseMove, QPoint(5, 5), Qt::NoButton, Qt::NoButton);
    QCOMPARE(mover.pos(), start + QPoint(30, 10));
}

void tst_ExceptionSafetyEventHelpers::alwaysOnTop()
{
    Flags flags;
    for (Fuse* fuse : {&flags.onRead, &flags.onWrite}) {
        fuse->arm();
        QVERIFY(isThrownBy([&flags] { flags.EnableAlswaysOnTop(); }));
        QVERIFY(!flags.IsAlwaysOnTop());
        flags.EnableAlswaysOnTop();
        QVERIFY(flags.IsAlwaysOnTop());
        fuse->arm();
        QVERIFY(isThrownBy([&flags] { flags.DisableAlswaysOnTop(); }));
        QVERIFY(flags.IsAlwaysOnTop());
        flags.DisableAlswaysOnTop();
        QCOMPARE(flags.flags, Qt::WindowFlags(Qt::Window));
    }
}

void tst_ExceptionSafetyEventHelpers::labels()
{
    ClickableLabel clickable;
    ExtendedLabel extended;
    Fuse fuse;
    int clicks = 0;
    const auto count = [&] {
        fuse();
        ++clicks;
    };
    connect(&clickable, &ClickableLabel::clicked, this, count);
    connect(&extended, &ExtendedLabel::clicked, this, count);
    for (QWidget* label : {static_cast<QWidget*>(&clickable), static_cast<QWidget*>(&extended)}) {
        clicks = 0;
        const auto press = [label] {
            sendMouse(label, QEvent::MouseButtonPress, QPoint(2, 2), Qt::LeftButton, Qt::LeftButton);
        };
        fuse.arm();
        QVERIFY(isThrownBy(press));
        press();
        QCOMPARE(clicks, 1);
    }
}

void tst_ExceptionSafetyEventHelpers::previewButtons_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("star") << QStringLiteral("starButton");
    QTest::newRow("play") << QStringLiteral("playButton");
}

void tst_ExceptionSafetyEventHelpers::previewButtons()
{
    QFETCH(QString, name);
    PreviewImageLabel tile;
    auto* button = tile.findChild<QToolButton*>(name);
    QVERIFY(button);
    Fuse fuse;
    int clicks = 0;
    const auto count = [&] {
        fuse();
        ++clicks;
    };
    connect(&tile, &PreviewImageLabel::starClicked, this, count);
    connect(&tile, &PreviewImageLabel::playClicked, this, count);
    const auto click = [button] {
        sendMouse(button, QEvent::MouseButtonPress, QPoint(2, 2), Qt::LeftButton, Qt::LeftButton);
        sendMouse(button, QEvent::MouseButtonRelease, QPoint(2, 2), Qt::LeftButton, Qt::NoButton);
    };
    fuse.arm();
    QVERIFY(isThrownBy(click));
    QVERIFY(!button->isDown());
    click();
    QCOMPARE(clicks, 1);
}

QTEST_MAIN(tst_ExceptionSafetyEventHelpers)
#include "tst_ExceptionSafetyEventHelpers.moc"
