#pragma once

#include "windows/CallRecorder.h"
#include "windows/DialogScript.h"

#include <windows.h>

namespace TestSupport {

/// While it exists, whoever creates the system's file-open dialog in this process gets a ScriptedFileDialog with
/// @p script, which is read when the dialog is created.
class ScriptedDialogClass
{
public:
    ScriptedDialogClass(CallRecorder& recorder, const DialogScript& script);
    ~ScriptedDialogClass();

    ScriptedDialogClass(const ScriptedDialogClass&) = delete;
    ScriptedDialogClass& operator=(const ScriptedDialogClass&) = delete;

    bool isRegistered() const { return m_registered; }

private:
    DWORD m_cookie = 0;
    bool m_registered = false;
};

} // namespace TestSupport
