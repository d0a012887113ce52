#pragma once

#include <KQt/Ui/Export.h>

#include <QComboBox>

namespace Kestrel::Gui {

/// A combo box that elides its closed text, widens its popup to the widest item, and can leave the mouse wheel to what
/// lies around it. It takes no focus unless it is given a focus policy.
///
/// The box brings its own list view. Once the popup is wide, its items are never cut; a scroll bar is allowed for with
/// the width that it has when the list is resized.
class KQTUI_EXPORT AdvancedComboBox : public QComboBox
{
    Q_OBJECT
    // clazy:excludeall=qproperty-without-notify
    Q_PROPERTY(bool mouseWheelEnabled READ mouseWheelEnabled WRITE setMouseWheelEnabled NOTIFY mouseWheelEnabledChanged)
    Q_PROPERTY(bool widePopupEnabled READ widePopupEnabled WRITE setWidePopupEnabled NOTIFY widePopupEnabledChanged)
    Q_PROPERTY(bool elideItemText READ elideItemText WRITE setElideItemText NOTIFY elideItemTextChanged)
    Q_PROPERTY(QString tooltipTemplate READ tooltipTemplate WRITE setTooltipTemplate)

public:
    explicit AdvancedComboBox(QWidget* parent = nullptr);
    ~AdvancedComboBox() override;

    /// Whether the wheel changes the current item; on at first. Otherwise the event goes on to the parent.
    bool mouseWheelEnabled() const;
    void setMouseWheelEnabled(bool enabled);

    /// Whether the popup is at least as wide as its widest item; on at first. A change replaces the list view, and
    /// with it whatever was set on the old one.
    bool widePopupEnabled() const;
    void setWidePopupEnabled(bool enabled);

    /// Whether the closed box elides its text on the right; on at first. While it does, the box sets its own tool tip
    /// at each painting: none where the text fits. Takes effect with the next painting.
    bool elideItemText() const;
    void setElideItemText(bool elide);

    /// The tool tip of an elided text; QString::arg() puts the full text in. "%1" at first. Without a place marker it is
    /// the tool tip as it stands. Takes effect with the next painting.
    QString tooltipTemplate() const;
    void setTooltipTemplate(QString tooltipTemplate);

Q_SIGNALS:
    void mouseWheelEnabledChanged();
    void widePopupEnabledChanged();
    void elideItemTextChanged();

protected:
    void wheelEvent(QWheelEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    bool m_mouseWheelEnabled = true;
    bool m_widePopupEnabled = true;
    bool m_elideItemText = true;
    QString m_tooltipTemplate = QStringLiteral("%1");
};

} // namespace Kestrel::Gui
