#include "windows/ScriptedItems.h"

#include <combaseapi.h>

#include <cwchar>

namespace TestSupport {

namespace {

LPWSTR allocatedCopy(const QString& string)
{
    const std::wstring wide = string.toStdWString();
    const std::size_t bytes = (wide.size() + 1) * sizeof(wchar_t);
    auto* copy = static_cast<LPWSTR>(CoTaskMemAlloc(bytes));
    std::wmemcpy(copy, wide.c_str(), wide.size() + 1);
    return copy;
}

} // namespace

ScriptedItem::ScriptedItem(CallRecorder& recorder, const ItemScript& script)
    : ScriptedObject(recorder, QStringLiteral("item ") + script.path)
    , m_script(script)
{
}

HRESULT ScriptedItem::GetDisplayName(SIGDN form, LPWSTR* name)
{
    record(QStringLiteral("GetDisplayName(%1)").arg(hex(static_cast<quint32>(form))));
    *name = FAILED(m_script.nameResult) ? nullptr : allocatedCopy(m_script.path);
    return m_script.nameResult;
}

void* ScriptedItem::interfaceFor(REFIID id)
{
    return id == IID_IUnknown || id == IID_IShellItem ? static_cast<IShellItem*>(this) : nullptr;
}

ScriptedItemArray::ScriptedItemArray(CallRecorder& recorder, const ItemsScript& script)
    : ScriptedObject(recorder, QStringLiteral("items"))
    , m_script(script)
{
}

HRESULT ScriptedItemArray::GetCount(DWORD* count)
{
    record(QStringLiteral("GetCount"));
    // A failed call leaves what it was handed: nobody may rely on it.
    if (SUCCEEDED(m_script.countResult))
        *count = static_cast<DWORD>(m_script.items.size());
    return m_script.countResult;
}

HRESULT ScriptedItemArray::GetItemAt(DWORD index, IShellItem** item)
{
    record(QStringLiteral("GetItemAt(%1)").arg(index));
    *item = nullptr;
    if (index >= static_cast<DWORD>(m_script.items.size()))
        return E_FAIL;
    const ItemScript& script = m_script.items[static_cast<int>(index)];
    if (SUCCEEDED(script.itemResult))
        *item = new ScriptedItem(recorder(), script);
    return script.itemResult;
}

void* ScriptedItemArray::interfaceFor(REFIID id)
{
    return id == IID_IUnknown || id == IID_IShellItemArray ? static_cast<IShellItemArray*>(this) : nullptr;
}

HRESULT handOutItems(CallRecorder& recorder, const ItemsScript& script, IShellItemArray** array)
{
    *array = SUCCEEDED(script.result) ? new ScriptedItemArray(recorder, script) : nullptr;
    return script.result;
}

} // namespace TestSupport
