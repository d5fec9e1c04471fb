// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// What a host may do to a dialog of our own Shells while it runs.
#include "contract/PortableShells.h"

namespace morvane::test {

namespace {

TEST_P(PortableShellContract, aTypeThatIsSetWhileItRunsIsChosenWithoutAWord)
{
    prepare();
    show([&](ShellUser& user) {
        EXPECT_EQ(dialog->SetFileTypeIndex(2), S_OK);
        EXPECT_EQ(typeIndex(), 2u);
        user.pressCancel();
    });
    EXPECT_EQ(typeIndex(), 2u);
    EXPECT_EQ(sink->count("OnTypeChange 2"), 0);
}

TEST_P(PortableShellContract, aFolderThatIsSetWhileItRunsIsEnteredLikeTheUsers)
{
    prepare();
    show([&](ShellUser& user) {
        EXPECT_EQ(dialog->SetFolder(itemFor(path(QStringLiteral("inner"))).get()), S_OK);
        EXPECT_EQ(sink->count("OnFolderChanging inner"), 1);
        EXPECT_EQ(sink->count("OnFolderChange inner"), 1);
        user.pressCancel();
    });
    ui::ComPtr<IShellItem> read;
    ASSERT_EQ(dialog->GetFolder(read.put()), S_OK);
    EXPECT_EQ(pathOf(read.get()), path(QStringLiteral("inner")));
}

TEST_P(PortableShellContract, textsMayBeSetWhileItRuns)
{
    prepare();
    show([&](ShellUser& user) {
        EXPECT_EQ(dialog->SetTitle(text("Another title").c_str()), S_OK);
        EXPECT_EQ(dialog->SetOkButtonLabel(text("Take").c_str()), S_OK);
        EXPECT_EQ(dialog->SetFileNameLabel(text("Called").c_str()), S_OK);
        EXPECT_EQ(dialog->SetDefaultExtension(text("txt").c_str()), S_OK);
        setFileName(QStringLiteral("b.txt"));
        EXPECT_EQ(fileName(), QStringLiteral("b.txt"));
        user.pressAccept();
    });
    EXPECT_EQ(result(), path(QStringLiteral("b.txt")));
}

TEST_P(PortableShellContract, hasNoFileNameBeforeOneIsSetOrItRuns)
{
    dialog = makeDialog();
    auto* read = reinterpret_cast<WCHAR*>(this);
    EXPECT_EQ(dialog->GetFileName(&read), E_FAIL);
    EXPECT_EQ(read, nullptr);
    show([&](ShellUser& user) {
        EXPECT_EQ(fileName(), QString());
        user.pressCancel();
    });
}

TEST_P(PortableShellContract, hasNoSelectionUnlessItRunsAndAFileIsSelected)
{
    prepare();
    const auto open = dialog.query<IFileOpenDialog>();
    const auto expectNothing = [&] {
        auto* item = reinterpret_cast<IShellItem*>(this);
        EXPECT_EQ(dialog->GetCurrentSelection(&item), E_FAIL);
        EXPECT_EQ(item, nullptr);
        auto* items = reinterpret_cast<IShellItemArray*>(this);
        EXPECT_EQ(open->GetSelectedItems(&items), E_FAIL);
        EXPECT_EQ(items, nullptr);
    };
    expectNothing();
    show([&](ShellUser& user) {
        expectNothing();
        user.pressCancel();
    });
}

TEST_P(PortableShellContract, theSelectionIsTheFileThatTheUserSelects)
{
    prepare();
    const auto open = dialog.query<IFileOpenDialog>();
    show([&](ShellUser& user) {
        user.selectFile(path(QStringLiteral("b.txt")));
        ui::ComPtr<IShellItem> item;
        ASSERT_EQ(dialog->GetCurrentSelection(item.put()), S_OK);
        EXPECT_EQ(pathOf(item.get()), path(QStringLiteral("b.txt")));
        ui::ComPtr<IShellItemArray> items;
        ASSERT_EQ(open->GetSelectedItems(items.put()), S_OK);
        DWORD count = 0;
        EXPECT_EQ(items->GetCount(&count), S_OK);
        EXPECT_EQ(count, 1u);
        user.pressCancel();
    });
}

TEST_P(PortableShellContract, startsInTheDefaultFolderUnlessAnotherIsSet)
{
    dialog = makeDialog();
    ui::ComPtr<IShellItem> read;
    ASSERT_EQ(dialog->GetFolder(read.put()), S_OK);
    EXPECT_EQ(pathOf(read.get()), QDir::currentPath());
    ASSERT_EQ(dialog->SetDefaultFolder(itemFor(folder.path()).get()), S_OK);
    ASSERT_EQ(dialog->GetFolder(read.put()), S_OK);
    EXPECT_EQ(pathOf(read.get()), folder.path());
    ASSERT_EQ(dialog->SetFolder(itemFor(path(QStringLiteral("inner"))).get()), S_OK);
    ASSERT_EQ(dialog->SetDefaultFolder(itemFor(folder.path()).get()), S_OK);
    ASSERT_EQ(dialog->GetFolder(read.put()), S_OK);
    EXPECT_EQ(pathOf(read.get()), path(QStringLiteral("inner")));
}

TEST_P(PortableShellContract, aSinkThatAnotherTakesBackIsNotTold)
{
    prepare();
    LoggingSink second(shell());
    DWORD secondCookie = 0;
    ASSERT_EQ(dialog->Advise(&second, &secondCookie), S_OK);
    sink->on["OnFolderChanging"] = [&] { return dialog->Unadvise(secondCookie); };
    show([](ShellUser& user) { user.pressCancel(); });
    EXPECT_TRUE(second.log.empty());
    EXPECT_EQ(second.references, 1u);
}

TEST_P(PortableShellContract, theFirstSinkThatDecidesAboutReplacingDecides)
{
    prepare(CLSID_FileSaveDialog);
    LoggingSink second(shell());
    DWORD secondCookie = 0;
    ASSERT_EQ(dialog->Advise(&second, &secondCookie), S_OK);
    setFileName(QStringLiteral("a.txt"));
    second.overwriteResponse = FDEOR_ACCEPT;
    for (LoggingSink* const each : {sink.get(), &second}) {
        each->on["OnOverwrite"] = [] { return S_OK; };
    }
    EXPECT_EQ(show([](ShellUser& user) { user.pressAccept(); }), S_OK) << "the first leaves it to the second";
    sink->overwriteResponse = FDEOR_REFUSE;
    EXPECT_EQ(show([](ShellUser& user) { user.pressAccept(); }), cancelled);
    EXPECT_EQ(second.count("OnOverwrite a.txt"), 1);
    EXPECT_EQ(dialog->Unadvise(secondCookie), S_OK);
}

TEST_P(PortableShellContract, aDecisionThatFailsCountsForNone)
{
    prepare(CLSID_FileSaveDialog);
    setFileName(QStringLiteral("a.txt"));
    sink->overwriteResponse = FDEOR_ACCEPT;
    sink->on["OnOverwrite"] = [] { return S_FALSE; };
    EXPECT_EQ(show([](ShellUser& user) { user.pressAcceptAndAnswer(false); }), cancelled);
}

TEST_P(PortableShellContract, closingInTheQuestionOfTheSinkEndsTheRun)
{
    prepare(CLSID_FileSaveDialog);
    setFileName(QStringLiteral("a.txt"));
    sink->overwriteResponse = FDEOR_ACCEPT;
    sink->on["OnOverwrite"] = [&] { return dialog->Close(S_OK); };
    EXPECT_EQ(show([](ShellUser& user) { user.pressAccept(); }), S_OK);
    EXPECT_EQ(sink->count("OnFileOk"), 0);
    EXPECT_EQ(result(), QStringLiteral("failed: 8000ffff"));
}

TEST_P(PortableShellContract, acceptsNothingWithoutAName)
{
    prepare();
    setFileName(QString());
    EXPECT_EQ(show([](ShellUser& user) { user.pressAccept(); }), cancelled);
    EXPECT_EQ(sink->count("OnFileOk"), 0);
}

TEST_P(PortableShellContract, staysWithTheTypeThatIsPickedAgain)
{
    prepare();
    show([](ShellUser& user) {
        user.pickType(2);
        user.pickType(2);
        user.pressCancel();
    });
    EXPECT_EQ(sink->count("OnTypeChange 2"), 1);
}

} // namespace

} // namespace morvane::test
