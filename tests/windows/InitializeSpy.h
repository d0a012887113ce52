#pragma once

#include "windows/CallRecorder.h"

#include <QVector>

#include <objbase.h>
#include <windows.h>

namespace TestSupport {

/// While it exists, the recorder reads "CoInitializeEx(<flags>)" and "CoUninitialize" where this thread calls them; the
/// first call can be made to fail.
class InitializeSpy
{
public:
    explicit InitializeSpy(CallRecorder& recorder);
    ~InitializeSpy();

    InitializeSpy(const InitializeSpy&) = delete;
    InitializeSpy& operator=(const InitializeSpy&) = delete;

    /// Makes the next CoInitializeEx() answer @p result. Its real success is taken back.
    void answerNextWith(HRESULT result);
    /// How the calls so far ended, as their callers saw it.
    QVector<HRESULT> results() const;
    /// Initialisations without their counterpart, among those that succeeded in their callers' eyes.
    int unpaired() const;

private:
    class Spy;
    Spy* m_spy;
    ULARGE_INTEGER m_cookie = {};
};

} // namespace TestSupport
