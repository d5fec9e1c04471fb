#pragma once

#include "ui/qt/dialogs/shell/ComPtr.h"
#include "ui/qt/dialogs/shell/Shell.h"

#include <QFileDialog>
#include <QStringList>

#include <optional>
#include <string>

namespace morvane::ui {

/**
 * What the Shell's dialog is told, and how the user leaves it.
 *
 * Not every Shell keeps folder, file type and name from run to run. This remembers what the user has changed and tells
 * it again; to a Shell that keeps it, that is nothing new.
 */
class NativeDialogState
{
public:
    /** @param dialog refers to the owner's pointer; not empty once an operation is called */
    NativeDialogState(Shell& shell, const ComPtr<IFileDialog>& dialog);

    // Texts are UTF-8.
    void tellTitle(const std::string& title);
    void tellOptions(QFileDialog::FileMode mode, bool asksBeforeOverwriting);
    void tellFolder(std::string folder);
    void tellFileTypes(const QStringList& nameFilters);
    /** @param count the length of the list of file types */
    void tellFileType(int type, int count);
    /** @param dialog as the Shell names it in an event, or the dialog itself */
    void tellFileName(IFileDialog& dialog, const std::string& name);

    /** Tells folder, file type and name again where the user has changed them in the run before. */
    void bringBack(int typeCount);
    /** Forgets how the user has left the dialog. */
    void beginRun();

    void folderShown(const QString& path);
    /** Returns whether it is another file type than the one shown before. */
    bool typeShown(int type);
    void nameAccepted(const std::string& name) { m_acceptedName = name; }
    /** As it was typed; empty when no name was accepted in this run. */
    const std::optional<std::string>& acceptedName() const { return m_acceptedName; }

private:
    Shell& m_shell;
    const ComPtr<IFileDialog>& m_dialog;

    /** The file type that the Shell shows, counted from 1, and the one that it was told; 0 without types. */
    int m_shownType = 0;
    int m_toldType = 0;
    /** The folder that this run opened in and the one that the user has gone to; empty before they are announced. */
    QString m_openedFolder;
    QString m_leftFolder;
    /** The name that the Shell was told, and the one that the user has accepted in a save dialog. */
    std::string m_toldName;
    std::optional<std::string> m_acceptedName;
};

} // namespace morvane::ui
