#pragma once

#include "windows/ScriptedItems.h"

#include <shlobj.h>
#include <shobjidl.h>

namespace TestSupport {

/// A dialog's folder view that has a selection and knows nothing else.
class ScriptedFolderView final : public ScriptedObject<IFolderView2>
{
public:
    ScriptedFolderView(CallRecorder& recorder, const ItemsScript& selection)
        : ScriptedObject(recorder, QStringLiteral("view"))
        , m_selection(selection)
    {
    }

    HRESULT STDMETHODCALLTYPE GetSelection(WINBOOL noneImpliesFolder, IShellItemArray** items) override
    {
        record(QStringLiteral("GetSelection(%1)").arg(noneImpliesFolder));
        return handOutItems(recorder(), m_selection, items);
    }

    HRESULT STDMETHODCALLTYPE GetCurrentViewMode(UINT*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetCurrentViewMode(UINT) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetFolder(REFIID, void**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Item(int, PITEMID_CHILD*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE ItemCount(UINT, int*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Items(UINT, REFIID, void**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetSelectionMarkedItem(int*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetFocusedItem(int*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetItemPosition(PCUITEMID_CHILD, POINT*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetSpacing(POINT*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetDefaultSpacing(POINT*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetAutoArrange() override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SelectItem(int, DWORD) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SelectAndPositionItems(UINT, PCUITEMID_CHILD_ARRAY, POINT*, DWORD) override
    {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE SetGroupBy(REFPROPERTYKEY, WINBOOL) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetGroupBy(PROPERTYKEY*, WINBOOL*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetViewProperty(PCUITEMID_CHILD, REFPROPERTYKEY, REFPROPVARIANT) override
    {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE GetViewProperty(PCUITEMID_CHILD, REFPROPERTYKEY, PROPVARIANT*) override
    {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE SetTileViewProperties(PCUITEMID_CHILD, LPCWSTR) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetExtendedTileViewProperties(PCUITEMID_CHILD, LPCWSTR) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetText(FVTEXTTYPE, LPCWSTR) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetCurrentFolderFlags(DWORD, DWORD) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetCurrentFolderFlags(DWORD*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetSortColumnCount(int*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetSortColumns(const SORTCOLUMN*, int) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetSortColumns(SORTCOLUMN*, int) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetItem(int, REFIID, void**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetVisibleItem(int, WINBOOL, int*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetSelectedItem(int, int*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetSelectionState(PCUITEMID_CHILD, DWORD*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE InvokeVerbOnSelection(LPCSTR) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetViewModeAndIconSize(FOLDERVIEWMODE, int) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetViewModeAndIconSize(FOLDERVIEWMODE*, int*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetGroupSubsetCount(UINT) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetGroupSubsetCount(UINT*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetRedraw(WINBOOL) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE IsMoveInSameFolder() override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE DoRename() override { return E_NOTIMPL; }

protected:
    void* interfaceFor(REFIID id) override
    {
        return id == IID_IUnknown || id == IID_IFolderView2 ? static_cast<IFolderView2*>(this) : nullptr;
    }

private:
    ItemsScript m_selection;
};

} // namespace TestSupport
