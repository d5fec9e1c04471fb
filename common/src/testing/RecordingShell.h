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
 * What a RecordingShell's dialogs answer; read when they are made (the options) or shown (the rest).
 *
 * @snippet 27-test-your-dialogs/main.cpp accept
 */
struct ShellScript
{
    /** What GetOptions of a new dialog for opening reports: what Windows sets by itself. */
    FILEOPENDIALOGOPTIONS openOptions = FOS_FILEMUSTEXIST | FOS_PATHMUSTEXIST | FOS_NOCHANGEDIR;
    /** The same for saving. */
    FILEOPENDIALOGOPTIONS saveOptions =
        FOS_NOREADONLYRETURN | FOS_PATHMUSTEXIST | FOS_NOCHANGEDIR | FOS_OVERWRITEPROMPT;

    /**
     * Acts as the user (or does anything else) while Show runs. Empty: the user does nothing. A dialog that is still
     * open when it returns ends as showResult says.
     */
    std::function<void(RecordingDialog&)> duringShow;
    /**
     * What Show returns when the user has neither accepted nor cancelled and nobody has called Close. Empty: the dialog
     * is cancelled, unless there are results; then it is accepted as by RecordingDialog::userAccepts().
     */
    std::optional<HRESULT> showResult;
    /** The chosen paths when Show ends with S_OK in any way; empty: the typed name in the folder. */
    QStringList results;
    /** What GetSelectedControlItem reports; empty: the picked or else the first item that is enabled and visible. */
    std::optional<DWORD> selectedItem;
    /** OnFolderChanging, OnFolderChange and, with types, OnTypeChange when the dialog opens. */
    bool announcesOpening = true;
    /** The dialog keeps a reference to every sink beyond Unadvise and its own end; see releaseKeptSinks(). */
    bool keepsSinks = false;
};

/**
 * A Shell without any window that records each call, in order, and answers as scripted: for tests of code that
 * opens the native file dialog (ExtendedWinFileDialog, ExtendedFileDialog with the native switch on, LaunchFileDialog,
 * SaveFileWinDialog).
 *
 * @snippet 27-test-your-dialogs/main.cpp shell
 * @snippet 27-test-your-dialogs/main.cpp accept
 * @snippet 27-test-your-dialogs/main.cpp fail
 *
 * GUI thread only, and a QApplication must be there, as for the dialogs themselves.
 *
 * Calls are recorded as `Interface::Method(arguments)`, for instance `IFileDialog::SetTitle("Open")`, and numbered from
 * 1. QueryInterface is recorded; AddRef and Release are not. Any call can be made to fail, by its number or its name;
 * it then has no effect and returns null in its out parameters. Objects may outlive the Shell only in their bugs: the
 * destructor of the Shell does not wait for them, so check leakedObjects() before.
 */
class RecordingShell : public ui::Shell
{
public:
    RecordingShell();
    ~RecordingShell() override;

    /** May be changed at any time; see there when it is read. */
    ShellScript script;

    /** Every call since the last clearCalls(), in order. */
    const std::vector<std::string>& calls() const { return m_calls; }
    /** The calls without arguments: `IFileDialog::SetTitle`. */
    std::vector<std::string> callNames() const;
    /** How often this name stands in callNames(). */
    int count(const std::string& name) const;
    /** Forgets the calls and numbers the next ones from 1; failures stay set. */
    void clearCalls() { m_calls.clear(); }

    /** Makes the call with this number, counted from 1 since the last clearCalls(), fail. */
    void failCall(int number, HRESULT result = E_FAIL) { m_failingNumbers[number] = result; }
    /** Makes every call of this name, such as `IFileDialog::Advise`, fail. */
    void failCalls(const std::string& name, HRESULT result = E_FAIL) { m_failingNames[name] = result; }
    /** Removes every failCall() and failCalls(). */
    void failNothing();

    /** The dialog made last; null when there is none or it is gone. */
    RecordingDialog* dialog() const { return m_dialogs.empty() ? nullptr : m_dialogs.back(); }

    /**
     * Dialogs, items and arrays that somebody still holds; 0 when all was released. The native dialog of a save flow
     * (SaveFileDialog, SaveFileWinDialog) counts here to the end of the process, since the flow leaves it alive.
     */
    int liveObjects() const { return m_liveObjects; }
    /**
     * As liveObjects(), without the dialogs that belong to save flows, those that have ended included. 0 after every
     * dialog of the library when all was released; what a host forgets to delete counts.
     */
    int leakedObjects() const;
    /** Strings that were given out and not freed with coTaskMemFree(). */
    int liveStrings() const { return static_cast<int>(m_liveStrings.size()); }
    /** How often the thread has joined an apartment less how often it has left; below 0 when it left too often. */
    int apartments() const { return m_apartments; }

    /** How many sinks are kept because of ShellScript::keepsSinks. */
    int keptSinks() const { return static_cast<int>(m_keptSinks.size()); }
    /** These sinks, in the order in which they were advised. */
    const std::vector<ui::ComPtr<IFileDialogEvents>>& kept() const { return m_keptSinks; }
    /** Releases them. */
    void releaseKeptSinks() { m_keptSinks.clear(); }

    /** @cond what the library calls, and what the shell's own objects call */
    HRESULT coInitializeEx(void* reserved, DWORD flags) override;
    void coUninitialize() override;
    HRESULT coCreateInstance(REFCLSID clsid, IUnknown* outer, DWORD context, REFIID iid, void** object) override;
    void coTaskMemFree(void* memory) override;
    HRESULT createItemFromParsingName(PCWSTR path, IBindCtx* context, REFIID iid, void** object) override;
    HRESULT qiSearch(void* that, const QITAB* table, REFIID iid, void** object) override;

    // The failure that the call is to return, if any.
    std::optional<HRESULT> record(const std::string& name, const std::string& arguments);
    HRESULT copyString(const QString& text, LPWSTR* copy);
    void keep(IFileDialogEvents* sink) { m_keptSinks.push_back(ui::ComPtr<IFileDialogEvents>::share(sink)); }
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
