#pragma once

#include <QWidget>

QT_BEGIN_NAMESPACE
class QLineEdit;
class QListView;
class QModelIndex;
class QSortFilterProxyModel;
class QStringListModel;
QT_END_NAMESPACE

namespace Gallery {

/// The titles of the pages below a field that filters them.
///
/// The arrow keys move through the list also from the field.
class PageList : public QWidget
{
    Q_OBJECT

public:
    explicit PageList(QWidget* parent = nullptr);

    /// Replaces the titles; keeps the current position without a signal.
    void setTitles(const QStringList& titles);

    /// The position of the current page among all titles, -1 for none.
    int current() const;
    /// Clears the filter where it hides @p position.
    void setCurrent(int position);
    void focusFilter();

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// Another page became the current one, by the user or by setCurrent().
    void currentChanged(int position);

private:
    void keepSomethingCurrent();
    void reportCurrent(const QModelIndex& index);

    QStringListModel* m_titles;
    QSortFilterProxyModel* m_shown;
    QLineEdit* m_filter;
    QListView* m_view;
    int m_current = -1;
};

} // namespace Gallery
