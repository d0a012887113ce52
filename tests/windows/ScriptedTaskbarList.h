#pragma once

#include <QStringList>

#include <shobjidl.h>

namespace TestSupport {

/// Puts taskbar lists of the test in the place of the shell's, for as long as it lives.
class ScriptedTaskbar
{
public:
    ScriptedTaskbar();
    ~ScriptedTaskbar();
    ScriptedTaskbar(const ScriptedTaskbar&) = delete;
    ScriptedTaskbar& operator=(const ScriptedTaskbar&) = delete;

    /// What CoCreateInstance() answers, and HrInit().
    HRESULT createResult = S_OK;
    HRESULT initResult = S_OK;

    /// In order: "create", "init", "value <window> <completed>/<total>", "state <window> <flag>", "release"; anything
    /// else is "unexpected".
    QStringList calls;
    int living = 0;

    QStringList takeCalls();

private:
    DWORD m_registration = 0;
};

} // namespace TestSupport
