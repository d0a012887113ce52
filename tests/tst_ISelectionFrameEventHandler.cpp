#include <KQt/Ui/SelectionFrameWidget/ISelectionFrameEventHandler.h>

#include <QRectF>
#include <QtTest>

#include <memory>

using Kestrel::Gui::ISelectionFrameEventHandler;

namespace {

class Handler : public ISelectionFrameEventHandler
{
public:
    Handler() = default;
    Handler(const Handler& other) = default;
    Handler& operator=(const Handler& other) = default;
    ~Handler() override
    {
        if (destroyed)
            ++*destroyed;
    }

    void InteractionStateChanged() override { ++interactions; }
    void FrameChanged(const QRectF& relativeFrame) override { frame = relativeFrame; }
    void SetCursor(Qt::CursorShape shape) override { cursor = shape; }

    int interactions = 0;
    QRectF frame;
    Qt::CursorShape cursor = Qt::ArrowCursor;
    int* destroyed = nullptr;
};

} // namespace

/// What frames tell is tested with the frames; this is what the interface's implementers rely on.
class tst_ISelectionFrameEventHandler : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isCalledThroughTheInterface();
    void isDeletedThroughTheInterface();
    void implementersCanBeCopied();
};

void tst_ISelectionFrameEventHandler::isCalledThroughTheInterface()
{
    Handler handler;
    ISelectionFrameEventHandler& told = handler;
    told.InteractionStateChanged();
    told.FrameChanged(QRectF(0.25, 0.5, 0.125, 1.0));
    told.SetCursor(Qt::SizeAllCursor);
    QCOMPARE(handler.interactions, 1);
    QCOMPARE(handler.frame, QRectF(0.25, 0.5, 0.125, 1.0));
    QCOMPARE(handler.cursor, Qt::SizeAllCursor);
}

void tst_ISelectionFrameEventHandler::isDeletedThroughTheInterface()
{
    int destroyed = 0;
    auto handler = std::make_unique<Handler>();
    handler->destroyed = &destroyed;
    std::unique_ptr<ISelectionFrameEventHandler> owner = std::move(handler);
    owner.reset();
    QCOMPARE(destroyed, 1);
}

void tst_ISelectionFrameEventHandler::implementersCanBeCopied()
{
    Handler first;
    first.SetCursor(Qt::SizeHorCursor);
    const Handler copy(first);
    QCOMPARE(copy.cursor, Qt::SizeHorCursor);
    Handler assigned;
    assigned = first;
    QCOMPARE(assigned.cursor, Qt::SizeHorCursor);
}

QTEST_APPLESS_MAIN(tst_ISelectionFrameEventHandler)
#include "tst_ISelectionFrameEventHandler.moc"
