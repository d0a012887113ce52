#pragma once

#include <QMetaType>
#include <QString>
#include <QStringList>
#include <QVector>

#include <shobjidl.h>
#include <windows.h>

#include <functional>

namespace TestSupport {

class ScriptedFileDialog;

/// One item of a list, and how the calls that ask for it end.
struct ItemScript
{
    QString path;
    HRESULT itemResult = S_OK;
    HRESULT nameResult = S_OK;
};

struct ItemsScript
{
    HRESULT result = S_OK; ///< of the call that hands out the list
    HRESULT countResult = S_OK;
    QVector<ItemScript> items;
};

/// How the scripted dialog answers. Everything succeeds unless told otherwise.
struct DialogScript
{
    HRESULT createResult = S_OK;
    bool createsNull = false;

    DWORD options = 0;
    HRESULT getOptionsResult = S_OK;
    HRESULT setOptionsResult = S_OK;
    HRESULT setTitleResult = S_OK;
    HRESULT setFolderResult = S_OK;
    /// Gets the folder, which a real dialog would keep.
    std::function<void(IShellItem*)> onSetFolder;
    HRESULT setFileTypesResult = S_OK;
    HRESULT setFileTypeIndexResult = S_OK;
    HRESULT getFileTypeIndexResult = S_OK;
    UINT fileTypeIndex = 1;
    HRESULT adviseResult = S_OK;

    /// What happens while the dialog is open, for example calls of its events.
    std::function<void(ScriptedFileDialog&)> whileShown;
    HRESULT showResult = S_OK;
    /// What Close() does after it was recorded.
    std::function<void()> onClose;

    ItemsScript results;

    HRESULT oleWindowResult = S_OK; ///< of the query for IOleWindow
    HRESULT getWindowResult = S_OK;
    HWND window = nullptr;

    HRESULT folderViewResult = S_OK; ///< of the query for the folder view
    ItemsScript selection;
};

/// Selected or chosen items that all are there.
inline QVector<ItemScript> itemsOf(const QStringList& paths)
{
    QVector<ItemScript> items;
    for (const QString& path : paths)
        items.append(ItemScript{path});
    return items;
}

} // namespace TestSupport

Q_DECLARE_METATYPE(TestSupport::ItemScript)
