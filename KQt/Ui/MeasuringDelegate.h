#pragma once

#include <QFont>
#include <QLocale>
#include <QPersistentModelIndex>
#include <QStyledItemDelegate>
#include <QVector>

namespace Kestrel::Gui {

/// The delegate that AdvancedComboView comes with: the ordinary one, but it measures an item once.
///
/// A list asks for the size of every item each time it is opened, and a wide one once more. What was measured is kept
/// until the model, the font, the locale, the icon size or the style is another; forget() covers changes inside a
/// style. Wrapped texts, whose size depends on the width, are measured each time.
class MeasuringDelegate : public QStyledItemDelegate
{
public:
    explicit MeasuringDelegate(QObject* parent = nullptr);
    ~MeasuringDelegate() override;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

    void forget();

private:
    /// What the sizes were measured with.
    struct Conditions
    {
        const QAbstractItemModel* model = nullptr;
        QPersistentModelIndex parent;
        int column = -1;
        QFont font;
        QLocale locale;
        QSize iconSize;
        const QStyle* style = nullptr;
        int logicalDpi = 0;
    };

    bool isMeasuredWith(const QStyleOptionViewItem& option, const QModelIndex& index) const;
    void startAnew(const QStyleOptionViewItem& option, const QModelIndex& index) const;

    mutable Conditions m_conditions;
    mutable QVector<QSize> m_sizes; // by row; invalid where not measured yet
    mutable QVector<QMetaObject::Connection> m_watches;
};

} // namespace Kestrel::Gui
