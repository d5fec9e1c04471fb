// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// Ending a dialog from within the callbacks of its sink.
#include "contract/ShellContract.h"

#include <QCoreApplication>

namespace morvane::test {

namespace {

TEST_P(ShellContract, closingFromACallbackEndsShowWithTheGivenResult)
{
    for (const HRESULT asked : {S_OK, E_ABORT, S_FALSE}) {
        prepare();
        setFileName(QStringLiteral("a.txt"));
        sink->on["OnFileOk"] = [&] { return dialog->Close(asked); };
        EXPECT_EQ(show([](ShellUser& user) { user.pressAccept(); }), asked);
        EXPECT_EQ(result(), QStringLiteral("failed: 8000ffff"));
        dialog->Unadvise(cookie);
        cookie = 0;
    }
}

TEST_P(ShellContract, closingWhileItOpensEndsShow)
{
    for (const char* const callback : {"OnFolderChanging", "OnFolderChange", "OnTypeChange"}) {
        prepare();
        sink->on.clear();
        sink->on[callback] = [&] { return dialog->Close(E_ABORT); };
        EXPECT_EQ(dialog->Show(nullptr), E_ABORT) << callback;
        dialog->Unadvise(cookie);
        cookie = 0;
    }
}

TEST_P(ShellContract, closingGivesNoResultWhateverIsTypedOrSelected)
{
    prepare();
    ASSERT_EQ(customize->AddPushButton(5, ui::toShellString(QStringLiteral("Done")).c_str()), S_OK);
    sink->on["OnButtonClicked"] = [&] { return dialog->Close(S_OK); };
    changeOptions(FOS_ALLOWMULTISELECT, 0);
    const HRESULT hr = show([&](ShellUser& user) {
        user.selectFile(path(QStringLiteral("a.txt")));
        user.typeName(QStringLiteral("b.txt"));
        user.clickButton(5, QStringLiteral("Done"));
    });
    EXPECT_EQ(hr, S_OK);
    EXPECT_EQ(result(), QStringLiteral("failed: 8000ffff"));
    ui::ComPtr<IShellItemArray> items;
    EXPECT_EQ(dialog.query<IFileOpenDialog>()->GetResults(items.put()), E_UNEXPECTED);
    EXPECT_EQ(sink->count("OnFileOk"), 0);
}

TEST_P(ShellContract, closingGivesNoResultOfTheRunBefore)
{
    prepare();
    setFileName(QStringLiteral("a.txt"));
    ASSERT_EQ(show([](ShellUser& user) { user.pressAccept(); }), S_OK);
    sink->on["OnTypeChange"] = [&] { return dialog->Close(S_OK); };
    EXPECT_EQ(dialog->Show(nullptr), S_OK);
    EXPECT_EQ(result(), QStringLiteral("failed: 8000ffff"));
}

struct Way
{
    const char* callback;
    const CLSID& clsid;
    std::function<void(ShellUser&, const QTemporaryDir&)> act;
};

const Way ways[] = {
    {"OnFolderChanging", CLSID_FileOpenDialog,
        [](ShellUser& user, const QTemporaryDir& folder) {
            user.enterFolder(folder.filePath(QStringLiteral("inner")));
        }},
    {"OnFolderChange", CLSID_FileOpenDialog,
        [](ShellUser& user, const QTemporaryDir& folder) {
            user.enterFolder(folder.filePath(QStringLiteral("inner")));
        }},
    {"OnSelectionChange", CLSID_FileOpenDialog,
        [](ShellUser& user, const QTemporaryDir& folder) {
            user.selectFile(folder.filePath(QStringLiteral("b.txt")));
        }},
    {"OnTypeChange", CLSID_FileSaveDialog, [](ShellUser& user, const QTemporaryDir&) { user.pickType(2); }},
    {"OnOverwrite", CLSID_FileSaveDialog, [](ShellUser& user, const QTemporaryDir&) { user.pressAccept(); }},
    {"OnFileOk", CLSID_FileOpenDialog, [](ShellUser& user, const QTemporaryDir&) { user.pressAccept(); }},
    {"OnButtonClicked", CLSID_FileOpenDialog,
        [](ShellUser& user, const QTemporaryDir&) { user.clickButton(5, QStringLiteral("Button")); }},
    {"OnCheckButtonToggled", CLSID_FileOpenDialog,
        [](ShellUser& user, const QTemporaryDir&) { user.toggleCheck(6, QStringLiteral("Check")); }},
    {"OnItemSelected", CLSID_FileOpenDialog,
        [](ShellUser& user, const QTemporaryDir&) { user.pickAcceptItem(0, 10, QStringLiteral("Item")); }},
};

TEST_P(ShellContract, closingFromEachCallbackEndsShow)
{
    for (const Way& way : ways) {
        SCOPED_TRACE(way.callback);
        prepare(way.clsid);
        ASSERT_EQ(customize->EnableOpenDropDown(0), S_OK);
        ASSERT_EQ(customize->AddControlItem(0, 10, ui::toShellString(QStringLiteral("Item")).c_str()), S_OK);
        ASSERT_EQ(customize->AddPushButton(5, ui::toShellString(QStringLiteral("Button")).c_str()), S_OK);
        ASSERT_EQ(customize->AddCheckButton(6, ui::toShellString(QStringLiteral("Check")).c_str(), FALSE), S_OK);
        setFileName(QStringLiteral("a.txt"));
        int heard = 0;
        const HRESULT hr = show([&](ShellUser& user) {
            QCoreApplication::processEvents();
            sink->on[way.callback] = [&] {
                ++heard;
                return dialog->Close(E_ABORT);
            };
            way.act(user, folder);
        });
        EXPECT_EQ(hr, E_ABORT);
        EXPECT_EQ(heard, 1) << "nothing is told once the dialog is closed";
        EXPECT_EQ(sink->count("OnFileOk"), std::string(way.callback) == "OnFileOk" ? 1 : 0);
        EXPECT_EQ(result(), QStringLiteral("failed: 8000ffff"));
        sink->on.clear();
        sink->log.clear();
        EXPECT_EQ(show([](ShellUser& user) { user.pressCancel(); }), cancelled) << "it can be shown again";
        dialog->Unadvise(cookie);
        cookie = 0;
        sink->log.clear();
    }
}

} // namespace

} // namespace morvane::test
