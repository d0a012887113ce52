#pragma once

#include <QString>

namespace Kestrel::Gui {

/// The fixed look of the advanced colour popup: light, flat and the same under every palette.
QString AdvancedColorPickerPopupStyleSheet();

} // namespace Kestrel::Gui
