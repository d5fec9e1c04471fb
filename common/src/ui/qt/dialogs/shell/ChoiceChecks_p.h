// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/dialogs/shell/FileDialogObserver_p.h"
#include "ui/qt/dialogs/shell/FileDialogSettings_p.h"

#include <QMessageBox>
#include <QPointer>

namespace morvane::ui {

/**
 * The Shell's checks of the paths that the user has chosen. Errors are shown in a message box over the window.
 *
 * The window may be destroyed while a message box is open, and by the observer. The check fails then.
 */
class ChoiceChecks
{
public:
    /** @p settings and @p observer are not used after the window was destroyed. */
    ChoiceChecks(QWidget& window, const FileDialogSettings& settings, FileDialogObserver& observer);

    /** Whether all files and folders exist that must exist. */
    bool exist(const QStringList& paths);
    /** Whether all of the files that exist may be replaced. Asks the observer first, then the user. */
    bool mayReplaceAll(const QStringList& paths);
    void tellMissingFolder(const QString& path);

private:
    bool exists(const QString& path);
    bool mayReplace(const QString& path);
    QMessageBox::StandardButton ask(
        const QString& text, QMessageBox::StandardButtons buttons, QMessageBox::StandardButton defaultButton);

    const QPointer<QWidget> m_window;
    const FileDialogSettings& m_settings;
    FileDialogObserver& m_observer;
};

} // namespace morvane::ui
