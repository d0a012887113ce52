#include <KQt/Ui/SelectionFrameWidget/SelectionFrameWidget.h>
#include <KQt/Ui/SelectionFrameWidget/TextWatermarkItem.h>

#include "support/FrameGestures.h"
#include "support/ProbeFrame.h"
#include "support/SceneRepaint.h"
#include "support/Thrown.h"

#include <QAbstractTextDocumentLayout>
#include <QGraphicsScene>
#include <QPainter>
#include <QStyleOptionGraphicsItem>
#include <QTextCursor>
#include <QTextDocument>
#include <QtTest>
#include <QWindow>

#include <functional>
#include <memory>

using namespace Kestrel::Gui;
using TestSupport::Fuse;
using TestSupport::isThrownBy;

namespace {

const QRectF workRect(0, 0, 400, 300);
const QRectF frameRect(100, 100, 80, 60);
const QPointF inside(140, 130);
const QPointF onCorner(180, 160);
const QPointF outside(300, 250);

/// Throws from the operation whose fuse is armed.
class Handler : public ISelectionFrameEventHandler
{
public:
    void InteractionStateChanged() override { onInteraction(); }
    void FrameChanged(const QRectF& relativeFrame) override
    {
        onFrame();
        frames.append(relativeFrame);
    }
    void SetCursor(Qt::CursorShape shape) override
    {
        onCursor();
        cursor = shape;
    }

    Fuse onInteraction;
    Fuse onFrame;
    Fuse onCursor;
    QVector<QRectF> frames;
    Qt::CursorShape cursor = Qt::BlankCursor;
};

using Frame = ProbeFrame<QGraphicsItem>;

/// A frame on a scene, and its handler.
struct Stage
{
    Stage()
        : frame(new Frame(&handler))
    {
        scene.addItem(frame);
        frame->SetKeepAspectRatio(false);
        frame->Initialize(workRect, frameRect);
        handler.frames.clear();
    }

    /// Whether a whole gesture moves the frame, and only it.
    bool drags()
    {
        const QRectF before = frame->GetFrameInScene();
        FrameGestures::press(*frame, before.center());
        const bool captioned = frame->IsInfoCaptionVisible();
        FrameGestures::move(*frame, before.center() + QPointF(10, 20));
        FrameGestures::release(*frame, before.center() + QPointF(10, 20));
        const QRectF moved = frame->GetFrameInScene();
        FrameGestures::move(*frame, outside);
        return captioned && moved == before.translated(10, 20) && frame->GetFrameInScene() == moved &&
               !frame->IsInfoCaptionVisible();
    }

    Handler handler;
    QGraphicsScene scene{workRect};
    Frame* frame;
};

enum Operation { Interaction, Cursor, Placement };

Fuse& fuseOf(Handler& handler, int operation)
{
    return operation == Interaction ? handler.onInteraction : operation == Cursor ? handler.onCursor : handler.onFrame;
}

/// A picture in a text that throws when it is painted.
class TextObject : public QObject, public QTextObjectInterface
{
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)

public:
    static constexpr int type = QTextFormat::UserObject + 1;

    using QObject::QObject;
    QSizeF intrinsicSize(QTextDocument*, int, const QTextFormat&) override { return {8, 8}; }
    void drawObject(QPainter* painter, const QRectF& rect, QTextDocument*, int, const QTextFormat&) override
    {
        painter->fillRect(rect, Qt::red);
        onDraw();
    }

    Fuse onDraw;
};

/// Throws as it is asked how transparent it is.
class RenderSource : public Frame
{
public:
    using Frame::Frame;
    int GetTransparency() const override
    {
        onAsked();
        return 100;
    }

    mutable Fuse onAsked;
};

} // namespace

/// What the handler of a frame, a subclass or a part of its contents throws.
class tst_ExceptionSafetySelectionFrames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void press_data();
    void press();
    void move();
    void release_data();
    void release();
    void hoverPaintsTheFrame();
    void leavingPaintsTheFrame();
    void placement_data();
    void placement();
    void textPainting();
    void renderedImage();
    void windowEvents();
};

void tst_ExceptionSafetySelectionFrames::press_data()
{
    QTest::addColumn<int>("operation");
    QTest::addColumn<int>("callsToPass");
    QTest::addColumn<QPointF>("position");
    QTest::newRow("inside, first cursor") << int(Cursor) << 0 << inside;
    QTest::newRow("inside, closed hand") << int(Cursor) << 1 << inside;
    QTest::newRow("inside, interaction") << int(Interaction) << 0 << inside;
    QTest::newRow("corner, cursor") << int(Cursor) << 0 << onCorner;
    QTest::newRow("corner, interaction") << int(Interaction) << 0 << onCorner;
}

