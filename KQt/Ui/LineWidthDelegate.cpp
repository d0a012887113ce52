#include <KQt/Ui/LineWidthDelegate.h>

#include <KQt/Ui/LineSample.h>

#include <QPainter>

#include <algorithm>

namespace Kestrel::Gui {

LineWidthDelegate::LineWidthDelegate(QObject* parent)
    : QStyledItemDelegate(parent)
{
}

LineWidthDelegate::~LineWidthDelegate() = default;

void LineWidthDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyledItemDelegate::paint(painter, option, index);

    const int width = index.data(Qt::UserRole).toInt();
    const QPen previousPen = painter->pen();
    painter->setPen(Detail::withWidth(previousPen, std::max(width, 1)));
    if (width < 1) {
        //: In the list of line widths, instead of a sample line, where the width is zero: no line. At most about 8
        //: letters.
        Detail::drawMissingLineText(*painter, option.rect, tr("none"));
    } else {
        Detail::drawSampleLine(*painter, option.rect, option.rect.left() + Detail::lineSampleMargin,
                               option.rect.right() - Detail::lineSampleMargin);
    }
    painter->setPen(previousPen);
}

} // namespace Kestrel::Gui
