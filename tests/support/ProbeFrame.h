#pragma once

#include <KQt/Ui/SelectionFrameWidget/SelectionFrameGraphicsItem.h>

#include <functional>

/// The bare template over the item class @p T, with the hooks that a subclass gets handed out to the test.
template <typename T>
class ProbeFrame : public Kestrel::Gui::SelectionFrameGraphicsItem<T>
{
public:
    using Base = Kestrel::Gui::SelectionFrameGraphicsItem<T>;

    explicit ProbeFrame(Kestrel::Gui::ISelectionFrameEventHandler* handler, QGraphicsItem* parent = nullptr)
        : Base(handler, parent)
    {
    }

    using Base::GetPaintingRect;

    void UpdateContents() override
    {
        if (onUpdateContents)
            onUpdateContents();
    }

    void SetWorkRect(const QRectF& workRect) override
    {
        if (onSetWorkRect)
            onSetWorkRect(workRect);
        Base::SetWorkRect(workRect);
    }

    QRectF GetWorkRect() const override { return pretendedWorkRect.isNull() ? Base::GetWorkRect() : pretendedWorkRect; }

    std::function<void()> onUpdateContents;
    std::function<void(const QRectF&)> onSetWorkRect;
    std::function<void(QRectF&)> onAdjustFrame;
    QRectF pretendedWorkRect;

protected:
    void AdjustFrame(QRectF& sceneFrame) override
    {
        if (onAdjustFrame)
            onAdjustFrame(sceneFrame);
    }
};
