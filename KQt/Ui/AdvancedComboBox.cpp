#include <KQt/Ui/AdvancedComboBox.h>

#include <KQt/Ui/AdvancedComboView.h>
#include <KQt/Ui/ElidedComboBoxPainting.h>

#include <QStyleOptionComboBox>
#include <QStylePainter>
#include <QWheelEvent>

#include <utility>

namespace Kestrel::Gui {

namespace {

/// Whether QString::arg() finds a place in @p text; where there is none it complains, at each painting.
bool hasPlaceMarker(const QString& text)
{
    for (int at = text.indexOf(QLatin1Char('%')); at >= 0; at = text.indexOf(QLatin1Char('%'), at + 1)) {
        const int number = text.midRef(at + 1, 1) == QLatin1String("L") ? at + 2 : at + 1;
        if (number < text.size() && text.at(number).digitValue() >= 0)
            return true;
    }
    return false;
}

QString filledIn(const QString& toolTip, const QString& text)
{
    return hasPlaceMarker(toolTip) ? toolTip.arg(text, 0, QLatin1Char(' ')) : toolTip;
}

} // namespace

AdvancedComboBox::AdvancedComboBox(QWidget* parent)
    : QComboBox(parent)
{
    setFocusPolicy(Qt::NoFocus);
    setView(new AdvancedComboView(this, m_widePopupEnabled));
}

AdvancedComboBox::~AdvancedComboBox() = default;

bool AdvancedComboBox::mouseWheelEnabled() const
{
    return m_mouseWheelEnabled;
}

void AdvancedComboBox::setMouseWheelEnabled(bool enabled)
{
    if (m_mouseWheelEnabled == enabled)
        return;
    m_mouseWheelEnabled = enabled;
    Q_EMIT mouseWheelEnabledChanged();
}

bool AdvancedComboBox::widePopupEnabled() const
{
    return m_widePopupEnabled;
}

void AdvancedComboBox::setWidePopupEnabled(bool enabled)
{
    if (m_widePopupEnabled == enabled)
        return;
    m_widePopupEnabled = enabled;
    QAbstractItemView* oldView = view();
    oldView->deleteLater();
    // setView() deletes a view inside the popup at once, and the old one may be what is calling.
    oldView->setParent(this);
    setView(new AdvancedComboView(this, m_widePopupEnabled));
    Q_EMIT widePopupEnabledChanged();
}

bool AdvancedComboBox::elideItemText() const
{
    return m_elideItemText;
}

void AdvancedComboBox::setElideItemText(bool elide)
{
    if (m_elideItemText == elide)
        return;
    m_elideItemText = elide;
    Q_EMIT elideItemTextChanged();
}

QString AdvancedComboBox::tooltipTemplate() const
{
    return m_tooltipTemplate;
}

void AdvancedComboBox::setTooltipTemplate(QString tooltipTemplate)
{
    m_tooltipTemplate = std::move(tooltipTemplate);
}

void AdvancedComboBox::wheelEvent(QWheelEvent* event)
{
    if (m_mouseWheelEnabled)
        QComboBox::wheelEvent(event);
    else
        event->ignore();
}

void AdvancedComboBox::paintEvent(QPaintEvent* event)
{
    if (!m_elideItemText) {
        QComboBox::paintEvent(event);
        return;
    }
    event->accept();
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QString shown = Detail::paintElided(painter, *this, option, Detail::editField(*this, option).width());
    Detail::updateToolTip(*this, currentText() == shown ? QString() : filledIn(m_tooltipTemplate, currentText()));
}

} // namespace Kestrel::Gui
