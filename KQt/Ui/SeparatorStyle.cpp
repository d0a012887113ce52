#include <KQt/Ui/SeparatorStyle.h>

#include <utility>

namespace Kestrel::Gui {

SeparatorStyle::SeparatorStyle(QWidget* parent)
    : QWidget(parent)
{
}

SeparatorStyle::~SeparatorStyle() = default;

int SeparatorStyle::lineWidth() const
{
    return m_lineWidth;
}

void SeparatorStyle::setLineWidth(int width)
{
    m_lineWidth = width;
}

QColor SeparatorStyle::color() const
{
    return m_color;
}

void SeparatorStyle::setColor(QColor color)
{
    m_color = std::move(color);
}

int SeparatorStyle::height() const
{
    return m_height;
}

void SeparatorStyle::setHeight(int height)
{
    m_height = height;
}

int SeparatorStyle::marginLeft() const
{
    return m_marginLeft;
}

void SeparatorStyle::setMarginLeft(int margin)
{
    m_marginLeft = margin;
}

int SeparatorStyle::marginRight() const
{
    return m_marginRight;
}

void SeparatorStyle::setMarginRight(int margin)
{
    m_marginRight = margin;
}

int SeparatorStyle::verticalPosition() const
{
    return m_verticalPosition;
}

void SeparatorStyle::setVerticalPosition(int position)
{
    m_verticalPosition = position;
}

} // namespace Kestrel::Gui
