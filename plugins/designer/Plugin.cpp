#include "Plugin.h"

#include "CustomWidget.h"
#include "WalkthroughTaskMenuFactory.h"

#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QExtensionManager>

namespace Kestrel::Gui::Designer {

Plugin::Plugin(QObject* parent)
    : QObject(parent)
{
    for (const WidgetEntry& entry : widgetTable())
        m_widgets.append(new CustomWidget(
            entry, [this](QDesignerFormEditorInterface* editor) { initializeEditor(editor); }, this));
}

Plugin::~Plugin() = default;

QList<QDesignerCustomWidgetInterface*> Plugin::customWidgets() const
{
    QList<QDesignerCustomWidgetInterface*> result;
    result.reserve(m_widgets.size());
    for (CustomWidget* widget : m_widgets)
        result.append(widget);
    return result;
}

void Plugin::initializeEditor(QDesignerFormEditorInterface* editor)
{
    // Each widget is told of the editor; the menu is registered once.
    if (m_editorInitialized)
        return;
    m_editorInitialized = true;
    WalkthroughTaskMenuFactory::registerWith(*editor->extensionManager());
}

} // namespace Kestrel::Gui::Designer
