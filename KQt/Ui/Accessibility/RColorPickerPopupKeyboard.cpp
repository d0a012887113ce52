#include <KQt/Ui/Accessibility/RColorPickerPopupKeyboard.h>

#include <KQt/Ui/RColorPicker.h>
#include <KQt/Ui/RColorPickerPopup.h>
#include <KQt/Ui/RColorPickerPopupLayout.h>

#include <QAccessible>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QPointer>
#include <QScopeGuard>

#include <algorithm>

namespace Kestrel::Gui::Detail {

namespace {

constexpr int frameWidth = 2;

bool isMove(int key)
{
    switch (key) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Home:
    case Qt::Key_End:
        return true;
    default:
        return false;
    }
}

bool isChoice(int key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space;
}

bool isOurs(const QKeyEvent& event)
{
    const bool plain = !(event.modifiers() & ~Qt::KeypadModifier);
    return plain && (isMove(event.key()) || isChoice(event.key()));
}

} // namespace

RColorPickerPopupKeyboard::RColorPickerPopupKeyboard(RColorPickerPopup* popup)
    : m_popup(popup)
{
    popup->installEventFilter(this);
}

RColorPickerPopupKeyboard::~RColorPickerPopupKeyboard() = default;

RColorPickerPopupKeyboard& RColorPickerPopupKeyboard::of(const RColorPickerPopup& popup)
{
    return *popup.m_keyboard;
}

int RColorPickerPopupKeyboard::item() const
{
    return m_item;
}

void RColorPickerPopupKeyboard::moveTo(int item)
{
    if (item == m_item)
        return;
    m_item = item;
    m_popup->update();
    if (item == noItem)
        return;
    if (item != popupDefaultItem && item != popupMoreItem)
        m_column = (item - popupFirstCellItem) % namedPaletteColumns;
    if (QAccessible::isActive()) {
        QAccessibleEvent event(m_popup, QAccessible::Focus);
        event.setChild(item);
        QAccessible::updateAccessibility(&event);
    }
}

void RColorPickerPopupKeyboard::choose(int item)
{
    if (!m_popup->isVisible() || !m_popup->isEnabled())
        return;
    // The popup knows its cells once it has painted them, which it may not have been asked for yet.
    m_popup->grab();
    const QPoint middle = popupItemRect(item, m_popup->width()).center();
    QMouseEvent press(QEvent::MouseButtonPress, middle, m_popup->mapToGlobal(middle), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    m_choosing = true;
    // A slot may delete the popup, or throw.
    const auto chosen = qScopeGuard([self = QPointer<RColorPickerPopupKeyboard>(this)] {
        if (self)
            self->m_choosing = false;
    });
    QCoreApplication::sendEvent(m_popup, &press);
}

bool RColorPickerPopupKeyboard::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        if (!isOurs(static_cast<const QKeyEvent&>(*event)))
            return false;
        event->accept();
        return true;
    case QEvent::KeyPress:
        return pressKey(static_cast<const QKeyEvent&>(*event));
    case QEvent::Paint:
        if (m_item == noItem)
            return false;
        watched->event(event);
        paintFrame();
        return true;
    case QEvent::MouseButtonPress:
        // Who goes on with the mouse has no use for the frame; it stays behind the dialog that a key has opened.
        if (!m_choosing)
            moveTo(noItem);
        return false;
    case QEvent::Hide:
        moveTo(noItem);
        return false;
    default:
        return false;
    }
}

bool RColorPickerPopupKeyboard::pressKey(const QKeyEvent& event)
{
    if (!isOurs(event))
        return false;
    if (isMove(event.key()))
        moveTo(itemTowards(event.key()));
    else if (m_item != noItem && !event.isAutoRepeat())
        choose(m_item);
    return true;
}

int RColorPickerPopupKeyboard::itemOfCurrentColor() const
{
    const auto* const picker = qobject_cast<const RColorPicker*>(m_popup->parentWidget());
    if (!picker)
        return popupDefaultItem;
    const auto cell = std::find_if(namedPalette.cbegin(), namedPalette.cend(), [picker](const NamedColor& named) {
        return named.color().rgba() == picker->color().rgba();
    });
    return cell == namedPalette.cend() ? popupDefaultItem : popupFirstCellItem + int(cell - namedPalette.cbegin());
}

// Left and right are those of the screen in right-to-left layouts too: the palette is not mirrored there.
int RColorPickerPopupKeyboard::itemTowards(int key) const
{
    if (key == Qt::Key_Home)
        return popupDefaultItem;
    if (key == Qt::Key_End)
        return popupMoreItem;
    if (m_item == noItem)
        return itemOfCurrentColor();

    constexpr int lastRow = namedPaletteRows - 1;
    const auto cellAt = [this](int row) { return popupFirstCellItem + row * namedPaletteColumns + m_column; };
    if (m_item == popupDefaultItem)
        return key == Qt::Key_Down ? cellAt(0) : m_item;
    if (m_item == popupMoreItem)
        return key == Qt::Key_Up ? cellAt(lastRow) : m_item;

    const int row = (m_item - popupFirstCellItem) / namedPaletteColumns;
    switch (key) {
    case Qt::Key_Left:
        return m_column > 0 ? m_item - 1 : m_item;
    case Qt::Key_Right:
        return m_column < namedPaletteColumns - 1 ? m_item + 1 : m_item;
    case Qt::Key_Up:
        return row > 0 ? cellAt(row - 1) : popupDefaultItem;
    default:
        return row < lastRow ? cellAt(row + 1) : popupMoreItem;
    }
}

/// Around the item, in the gap that separates it from the others, in the colour that stands out from the popup.
void RColorPickerPopupKeyboard::paintFrame()
{
    // An outline reaches one pixel beyond its rectangle to the right and below.
    const QRect outermost =
        popupItemRect(m_item, m_popup->width()).adjusted(-frameWidth, -frameWidth, frameWidth, frameWidth);
    QPainter painter(m_popup);
    painter.setPen(m_popup->palette().color(QPalette::WindowText));
    for (int inset = 0; inset < frameWidth; ++inset)
        painter.drawRect(outermost.adjusted(inset, inset, -inset, -inset));
}

} // namespace Kestrel::Gui::Detail
