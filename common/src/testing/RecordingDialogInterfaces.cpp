// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "testing/RecordingDialogInterfaces_p.h"

#include "testing/RecordingControls.h"
#include "testing/RecordingItems_p.h"
#include "ui/qt/dialogs/shell/ComSupport_p.h"
#include "ui/qt/dialogs/shell/EventSinks_p.h"
#include "ui/qt/dialogs/shell/ShellText_p.h"

#include <algorithm>

namespace morvane::test {

std::optional<HRESULT> RecordingDialogInterfaces::record(const char* method, const std::string& arguments)
{
    return m_shell.record(std::string("IFileDialog::") + method, arguments);
}

HRESULT RecordingDialogInterfaces::QueryInterface(REFIID riid, void** object)
{
    const auto failure = record("QueryInterface", nameOfIid(riid));
    return failure ? ui::withoutResult(object, *failure) : give(riid, object);
}

HRESULT RecordingDialogInterfaces::Show(HWND owner)
{
    const auto failure = record("Show", owner ? "owner" : "null");
    if (failure || m_running) {
        return failure.value_or(HRESULT_FROM_WIN32(ERROR_BUSY));
    }
    const auto self = ui::ComPtr<IFileDialog>::share(this);
    return run(owner);
}

HRESULT RecordingDialogInterfaces::SetFileTypes(UINT count, const COMDLG_FILTERSPEC* types)
{
    std::string text = std::to_string(count);
    for (UINT i = 0; types && i < count; ++i) {
        text += ", " + quoted(types[i].pszName) + " " + quoted(types[i].pszSpec);
    }
    if (const auto failure = record("SetFileTypes", text)) {
        return *failure;
    }
    if (!m_types.empty()) {
        return E_UNEXPECTED;
    }
    if (count == 0 || !types) {
        return E_INVALIDARG;
    }
    for (UINT i = 0; i < count; ++i) {
        m_types.emplace_back(ui::toQString(types[i].pszName), ui::toQString(types[i].pszSpec));
    }
    m_typeIndex = 1;
    return S_OK;
}

HRESULT RecordingDialogInterfaces::SetFileTypeIndex(UINT index)
{
    if (const auto failure = record("SetFileTypeIndex", std::to_string(index))) {
        return *failure;
    }
    if (m_types.empty()) {
        return E_FAIL;
    }
    m_typeIndex = std::clamp<UINT>(index, 1, static_cast<UINT>(m_types.size()));
    return S_OK;
}

HRESULT RecordingDialogInterfaces::GetFileTypeIndex(UINT* index)
{
    const auto failure = record("GetFileTypeIndex");
    if (!index) {
        return failure.value_or(E_INVALIDARG);
    }
    if (!failure) {
        *index = m_typeIndex;
    }
    return failure.value_or(S_OK);
}

HRESULT RecordingDialogInterfaces::Advise(IFileDialogEvents* sink, DWORD* cookie)
{
    if (const auto failure = record("Advise", sink ? "sink" : "null")) {
        return *failure;
    }
    const HRESULT result = m_sinks->advise(sink, cookie);
    if (SUCCEEDED(result) && m_shell.script.keepsSinks) {
        m_shell.keep(sink);
    }
    return result;
}

HRESULT RecordingDialogInterfaces::Unadvise(DWORD cookie)
{
    const auto failure = record("Unadvise", std::to_string(cookie));
    return failure ? *failure : m_sinks->unadvise(cookie);
}

HRESULT RecordingDialogInterfaces::SetOptions(FILEOPENDIALOGOPTIONS options)
{
    const QByteArray bits = QByteArray::number(static_cast<unsigned>(options), 16).toUpper();
    const auto failure = record("SetOptions", "0x" + bits.toStdString());
    m_options = failure ? m_options : options;
    return failure.value_or(S_OK);
}

HRESULT RecordingDialogInterfaces::GetOptions(FILEOPENDIALOGOPTIONS* options)
{
    const auto failure = record("GetOptions");
    if (!options) {
        return failure.value_or(E_INVALIDARG);
    }
    if (!failure) {
        *options = m_options;
    }
    return failure.value_or(S_OK);
}

HRESULT RecordingDialogInterfaces::SetDefaultFolder(IShellItem* folder)
{
    const QString path = pathOf(m_shell, folder);
    const auto failure = record("SetDefaultFolder", path.toStdString());
    if (failure || path.isEmpty()) {
        return failure.value_or(E_INVALIDARG);
    }
    m_defaultFolder = path;
    return S_OK;
}

HRESULT RecordingDialogInterfaces::SetFolder(IShellItem* folder)
{
    const QString path = pathOf(m_shell, folder);
    const auto failure = record("SetFolder", path.toStdString());
    if (failure || path.isEmpty()) {
        return failure.value_or(E_INVALIDARG);
    }
    if (m_running) {
        userEntersFolder(path);
    } else {
        m_folder = path;
    }
    return S_OK;
}

HRESULT RecordingDialogInterfaces::GetFolder(IShellItem** item)
{
    const auto failure = record("GetFolder");
    if (!item) {
        return failure.value_or(E_INVALIDARG);
    }
    *item = failure ? nullptr : makeRecordingItem(m_shell, folder()).detach();
    return failure.value_or(S_OK);
}

HRESULT RecordingDialogInterfaces::GetCurrentSelection(IShellItem** item)
{
    const auto failure = record("GetCurrentSelection");
    if (!item) {
        return failure.value_or(E_INVALIDARG);
    }
    *item = nullptr;
    return failure ? *failure : giveItem(m_selected, item, E_FAIL);
}

HRESULT RecordingDialogInterfaces::SetFileName(LPCWSTR name)
{
    const auto failure = record("SetFileName", quoted(name));
    if (!failure) {
        m_fileName = ui::toQString(name);
    }
    return failure.value_or(S_OK);
}

HRESULT RecordingDialogInterfaces::GetFileName(LPWSTR* name)
{
    const auto failure = record("GetFileName");
    if (!name) {
        return failure.value_or(E_INVALIDARG);
    }
    *name = nullptr;
    if (failure || (!m_fileName && !m_running)) {
        return failure.value_or(E_FAIL);
    }
    return m_shell.copyString(fileName(), name);
}

HRESULT RecordingDialogInterfaces::SetTitle(LPCWSTR title)
{
    const auto failure = record("SetTitle", quoted(title));
    m_title = failure ? m_title : ui::toQString(title);
    return failure.value_or(S_OK);
}

HRESULT RecordingDialogInterfaces::SetOkButtonLabel(LPCWSTR text)
{
    const auto failure = record("SetOkButtonLabel", quoted(text));
    m_acceptButtonText = failure ? m_acceptButtonText : ui::toQString(text);
    return failure.value_or(S_OK);
}

HRESULT RecordingDialogInterfaces::SetFileNameLabel(LPCWSTR label)
{
    const auto failure = record("SetFileNameLabel", quoted(label));
    m_fileNameLabel = failure ? m_fileNameLabel : ui::toQString(label);
    return failure.value_or(S_OK);
}

HRESULT RecordingDialogInterfaces::GetResult(IShellItem** item)
{
    const auto failure = record("GetResult");
    if (!item) {
        return failure.value_or(E_INVALIDARG);
    }
    *item = nullptr;
    if (failure || m_results.size() > 1) {
        return failure.value_or(E_FAIL);
    }
    return giveItem(m_results.value(0), item, E_UNEXPECTED);
}

HRESULT RecordingDialogInterfaces::AddPlace(IShellItem* item, FDAP where)
{
    const QString path = pathOf(m_shell, item);
    const auto failure = record("AddPlace", path.toStdString() + (where == FDAP_TOP ? ", top" : ", bottom"));
    if (failure || path.isEmpty()) {
        return failure.value_or(E_INVALIDARG);
    }
    (where == FDAP_TOP ? m_topPlaces : m_bottomPlaces).append(path);
    return S_OK;
}

HRESULT RecordingDialogInterfaces::SetDefaultExtension(LPCWSTR extension)
{
    return record("SetDefaultExtension", quoted(extension)).value_or(S_OK);
}

HRESULT RecordingDialogInterfaces::Close(HRESULT result)
{
    if (const auto failure = record("Close", std::to_string(result))) {
        return *failure;
    }
    if (m_running) {
        m_outcome = result;
        m_results.clear();
    }
    return S_OK;
}

HRESULT RecordingDialogInterfaces::SetClientGuid(REFGUID guid)
{
    const QByteArray bytes(reinterpret_cast<const char*>(&guid), sizeof(guid));
    const auto failure = record("SetClientGuid", bytes.toHex().toStdString());
    m_client = failure ? m_client : bytes.toHex().toStdString();
    return failure.value_or(S_OK);
}

HRESULT RecordingDialogInterfaces::ClearClientData()
{
    const auto failure = record("ClearClientData");
    if (!failure) {
        m_shell.clientFolders.erase(m_client);
    }
    return failure.value_or(S_OK);
}

HRESULT RecordingDialogInterfaces::SetFilter(IShellItemFilter*)
{
    return record("SetFilter").value_or(E_NOTIMPL);
}

HRESULT RecordingDialogInterfaces::GetResults(IShellItemArray** items)
{
    const auto failure = record("GetResults");
    if (!items) {
        return failure.value_or(E_INVALIDARG);
    }
    *items = failure || m_results.isEmpty() ? nullptr : makeRecordingArray(m_shell, m_results).detach();
    return failure ? *failure : *items ? S_OK : E_UNEXPECTED;
}

HRESULT RecordingDialogInterfaces::GetSelectedItems(IShellItemArray** items)
{
    const auto failure = record("GetSelectedItems");
    if (!items) {
        return failure.value_or(E_INVALIDARG);
    }
    *items = failure || m_selected.isEmpty() ? nullptr : makeRecordingArray(m_shell, QStringList(m_selected)).detach();
    return failure ? *failure : *items ? S_OK : E_FAIL;
}

HRESULT RecordingDialogInterfaces::giveItem(const QString& path, IShellItem** item, HRESULT without)
{
    *item = path.isEmpty() ? nullptr : makeRecordingItem(m_shell, path).detach();
    return *item ? S_OK : without;
}

} // namespace morvane::test