// It counts as not having happened: the moves that follow would have nothing to start from.
void tst_ExceptionSafetySelectionFrames::press()
{
    QFETCH(int, operation);
    QFETCH(int, callsToPass);
    QFETCH(QPointF, position);
    Stage stage;
    fuseOf(stage.handler, operation).arm(callsToPass);
    QVERIFY(isThrownBy([&] { FrameGestures::press(*stage.frame, position); }));
    QVERIFY(!stage.frame->IsInfoCaptionVisible());
    FrameGestures::move(*stage.frame, outside);
    QCOMPARE(stage.frame->GetFrameInScene(), frameRect);
    FrameGestures::release(*stage.frame, outside);
    QVERIFY(stage.drags());
}

// The button is still down: the gesture goes on, from where the press was.
void tst_ExceptionSafetySelectionFrames::move()
{
    Stage stage;
    FrameGestures::press(*stage.frame, inside);
    stage.handler.onFrame.arm();
    QVERIFY(isThrownBy([&] { FrameGestures::move(*stage.frame, inside + QPointF(5, 5)); }));
    QVERIFY(stage.frame->IsInfoCaptionVisible());
    FrameGestures::move(*stage.frame, inside + QPointF(30, 40));
    QCOMPARE(stage.frame->GetFrameInScene(), frameRect.translated(30, 40));
    FrameGestures::release(*stage.frame, inside + QPointF(30, 40));
    QVERIFY(stage.drags());
}

void tst_ExceptionSafetySelectionFrames::release_data()
{
    QTest::addColumn<int>("operation");
    QTest::addColumn<int>("callsToPass");
    QTest::newRow("open hand") << int(Cursor) << 0;
    QTest::newRow("cursor") << int(Cursor) << 1;
    QTest::newRow("interaction") << int(Interaction) << 0;
}

// The caption has to go from the screen, too.
void tst_ExceptionSafetySelectionFrames::release()
{
    QFETCH(int, operation);
    QFETCH(int, callsToPass);
    Stage stage;
    FrameGestures::press(*stage.frame, inside);
    fuseOf(stage.handler, operation).arm(callsToPass);
    QVERIFY(schedulesRepaint(stage.scene,
                             [&] { QVERIFY(isThrownBy([&] { FrameGestures::release(*stage.frame, inside); })); }));
    QVERIFY(!stage.frame->IsInfoCaptionVisible());
    FrameGestures::move(*stage.frame, outside);
    QCOMPARE(stage.frame->GetFrameInScene(), frameRect);
    QVERIFY(stage.drags());
}

void tst_ExceptionSafetySelectionFrames::hoverPaintsTheFrame()
{
    Stage stage;
    stage.handler.onCursor.arm();
    QVERIFY(schedulesRepaint(stage.scene,
                             [&] { QVERIFY(isThrownBy([&] { FrameGestures::hover(*stage.frame, inside); })); }));
    FrameGestures::hover(*stage.frame, inside);
    QCOMPARE(stage.handler.cursor, Qt::SizeAllCursor);
}

void tst_ExceptionSafetySelectionFrames::leavingPaintsTheFrame()
{
    Stage stage;
    FrameGestures::hover(*stage.frame, inside);
    stage.handler.onCursor.arm();
    QVERIFY(schedulesRepaint(stage.scene,
                             [&] { QVERIFY(isThrownBy([&] { FrameGestures::leave(*stage.frame, outside); })); }));
    FrameGestures::hover(*stage.frame, inside);
    FrameGestures::leave(*stage.frame, outside);
    QCOMPARE(stage.handler.cursor, Qt::ArrowCursor);
}

void tst_ExceptionSafetySelectionFrames::placement_data()
{
    QTest::addColumn<QString>("hook");
    QTest::addColumn<bool>("placed");
    QTest::newRow("adjusting") << QStringLiteral("adjust") << false;
    QTest::newRow("contents") << QStringLiteral("contents") << true;
    QTest::newRow("handler") << QStringLiteral("handler") << true;
}

