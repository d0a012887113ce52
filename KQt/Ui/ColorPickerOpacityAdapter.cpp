#include <KQt/Ui/ColorPickerOpacityAdapter.h>

#include <KQt/Ui/RColorPicker.h>

#include <QAbstractSlider>

#include <utility>

namespace Kestrel::Gui {

namespace {

/// Runs @p action with @p flag set; takes the flag back also where the action throws, unless @p owner has died in it.
template <typename Owner, typename Action>
void withFlagSet(Owner* owner, bool& flag, Action&& action)
{
    struct Reset
    {
        QPointer<Owner> owner;
        bool& flag;
        ~Reset()
        {
            if (owner)
                flag = false;
        }
    };
    flag = true;
    const Reset reset{owner, flag};
    std::forward<Action>(action)();
}

} // namespace

ColorPickerOpacityAdapter::ColorPickerOpacityAdapter(RColorPicker* picker, QAbstractSlider* slider, QObject* parent)
    : QObject(parent)
    , m_picker(picker)
    , m_slider(slider)
{
    if (picker)
        connect(picker, &RColorPicker::changedColor, this, &ColorPickerOpacityAdapter::onColorUpdated);
    if (slider)
        connect(slider, &QAbstractSlider::valueChanged, this, &ColorPickerOpacityAdapter::onColorUpdated);
}

ColorPickerOpacityAdapter::~ColorPickerOpacityAdapter() = default;

QColor ColorPickerOpacityAdapter::color()
{
    if (!m_picker || !m_slider)
        return {};
    QColor result = m_picker->color();
    const double maximum = m_slider->maximum();
    result.setAlphaF(maximum == 0.0 ? 1.0 : qBound(0.0, m_slider->value() / maximum, 1.0));
    return result;
}

void ColorPickerOpacityAdapter::setColor(QColor color)
{
    if (m_updating || !m_picker || !m_slider)
        return;

    const QPointer<ColorPickerOpacityAdapter> self(this);
    withFlagSet(this, m_updating, [this, &self, &color] {
        const double alpha = color.alphaF();
        color.setAlphaF(1.0);
        m_picker->setColor(color);
        // Truncated, so that an opacity never reads higher than it was asked for.
        if (self && m_slider)
            m_slider->setValue(static_cast<int>(m_slider->maximum() * alpha));
    });
    if (self && m_picker && m_slider)
        Q_EMIT colorChanged(this->color());
}

void ColorPickerOpacityAdapter::onColorUpdated()
{
    if (m_updating || !m_picker || !m_slider)
        return;
    withFlagSet(this, m_updating, [this] { Q_EMIT colorChanged(color()); });
}

} // namespace Kestrel::Gui
