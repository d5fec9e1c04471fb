// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/dialogs/shell/ComPtr.h"
#include "ui/qt/dialogs/shell/Shell.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace morvane::test {

class RecordingDialog;

/**
 * How the dialogs of a RecordingShell behave. The options are read when a dialog is created, the rest when it is shown.
 *
 * @snippet 27-test-your-dialogs/main.cpp accept
 */
struct ShellScript
{
    /** The options that GetOptions of a new open dialog returns. These are the defaults of Windows. */
    FILEOPENDIALOGOPTIONS openOptions = FOS_FILEMUSTEXIST | FOS_PATHMUSTEXIST | FOS_NOCHANGEDIR;
    /** The same for a save dialog. */
    FILEOPENDIALOGOPTIONS saveOptions =
        FOS_NOREADONLYRETURN | FOS_PATHMUSTEXIST | FOS_NOCHANGEDIR | FOS_OVERWRITEPROMPT;

    /**
     * Called while Show runs; plays the user, or does anything else. Empty: the user does nothing. If the dialog is
     * still open when the function returns, it ends as showResult describes.
     */
    std::function<void(RecordingDialog&)> duringShow;
    /**
     * What Show returns if the user neither accepted nor cancelled, and Close was not called. Empty: the dialog is
     * cancelled, unless there are results; then it is accepted as by RecordingDialog::userAccepts().
     */
    std::optional<HRESULT> showResult;
    /** The chosen paths if Show returns S_OK and Close was not called; empty: the typed name in the folder. */
    QStringList results;
    /**
     * What GetSelectedControlItem returns. Empty: the item that was picked, otherwise the first item that is enabled
     * and visible.
     */
    std::optional<DWORD> selectedItem;
    /** Whether the dialog calls OnFolderChanging, OnFolderChange and, if it has types, OnTypeChange when it opens. */
    bool announcesOpening = true;
    /**
     * Whether the Shell keeps a reference to every advised sink, also after Unadvise and the end of the dialog; see
     * releaseKeptSinks().
     */
    bool keepsSinks = false;
};

/**
 * A Shell for tests that shows no window, records each call in order, and answers as its script says. Use it to test
 * code that opens the native file dialog (ExtendedWinFileDialog, ExtendedFileDialog with the native switch on,
 * LaunchFileDialog, SaveFileWinDialog).
 *
 * @snippet 27-test-your-dialogs/main.cpp shell
 * @snippet 27-test-your-dialogs/main.cpp accept
 * @snippet 27-test-your-dialogs/main.cpp fail
 *
 * GUI thread only. A QApplication must exist, as for the dialogs themselves.
 *
 * Calls are recorded as `Interface::Method(arguments)`, for instance `IFileDialog::SetTitle("Open")`. Their numbers
 * count from 1. QueryInterface is recorded; AddRef and Release are not. Any call can be made to fail, by its number or
 * its name. A call that fails has no effect and returns null in its out parameters.
 *
 * Objects must not outlive the Shell, except the dialog of a SaveFileWinDialog, which is never called again. The
 * destructor does not wait for objects, so check leakedObjects() before.
 */
class RecordingShell : public ui::Shell
{
public:
    RecordingShell();
    ~RecordingShell() override;

    /** May be changed at any time. ShellScript describes when it is read. */
    ShellScript script;

    /** All calls since the last clearCalls(), in order. */
    const std::vector<std::string>& calls() const { return m_calls; }
    /** The calls without arguments: `IFileDialog::SetTitle`. */
    std::vector<std::string> callNames() const;
    /** How often this name occurs in callNames(). */
    int count(const std::string& name) const;
    /** Removes all recorded calls; the next call has the number 1. The failures stay set. */
    void clearCalls() { m_calls.clear(); }

    /** Makes the call with this number fail. Numbers count from 1 since the last clearCalls(). */
    void failCall(int number, HRESULT result = E_FAIL) { m_failingNumbers[number] = result; }
    /** Makes every call with this name fail, for instance `IFileDialog::Advise`. */
    void failCalls(const std::string& name, HRESULT result = E_FAIL) { m_failingNames[name] = result; }
    /** Undoes every failCall() and failCalls(). */
    void failNothing();

    /** The dialog that was created last among those that still exist; null if there is none. */
    RecordingDialog* dialog() const { return m_dialogs.empty() ? nullptr : m_dialogs.back(); }

    /**
     * The number of dialogs, items and arrays that were not released yet; 0 when all were released. The native dialog
     * of a save flow (SaveFileDialog, SaveFileWinDialog) is counted until the process ends, because the flow never
     * destroys it.
     */
    int liveObjects() const { return m_liveObjects; }
    /**
     * As liveObjects(), but without the dialogs of save flows, which includes save flows that were destroyed. It is 0
     * after every dialog of the library if all objects were released. Objects that a host forgets to delete are
     * counted.
     */
    int leakedObjects() const;
    /** The number of strings that were returned and not freed with coTaskMemFree() yet. */
    int liveStrings() const { return static_cast<int>(m_liveStrings.size()); }
    /** How often the thread joined an apartment, minus how often it left one. Negative if it left too often. */
    int apartments() const { return m_apartments; }

    /** The number of sinks that are kept because of ShellScript::keepsSinks. */
    int keptSinks() const { return static_cast<int>(m_keptSinks.size()); }
    /** The kept sinks, in the order in which they were advised. */
    const std::vector<ui::ComPtr<IFileDialogEvents>>& kept() const { return m_keptSinks; }
    /** Releases the kept sinks. */
    void releaseKeptSinks() { m_keptSinks.clear(); }

    /** @cond called by the library and by the objects of the shell */
    HRESULT coInitializeEx(void* reserved, DWORD flags) override;
    void coUninitialize() override;
    HRESULT coCreateInstance(REFCLSID clsid, IUnknown* outer, DWORD context, REFIID iid, void** object) override;
    void coTaskMemFree(void* memory) override;
    HRESULT createItemFromParsingName(PCWSTR path, IBindCtx* context, REFIID iid, void** object) override;
    HRESULT qiSearch(void* that, const QITAB* table, REFIID iid, void** object) override;

    // Returns the failure that the call must return, if any.
    std::optional<HRESULT> record(const std::string& name, const std::string& arguments);
    HRESULT copyString(const QString& text, LPWSTR* copy);
    void keep(IFileDialogEvents* sink) { m_keptSinks.push_back(ui::ComPtr<IFileDialogEvents>::share(sink)); }
    // What the dialogs keep, by client identifier (the library's setMemoryKey()).
    std::map<std::string, QString> clientFolders;
    void objectMade() { ++m_liveObjects; }
    void objectGone() { --m_liveObjects; }
    void dialogGone(RecordingDialog* dialog);
    /** @endcond */

private:
    std::vector<std::string> m_calls;
    std::map<int, HRESULT> m_failingNumbers;
    std::map<std::string, HRESULT> m_failingNames;
    std::vector<RecordingDialog*> m_dialogs;
    std::set<void*> m_liveStrings;
    std::vector<ui::ComPtr<IFileDialogEvents>> m_keptSinks;
    int m_liveObjects = 0;
    int m_apartments = 0;
};

} // namespace morvane::test
