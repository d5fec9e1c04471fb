// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "testing/RecordingShell.h"

#include "testing/RecordingDialog.h"
#include "testing/RecordingDialogInterfaces_p.h"
#include "testing/RecordingItems_p.h"
#include "ui/qt/dialogs/save/KeptDialogs_p.h"
#include "ui/qt/dialogs/shell/ComObject_p.h"
#include "ui/qt/dialogs/shell/ComSupport_p.h"
#include "ui/qt/dialogs/shell/ShellText_p.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace morvane::test {

RecordingShell::RecordingShell() = default;

RecordingShell::~RecordingShell()
{
    for (void* const memory : m_liveStrings) {
        ui::freeTaskMemory(memory); // liveStrings() has reported these leaks; a leak checker must not report them again
    }
}

std::vector<std::string> RecordingShell::callNames() const
{
    std::vector<std::string> names;
    for (const std::string& call : m_calls) {
        names.push_back(call.substr(0, call.find('(')));
    }
    return names;
}

int RecordingShell::count(const std::string& name) const
{
    const auto names = callNames();
    return static_cast<int>(std::count(names.begin(), names.end(), name));
}

int RecordingShell::leakedObjects() const
{
    const auto kept = std::count_if(
        m_dialogs.begin(), m_dialogs.end(), [](RecordingDialog* dialog) { return ui::isKeptForSaveFlow(*dialog); });
    return m_liveObjects - static_cast<int>(kept);
}

void RecordingShell::failNothing()
{
    m_failingNumbers.clear();
    m_failingNames.clear();
}

std::optional<HRESULT> RecordingShell::record(const std::string& name, const std::string& arguments)
{
    m_calls.push_back(name + '(' + arguments + ')');
    const auto byNumber = m_failingNumbers.find(static_cast<int>(m_calls.size()));
    if (byNumber != m_failingNumbers.end()) {
        return byNumber->second;
    }
    const auto byName = m_failingNames.find(name);
    return byName == m_failingNames.end() ? std::nullopt : std::optional<HRESULT>(byName->second);
}

HRESULT RecordingShell::copyString(const QString& text, LPWSTR* copy)
{
    const HRESULT result = ui::copyToTaskMemory(text, copy);
    if (SUCCEEDED(result)) {
        m_liveStrings.insert(*copy);
    }
    return result;
}

void RecordingShell::dialogGone(RecordingDialog* dialog)
{
    m_dialogs.erase(std::remove(m_dialogs.begin(), m_dialogs.end(), dialog), m_dialogs.end());
}

HRESULT RecordingShell::coInitializeEx(void* reserved, DWORD flags)
{
    const auto failure = record("CoInitializeEx", (reserved ? "reserved, " : "null, ") + std::to_string(flags));
    if (failure || reserved) {
        return failure.value_or(E_INVALIDARG);
    }
    return m_apartments++ == 0 ? S_OK : S_FALSE;
}

void RecordingShell::coUninitialize()
{
    record("CoUninitialize", "");
    --m_apartments;
}

HRESULT RecordingShell::coCreateInstance(REFCLSID clsid, IUnknown* outer, DWORD context, REFIID iid, void** object)
{
    const bool saving = clsid == CLSID_FileSaveDialog;
    const char* const kind = saving                          ? "FileSaveDialog"
                             : clsid == CLSID_FileOpenDialog ? "FileOpenDialog"
                                                             : "unknown class";
    const auto failure = record("CoCreateInstance",
        std::string(kind) + (outer ? ", outer, " : ", null, ") + std::to_string(context) + ", " + nameOfIid(iid));
    if (!object) {
        return E_POINTER;
    }
    *object = nullptr;
    if (failure) {
        return *failure;
    }
    if (outer || (!saving && clsid != CLSID_FileOpenDialog)) {
        return outer ? CLASS_E_NOAGGREGATION : REGDB_E_CLASSNOTREG;
    }
    auto* const dialog = new ui::ComObject<RecordingDialogInterfaces>(*this, saving);
    m_dialogs.push_back(dialog);
    const HRESULT result = dialog->give(iid, object);
    dialog->Release();
    return result;
}

void RecordingShell::coTaskMemFree(void* memory)
{
    record("CoTaskMemFree", memory ? "text" : "null");
    if (memory && m_liveStrings.erase(memory) == 0) {
        m_calls.emplace_back("ERROR: memory freed that is not there");
        return;
    }
    ui::freeTaskMemory(memory);
}

HRESULT RecordingShell::createItemFromParsingName(PCWSTR path, IBindCtx* context, REFIID iid, void** object)
{
    const auto failure =
        record("SHCreateItemFromParsingName", quoted(path) + (context ? ", context, " : ", null, ") + nameOfIid(iid));
    if (!object) {
        return E_POINTER;
    }
    *object = nullptr;
    const QString found = ui::toQString(path).replace(QLatin1Char('\\'), QLatin1Char('/'));
    if (failure || found.isEmpty()) {
        return failure.value_or(E_INVALIDARG);
    }
    if (!QFileInfo::exists(found)) {
        return HRESULT_FROM_WIN32(ERROR_FILE_NOT_FOUND);
    }
    const bool known = iid == IID_IShellItem || iid == IID_IUnknown;
    *object = known ? makeRecordingItem(*this, QDir::cleanPath(found)).detach() : nullptr;
    return known ? S_OK : E_NOINTERFACE;
}

HRESULT RecordingShell::qiSearch(void* that, const QITAB* table, REFIID iid, void** object)
{
    const auto failure = record("QISearch", nameOfIid(iid));
    return failure ? ui::withoutResult(object, *failure) : ui::searchInterfaces(that, table, iid, object);
}

} // namespace morvane::test
