#include "windows/ScriptedDialogClass.h"

#include "windows/ScriptedFileDialog.h"

#include <combaseapi.h>

namespace TestSupport {

namespace {

constexpr CLSID fileOpenDialogClass = {0xdc1c5a9c, 0xe88a, 0x4dde, {0xa5, 0xa1, 0x60, 0xf8, 0x2a, 0x20, 0xae, 0xf7}};
constexpr IID fileOpenDialogInterface = {0xd57c7288, 0xd4ad, 0x4768, {0xbe, 0x02, 0x9d, 0x96, 0x95, 0x32, 0xd9, 0x60}};

/// Makes the dialogs. Not counted as one of the test's objects: the system keeps it.
class DialogFactory final : public IClassFactory
{
public:
    DialogFactory(CallRecorder& recorder, const DialogScript& script)
        : m_recorder(recorder)
        , m_script(script)
    {
    }

    ULONG STDMETHODCALLTYPE AddRef() override { return ++m_references; }

    ULONG STDMETHODCALLTYPE Release() override
    {
        const ULONG left = --m_references;
        if (left == 0)
            delete this;
        return left;
    }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override
    {
        *object = id == IID_IUnknown || id == IID_IClassFactory ? static_cast<IClassFactory*>(this) : nullptr;
        if (!*object)
            return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }

    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID id, void** object) override
    {
        const bool asExpected = !outer && id == fileOpenDialogInterface;
        m_recorder.add(asExpected ? QStringLiteral("CoCreateInstance") : QStringLiteral("unexpected CoCreateInstance"));
        *object = nullptr;
        if (FAILED(m_script.createResult) || m_script.createsNull)
            return m_script.createResult;
        auto* dialog = new ScriptedFileDialog(m_recorder, m_script);
        const HRESULT result = dialog->QueryInterface(id, object);
        dialog->Release();
        return result;
    }

    HRESULT STDMETHODCALLTYPE LockServer(WINBOOL) override { return S_OK; }

private:
    virtual ~DialogFactory() = default;

    CallRecorder& m_recorder;
    const DialogScript& m_script;
    ULONG m_references = 1;
};

} // namespace

ScriptedDialogClass::ScriptedDialogClass(CallRecorder& recorder, const DialogScript& script)
{
    auto* factory = new DialogFactory(recorder, script);
    m_registered = SUCCEEDED(
        CoRegisterClassObject(fileOpenDialogClass, factory, CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE, &m_cookie));
    factory->Release();
}

ScriptedDialogClass::~ScriptedDialogClass()
{
    if (m_registered)
        CoRevokeClassObject(m_cookie);
}

} // namespace TestSupport
