#pragma once

#include "ui/qt/dialogs/native/NativeFileDialog_p.h"

#include <atomic>

/**
 * Receives the events of a running dialog and hands those on that the dialog reacts to.
 *
 * Counted by reference. A Shell that keeps it too long calls an object that knows no dialog any more.
 */
class ExtendedWinFileDialog::Impl::ExtendedWinFileDialogEventHandler final : public IFileDialogEvents,
                                                                             public IFileDialogControlEvents
{
public:
    /** Starts with one reference, the caller's. */
    explicit ExtendedWinFileDialogEventHandler(Impl& impl);

    /** From here on every event is ignored. */
    void detach() { m_impl = nullptr; }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID riid, void** object) override;
    ULONG STDMETHODCALLTYPE AddRef() override;
    ULONG STDMETHODCALLTYPE Release() override;

    HRESULT STDMETHODCALLTYPE OnFileOk(IFileDialog* dialog) override;
    HRESULT STDMETHODCALLTYPE OnFolderChanging(IFileDialog* dialog, IShellItem* folder) override;
    HRESULT STDMETHODCALLTYPE OnFolderChange(IFileDialog* dialog) override;
    HRESULT STDMETHODCALLTYPE OnSelectionChange(IFileDialog* dialog) override;
    HRESULT STDMETHODCALLTYPE OnShareViolation(
        IFileDialog* dialog, IShellItem* item, FDE_SHAREVIOLATION_RESPONSE* response) override;
    HRESULT STDMETHODCALLTYPE OnTypeChange(IFileDialog* dialog) override;
    HRESULT STDMETHODCALLTYPE OnOverwrite(
        IFileDialog* dialog, IShellItem* item, FDE_OVERWRITE_RESPONSE* response) override;

    virtual ~ExtendedWinFileDialogEventHandler();

    HRESULT STDMETHODCALLTYPE OnItemSelected(IFileDialogCustomize* customize, DWORD control, DWORD item) override;
    HRESULT STDMETHODCALLTYPE OnButtonClicked(IFileDialogCustomize* customize, DWORD control) override;
    HRESULT STDMETHODCALLTYPE OnCheckButtonToggled(
        IFileDialogCustomize* customize, DWORD control, BOOL checked) override;
    HRESULT STDMETHODCALLTYPE OnControlActivating(IFileDialogCustomize* customize, DWORD control) override;

private:
    morvane::ui::Shell& m_shell;
    std::atomic<unsigned long> m_references{1};
    Impl* m_impl;
};
