#pragma once

#include <KQt/Ui/Export.h>

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QRectF;
QT_END_NAMESPACE

namespace Kestrel::Gui {

/// What SelectionFrameWidget reads of a frame when it renders its scene into an image.
class KQTUI_EXPORT IFrameRenderSource
{
public:
    IFrameRenderSource() = default;
    IFrameRenderSource(const IFrameRenderSource&) = default;
    IFrameRenderSource& operator=(const IFrameRenderSource&) = default;
    virtual ~IFrameRenderSource();

    /// The frame in scene coordinates.
    virtual QRectF GetFrameInScene() const = 0;

    /// 0 leaves the alpha of the rendered area as it is, 255 clears it.
    virtual int GetTransparency() const = 0;

    /// Whether the transparency applies to the rendered area at all.
    virtual bool IsBackgroundAlphaChannelNeeded() const = 0;

    /// Whether the caption lies inside the frame, for lack of room above it.
    virtual bool IsInfoCaptionInsideFrame() const = 0;

    /// Whether the caption is painted: while the frame is moved or resized.
    virtual bool IsInfoCaptionVisible() const = 0;
};

} // namespace Kestrel::Gui
