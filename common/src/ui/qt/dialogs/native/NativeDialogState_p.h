// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/dialogs/shell/ComPtr.h"
#include "ui/qt/dialogs/shell/Shell.h"

#include <QFileDialog>
#include <QStringList>

#include <optional>
#include <string>

namespace morvane::ui {

/**
 * Passes settings to the Shell's dialog, and remembers the folder, the file type and the name that the user has chosen.
 *
 * Not every Shell keeps these values from run to run. So bringBack() sets the values that the user has changed again.
 * In a Shell that has kept them, this changes nothing.
 */
class NativeDialogState
{
public:
    /** @param dialog the owner's pointer, which must be set before an operation is called */
    NativeDialogState(Shell& shell, const ComPtr<IFileDialog>& dialog);

    // Texts are UTF-8.
    void tellTitle(const std::string& title);
    void tellOptions(QFileDialog::FileMode mode, bool asksBeforeOverwriting);
    /** @param asDefault whether a folder that the Shell has kept takes precedence */
    void tellFolder(const std::string& folder, bool asDefault = false);
    /** Adds a folder to the list of places. */
    void tellPlace(const std::string& folder, FDAP where);
    void tellFileTypes(const QStringList& nameFilters);
    /** @param count the length of the list of file types */
    void tellFileType(int type, int count);
    /** @param dialog the dialog that the Shell passes with an event, or the one of this object */
    void tellFileName(IFileDialog& dialog, const std::string& name);

    /** Sets the folder, the file type and the name again if the user has changed them in the previous run. */
    void bringBack(int typeCount);
    /** Forgets the folder and the name of the previous run. */
    void beginRun();

    void folderShown(const QString& path);
    /** Returns whether the Shell showed another file type before. */
    bool typeShown(int type);
    void nameAccepted(const std::string& name) { m_acceptedName = name; }
    /** The text of the name field when the user accepted last in this run, even if the dialog refused it. */
    const std::optional<std::string>& acceptedName() const { return m_acceptedName; }

private:
    /** Empty if there is no such folder. */
    ComPtr<IShellItem> itemFor(std::string path) const;

    Shell& m_shell;
    const ComPtr<IFileDialog>& m_dialog;

    /** The file type that the Shell shows, and the one that was set last. Counted from 1; 0 without types. */
    int m_shownType = 0;
    int m_toldType = 0;
    /** The folder in which this run opened, and the folder shown now. Empty until the Shell reports a folder. */
    QString m_openedFolder;
    QString m_leftFolder;
    /** The name that was set last, and the name that the user has accepted in a save dialog. */
    std::string m_toldName;
    std::optional<std::string> m_acceptedName;
};

} // namespace morvane::ui
