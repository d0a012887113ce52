#pragma once

#include <QFont>
#include <QListView>
#include <QLocale>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QVector>

namespace Kestrel::Gui {

class AdvancedComboBox;
class MeasuringDelegate;

/// The popup list of AdvancedComboBox.
///
/// A wide one has a minimum width that fits its widest item, measured when the list is resized. Measuring asks the
/// delegate about every item, so the result is kept until something changes that it depends on.
class AdvancedComboView : public QListView
{
public:
    AdvancedComboView(AdvancedComboBox* combo, bool widePopup);
    ~AdvancedComboView() override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    QStyleOptionViewItem viewOptions() const override;

private:
    /// What the widest item was measured with; any difference makes it worthless.
    struct Measured
    {
        const QAbstractItemModel* model = nullptr;
        QVector<const QAbstractItemDelegate*> delegates;
        const QStyle* style = nullptr;
        QPersistentModelIndex root;
        int column = 0;
        QFont font;
        QLocale locale;
        QSize iconSize;
        int logicalDpi = 0;

        bool operator==(const Measured& other) const;
    };

    Measured currentConditions() const;
    QVector<const QAbstractItemDelegate*> currentDelegates(int column) const;
    int widestItem();
    void watchForChanges(const Measured& conditions);
    void stopWatching();
    int scrollBarAllowance() const;

    QPointer<AdvancedComboBox> m_combo;
    bool m_widePopup;
    QPointer<MeasuringDelegate> m_delegate; // until the application sets one of its own
    bool m_measured = false;
    Measured m_conditions;
    int m_widestItem = 0;
    QVector<QMetaObject::Connection> m_watches;
};

} // namespace Kestrel::Gui
