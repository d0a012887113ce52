#include <KQt/Ui/SeparatorDelegate.h>

#include <KQt/Ui/SeparatorStyle.h>

#include <QPainter>
#include <QStandardItem>
#include <QStyle>

#include <cmath>

namespace Kestrel::Gui {

namespace {

QString separatorMark()
{
    return QStringLiteral("separator");
}

/// Whether a horizontal line with the painter's pen is one row of whole pixels. A fill gives the same ones in a
/// fraction of the time that Qt's line takes, which goes pixel by pixel.
bool drawsWholePixels(const QPainter& painter)
{
    const QTransform& transform = painter.deviceTransform();
    const auto isWhole = [](qreal offset) { return offset == std::floor(offset); };
    return painter.pen().width() == 1 && !painter.testRenderHint(QPainter::Antialiasing) &&
           transform.type() <= QTransform::TxTranslate && isWhole(transform.dx()) && isWhole(transform.dy());
}

} // namespace

SeparatorDelegate::SeparatorDelegate(QWidget* parent)
    : QStyledItemDelegate(parent)
{
    // Not the parent's alone before the application's style, which may throw, is through with it.
    auto look = std::make_unique<SeparatorStyle>(parent);
    // The widget is never shown, and only polishing makes a style sheet set its properties.
    look->style()->polish(look.get());
    look->style()->unpolish(look.get());
    look->hide();
    m_style = look.release();
}

SeparatorDelegate::~SeparatorDelegate()
{
    if (m_style && !m_style->parent())
        delete m_style;
}

void SeparatorDelegate::setProxyDelegate(QAbstractItemDelegate* delegate)
{
    m_proxyDelegate = delegate;
}

std::unique_ptr<QStandardItem> SeparatorDelegate::createSeparatorItem()
{
    auto item = std::make_unique<QStandardItem>();
    item->setData(separatorMark(), Qt::AccessibleDescriptionRole);
    item->setFlags(item->flags() & ~(Qt::ItemIsSelectable | Qt::ItemIsEnabled));
    return item;
}

bool SeparatorDelegate::isSeparator(const QModelIndex& index)
{
    return index.data(Qt::AccessibleDescriptionRole).toString() == separatorMark();
}

void SeparatorDelegate::setSeparator(QAbstractItemModel* model, const QModelIndex& index)
{
    model->setData(index, separatorMark(), Qt::AccessibleDescriptionRole);
}

void SeparatorDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    if (isSeparator(index) && m_style)
        paintSeparator(*painter, option.rect);
    else if (m_proxyDelegate)
        m_proxyDelegate->paint(painter, option, index);
    else
        QStyledItemDelegate::paint(painter, option, index);
}

void SeparatorDelegate::paintSeparator(QPainter& painter, const QRect& row) const
{
    painter.setPen(QPen(QBrush(m_style->color(), Qt::SolidPattern), m_style->lineWidth(), Qt::SolidLine, Qt::SquareCap,
                        Qt::BevelJoin));
    const int y = row.center().y() + m_style->verticalPosition();
    const int left = row.left() + m_style->marginLeft();
    const int right = row.right() - m_style->marginRight();
    if (left >= right)
        return;
    if (drawsWholePixels(painter))
        painter.fillRect(QRect(QPoint(left, y), QPoint(right, y)), m_style->color());
    else
        painter.drawLine(left, y, right, y);
}

QSize SeparatorDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    if (!isSeparator(index) || !m_style)
        return QStyledItemDelegate::sizeHint(option, index);
    if (m_style->height() >= 1)
        return {0, m_style->height()};
    return getNonSeparatorItemSize(option, index);
}

QSize SeparatorDelegate::getNonSeparatorItemSize(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const QAbstractItemModel* model = index.model();
    for (int row = 0; row < model->rowCount(); ++row) {
        for (int column = 0; column < model->columnCount(); ++column) {
            const QModelIndex candidate = model->index(row, column);
            if (candidate.isValid() && !isSeparator(candidate))
                return QStyledItemDelegate::sizeHint(option, candidate);
        }
    }
    return QStyledItemDelegate::sizeHint(option, index);
}

} // namespace Kestrel::Gui
