// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "testing/RecordingDialog.h"

namespace morvane::test {

/** The COM interfaces of a RecordingDialog. Records each call and returns a result. Created as a ComObject. */
class RecordingDialogInterfaces : public RecordingDialog
{
public:
    using RecordingDialog::RecordingDialog;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID riid, void** object) override;
    HRESULT STDMETHODCALLTYPE Show(HWND owner) override;
    HRESULT STDMETHODCALLTYPE SetFileTypes(UINT count, const COMDLG_FILTERSPEC* types) override;
    HRESULT STDMETHODCALLTYPE SetFileTypeIndex(UINT index) override;
    HRESULT STDMETHODCALLTYPE GetFileTypeIndex(UINT* index) override;
    HRESULT STDMETHODCALLTYPE Advise(IFileDialogEvents* sink, DWORD* cookie) override;
    HRESULT STDMETHODCALLTYPE Unadvise(DWORD cookie) override;
    HRESULT STDMETHODCALLTYPE SetOptions(FILEOPENDIALOGOPTIONS options) override;
    HRESULT STDMETHODCALLTYPE GetOptions(FILEOPENDIALOGOPTIONS* options) override;
    HRESULT STDMETHODCALLTYPE SetDefaultFolder(IShellItem* folder) override;
    HRESULT STDMETHODCALLTYPE SetFolder(IShellItem* folder) override;
    HRESULT STDMETHODCALLTYPE GetFolder(IShellItem** folder) override;
    HRESULT STDMETHODCALLTYPE GetCurrentSelection(IShellItem** item) override;
    HRESULT STDMETHODCALLTYPE SetFileName(LPCWSTR name) override;
    HRESULT STDMETHODCALLTYPE GetFileName(LPWSTR* name) override;
    HRESULT STDMETHODCALLTYPE SetTitle(LPCWSTR title) override;
    HRESULT STDMETHODCALLTYPE SetOkButtonLabel(LPCWSTR text) override;
    HRESULT STDMETHODCALLTYPE SetFileNameLabel(LPCWSTR label) override;
    HRESULT STDMETHODCALLTYPE GetResult(IShellItem** item) override;
    HRESULT STDMETHODCALLTYPE AddPlace(IShellItem* item, FDAP where) override;
    HRESULT STDMETHODCALLTYPE SetDefaultExtension(LPCWSTR extension) override;
    HRESULT STDMETHODCALLTYPE Close(HRESULT result) override;
    HRESULT STDMETHODCALLTYPE SetClientGuid(REFGUID guid) override;
    HRESULT STDMETHODCALLTYPE ClearClientData() override;
    HRESULT STDMETHODCALLTYPE SetFilter(IShellItemFilter* filter) override;
    HRESULT STDMETHODCALLTYPE GetResults(IShellItemArray** items) override;
    HRESULT STDMETHODCALLTYPE GetSelectedItems(IShellItemArray** items) override;

private:
    std::optional<HRESULT> record(const char* method, const std::string& arguments = std::string());
    HRESULT giveItem(const QString& path, IShellItem** item, HRESULT without);
};

} // namespace morvane::test
