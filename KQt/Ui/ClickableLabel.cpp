#include <KQt/Ui/ClickableLabel.h>

#include <KQt/Ui/Accessibility/InstallAccessibility.h>

#include <QPointer>

namespace Kestrel::Gui {

const std::string ClickableLabel::CLICKABLE = "clickable";

ClickableLabel::ClickableLabel(QWidget* parent)
    : QLabel(parent)
{
    Detail::installAccessibility();
}

ClickableLabel::~ClickableLabel() = default;

bool ClickableLabel::IsClickable() const
{
    return m_clickable;
}

void ClickableLabel::SetClickable(bool clickable)
{
    if (m_clickable == clickable)
        return;
    m_clickable = clickable;
    Q_EMIT ClickableChanged(m_clickable);
}

void ClickableLabel::mousePressEvent(QMouseEvent* event)
{
    const QPointer<ClickableLabel> self(this); // a slot may delete the label
    if (m_clickable)
        Q_EMIT clicked();
    if (self)
        QLabel::mousePressEvent(event);
}

} // namespace Kestrel::Gui
