#include <KQt/Ui/Platforms/win/OkButtonHook.h>

#include <mutex>
#include <unordered_map>

namespace Kestrel::Gui::OkButtonHook {

namespace {

struct Record
{
    IFileDialog* dialog = nullptr;
    WNDPROC previousProcedure = nullptr;
    bool selected = false;
};

/// What every access locks, for no longer than it looks up and updates.
struct Table
{
    std::mutex mutex;
    std::unordered_map<HWND, Record> records;
};

Table& table()
{
    static Table instance;
    return instance;
}

Record recordOf(HWND button)
{
    Table& hooks = table();
    const std::lock_guard lock(hooks.mutex);
    const auto found = hooks.records.find(button);
    return found == hooks.records.end() ? Record() : found->second;
}

WNDPROC procedureOf(HWND button)
{
    return reinterpret_cast<WNDPROC>(GetWindowLongPtrW(button, GWLP_WNDPROC));
}

/// Returns the one that was set before.
WNDPROC setProcedure(HWND button, WNDPROC procedure)
{
    return reinterpret_cast<WNDPROC>(SetWindowLongPtrW(button, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure)));
}

/// Whether the message is what makes the button act.
bool isPress(UINT message, WPARAM wParam)
{
    if (message == WM_KEYUP || message == WM_SYSKEYUP)
        return wParam == VK_RETURN || wParam == VK_SPACE;
    return message == WM_LBUTTONUP;
}

LRESULT CALLBACK hookProcedure(HWND button, UINT message, WPARAM wParam, LPARAM lParam)
{
    const Record record = recordOf(button);
    if (record.selected && isPress(message, wParam))
        record.dialog->Close(S_OK);
    return CallWindowProcW(record.previousProcedure, button, message, wParam, lParam);
}

} // namespace

void install(HWND button, IFileDialog* dialog)
{
    Table& hooks = table();
    const std::lock_guard lock(hooks.mutex);
    const WNDPROC previous = setProcedure(button, &hookProcedure);
    hooks.records.insert_or_assign(button, Record{dialog, previous, false});
}

void renew(HWND button)
{
    Table& hooks = table();
    const std::lock_guard lock(hooks.mutex);
    const auto found = hooks.records.find(button);
    if (found != hooks.records.end() && procedureOf(button) != &hookProcedure)
        found->second.previousProcedure = setProcedure(button, &hookProcedure);
}

void setSelected(HWND button, bool selected)
{
    Table& hooks = table();
    const std::lock_guard lock(hooks.mutex);
    const auto found = hooks.records.find(button);
    if (found != hooks.records.end())
        found->second.selected = selected;
}

void remove(HWND button)
{
    Table& hooks = table();
    const std::lock_guard lock(hooks.mutex);
    const auto found = hooks.records.find(button);
    if (found != hooks.records.end())
        setProcedure(button, found->second.previousProcedure);
}

} // namespace Kestrel::Gui::OkButtonHook