// What throws before the placement leaves the frame where it was, what throws after it where it is.
void tst_ExceptionSafetySelectionFrames::placement()
{
    QFETCH(QString, hook);
    QFETCH(bool, placed);
    Stage stage;
    Fuse fuse;
    stage.frame->onAdjustFrame = [&](QRectF&) {
        if (hook == QLatin1String("adjust"))
            fuse();
    };
    stage.frame->onUpdateContents = [&] {
        if (hook == QLatin1String("contents"))
            fuse();
    };
    (hook == QLatin1String("handler") ? stage.handler.onFrame : fuse).arm();
    const QRectF target(20, 30, 50, 40);
    QVERIFY(isThrownBy([&] { stage.frame->SetFrameInScene(target); }));
    QCOMPARE(stage.frame->GetFrameInScene(), placed ? target : frameRect);
    QCOMPARE(stage.handler.frames, {});
    stage.frame->SetFrameInScene(target);
    QCOMPARE(stage.frame->GetFrameInScene(), target);
    QCOMPARE(stage.handler.frames, {QRectF(0.05, 0.1, 0.125, 40 / 300.0)});
    QVERIFY(stage.drags());
}

void tst_ExceptionSafetySelectionFrames::textPainting()
{
    Handler handler;
    TextWatermarkItem item(&handler);
    item.Initialize(workRect, frameRect);
    item.SetText(QStringLiteral("text "));
    TextObject object;
    item.document()->documentLayout()->registerHandler(TextObject::type, &object);
    QTextCharFormat format;
    format.setObjectType(TextObject::type);
    QTextCursor cursor(item.document());
    cursor.movePosition(QTextCursor::End);
    cursor.insertText(QString(QChar::ObjectReplacementCharacter), format);

    QStyleOptionGraphicsItem option;
    const auto paint = [&](QPainter& painter) { item.paint(&painter, &option, nullptr); };
    const auto picture = [&](bool failFirst) {
        QImage image(200, 150, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.setFont(QFont(QStringLiteral("Helvetica"), 7));
        painter.setBrush(Qt::green);
        painter.translate(10, 20);
        if (failFirst) {
            object.onDraw.arm();
            if (!isThrownBy([&] { paint(painter); }))
                return QImage();
        }
        // What goes on to be painted finds the painter as it was.
        painter.fillRect(QRect(-10, -20, 200, 150), Qt::white);
        painter.drawText(QPoint(100, 100), QStringLiteral("next"));
        painter.drawRect(120, 5, 10, 10);
        return image;
    };
    QCOMPARE(picture(true), picture(false));
    QImage canvas(200, 150, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&canvas);
    paint(painter);
}

void tst_ExceptionSafetySelectionFrames::renderedImage()
{
    QWindow window;
    SelectionFrameWidget view(nullptr, &window);
    view.resize(400, 300);
    view.scene()->setSceneRect(workRect);
    Handler handler;
    auto* source = new RenderSource(&handler);
    view.scene()->addItem(source);
    source->Initialize(workRect, frameRect);
    const QImage before = view.RenderToImage();
    source->onAsked.arm();
    QVERIFY(isThrownBy([&view] { view.RenderToImage(); }));
    QCOMPARE(view.RenderToImage(), before);
}

// The window's mouse reaches the frame as before.
void tst_ExceptionSafetySelectionFrames::windowEvents()
{
    QWindow window;
    SelectionFrameWidget view(nullptr, &window);
    view.setFrameShape(QFrame::NoFrame);
    view.resize(400, 300);
    view.scene()->setSceneRect(workRect);
    view.EnableEditMode(true);
    Handler handler;
    auto* frame = new Frame(&handler);
    view.scene()->addItem(frame);
    frame->SetKeepAspectRatio(false);
    frame->Initialize(workRect, frameRect);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    const auto send = [&](QEvent::Type type, const QPointF& scenePos, Qt::MouseButtons buttons) {
        const QPoint position = view.mapFromScene(scenePos);
        QMouseEvent event(type, position, view.mapToGlobal(position),
                          type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, buttons, Qt::NoModifier);
        QCoreApplication::sendEvent(&window, &event);
    };
    handler.onInteraction.arm();
    QVERIFY(isThrownBy([&] { send(QEvent::MouseButtonPress, inside, Qt::LeftButton); }));
    send(QEvent::MouseButtonRelease, inside, Qt::NoButton);
    QCOMPARE(frame->GetFrameInScene(), frameRect);

    send(QEvent::MouseButtonPress, inside, Qt::LeftButton);
    send(QEvent::MouseMove, inside + QPointF(20, 10), Qt::LeftButton);
    send(QEvent::MouseButtonRelease, inside + QPointF(20, 10), Qt::NoButton);
    QCOMPARE(frame->GetFrameInScene(), frameRect.translated(20, 10));
}

QTEST_MAIN(tst_ExceptionSafetySelectionFrames)
#include "tst_ExceptionSafetySelectionFrames.moc"
