#include <KQt/Ui/ElidedComboBoxPainting.h>

#include <KQt/Ui/TextEliding.h>

#include <QComboBox>
#include <QFontMetrics>
#include <QStyleOptionComboBox>
#include <QStylePainter>

namespace Kestrel::Gui::Detail {

QRect editField(const QComboBox& box, const QStyleOptionComboBox& option)
{
    return box.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &box);
}

QString paintElided(QStylePainter& painter, const QComboBox& box, QStyleOptionComboBox& option, int textWidth)
{
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    option.currentText = elidedText(QFontMetrics(box.font()), option.currentText, Qt::ElideRight, textWidth);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
    return option.currentText;
}

void updateToolTip(QComboBox& box, const QString& text)
{
    // Called while painting: an unchanged tool tip sends no event.
    if (box.toolTip() != text)
        box.setToolTip(text);
}

} // namespace Kestrel::Gui::Detail
