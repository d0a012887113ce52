#include <KQt/Ui/PenPicker.h>

#include <KQt/Ui/Accessibility/Announcements.h>
#include <KQt/Ui/Accessibility/InstallAccessibility.h>
#include <KQt/Ui/AdvancedColorPicker.h>
#include <KQt/Ui/LineWidthComboBox.h>

#include <QHBoxLayout>
#include <QIcon>

#include <algorithm>

namespace Kestrel::Gui {

PenPicker::PenPicker(QWidget* parent)
    : QFrame(parent)
    , m_width(new LineWidthComboBox(this))
    , m_color(new AdvancedColorPicker(this))
{
    Detail::installAccessibility();
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    setAttribute(Qt::WA_MouseTracking, true);
    for (QWidget* child : {static_cast<QWidget*>(m_width), static_cast<QWidget*>(m_color)}) {
        child->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
        layout->addWidget(child);
    }
    connect(m_color, &AdvancedColorPicker::changedColor, this, &PenPicker::penChanged);
    connect(m_color, &AdvancedColorPicker::doneSelectionWithColor, this, &PenPicker::doneColorSelection);

    constexpr int widths = 5;
    for (int width = 0; width < widths; ++width)
        m_width->addItem(QIcon(), QString(), width);
    connect(m_width, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &PenPicker::penChanged);
}

PenPicker::~PenPicker() = default;

QPen PenPicker::pen() const
{
    const int width = m_width->currentIndex();
    return QPen(m_color->color(), width, width == 0 ? Qt::NoPen : Qt::SolidLine);
}

// A copy: a slot of penChanged() may change what a reference would refer to.
void PenPicker::setPen(QPen pen) // NOLINT(performance-unnecessary-value-param)
{
    m_width->setCurrentIndex(pen.style() == Qt::NoPen ? 0 : std::min(pen.width(), m_width->count() - 1));
    m_color->setColor(pen.color());
    Detail::announceValue(this);
}

void PenPicker::mouseMoveEvent(QMouseEvent* event)
{
    QWidget::mouseMoveEvent(event);
}

} // namespace Kestrel::Gui
