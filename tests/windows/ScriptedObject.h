#pragma once

#include "windows/CallRecorder.h"

#include <unknwn.h>
#include <windows.h>

#include <utility>

namespace TestSupport {

/// A reference-counted object of the test that implements @p Interface. It begins with one reference; its recorder
/// reads "release <name>" when the last one goes.
template <typename Interface>
class ScriptedObject : public Interface
{
public:
    ScriptedObject(CallRecorder& recorder, QString name)
        : m_recorder(recorder)
        , m_name(std::move(name))
    {
        ++m_recorder.living;
    }
    ScriptedObject(const ScriptedObject&) = delete;
    ScriptedObject& operator=(const ScriptedObject&) = delete;

    ULONG STDMETHODCALLTYPE AddRef() override { return ++m_references; }

    ULONG STDMETHODCALLTYPE Release() override
    {
        const ULONG left = --m_references;
        if (left == 0) {
            --m_recorder.living;
            m_recorder.add(QStringLiteral("release ") + m_name);
            delete this;
        }
        return left;
    }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override
    {
        *object = interfaceFor(id);
        if (!*object)
            return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }

protected:
    virtual ~ScriptedObject() = default;

    /// The pointer to hand out for @p id, null for what the object does not do.
    virtual void* interfaceFor(REFIID id) = 0;

    void record(const QString& call) { m_recorder.add(call); }
    CallRecorder& recorder() { return m_recorder; }

private:
    CallRecorder& m_recorder;
    QString m_name;
    ULONG m_references = 1;
};

} // namespace TestSupport
