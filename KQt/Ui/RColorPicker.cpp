#include <KQt/Ui/RColorPicker.h>

#include <KQt/Ui/Accessibility/Announcements.h>
#include <KQt/Ui/Accessibility/InstallAccessibility.h>
#include <KQt/Ui/RColorPickerPopup.h>

#include <QStyle>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <QVariant>

#include <utility>

namespace Kestrel::Gui {

RColorPicker::RColorPicker(QWidget* parent)
    : QPushButton(parent)
    , m_popup(new RColorPickerPopup(this))
{
    Detail::installAccessibility();
    m_popup->setObjectName(QStringLiteral("popup"));
    m_popup->setFrameShape(QFrame::StyledPanel);
    m_popup->setFrameShadow(QFrame::Plain);
    m_popup->selectDefaultColor(m_defaultColor);
    QMetaObject::connectSlotsByName(this);
    connect(this, &QPushButton::clicked, this, &RColorPicker::showPopup);
    setColor(Qt::transparent);
}

RColorPicker::~RColorPicker() = default;

QColor RColorPicker::color() const
{
    return m_color;
}

void RColorPicker::setColor(QColor color)
{
    m_color = std::move(color);
    m_popup->selectHoverColor(m_color);
    Detail::announceValue(this);
    if (!m_colorized)
        return;
    setStyleSheet(QStringLiteral("#%1{background-color: %2;}").arg(objectName(), m_color.name()));
    repaint();
}

int RColorPicker::ColorBoxWidth() const
{
    return m_colorBoxWidth;
}

void RColorPicker::SetColorBoxWidth(int width)
{
    m_colorBoxWidth = width;
}

int RColorPicker::ColorBoxHeight() const
{
    return m_colorBoxHeight;
}

void RColorPicker::SetColorBoxHeight(int height)
{
    m_colorBoxHeight = height;
}

QColor RColorPicker::ColorBoxBorderColor() const
{
    return m_colorBoxBorderColor;
}

void RColorPicker::SetColorBoxBorderColor(QColor color)
{
    m_colorBoxBorderColor = std::move(color);
}

QColor RColorPicker::DefaultColor() const
{
    return m_defaultColor;
}

void RColorPicker::setDefaultColor(QColor color)
{
    m_defaultColor = std::move(color);
    m_popup->selectDefaultColor(m_defaultColor);
}

bool RColorPicker::Colorized() const
{
    return m_colorized;
}

void RColorPicker::SetColorized(bool colorized)
{
    m_colorized = colorized;
}

RColorPickerPopup& RColorPicker::GetPickerPopup() const
{
    return *m_popup;
}

void RColorPicker::on_popup_selected(QColor color)
{
    setColor(color);
    on_popup_closed();
    Q_EMIT changedColor(std::move(color));
}

void RColorPicker::on_popup_closed()
{
    setPressed(false);
}

void RColorPicker::showPopup()
{
    m_popup->move(mapToGlobal(QPoint(width() - m_popup->width(), height())));
    m_popup->show();
    setPressed(true);
}

void RColorPicker::setPressed(bool pressed)
{
    setProperty("pressed", pressed);
    style()->unpolish(this);
    style()->polish(this);
}

void RColorPicker::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    // Neither text nor icon: the style sheet's background is the whole message.
    QStyleOptionButton option;
    option.initFrom(this);
    QStylePainter painter(this);
    painter.drawControl(QStyle::CE_PushButton, option);
}

} // namespace Kestrel::Gui
