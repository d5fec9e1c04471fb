// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/dialogs/shell/ComPtr.h"
#include "ui/qt/dialogs/shell/Shell.h"

#include <QStringList>

#include <optional>
#include <string>

namespace morvane::ui {

/** Reads which files were chosen, as paths in the platform's form. A path that cannot be read is left out. */
class NativeResults
{
public:
    /** @param dialog must not be null */
    NativeResults(Shell& shell, const ComPtr<IFileDialog>& dialog);

    /**
     * Returns the files that were chosen in the last run.
     * @param typedName the text of the name field that the user accepted. The paths are read
     *                  from it in a save dialog with several names, because such a dialog has no list of results.
     */
    QStringList read(const std::optional<std::string>& typedName) const;

private:
    QStringList one() const;
    QStringList several(IFileOpenDialog& dialog) const;
    QStringList typed(const std::string& name) const;
    void append(QStringList& paths, IShellItem& item) const;

    Shell& m_shell;
    const ComPtr<IFileDialog>& m_dialog;
};

} // namespace morvane::ui
