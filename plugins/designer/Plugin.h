#pragma once

#include <QObject>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

namespace Kestrel::Gui::Designer {

class CustomWidget;

/// The library's widgets for Qt Designer, Qt Creator and QUiLoader, and in the first two an entry in the menu of every
/// widget of a form that edits what a walkthrough reads from it.
class Plugin : public QObject, public QDesignerCustomWidgetCollectionInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QDesignerCustomWidgetCollectionInterface")
    Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)

public:
    explicit Plugin(QObject* parent = nullptr);
    ~Plugin() override;

    QList<QDesignerCustomWidgetInterface*> customWidgets() const override;

private:
    void initializeEditor(QDesignerFormEditorInterface* editor);

    QList<CustomWidget*> m_widgets; // children
    bool m_editorInitialized = false;
};

} // namespace Kestrel::Gui::Designer
