#pragma once

#include <QCoreApplication>
#include <QStyledItemDelegate>

namespace Kestrel::Gui {

/// Draws an item of a line width box: the ordinary item, and over it a line of the item's width. Every width below 1 is
/// shown as the word "none".
class LineWidthDelegate : public QStyledItemDelegate
{
    Q_DECLARE_TR_FUNCTIONS(Kestrel::Gui::LineWidthDelegate)

public:
    explicit LineWidthDelegate(QObject* parent = nullptr);
    ~LineWidthDelegate() override;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

} // namespace Kestrel::Gui
