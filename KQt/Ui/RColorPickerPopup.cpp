#include <KQt/Ui/RColorPickerPopup.h>

#include <KQt/Ui/Accessibility/InstallAccessibility.h>
#include <KQt/Ui/Accessibility/RColorPickerPopupKeyboard.h>
#include <KQt/Ui/InterruptedCalls.h>
#include <KQt/Ui/NamedPalette.h>
#include <KQt/Ui/RColorPickerPopupLayout.h>

#include <KQtUtil/WidgetStyle.h>

#include <QAbstractSpinBox>
#include <QColorDialog>
#include <QCursor>
#include <QDialogButtonBox>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QPushButton>

#include <utility>

namespace Kestrel::Gui {

namespace {

// In pixels.
constexpr int hoverMargin = 2;
constexpr QSize initialSize(140, 145);

void hideSpinBoxButtons(const QDialog& dialog)
{
    const auto spinBoxes = dialog.findChildren<QAbstractSpinBox*>();
    for (QAbstractSpinBox* spinBox : spinBoxes)
        spinBox->setButtonSymbols(QAbstractSpinBox::NoButtons);
}

void styleDialogButtons(const QDialog& dialog)
{
    const auto* buttons = dialog.findChild<QDialogButtonBox*>();
    if (!buttons)
        return;
    constexpr const char* styleProperty = "styleHint";
    Util::ApplyWidgetStyle(buttons->button(QDialogButtonBox::Ok), QStringLiteral("activeButton"), styleProperty);
    Util::ApplyWidgetStyle(buttons->button(QDialogButtonBox::Cancel), QStringLiteral("rejectButton"), styleProperty);
}

} // namespace

RColorPickerPopup::RColorPickerPopup(QWidget* parent)
    : QFrame(parent, Qt::Popup)
    , m_borderDialogColor(palette().color(QPalette::Text))
    , m_keyboard(std::make_unique<Detail::RColorPickerPopupKeyboard>(this))
{
    Detail::installAccessibility();
    setFrameShape(QFrame::StyledPanel);
    setFrameShadow(QFrame::Plain);
    resize(initialSize);
}

RColorPickerPopup::~RColorPickerPopup() = default;

void RColorPickerPopup::selectDefaultColor(QColor color)
{
    m_defaultColor = std::move(color);
}

void RColorPickerPopup::selectHoverColor(QColor color)
{
    m_hoverColor = std::move(color);
}

// The text is taken by value as callers know it. NOLINTNEXTLINE(performance-unnecessary-value-param)
void RColorPickerPopup::paintButton(QPainter* painter, QRectF rect, QString text, bool hover)
{
    if (!hover)
        painter->setPen(m_borderButtonColor);
    painter->fillRect(rect, hover ? m_buttonHoverColor : m_buttonNormalColor);

    const QBrush previousBrush = painter->brush();
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(rect);
    painter->setBrush(previousBrush);

    // The hover text colour is not used: the text stays readable on both fills.
    painter->setPen(m_buttonNormalTextColor);
    painter->drawText(rect, Qt::AlignHCenter | Qt::AlignVCenter, text);
}

QColor RColorPickerPopup::ButtonNormalColor() const
{
    return m_buttonNormalColor;
}

void RColorPickerPopup::SetButtonNormalColor(QColor color)
{
    m_buttonNormalColor = std::move(color);
    update();
}

QColor RColorPickerPopup::ButtonHoverColor() const
{
    return m_buttonHoverColor;
}

void RColorPickerPopup::SetButtonHoverColor(QColor color)
{
    m_buttonHoverColor = std::move(color);
    update();
}

QColor RColorPickerPopup::ButtonNormalTextColor() const
{
    return m_buttonNormalTextColor;
}

void RColorPickerPopup::SetButtonNormalTextColor(QColor color)
{
    m_buttonNormalTextColor = std::move(color);
    update();
}

QColor RColorPickerPopup::ButtonHoverTextColor() const
{
    return m_buttonHoverTextColor;
}

void RColorPickerPopup::SetButtonHoverTextColor(QColor color)
{
    m_buttonHoverTextColor = std::move(color);
    update();
}

QColor RColorPickerPopup::BorderDialogColor() const
{
    return m_borderDialogColor;
}

void RColorPickerPopup::SetBorderDialogColor(QColor color)
{
    m_borderDialogColor = std::move(color);
    update();
}

QColor RColorPickerPopup::BorderButtonColor() const
{
    return m_borderButtonColor;
}

void RColorPickerPopup::SetBorderButtonColor(QColor color)
{
    m_borderButtonColor = std::move(color);
    update();
}

QColor RColorPickerPopup::BorderSmallButtonColor() const
{
    return m_borderSmallButtonColor;
}

void RColorPickerPopup::SetBorderSmallButtonColor(QColor color)
{
    m_borderSmallButtonColor = std::move(color);
    update();
}

void RColorPickerPopup::mousePressEvent(QMouseEvent* event)
{
    // A slot may delete the popup, mostly by deleting its picker.
    const QPointer<RColorPickerPopup> self(this);
    const QPoint position = event->pos();
    const QPointF exactPosition = event->localPos();

    if (!rect().contains(position)) {
        close();
        if (!self)
            return;
        Q_EMIT closed();
        if (!self)
            return;
    }

    const QVector<Cell> cells = m_cells;
    for (const Cell& cell : cells) {
        if (!cell.rect.contains(position))
            continue;
        choose(cell.color);
        if (!self)
            return;
    }

    if (m_moreRect.contains(exactPosition))
        chooseInDialog();
    else if (m_defaultRect.contains(position))
        choose(m_defaultColor);
}

void RColorPickerPopup::choose(const QColor& color)
{
    const QPointer<RColorPickerPopup> self(this);
    m_hoverColor = color;
    try {
        Q_EMIT selected(m_hoverColor);
    } catch (...) {
        // Chosen all the same: an open popup would keep the mouse to itself.
        if (self)
            close();
        throw;
    }
    if (self)
        close();
}

void RColorPickerPopup::chooseInDialog()
{
    const QPointer<RColorPickerPopup> self(this);
    Q_EMIT closed();
    if (!self)
        return;

    // On the heap and watched: the picker that owns popup and dialog may be deleted while the dialog is open.
    const QPointer<QColorDialog> dialog(new QColorDialog(parentWidget()));
    // The same dialog on every desktop: a native one has neither the spin boxes nor the buttons to be styled.
    dialog->setOption(QColorDialog::DontUseNativeDialog);
    dialog->setCurrentColor(m_hoverColor);
    hideSpinBoxButtons(*dialog);
    styleDialogButtons(*dialog);
    const bool accepted = Detail::execDialog(dialog) == QDialog::Accepted;
    const QColor color = dialog ? dialog->currentColor() : QColor();
    const bool dialogSurvived = !dialog.isNull();
    delete dialog.data();
    if (!self || !dialogSurvived)
        return;

    m_hoverColor = color; // also where the dialog was cancelled
    if (accepted && color.isValid())
        choose(color);
}

void RColorPickerPopup::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    const QPen previousPen = painter.pen();
    const QBrush previousBrush = painter.brush();
    paintFrame(painter);
    paintCells(painter);
    painter.setBrush(previousBrush);
    painter.setPen(previousPen);

