#pragma once

#include <KQt/Ui/SelectionFrameWidget/ISelectionFrameEventHandler.h>

#include <QRectF>
#include <QVector>

/// Writes down what a selection frame tells its host, in the order in which it is told.
class RecordingFrameHandler : public Kestrel::Gui::ISelectionFrameEventHandler
{
public:
    enum Kind { Interaction, Frame, Cursor };
    struct Call
    {
        Kind kind;
        QRectF frame;
        Qt::CursorShape shape;
    };

    void InteractionStateChanged() override { calls.append({Interaction, QRectF(), Qt::BlankCursor}); }
    void FrameChanged(const QRectF& relativeFrame) override { calls.append({Frame, relativeFrame, Qt::BlankCursor}); }
    void SetCursor(Qt::CursorShape shape) override { calls.append({Cursor, QRectF(), shape}); }

    void clear() { calls.clear(); }

    /// The kinds of the calls alone, for checking their order.
    QVector<int> order() const
    {
        QVector<int> kinds;
        for (const Call& call : calls)
            kinds.append(call.kind);
        return kinds;
    }

    QVector<int> cursors() const
    {
        QVector<int> shapes;
        for (const Call& call : calls) {
            if (call.kind == Cursor)
                shapes.append(call.shape);
        }
        return shapes;
    }

    QVector<QRectF> frames() const
    {
        QVector<QRectF> result;
        for (const Call& call : calls) {
            if (call.kind == Frame)
                result.append(call.frame);
        }
        return result;
    }

    int interactions() const { return order().count(Interaction); }

    QVector<Call> calls;
};
