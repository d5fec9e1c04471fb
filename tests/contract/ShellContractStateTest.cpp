// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "contract/ShellContract.h"

namespace morvane::test {

namespace {

TEST_P(ShellContract, createsNothingForAnUnknownClass)
{
    ui::ComPtr<IFileDialog> made;
    EXPECT_TRUE(
        FAILED(shell().coCreateInstance(IID_IUnknown, nullptr, CLSCTX_INPROC_SERVER, IID_IFileDialog, made.putVoid())));
    EXPECT_FALSE(made);
}

TEST_P(ShellContract, joinsTheApartmentASecondTime)
{
    EXPECT_EQ(shell().coInitializeEx(nullptr, COINIT_APARTMENTTHREADED), S_FALSE);
    shell().coUninitialize();
}

TEST_P(ShellContract, openDialogHasTheInterfacesForSeveralFilesAndControls)
{
    dialog = makeDialog();
    EXPECT_TRUE(dialog.query<IFileOpenDialog>());
    EXPECT_TRUE(dialog.query<IFileDialogCustomize>());
    EXPECT_FALSE(dialog.query<IShellItem>());
}

TEST_P(ShellContract, saveDialogIsNoOpenDialog)
{
    dialog = makeDialog(CLSID_FileSaveDialog);
    EXPECT_FALSE(dialog.query<IFileOpenDialog>());
}

TEST_P(ShellContract, controlsShareTheIdentityOfTheDialog)
{
    dialog = makeDialog();
    customize = dialog.query<IFileDialogCustomize>();
    EXPECT_EQ(customize.query<IUnknown>().get(), dialog.query<IUnknown>().get());
    EXPECT_EQ(customize.query<IFileDialog>().get(), dialog.get());
}

TEST_P(ShellContract, startsWithTheOptionsOfTheShell)
{
    dialog = makeDialog();
    EXPECT_EQ(options(), 0x1808u);
    dialog = makeDialog(CLSID_FileSaveDialog);
    EXPECT_EQ(options(), 0x880Au);
}

TEST_P(ShellContract, readsBackTheOptionsThatWereSet)
{
    dialog = makeDialog();
    changeOptions(FOS_PICKFOLDERS | FOS_ALLOWMULTISELECT, FOS_FILEMUSTEXIST);
    EXPECT_EQ(options(), 0x0A28u);
}

TEST_P(ShellContract, takesTypesOnlyOnce)
{
    dialog = makeDialog();
    setTypes();
    const COMDLG_FILTERSPEC type{nullptr, nullptr};
    EXPECT_EQ(dialog->SetFileTypes(1, &type), E_UNEXPECTED);
}

TEST_P(ShellContract, refusesAnEmptyListOfTypes)
{
    dialog = makeDialog();
    EXPECT_EQ(dialog->SetFileTypes(0, nullptr), E_INVALIDARG);
}

TEST_P(ShellContract, hasNoTypeIndexBeforeThereAreTypes)
{
    dialog = makeDialog();
    EXPECT_EQ(typeIndex(), 0u);
    EXPECT_EQ(dialog->SetFileTypeIndex(1), E_FAIL);
    EXPECT_EQ(typeIndex(), 0u);
}

TEST_P(ShellContract, keepsTheTypeIndexWithinTheTypes)
{
    dialog = makeDialog();
    setTypes();
    EXPECT_EQ(typeIndex(), 1u);
    for (const auto& [asked, got] : {std::pair(0u, 1u), {1u, 1u}, {2u, 2u}, {3u, 2u}, {0xFFFFFFFFu, 2u}}) {
        EXPECT_EQ(dialog->SetFileTypeIndex(asked), S_OK);
        EXPECT_EQ(typeIndex(), got) << asked;
    }
}

TEST_P(ShellContract, readsBackTheFileName)
{
    dialog = makeDialog();
    setFileName(QString::fromUtf8("Größe \xF0\x9F\x98\x80.txt"));
    EXPECT_EQ(fileName(), QString::fromUtf8("Größe \xF0\x9F\x98\x80.txt"));
    setFileName(QString());
    EXPECT_EQ(fileName(), QString());
}

TEST_P(ShellContract, readsBackTheFolder)
{
    dialog = makeDialog();
    ASSERT_EQ(dialog->SetFolder(itemFor(folder.path()).get()), S_OK);
    ui::ComPtr<IShellItem> read;
    ASSERT_EQ(dialog->GetFolder(read.put()), S_OK);
    EXPECT_EQ(pathOf(read.get()), folder.path());
}

TEST_P(ShellContract, makesNoItemForAPathThatDoesNotExist)
{
    ui::ComPtr<IShellItem> item;
    const auto name = ui::toShellString(QDir::toNativeSeparators(path(QStringLiteral("nothing"))));
    EXPECT_EQ(shell().createItemFromParsingName(name.c_str(), nullptr, IID_IShellItem, item.putVoid()),
        HRESULT_FROM_WIN32(ERROR_FILE_NOT_FOUND));
    EXPECT_FALSE(item);
}

TEST_P(ShellContract, understandsBackslashesInParsingNames)
{
    QString name = path(QStringLiteral("a.txt"));
    name.replace(QLatin1Char('/'), QLatin1Char('\\'));
    ui::ComPtr<IShellItem> item;
    ASSERT_EQ(
        shell().createItemFromParsingName(ui::toShellString(name).c_str(), nullptr, IID_IShellItem, item.putVoid()),
        S_OK);
    EXPECT_EQ(pathOf(item.get()), path(QStringLiteral("a.txt")));
}

TEST_P(ShellContract, hasNoResultBeforeItWasShown)
{
    dialog = makeDialog();
    ui::ComPtr<IShellItem> item;
    EXPECT_EQ(dialog->GetResult(item.put()), E_UNEXPECTED);
    ui::ComPtr<IShellItemArray> items;
    EXPECT_TRUE(FAILED(dialog.query<IFileOpenDialog>()->GetResults(items.put())));
    EXPECT_FALSE(item);
    EXPECT_FALSE(items);
}

TEST_P(ShellContract, holdsEachAdvisedSinkByOneReference)
{
    dialog = makeDialog();
    DWORD first = 0;
    DWORD second = 0;
    ASSERT_EQ(dialog->Advise(sink.get(), &first), S_OK);
    ASSERT_EQ(dialog->Advise(sink.get(), &second), S_OK);
    EXPECT_NE(first, second);
    EXPECT_EQ(sink->references, 3u);
    EXPECT_EQ(dialog->Unadvise(first), S_OK);
    EXPECT_EQ(dialog->Unadvise(second), S_OK);
    EXPECT_EQ(sink->references, 1u);
}

TEST_P(ShellContract, refusesACookieThatIsNotAdvised)
{
    dialog = makeDialog();
    EXPECT_TRUE(FAILED(dialog->Unadvise(7)));
    DWORD once = 0;
    ASSERT_EQ(dialog->Advise(sink.get(), &once), S_OK);
    EXPECT_EQ(dialog->Unadvise(once), S_OK);
    EXPECT_TRUE(FAILED(dialog->Unadvise(once)));
}

TEST_P(ShellContract, releasesItsSinksAtItsEnd)
{
    dialog = makeDialog();
    DWORD unused = 0;
    ASSERT_EQ(dialog->Advise(sink.get(), &unused), S_OK);
    dialog.reset();
    EXPECT_EQ(sink->references, 1u);
}

TEST_P(ShellContract, closingBeforeItIsShownIsHarmless)
{
    prepare();
    dialog->Close(S_OK);
    EXPECT_EQ(show([](ShellUser& user) { user.pressCancel(); }), cancelled);
}

} // namespace

} // namespace morvane::test
