#include "windows/DialogOperator.h"

#include <cwchar>
#include <utility>

namespace TestSupport {

namespace {

constexpr DWORD patience = 20000; // milliseconds
constexpr DWORD period = 10;

constexpr int fileNameId = 1152;
constexpr int fileTypeId = 1136;

bool isOfClass(HWND window, const wchar_t* className)
{
    wchar_t name[64] = L"";
    GetClassNameW(window, name, 64);
    return std::wcscmp(name, className) == 0;
}

QString textOf(HWND window)
{
    // Asked of the window itself: GetWindowText() asks other threads' windows in another way.
    wchar_t text[512] = L"";
    SendMessageW(window, WM_GETTEXT, 512, reinterpret_cast<LPARAM>(text));
    return QString::fromWCharArray(text);
}

struct Search
{
    const wchar_t* className;
    int id;
    HWND found;
};

BOOL CALLBACK compareControl(HWND window, LPARAM parameter)
{
    auto* search = reinterpret_cast<Search*>(parameter);
    if (!isOfClass(window, search->className) || (search->id != 0 && GetDlgCtrlID(window) != search->id))
        return TRUE;
    search->found = window;
    return FALSE;
}

struct DialogSearch
{
    std::wstring title;
    HWND found;
};

bool isOwnDialog(HWND window)
{
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    return process == GetCurrentProcessId() && IsWindowVisible(window) && isOfClass(window, L"#32770");
}

BOOL CALLBACK cancelDialog(HWND window, LPARAM)
{
    if (isOwnDialog(window))
        PostMessageW(window, WM_COMMAND, IDCANCEL, 0);
    return TRUE;
}

BOOL CALLBACK compareDialog(HWND window, LPARAM parameter)
{
    auto* search = reinterpret_cast<DialogSearch*>(parameter);
    if (!isOwnDialog(window))
        return TRUE;
    wchar_t title[512] = L"";
    GetWindowTextW(window, title, 512);
    if (search->title != title)
        return TRUE;
    search->found = window;
    return FALSE;
}

} // namespace

DialogOperator::DialogOperator(QString title, std::function<void(DialogOperator&)> act)
    : m_title(std::move(title))
    , m_act(std::move(act))
    , m_thread([this] { run(); })
{
}

DialogOperator::~DialogOperator()
{
    finish();
}

void DialogOperator::finish()
{
    m_left = true;
    if (m_thread.joinable())
        m_thread.join();
}

void DialogOperator::run()
{
    DialogSearch search = {m_title.toStdWString(), nullptr};
    waitFor([&] {
        EnumWindows(&compareDialog, reinterpret_cast<LPARAM>(&search));
        return search.found != nullptr;
    });
    m_dialog = search.found;
    if (m_dialog) {
        m_act(*this);
        m_endedByItself = waitFor([this] { return !IsWindow(m_dialog); });
    }
    if (!m_endedByItself)
        cancelWhateverIsOpen();
}

// Also the messages that a dialog shows, and a dialog that has another title.
void DialogOperator::cancelWhateverIsOpen() const
{
    while (!m_left) {
        EnumWindows(&cancelDialog, 0);
        Sleep(period);
    }
}

bool DialogOperator::waitFor(const std::function<bool()>& condition) const
{
    const DWORD start = GetTickCount();
    while (!condition()) {
        if (m_left || GetTickCount() - start > patience)
            return condition();
        Sleep(period);
    }
    return true;
}

HWND DialogOperator::control(const wchar_t* className, int id) const
{
    Search search = {className, id, nullptr};
    EnumChildWindows(m_dialog, &compareControl, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

HWND DialogOperator::owner() const
{
    return GetWindow(m_dialog, GW_OWNER);
}

QString DialogOperator::title() const
{
    return textOf(m_dialog);
}

HWND DialogOperator::okButton() const
{
    return GetDlgItem(m_dialog, IDOK);
}

bool DialogOperator::isOkButtonHooked() const
{
    return GetWindowLongPtrW(okButton(), GWLP_WNDPROC) !=
           static_cast<LONG_PTR>(GetClassLongPtrW(okButton(), GCLP_WNDPROC));
}

QStringList DialogOperator::fileTypes() const
{
    const HWND box = control(L"ComboBox", fileTypeId);
    QStringList types;
    const auto count = static_cast<int>(SendMessageW(box, CB_GETCOUNT, 0, 0));
    for (int i = 0; i < count; ++i) {
        wchar_t text[512] = L"";
        SendMessageW(box, CB_GETLBTEXT, WPARAM(i), reinterpret_cast<LPARAM>(text));
        types += QString::fromWCharArray(text);
    }
    return types;
}

int DialogOperator::fileTypeIndex() const
{
    return static_cast<int>(SendMessageW(control(L"ComboBox", fileTypeId), CB_GETCURSEL, 0, 0));
}

void DialogOperator::chooseFileType(int index) const
{
    const HWND box = control(L"ComboBox", fileTypeId);
    SendMessageW(box, CB_SETCURSEL, WPARAM(index), 0);
    // A box tells its owner only of what a user does.
    SendMessageW(GetParent(box), WM_COMMAND, MAKEWPARAM(fileTypeId, CBN_SELCHANGE), reinterpret_cast<LPARAM>(box));
}

void DialogOperator::enterFileName(const QString& name) const
{
    const std::wstring wide = QString(name).toStdWString();
    SendMessageW(control(L"Edit", fileNameId), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(wide.c_str()));
}

// Posted: what follows may be another modal loop, which would not answer before its end.

void DialogOperator::accept() const
{
    PostMessageW(okButton(), BM_CLICK, 0, 0);
}

void DialogOperator::cancel() const
{
    PostMessageW(GetDlgItem(m_dialog, IDCANCEL), BM_CLICK, 0, 0);
}

} // namespace TestSupport
