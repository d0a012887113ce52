#include "WalkthroughTaskMenuFactory.h"

#include "WalkthroughTaskMenu.h"

#include <QScopedValueRollback>
#include <QtDesigner/QDesignerTaskMenuExtension>
#include <QtDesigner/QExtensionManager>
#include <QWidget>

namespace Kestrel::Gui::Designer {

void WalkthroughTaskMenuFactory::registerWith(QExtensionManager& manager)
{
    manager.registerExtensions(new WalkthroughTaskMenuFactory(manager), Q_TYPEID(QDesignerTaskMenuExtension));
}

WalkthroughTaskMenuFactory::WalkthroughTaskMenuFactory(QExtensionManager& manager)
    : QExtensionFactory(&manager)
{
}

WalkthroughTaskMenuFactory::~WalkthroughTaskMenuFactory() = default;

QDesignerTaskMenuExtension* WalkthroughTaskMenuFactory::menuOfOthers(QWidget* widget) const
{
    const QScopedValueRollback<bool> looking(m_lookingForOthers, true);
    return qt_extension<QDesignerTaskMenuExtension*>(extensionManager(), widget);
}

QDesignerTaskMenuExtension* WalkthroughTaskMenuFactory::menuOfDesigner(QWidget* widget) const
{
    return qobject_cast<QDesignerTaskMenuExtension*>(
        extensionManager()->extension(widget, QStringLiteral("QDesignerInternalTaskMenuExtension")));
}

QObject* WalkthroughTaskMenuFactory::extension(QObject* object, const QString& iid) const
{
    return m_lookingForOthers ? nullptr : QExtensionFactory::extension(object, iid);
}

QObject* WalkthroughTaskMenuFactory::createExtension(QObject* object, const QString& iid, QObject* parent) const
{
    auto* widget = qobject_cast<QWidget*>(object);
    if (!widget || iid != Q_TYPEID(QDesignerTaskMenuExtension))
        return nullptr;
    return new WalkthroughTaskMenu(widget, this, parent);
}

} // namespace Kestrel::Gui::Designer
