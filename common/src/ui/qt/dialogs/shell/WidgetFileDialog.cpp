#include "ui/qt/dialogs/shell/WidgetFileDialog_p.h"

#include "ui/qt/dialogs/shell/ComSupport_p.h"
#include "ui/qt/dialogs/shell/FileDialogCore_p.h"

namespace morvane::ui {

namespace {

/** The dialog object: identity, reference count, and the slots of IFileDialog handed to the core. */
template <typename Interface>
class WidgetFileDialog : public Interface
{
public:
    WidgetFileDialog(bool saving, bool alwaysWidgets) : m_core(*this, saving, alwaysWidgets) {}
    virtual ~WidgetFileDialog() = default;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID riid, void** object) override;
    ULONG STDMETHODCALLTYPE AddRef() override { return m_references.increment(); }
    ULONG STDMETHODCALLTYPE Release() override
    {
        const ULONG count = m_references.decrement();
        if (count == 0) {
            delete this;
        }
        return count;
    }

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
    HRESULT STDMETHODCALLTYPE AddPlace(IShellItem*, FDAP) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetDefaultExtension(LPCWSTR extension) override
    {
        return m_core.setDefaultExtension(extension);
    }
    HRESULT STDMETHODCALLTYPE Close(HRESULT result) override { return m_core.close(result); }
    HRESULT STDMETHODCALLTYPE SetClientGuid(REFGUID) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE ClearClientData() override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetFilter(IShellItemFilter*) override { return E_NOTIMPL; }

protected:
    FileDialogCore m_core;

private:
    ReferenceCount m_references;
};

template <typename Interface>
HRESULT WidgetFileDialog<Interface>::QueryInterface(REFIID riid, void** object)
{
    if (!object) {
        return E_POINTER;
    }
    *object = nullptr;
    if (riid == iidOf<Interface>()) {
        *object = static_cast<Interface*>(this);
    } else if (riid == IID_IFileDialog || riid == IID_IUnknown) {
        *object = static_cast<IFileDialog*>(this);
    } else if (riid == IID_IModalWindow) {
        *object = static_cast<IModalWindow*>(this);
    } else if (riid == IID_IFileDialogCustomize) {
        *object = static_cast<IFileDialogCustomize*>(&m_core.controls());
    } else {
        return E_NOINTERFACE;
    }
    AddRef();
    return S_OK;
}

class WidgetOpenDialog final : public WidgetFileDialog<IFileOpenDialog>
{
public:
    explicit WidgetOpenDialog(bool alwaysWidgets) : WidgetFileDialog(false, alwaysWidgets) {}

    HRESULT STDMETHODCALLTYPE GetResults(IShellItemArray** items) override { return m_core.getResults(items); }
    HRESULT STDMETHODCALLTYPE GetSelectedItems(IShellItemArray** items) override
    {
        return m_core.getSelectedItems(items);
    }
};

class WidgetSaveDialog final : public WidgetFileDialog<IFileSaveDialog>
{
public:
    explicit WidgetSaveDialog(bool alwaysWidgets) : WidgetFileDialog(true, alwaysWidgets) {}

    HRESULT STDMETHODCALLTYPE SetSaveAsItem(IShellItem*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetProperties(IPropertyStore*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetCollectedProperties(IPropertyDescriptionList*, BOOL) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetProperties(IPropertyStore** store) override { return notImplemented(store); }
    HRESULT STDMETHODCALLTYPE ApplyProperties(IShellItem*, IPropertyStore*, HWND, IFileOperationProgressSink*) override
    {
        return E_NOTIMPL;
    }
};

} // namespace

IFileDialog* makeWidgetFileDialog(bool saving, bool alwaysWidgets)
{
    if (saving) {
        return new WidgetSaveDialog(alwaysWidgets);
    }
    return new WidgetOpenDialog(alwaysWidgets);
}

} // namespace morvane::ui
