#include <KQt/Ui/StandardDialogs.h>

#include <KQt/Ui/Check.h>
#include <KQt/Ui/DialogFileTypes.h>
#include <KQt/Ui/DialogOptions.h>
#include <KQt/Ui/Platforms/NativeFileDialog.h>
#include <KQt/Ui/Platforms/win/FileDialogEvents.h>
#include <KQt/Ui/Platforms/win/ShellItems.h>

#include <Basalt/ScopedFunctionCall.h>
#include <Basalt/WindowsVersion.h>

#include <QWidget>

#include <shobjidl.h>
#include <windows.h>
#include <wrl/client.h>

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace Kestrel::Gui {

using Core::ScopedFunctionCall;
using Microsoft::WRL::ComPtr;
using OpenMode = StandardDialogs::OpenMode;

namespace {

/// Offers the types of a filter in a dialog and, when it ends, tells the caller which one was chosen.
class DialogFilterHelper
{
public:
    DialogFilterHelper(IFileOpenDialog& dialog, const QString& filter, QString* selectedFilter);
    ~DialogFilterHelper();

    DialogFilterHelper(const DialogFilterHelper&) = delete;
    DialogFilterHelper& operator=(const DialogFilterHelper&) = delete;

private:
    void SetFileTypes();

    IFileOpenDialog& m_dialog;
    QString* m_selectedFilter;
    std::vector<std::pair<std::wstring, std::wstring>> m_fileTypes; ///< names with their specifications
};

DialogFilterHelper::DialogFilterHelper(IFileOpenDialog& dialog, const QString& filter, QString* selectedFilter)
    : m_dialog(dialog)
    , m_selectedFilter(selectedFilter)
{
    if (filter.isEmpty())
        return;
    const QVector<DialogFileType> types = dialogFileTypes(filter);
    for (const DialogFileType& type : types)
        m_fileTypes.emplace_back(type.name.toStdWString(), type.specification.toStdWString());
    SetFileTypes();
}

DialogFilterHelper::~DialogFilterHelper()
{
    if (!m_selectedFilter || m_fileTypes.empty())
        return;
    UINT index = 0; // the first is 1
    if (FAILED(m_dialog.GetFileTypeIndex(&index)) || index < 1 || index > m_fileTypes.size())
        return;
    const auto& [name, specification] = m_fileTypes[index - 1];
    *m_selectedFilter = selectedFilterText({QString::fromStdWString(name), QString::fromStdWString(specification)});
}

void DialogFilterHelper::SetFileTypes()
{
    std::vector<COMDLG_FILTERSPEC> specs;
    specs.reserve(m_fileTypes.size());
    for (const auto& [name, specification] : m_fileTypes)
        specs.push_back({name.c_str(), specification.c_str()});
    if (!specs.empty() && FAILED(m_dialog.SetFileTypes(static_cast<UINT>(specs.size()), specs.data())))
        KQTUI_THROW_RUNTIME_ERROR("Set dialog file types failed");
    // The caller's selected filter does not count: the dialog opens on its first type.
    m_dialog.SetFileTypeIndex(0);
}

void SetOptions(IFileOpenDialog& dialog, OpenMode mode)
{
    FILEOPENDIALOGOPTIONS options = 0;
    if (FAILED(dialog.GetOptions(&options)))
        KQTUI_THROW_RUNTIME_ERROR_AT("Get dialog option failed", NativeFileDialogLine::getOptionsFailed);
    if (FAILED(dialog.SetOptions(nativeDialogOptions(options, mode))))
        KQTUI_THROW_RUNTIME_ERROR_AT("Set dialog option failed", NativeFileDialogLine::setOptionsFailed);
}

void SetCaption(IFileOpenDialog& dialog, const QString& caption)
{
    if (!caption.isEmpty())
        dialog.SetTitle(caption.toStdWString().c_str());
}

void SetFolder(IFileOpenDialog& dialog, const QString& dir)
{
    if (dir.isEmpty())
        return;
    if (const ComPtr<IShellItem> folder = shellItemOfFolder(dir))
        dialog.SetFolder(folder.Get());
}

QStringList GetResults(IFileOpenDialog& dialog)
{
    ComPtr<IShellItemArray> items;
    if (FAILED(dialog.GetResults(items.GetAddressOf())) || !items)
        return {};
    return pathsOfItems(items.Get());
}

HWND WindowOf(const QWidget* widget)
{
    return widget ? reinterpret_cast<HWND>(widget->winId()) : nullptr;
}

/// What is built first here goes last, also when a check throws: the events are unregistered, the OK button gets its
/// procedure back, the chosen filter is told, the dialog is released, COM is left.
QStringList GetSelectedFiles(QWidget* parent, const QString& caption, const QString& dir, const QString& filter,
                             QString* selectedFilter, OpenMode mode)
{
    const ScopedFunctionCall com(
        [] {
            if (FAILED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE)))
                KQTUI_THROW_RUNTIME_ERROR_AT("CoInitializeEx failed", NativeFileDialogLine::coInitializeFailed);
        },
        [] { CoUninitialize(); }, true);

    ComPtr<IFileOpenDialog> dialog;
    if (FAILED(CoCreateInstance(CLSID_FileOpenDialog, nullptr, CLSCTX_ALL, IID_PPV_ARGS(dialog.GetAddressOf()))) ||
        !dialog)
        KQTUI_THROW_RUNTIME_ERROR_AT("Create dialog instance failed", NativeFileDialogLine::createInstanceFailed);

    SetOptions(*dialog.Get(), mode);
    SetCaption(*dialog.Get(), caption);
    SetFolder(*dialog.Get(), dir);
    const DialogFilterHelper fileTypes(*dialog.Get(), filter, selectedFilter);

    FileDialogEvents events;
    DWORD cookie = 0;
    std::optional<ScopedFunctionCall> subscription;
    if (includes(mode, OpenMode::Files | OpenMode::Directories)) {
        subscription.emplace(
            [&] {
                if (FAILED(dialog->Advise(&events, &cookie)))
                    KQTUI_THROW_RUNTIME_ERROR_AT("Advise dialog failed", NativeFileDialogLine::adviseFailed);
            },
            [&] { dialog->Unadvise(cookie); }, true);
    }

    const HRESULT shown = dialog->Show(WindowOf(parent));
    if (shown == HRESULT_FROM_WIN32(ERROR_CANCELLED))
        return {};
    if (FAILED(shown))
        KQTUI_THROW_RUNTIME_ERROR_AT("Show dialog failed", NativeFileDialogLine::showFailed);
    return events.selectedPaths().isEmpty() ? GetResults(*dialog.Get()) : events.selectedPaths();
}

} // namespace

NativeFileDialog nativeFileDialog()
{
    return Core::IsWindowsVistaOrGreater() ? &GetSelectedFiles : nullptr;
}

} // namespace Kestrel::Gui
