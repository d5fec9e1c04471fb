// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// Compiled for Windows with the SDK's declarations and elsewhere with ours, so that both pass the same checks.
#include "ui/qt/dialogs/shell/ComPtr.h"
#include "ui/qt/dialogs/shell/Shell.h"

#include <type_traits>

namespace {

static_assert(sizeof(ULONG) == 4 && std::is_unsigned_v<ULONG>);
static_assert(sizeof(DWORD) == 4 && std::is_unsigned_v<DWORD>);
static_assert(sizeof(UINT) == 4 && std::is_unsigned_v<UINT>);
static_assert(sizeof(HRESULT) == 4 && std::is_signed_v<HRESULT>);
static_assert(sizeof(BOOL) == 4 && std::is_signed_v<BOOL>);
static_assert(sizeof(WCHAR) == 2);
static_assert(sizeof(GUID) == 16);
static_assert(sizeof(HWND) == sizeof(void*));
static_assert(sizeof(COMDLG_FILTERSPEC) == 2 * sizeof(void*));
static_assert(std::is_pointer_v<HWND>);

// An interface consists of one pointer to its slots, so it has no data and no second base.
static_assert(sizeof(IUnknown) == sizeof(void*) && std::is_abstract_v<IUnknown>);
static_assert(sizeof(IFileOpenDialog) == sizeof(void*) && std::is_base_of_v<IFileDialog, IFileOpenDialog>);
static_assert(sizeof(IFileSaveDialog) == sizeof(void*) && std::is_base_of_v<IFileDialog, IFileSaveDialog>);
static_assert(sizeof(IFileDialog) == sizeof(void*) && std::is_base_of_v<IModalWindow, IFileDialog>);
static_assert(sizeof(IFileDialogCustomize) == sizeof(void*) && std::is_base_of_v<IUnknown, IFileDialogCustomize>);
static_assert(sizeof(IFileDialogEvents) == sizeof(void*) && std::is_base_of_v<IUnknown, IFileDialogEvents>);
static_assert(sizeof(IFileDialogControlEvents) == sizeof(void*));
static_assert(sizeof(IShellItem) == sizeof(void*) && sizeof(IShellItemArray) == sizeof(void*));
static_assert(!std::has_virtual_destructor_v<IFileDialog> && !std::has_virtual_destructor_v<IFileDialogEvents>);

static_assert(FOS_OVERWRITEPROMPT == 0x2 && FOS_NOCHANGEDIR == 0x8 && FOS_PICKFOLDERS == 0x20);
static_assert(FOS_ALLOWMULTISELECT == 0x200 && FOS_PATHMUSTEXIST == 0x800 && FOS_FILEMUSTEXIST == 0x1000);
static_assert(FOS_NOREADONLYRETURN == 0x8000 && FOS_NOVALIDATE == 0x100 && FOS_FORCESHOWHIDDEN == 0x10000000);
static_assert(CDCS_INACTIVE == 0 && CDCS_ENABLED == 1 && CDCS_VISIBLE == 2 && CDCS_ENABLEDVISIBLE == 3);
static_assert(static_cast<unsigned>(SIGDN_FILESYSPATH) == 0x80058000u && SIGDN_NORMALDISPLAY == 0);
static_assert(static_cast<unsigned>(SIGDN_DESKTOPABSOLUTEPARSING) == 0x80028000u);
static_assert(static_cast<unsigned>(SIGDN_PARENTRELATIVEPARSING) == 0x80018001u);
static_assert(FDEOR_DEFAULT == 0 && FDEOR_ACCEPT == 1 && FDEOR_REFUSE == 2);
static_assert(FDESVR_DEFAULT == 0 && FDESVR_ACCEPT == 1 && FDESVR_REFUSE == 2);
static_assert(FDAP_BOTTOM == 0 && FDAP_TOP == 1);
static_assert(COINIT_APARTMENTTHREADED + COINIT_DISABLE_OLE1DDE == 6);
static_assert(CLSCTX_INPROC_SERVER == 1);

static_assert(S_OK == 0 && S_FALSE == 1 && static_cast<unsigned>(E_NOTIMPL) == 0x80004001u);
static_assert(static_cast<unsigned>(E_NOINTERFACE) == 0x80004002u && static_cast<unsigned>(E_FAIL) == 0x80004005u);
static_assert(static_cast<unsigned>(E_UNEXPECTED) == 0x8000FFFFu);
static_assert(static_cast<unsigned>(E_INVALIDARG) == 0x80070057u);
static_assert(static_cast<unsigned>(RPC_E_CHANGED_MODE) == 0x80010106u);
static_assert(ERROR_CANCELLED == 1223 && ERROR_FILE_NOT_FOUND == 2 && ERROR_BUSY == 170);

// The slots in their order. An implementation that overrides all of them with these signatures compiles on both sides.
struct Sink final : IFileDialogEvents, IFileDialogControlEvents
{
    virtual ~Sink() = default;
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID riid, void** object) override
    {
        const QITAB table[] = {morvane::ui::interfaceRow<IFileDialogEvents, Sink>(),
            morvane::ui::interfaceRow<IFileDialogControlEvents, Sink>(), {}};
        return morvane::ui::Shell::instance().qiSearch(this, table, riid, object);
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 1; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    HRESULT STDMETHODCALLTYPE OnFileOk(IFileDialog*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE OnFolderChanging(IFileDialog*, IShellItem*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE OnFolderChange(IFileDialog*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE OnSelectionChange(IFileDialog*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE OnShareViolation(IFileDialog*, IShellItem*, FDE_SHAREVIOLATION_RESPONSE*) override
    {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE OnTypeChange(IFileDialog*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE OnOverwrite(IFileDialog*, IShellItem*, FDE_OVERWRITE_RESPONSE*) override
    {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE OnItemSelected(IFileDialogCustomize*, DWORD, DWORD) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE OnButtonClicked(IFileDialogCustomize*, DWORD) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE OnCheckButtonToggled(IFileDialogCustomize*, DWORD, BOOL) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE OnControlActivating(IFileDialogCustomize*, DWORD) override { return E_NOTIMPL; }
};

} // namespace

const GUID* identifiersThatMustBeDeclared[] = {&IID_IUnknown, &IID_IShellItem, &IID_IShellItemArray, &IID_IModalWindow,
    &IID_IFileDialog, &IID_IFileOpenDialog, &IID_IFileSaveDialog, &IID_IFileDialogCustomize, &IID_IFileDialogEvents,
    &IID_IFileDialogControlEvents, &CLSID_FileOpenDialog, &CLSID_FileSaveDialog};

HRESULT useEveryPart(IFileDialog* given)
{
    Sink sink;
    auto dialog = morvane::ui::ComPtr<IFileDialog>::share(given);
    const auto controls = dialog.query<IFileDialogCustomize>();
    CDCONTROLSTATEF state = CDCS_INACTIVE;
    controls->GetControlState(1, &state);
    controls->SetControlState(1, (state | CDCS_VISIBLE) & ~CDCS_ENABLED);
    DWORD cookie = 0;
    return dialog->Advise(&sink, &cookie);
}
