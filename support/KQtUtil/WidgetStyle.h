#pragma once

class QString;
class QWidget;

namespace Kestrel::Util {

/// Gives @p widget one of the product family's named looks: sets the dynamic property @p propertyName to @p styleName
/// and polishes the widget anew, so that style sheet rules that select by the property take effect at once.
void ApplyWidgetStyle(QWidget* widget, const QString& styleName, const char* propertyName);

} // namespace Kestrel::Util
