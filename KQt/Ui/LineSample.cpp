#include <KQt/Ui/LineSample.h>

#include <QComboBox>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionComboBox>

namespace Kestrel::Gui::Detail {

void drawSampleLine(QPainter& painter, const QRect& area, int fromX, int toX)
{
    const int y = area.y() + area.height() / 2;
    const QLine line(fromX, y, toX, y);
    painter.drawLines(&line, 1);
}

void drawMissingLineText(QPainter& painter, const QRect& area, const QString& text)
{
    painter.save();
    painter.translate(qreal(lineSampleMargin), 0.0);
    painter.drawText(area, Qt::AlignLeft | Qt::AlignVCenter, text);
    painter.restore();
}

QPen withWidth(const QPen& pen, int width)
{
    QPen result(pen.brush(), width, pen.style(), pen.capStyle(), pen.joinStyle());
    result.setCosmetic(pen.isCosmetic());
    return result;
}

int arrowWidth(const QComboBox& box)
{
    QStyleOptionComboBox option;
    option.initFrom(&box);
    return box.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow, &box).width();
}

} // namespace Kestrel::Gui::Detail
