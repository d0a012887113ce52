#pragma once

#include <KQt/Ui/Export.h>

#include <QLabel>

QT_BEGIN_NAMESPACE
class QToolButton;
QT_END_NAMESPACE

namespace Kestrel::Gui {

/// A label for a preview picture, with a star button at the top right, a play button in the middle and a duration label
/// over it.
///
/// The picture is set as with any QLabel. Both buttons are hidden until they are shown. The three children have the
/// object names "starButton", "playButton" and "durationLabel" and carry their role ("star", "play", "duration") in the
/// dynamic property "styleTag" for style sheets. The buttons are placed when the tile is resized.
class KQTUI_EXPORT PreviewImageLabel : public QLabel
{
    Q_OBJECT
    // clazy:excludeall=qproperty-without-notify
    Q_PROPERTY(bool starIsVisible READ getStarIsVisible WRITE setStarIsVisible)

public:
    /// @param parent is not used: put the tile into a layout, or call setParent().
    explicit PreviewImageLabel(QWidget* parent = nullptr);
    ~PreviewImageLabel() override;

    /// Owned by the tile; its text and place are the owner's business.
    QLabel* GetDurationLabel();

    /// False while the tile itself is hidden.
    bool getStarIsVisible() const;
    void setStarIsVisible(bool visible);

    bool getPlayIsVisible() const;
    void setPlayIsVisible(bool visible);

    /// Enables the play button alone; the star keeps its state.
    void SetItemsEnabled(bool enabled);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// A mouse button was released over the star while the play button is enabled.
    void starClicked();
    /// A mouse button was released over the enabled play button.
    void playClicked();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void pressButton(QObject* button);
    void releaseButton(QObject* button);

    QToolButton* m_star;
    QToolButton* m_play;
    QLabel* m_duration;
};

} // namespace Kestrel::Gui
