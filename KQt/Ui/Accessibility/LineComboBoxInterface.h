#pragma once

#include <KQt/Ui/Accessibility/ValueInterface.h>

QT_BEGIN_NAMESPACE
class QComboBox;
QT_END_NAMESPACE

namespace Kestrel::Gui::Detail {

/// A closed box for line styles or widths: the current item in words, and the list as its child.
class LineComboBoxInterface : public ValueInterface
{
public:
    explicit LineComboBoxInterface(QComboBox* box);

    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString& actionName) override;

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;

protected:
    QString valueText() const override;

private:
    QComboBox* box() const;
};

} // namespace Kestrel::Gui::Detail
