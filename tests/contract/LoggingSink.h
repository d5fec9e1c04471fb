// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "contract/StackObject.h"
#include "ui/qt/dialogs/shell/ComPtr.h"
#include "ui/qt/dialogs/shell/Shell.h"
#include "ui/qt/dialogs/shell/ShellText_p.h"

#include <QFileInfo>

#include <algorithm>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace morvane::test {

/**
 * An event sink that logs its callbacks and runs the function that is set for each.
 */
class LoggingSink final : public StackObject<IFileDialogEvents, IFileDialogControlEvents>
{
public:
    explicit LoggingSink(ui::Shell& shell) : m_shell(shell) {}

    std::vector<std::string> log;
    std::map<std::string, std::function<HRESULT()>> on; ///< by name of the callback; otherwise E_NOTIMPL
    FDE_OVERWRITE_RESPONSE overwriteResponse = FDEOR_DEFAULT;
    bool hearsOfControls = true; ///< whether it has IFileDialogControlEvents

    int count(const std::string& entry) const { return static_cast<int>(std::count(log.begin(), log.end(), entry)); }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID riid, void** object) override
    {
        const QITAB table[] = {ui::interfaceRow<IFileDialogEvents, LoggingSink>(),
            hearsOfControls ? ui::interfaceRow<IFileDialogControlEvents, LoggingSink>() : QITAB{}, {}};
        return m_shell.qiSearch(this, table, riid, object);
    }

    HRESULT STDMETHODCALLTYPE OnFileOk(IFileDialog*) override { return called("OnFileOk"); }
    HRESULT STDMETHODCALLTYPE OnFolderChanging(IFileDialog*, IShellItem* folder) override
    {
        return called("OnFolderChanging", " " + nameOf(folder));
    }
    HRESULT STDMETHODCALLTYPE OnFolderChange(IFileDialog* dialog) override
    {
        ui::ComPtr<IShellItem> folder;
        dialog->GetFolder(folder.put());
        return called("OnFolderChange", " " + nameOf(folder.get()));
    }
    HRESULT STDMETHODCALLTYPE OnSelectionChange(IFileDialog*) override { return called("OnSelectionChange"); }
    HRESULT STDMETHODCALLTYPE OnShareViolation(IFileDialog*, IShellItem*, FDE_SHAREVIOLATION_RESPONSE*) override
    {
        return called("OnShareViolation");
    }
    HRESULT STDMETHODCALLTYPE OnTypeChange(IFileDialog* dialog) override
    {
        UINT index = 0;
        dialog->GetFileTypeIndex(&index);
        return called("OnTypeChange", " " + std::to_string(index));
    }
    HRESULT STDMETHODCALLTYPE OnOverwrite(IFileDialog*, IShellItem* item, FDE_OVERWRITE_RESPONSE* response) override
    {
        *response = overwriteResponse;
        return called("OnOverwrite", " " + nameOf(item));
    }
    HRESULT STDMETHODCALLTYPE OnItemSelected(IFileDialogCustomize*, DWORD control, DWORD item) override
    {
        return called("OnItemSelected", " " + std::to_string(control) + " " + std::to_string(item));
    }
    HRESULT STDMETHODCALLTYPE OnButtonClicked(IFileDialogCustomize*, DWORD control) override
    {
        return called("OnButtonClicked", " " + std::to_string(control));
    }
    HRESULT STDMETHODCALLTYPE OnCheckButtonToggled(IFileDialogCustomize*, DWORD control, BOOL checked) override
    {
        return called("OnCheckButtonToggled", " " + std::to_string(control) + " " + std::to_string(checked));
    }
    HRESULT STDMETHODCALLTYPE OnControlActivating(IFileDialogCustomize*, DWORD control) override
    {
        return called("OnControlActivating", " " + std::to_string(control));
    }

private:
    HRESULT called(const std::string& name, const std::string& details = std::string())
    {
        log.push_back(name + details);
        const auto found = on.find(name);
        return found == on.end() ? E_NOTIMPL : found->second();
    }

    std::string nameOf(IShellItem* item)
    {
        LPWSTR text = nullptr;
        if (!item || FAILED(item->GetDisplayName(SIGDN_FILESYSPATH, &text))) {
            return "nothing";
        }
        const QString name = QFileInfo(ui::toQString(text)).fileName();
        m_shell.coTaskMemFree(text);
        return name.toStdString();
    }

    ui::Shell& m_shell;
};

} // namespace morvane::test
