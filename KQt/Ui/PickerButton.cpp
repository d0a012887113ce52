#include <KQt/Ui/PickerButton.h>

#include <KQt/Ui/Accessibility/Announcements.h>
#include <KQt/Ui/Accessibility/InstallAccessibility.h>

#include <QBrush>
#include <QPainter>

namespace Kestrel::Gui {

namespace {

// Width of the ring around a checked swatch, in pixels.
constexpr int RingWidth = 3;

} // namespace

// Moving a colour copies it.
// NOLINTNEXTLINE(modernize-pass-by-value)
PickerButton::PickerButton(const QColor& color, QWidget* parent)
    : QToolButton(parent)
    , m_color(color)
{
    Detail::installAccessibility();
    setCheckable(true);
}

PickerButton::~PickerButton() = default;

QColor PickerButton::color() const
{
    return m_color;
}

void PickerButton::setColor(const QColor& color)
{
    m_color = color;
    update();
    Detail::announceValue(this);
    Q_EMIT colorChanged(m_color);
}

// The base class is left out on purpose: no frame, no hover, no focus, only the colour.
void PickerButton::paintEvent(QPaintEvent*) // clazy:exclude=skipped-base-method
{
    QPainter painter(this);
    QRect colored = rect();
    if (isChecked()) {
        painter.fillRect(colored, QBrush(Qt::black, Qt::Dense5Pattern));
        colored.adjust(RingWidth, RingWidth, -RingWidth, -RingWidth);
    }
    painter.fillRect(colored, m_color);
}

} // namespace Kestrel::Gui
