// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "contract/ShellContract.h"

namespace morvane::test {

namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::Not;

std::string last(const QTemporaryDir& folder)
{
    return QFileInfo(folder.path()).fileName().toStdString();
}

/** The log without the selection changes: no Shell promises how many of them there are. */
std::vector<std::string> foldersIn(std::vector<std::string> log)
{
    const auto isOther = [](const std::string& entry) { return entry.rfind("OnFolder", 0) != 0; };
    log.erase(std::remove_if(log.begin(), log.end(), isOther), log.end());
    return log;
}

TEST_P(ShellContract, reportsTheFileThatWasTyped)
{
    prepare();
    const HRESULT hr = show([](ShellUser& user) {
        user.typeName(QStringLiteral("b.txt"));
        user.pressAccept();
    });
    EXPECT_EQ(hr, S_OK);
    EXPECT_EQ(result(), path(QStringLiteral("b.txt")));
    EXPECT_EQ(results(), QStringList(path(QStringLiteral("b.txt"))));
}

TEST_P(ShellContract, cancellingGivesNoResult)
{
    prepare();
    setFileName(QStringLiteral("a.txt"));
    EXPECT_EQ(show([](ShellUser& user) { user.pressCancel(); }), cancelled);
    EXPECT_EQ(result(), QStringLiteral("failed: 8000ffff"));
    EXPECT_EQ(sink->count("OnFileOk"), 0);
}

TEST_P(ShellContract, announcesFolderAndTypeOnOpening)
{
    prepare();
    std::vector<std::string> opening;
    show([&](ShellUser& user) {
        opening = sink->log;
        user.pressCancel();
    });
    EXPECT_THAT(
        opening, ElementsAre("OnFolderChanging " + last(folder), "OnFolderChange " + last(folder), "OnTypeChange 1"));
}

TEST_P(ShellContract, announcesNoTypeWithoutTypes)
{
    dialog = makeDialog();
    ASSERT_EQ(dialog->Advise(sink.get(), &cookie), S_OK);
    show([](ShellUser& user) { user.pressCancel(); });
    EXPECT_THAT(sink->log, Not(Contains("OnTypeChange 0")));
    EXPECT_EQ(typeIndex(), 0u);
}

TEST_P(ShellContract, announcesEachTypeThatTheUserPicks)
{
    prepare();
    ASSERT_EQ(dialog->SetFileTypeIndex(2), S_OK);
    show([](ShellUser& user) {
        user.pickType(1);
        user.pickType(2);
        user.pressCancel();
    });
    const auto types = [this](const std::string& entry) { return sink->count(entry); };
    EXPECT_EQ(types("OnTypeChange 2"), 2);
    EXPECT_EQ(types("OnTypeChange 1"), 1);
    EXPECT_EQ(typeIndex(), 2u);
}

TEST_P(ShellContract, keepsTheNameThatTheSinkSetsOnATypeChange)
{
    prepare(CLSID_FileSaveDialog);
    setFileName(QStringLiteral("report.txt"));
    bool playing = false;
    sink->on["OnTypeChange"] = [&] {
        if (playing) {
            EXPECT_EQ(fileName(), QStringLiteral("report.txt"));
            setFileName(QStringLiteral("report.csv"));
        }
        return S_OK;
    };
    const HRESULT hr = show([&](ShellUser& user) {
        playing = true;
        user.pickType(2);
        EXPECT_EQ(fileName(), QStringLiteral("report.csv"));
        user.pressAccept();
    });
    EXPECT_EQ(hr, S_OK);
    EXPECT_EQ(result(), path(QStringLiteral("report.csv")));
}

TEST_P(ShellContract, readsTheNameWhileItIsTyped)
{
    prepare();
    QString typed;
    sink->on["OnTypeChange"] = [&] {
        typed = sink->log.size() > 3 ? fileName() : QString();
        return S_OK;
    };
    show([](ShellUser& user) {
        user.typeName(QStringLiteral("half a na"));
        user.pickType(2);
        user.pressCancel();
    });
    EXPECT_EQ(typed, QStringLiteral("half a na"));
}

TEST_P(ShellContract, followsTheUserIntoAFolder)
{
    prepare();
    show([&](ShellUser& user) {
        sink->log.clear();
        user.enterFolder(path(QStringLiteral("inner")));
        user.pressCancel();
    });
    EXPECT_THAT(foldersIn(sink->log), ElementsAre("OnFolderChanging inner", "OnFolderChange inner"));
    ui::ComPtr<IShellItem> read;
    ASSERT_EQ(dialog->GetFolder(read.put()), S_OK);
    EXPECT_EQ(pathOf(read.get()), path(QStringLiteral("inner")));
}

TEST_P(ShellContract, staysInTheFolderWhenTheSinkRefusesAnother)
{
    prepare();
    show([&](ShellUser& user) {
        sink->on["OnFolderChanging"] = [] { return E_ACCESSDENIED; };
        user.enterFolder(path(QStringLiteral("inner")));
        user.pressCancel();
    });
    EXPECT_EQ(sink->count("OnFolderChange inner"), 0);
    ui::ComPtr<IShellItem> read;
    ASSERT_EQ(dialog->GetFolder(read.put()), S_OK);
    EXPECT_EQ(pathOf(read.get()), folder.path());
}

TEST_P(ShellContract, resultIsThereDuringOnFileOk)
{
    prepare();
    setFileName(QStringLiteral("a.txt"));
    QString during;
    sink->on["OnFileOk"] = [&] {
        during = result();
        return S_OK;
    };
    EXPECT_EQ(show([](ShellUser& user) { user.pressAccept(); }), S_OK);
    EXPECT_EQ(during, path(QStringLiteral("a.txt")));
}

TEST_P(ShellContract, staysOpenWhenTheSinkRefusesTheChoice)
{
    prepare();
    setFileName(QStringLiteral("a.txt"));
    sink->on["OnFileOk"] = [&] { return sink->count("OnFileOk") == 1 ? S_FALSE : S_OK; };
    const HRESULT hr = show([&](ShellUser& user) {
        user.pressAccept();
        EXPECT_EQ(result(), QStringLiteral("failed: 8000ffff"));
        user.typeName(QStringLiteral("b.txt"));
        user.pressAccept();
    });
    EXPECT_EQ(hr, S_OK);
    EXPECT_EQ(sink->count("OnFileOk"), 2);
    EXPECT_EQ(result(), path(QStringLiteral("b.txt")));
}

TEST_P(ShellContract, refusesToBeShownWhileItIsShown)
{
    prepare();
    HRESULT nested = S_OK;
    show([&](ShellUser& user) {
        nested = dialog->Show(nullptr);
        user.pressCancel();
    });
    EXPECT_TRUE(FAILED(nested));
    EXPECT_EQ(show([](ShellUser& user) { user.pressCancel(); }), cancelled);
}

TEST_P(ShellContract, keepsFolderNameAndTypeFromRunToRun)
{
    prepare();
    show([&](ShellUser& user) {
        user.enterFolder(path(QStringLiteral("inner")));
        user.pickType(2);
        user.typeName(QStringLiteral("later.dat"));
        user.pressCancel();
    });
    QString name;
    sink->log.clear();
    show([&](ShellUser& user) {
        name = fileName();
        user.pressCancel();
    });
    EXPECT_EQ(name, QStringLiteral("later.dat"));
    EXPECT_THAT(sink->log, ElementsAre("OnFolderChanging inner", "OnFolderChange inner", "OnTypeChange 2"));
}

TEST_P(ShellContract, forgetsTheResultOfTheRunBefore)
{
    prepare();
    setFileName(QStringLiteral("a.txt"));
    ASSERT_EQ(show([](ShellUser& user) { user.pressAccept(); }), S_OK);
    ASSERT_EQ(show([](ShellUser& user) { user.pressCancel(); }), cancelled);
    EXPECT_EQ(result(), QStringLiteral("failed: 8000ffff"));
}

TEST_P(ShellContract, sinkMayLeaveDuringACallback)
{
    prepare();
    sink->on["OnFolderChange"] = [&] {
        EXPECT_EQ(dialog->Unadvise(cookie), S_OK);
        cookie = 0;
        return S_OK;
    };
    show([](ShellUser& user) { user.pressCancel(); });
    EXPECT_THAT(sink->log, ElementsAre("OnFolderChanging " + last(folder), "OnFolderChange " + last(folder)));
    EXPECT_EQ(sink->references, 1u);
}

TEST_P(ShellContract, tellsEverySinkInTheOrderOfAdvice)
{
    prepare();
    LoggingSink second(shell());
    DWORD secondCookie = 0;
    ASSERT_EQ(dialog->Advise(&second, &secondCookie), S_OK);
    second.on["OnTypeChange"] = [&] {
        EXPECT_EQ(sink->log.back(), "OnTypeChange 1");
        return S_OK;
    };
    show([](ShellUser& user) { user.pressCancel(); });
    EXPECT_EQ(second.log, sink->log);
    EXPECT_EQ(dialog->Unadvise(secondCookie), S_OK);
}

struct TerribleError
{
};

TEST_P(ShellContract, anExceptionWhileItOpensLeavesShowAndTheDialogStaysUsable)
{
    for (const char* const callback : {"OnFolderChanging", "OnFolderChange", "OnTypeChange"}) {
        prepare();
        setFileName(QStringLiteral("a.txt"));
        sink->on[callback] = []() -> HRESULT { throw TerribleError(); };
        EXPECT_THROW(dialog->Show(nullptr), TerribleError) << callback;
        sink->on.clear();
        EXPECT_EQ(show([](ShellUser& user) { user.pressAccept(); }), S_OK) << callback;
        dialog->Unadvise(cookie);
        cookie = 0;
    }
}

TEST_P(ShellContract, anExceptionWhileItRunsLeavesShowAndTheDialogStaysUsable)
{
    prepare();
    setFileName(QStringLiteral("a.txt"));
    sink->on["OnFileOk"] = []() -> HRESULT { throw TerribleError(); };
    EXPECT_THROW(show([](ShellUser& user) { user.pressAccept(); }), TerribleError);
    EXPECT_EQ(result(), QStringLiteral("failed: 8000ffff"));
    sink->on.clear();
    EXPECT_EQ(show([](ShellUser& user) { user.pressAccept(); }), S_OK);
}

TEST_P(ShellContract, asksTheSinkBeforeAFileIsReplaced)
{
    for (const auto& [response, expected] : {std::pair(FDEOR_ACCEPT, S_OK), {FDEOR_REFUSE, cancelled}}) {
        prepare(CLSID_FileSaveDialog);
        setFileName(QStringLiteral("a.txt"));
        sink->overwriteResponse = response;
        sink->on["OnOverwrite"] = [] { return S_OK; };
        EXPECT_EQ(show([](ShellUser& user) { user.pressAccept(); }), expected);
        EXPECT_EQ(sink->count("OnOverwrite a.txt"), 1);
        EXPECT_EQ(sink->count("OnFileOk"), response == FDEOR_ACCEPT ? 1 : 0);
        dialog->Unadvise(cookie);
        cookie = 0;
        sink->log.clear();
    }
}

TEST_P(ShellContract, asksTheUserBeforeAFileIsReplaced)
{
    for (const bool yes : {true, false}) {
        prepare(CLSID_FileSaveDialog);
        setFileName(QStringLiteral("a.txt"));
        const HRESULT hr = show([&](ShellUser& user) { user.pressAcceptAndAnswer(yes); });
        EXPECT_EQ(hr, yes ? S_OK : cancelled);
        dialog->Unadvise(cookie);
        cookie = 0;
    }
}

TEST_P(ShellContract, asksNothingWithoutTheOptionOrForANewFile)
{
    prepare(CLSID_FileSaveDialog);
    setFileName(QStringLiteral("new.txt"));
    EXPECT_EQ(show([](ShellUser& user) { user.pressAccept(); }), S_OK);
    changeOptions(0, FOS_OVERWRITEPROMPT);
    setFileName(QStringLiteral("a.txt"));
    EXPECT_EQ(show([](ShellUser& user) { user.pressAccept(); }), S_OK);
    EXPECT_EQ(sink->count("OnOverwrite a.txt") + sink->count("OnOverwrite new.txt"), 0);
}

TEST_P(ShellContract, openDialogNeverAsksAboutReplacing)
{
    prepare();
    changeOptions(FOS_OVERWRITEPROMPT, 0);
    setFileName(QStringLiteral("a.txt"));
    EXPECT_EQ(show([](ShellUser& user) { user.pressAccept(); }), S_OK);
    EXPECT_EQ(sink->count("OnOverwrite a.txt"), 0);
}

TEST_P(ShellContract, acceptsAMissingFileWhenItNeedNotExist)
{
    prepare();
    changeOptions(0, FOS_FILEMUSTEXIST | FOS_PATHMUSTEXIST);
    setFileName(QStringLiteral("missing.txt"));
    EXPECT_EQ(show([](ShellUser& user) { user.pressAccept(); }), S_OK);
    EXPECT_EQ(result(), path(QStringLiteral("missing.txt")));
}

TEST_P(ShellContract, isAliveUntilShowReturnsThoughReleasedInACallback)
{
    prepare();
    setFileName(QStringLiteral("a.txt"));
    IFileDialog* const running = dialog.get();
    sink->on["OnFileOk"] = [&] {
        running->Unadvise(cookie);
        cookie = 0;
        customize.reset();
        dialog.reset();
        return S_OK;
    };
    EXPECT_EQ(driver->show(*running, [](ShellUser& user) { user.pressAccept(); }), S_OK);
}

} // namespace

} // namespace morvane::test
