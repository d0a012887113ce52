#pragma once

#include <KQt/Ui/Export.h>

#include <Qt>

QT_BEGIN_NAMESPACE
class QRectF;
QT_END_NAMESPACE

namespace Kestrel::Gui {

/// What a selection frame tells and asks of the application that shows it.
///
/// The application implements it and keeps it alive longer than every frame that it was handed to; frames do not own
/// it. A call may delete the frame that makes it.
class KQTUI_EXPORT ISelectionFrameEventHandler
{
public:
    ISelectionFrameEventHandler() = default;
    ISelectionFrameEventHandler(const ISelectionFrameEventHandler&) = default;
    ISelectionFrameEventHandler& operator=(const ISelectionFrameEventHandler&) = default;
    virtual ~ISelectionFrameEventHandler();

    /// The left button was pressed or released on the frame; called after the frame has changed its state.
    virtual void InteractionStateChanged() = 0;

    /// The frame was placed, by the user or by the program, even where it was before.
    /// @param relativeFrame the frame in fractions of its work rect; null for an empty frame.
    virtual void FrameChanged(const QRectF& relativeFrame) = 0;

    /// The frame wants this cursor to be shown. It never sets one itself.
    virtual void SetCursor(Qt::CursorShape shape) = 0;
};

} // namespace Kestrel::Gui
