#pragma once

#include "WidgetTable.h"

#include <QObject>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

#include <functional>

namespace Kestrel::Gui::Designer {

/// An entry of the table as Designer and the form loaders ask for it.
class CustomWidget : public QObject, public QDesignerCustomWidgetInterface
{
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetInterface)

public:
    /// @param entry must outlive the object.
    /// @param initializeEditor is called when a form editor starts to use the widget, never by form loaders.
    CustomWidget(const WidgetEntry& entry, std::function<void(QDesignerFormEditorInterface*)> initializeEditor,
                 QObject* parent);
    ~CustomWidget() override;

    QString name() const override;
    QString group() const override;
    QString toolTip() const override;
    QString whatsThis() const override;
    QString includeFile() const override;
    QIcon icon() const override;
    bool isContainer() const override;
    QWidget* createWidget(QWidget* parent) override;
    bool isInitialized() const override;
    void initialize(QDesignerFormEditorInterface* editor) override;
    QString domXml() const override;

private:
    const WidgetEntry& m_entry;
    std::function<void(QDesignerFormEditorInterface*)> m_initializeEditor;
    bool m_initialized = false;
};

} // namespace Kestrel::Gui::Designer
