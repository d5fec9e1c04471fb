// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/native/NativeDialogEvents_p.h"

namespace morvane::ui {

NativeDialogEvents::NativeDialogEvents(Shell& shell, NativeDialogObserver& observer)
    : m_shell(shell), m_observer(&observer)
{
}

NativeDialogEvents::~NativeDialogEvents() = default;

HRESULT STDMETHODCALLTYPE NativeDialogEvents::QueryInterface(REFIID riid, void** object)
{
    static const QITAB table[] = {interfaceRow<IFileDialogEvents, NativeDialogEvents>(),
        interfaceRow<IFileDialogControlEvents, NativeDialogEvents>(), QITAB{}};
    return m_shell.qiSearch(this, table, riid, object);
}

HRESULT STDMETHODCALLTYPE NativeDialogEvents::OnFileOk(IFileDialog* dialog)
{
    const bool refused = m_observer && dialog && !m_observer->onAccepting(*dialog);
    return refused ? S_FALSE : E_NOTIMPL;
}

HRESULT STDMETHODCALLTYPE NativeDialogEvents::OnFolderChanging(IFileDialog*, IShellItem*)
{
    return E_NOTIMPL;
}

HRESULT STDMETHODCALLTYPE NativeDialogEvents::OnFolderChange(IFileDialog* dialog)
{
    if (m_observer && dialog) {
        m_observer->onFolderChanged(*dialog);
    }
    return S_OK;
}

HRESULT STDMETHODCALLTYPE NativeDialogEvents::OnSelectionChange(IFileDialog*)
{
    return E_NOTIMPL;
}

HRESULT STDMETHODCALLTYPE NativeDialogEvents::OnShareViolation(IFileDialog*, IShellItem*, FDE_SHAREVIOLATION_RESPONSE*)
{
    return E_NOTIMPL;
}

HRESULT STDMETHODCALLTYPE NativeDialogEvents::OnTypeChange(IFileDialog* dialog)
{
    if (m_observer && dialog) {
        m_observer->onTypeChanged(*dialog);
    }
    return S_OK;
}

HRESULT STDMETHODCALLTYPE NativeDialogEvents::OnOverwrite(IFileDialog*, IShellItem*, FDE_OVERWRITE_RESPONSE*)
{
    return E_NOTIMPL;
}

HRESULT STDMETHODCALLTYPE NativeDialogEvents::OnItemSelected(IFileDialogCustomize*, DWORD control, DWORD item)
{
    if (m_observer) {
        m_observer->onItemSelected(control, item);
    }
    return E_NOTIMPL;
}

HRESULT STDMETHODCALLTYPE NativeDialogEvents::OnButtonClicked(IFileDialogCustomize*, DWORD control)
{
    if (m_observer) {
        m_observer->onButtonClicked(control);
    }
    return S_OK;
}

HRESULT STDMETHODCALLTYPE NativeDialogEvents::OnCheckButtonToggled(IFileDialogCustomize*, DWORD control, BOOL checked)
{
    if (m_observer) {
        m_observer->onCheckButtonToggled(control, checked);
    }
    return S_OK;
}

HRESULT STDMETHODCALLTYPE NativeDialogEvents::OnControlActivating(IFileDialogCustomize*, DWORD)
{
    return E_NOTIMPL;
}

} // namespace morvane::ui
