#pragma once

namespace Kestrel::Core {

/// Whether the process runs on Windows Vista or a later Windows; false on every other system.
bool IsWindowsVistaOrGreater();

} // namespace Kestrel::Core
