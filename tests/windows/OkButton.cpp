#include "windows/OkButton.h"

namespace TestSupport {

namespace {

// Window procedures know nothing but their window; there is one button at a time.
CallRecorder* currentRecorder = nullptr;

void recordMessage(const char* receiver, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (currentRecorder) {
        currentRecorder->add(QStringLiteral("%1(%2, %3, %4)")
                                 .arg(QLatin1String(receiver), hex(message))
                                 .arg(static_cast<qulonglong>(wParam))
                                 .arg(static_cast<qlonglong>(lParam)));
    }
}

LRESULT CALLBACK handleOwn(HWND, UINT message, WPARAM wParam, LPARAM lParam)
{
    recordMessage("button", message, wParam, lParam);
    return OkButton::ownAnswer;
}

LRESULT CALLBACK handleSecond(HWND, UINT message, WPARAM wParam, LPARAM lParam)
{
    recordMessage("second", message, wParam, lParam);
    return OkButton::secondAnswer;
}

} // namespace

OkButton::OkButton(CallRecorder& recorder)
    : m_window(CreateWindowExW(0, L"STATIC", L"dialog", WS_OVERLAPPEDWINDOW, 0, 0, 200, 100, nullptr, nullptr,
                               GetModuleHandleW(nullptr), nullptr))
    , m_button(CreateWindowExW(0, L"BUTTON", L"OK", WS_CHILD, 0, 0, 80, 30, m_window,
                               reinterpret_cast<HMENU>(quintptr(IDOK)), GetModuleHandleW(nullptr), nullptr))
{
    setProcedure(ownProcedure());
    currentRecorder = &recorder;
}

OkButton::~OkButton()
{
    currentRecorder = nullptr;
    DestroyWindow(m_window);
}

LRESULT OkButton::send(UINT message, WPARAM wParam, LPARAM lParam) const
{
    return SendMessageW(m_button, message, wParam, lParam);
}

LONG_PTR OkButton::procedure() const
{
    return GetWindowLongPtrW(m_button, GWLP_WNDPROC);
}

LONG_PTR OkButton::ownProcedure()
{
    return reinterpret_cast<LONG_PTR>(&handleOwn);
}

LONG_PTR OkButton::secondProcedure()
{
    return reinterpret_cast<LONG_PTR>(&handleSecond);
}

void OkButton::setProcedure(LONG_PTR procedure)
{
    SetWindowLongPtrW(m_button, GWLP_WNDPROC, procedure);
}

} // namespace TestSupport
