#pragma once

#include <QStringList>

#include <shobjidl.h>
#include <windows.h>

namespace Kestrel::Gui {

/// What is heard of one file dialog that files and folders are chosen in together. It keeps the selection of the
/// dialog's folder view, and the hook of its OK button until the object ends.
///
/// It lives on the stack for as long as the dialog is shown; references to it are not counted.
class FileDialogEvents final : public IFileDialogEvents
{
public:
    FileDialogEvents() = default;
    ~FileDialogEvents();

    FileDialogEvents(const FileDialogEvents&) = delete;
    FileDialogEvents& operator=(const FileDialogEvents&) = delete;

    /// The paths of what is selected in the folder view, with forward slashes.
    const QStringList& selectedPaths() const { return m_selectedPaths; }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override;
    ULONG STDMETHODCALLTYPE AddRef() override;
    ULONG STDMETHODCALLTYPE Release() override;

    HRESULT STDMETHODCALLTYPE OnFileOk(IFileDialog* dialog) override;
    HRESULT STDMETHODCALLTYPE OnFolderChanging(IFileDialog* dialog, IShellItem* folder) override;
    HRESULT STDMETHODCALLTYPE OnFolderChange(IFileDialog* dialog) override;
    HRESULT STDMETHODCALLTYPE OnSelectionChange(IFileDialog* dialog) override;
    HRESULT STDMETHODCALLTYPE OnShareViolation(IFileDialog* dialog, IShellItem* item,
                                               FDE_SHAREVIOLATION_RESPONSE* response) override;
    HRESULT STDMETHODCALLTYPE OnTypeChange(IFileDialog* dialog) override;
    HRESULT STDMETHODCALLTYPE OnOverwrite(IFileDialog* dialog, IShellItem* item,
                                          FDE_OVERWRITE_RESPONSE* response) override;

private:
    HWND m_okButton = nullptr;
    QStringList m_selectedPaths;
};

} // namespace Kestrel::Gui
