#include <KQt/Ui/Platforms/win/FileDialogEvents.h>

#include <KQt/Ui/Platforms/win/OkButtonHook.h>
#include <KQt/Ui/Platforms/win/ShellItems.h>

#include <shlwapi.h>
#include <wrl/client.h>

namespace Kestrel::Gui {

using Microsoft::WRL::ComPtr;

namespace {

// References are not counted, and whoever looks at the count sees at once that it is none.
constexpr ULONG noReferenceCount = 42;

/// Null where the dialog does not tell its window, or that has no such button.
HWND okButtonOf(IFileDialog* dialog)
{
    ComPtr<IOleWindow> oleWindow;
    HWND window = nullptr;
    if (FAILED(dialog->QueryInterface(IID_PPV_ARGS(oleWindow.GetAddressOf()))) || !oleWindow ||
        FAILED(oleWindow->GetWindow(&window)))
        return nullptr;
    return GetDlgItem(window, IDOK);
}

} // namespace

FileDialogEvents::~FileDialogEvents()
{
    if (m_okButton)
        OkButtonHook::remove(m_okButton);
}

HRESULT FileDialogEvents::QueryInterface(REFIID, void**)
{
    return S_OK;
}

ULONG FileDialogEvents::AddRef()
{
    return noReferenceCount;
}

ULONG FileDialogEvents::Release()
{
    return noReferenceCount;
}

HRESULT FileDialogEvents::OnFileOk(IFileDialog*)
{
    return S_OK;
}

HRESULT FileDialogEvents::OnFolderChanging(IFileDialog*, IShellItem*)
{
    return S_OK;
}

HRESULT FileDialogEvents::OnFolderChange(IFileDialog* dialog)
{
    if (m_okButton) {
        OkButtonHook::renew(m_okButton);
        return S_OK;
    }
    m_okButton = okButtonOf(dialog);
    if (m_okButton)
        OkButtonHook::install(m_okButton, dialog);
    return S_OK;
}

HRESULT FileDialogEvents::OnSelectionChange(IFileDialog* dialog)
{
    ComPtr<IFolderView2> view;
    const HRESULT found = IUnknown_QueryService(dialog, SID_SFolderView, IID_PPV_ARGS(view.GetAddressOf()));
    if (FAILED(found))
        return found;

    m_selectedPaths.clear();
    ComPtr<IShellItemArray> items;
    const HRESULT read = view->GetSelection(FALSE, items.GetAddressOf());
    // An empty selection is a success without an array.
    if (SUCCEEDED(read) && items)
        m_selectedPaths = pathsOfItems(items.Get());
    OkButtonHook::setSelected(m_okButton, !m_selectedPaths.isEmpty());
    return read;
}

HRESULT FileDialogEvents::OnShareViolation(IFileDialog*, IShellItem*, FDE_SHAREVIOLATION_RESPONSE*)
{
    return S_OK;
}

HRESULT FileDialogEvents::OnTypeChange(IFileDialog*)
{
    return S_OK;
}

HRESULT FileDialogEvents::OnOverwrite(IFileDialog*, IShellItem*, FDE_OVERWRITE_RESPONSE*)
{
    return S_OK;
}

} // namespace Kestrel::Gui
