#pragma once

#include <QPalette>

namespace Gallery {

enum class Scheme { Light, Dark };

/// The whole palette of a scheme, disabled colours included; it does not depend on the desktop's.
QPalette palette(Scheme scheme);

/// Gives the application, tool tips included, the palette of @p scheme.
void applyScheme(Scheme scheme);

} // namespace Gallery
