#pragma once

#include "windows/CallRecorder.h"

#include <windows.h>

namespace TestSupport {

/// A window with an OK button (control 1) whose own handling records each message and answers ownAnswer.
///
/// The recorder reads "button(<message>, <wParam>, <lParam>)" or, after the handling was changed, "second(...)".
class OkButton
{
public:
    static constexpr LRESULT ownAnswer = 815;
    static constexpr LRESULT secondAnswer = 816;

    explicit OkButton(CallRecorder& recorder);
    ~OkButton();

    OkButton(const OkButton&) = delete;
    OkButton& operator=(const OkButton&) = delete;

    HWND window() const { return m_window; }
    HWND button() const { return m_button; }

    LRESULT send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;

    /// What handles the button's messages now.
    LONG_PTR procedure() const;
    static LONG_PTR ownProcedure();
    static LONG_PTR secondProcedure();
    void setProcedure(LONG_PTR procedure);

private:
    HWND m_window;
    HWND m_button;
};

} // namespace TestSupport