    const QPointF hoverPoint = mapFromGlobal(QCursor::pos());
    m_moreRect = Detail::popupMoreRect(width());
    //: Button at the bottom of the colour palette: opens a dialog with all colours. At most about 15 letters: the
    //: button does not grow.
    paintButton(&painter, m_moreRect, tr("More..."), m_moreRect.contains(hoverPoint));
    m_defaultRect = Detail::popupDefaultRect(width());
    //: Button at the top of the colour palette: chooses the default colour, not a default action. At most about 15
    //: letters: the button does not grow.
    paintButton(&painter, m_defaultRect, tr("Default"), m_defaultRect.contains(hoverPoint));
    paintHoveredCells(painter, hoverPoint);
}

void RColorPickerPopup::paintFrame(QPainter& painter) const
{
    painter.setPen(m_borderDialogColor);
    painter.drawRect(0, 0, width() - 1, height() - 1);
}

void RColorPickerPopup::paintCells(QPainter& painter)
{
    m_cells.clear();
    painter.setPen(m_borderSmallButtonColor);
    for (int i = 0; i < static_cast<int>(Detail::namedPalette.size()); ++i) {
        const Cell cell{Detail::namedPalette[static_cast<std::size_t>(i)].color(), Detail::popupCellRect(i)};
        painter.setBrush(cell.color);
        painter.drawRect(cell.rect);
        m_cells.append(cell);
    }
}

void RColorPickerPopup::paintHoveredCells(QPainter& painter, const QPointF& hoverPoint)
{
    for (const Cell& cell : qAsConst(m_cells)) {
        if (!cell.rect.contains(hoverPoint))
            continue;
        m_hoverColor = cell.color;
        painter.setPen(QPen(QBrush(Qt::blue), 1.0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
        painter.drawRect(cell.rect.adjusted(-hoverMargin, -hoverMargin, hoverMargin, hoverMargin));
    }
}

void RColorPickerPopup::hideEvent(QHideEvent* event)
{
    const QPointer<RColorPickerPopup> self(this);
    try {
        Q_EMIT closed();
    } catch (...) {
        if (self)
            Detail::forgetClosing(*self);
        throw;
    }
    if (self)
        QFrame::hideEvent(event);
}

} // namespace Kestrel::Gui
