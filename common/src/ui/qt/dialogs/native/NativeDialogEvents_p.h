// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/dialogs/native/NativeDialogObserver_p.h"
#include "ui/qt/dialogs/shell/Shell.h"

namespace morvane::ui {

/**
 * Receives the events of a running dialog, and passes on to an observer those that the observer handles.
 *
 * Created as a ComObject. After detach() it does nothing, so a Shell may keep it longer than the run.
 */
class NativeDialogEvents : public IFileDialogEvents, public IFileDialogControlEvents
{
public:
    NativeDialogEvents(Shell& shell, NativeDialogObserver& observer);

    /** Removes the observer. All later events are ignored. */
    void detach() { m_observer = nullptr; }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID riid, void** object) override;

    HRESULT STDMETHODCALLTYPE OnFileOk(IFileDialog* dialog) override;
    HRESULT STDMETHODCALLTYPE OnFolderChanging(IFileDialog* dialog, IShellItem* folder) override;
    HRESULT STDMETHODCALLTYPE OnFolderChange(IFileDialog* dialog) override;
    HRESULT STDMETHODCALLTYPE OnSelectionChange(IFileDialog* dialog) override;
    HRESULT STDMETHODCALLTYPE OnShareViolation(
        IFileDialog* dialog, IShellItem* item, FDE_SHAREVIOLATION_RESPONSE* response) override;
    HRESULT STDMETHODCALLTYPE OnTypeChange(IFileDialog* dialog) override;
    HRESULT STDMETHODCALLTYPE OnOverwrite(
        IFileDialog* dialog, IShellItem* item, FDE_OVERWRITE_RESPONSE* response) override;

    virtual ~NativeDialogEvents();

    HRESULT STDMETHODCALLTYPE OnItemSelected(IFileDialogCustomize* customize, DWORD control, DWORD item) override;
    HRESULT STDMETHODCALLTYPE OnButtonClicked(IFileDialogCustomize* customize, DWORD control) override;
    HRESULT STDMETHODCALLTYPE OnCheckButtonToggled(
        IFileDialogCustomize* customize, DWORD control, BOOL checked) override;
    HRESULT STDMETHODCALLTYPE OnControlActivating(IFileDialogCustomize* customize, DWORD control) override;

private:
    Shell& m_shell;
    NativeDialogObserver* m_observer;
};

} // namespace morvane::ui
