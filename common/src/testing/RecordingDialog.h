// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

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
 * A dialog of a RecordingShell, for opening or for saving. Its `user…` operations do what a user does while Show runs.
 * They call the host's callbacks before they return. Call them in ShellScript::duringShow. If the user neither accepts
 * nor cancels there, the dialog is cancelled, unless the script sets results or showResult (see ShellScript).
 *
 * It is reference-counted, and the dialog class of the library holds the last reference. Do not use a pointer to it
 * after that dialog object is destroyed.
 *
 * @snippet 27-test-your-dialogs/main.cpp accept
 */
class RecordingDialog : public IFileOpenDialog
{
public:
    /** @cond created by the shell, as a class that implements the interface */
    RecordingDialog(RecordingShell& shell, bool saving);
    virtual ~RecordingDialog();
    RecordingDialog(const RecordingDialog&) = delete;
    RecordingDialog& operator=(const RecordingDialog&) = delete;
    /** @endcond */

    /**
     * Presses Open or Save. Like a real dialog, it stays open if there is no name, if a file to open does not exist
     * (but see ShellScript::results), if the host or the user refuses to replace a file, or if a sink's OnFileOk does
     * not return S_OK or E_NOTIMPL.
     */
    void userAccepts();
    /** Presses Cancel or Escape. */
    void userCancels();
    /** Replaces the text of the name field. @param name a name in the folder, or a path with slashes */
    void userTypesName(const QString& name) { m_fileName = name; }
    /** Chooses a file type. @param index position in the list of file types, counted from 1 */
    void userPicksType(UINT index);
    /** Opens another folder; the host may refuse it. @param folder absolute path with slashes */
    void userEntersFolder(const QString& folder);
    /** Selects a file in the list without accepting it. @param path absolute path with slashes */
    void userSelects(const QString& path);
    /**
     * Sets the answer to the question whether a file may be replaced, for the case that no sink decides; initially yes.
     */
    void userAnswersOverwriting(bool yes) { m_replaces = yes; }

    /**
     * Uses one of the host's own controls, which is found by the label that the host passed: clicks a button, toggles a
     * check box, or picks an item from the menu of the accept button, which also accepts.
     * @return false if there is no such control, or it is hidden or disabled; nothing is done then
     */
    bool userClicks(const QString& label);
    /** @copydoc userClicks(const QString&) */
    bool userToggles(const QString& label);
    /** @copydoc userClicks(const QString&) */
    bool userPicksItem(const QString& label);
    /**
     * Chooses an entry of a combo box or of a list of radio buttons, which is found by its label.
     * @param label    the label that the host passed
     * @param position the entry, counted from 0
     * @return false if there is no such list or entry, or one of them is hidden or disabled; nothing is done then
     */
    bool userChooses(const QString& label, int position);
    /**
     * Replaces the text in an edit box, which is found by its label. As in a real dialog, no event tells the host; it
     * reads the text at the next event, and when the dialog is accepted or closed.
     * @return false if there is no such edit box, or it is hidden or disabled; nothing is done then
     */
    bool userTypes(const QString& label, const QString& text);
    /** The same with the identifiers of the controls, also if they are hidden or disabled. The controls must exist. */
    void userClicks(DWORD control);
    /** @copydoc userClicks(DWORD) */
    void userToggles(DWORD control);
    /** @copydoc userClicks(DWORD) */
    void userPicksItem(DWORD control, DWORD item);
    /** @copydoc userClicks(DWORD) */
    void userChooses(DWORD control, DWORD item);
    /** @copydoc userClicks(DWORD) */
    void userTypes(DWORD control, const QString& text);

    /**
     * Calls the advised sinks in order, as the dialog itself does. Stops at the first result other than S_OK and
     * E_NOTIMPL, and returns it.
     */
    HRESULT fire(const std::function<HRESULT(IFileDialogEvents&)>& call);
    /** The same for the sinks that implement IFileDialogControlEvents. */
    HRESULT fireControls(const std::function<HRESULT(IFileDialogControlEvents&)>& call);

    // What a user sees. These functions are not recorded.
    /** The custom controls. Include testing/RecordingControls.h to use them. */
    RecordingControls& controls() { return *m_controls; }
    /** Whether Show is running. */
    bool isShown() const { return m_running; }
    /** Whether it is the dialog for saving. */
    bool isSaving() const { return m_saving; }
    /** The title that the host set; empty before that. */
    QString title() const { return m_title; }
    /** The text that the host has set for the accept button; empty if it has set none. */
    QString acceptButtonText() const { return m_acceptButtonText; }
    /** The label that the host has set for the name field; empty if it has set none. */
    QString fileNameLabel() const { return m_fileNameLabel; }
    /** The folders that the host has added to the places, those at the top first. */
    QStringList places() const { return m_topPlaces + m_bottomPlaces; }
    /** The text of the name field. */
    QString fileName() const { return m_fileName.value_or(QString()); }
    /** The folder, with slashes; the process's current directory if the host set none. */
    QString folder() const;
    /** The description and the patterns of each file type, such as "Text" and "*.txt;*.log". */
    const std::vector<std::pair<QString, QString>>& types() const { return m_types; }
    /** The position of the chosen type, counted from 1; 0 if there are no types. */
    UINT typeIndex() const { return m_typeIndex; }
    /** The owner window that was passed to Show; null for none. */
    HWND owner() const { return m_owner; }

    /** QueryInterface without recording the call. */
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
    QString m_defaultFolder;
    std::string m_client; // identifier under which the folder is kept
    QString m_title;
    QString m_acceptButtonText;
    QString m_fileNameLabel;
    QStringList m_topPlaces;
    QStringList m_bottomPlaces;
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
