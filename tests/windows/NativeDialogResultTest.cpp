// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// How a run ends and what it leaves behind.
#include "support/ModalScript.h"
#include "ui/qt/dialogs/ExtendedFileDialog.h"
#include "ui/qt/dialogs/LaunchFileDialog.h"
#include "windows/NativeDialogFixture.h"

using namespace morvane::test;

namespace {

using NativeDialogResult = NativeDialogTest;

TEST_F(NativeDialogResult, cancelIsRejected)
{
    const auto dialog = makeDialog(QFileDialog::AcceptOpen);
    EXPECT_EQ(run(*dialog, [](NativeDialog& shown) { shown.cancel(); }), QDialog::Rejected);
    EXPECT_TRUE(dialog->selectedFiles().isEmpty());
}

TEST_F(NativeDialogResult, namesBeyondTheBasicPlaneAndWithBlanksArePicked)
{
    for (const QString& name : {QStringLiteral(u"\U0001F600 smile.dat"), QStringLiteral(u"三つ の 空白.dat"),
             QStringLiteral("a  b.dat"), QStringLiteral(u"\u00fcber.dat")}) {
        makeFile(name);
        const auto dialog = makeDialog(QFileDialog::AcceptOpen);
        dialog->setFileMode(QFileDialog::ExistingFile);
        const auto result = run(*dialog, [&name](NativeDialog& shown) { shown.accept(name.toStdWString()); });
        EXPECT_EQ(result, QDialog::Accepted) << name.toStdString();
        EXPECT_EQ(dialog->selectedFiles(), QStringList(path(name)));
    }
}

TEST_F(NativeDialogResult, severalFilesAreReportedInTheOrderTyped)
{
    makeFile(QStringLiteral("b.dat"));
    makeFile(QStringLiteral(u"写 真.dat"));
    const auto dialog = makeDialog(QFileDialog::AcceptOpen);
    dialog->setFileMode(QFileDialog::ExistingFiles);
    const auto result = run(*dialog, [](NativeDialog& shown) { shown.accept(L"\"b.dat\" \"写 真.dat\""); });
    EXPECT_EQ(result, QDialog::Accepted);
    const QStringList expected{path(QStringLiteral("b.dat")), path(QStringLiteral(u"写 真.dat"))};
    EXPECT_EQ(dialog->selectedFiles(), expected);
}

TEST_F(NativeDialogResult, missingFileIsRefusedWhereOneMustExist)
{
    makeFile(QStringLiteral("there.dat"));
    const auto dialog = makeDialog(QFileDialog::AcceptOpen);
    dialog->setFileMode(QFileDialog::ExistingFile);
    const auto result = run(*dialog, [](NativeDialog& shown) {
        shown.accept(L"missing.dat");
        EXPECT_TRUE(shown.waitForQuestion());
        shown.answer(IDOK);
        EXPECT_TRUE(waitUntil([&shown] { return !shown.hasQuestion(); }));
        shown.accept(L"there.dat");
    });
    EXPECT_EQ(result, QDialog::Accepted);
    EXPECT_EQ(dialog->selectedFiles(), QStringList(path(QStringLiteral("there.dat"))));
}

TEST_F(NativeDialogResult, folderIsPicked)
{
    makeFolder(QStringLiteral(u"フォルダ"));
    const auto dialog = makeDialog(QFileDialog::AcceptOpen, "");
    dialog->setFileMode(QFileDialog::Directory);
    const auto result = run(*dialog, [](NativeDialog& shown) { shown.accept(L"フォルダ"); });
    EXPECT_EQ(result, QDialog::Accepted);
    EXPECT_EQ(dialog->selectedFiles(), QStringList(path(QStringLiteral(u"フォルダ"))));
}

TEST_F(NativeDialogResult, overwritingIsAskedFor)
{
    makeFile(QStringLiteral("old.dat"));
    const auto dialog = makeDialog(QFileDialog::AcceptSave);
    const auto result = run(*dialog, [](NativeDialog& shown) {
        shown.accept(L"old.dat");
        EXPECT_TRUE(shown.waitForQuestion());
        shown.answer(IDNO);
        EXPECT_TRUE(waitUntil([&shown] { return !shown.hasQuestion(); }));
        EXPECT_TRUE(shown.isOpen());
        shown.accept(L"old.dat");
        EXPECT_TRUE(shown.waitForQuestion());
        shown.answer(IDYES);
    });
    EXPECT_EQ(result, QDialog::Accepted);
    EXPECT_EQ(dialog->selectedFiles(), QStringList(path(QStringLiteral("old.dat"))));
}

TEST_F(NativeDialogResult, overwritingGoesWithoutQuestionWhenSwitchedOff)
{
    makeFile(QStringLiteral("old.dat"));
    const auto dialog = makeDialog(QFileDialog::AcceptSave);
    dialog->setDontConfirmOverwrite(true);
    bool asked = true;
    const auto result = run(*dialog, [&asked](NativeDialog& shown) {
        shown.accept(L"old.dat");
        waitUntil([&shown] { return !shown.isOpen() || shown.hasQuestion(); });
        asked = shown.hasQuestion();
    });
    EXPECT_EQ(result, QDialog::Accepted);
    EXPECT_FALSE(asked);
}

TEST_F(NativeDialogResult, folderThatTheUserEntersReachesTheDirectory)
{
    const QString folder = QStringLiteral(u"下 \U0001F4C1");
    makeFolder(folder);
    makeFile(folder + QStringLiteral("/one.dat"));
    makeFile(folder + QStringLiteral("/two.dat"));
    const auto dialog = makeDialog(QFileDialog::AcceptOpen);
    EXPECT_EQ(dialog->directory(), QDir(directory()));
    const auto result = run(*dialog, [](NativeDialog& shown) {
        EXPECT_TRUE(waitUntil([&shown] { return shown.listedFiles() == 1; }));
        shown.accept(L"下 \U0001F4C1");
        EXPECT_TRUE(waitUntil([&shown] { return shown.listedFiles() == 2; }));
        shown.cancel();
    });
    EXPECT_EQ(result, QDialog::Rejected);
    EXPECT_EQ(dialog->directory().path(), QDir(path(folder)).path());
}

TEST_F(NativeDialogResult, closeGivesNoFileOfTheRunBefore)
{
    makeFile(QStringLiteral("one.dat"));
    const auto dialog = makeDialog(QFileDialog::AcceptOpen);
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->addCustomButton("Close", [&dialog] { dialog->close(); });
    EXPECT_EQ(run(*dialog, [](NativeDialog& shown) { shown.accept(L"one.dat"); }), QDialog::Accepted);
    EXPECT_EQ(dialog->selectedFiles(), QStringList(path(QStringLiteral("one.dat"))));
    const auto result = run(*dialog, [](NativeDialog& shown) { shown.press(NativeDialog::customControl(0)); });
    EXPECT_EQ(result, QDialog::Accepted);
    EXPECT_TRUE(dialog->selectedFiles().isEmpty());
}

TEST_F(NativeDialogResult, secondRunKeepsTypeAndControls)
{
    const auto dialog = makeDialog(QFileDialog::AcceptOpen, "Data (*.dat);;Text (*.txt)");
    int clicks = 0;
    dialog->addCustomButton("Count", [&clicks] { ++clicks; });
    run(*dialog, [](NativeDialog& shown) {
        shown.chooseType(1);
        shown.cancel();
    });
    EXPECT_EQ(dialog->selectedNameFilter(), QStringLiteral("Text (*.txt)"));
    const auto result = run(*dialog, [&clicks](NativeDialog& shown) {
        EXPECT_EQ(shown.title(), L"Native");
        EXPECT_EQ(shown.typeIndex(), 1);
        shown.press(NativeDialog::customControl(0));
        EXPECT_TRUE(waitUntil([&clicks] { return clicks == 1; }));
        shown.cancel();
    });
    EXPECT_EQ(result, QDialog::Rejected);
    EXPECT_EQ(clicks, 1);
}

TEST_F(NativeDialogResult, launcherRunsTheNativeDialogWhileTheSwitchIsOn)
{
    makeFile(QStringLiteral(u"起動 \U0001F680.dat"));
    ASSERT_TRUE(ExtendedFileDialog::useNativeFileDialog());
    std::vector<std::string> files;
    int filter = -1;
    const std::string start = path(QStringLiteral(u"起動 \U0001F680.dat")).toStdString();
    bool accepted = false;
    {
        const DialogUser user([](NativeDialog& shown) {
            EXPECT_EQ(shown.title(), L"Launched");
            EXPECT_EQ(shown.name(), L"起動 \U0001F680.dat");
            EXPECT_EQ(shown.typeIndex(), 1);
            shown.accept();
        });
        accepted = morvane::ui::LaunchFileDialog(
            files, filter, "Launched", {"Text (*.txt)", "All (*)"}, {start}, false, false, 1);
    }
    EXPECT_TRUE(accepted);
    EXPECT_EQ(files, std::vector<std::string>{start});
    EXPECT_EQ(filter, 1);
}

TEST_F(NativeDialogResult, launcherReportsSeveralFilesAndWhatIsToBeSaved)
{
    makeFile(QStringLiteral("b.dat"));
    makeFile(QStringLiteral(u"写 真.dat"));
    const std::vector<std::string> both{
        path(QStringLiteral("b.dat")).toStdString(), path(QStringLiteral(u"写 真.dat")).toStdString()};
    std::vector<std::string> files;
    int filter = -1;
    {
        const DialogUser user([](NativeDialog& shown) { shown.accept(L"\"b.dat\" \"写 真.dat\""); });
        EXPECT_TRUE(
            morvane::ui::LaunchFileDialog(files, filter, "Several", {"All (*)"}, {both.front()}, false, true, 0));
    }
    EXPECT_EQ(files, both);
    {
        const DialogUser user([](NativeDialog& shown) { shown.accept(L"新 \U0001F195.dat"); });
        EXPECT_TRUE(morvane::ui::LaunchFileDialog(files, filter, "Save", {"All (*)"}, {both.front()}, true, false, 0));
    }
    EXPECT_EQ(files, std::vector<std::string>{path(QStringLiteral(u"新 \U0001F195.dat")).toStdString()});
}

TEST_F(NativeDialogResult, cancelledLauncherReportsNothing)
{
    std::vector<std::string> files;
    int filter = -1;
    const DialogUser user([](NativeDialog& shown) { shown.cancel(); });
    EXPECT_FALSE(morvane::ui::LaunchFileDialog(
        files, filter, "Cancelled", {"All (*)"}, {directory().toStdString()}, false, false, 0));
    EXPECT_TRUE(files.empty());
}

} // namespace
