#include "windows/ScriptedTaskbarList.h"

#include <utility>

namespace TestSupport {

namespace {

QString number(HWND window)
{
    return QString::number(reinterpret_cast<quintptr>(window), 16);
}

QString nameOf(TBPFLAG flag)
{
    switch (flag) {
    case TBPF_NOPROGRESS:
        return QStringLiteral("none");
    case TBPF_INDETERMINATE:
        return QStringLiteral("busy");
    case TBPF_NORMAL:
        return QStringLiteral("normal");
    case TBPF_ERROR:
        return QStringLiteral("error");
    case TBPF_PAUSED:
        return QStringLiteral("paused");
    }
    return QStringLiteral("unknown");
}

class ScriptedTaskbarList final : public ITaskbarList3
{
public:
    explicit ScriptedTaskbarList(ScriptedTaskbar& taskbar)
        : m_taskbar(taskbar)
    {
        ++m_taskbar.living;
    }

    ULONG STDMETHODCALLTYPE AddRef() override { return ++m_references; }
    ULONG STDMETHODCALLTYPE Release() override
    {
        const ULONG left = --m_references;
        if (left == 0) {
            --m_taskbar.living;
            m_taskbar.calls << QStringLiteral("release");
            delete this;
        }
        return left;
    }
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override
    {
        const bool known = id == IID_IUnknown || id == __uuidof(ITaskbarList) || id == __uuidof(ITaskbarList2) ||
                           id == __uuidof(ITaskbarList3);
        *object = known ? static_cast<ITaskbarList3*>(this) : nullptr;
        if (!known)
            return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }

    HRESULT STDMETHODCALLTYPE HrInit() override
    {
        m_taskbar.calls << QStringLiteral("init");
        return m_taskbar.initResult;
    }
    HRESULT STDMETHODCALLTYPE SetProgressValue(HWND window, ULONGLONG completed, ULONGLONG total) override
    {
        m_taskbar.calls << QStringLiteral("value %1 %2/%3").arg(number(window)).arg(completed).arg(total);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE SetProgressState(HWND window, TBPFLAG flag) override
    {
        m_taskbar.calls << QStringLiteral("state %1 %2").arg(number(window), nameOf(flag));
        return S_OK;
    }

    HRESULT STDMETHODCALLTYPE AddTab(HWND) override { return unexpected(); }
    HRESULT STDMETHODCALLTYPE DeleteTab(HWND) override { return unexpected(); }
    HRESULT STDMETHODCALLTYPE ActivateTab(HWND) override { return unexpected(); }
    HRESULT STDMETHODCALLTYPE SetActiveAlt(HWND) override { return unexpected(); }
    HRESULT STDMETHODCALLTYPE MarkFullscreenWindow(HWND, WINBOOL) override { return unexpected(); }
    HRESULT STDMETHODCALLTYPE RegisterTab(HWND, HWND) override { return unexpected(); }
    HRESULT STDMETHODCALLTYPE UnregisterTab(HWND) override { return unexpected(); }
    HRESULT STDMETHODCALLTYPE SetTabOrder(HWND, HWND) override { return unexpected(); }
    HRESULT STDMETHODCALLTYPE SetTabActive(HWND, HWND, DWORD) override { return unexpected(); }
    HRESULT STDMETHODCALLTYPE ThumbBarAddButtons(HWND, UINT, LPTHUMBBUTTON) override { return unexpected(); }
    HRESULT STDMETHODCALLTYPE ThumbBarUpdateButtons(HWND, UINT, LPTHUMBBUTTON) override { return unexpected(); }
    HRESULT STDMETHODCALLTYPE ThumbBarSetImageList(HWND, HIMAGELIST) override { return unexpected(); }
    HRESULT STDMETHODCALLTYPE SetOverlayIcon(HWND, HICON, LPCWSTR) override { return unexpected(); }
    HRESULT STDMETHODCALLTYPE SetThumbnailTooltip(HWND, LPCWSTR) override { return unexpected(); }
    HRESULT STDMETHODCALLTYPE SetThumbnailClip(HWND, RECT*) override { return unexpected(); }

private:
    ~ScriptedTaskbarList() = default;

    HRESULT unexpected()
    {
        m_taskbar.calls << QStringLiteral("unexpected");
        return E_NOTIMPL;
    }

    ScriptedTaskbar& m_taskbar;
    ULONG m_references = 1;
};

class TaskbarListFactory final : public IClassFactory
{
public:
    explicit TaskbarListFactory(ScriptedTaskbar& taskbar)
        : m_taskbar(taskbar)
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
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* /*outer*/, REFIID id, void** object) override
    {
        m_taskbar.calls << QStringLiteral("create");
        *object = nullptr;
        if (FAILED(m_taskbar.createResult))
            return m_taskbar.createResult;
        auto* list = new ScriptedTaskbarList(m_taskbar);
        const HRESULT result = list->QueryInterface(id, object);
        list->Release();
        return result;
    }
    HRESULT STDMETHODCALLTYPE LockServer(WINBOOL /*lock*/) override { return S_OK; }

private:
    ~TaskbarListFactory() = default;

    ScriptedTaskbar& m_taskbar;
    ULONG m_references = 1;
};

} // namespace

ScriptedTaskbar::ScriptedTaskbar()
{
    auto* factory = new TaskbarListFactory(*this);
    const HRESULT result =
        CoRegisterClassObject(CLSID_TaskbarList, factory, CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE, &m_registration);
    Q_ASSERT(SUCCEEDED(result));
    Q_UNUSED(result)
    factory->Release();
}

ScriptedTaskbar::~ScriptedTaskbar()
{
    CoRevokeClassObject(m_registration);
}

QStringList ScriptedTaskbar::takeCalls()
{
    return std::exchange(calls, {});
}

} // namespace TestSupport
