// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// What the dialog shows when it opens.
#include "windows/NativeDialogFixture.h"

using namespace morvane::test;

namespace {

using NativeDialogSetup = NativeDialogTest;

TEST_F(NativeDialogSetup, titleFolderAndFileNameArrive)
{
    ExtendedWinFileDialog dialog(
        m_window, u8"保存 \U0001F4BE", directory().toStdString(), "", "", QFileDialog::AcceptSave, false);
    dialog.selectFile(QStringLiteral("elsewhere/first name.dat"));
    const auto result = run(dialog, [](NativeDialog& shown) {
        EXPECT_EQ(shown.title(), L"保存 \U0001F4BE");
        EXPECT_EQ(shown.name(), L"first name.dat");
        shown.accept();
    });
    EXPECT_EQ(result, QDialog::Accepted);
    EXPECT_EQ(dialog.selectedFiles(), QStringList(path(QStringLiteral("first name.dat"))));
}

TEST_F(NativeDialogSetup, descriptionsOfTheFiltersArriveInOrder)
{
    const auto dialog = makeDialog(QFileDialog::AcceptOpen, u8"図 (*.png *.jpg);;*.raw;;All (*)");
    run(*dialog, [](NativeDialog& shown) {
        const auto types = shown.types();
        EXPECT_EQ(types.size(), 3U);
        EXPECT_TRUE(types.size() == 3 && types[0].find(L"図") == 0) << types.size();
        EXPECT_TRUE(types.size() == 3 && types[1].find(L"File of Type") == 0);
        EXPECT_TRUE(types.size() == 3 && types[2].find(L"All") == 0);
        EXPECT_EQ(shown.typeIndex(), 0);
        shown.cancel();
    });
}

TEST_F(NativeDialogSetup, patternsOfTheChosenFilterDecideWhatIsListed)
{
    for (const char* const name : {"a.png", "b.jpg", "c.txt", "d.dat"}) {
        makeFile(QString::fromLatin1(name));
    }
    const auto dialog = makeDialog(QFileDialog::AcceptOpen, "Images (*.png *.jpg);;Text (*.txt);;All (*)");
    run(*dialog, [](NativeDialog& shown) {
        EXPECT_TRUE(waitUntil([&shown] { return shown.listedFiles() == 2; })) << shown.listedFiles();
        shown.chooseType(1);
        EXPECT_TRUE(waitUntil([&shown] { return shown.listedFiles() == 1; })) << shown.listedFiles();
        shown.chooseType(2);
        EXPECT_TRUE(waitUntil([&shown] { return shown.listedFiles() == 4; })) << shown.listedFiles();
        shown.cancel();
    });
}

TEST_F(NativeDialogSetup, chosenFilterIsSelectedAtTheStart)
{
    const auto dialog = makeDialog(QFileDialog::AcceptOpen, "Data (*.dat);;Text (*.txt);;All (*)");
    dialog->selectNameFilter(QStringLiteral("All (*)"));
    run(*dialog, [](NativeDialog& shown) {
        EXPECT_EQ(shown.typeIndex(), 2);
        shown.cancel();
    });
    EXPECT_EQ(dialog->selectedNameFilter(), QStringLiteral("All (*)"));
}

TEST_F(NativeDialogSetup, existingFileAsDirectoryOpensItsFolderWithAnEmptyName)
{
    makeFile(QStringLiteral(u"日本.dat"));
    ExtendedWinFileDialog dialog(m_window, "Native", path(QStringLiteral(u"日本.dat")).toStdString(), "All (*)", "",
        QFileDialog::AcceptOpen, false);
    const auto result = run(dialog, [](NativeDialog& shown) {
        EXPECT_EQ(shown.name(), L"");
        shown.accept(L"日本.dat");
    });
    EXPECT_EQ(result, QDialog::Accepted);
    EXPECT_EQ(dialog.selectedFiles(), QStringList(path(QStringLiteral(u"日本.dat"))));
}

TEST_F(NativeDialogSetup, dialogWithoutFiltersShowsNoTypes)
{
    const auto dialog = makeDialog(QFileDialog::AcceptOpen, "");
    run(*dialog, [](NativeDialog& shown) {
        EXPECT_TRUE(shown.types().empty());
        EXPECT_FALSE(shown.isVisible(NativeDialog::Types));
        shown.cancel();
    });
}

} // namespace
