#include <KQt/Ui/Platforms/win/ShellItems.h>

#include <QDir>

#include <shlobj.h>

#include <optional>
#include <string>

namespace Kestrel::Gui {

using Microsoft::WRL::ComPtr;

namespace {

/// Nothing where @p item has no path.
std::optional<QString> pathOfItem(IShellItem* item)
{
    wchar_t* name = nullptr;
    if (FAILED(item->GetDisplayName(SIGDN_FILESYSPATH, &name)) || !name)
        return std::nullopt;
    QString path = QDir::fromNativeSeparators(QString::fromWCharArray(name));
    CoTaskMemFree(name);
    return path;
}

} // namespace

ComPtr<IShellItem> shellItemOfFolder(const QString& folder)
{
    const std::wstring path = QDir::toNativeSeparators(folder).toStdWString();
    PIDLIST_ABSOLUTE idList = nullptr;
    if (FAILED(SHParseDisplayName(path.c_str(), nullptr, &idList, SFGAO_FOLDER, nullptr)))
        return {};

    ComPtr<IShellItem> item;
    if (FAILED(SHCreateShellItem(nullptr, nullptr, idList, item.GetAddressOf())))
        item.Reset();
    ILFree(idList);
    return item;
}

QStringList pathsOfItems(IShellItemArray* items)
{
    QStringList paths;
    DWORD count = 0;
    if (FAILED(items->GetCount(&count)))
        return paths;
    for (DWORD i = 0; i < count; ++i) {
        ComPtr<IShellItem> item;
        if (FAILED(items->GetItemAt(i, item.GetAddressOf())) || !item)
            continue;
        if (const std::optional<QString> path = pathOfItem(item.Get()))
            paths.append(*path);
    }
    return paths;
}

} // namespace Kestrel::Gui
