// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/shell/WidgetFileDialog_p.h"

#include "ui/qt/dialogs/shell/ComObject_p.h"
#include "ui/qt/dialogs/shell/ComSupport_p.h"
#include "ui/qt/dialogs/shell/FileDialogCore_p.h"
#include "ui/qt/dialogs/shell/Shell.h"

namespace morvane::ui {

namespace {

/** The dialog object with its interfaces. Passes the operations of IFileDialog on to the core. */
template <typename Interface>
class WidgetFileDialog : public Interface
{
public:
    WidgetFileDialog(bool saving, bool alwaysWidgets) : m_core(*this, saving, alwaysWidgets) {}
    virtual ~WidgetFileDialog() = default;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID riid, void** object) override;

    HRESULT STDMETHODCALLTYPE Show(HWND owner) override { return m_core.show(owner); }
    HRESULT STDMETHODCALLTYPE SetFileTypes(UINT count, const COMDLG_FILTERSPEC* types) override
    {
        return m_core.setFileTypes(count, types);
    }
    HRESULT STDMETHODCALLTYPE SetFileTypeIndex(UINT index) override { return m_core.setFileTypeIndex(index); }
    HRESULT STDMETHODCALLTYPE GetFileTypeIndex(UINT* index) override { return m_core.getFileTypeIndex(index); }
    HRESULT STDMETHODCALLTYPE Advise(IFileDialogEvents* sink, DWORD* cookie) override
    {
        return m_core.advise(sink, cookie);
    }
    HRESULT STDMETHODCALLTYPE Unadvise(DWORD cookie) override { return m_core.unadvise(cookie); }
    HRESULT STDMETHODCALLTYPE SetOptions(FILEOPENDIALOGOPTIONS options) override { return m_core.setOptions(options); }
    HRESULT STDMETHODCALLTYPE GetOptions(FILEOPENDIALOGOPTIONS* options) override { return m_core.getOptions(options); }
    HRESULT STDMETHODCALLTYPE SetDefaultFolder(IShellItem* folder) override { return m_core.setDefaultFolder(folder); }
    HRESULT STDMETHODCALLTYPE SetFolder(IShellItem* folder) override { return m_core.setFolder(folder); }
    HRESULT STDMETHODCALLTYPE GetFolder(IShellItem** folder) override { return m_core.getFolder(folder); }
    HRESULT STDMETHODCALLTYPE GetCurrentSelection(IShellItem** item) override
    {
        return m_core.getCurrentSelection(item);
    }
    HRESULT STDMETHODCALLTYPE SetFileName(LPCWSTR name) override { return m_core.setFileName(name); }
    HRESULT STDMETHODCALLTYPE GetFileName(LPWSTR* name) override { return m_core.getFileName(name); }
    HRESULT STDMETHODCALLTYPE SetTitle(LPCWSTR title) override { return m_core.setTitle(title); }
    HRESULT STDMETHODCALLTYPE SetOkButtonLabel(LPCWSTR text) override { return m_core.setOkButtonLabel(text); }
    HRESULT STDMETHODCALLTYPE SetFileNameLabel(LPCWSTR label) override { return m_core.setFileNameLabel(label); }
    HRESULT STDMETHODCALLTYPE GetResult(IShellItem** item) override { return m_core.getResult(item); }
    HRESULT STDMETHODCALLTYPE AddPlace(IShellItem* item, FDAP where) override { return m_core.addPlace(item, where); }
    HRESULT STDMETHODCALLTYPE SetDefaultExtension(LPCWSTR extension) override
    {
        return m_core.setDefaultExtension(extension);
    }
    HRESULT STDMETHODCALLTYPE Close(HRESULT result) override { return m_core.close(result); }
    HRESULT STDMETHODCALLTYPE SetClientGuid(REFGUID guid) override { return m_core.setClientGuid(guid); }
    HRESULT STDMETHODCALLTYPE ClearClientData() override { return m_core.clearClientData(); }
    HRESULT STDMETHODCALLTYPE SetFilter(IShellItemFilter*) override { return E_NOTIMPL; }

protected:
    FileDialogCore m_core;
};

template <typename Interface>
HRESULT WidgetFileDialog<Interface>::QueryInterface(REFIID riid, void** object)
{
    if (riid == IID_IFileDialogCustomize) {
        static const QITAB part[] = {interfaceRow<IFileDialogCustomize, CustomControls>(), QITAB{}};
        return searchInterfaces(&m_core.controls(), part, riid, object);
    }
    static const QITAB table[] = {interfaceRow<Interface, WidgetFileDialog>(),
        interfaceRow<IFileDialog, WidgetFileDialog>(), interfaceRow<IModalWindow, WidgetFileDialog>(), QITAB{}};
    return searchInterfaces(this, table, riid, object);
}

class WidgetOpenDialog : public WidgetFileDialog<IFileOpenDialog>
{
public:
    explicit WidgetOpenDialog(bool alwaysWidgets) : WidgetFileDialog(false, alwaysWidgets) {}

    HRESULT STDMETHODCALLTYPE GetResults(IShellItemArray** items) override { return m_core.getResults(items); }
    HRESULT STDMETHODCALLTYPE GetSelectedItems(IShellItemArray** items) override
    {
        return m_core.getSelectedItems(items);
    }
};

class WidgetSaveDialog : public WidgetFileDialog<IFileSaveDialog>
{
public:
    explicit WidgetSaveDialog(bool alwaysWidgets) : WidgetFileDialog(true, alwaysWidgets) {}

    HRESULT STDMETHODCALLTYPE SetSaveAsItem(IShellItem*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetProperties(IPropertyStore*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetCollectedProperties(IPropertyDescriptionList*, BOOL) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetProperties(IPropertyStore** store) override { return withoutResult(store); }
    HRESULT STDMETHODCALLTYPE ApplyProperties(IShellItem*, IPropertyStore*, HWND, IFileOperationProgressSink*) override
    {
        return E_NOTIMPL;
    }
};

} // namespace

IFileDialog* makeWidgetFileDialog(bool saving, bool alwaysWidgets)
{
    if (saving) {
        return new ComObject<WidgetSaveDialog>(alwaysWidgets);
    }
    return new ComObject<WidgetOpenDialog>(alwaysWidgets);
}

} // namespace morvane::ui
