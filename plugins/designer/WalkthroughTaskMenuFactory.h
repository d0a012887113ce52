#pragma once

#include <QtDesigner/QExtensionFactory>

QT_BEGIN_NAMESPACE
class QDesignerTaskMenuExtension;
class QExtensionManager;
QT_END_NAMESPACE

namespace Kestrel::Gui::Designer {

/// Gives every widget in a form its WalkthroughTaskMenu.
///
/// Designer takes one menu from plugins for each widget. So that those of other plugins are not lost, this one looks
/// for them and shows their entries too.
class WalkthroughTaskMenuFactory : public QExtensionFactory
{
    Q_OBJECT

public:
    /// The manager owns the factory.
    static void registerWith(QExtensionManager& manager);

    ~WalkthroughTaskMenuFactory() override;

    /// The menu that another plugin has for the widget, or null.
    QDesignerTaskMenuExtension* menuOfOthers(QWidget* widget) const;
    /// The form editor's own menu for the widget, or null.
    QDesignerTaskMenuExtension* menuOfDesigner(QWidget* widget) const;

    QObject* extension(QObject* object, const QString& iid) const override;

protected:
    QObject* createExtension(QObject* object, const QString& iid, QObject* parent) const override;

private:
    explicit WalkthroughTaskMenuFactory(QExtensionManager& manager);

    mutable bool m_lookingForOthers = false;
};

} // namespace Kestrel::Gui::Designer
