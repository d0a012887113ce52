#pragma once

#include <KQt/Ui/Export.h>

#include <QPointer>
#include <QStyledItemDelegate>

#include <memory>

QT_BEGIN_NAMESPACE
class QStandardItem;
QT_END_NAMESPACE

namespace Kestrel::Gui {

class SeparatorStyle;

/// Draws the separator rows of a model as thin lines, with a height of their own, and leaves the other rows to a proxy
/// delegate or to the base class.
///
/// A row is a separator where its text for Qt::AccessibleDescriptionRole is "separator"; QComboBox::insertSeparator()
/// marks rows the same way. The look comes from a SeparatorStyle, a child of the delegate's parent widget.
class KQTUI_EXPORT SeparatorDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// @param parent also the parent of the look's widget, which lives as long as @p parent. Without a parent it lives
    ///               as long as the delegate.
    explicit SeparatorDelegate(QWidget* parent = nullptr);
    ~SeparatorDelegate() override;

    /// Paints the ordinary rows; sizes are the base class's all the same. Not owned; null for the base class's
    /// painting.
    void setProxyDelegate(QAbstractItemDelegate* delegate);

    /// A new item that is marked as separator and can be neither selected nor activated.
    static std::unique_ptr<QStandardItem> createSeparatorItem();
    static bool isSeparator(const QModelIndex& index);
    /// Marks a row; its flags stay as they are.
    static void setSeparator(QAbstractItemModel* model, const QModelIndex& index);

    /// Leaves the separator's pen on the painter.
    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    void paintSeparator(QPainter& painter, const QRect& row) const;
    QSize getNonSeparatorItemSize(const QStyleOptionViewItem& option, const QModelIndex& index) const;

    QPointer<QAbstractItemDelegate> m_proxyDelegate;
    QPointer<SeparatorStyle> m_style;
};

} // namespace Kestrel::Gui
