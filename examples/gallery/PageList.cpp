#include "PageList.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QVBoxLayout>

namespace Gallery {

namespace {

// The texts that the filter looks at.
constexpr int SearchRole = Qt::UserRole;

} // namespace

PageList::PageList(QWidget* parent)
    : QWidget(parent)
    , m_entries(new QStandardItemModel(this))
    , m_shown(new QSortFilterProxyModel(this))
    , m_filter(new QLineEdit)
    , m_view(new QListView)
{
    m_shown->setSourceModel(m_entries);
    m_shown->setFilterRole(SearchRole);
    m_shown->setFilterCaseSensitivity(Qt::CaseInsensitive);

    m_filter->setObjectName(QStringLiteral("filter"));
    m_filter->setClearButtonEnabled(true);
    m_filter->installEventFilter(this);

    constexpr int itemSpacing = 2;
    m_view->setObjectName(QStringLiteral("pages"));
    m_view->setModel(m_shown);
    m_view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_view->setTextElideMode(Qt::ElideRight);
    m_view->setSpacing(itemSpacing);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_filter);
    layout->addWidget(m_view, 1);

    connect(m_filter, &QLineEdit::textChanged, this, [this](const QString& text) {
        m_shown->setFilterFixedString(text);
        keepSomethingCurrent();
    });
    connect(m_view->selectionModel(), &QItemSelectionModel::currentChanged, this, &PageList::reportCurrent);
}

void PageList::setEntries(const QVector<Entry>& entries)
{
    m_filter->setPlaceholderText(tr("Title or component"));
    m_filter->setAccessibleName(tr("Title or component"));
    m_view->setAccessibleName(tr("Pages"));
    m_filter->clear();
    m_entries->clear();
    for (const Entry& entry : entries) {
        auto* item = new QStandardItem(entry.title);
        item->setData(QStringList(entry.components).join(QLatin1Char('\n')), Qt::ToolTipRole);
        item->setData(entry.title + QLatin1Char('\n') + entry.components.join(QLatin1Char('\n')), SearchRole);
        m_entries->appendRow(item);
    }
    m_view->setCurrentIndex(m_shown->mapFromSource(m_entries->index(m_current, 0)));

    // As wide as the longest title, without a break.
    const int frame = m_view->width() - m_view->viewport()->width();
    const int margins = layout()->contentsMargins().left() + layout()->contentsMargins().right();
    setMinimumWidth(m_view->sizeHintForColumn(0) + frame + margins);
}

QSize PageList::sizeHint() const
{
    return {minimumWidth(), QWidget::sizeHint().height()};
}

int PageList::current() const
{
    return m_current;
}

void PageList::setCurrent(int position)
{
    const QModelIndex title = m_entries->index(position, 0);
    if (!m_shown->mapFromSource(title).isValid())
        m_filter->clear();
    m_view->setCurrentIndex(m_shown->mapFromSource(title));
}

void PageList::focusFilter()
{
    m_filter->setFocus(Qt::ShortcutFocusReason);
    m_filter->selectAll();
}

bool PageList::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress && watched == m_filter) {
        switch (static_cast<QKeyEvent*>(event)->key()) {
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
            return QCoreApplication::sendEvent(m_view, event);
        default:
            break;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void PageList::keepSomethingCurrent()
{
    const QModelIndex same = m_shown->mapFromSource(m_entries->index(m_current, 0));
    m_view->setCurrentIndex(same.isValid() ? same : m_shown->index(0, 0));
}

void PageList::reportCurrent(const QModelIndex& index)
{
    // Where the filter leaves nothing, the page stays.
    const int position = m_shown->mapToSource(index).row();
    if (position < 0 || position == m_current)
        return;
    m_current = position;
    Q_EMIT currentChanged(position);
}

} // namespace Gallery
