#include <KQt/Ui/MeasuringDelegate.h>

#include <KQt/Ui/ModelChanges.h>

#include <QWidget>

#include <algorithm>

namespace Kestrel::Gui {

namespace {

const QStyle* styleOf(const QStyleOptionViewItem& option)
{
    return option.widget ? option.widget->style() : nullptr;
}

int logicalDpiOf(const QStyleOptionViewItem& option)
{
    return option.widget ? option.widget->logicalDpiX() : 0;
}

} // namespace

MeasuringDelegate::MeasuringDelegate(QObject* parent)
    : QStyledItemDelegate(parent)
{
}

MeasuringDelegate::~MeasuringDelegate() = default;

QSize MeasuringDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    if (!index.isValid() || (option.features & QStyleOptionViewItem::WrapText))
        return QStyledItemDelegate::sizeHint(option, index);

    if (!isMeasuredWith(option, index))
        startAnew(option, index);
    const int row = index.row();
    if (row >= m_sizes.size())
        m_sizes.resize(std::max(row + 1, index.model()->rowCount(index.parent())));
    if (!m_sizes.at(row).isValid()) {
        // Asking the model may make it change, and the sizes with it.
        const QSize size = QStyledItemDelegate::sizeHint(option, index);
        if (row >= m_sizes.size())
            return size;
        m_sizes[row] = size;
    }
    return m_sizes.at(row);
}

void MeasuringDelegate::forget()
{
    m_sizes.clear();
}

bool MeasuringDelegate::isMeasuredWith(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    return m_conditions.model == index.model() && m_conditions.column == index.column() &&
           m_conditions.parent == index.parent() && m_conditions.style == styleOf(option) &&
           m_conditions.iconSize == option.decorationSize && m_conditions.logicalDpi == logicalDpiOf(option) &&
           m_conditions.locale == option.locale && m_conditions.font == option.font;
}

void MeasuringDelegate::startAnew(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    for (const QMetaObject::Connection& watch : qAsConst(m_watches))
        disconnect(watch);
    m_sizes.clear();
    m_conditions = {index.model(), index.parent(),        index.column(),  option.font,
                    option.locale, option.decorationSize, styleOf(option), logicalDpiOf(option)};
    m_watches = Detail::onModelChange(index.model(), this, [this] {
        m_sizes.clear();
        m_conditions.model = nullptr; // another model may come to lie at the same address
    });
}

} // namespace Kestrel::Gui
