#include "WalkthroughTaskMenu.h"

#include "FormProperties.h"
#include "WalkthroughPropertiesCommand.h"
#include "WalkthroughPropertiesDialog.h"
#include "WalkthroughTaskMenuFactory.h"

#include <QAction>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QUndoStack>

namespace Kestrel::Gui::Designer {

namespace {

/// What a double click does where a menu is the widget's only one.
QAction* preferredAction(const QDesignerTaskMenuExtension* menu)
{
    if (!menu)
        return nullptr;
    QAction* preferred = menu->preferredEditAction();
    const QList<QAction*> actions = menu->taskActions();
    return preferred || actions.isEmpty() ? preferred : actions.first();
}

} // namespace

WalkthroughTaskMenu::WalkthroughTaskMenu(QWidget* widget, const WalkthroughTaskMenuFactory* factory, QObject* parent)
    : QObject(parent)
    , m_widget(widget)
    , m_factory(factory)
    , m_edit(new QAction(tr("Edit walkthrough properties..."), this))
{
    m_edit->setObjectName(QStringLiteral("editWalkthroughProperties"));
    connect(m_edit, &QAction::triggered, this, &WalkthroughTaskMenu::edit);
}

WalkthroughTaskMenu::~WalkthroughTaskMenu() = default;

QAction* WalkthroughTaskMenu::preferredEditAction() const
{
    // Without an answer Designer would take the first action of taskActions() and forget about editing in place.
    if (QAction* action = preferredAction(m_factory->menuOfOthers(m_widget)))
        return action;
    return preferredAction(m_factory->menuOfDesigner(m_widget));
}

QList<QAction*> WalkthroughTaskMenu::taskActions() const
{
    QList<QAction*> actions;
    if (const QDesignerTaskMenuExtension* others = m_factory->menuOfOthers(m_widget))
        actions = others->taskActions();
    actions.append(m_edit);
    return actions;
}

void WalkthroughTaskMenu::edit()
{
    QDesignerFormWindowInterface* form = QDesignerFormWindowInterface::findFormWindow(m_widget);
    if (!form)
        return;
    const WalkthroughProperties before = FormProperties(*form->core(), *m_widget).read();
    WalkthroughPropertiesDialog dialog(before, WalkthroughNames::in(*form->mainContainer()), form);
    if (dialog.exec() == QDialog::Accepted && dialog.properties() != before)
        form->commandHistory()->push(new WalkthroughPropertiesCommand(*form, *m_widget, dialog.properties()));
}

} // namespace Kestrel::Gui::Designer
