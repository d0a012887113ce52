#include <KQt/Ui/AdvancedColorPicker.h>

#include <KQt/Ui/Accessibility/Announcements.h>
#include <KQt/Ui/Accessibility/InstallAccessibility.h>
#include <KQt/Ui/AdvancedColorPickerPopup.h>

#include <QPainter>
#include <QPointer>
#include <QStyle>
#include <QStyleOptionButton>

namespace Kestrel::Gui {

namespace {

/// Counts one of the calls that run in its scope, which a slot may leave by an exception or delete the picker in.
class CountedCall
{
public:
    CountedCall(QObject* owner, int& calls)
        : m_owner(owner)
        , m_calls(calls)
    {
        ++m_calls;
    }
    ~CountedCall()
    {
        if (m_owner)
            --m_calls;
    }
    Q_DISABLE_COPY_MOVE(CountedCall)

private:
    QPointer<QObject> m_owner;
    int& m_calls;
};

} // namespace

AdvancedColorPicker::AdvancedColorPicker(QWidget* parent)
    : QToolButton(parent)
    , m_popup(std::make_unique<AdvancedColorPickerPopup>())
{
    Detail::installAccessibility();
    m_popup->m_picker = this;
    connect(this, &QAbstractButton::clicked, this, QOverload<>::of(&AdvancedColorPicker::showPopup));
    connect(m_popup.get(), &AdvancedColorPickerPopup::changedColor, this, &AdvancedColorPicker::colorChanged);
    connect(m_popup.get(), &AdvancedColorPickerPopup::hidedWithColor, this, &AdvancedColorPicker::finishSelection);
}

AdvancedColorPicker::~AdvancedColorPicker()
{
    m_popup->disconnect(this);
    m_popup->m_picker = nullptr;
    if (m_popupCalls > 0) {
        // Deleted from a slot of one of our signals: the popup's edit, slider or hiding is still under way.
        m_popup->hide();
        m_popup.release()->deleteLater();
    }
}

QColor AdvancedColorPicker::color() const
{
    return m_color;
}

void AdvancedColorPicker::setColor(const QColor& c)
{
    m_color = c;
    m_popup->setColor(c);
    setStyleSheet(QStringLiteral("QToolButton:enabled { background-color: %1 }").arg(c.name()));
    update();
    Detail::announceValue(this);
}

bool AdvancedColorPicker::opacityAdjustmentAvailable() const
{
    return m_popup->opacityAdjustmentAvailable();
}

void AdvancedColorPicker::setOpacityAdjustmentAvailable(bool b)
{
    m_popup->setOpacityAdjustmentAvailable(b);
    m_popup->adjustSize();
}

void AdvancedColorPicker::showPopup()
{
    if (startSelection())
        openPopupAt(QPoint(width() - m_popup->width(), height()));
}

void AdvancedColorPicker::showPopup(const QPoint& p)
{
    if (startSelection())
        openPopupAt(QPoint(p.x() - m_popup->width(), p.y()));
}

void AdvancedColorPicker::colorChanged(const QColor& c)
{
    const CountedCall answering(this, m_popupCalls);
    setColor(c);
    Q_EMIT changedColor(c);
}

void AdvancedColorPicker::paintEvent(QPaintEvent*) // clazy:exclude=skipped-base-method
{
    QStyleOptionButton option;
    option.initFrom(this);
    QPainter painter(this);
    style()->drawControl(QStyle::CE_PushButton, &option, &painter, this);
}

void AdvancedColorPicker::hideEvent(QHideEvent* event)
{
    const QPointer<AdvancedColorPicker> self(this);
    m_popup->close();
    if (self)
        QToolButton::hideEvent(event);
}

void AdvancedColorPicker::finishSelection(const QColor& c)
{
    const CountedCall answering(this, m_popupCalls);
    setColor(c);
    Q_EMIT doneSelectionWithColor(c);
}

/// Whether there is still a popup to open: a slot of colorSelectionStarted() may delete the picker.
bool AdvancedColorPicker::startSelection()
{
    const QPointer<AdvancedColorPicker> self(this);
    Q_EMIT colorSelectionStarted();
    if (!self)
        return false;
    m_popup->setColor(m_color);
    return true;
}

void AdvancedColorPicker::openPopupAt(const QPoint& topLeft)
{
    m_popup->move(mapToGlobal(topLeft));
    m_popup->show();
}

} // namespace Kestrel::Gui
