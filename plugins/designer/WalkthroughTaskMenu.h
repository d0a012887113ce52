#pragma once

#include <QObject>
#include <QPointer>
#include <QtDesigner/QDesignerTaskMenuExtension>
#include <QWidget>

QT_BEGIN_NAMESPACE
class QAction;
QT_END_NAMESPACE

namespace Kestrel::Gui::Designer {

class WalkthroughTaskMenuFactory;

/// The entry "Edit walkthrough properties..." in the menu of a widget in a form.
class WalkthroughTaskMenu : public QObject, public QDesignerTaskMenuExtension
{
    Q_OBJECT
    Q_INTERFACES(QDesignerTaskMenuExtension)

public:
    /// @param factory knows the other menus of the widget and outlives this one, as its parent.
    WalkthroughTaskMenu(QWidget* widget, const WalkthroughTaskMenuFactory* factory, QObject* parent);
    ~WalkthroughTaskMenu() override;

    /// What a double click does: the same as without this entry.
    QAction* preferredEditAction() const override;
    /// The entry, after those of other plugins for this widget.
    QList<QAction*> taskActions() const override;

private:
    void edit();

    QPointer<QWidget> m_widget;
    const WalkthroughTaskMenuFactory* m_factory;
    QAction* m_edit;
};

} // namespace Kestrel::Gui::Designer
