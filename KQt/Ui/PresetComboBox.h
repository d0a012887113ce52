#pragma once

#include <KQt/Ui/Export.h>

#include <QComboBox>
#include <QIcon>

namespace Kestrel::Gui {

/// A combo box that asks the application to show a panel of presets where others open their list.
///
/// It can show an icon at the right end of its field; the text is elided before it.
class KQTUI_EXPORT PresetComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit PresetComboBox(QWidget* parent = nullptr);
    ~PresetComboBox() override;

    /// Shows @p icon at its own size, up to 100 pixels, at the right end of the field; a null icon shows none.
    virtual void SetAdditionalIcon(const QIcon& icon);

    /// Emits ShowPopupActivated() and opens nothing.
    void showPopup() override;
    /// Does nothing, for the list is never open.
    void hidePopup() override;

Q_SIGNALS:
    /// A mouse button went down on the box, or showPopup() was called, by the keyboard for instance.
    void ShowPopupActivated();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QIcon m_additionalIcon;
};

} // namespace Kestrel::Gui
