#include "ui/qt/dialogs/native/NativeDialogEvents_p.h"

ExtendedWinFileDialog::Impl::ExtendedWinFileDialogEventHandler::ExtendedWinFileDialogEventHandler(Impl& impl)
    : m_shell(impl.m_shell), m_impl(&impl)
{
}

ExtendedWinFileDialog::Impl::ExtendedWinFileDialogEventHandler::~ExtendedWinFileDialogEventHandler() = default;

HRESULT STDMETHODCALLTYPE ExtendedWinFileDialog::Impl::ExtendedWinFileDialogEventHandler::QueryInterface(
    REFIID riid, void** object)
{
    using Handler = ExtendedWinFileDialogEventHandler;
    static const QITAB table[] = {morvane::ui::interfaceRow<IFileDialogEvents, Handler>(),
        morvane::ui::interfaceRow<IFileDialogControlEvents, Handler>(), QITAB{}};
    return m_shell.qiSearch(this, table, riid, object);
}

ULONG STDMETHODCALLTYPE ExtendedWinFileDialog::Impl::ExtendedWinFileDialogEventHandler::AddRef()
{
    return static_cast<ULONG>(++m_references);
}

ULONG STDMETHODCALLTYPE ExtendedWinFileDialog::Impl::ExtendedWinFileDialogEventHandler::Release()
{
    const unsigned long left = --m_references;
    if (left == 0) {
        delete this;
    }
    return static_cast<ULONG>(left);
}

HRESULT STDMETHODCALLTYPE ExtendedWinFileDialog::Impl::ExtendedWinFileDialogEventHandler::OnFileOk(IFileDialog* dialog)
{
    if (m_impl && dialog) {
        m_impl->accepting(*dialog);
    }
    return E_NOTIMPL;
}

HRESULT STDMETHODCALLTYPE ExtendedWinFileDialog::Impl::ExtendedWinFileDialogEventHandler::OnFolderChanging(
    IFileDialog*, IShellItem*)
{
    return E_NOTIMPL;
}

HRESULT STDMETHODCALLTYPE ExtendedWinFileDialog::Impl::ExtendedWinFileDialogEventHandler::OnFolderChange(
    IFileDialog* dialog)
{
    if (m_impl && dialog) {
        m_impl->folderChanged(*dialog);
    }
    return S_OK;
}

HRESULT STDMETHODCALLTYPE ExtendedWinFileDialog::Impl::ExtendedWinFileDialogEventHandler::OnSelectionChange(
    IFileDialog*)
{
    return E_NOTIMPL;
}

HRESULT STDMETHODCALLTYPE ExtendedWinFileDialog::Impl::ExtendedWinFileDialogEventHandler::OnShareViolation(
    IFileDialog*, IShellItem*, FDE_SHAREVIOLATION_RESPONSE*)
{
    return E_NOTIMPL;
}

HRESULT STDMETHODCALLTYPE ExtendedWinFileDialog::Impl::ExtendedWinFileDialogEventHandler::OnTypeChange(
    IFileDialog* dialog)
{
    if (m_impl && dialog) {
        m_impl->typeChanged(*dialog);
    }
    return S_OK;
}

HRESULT STDMETHODCALLTYPE ExtendedWinFileDialog::Impl::ExtendedWinFileDialogEventHandler::OnOverwrite(
    IFileDialog*, IShellItem*, FDE_OVERWRITE_RESPONSE*)
{
    return E_NOTIMPL;
}

HRESULT STDMETHODCALLTYPE ExtendedWinFileDialog::Impl::ExtendedWinFileDialogEventHandler::OnItemSelected(
    IFileDialogCustomize*, DWORD, DWORD)
{
    return E_NOTIMPL;
}

HRESULT STDMETHODCALLTYPE ExtendedWinFileDialog::Impl::ExtendedWinFileDialogEventHandler::OnButtonClicked(
    IFileDialogCustomize*, DWORD control)
{
    if (m_impl) {
        m_impl->buttonClicked(control);
    }
    return S_OK;
}

HRESULT STDMETHODCALLTYPE ExtendedWinFileDialog::Impl::ExtendedWinFileDialogEventHandler::OnCheckButtonToggled(
    IFileDialogCustomize*, DWORD control, BOOL checked)
{
    if (m_impl) {
        m_impl->checkButtonToggled(control, checked);
    }
    return S_OK;
}

HRESULT STDMETHODCALLTYPE ExtendedWinFileDialog::Impl::ExtendedWinFileDialogEventHandler::OnControlActivating(
    IFileDialogCustomize*, DWORD)
{
    return E_NOTIMPL;
}
