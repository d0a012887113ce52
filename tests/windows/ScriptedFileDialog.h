#pragma once

#include "windows/DialogScript.h"
#include "windows/ScriptedObject.h"

#include <oleidl.h>
#include <servprov.h>
#include <shobjidl.h>

namespace TestSupport {

/// The cookie that Advise() hands out.
constexpr DWORD adviseCookie = 4711;

/// The interfaces of the system's file-open dialog that are asked of the scripted one.
struct FileDialogInterfaces : public IFileOpenDialog, public IOleWindow, public IServiceProvider
{
    ULONG STDMETHODCALLTYPE AddRef() override = 0;
    ULONG STDMETHODCALLTYPE Release() override = 0;
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override = 0;
};

/// A file-open dialog that shows nothing: it records each call with its arguments and answers as its script says.
class ScriptedFileDialog final : public ScriptedObject<FileDialogInterfaces>
{
public:
    ScriptedFileDialog(CallRecorder& recorder, const DialogScript& script);

    /// Who was subscribed last; null before and after. Valid until it is taken off again.
    IFileDialogEvents* events() const { return m_events; }
    /// The script may be changed while the dialog is open.
    DialogScript& script() { return m_script; }
    IFileDialog* asDialog() { return this; }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override;

    // IModalWindow
    HRESULT STDMETHODCALLTYPE Show(HWND owner) override;

    // IFileDialog
    HRESULT STDMETHODCALLTYPE SetFileTypes(UINT count, const COMDLG_FILTERSPEC* types) override;
    HRESULT STDMETHODCALLTYPE SetFileTypeIndex(UINT index) override;
    HRESULT STDMETHODCALLTYPE GetFileTypeIndex(UINT* index) override;
    HRESULT STDMETHODCALLTYPE Advise(IFileDialogEvents* events, DWORD* cookie) override;
    HRESULT STDMETHODCALLTYPE Unadvise(DWORD cookie) override;
    HRESULT STDMETHODCALLTYPE SetOptions(FILEOPENDIALOGOPTIONS options) override;
    HRESULT STDMETHODCALLTYPE GetOptions(FILEOPENDIALOGOPTIONS* options) override;
    HRESULT STDMETHODCALLTYPE SetFolder(IShellItem* folder) override;
    HRESULT STDMETHODCALLTYPE SetTitle(LPCWSTR title) override;
    HRESULT STDMETHODCALLTYPE Close(HRESULT result) override;

    // IFileOpenDialog
    HRESULT STDMETHODCALLTYPE GetResults(IShellItemArray** items) override;

    // IOleWindow
    HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) override;

    // IServiceProvider
    HRESULT STDMETHODCALLTYPE QueryService(REFGUID service, REFIID id, void** object) override;

    // What nobody has to call is recorded and refused.
    HRESULT STDMETHODCALLTYPE SetDefaultFolder(IShellItem*) override { return unexpected("SetDefaultFolder"); }
    HRESULT STDMETHODCALLTYPE GetFolder(IShellItem**) override { return unexpected("GetFolder"); }
    HRESULT STDMETHODCALLTYPE GetCurrentSelection(IShellItem**) override { return unexpected("GetCurrentSelection"); }
    HRESULT STDMETHODCALLTYPE SetFileName(LPCWSTR) override { return unexpected("SetFileName"); }
    HRESULT STDMETHODCALLTYPE GetFileName(LPWSTR*) override { return unexpected("GetFileName"); }
    HRESULT STDMETHODCALLTYPE SetOkButtonLabel(LPCWSTR) override { return unexpected("SetOkButtonLabel"); }
    HRESULT STDMETHODCALLTYPE SetFileNameLabel(LPCWSTR) override { return unexpected("SetFileNameLabel"); }
    HRESULT STDMETHODCALLTYPE GetResult(IShellItem**) override { return unexpected("GetResult"); }
    HRESULT STDMETHODCALLTYPE AddPlace(IShellItem*, FDAP) override { return unexpected("AddPlace"); }
    HRESULT STDMETHODCALLTYPE SetDefaultExtension(LPCWSTR) override { return unexpected("SetDefaultExtension"); }
    HRESULT STDMETHODCALLTYPE SetClientGuid(REFGUID) override { return unexpected("SetClientGuid"); }
    HRESULT STDMETHODCALLTYPE ClearClientData() override { return unexpected("ClearClientData"); }
    HRESULT STDMETHODCALLTYPE SetFilter(IShellItemFilter*) override { return unexpected("SetFilter"); }
    HRESULT STDMETHODCALLTYPE GetSelectedItems(IShellItemArray**) override { return unexpected("GetSelectedItems"); }
    HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(WINBOOL) override { return unexpected("ContextSensitiveHelp"); }

protected:
    void* interfaceFor(REFIID id) override;

private:
    HRESULT unexpected(const char* call);

    DialogScript m_script;
    IFileDialogEvents* m_events = nullptr;
};

} // namespace TestSupport
