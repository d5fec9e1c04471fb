// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// A test of code that saves. The test answers the dialog and the questions after it.

#include "testing/QuestionScript.h"
#include "testing/RecordingDialog.h"
#include "testing/RecordingShell.h"
#include "ui/qt/dialogs/SaveFileDialog.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>

// The function to test: returns the name to save to, or an empty one if the user cancels.
static std::string askForReport(const QString& folder)
{
    SaveFileDialog dialog(nullptr, "Save report", folder, "report", "Text (*.txt)", "");
    return dialog.launch() ? dialog.selectedFilename() : "";
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
    const QTemporaryDir folder;
    const QString report = folder.filePath("report.txt");
    check("there is an old report", QFile(report).open(QIODevice::WriteOnly));

    morvane::test::RecordingShell shell;
    const morvane::ui::ShellOverride guard(shell);
    shell.script.duringShow = [](morvane::test::RecordingDialog& dialog) { dialog.userAccepts(); };

    //! [questions]
    morvane::test::QuestionScript user;
    user.answers("already exists", QMessageBox::No); // shows the dialog again
    user.answers("already exists", QMessageBox::Yes);
    check("the old report is replaced in the end", askForReport(folder.path()) == report.toStdString());
    check("the user was asked twice and nothing else", user.isFinished());
    //! [questions]

    //! [leaks]
    check("nothing is held any more", shell.leakedObjects() == 0);
    //! [leaks]
    return failures;
}
