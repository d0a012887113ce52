#pragma once

#include <KQt/Ui/Export.h>

#include <QWidget>

#include <memory>

namespace Kestrel::Gui {

/// The title bar of a dockable playlist panel: a drag handle, the title, and buttons to restore and to close.
///
/// Made for QDockWidget::setTitleBarWidget(); never taller than 25 pixels. The look comes from style sheets: the
/// children have the object names "Border", "icon", "Title", "Restore", "Close" and "line", and the bar's dynamic
/// property "floating" tells a floating panel from a docked one. The handle's picture,
/// ":/SharedObjectsQt/Resources/Playlist/dragdrop.png", is the application's resource.
class KQTUI_EXPORT StyledDockWidgetTitlebar : public QWidget
{
    Q_OBJECT

public:
    explicit StyledDockWidgetTitlebar(QWidget* parent = nullptr);
    ~StyledDockWidgetTitlebar() override;

    /// Sets the property "floating" (false at first) and polishes the restore button, so that style sheet rules which
    /// select by it show at once.
    void SetFloating(bool floating);

    /// Holds until the language changes, which brings "Unpin playlist" back.
    void SetRestoreButtonTooltip(const QString& text);

Q_SIGNALS:
    /// The close button was clicked.
    void Close();
    /// The restore button was clicked.
    void Detach();

protected:
    void changeEvent(QEvent* event) override;

private:
    struct Form;

    void retranslate();

    std::unique_ptr<Form> m_form;
};

} // namespace Kestrel::Gui
