#include "windows/InitializeSpy.h"

#include <QVector>

#include <combaseapi.h>
#include <objidl.h>

namespace TestSupport {

class InitializeSpy::Spy final : public IInitializeSpy
{
public:
    explicit Spy(CallRecorder& recorder)
        : m_recorder(recorder)
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
        *object = id == IID_IUnknown || id == IID_IInitializeSpy ? static_cast<IInitializeSpy*>(this) : nullptr;
        if (!*object)
            return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }

    HRESULT STDMETHODCALLTYPE PreInitialize(DWORD flags, DWORD) override
    {
        m_recorder.add(QStringLiteral("CoInitializeEx(%1)").arg(flags));
        return S_OK;
    }

    HRESULT STDMETHODCALLTYPE PostInitialize(HRESULT result, DWORD, DWORD) override
    {
        const HRESULT seen = m_answersNext ? m_answer : result;
        if (m_answersNext && SUCCEEDED(result) && FAILED(seen))
            ++m_toTakeBack;
        m_answersNext = false;
        if (SUCCEEDED(seen))
            ++m_unpaired;
        m_results += seen;
        return seen;
    }

    HRESULT STDMETHODCALLTYPE PreUninitialize(DWORD) override
    {
        m_recorder.add(QStringLiteral("CoUninitialize"));
        --m_unpaired;
        return S_OK;
    }

    HRESULT STDMETHODCALLTYPE PostUninitialize(DWORD) override { return S_OK; }

    void answerNextWith(HRESULT result)
    {
        m_answersNext = true;
        m_answer = result;
    }
    QVector<HRESULT> results() const { return m_results; }
    int unpaired() const { return m_unpaired; }
    int toTakeBack() const { return m_toTakeBack; }

private:
    virtual ~Spy() = default;

    CallRecorder& m_recorder;
    ULONG m_references = 1;
    QVector<HRESULT> m_results;
    bool m_answersNext = false;
    HRESULT m_answer = S_OK;
    int m_unpaired = 0;
    int m_toTakeBack = 0;
};

InitializeSpy::InitializeSpy(CallRecorder& recorder)
    : m_spy(new Spy(recorder))
{
    CoRegisterInitializeSpy(m_spy, &m_cookie);
}

InitializeSpy::~InitializeSpy()
{
    CoRevokeInitializeSpy(m_cookie);
    for (int i = m_spy->toTakeBack(); i > 0; --i)
        CoUninitialize();
    m_spy->Release();
}

void InitializeSpy::answerNextWith(HRESULT result)
{
    m_spy->answerNextWith(result);
}

QVector<HRESULT> InitializeSpy::results() const
{
    return m_spy->results();
}

int InitializeSpy::unpaired() const
{
    return m_spy->unpaired();
}

} // namespace TestSupport
