#include <KQt/Ui/LineStyleDelegate.h>

#include <KQt/Ui/LineSample.h>

#include <QPainter>

namespace Kestrel::Gui {

LineStyleDelegate::LineStyleDelegate(QObject* parent)
    : QStyledItemDelegate(parent)
{
}

LineStyleDelegate::~LineStyleDelegate() = default;

void LineStyleDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyledItemDelegate::paint(painter, option, index);

    const QPen previousPen = painter->pen();
    QPen pen = previousPen;
    pen.setWidth(2);
    pen.setStyle(static_cast<Qt::PenStyle>(index.data(Qt::UserRole).toInt()));
    painter->setPen(pen);
    Detail::drawSampleLine(*painter, option.rect, option.rect.left() + Detail::lineSampleMargin,
                           option.rect.right() - Detail::lineSampleMargin);
    painter->setPen(previousPen);
}

} // namespace Kestrel::Gui
