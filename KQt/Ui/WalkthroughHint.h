#pragma once

#include <KQt/Ui/Export.h>

#include <QRect>
#include <QSet>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QWidget>

class QAbstractButton;
class QLabel;
class QStackedWidget;

namespace Kestrel::Gui {

class HighlightFrame;

/// Base of the small widgets that point at part of a window during a walkthrough.
///
/// An application derives from it once. The subclass owns a stacked widget with one page per hint and can copy itself;
/// the prototype is never shown, each copy shows one page. What a page is about stands in its dynamic properties, and a
/// page that lacks one, like a hint without a page, has an empty value:
/// - "walkthroughName": the hint's name,
/// - "walkthroughWidget": the name of the widgets that the hint points at,
/// - "walkthroughAlignment": "left", "top", "right" or "bottom", where the hint stands beside them; with any other
///   text it stands on their middle. The sides are those of the screen, also where layouts run from right to left,
/// - "walkthroughConditionList": the paths of the states that must be active before the hint shows.
///
/// start() lays a HighlightFrame around the target widgets. At the frame's first report the hint becomes a child of the
/// window that the frame is in, stands beside the frame and follows it, five pixels away from it and from the window's
/// edge. It is moved off the avoid widget where there is room, and cut off where there is none. Placing runs through
/// the event loop, one turn after the frame has moved. All lengths are pixels.
///
/// Targets and avoid widget stay the caller's; each may be deleted at any time and counts as hidden from then on. The
/// frame belongs to the hint. Once started, the hint belongs to the window that it is shown in, and dies with it.
class KQTUI_EXPORT WalkthroughHint : public QWidget
{
    Q_OBJECT

public:
    WalkthroughHint();
    /// Deletes the frame too.
    ~WalkthroughHint() override;

    /// Nothing, so that a small window can cut the hint to any size.
    QSize minimumSizeHint() const override;
    /// Watches the avoid widget. Consumes nothing.
    bool eventFilter(QObject* watched, QEvent* event) override;

    /// A new hint of the same kind, with pages of its own in the same order; the caller's.
    virtual WalkthroughHint* clone() const = 0;
    /// What holds the pages; the hint's.
    virtual QStackedWidget* stackedWidget() const = 0;
    /// The current page's text, or null. For applications, like the three buttons: the library does not ask for them.
    virtual QLabel* textLabel() const = 0;
    /// The button that closes the hint, or null.
    virtual QAbstractButton* closeButton() const = 0;
    /// The button that switches hints off until the application's next start, or null.
    virtual QAbstractButton* disableForSessionButton() const = 0;
    /// The button that switches hints off for good, or null.
    virtual QAbstractButton* disableForeverButton() const = 0;

    /// Points at @p targets: takes back what the user chose, keeps of the pages only the current one in the stacked
    /// widget, and lays a new frame around the targets in place of one that there was. The hint shows when the frame
    /// has been placed. Without a target that has a window nothing ever shows.
    virtual void start(QSet<QWidget*> targets);
    /// Closes the hint, releases the frame, and emits the one signal that tells what the user chose: for ever before
    /// for the session, none where hints go on. May be called from the answer to the Close event that it causes; the
    /// signal is emitted once all the same. A hint that was not started can be finished too.
    virtual void finish();

    /// The current page, or null.
    QWidget* contentWidget();
    QString hintName();
    QString widgetName();
    QString alignment();
    QStringList conditionList();

    /// "walkthroughWidget".
    static const char* widgetPropertyName();

    /// The frame around the targets; null before start() and after finish().
    QWidget* getTargetWidget() const;

    /// The widget that the hint keeps clear of, while that one is visible and inside the hint's window; null for none.
    void setAvoidWidget(QWidget* widget);

    /// Places the hint again if it is visible, for instance after its size hint has changed.
    void updateHintPosition();

Q_SIGNALS:
    /// The user wants no more hints until the application's next start. Emitted by finish() only.
    void hintsDisabledForSession();
    /// The user wants no more hints, ever. Emitted by finish() only.
    void hintsDisabledForever();

protected Q_SLOTS:
    // For the page's controls. What the user chooses counts when the hint finishes.
    void enableHintsForever();
    void disableHintsForever();
    void enableHintsForSession();
    void disableHintsForSession();
    void frameDestroyed();

protected:
    /// Passes the event on, after the text's limit has been lifted where the language has changed.
    void changeEvent(QEvent* event) override;

    /// Limits the text's extent to @p size, of which one length is 655536 where it may be any. Called before the hint
    /// is resized. The base does nothing.
    virtual void limitTextSize(QSize size);

private Q_SLOTS:
    void frameVisibilityChanged(bool visible);
    void frameGeometryChanged(QRect geometry);
    void avoidGeometryChanged();

private:
    friend class WalkthroughController;

    int offsetBetweenWidgetsAndHint() const;
    bool isAvoiding() const;
    void moveIntoWindowOfFrame();
    void abandonStart();
    void releaseFrame();
    void removeOtherPages();
    void announceUsersChoice();
    QVariant pageProperty(const char* name);
    void place();
    void followFrameVisibility();
    void applyPlace(const QRect& place, bool isBeside);
    QRectF avoidRect() const;

    HighlightFrame* m_frame = nullptr;
    QWidget* m_avoidWidget = nullptr;
    QRect m_lastFrameGeometry;
    bool m_enabledForever = true;
    bool m_enabledForSession = true;
    bool m_running = false;
    QMetaObject::Connection m_avoidWidgetDestroyed;
    int m_finishCount = 0;
    bool m_isAnnouncing = false;
};

} // namespace Kestrel::Gui
