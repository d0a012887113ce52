#include <KQt/Ui/PresetComboBox.h>

#include <KQt/Ui/ElidedComboBoxPainting.h>

#include <QPaintEvent>
#include <QStyleOptionComboBox>
#include <QStylePainter>

namespace Kestrel::Gui {

PresetComboBox::PresetComboBox(QWidget* parent)
    : QComboBox(parent)
{
}

PresetComboBox::~PresetComboBox() = default;

void PresetComboBox::SetAdditionalIcon(const QIcon& icon)
{
    m_additionalIcon = icon;
    repaint();
}

void PresetComboBox::showPopup()
{
    Q_EMIT ShowPopupActivated();
}

void PresetComboBox::hidePopup()
{
    // The list is never open.
}

void PresetComboBox::mousePressEvent(QMouseEvent* event)
{
    Q_UNUSED(event)
    showPopup();
}

void PresetComboBox::paintEvent(QPaintEvent* event)
{
    constexpr int largestIcon = 100;
    constexpr int gapAfterIcon = 1;
    constexpr int gapsAroundIcon = 2;

    event->accept();
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QRect field = Detail::editField(*this, option);
    if (m_additionalIcon.isNull()) {
        Detail::paintElided(painter, *this, option, field.width());
        return;
    }
    const QPixmap pixmap = m_additionalIcon.pixmap(largestIcon, QIcon::Normal, QIcon::Off);
    const int iconWidth = qRound(pixmap.width() / pixmap.devicePixelRatio());
    Detail::paintElided(painter, *this, option, field.width() - iconWidth - gapsAroundIcon);
    painter.drawPixmap(QPointF(field.left() + field.width() - iconWidth - gapAfterIcon, field.top()), pixmap);
}

} // namespace Kestrel::Gui
