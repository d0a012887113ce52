#pragma once

#include <QStringList>
#include <QVector>
#include <QWidget>

QT_BEGIN_NAMESPACE
class QLineEdit;
class QListView;
class QModelIndex;
class QSortFilterProxyModel;
class QStandardItemModel;
QT_END_NAMESPACE

namespace Gallery {

/// The titles of the pages below a field that finds them by title or by the name of a component.
///
/// The arrow keys move through the list also from the field.
class PageList : public QWidget
{
    Q_OBJECT

public:
    explicit PageList(QWidget* parent = nullptr);

    struct Entry
    {
        QString title;
        QStringList components; ///< names that find the page as its title does
    };

    /// Replaces the entries; keeps the current position without a signal.
    void setEntries(const QVector<Entry>& entries);

    /// The position of the current page among all entries, -1 for none.
    int current() const;
    /// Clears the filter where it hides @p position.
    void setCurrent(int position);
    void focusFilter();

    /// No wider than the longest title, so that the page has the room.
    QSize sizeHint() const override;
    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// Another page became the current one, by the user or by setCurrent().
    void currentChanged(int position);

private:
    void keepSomethingCurrent();
    void reportCurrent(const QModelIndex& index);

    QStandardItemModel* m_entries;
    QSortFilterProxyModel* m_shown;
    QLineEdit* m_filter;
    QListView* m_view;
    int m_current = -1;
};

} // namespace Gallery
