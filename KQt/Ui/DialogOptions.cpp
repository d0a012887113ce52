#include <KQt/Ui/DialogOptions.h>

namespace Kestrel::Gui {

namespace {

// FILEOPENDIALOGOPTIONS, spelled out for systems that do not have it.
constexpr quint32 pickFolders = 0x20;            // FOS_PICKFOLDERS
constexpr quint32 forceFileSystem = 0x40;        // FOS_FORCEFILESYSTEM
constexpr quint32 allowMultiSelect = 0x200;      // FOS_ALLOWMULTISELECT
constexpr quint32 pathMustExist = 0x800;         // FOS_PATHMUSTEXIST
constexpr quint32 fileMustExist = 0x1000;        // FOS_FILEMUSTEXIST
constexpr quint32 noDereferenceLinks = 0x100000; // FOS_NODEREFERENCELINKS

} // namespace

quint32 nativeDialogOptions(quint32 current, StandardDialogs::OpenMode mode)
{
    using OpenMode = StandardDialogs::OpenMode;

    quint32 options = current | forceFileSystem | pathMustExist | fileMustExist | noDereferenceLinks;
    if (includes(mode, OpenMode::Multiple))
        options |= allowMultiSelect;
    if (includes(mode, OpenMode::Directories) && !includes(mode, OpenMode::Files))
        options |= pickFolders;
    return options;
}

} // namespace Kestrel::Gui
