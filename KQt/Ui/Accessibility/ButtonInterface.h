#pragma once

#include <KQt/Ui/Accessibility/ValueInterface.h>

QT_BEGIN_NAMESPACE
class QAbstractButton;
QT_END_NAMESPACE

namespace Kestrel::Gui::Detail {

/// A button that can be pressed; one without a text is called what its tool tip says.
class ButtonInterface : public ValueInterface
{
public:
    explicit ButtonInterface(QAbstractButton* button, QAccessible::Role role = QAccessible::PushButton);

    QAccessible::State state() const override;
    QStringList actionNames() const override;
    /// Presses from the event loop: what a press opens may have a loop of its own, and the caller waits for an answer.
    void doAction(const QString& actionName) override;

protected:
    QAbstractButton* button() const;
    QString valueText() const override;
    QString fallbackName() const override;
    /// What a press does; a click unless said otherwise.
    virtual void press();
};

} // namespace Kestrel::Gui::Detail
