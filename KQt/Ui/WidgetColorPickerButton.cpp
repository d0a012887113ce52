#include <KQt/Ui/WidgetColorPickerButton.h>

#include <KQt/Ui/Accessibility/Announcements.h>
#include <KQt/Ui/Accessibility/InstallAccessibility.h>
#include <KQt/Ui/HighlightFrame.h>
#include <KQt/Ui/WidgetColorPicker.h>

#include <Basalt/ScopedFunctionCall.h>

#include <QStyleOptionButton>
#include <QStylePainter>

namespace Kestrel::Gui {

WidgetColorPickerButton::WidgetColorPickerButton(QWidget* parent)
    : QToolButton(parent)
    , m_picker(new WidgetColorPicker(this))
{
    Detail::installAccessibility();
    connect(this, &QToolButton::clicked, this, &WidgetColorPickerButton::startPicking);
    setEnabled(false);
}

WidgetColorPickerButton::~WidgetColorPickerButton()
{
    if (m_target)
        m_target->disconnect(this);
    delete m_highlight;
}

QColor WidgetColorPickerButton::color() const
{
    return m_color;
}

void WidgetColorPickerButton::setColor(const QColor& color)
{
    const QPointer<WidgetColorPickerButton> self(this);
    m_color = color;
    Detail::announceValue(this);
    Q_EMIT colorChanged(m_color);
    if (!self || !m_changeSelfColor)
        return;
    setStyleSheet(QStringLiteral("QToolButton { background-color: %1 }").arg(m_color.name()));
    update();
}

void WidgetColorPickerButton::setTargetWidget(QWidget* target)
{
    const auto disable = [this] { setEnabled(false); };
    if (m_target)
        disconnect(m_target, &QObject::destroyed, this, nullptr);
    m_target = target;
    if (target)
        connect(target, &QObject::destroyed, this, disable);
    setEnabled(target != nullptr);
}

const QWidget* WidgetColorPickerButton::targetWidget() const
{
    return m_target;
}

void WidgetColorPickerButton::startPicking()
{
    if (!m_target || m_starting || m_picker->pickingInProgress())
        return;

    const QPointer<WidgetColorPickerButton> self(this);
    // Slots run in here: none may start anew before the picking is over, and one that throws must not leave the frame.
    const Core::ScopedFunctionCall framed([this] { frameItself(); },
                                          [this, self] {
                                              if (self)
                                                  delete m_highlight;
                                          },
                                          true);
    const QColor picked = pickOnce();
    if (!self)
        return;
    Q_EMIT pickingFinished();
    if (!self)
        return;
    delete m_highlight;
    if (picked.isValid())
        setColor(picked);
}

void WidgetColorPickerButton::frameItself()
{
    if (!m_changeSelfColor)
        return;
    delete m_highlight;
    m_highlight = new HighlightFrame(this);
    m_highlight->setObjectName(QStringLiteral("WidgetColorPickerButtonFrame"));
}

QColor WidgetColorPickerButton::pickOnce()
{
    const QPointer<WidgetColorPickerButton> self(this);
    const Core::ScopedFunctionCall starting([this] { m_starting = true; },
                                            [this, self] {
                                                if (self)
                                                    m_starting = false;
                                            },
                                            true);
    Q_EMIT pickingStarted();
    return self ? m_picker->pick(m_target, {this}) : QColor();
}

void WidgetColorPickerButton::stopPicking()
{
    delete m_highlight;
    m_picker->stop();
}

void WidgetColorPickerButton::paintEvent(QPaintEvent* event)
{
    if (!m_changeSelfColor) {
        QToolButton::paintEvent(event);
        return;
    }
    // A plain push button: the colour is the style sheet's background.
    QStyleOptionButton option;
    option.initFrom(this);
    QStylePainter painter(this);
    painter.drawControl(QStyle::CE_PushButton, option);
}

} // namespace Kestrel::Gui
