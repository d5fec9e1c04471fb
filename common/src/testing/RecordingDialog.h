#pragma once

#include "testing/RecordingShell.h"

#include <memory>
#include <utility>

namespace morvane::ui {
class EventSinks;
}

namespace morvane::test {

class RecordingControls;

/**
 * The dialog of a RecordingShell, of either kind. Its `user…` operations act as the user while Show runs; the host's
 * callbacks run inside them. Call them in ShellScript::duringShow. A dialog that was neither accepted
 * nor cancelled there is cancelled, unless the script gives results or another end (ShellScript).
 *
 * It belongs to the holders of its references, the last of which is the dialog class of the library; do not keep a
 * pointer to it longer than that lives.
 *
 * @snippet 27-test-your-dialogs/main.cpp accept
 */
class RecordingDialog : public IFileOpenDialog
{
public:
    /** @cond made by the shell, as a class that implements the interface */
    RecordingDialog(RecordingShell& shell, bool saving);
    virtual ~RecordingDialog();
    RecordingDialog(const RecordingDialog&) = delete;
    RecordingDialog& operator=(const RecordingDialog&) = delete;
    /** @endcond */

    /**
     * Presses Open or Save. The dialog stays, as a real one does, when there is no name, when a file to open is not
     * there (but see ShellScript::results), or when the host or the user does not want a file replaced.
     */
    void userAccepts();
    /** Presses Cancel or Escape. */
    void userCancels();
    /** Replaces what stands in the field for the name. @param name a name in the folder, or a path with slashes */
    void userTypesName(const QString& name) { m_fileName = name; }
    /** @param index the position in the list of file types, counted from 1 */
    void userPicksType(UINT index);
    /** @param folder an absolute path, with slashes; the host may refuse it */
    void userEntersFolder(const QString& folder);
    /** Highlights a file in the list without choosing it. @param path absolute, with slashes */
    void userSelects(const QString& path);
    /** How the question whether a file may be replaced is answered when no sink decides. */
    void userAnswersOverwriting(bool yes) { m_replaces = yes; }

    /**
     * Uses one of the host's own controls, found by its label as the host has given it: clicks a button, flips a check
     * box, or picks from the menu of the accept button, which also accepts.
     * @return false, with nothing done, when there is no such control, or it is hidden or disabled
     */
    bool userClicks(const QString& label);
    /** @copydoc userClicks(const QString&) */
    bool userToggles(const QString& label);
    /** @copydoc userClicks(const QString&) */
    bool userPicksItem(const QString& label);
    /** The same by the controls' numbers, whatever their state. The controls must be there. */
    void userClicks(DWORD control);
    /** @copydoc userClicks(DWORD) */
    void userToggles(DWORD control);
    /** @copydoc userClicks(DWORD) */
    void userPicksItem(DWORD control, DWORD item);

    /** Calls every advised sink, as the dialog itself does. */
    HRESULT fire(const std::function<HRESULT(IFileDialogEvents&)>& call);
    /** The same for those that have the interface for controls. */
    HRESULT fireControls(const std::function<HRESULT(IFileDialogControlEvents&)>& call);

    // What a user sees. These calls are not recorded.
    /** Include testing/RecordingControls.h to look at them. */
    RecordingControls& controls() { return *m_controls; }
    /** Whether Show runs. */
    bool isShown() const { return m_running; }
    /** Whether it is the dialog for saving. */
    bool isSaving() const { return m_saving; }
    /** As the host has set it; empty before. */
    QString title() const { return m_title; }
    /** What stands in the field for the name. */
    QString fileName() const { return m_fileName.value_or(QString()); }
    /** With slashes; the process's own directory when the host has set none. */
    QString folder() const;
    /** Description and patterns, such as "Text" and "*.txt;*.log", of each file type. */
    const std::vector<std::pair<QString, QString>>& types() const { return m_types; }
    /** The position of the chosen type, counted from 1; 0 without types. */
    UINT typeIndex() const { return m_typeIndex; }
    /** The window that the dialog was shown over; null for none. */
    HWND owner() const { return m_owner; }

    /** QueryInterface that is not recorded. */
    HRESULT give(REFIID iid, void** object);

    /** @cond for the class that implements the interface */
protected:
    /** Opens the dialog for the user and the script; returns what Show returns. */
    HRESULT run(HWND owner);

    RecordingShell& m_shell;
    const bool m_saving;
    FILEOPENDIALOGOPTIONS m_options;
    std::vector<std::pair<QString, QString>> m_types;
    UINT m_typeIndex = 0;
    const std::unique_ptr<ui::EventSinks> m_sinks;
    std::optional<QString> m_fileName;
    QString m_folder;
    QString m_title;
    QString m_selected;
    const std::unique_ptr<RecordingControls> m_controls;
    HWND m_owner = nullptr;
    bool m_running = false;
    bool m_replaces = true;
    std::optional<HRESULT> m_outcome;
    QStringList m_results;
    /** @endcond */

private:
    void play();
    void announceOpening();
    void endByItself();
    void finish(HRESULT outcome);
    QStringList chosenPaths() const;
    bool mayReplace(const QString& path);
};

} // namespace morvane::test
