#pragma once

#include <QWidget>

#include <functional>
#include <memory>
#include <vector>

QT_BEGIN_NAMESPACE
class QGraphicsItem;
class QWindow;
QT_END_NAMESPACE

namespace Kestrel::Gui {
class ISelectionFrameEventHandler;
class SelectionFrameWidget;
} // namespace Kestrel::Gui

namespace Gallery {

/// A small live window, in the page, with a SelectionFrameWidget over what it shows.
///
/// The frames let the mouse through; only in edit mode do they take it from the window.
class FrameStage : public QWidget
{
    Q_OBJECT

public:
    /// What a frame tells.
    struct Listener
    {
        std::function<void()> stateChanged;
        std::function<void(const QRectF& relativeFrame)> frameChanged;
    };

    /// @param content fills the stage below the frames
    FrameStage(QWidget* content, const QSize& size, QWidget* parent = nullptr);
    ~FrameStage() override;

    Kestrel::Gui::SelectionFrameWidget* frames() const { return m_frames; }

    /// A handler that shows the cursors of its frame on the stage. It lives as long as the stage.
    Kestrel::Gui::ISelectionFrameEventHandler* createHandler(Listener listener);
    void addFrame(QGraphicsItem* frame);

    /// The clear area, centred, with an equal margin at all sides.
    QRectF setWorkMargin(int margin);

protected:
    bool event(QEvent* event) override;

private:
    void createFrames();
    void becomeWindow();

    // Watched until the stage, once it is shown, has a window of its own.
    std::unique_ptr<QWindow> m_noWindowYet;
    std::vector<std::unique_ptr<Kestrel::Gui::ISelectionFrameEventHandler>> m_handlers;
    Kestrel::Gui::SelectionFrameWidget* m_frames = nullptr;
};

} // namespace Gallery
