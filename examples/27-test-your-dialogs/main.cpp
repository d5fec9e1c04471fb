// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// A test of code that opens a file dialog. No window appears, and the test plays the user.

#include "testing/RecordingDialog.h"
#include "testing/RecordingShell.h"
#include "ui/qt/dialogs/LaunchFileDialog.h"

#include <QApplication>
#include <QTextStream>

// The function to test: returns the name to export to, or an empty one if the user cancels.
static std::string askForExport()
{
    std::vector<std::string> files;
    int filter = 0;
    const std::vector<std::string> filters = {"Data (*.dat)", "Text (*.txt)"};
    const bool save = true;
    return morvane::ui::LaunchFileDialog(files, filter, "Export", filters, {}, save, false, 0) ? files.front() : "";
}

static int failures = 0;

static void check(const char* what, bool holds)
{
    QTextStream(stdout) << (holds ? "passed: " : "FAILED: ") << what << '\n';
    failures += holds ? 0 : 1;
}

int main(int argc, char** argv)
{
    QApplication application(argc, argv);

    //! [shell]
    // From here to the end of main, the recording shell creates the native dialogs.
    morvane::test::RecordingShell shell;
    const morvane::ui::ShellOverride guard(shell);
    //! [shell]

    //! [accept]
    shell.script.duringShow = [](morvane::test::RecordingDialog& dialog) {
        dialog.userTypesName("result.dat");
        dialog.userAccepts();
    };
    check("the typed name is exported to", QString::fromStdString(askForExport()).endsWith("/result.dat"));
    //! [accept]

    //! [cancel]
    shell.script.duringShow = [](morvane::test::RecordingDialog& dialog) { dialog.userCancels(); };
    check("cancelling exports nothing", askForExport().empty());
    //! [cancel]

    //! [fail]
    shell.failCalls("IFileDialog::Show");
    check("neither does a dialog that the platform cannot show", askForExport().empty());
    check("every dialog was released", shell.liveObjects() == 0);
    //! [fail]
    return failures;
}
