// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// File types, and the extension of the typed name that follows them in a save dialog. The Shell under test may change
// extensions on its own, so the tests expect results that only our rule gives.
#include "windows/NativeDialogFixture.h"

using namespace morvane::test;

namespace {

using NativeDialogType = NativeDialogTest;

TEST_F(NativeDialogType, chosenTypeReachesTheIndexAndItsObservers)
{
    const auto dialog = makeDialog(QFileDialog::AcceptOpen, "Data (*.dat);;Text (*.txt);;All (*)");
    std::vector<int> announced;
    dialog->currentFilterIndex()->signalValueChanged.connect(
        [&announced](const int& index) { announced.push_back(index); });
    run(*dialog, [](NativeDialog& shown) {
        shown.chooseType(2);
        shown.chooseType(1);
        shown.cancel();
    });
    EXPECT_EQ(announced, (std::vector<int>{3, 2}));
    EXPECT_EQ(dialog->currentFilterIndex()->value(), 2);
    EXPECT_EQ(dialog->selectedNameFilter(), QStringLiteral("Text (*.txt)"));
}

TEST_F(NativeDialogType, extensionFollowsTheTypeBothWays)
{
    const auto dialog = makeDialog(QFileDialog::AcceptSave, "Data (*.dat);;All (*)");
    run(*dialog, [](NativeDialog& shown) {
        shown.setName(L"出力.dat");
        shown.chooseType(1);
        EXPECT_EQ(shown.name(), L"出力");
        shown.chooseType(0);
        EXPECT_EQ(shown.name(), L"出力.dat");
        shown.cancel();
    });
}

TEST_F(NativeDialogType, textOfTheLastParenthesesIsTheExtension)
{
    const auto dialog = makeDialog(QFileDialog::AcceptSave, "All (*);;Images (*.png *.jpg)");
    run(*dialog, [](NativeDialog& shown) {
        shown.setName(L"photo.old");
        shown.chooseType(1);
        EXPECT_EQ(shown.name(), L"photo.png *.jpg");
        shown.cancel();
    });
}

TEST_F(NativeDialogType, onlyTheLastExtensionIsReplaced)
{
    const auto dialog = makeDialog(QFileDialog::AcceptSave, "All (*);;Images (*.png *.jpg)");
    run(*dialog, [](NativeDialog& shown) {
        shown.setName(L"\U0001F4E6.tar.gz");
        shown.chooseType(1);
        EXPECT_EQ(shown.name(), L"\U0001F4E6.tar.png *.jpg");
        shown.cancel();
    });
}

TEST_F(NativeDialogType, nameIsOpenedWithAsItWasGiven)
{
    struct Opening
    {
        const char* filter;
        const char* given;
        const wchar_t* opened;
    };
    for (const Opening& opening : {Opening{"All files (*.*);;Data (*.dat)", "report2.txt", L"report2.txt"},
             Opening{"All files (*.*);;Data (*.dat)", "report2", L"report2"},
             Opening{"Data (*.dat);;All (*)", "report2.txt", L"report2.txt"},
             Opening{"Data (*.dat);;All (*)", "report2", L"report2.dat"},
             Opening{"Images (*.png *.jpg)", "photo", L"photo"}}) {
        const auto dialog = makeDialog(QFileDialog::AcceptSave, opening.filter);
        dialog->selectFile(QString::fromUtf8(opening.given));
        run(*dialog, [&opening](NativeDialog& shown) {
            EXPECT_EQ(shown.name(), opening.opened) << opening.filter;
            shown.cancel();
        });
    }
}

TEST_F(NativeDialogType, nameStaysInAnOpenDialog)
{
    const auto dialog = makeDialog(QFileDialog::AcceptOpen, "Data (*.dat);;All (*)");
    run(*dialog, [](NativeDialog& shown) {
        shown.setName(L"input.dat");
        shown.chooseType(1);
        EXPECT_EQ(shown.name(), L"input.dat");
        shown.cancel();
    });
}

TEST_F(NativeDialogType, emptyNameStaysEmpty)
{
    const auto dialog = makeDialog(QFileDialog::AcceptSave, "Data (*.dat);;All (*)");
    run(*dialog, [](NativeDialog& shown) {
        shown.setName(L"");
        shown.chooseType(1);
        EXPECT_EQ(shown.name(), L"");
        shown.cancel();
    });
}

} // namespace
