#include "windows/ScriptedFileDialog.h"

#include "windows/ScriptedFolderView.h"
#include "windows/ScriptedItems.h"

namespace TestSupport {

namespace {

// Spelled out: a wrong one in a header would not be noticed otherwise.
constexpr GUID folderViewService = {0xcde725b0, 0xccc9, 0x4519, {0x91, 0x7e, 0x32, 0x5d, 0x72, 0xfa, 0xb4, 0xce}};
constexpr GUID folderViewInterface = {0x1af3a467, 0x214f, 0x4298, {0x90, 0x8e, 0x06, 0xb0, 0x3e, 0x0b, 0x39, 0xf9}};
constexpr GUID oleWindowInterface = {0x00000114, 0x0000, 0x0000, {0xc0, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x46}};

QString pathOf(IShellItem* item)
{
    LPWSTR name = nullptr;
    if (!item || FAILED(item->GetDisplayName(SIGDN_FILESYSPATH, &name)))
        return QStringLiteral("?");
    const QString path = text(name);
    CoTaskMemFree(name);
    return path;
}

} // namespace

ScriptedFileDialog::ScriptedFileDialog(CallRecorder& recorder, const DialogScript& script)
    : ScriptedObject(recorder, QStringLiteral("dialog"))
    , m_script(script)
{
}

HRESULT ScriptedFileDialog::QueryInterface(REFIID id, void** object)
{
    if (id == oleWindowInterface) {
        record(QStringLiteral("QueryInterface(IOleWindow)"));
        if (FAILED(m_script.oleWindowResult)) {
            *object = nullptr;
            return m_script.oleWindowResult;
        }
    }
    return ScriptedObject::QueryInterface(id, object);
}

void* ScriptedFileDialog::interfaceFor(REFIID id)
{
    if (id == IID_IUnknown || id == IID_IModalWindow || id == IID_IFileDialog || id == IID_IFileOpenDialog)
        return static_cast<IFileOpenDialog*>(this);
    if (id == oleWindowInterface)
        return static_cast<IOleWindow*>(this);
    if (id == IID_IServiceProvider)
        return static_cast<IServiceProvider*>(this);
    return nullptr;
}

HRESULT ScriptedFileDialog::Show(HWND owner)
{
    record(QStringLiteral("Show(%1)").arg(hex(static_cast<quint32>(reinterpret_cast<quintptr>(owner)))));
    if (m_script.whileShown)
        m_script.whileShown(*this);
    return m_script.showResult;
}

HRESULT ScriptedFileDialog::SetFileTypes(UINT count, const COMDLG_FILTERSPEC* types)
{
    QStringList pairs;
    for (UINT i = 0; i < count; ++i)
        pairs += text(types[i].pszName) + u'|' + text(types[i].pszSpec);
    record(QStringLiteral("SetFileTypes(") + pairs.join(QStringLiteral(", ")) + u')');
    return m_script.setFileTypesResult;
}

HRESULT ScriptedFileDialog::SetFileTypeIndex(UINT index)
{
    record(QStringLiteral("SetFileTypeIndex(%1)").arg(index));
    return m_script.setFileTypeIndexResult;
}

HRESULT ScriptedFileDialog::GetFileTypeIndex(UINT* index)
{
    record(QStringLiteral("GetFileTypeIndex"));
    // Also where the call fails: its answer then counts for nothing.
    *index = m_script.fileTypeIndex;
    return m_script.getFileTypeIndexResult;
}

HRESULT ScriptedFileDialog::Advise(IFileDialogEvents* events, DWORD* cookie)
{
    record(QStringLiteral("Advise"));
    if (FAILED(m_script.adviseResult))
        return m_script.adviseResult;
    m_events = events;
    m_events->AddRef();
    *cookie = adviseCookie;
    return m_script.adviseResult;
}

HRESULT ScriptedFileDialog::Unadvise(DWORD cookie)
{
    record(QStringLiteral("Unadvise(%1)").arg(cookie));
    if (!m_events)
        return E_INVALIDARG;
    m_events->Release();
    m_events = nullptr;
    return S_OK;
}

HRESULT ScriptedFileDialog::SetOptions(FILEOPENDIALOGOPTIONS options)
{
    record(QStringLiteral("SetOptions(%1)").arg(hex(options)));
    return m_script.setOptionsResult;
}

HRESULT ScriptedFileDialog::GetOptions(FILEOPENDIALOGOPTIONS* options)
{
    record(QStringLiteral("GetOptions"));
    *options = m_script.options;
    return m_script.getOptionsResult;
}

HRESULT ScriptedFileDialog::SetFolder(IShellItem* folder)
{
    record(QStringLiteral("SetFolder(%1)").arg(pathOf(folder)));
    if (m_script.onSetFolder)
        m_script.onSetFolder(folder);
    return m_script.setFolderResult;
}

HRESULT ScriptedFileDialog::SetTitle(LPCWSTR title)
{
    record(QStringLiteral("SetTitle(%1)").arg(text(title)));
    return m_script.setTitleResult;
}

HRESULT ScriptedFileDialog::Close(HRESULT result)
{
    record(QStringLiteral("Close(%1)").arg(hex(static_cast<quint32>(result))));
    if (m_script.onClose)
        m_script.onClose();
    return S_OK;
}

HRESULT ScriptedFileDialog::GetResults(IShellItemArray** items)
{
    record(QStringLiteral("GetResults"));
    return handOutItems(recorder(), m_script.results, items);
}

HRESULT ScriptedFileDialog::GetWindow(HWND* window)
{
    record(QStringLiteral("GetWindow"));
    *window = SUCCEEDED(m_script.getWindowResult) ? m_script.window : nullptr;
    return m_script.getWindowResult;
}

HRESULT ScriptedFileDialog::QueryService(REFGUID service, REFIID id, void** object)
{
    const bool known = service == folderViewService && id == folderViewInterface;
    record(known ? QStringLiteral("QueryService(folder view)") : QStringLiteral("QueryService(something else)"));
    *object = nullptr;
    if (!known)
        return E_NOINTERFACE;
    if (SUCCEEDED(m_script.folderViewResult))
        *object = static_cast<IFolderView2*>(new ScriptedFolderView(recorder(), m_script.selection));
    return m_script.folderViewResult;
}

HRESULT ScriptedFileDialog::unexpected(const char* call)
{
    record(QStringLiteral("unexpected ") + QLatin1String(call));
    return E_NOTIMPL;
}

} // namespace TestSupport
