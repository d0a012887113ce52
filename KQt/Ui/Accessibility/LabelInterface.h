#pragma once

#include <QAccessibleWidget>

QT_BEGIN_NAMESPACE
class QLabel;
QT_END_NAMESPACE

namespace Kestrel::Gui::Detail {

/// A label of the library: its full text without directional marks, elided or not. A clickable one can be pressed.
class LabelInterface : public QAccessibleWidget
{
public:
    explicit LabelInterface(QLabel* label);

    QString text(QAccessible::Text kind) const override;
    QVector<QPair<QAccessibleInterface*, QAccessible::Relation>>
    relations(QAccessible::Relation match = QAccessible::AllRelations) const override;
    QStringList actionNames() const override;
    void doAction(const QString& actionName) override;

    /// What @p label says, in words: no markup, no marks, nothing cut off.
    static QString fullText(const QLabel& label);

private:
    QLabel* label() const;
};

} // namespace Kestrel::Gui::Detail
