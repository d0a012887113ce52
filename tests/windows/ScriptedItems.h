#pragma once

#include "windows/DialogScript.h"
#include "windows/ScriptedObject.h"

#include <shobjidl.h>

namespace TestSupport {

/// An item that knows its path in the file system.
class ScriptedItem final : public ScriptedObject<IShellItem>
{
public:
    ScriptedItem(CallRecorder& recorder, const ItemScript& script);

    HRESULT STDMETHODCALLTYPE BindToHandler(IBindCtx*, REFGUID, REFIID, void**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetParent(IShellItem**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetDisplayName(SIGDN form, LPWSTR* name) override;
    HRESULT STDMETHODCALLTYPE GetAttributes(SFGAOF, SFGAOF*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Compare(IShellItem*, SICHINTF, int*) override { return E_NOTIMPL; }

protected:
    void* interfaceFor(REFIID id) override;

private:
    ItemScript m_script;
};

/// A list of items.
class ScriptedItemArray final : public ScriptedObject<IShellItemArray>
{
public:
    ScriptedItemArray(CallRecorder& recorder, const ItemsScript& script);

    HRESULT STDMETHODCALLTYPE BindToHandler(IBindCtx*, REFGUID, REFIID, void**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetPropertyStore(GETPROPERTYSTOREFLAGS, REFIID, void**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetPropertyDescriptionList(REFPROPERTYKEY, REFIID, void**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetAttributes(SIATTRIBFLAGS, SFGAOF, SFGAOF*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetCount(DWORD* count) override;
    HRESULT STDMETHODCALLTYPE GetItemAt(DWORD index, IShellItem** item) override;
    HRESULT STDMETHODCALLTYPE EnumItems(IEnumShellItems**) override { return E_NOTIMPL; }

protected:
    void* interfaceFor(REFIID id) override;

private:
    ItemsScript m_script;
};

/// Hands out the list of @p script where it says so; @p array is null otherwise.
HRESULT handOutItems(CallRecorder& recorder, const ItemsScript& script, IShellItemArray** array);

} // namespace TestSupport
