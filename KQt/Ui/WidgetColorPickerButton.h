#pragma once

#include <KQt/Ui/Export.h>

#include <QColor>
#include <QPointer>
#include <QToolButton>

namespace Kestrel::Gui {

class HighlightFrame;
class WidgetColorPicker;

/// A tool button that lets the user pick a colour from one target widget and shows the picked colour.
///
/// Disabled while it has no target. A click starts picking and returns when picking has ended; see WidgetColorPicker
/// for what ends it. A click on the button itself ends picking without starting anew.
class KQTUI_EXPORT WidgetColorPickerButton : public QToolButton
{
    Q_OBJECT
    // clazy:excludeall=qproperty-without-notify
    /// Whether the button shows the colour as its background and frames itself while picking; on at first.
    Q_PROPERTY(bool changeSelfColor MEMBER m_changeSelfColor)

public:
    explicit WidgetColorPickerButton(QWidget* parent = nullptr);
    ~WidgetColorPickerButton() override;

    /// Invalid until a colour is picked or set.
    QColor color() const;
    void setColor(const QColor& color);

    /// The widget to pick from; not owned. The button is enabled exactly while it has one.
    void setTargetWidget(QWidget* target);
    const QWidget* targetWidget() const;

Q_SIGNALS:
    void pickingStarted();
    /// Also where no colour was picked.
    void pickingFinished();
    /// Follows each picked colour and each setColor(), changed or not.
    void colorChanged(QColor color);

public Q_SLOTS:
    /// Blocks until picking has ended. Does nothing without a target or while picking.
    void startPicking();
    /// Ends picking; the colour under the cursor is still taken.
    void stopPicking();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void frameItself();
    QColor pickOnce();

    WidgetColorPicker* m_picker;
    QPointer<QWidget> m_target;
    QPointer<HighlightFrame> m_highlight; // owned, but the button's parent may delete it first
    QColor m_color;
    bool m_changeSelfColor = true;
    bool m_starting = false; // from before pickingStarted() until pick() has returned
};

} // namespace Kestrel::Gui
