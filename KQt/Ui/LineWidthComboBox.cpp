#include <KQt/Ui/LineWidthComboBox.h>

#include <KQt/Ui/LineList.h>
#include <KQt/Ui/LineSample.h>
#include <KQt/Ui/LineWidthDelegate.h>

#include <QPainter>

namespace Kestrel::Gui {

LineWidthComboBox::LineWidthComboBox(QWidget* parent)
    : QComboBox(parent)
{
    Detail::installLineList(*this);
    setItemDelegate(new LineWidthDelegate(this));
}

LineWidthComboBox::~LineWidthComboBox() = default;

void LineWidthComboBox::paintEvent(QPaintEvent* event)
{
    QComboBox::paintEvent(event);

    // Farther from the arrow than the line of a style box: a thick line must not touch the frame around the arrow.
    constexpr int gapBeforeArrow = 16;
    const int width = itemData(currentIndex(), Qt::UserRole).toInt();
    QPainter painter(this);
    painter.setPen(Detail::withWidth(painter.pen(), width == 0 ? 1 : width));
    if (width != 0) {
        Detail::drawSampleLine(painter, rect(), rect().left() + Detail::lineSampleMargin,
                               rect().right() - gapBeforeArrow - Detail::arrowWidth(*this));
    } else {
        //: In the closed box, instead of a sample line, where the line width is zero: no line. At most about 8 letters.
        Detail::drawMissingLineText(painter, rect(), tr("none"));
    }
}

} // namespace Kestrel::Gui
