#include <KQt/Ui/AdvancedComboView.h>

#include <KQt/Ui/AdvancedComboBox.h>
#include <KQt/Ui/MeasuringDelegate.h>
#include <KQt/Ui/ModelChanges.h>

#include <QAbstractItemDelegate>
#include <QEvent>
#include <QPainter>
#include <QPaintEvent>
#include <QScrollBar>
#include <QSet>
#include <QStyleOptionComboBox>
#include <QStyleOptionMenuItem>
#include <QTimer>

namespace Kestrel::Gui {

AdvancedComboView::AdvancedComboView(AdvancedComboBox* combo, bool widePopup)
    : m_combo(combo)
    , m_widePopup(widePopup)
    , m_delegate(new MeasuringDelegate(this))
{
    setItemDelegate(m_delegate);
    if (m_widePopup)
        setTextElideMode(Qt::ElideNone);
}

AdvancedComboView::~AdvancedComboView()
{
    // The delegate dies with the other children, when this is a plain widget.
    stopWatching();
}

void AdvancedComboView::paintEvent(QPaintEvent* event)
{
    if (m_combo) {
        QStyleOptionComboBox comboOption;
        comboOption.initFrom(m_combo);
        comboOption.editable = m_combo->isEditable();
        if (m_combo->style()->styleHint(QStyle::SH_ComboBox_Popup, &comboOption, m_combo)) {
            QStyleOptionMenuItem menuOption;
            menuOption.initFrom(this);
            menuOption.palette = palette();
            menuOption.state = QStyle::State_None;
            menuOption.checkType = QStyleOptionMenuItem::NotCheckable;
            menuOption.menuRect = event->rect();
            menuOption.maxIconWidth = 0;
            menuOption.tabWidth = 0;
            QPainter painter(viewport());
            m_combo->style()->drawControl(QStyle::CE_MenuEmptyArea, &menuOption, &painter, this);
        }
    }
    QListView::paintEvent(event);
}

void AdvancedComboView::resizeEvent(QResizeEvent* event)
{
    resizeContents(viewport()->width(), contentsSize().height());
    QListView::resizeEvent(event);
    // A model without the column has no widest item: Qt says -1.
    if (m_widePopup)
        setMinimumWidth(qMax(0, widestItem() + scrollBarAllowance()));
}

void AdvancedComboView::changeEvent(QEvent* event)
{
    /// Lays the view's items out anew when the event loop deletes it, after the change has been dealt with.
    class Helper : public QObject
    {
    public:
        explicit Helper(QListView* view)
            : QObject(view)
            , m_view(view)
        {
        }
        ~Helper() override
        {
            // A view that is being deleted takes its children along when it is a list view no longer.
            if (auto* view = qobject_cast<QListView*>(m_view.data()))
                view->setFlow(QListView::TopToBottom);
        }

    private:
        QPointer<QObject> m_view;
    };

    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        m_measured = false;
        if (m_delegate)
            m_delegate->forget();
        QTimer::singleShot(0, new Helper(this), &QObject::deleteLater);
    }
    QListView::changeEvent(event);
}

QStyleOptionViewItem AdvancedComboView::viewOptions() const
{
    QStyleOptionViewItem option = QListView::viewOptions();
    option.showDecorationSelected = true;
    if (m_combo)
        option.font = m_combo->font();
    return option;
}

int AdvancedComboView::scrollBarAllowance() const
{
    const QScrollBar* bar = verticalScrollBar();
    return bar && bar->maximum() != 0 ? bar->width() : 0;
}

int AdvancedComboView::widestItem()
{
    const Measured conditions = currentConditions();
    if (m_measured && conditions == m_conditions)
        return m_widestItem;

    m_widestItem = sizeHintForColumn(conditions.column);
    m_conditions = conditions;
    m_measured = true;
    watchForChanges(conditions);
    return m_widestItem;
}

AdvancedComboView::Measured AdvancedComboView::currentConditions() const
{
    Measured conditions;
    conditions.model = model();
    conditions.style = style();
    conditions.root = rootIndex();
    conditions.column = m_combo ? m_combo->modelColumn() : modelColumn();
    conditions.delegates = currentDelegates(conditions.column);
    conditions.font = viewOptions().font;
    conditions.locale = locale();
    conditions.iconSize = iconSize();
    conditions.logicalDpi = logicalDpiX();
    return conditions;
}

// The view's own, the column's and each row's.
QVector<const QAbstractItemDelegate*> AdvancedComboView::currentDelegates(int column) const
{
    QVector<const QAbstractItemDelegate*> delegates = {itemDelegate(), itemDelegateForColumn(column)};
    const int rows = model() ? model()->rowCount(rootIndex()) : 0;
    for (int row = 0; row < rows; ++row)
        delegates.append(itemDelegateForRow(row));
    return delegates;
}

bool AdvancedComboView::Measured::operator==(const Measured& other) const
{
    return model == other.model && delegates == other.delegates && style == other.style && root == other.root &&
           column == other.column && font == other.font && locale == other.locale && iconSize == other.iconSize &&
           logicalDpi == other.logicalDpi;
}

void AdvancedComboView::stopWatching()
{
    for (const QMetaObject::Connection& watch : qAsConst(m_watches))
        disconnect(watch);
    m_watches.clear();
}

void AdvancedComboView::watchForChanges(const Measured& conditions)
{
    stopWatching();
    const auto measureAnew = [this] { m_measured = false; };
    if (conditions.model)
        m_watches = Detail::onModelChange(conditions.model, this, measureAnew);
    const QSet<const QAbstractItemDelegate*> delegates(conditions.delegates.begin(), conditions.delegates.end());
    for (const QAbstractItemDelegate* delegate : delegates) {
        if (!delegate)
            continue;
        m_watches.append(connect(delegate, &QAbstractItemDelegate::sizeHintChanged, this, measureAnew));
        m_watches.append(connect(delegate, &QObject::destroyed, this, measureAnew));
    }
}

} // namespace Kestrel::Gui
