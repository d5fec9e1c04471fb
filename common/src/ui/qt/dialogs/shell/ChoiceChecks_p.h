#pragma once

#include "ui/qt/dialogs/shell/FileDialogObserver_p.h"
#include "ui/qt/dialogs/shell/FileDialogSettings_p.h"

#include <QMessageBox>
#include <QPointer>

namespace morvane::ui {

/**
 * The Shell's checks of the paths that the user has chosen. What is wrong is told in a message box over the window.
 *
 * A message box and the observer may destroy the window; the check then has failed.
 */
class ChoiceChecks
{
public:
    /** @param settings and @p observer are not used once the window was destroyed */
    ChoiceChecks(QWidget& window, const FileDialogSettings& settings, FileDialogObserver& observer);

    /** Whether every file and folder is there that must be. */
    bool exist(const QStringList& paths);
    /** Whether every existing file among them may be replaced; the observer is asked before the user. */
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
