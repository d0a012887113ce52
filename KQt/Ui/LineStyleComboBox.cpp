#include <KQt/Ui/LineStyleComboBox.h>

#include <KQt/Ui/LineList.h>
#include <KQt/Ui/LineSample.h>
#include <KQt/Ui/LineStyleDelegate.h>

#include <QPainter>

namespace Kestrel::Gui {

LineStyleComboBox::LineStyleComboBox(QWidget* parent)
    : QComboBox(parent)
{
    Detail::installLineList(*this);
    setItemDelegate(new LineStyleDelegate(this));
}

LineStyleComboBox::~LineStyleComboBox() = default;

void LineStyleComboBox::paintEvent(QPaintEvent* event)
{
    QComboBox::paintEvent(event);

    constexpr int gapBeforeArrow = 4;
    QPainter painter(this);
    QPen pen = painter.pen();
    pen.setWidth(2);
    pen.setStyle(static_cast<Qt::PenStyle>(currentData(Qt::UserRole).toInt()));
    painter.setPen(pen);
    Detail::drawSampleLine(painter, rect(), rect().left() + Detail::lineSampleMargin,
                           rect().right() - gapBeforeArrow - Detail::arrowWidth(*this));
}

} // namespace Kestrel::Gui
