#pragma once

#include <KQt/Ui/Export.h>

#include <QFrame>
#include <QPointer>
#include <QRect>
#include <QSet>
#include <QVector>

namespace Kestrel::Gui {

/// A frame laid over one widget, or around several, to mark them.
///
/// It becomes a child of its host: the widget's parent, or the window of the widgets. There it stays above its
/// siblings, lets every click through to what lies beneath, and follows the widgets as they move, resize, show and
/// hide, three pixels outside them and cut at the host's edge. It is hidden until control has returned to the event
/// loop once and one of the widgets is visible inside the host; from then on it stays shown.
///
/// The frame paints nothing but what QFrame does: frame settings or a style sheet give it its look.
///
/// Widgets and host stay the caller's. Each may be deleted at any time, also from a slot connected to the frame: a
/// deleted widget counts as hidden, which shows once control returns to the event loop, and so does one that has been
/// moved out of the host. Deleting the host deletes the frame. Without a widget, or for a single widget without a
/// parent, there is no host, and the frame never does anything.
class KQTUI_EXPORT HighlightFrame : public QFrame
{
    Q_OBJECT

public:
    /// Marks @p widget inside its parent.
    explicit HighlightFrame(QWidget* widget);
    /// Marks @p widgets inside their window. They are expected to share one; where they do not, one of their windows is
    /// the host, and those inside it count. Null entries are left out.
    explicit HighlightFrame(QSet<QWidget*> widgets);
    ~HighlightFrame() override;

    /// Watches the marked widgets, the host and what lies between. Consumes nothing.
    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// The frame has got @p newGeometry, in the host's coordinates. Emitted at the first placement even where the
    /// geometry is the one the frame was made with, later only on a change, and before visibilityChanged().
    void geometryChanged(QRect newGeometry);
    /// True: the frame has been shown. False: no marked widget is visible any more; emitted while the frame is visible,
    /// which it stays, for whoever follows it decides what to do.
    void visibilityChanged(bool newVisibility);

private Q_SLOTS:
    void trackWidgets();

private:
    struct Margins
    {
        int left = -3;
        int right = 2;
        int top = -3;
        int bottom = 2;
    };

    void initTopLevel(QWidget* host);
    void watchWidget(QWidget* widget);
    void watchAncestors();
    void trackLater();
    bool trackOnEvent(QObject* watched);
    bool isAncestorBetween(const QObject* watched) const;
    bool isInsideHost(const QWidget* widget) const;
    QRect desiredRect() const;
    bool applyGeometry(const QRect& geometry);

    Margins m_margins;
    QSet<QWidget*> m_trackedWidgets;
    QWidget* m_host = nullptr;
    QVector<QPointer<QWidget>> m_ancestors; // between the tracked widgets and the host
    bool m_isPlaced = false;
    bool m_isTrackingDue = false;
};

} // namespace Kestrel::Gui
