#pragma once

#include <QString>
#include <QStringList>

#include <shobjidl.h>
#include <wrl/client.h>

namespace Kestrel::Gui {

/// The shell's item for an existing folder; null where there is none or the shell refuses it.
Microsoft::WRL::ComPtr<IShellItem> shellItemOfFolder(const QString& folder);

/// The paths of @p items, with forward slashes. Items without a path in the file system are left out.
QStringList pathsOfItems(IShellItemArray* items);

} // namespace Kestrel::Gui
