#pragma once

#include <KQt/Ui/Export.h>

#include <QLinkedList>
#include <QObject>
#include <QPixmap>
#include <QPointer>
#include <QRect>
#include <QSet>
#include <QVector>

QT_BEGIN_NAMESPACE
class QEvent;
class QWidget;
QT_END_NAMESPACE

// The list's type is part of the class's interface. Qt 5.15 deprecates it although it works in every Qt 5; without this
// every file that includes the header would be warned about a choice that is not its own.
QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED

namespace Kestrel::Gui {

/// Draws every widget that lies within the area of one tracked widget into one picture, and cuts it out of the widget.
///
/// The area is the renderer frame. It follows the tracked widget's events, or is set by ChangeRendererFrame(). The
/// renderer watches all widgets of the application and consumes no event:
///
/// - A widget that is moved, resized or shown so that it lies wholly inside the frame is taken over: it is drawn into
///   the picture, gets a mask without the covered part and receives mouse events over its whole area
///   (Qt::WA_MouseNoMask). A mask of its own is replaced. A widget that lies only partly inside is left alone.
/// - A taken-over widget that is painted, raised, lowered, moved or resized has the picture drawn anew.
/// - One that no longer lies wholly inside, is hidden or closed loses its mask and Qt::WA_MouseNoMask and leaves the
///   picture. One that is deleted leaves too, by itself or with its window; the picture without it follows in the next
///   turn of the event loop, for a destructor is no place to paint other widgets from.
///
/// One cause draws the picture once. What the drawing itself brings about - paint events, masks, exposed parents - does
/// not start it again. Only when a paint handler changes which widgets there are or where they lie is the picture drawn
/// a second time, and not more. While a window paints a taken-over widget the picture has to wait, for a widget cannot
/// be drawn elsewhere in the middle of its own painting: it follows as soon as control is back in the event loop.
///
/// Coordinates are device-independent and global as far as the events give them so: the frame takes the tracked
/// widget's move event and its show, hide and stacking events in the parent's coordinates, its resize event mapped to
/// the screen; a widget's own frame is mapped by the widget. A tracked window at the screen's origin has all of them
/// alike. The picture has the frame's size, in the tracked widget's device pixel ratio, black where nothing lies.
///
/// Under Wayland an application does not learn where its windows are; all of them seem to lie at the origin. Widgets of
/// one window are put together as they are seen, those of different windows are not.
///
/// The tracked widget is borrowed. When it is deleted the frame stays where it was. Widgets that are taken over when
/// the renderer is deleted keep their masks. GUI thread only.
class KQTUI_EXPORT WidgetRenderer : public QObject
{
    Q_OBJECT

public:
    /// Starts to watch the application; nothing is taken over before the tracked widget's frame is known, that is
    /// before its first event or ChangeRendererFrame().
    /// @throws std::invalid_argument "trackedWidget is NULL"
    WidgetRenderer(QWidget* trackedWidget, QObject* parent);
    ~WidgetRenderer() override;

    /// Sets the renderer frame and does nothing else: the picture follows with the next event of a taken-over widget.
    ///
    /// While widgets are taken over the frame must not be empty: their next event would throw std::invalid_argument
    /// "rendererRect is invalid" out of the event's delivery. Hide the widgets first.
    Q_INVOKABLE void ChangeRendererFrame(const QRect& rendererRect);

    /// The picture as it was last drawn; null while no widget is taken over.
    const QPixmap& GetMaskImage() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void CheckWidget(QWidget* widget) const;
    bool IsTrackedWidget(QWidget* widget) const;
    bool IsInRendererBounds(QWidget* widget) const;
    static QRect MapRectToGlobal(const QWidget& widget, const QRect& rect);
    static QRect MapRectFromGlobal(const QWidget& widget, const QRect& rect);

    void UpdateMaskImage();
    void OnAppAppearanceChanged();
    void OnWidgetAppearanceChanged(QWidget* widget);
    void OnWidgetFrameChanged(QWidget* widget);
    void OnWidgetEntered(QWidget* widget, bool updateImage, bool addToList);
    void OnWidgetLeaved(QWidget* widget, bool updateImage, bool removeFromList);
    QPixmap CreateMaskImageForRect(const QRect& rect, QLinkedList<QWidget*>& widgets);

    void OnTrackedWidgetEvent(QEvent* event);
    void OnOtherWidgetEvent(QWidget* widget, const QEvent* event);
    void OnWidgetPlaced(QWidget* widget);
    void RemoveFromRenderer(QWidget* widget);
    void ForgetTrackedWidget();
    void ForgetWidget(QObject* destroyed);
    bool IsBeingDestroyed(QWidget* widget) const;
    void RedrawWithoutDestroyed();

    void ComposeImage();
    bool IsAnyBeingPainted() const;
    void RedrawLater();
    void RenderWidget(QWidget* widget, const QRect& rect, QPixmap& picture);
    bool IsStillThere(QWidget* widget) const;
    void SettleMasks();

    QWidget* m_trackedWidget;
    QPixmap m_image;
    QRect m_rendererRect;
    QLinkedList<QWidget*> m_widgets;
    QSet<const QObject*> m_inDerivedDialogs; // those of the list that were taken over in a dialog of a class of its own

    bool m_composing = false;
    bool m_changedWhileComposing = false;
    bool m_redrawQueued = false;
    QVector<QPointer<QWidget>> m_remasked; // child widgets whose new mask makes their window paint
};

} // namespace Kestrel::Gui

QT_WARNING_POP
