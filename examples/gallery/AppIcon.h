#pragma once

#include <QIcon>

namespace Gallery {

/// The gallery's icon, drawn at the usual sizes.
QIcon applicationIcon();

} // namespace Gallery
