#include "windows/MallocSpy.h"

#include <QSet>

#include <combaseapi.h>
#include <objidl.h>

namespace TestSupport {

class MallocSpy::Spy final : public IMallocSpy
{
public:
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
        *object = id == IID_IUnknown || id == IID_IMallocSpy ? static_cast<IMallocSpy*>(this) : nullptr;
        if (!*object)
            return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }

    SIZE_T STDMETHODCALLTYPE PreAlloc(SIZE_T size) override { return size; }

    void* STDMETHODCALLTYPE PostAlloc(void* block) override
    {
        if (isWatched() && block) {
            m_living.insert(block);
            ++m_taken;
        }
        return block;
    }

    void* STDMETHODCALLTYPE PreFree(void* block, WINBOOL) override
    {
        if (isWatched())
            m_living.remove(block);
        return block;
    }

    void STDMETHODCALLTYPE PostFree(WINBOOL) override {}

    SIZE_T STDMETHODCALLTYPE PreRealloc(void* block, SIZE_T size, void** newRequest, WINBOOL) override
    {
        if (isWatched())
            m_living.remove(block);
        *newRequest = block;
        return size;
    }

    void* STDMETHODCALLTYPE PostRealloc(void* block, WINBOOL) override
    {
        if (isWatched() && block)
            m_living.insert(block);
        return block;
    }

    void* STDMETHODCALLTYPE PreGetSize(void* block, WINBOOL) override { return block; }
    SIZE_T STDMETHODCALLTYPE PostGetSize(SIZE_T size, WINBOOL) override { return size; }
    void* STDMETHODCALLTYPE PreDidAlloc(void* block, WINBOOL) override { return block; }
    int STDMETHODCALLTYPE PostDidAlloc(void*, WINBOOL, int answer) override { return answer; }
    void STDMETHODCALLTYPE PreHeapMinimize() override {}
    void STDMETHODCALLTYPE PostHeapMinimize() override {}

    int taken() const { return m_taken; }
    int living() const { return m_living.size(); }

private:
    virtual ~Spy() = default;

    bool isWatched() const { return GetCurrentThreadId() == m_thread; }

    DWORD m_thread = GetCurrentThreadId();
    ULONG m_references = 1;
    QSet<void*> m_living;
    int m_taken = 0;
};

MallocSpy::MallocSpy()
    : m_spy(new Spy)
{
    CoRegisterMallocSpy(m_spy);
}

MallocSpy::~MallocSpy()
{
    CoRevokeMallocSpy();
    m_spy->Release();
}

int MallocSpy::taken() const
{
    return m_spy->taken();
}

int MallocSpy::living() const
{
    return m_spy->living();
}

} // namespace TestSupport
