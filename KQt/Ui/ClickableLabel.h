#pragma once

#include <KQt/Ui/Export.h>

#include <QLabel>

#include <string>

namespace Kestrel::Gui {

/// A label that reports presses, while it is clickable.
class KQTUI_EXPORT ClickableLabel : public QLabel
{
    Q_OBJECT
    Q_PROPERTY(bool clickable READ IsClickable WRITE SetClickable NOTIFY ClickableChanged)

public:
    /// The property's name.
    static const std::string CLICKABLE;

    explicit ClickableLabel(QWidget* parent = nullptr);
    ~ClickableLabel() override;

    /// On at first. A label that is not clickable still handles presses as QLabel does.
    bool IsClickable() const;
    void SetClickable(bool clickable);

Q_SIGNALS:
    /// Any mouse button went down, before QLabel handles the press.
    void clicked();
    void ClickableChanged(bool clickable);

protected:
    void mousePressEvent(QMouseEvent* event) override;

private:
    bool m_clickable = true;
};

} // namespace Kestrel::Gui
