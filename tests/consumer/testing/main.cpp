// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// The test of a host: it checks what a function does with the result of the dialog that it opens.
#include "testing/RecordingDialog.h"
#include "testing/RecordingShell.h"
#include "ui/qt/dialogs/LaunchFileDialog.h"

#include <QApplication>
#include <QDir>

namespace {

std::string askForTarget()
{
    std::vector<std::string> files;
    int filter = 0;
    const std::vector<std::string> filters = {"Data (*.dat)", "Text (*.txt)"};
    const bool chosen = morvane::ui::LaunchFileDialog(files, filter, "Target", filters, {}, true, false, 0);
    return chosen && files.size() == 1 ? files.front() : std::string();
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    morvane::test::RecordingShell shell;
    const morvane::ui::ShellOverride guard(shell);

    shell.script.duringShow = [](morvane::test::RecordingDialog& dialog) {
        dialog.userEntersFolder(QDir::rootPath());
        dialog.userTypesName(QStringLiteral("new.dat"));
        dialog.userAccepts();
    };
    const bool accepted = QString::fromStdString(askForTarget()).endsWith(QStringLiteral("new.dat"));

    shell.script.duringShow = [](morvane::test::RecordingDialog& dialog) { dialog.userCancels(); };
    const bool cancelled = askForTarget().empty();

    return accepted && cancelled && shell.count("IFileDialog::Show") == 2 && shell.liveObjects() == 0 ? 0 : 1;
}
