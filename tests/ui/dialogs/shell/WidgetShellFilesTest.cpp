// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// The files and folders that a dialog of widgets accepts.
#include "WidgetShellRunTest.h"

#include <QLineEdit>

namespace morvane::test {

namespace {

class WidgetShellFiles : public WidgetShellRun
{
};

using namespace morvane::ui;

TEST_F(WidgetShellFiles, severalFilesAreChosenByTheirQuotedNames)
{
    change(FOS_ALLOWMULTISELECT);
    const HRESULT hr = show([&](QFileDialog& window) {
        const FileDialogDriver driver = FileDialogDriver::whenActive(window);
        driver.typeName(QStringLiteral("\"a.txt\" \"c.dat\""));
        driver.pressAccept();
    });
    EXPECT_EQ(hr, S_OK);
    EXPECT_EQ(results(), (QStringList{QStringLiteral("a.txt"), QStringLiteral("c.dat")}));
    ComPtr<IShellItem> single;
    EXPECT_EQ(dialog->GetResult(single.put()), E_FAIL);
}

TEST_F(WidgetShellFiles, severalFilesAreChosenInTheList)
{
    change(FOS_ALLOWMULTISELECT);
    const HRESULT hr = show([&](QFileDialog& window) {
        const FileDialogDriver driver = FileDialogDriver::whenActive(window);
        EXPECT_TRUE(QTest::qWaitFor([&] { return shownFiles(window).size() == 5; }));
        driver.clickFile(QStringLiteral("a.txt"), Qt::ControlModifier);
        driver.clickFile(QStringLiteral("b.txt"), Qt::ControlModifier);
        EXPECT_TRUE(QTest::qWaitFor([&] { return sink.count("OnSelectionChange") > 0; }));
        ComPtr<IShellItem> selected;
        EXPECT_EQ(dialog->GetCurrentSelection(selected.put()), S_OK);
        EXPECT_EQ(driver.name(), QStringLiteral("\"a.txt\" \"b.txt\""));
        driver.pressAccept();
        window.reject();
    });
    EXPECT_EQ(hr, S_OK);
    EXPECT_EQ(results(), (QStringList{QStringLiteral("a.txt"), QStringLiteral("b.txt")}));
}

class WidgetShellFilesMissing : public WidgetShellRun
{
protected:
    void expectRefused(const QString& typed)
    {
        const HRESULT hr = show([&](QFileDialog& window) {
            const FileDialogDriver driver = FileDialogDriver::whenActive(window);
            driver.typeName(typed);
            pressAcceptAndReadMessage(driver, "missing.txt");
            driver.pressCancel();
        });
        EXPECT_EQ(hr, cancelled);
        EXPECT_EQ(sink.count("OnFileOk"), 0);
    }
};

TEST_F(WidgetShellFilesMissing, isRefusedWithAMessage)
{
    expectRefused(QStringLiteral("missing.txt"));
}

TEST_F(WidgetShellFiles, aMissingFolderIsRefusedOnlyWhenItMustExist)
{
    make(CLSID_FileSaveDialog);
    dialog->SetFileName(text("none/new.txt").c_str());
    const HRESULT hr = show([](QFileDialog& window) {
        const FileDialogDriver driver = FileDialogDriver::whenActive(window);
        pressAcceptAndReadMessage(driver, "none");
        driver.pressCancel();
    });
    EXPECT_EQ(hr, cancelled);
    change(0, FOS_PATHMUSTEXIST);
    EXPECT_EQ(show([](QFileDialog& window) { FileDialogDriver::whenActive(window).pressAccept(); }), S_OK);
}

TEST_F(WidgetShellFiles, picksFoldersAndTheOpenOneWhenNoneIsNamed)
{
    change(FOS_PICKFOLDERS, FOS_FILEMUSTEXIST);
    EXPECT_EQ(show([](QFileDialog& window) {
        const FileDialogDriver driver = FileDialogDriver::whenActive(window);
        driver.typeName(QStringLiteral("inner"));
        driver.pressAccept();
    }),
        S_OK);
    EXPECT_EQ(results(), QStringList(QStringLiteral("inner")));
    dialog->SetFileName(text("").c_str());
    EXPECT_EQ(show([](QFileDialog& window) { FileDialogDriver::whenActive(window).pressAccept(); }), S_OK);
    EXPECT_EQ(results(), QStringList(QFileInfo(folder.path()).fileName()));
}

TEST_F(WidgetShellFiles, theDefaultExtensionCompletesNamesWithoutOne)
{
    make(CLSID_FileSaveDialog);
    dialog->SetDefaultExtension(text("log").c_str());
    for (const auto& [typed, got] : {std::pair("new", "new.log"), {"new.txt", "new.txt"}}) {
        dialog->SetFileName(text(typed).c_str());
        ASSERT_EQ(show([](QFileDialog& window) { FileDialogDriver::whenActive(window).pressAccept(); }), S_OK);
        ComPtr<IShellItem> item;
        ASSERT_EQ(dialog->GetResult(item.put()), S_OK);
        LPWSTR name = nullptr;
        item->GetDisplayName(SIGDN_NORMALDISPLAY, &name);
        EXPECT_EQ(toUtf8(name), got);
        shell.coTaskMemFree(name);
    }
}

#ifndef _WIN32
TEST_F(WidgetShellFiles, aNameMayBeginWithAColon)
{
    make(CLSID_FileSaveDialog);
    dialog->SetFileName(text(":notes").c_str());
    ASSERT_EQ(show([](QFileDialog& window) { FileDialogDriver::whenActive(window).pressAccept(); }), S_OK);
    ComPtr<IShellItem> item;
    ASSERT_EQ(dialog->GetResult(item.put()), S_OK);
    LPWSTR name = nullptr;
    item->GetDisplayName(SIGDN_FILESYSPATH, &name);
    EXPECT_EQ(toQString(name), folder.path() + QStringLiteral("/:notes"));
    shell.coTaskMemFree(name);
}
#endif

TEST_F(WidgetShellFiles, enterInTheNameFieldAccepts)
{
    dialog->SetFileName(text("a.txt").c_str());
    EXPECT_EQ(show([](QFileDialog& window) { FileDialogDriver::whenActive(window).pressEnter(); }), S_OK);
    EXPECT_EQ(results(), QStringList(QStringLiteral("a.txt")));
}

TEST_F(WidgetShellFiles, aSaveDialogAsksForOneFileHoweverManyMayBeChosen)
{
    make(CLSID_FileSaveDialog);
    change(FOS_ALLOWMULTISELECT | FOS_FILEMUSTEXIST, FOS_OVERWRITEPROMPT);
    const HRESULT hr = show([](QFileDialog& window) {
        const FileDialogDriver driver = FileDialogDriver::whenActive(window);
        driver.typeName(QStringLiteral("missing.txt"));
        pressAcceptAndReadMessage(driver, "missing.txt");
        driver.typeName(QStringLiteral("a.txt"));
        driver.pressAccept();
    });
    EXPECT_EQ(hr, S_OK);
    EXPECT_EQ(sink.count("OnFileOk"), 1);
    ComPtr<IShellItem> item;
    EXPECT_EQ(dialog->GetResult(item.put()), S_OK);
}

TEST_F(WidgetShellFilesMissing, isRefusedAmongSeveral)
{
    change(FOS_ALLOWMULTISELECT);
    expectRefused(QStringLiteral("\"a.txt\" \"missing.txt\""));
}

TEST_F(WidgetShellFiles, closingTheDialogWithTheFolderThatIsTypedAsksNothingMore)
{
    const HRESULT hr = show([&](QFileDialog& window) {
        const FileDialogDriver driver = FileDialogDriver::whenActive(window);
        window.setDirectory(folder.filePath(QStringLiteral("inner"))); // the sink is told only when the loop runs again
        sink.on["OnFolderChange"] = [&] { return dialog->Close(E_ABORT); };
        driver.typeName(QStringLiteral("missing.txt"));
        driver.pressAccept();
    });
    EXPECT_EQ(hr, E_ABORT);
    EXPECT_EQ(sink.count("OnFileOk"), 0);
}

} // namespace

} // namespace morvane::test
