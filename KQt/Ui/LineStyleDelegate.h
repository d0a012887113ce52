#pragma once

#include <QStyledItemDelegate>

namespace Kestrel::Gui {

/// Draws an item of a line style box: the ordinary item, and over it a line in the item's pen style.
class LineStyleDelegate : public QStyledItemDelegate
{
public:
    explicit LineStyleDelegate(QObject* parent = nullptr);
    ~LineStyleDelegate() override;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

} // namespace Kestrel::Gui
