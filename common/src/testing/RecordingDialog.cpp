#include "testing/RecordingDialog.h"

#include "testing/RecordingControls.h"
#include "testing/RecordingItems_p.h"
#include "ui/qt/dialogs/shell/ComPart_p.h"
#include "ui/qt/dialogs/shell/ComSupport_p.h"
#include "ui/qt/dialogs/shell/EventSinks_p.h"
#include "ui/qt/dialogs/shell/ShellText_p.h"

#include <QDir>
#include <QFileInfo>
#include <QScopeGuard>

#include <algorithm>

namespace morvane::test {

RecordingDialog::RecordingDialog(RecordingShell& shell, bool saving)
    : m_shell(shell),
      m_saving(saving),
      m_options(saving ? shell.script.saveOptions : shell.script.openOptions),
      m_sinks(std::make_unique<ui::EventSinks>()),
      m_controls(std::make_unique<ui::ComPart<RecordingControls>>(*this, shell))
{
    shell.objectMade();
}

RecordingDialog::~RecordingDialog()
{
    m_shell.dialogGone(this);
    m_shell.objectGone();
}

std::optional<HRESULT> RecordingDialog::record(const char* method, const std::string& arguments)
{
    return m_shell.record(std::string("IFileDialog::") + method, arguments);
}

HRESULT RecordingDialog::QueryInterface(REFIID riid, void** object)
{
    const auto failure = record("QueryInterface", nameOfIid(riid));
    return failure ? ui::withoutResult(object, *failure) : give(riid, object);
}

HRESULT RecordingDialog::give(REFIID iid, void** object)
{
    if (iid == IID_IFileDialogCustomize) {
        static const QITAB part[] = {ui::interfaceRow<IFileDialogCustomize, RecordingControls>(), QITAB{}};
        return ui::searchInterfaces(m_controls.get(), part, iid, object);
    }
    static const QITAB opening[] = {ui::interfaceRow<IFileOpenDialog, RecordingDialog>(),
        ui::interfaceRow<IFileDialog, RecordingDialog>(), ui::interfaceRow<IModalWindow, RecordingDialog>(), QITAB{}};
    return ui::searchInterfaces(this, m_saving ? opening + 1 : opening, iid, object);
}

HRESULT RecordingDialog::Show(HWND owner)
{
    const auto failure = record("Show", owner ? "owner" : "null");
    if (failure || m_running) {
        return failure.value_or(HRESULT_FROM_WIN32(ERROR_BUSY));
    }
    const auto self = ui::ComPtr<IFileDialog>::share(this);
    m_owner = owner;
    m_running = true;
    m_outcome.reset();
    m_results.clear();
    m_controls->forgetPick();
    const auto stop = qScopeGuard([this] {
        m_running = false;
        m_results = m_outcome == S_OK ? m_results : QStringList();
    });
    play();
    return *m_outcome;
}

void RecordingDialog::play()
{
    if (m_shell.script.announcesOpening) {
        announceOpening();
    }
    if (!m_outcome && m_shell.script.duringShow) {
        m_shell.script.duringShow(*this);
    }
    if (!m_outcome) {
        endByItself();
    }
}

void RecordingDialog::endByItself()
{
    if (const auto scripted = m_shell.script.showResult) {
        m_results = *scripted == S_OK ? chosenPaths() : QStringList();
        finish(*scripted);
        return;
    }
    if (!m_shell.script.results.isEmpty()) {
        userAccepts();
    }
    finish(HRESULT_FROM_WIN32(ERROR_CANCELLED)); // unless it was accepted
}

void RecordingDialog::announceOpening()
{
    const auto item = makeRecordingItem(m_shell, folder());
    fire([&](IFileDialogEvents& sink) { return sink.OnFolderChanging(this, item.get()); });
    if (!m_outcome) {
        fire([&](IFileDialogEvents& sink) { return sink.OnFolderChange(this); });
    }
    if (!m_outcome && !m_types.empty()) {
        fire([&](IFileDialogEvents& sink) { return sink.OnTypeChange(this); });
    }
}

void RecordingDialog::finish(HRESULT outcome)
{
    if (!m_outcome) {
        m_outcome = outcome;
    }
}

HRESULT RecordingDialog::SetFileTypes(UINT count, const COMDLG_FILTERSPEC* types)
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

HRESULT RecordingDialog::SetFileTypeIndex(UINT index)
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

HRESULT RecordingDialog::GetFileTypeIndex(UINT* index)
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

HRESULT RecordingDialog::Advise(IFileDialogEvents* sink, DWORD* cookie)
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

HRESULT RecordingDialog::Unadvise(DWORD cookie)
{
    const auto failure = record("Unadvise", std::to_string(cookie));
    return failure ? *failure : m_sinks->unadvise(cookie);
}

HRESULT RecordingDialog::SetOptions(FILEOPENDIALOGOPTIONS options)
{
    const QByteArray bits = QByteArray::number(static_cast<unsigned>(options), 16).toUpper();
    const auto failure = record("SetOptions", "0x" + bits.toStdString());
    m_options = failure ? m_options : options;
    return failure.value_or(S_OK);
}

HRESULT RecordingDialog::GetOptions(FILEOPENDIALOGOPTIONS* options)
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

HRESULT RecordingDialog::SetDefaultFolder(IShellItem* folder)
{
    const QString path = pathOf(m_shell, folder);
    const auto failure = record("SetDefaultFolder", path.toStdString());
    if (failure || path.isEmpty()) {
        return failure.value_or(E_INVALIDARG);
    }
    m_folder = m_folder.isEmpty() ? path : m_folder;
    return S_OK;
}

HRESULT RecordingDialog::SetFolder(IShellItem* folder)
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

HRESULT RecordingDialog::GetFolder(IShellItem** item)
{
    const auto failure = record("GetFolder");
    if (!item) {
        return failure.value_or(E_INVALIDARG);
    }
    *item = failure ? nullptr : makeRecordingItem(m_shell, folder()).detach();
    return failure.value_or(S_OK);
}

HRESULT RecordingDialog::GetCurrentSelection(IShellItem** item)
{
    const auto failure = record("GetCurrentSelection");
    if (!item) {
        return failure.value_or(E_INVALIDARG);
    }
    *item = nullptr;
    return failure ? *failure : giveItem(m_selected, item, E_FAIL);
}

HRESULT RecordingDialog::SetFileName(LPCWSTR name)
{
    const auto failure = record("SetFileName", quoted(name));
    if (!failure) {
        m_fileName = ui::toQString(name);
    }
    return failure.value_or(S_OK);
}

HRESULT RecordingDialog::GetFileName(LPWSTR* name)
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

HRESULT RecordingDialog::SetTitle(LPCWSTR title)
{
    const auto failure = record("SetTitle", quoted(title));
    m_title = failure ? m_title : ui::toQString(title);
    return failure.value_or(S_OK);
}

HRESULT RecordingDialog::SetOkButtonLabel(LPCWSTR text)
{
    return record("SetOkButtonLabel", quoted(text)).value_or(S_OK);
}

HRESULT RecordingDialog::SetFileNameLabel(LPCWSTR label)
{
    return record("SetFileNameLabel", quoted(label)).value_or(S_OK);
}

HRESULT RecordingDialog::GetResult(IShellItem** item)
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

HRESULT RecordingDialog::AddPlace(IShellItem* item, FDAP)
{
    return record("AddPlace", pathOf(m_shell, item).toStdString()).value_or(E_NOTIMPL);
}

HRESULT RecordingDialog::SetDefaultExtension(LPCWSTR extension)
{
    return record("SetDefaultExtension", quoted(extension)).value_or(S_OK);
}

HRESULT RecordingDialog::Close(HRESULT result)
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

HRESULT RecordingDialog::SetClientGuid(REFGUID)
{
    return record("SetClientGuid").value_or(E_NOTIMPL);
}

HRESULT RecordingDialog::ClearClientData()
{
    return record("ClearClientData").value_or(E_NOTIMPL);
}

HRESULT RecordingDialog::SetFilter(IShellItemFilter*)
{
    return record("SetFilter").value_or(E_NOTIMPL);
}

HRESULT RecordingDialog::GetResults(IShellItemArray** items)
{
    const auto failure = record("GetResults");
    if (!items) {
        return failure.value_or(E_INVALIDARG);
    }
    *items = failure || m_results.isEmpty() ? nullptr : makeRecordingArray(m_shell, m_results).detach();
    return failure ? *failure : *items ? S_OK : E_UNEXPECTED;
}

HRESULT RecordingDialog::GetSelectedItems(IShellItemArray** items)
{
    const auto failure = record("GetSelectedItems");
    if (!items) {
        return failure.value_or(E_INVALIDARG);
    }
    *items = failure || m_selected.isEmpty() ? nullptr : makeRecordingArray(m_shell, QStringList(m_selected)).detach();
    return failure ? *failure : *items ? S_OK : E_FAIL;
}

HRESULT RecordingDialog::giveItem(const QString& path, IShellItem** item, HRESULT without)
{
    *item = path.isEmpty() ? nullptr : makeRecordingItem(m_shell, path).detach();
    return *item ? S_OK : without;
}

QString RecordingDialog::folder() const
{
    return m_folder.isEmpty() ? QDir::currentPath() : m_folder;
}

} // namespace morvane::test
