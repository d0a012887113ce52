#pragma once

#include <KQt/Ui/StandardDialogs.h>

#include <QtGlobal>

namespace Kestrel::Gui {

/// Whether @p mode contains all of @p part.
constexpr bool includes(StandardDialogs::OpenMode mode, StandardDialogs::OpenMode part)
{
    return (mode & part) == part;
}

/// The options of the system's file dialog for @p mode: @p current, which nothing is taken from, with what is added.
///
/// Files and folders together are asked for as files are; no option stands for both.
quint32 nativeDialogOptions(quint32 current, StandardDialogs::OpenMode mode);

} // namespace Kestrel::Gui
