#pragma once

#include "WidgetIcons.h"

#include <QSize>
#include <QString>
#include <QVector>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace Kestrel::Gui::Designer {

/// What Designer is told about one widget class.
struct WidgetEntry
{
    using Factory = QWidget* (*)(QWidget* parent);

    const char* className = nullptr; ///< with its namespaces, as the class itself tells it
    const char* baseClass = nullptr; ///< the class of Qt's that it extends
    Factory create = nullptr;
    Factory createInEditor = nullptr; ///< as create, for form editors
    const char* group = nullptr;
    QSize size; ///< of a widget that is dropped where no layout is
    Icons::Drawing drawing = nullptr;
    const char* toolTip = nullptr;
    const char* whatsThis = nullptr;
    const char* text = nullptr;      ///< property that shows the class's name in a new widget, or null
    const char* multiLine = nullptr; ///< text property that takes several lines, or null
    bool horizontal = false;         ///< whether a new widget lies, where its class would have it stand

    /// The class name without namespaces.
    QString plainName() const;
    /// The header as a source includes it.
    QString header() const;
    /// The name of a first widget of this class in a form.
    QString objectName() const;
};

/// Every widget of the library that can be built from a parent alone and that belongs into a form, in the order of the
/// widget box: widgets of a group stand together.
///
/// Not in it: the two popups and HighlightFrame, which are windows that other widgets open; SeparatorStyle, which is
/// never shown; WalkthroughHint, which is abstract; SelectionFrameWidget, which needs a window.
const QVector<WidgetEntry>& widgetTable();

} // namespace Kestrel::Gui::Designer
