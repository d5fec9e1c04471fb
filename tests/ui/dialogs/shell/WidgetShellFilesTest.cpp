// Which files and folders a run of the widgets accepts.
#include "WidgetShellRunTest.h"

#include <QLineEdit>

namespace morvane::test {

namespace {

using namespace morvane::ui;

TEST_F(WidgetShellRun, severalFilesAreChosenByTheirQuotedNames)
{
    change(FOS_ALLOWMULTISELECT);
    const HRESULT hr = show([&](QFileDialog& window) {
        WidgetUser user(window);
        user.typeName(QStringLiteral("\"a.txt\" \"c.dat\""));
        user.pressAccept();
    });
    EXPECT_EQ(hr, S_OK);
    EXPECT_EQ(results(), (QStringList{QStringLiteral("a.txt"), QStringLiteral("c.dat")}));
    ComPtr<IShellItem> single;
    EXPECT_EQ(dialog->GetResult(single.put()), E_FAIL);
}

TEST_F(WidgetShellRun, severalFilesAreChosenInTheList)
{
    change(FOS_ALLOWMULTISELECT);
    const HRESULT hr = show([&](QFileDialog& window) {
        WidgetUser user(window);
        EXPECT_TRUE(QTest::qWaitFor([&] { return shownFiles(window).size() == 5; }));
        user.clickFile(QStringLiteral("a.txt"), Qt::ControlModifier);
        user.clickFile(QStringLiteral("b.txt"), Qt::ControlModifier);
        EXPECT_TRUE(QTest::qWaitFor([&] { return sink.count("OnSelectionChange") > 0; }));
        ComPtr<IShellItem> selected;
        EXPECT_EQ(dialog->GetCurrentSelection(selected.put()), S_OK);
        EXPECT_EQ(user.nameEdit()->text(), QStringLiteral("\"a.txt\" \"b.txt\""));
        user.pressAccept();
        window.reject();
    });
    EXPECT_EQ(hr, S_OK);
    EXPECT_EQ(results(), (QStringList{QStringLiteral("a.txt"), QStringLiteral("b.txt")}));
}

class WidgetShellMissingFile : public WidgetShellRun
{
protected:
    void expectRefused(const QString& typed)
    {
        const HRESULT hr = show([&](QFileDialog& window) {
            WidgetUser user(window);
            user.typeName(typed);
            pressAcceptAndReadMessage(user, "missing.txt");
            user.pressCancel();
        });
        EXPECT_EQ(hr, cancelled);
        EXPECT_EQ(sink.count("OnFileOk"), 0);
    }
};

TEST_F(WidgetShellMissingFile, isRefusedWithAMessage)
{
    expectRefused(QStringLiteral("missing.txt"));
}

TEST_F(WidgetShellRun, aMissingFolderIsRefusedOnlyWhenItMustExist)
{
    make(CLSID_FileSaveDialog);
    dialog->SetFileName(text("none/new.txt").c_str());
    const HRESULT hr = show([](QFileDialog& window) {
        WidgetUser user(window);
        pressAcceptAndReadMessage(user, "none");
        user.pressCancel();
    });
    EXPECT_EQ(hr, cancelled);
    change(0, FOS_PATHMUSTEXIST);
    EXPECT_EQ(show([](QFileDialog& window) { WidgetUser(window).pressAccept(); }), S_OK);
}

TEST_F(WidgetShellRun, picksFoldersAndTheOpenOneWhenNoneIsNamed)
{
    change(FOS_PICKFOLDERS, FOS_FILEMUSTEXIST);
    EXPECT_EQ(show([](QFileDialog& window) {
        WidgetUser user(window);
        user.typeName(QStringLiteral("inner"));
        user.pressAccept();
    }),
        S_OK);
    EXPECT_EQ(results(), QStringList(QStringLiteral("inner")));
    dialog->SetFileName(text("").c_str());
    EXPECT_EQ(show([](QFileDialog& window) { WidgetUser(window).pressAccept(); }), S_OK);
    EXPECT_EQ(results(), QStringList(QFileInfo(folder.path()).fileName()));
}

TEST_F(WidgetShellRun, theDefaultExtensionCompletesNamesWithoutOne)
{
    make(CLSID_FileSaveDialog);
    dialog->SetDefaultExtension(text("log").c_str());
    for (const auto& [typed, got] : {std::pair("new", "new.log"), {"new.txt", "new.txt"}}) {
        dialog->SetFileName(text(typed).c_str());
        ASSERT_EQ(show([](QFileDialog& window) { WidgetUser(window).pressAccept(); }), S_OK);
        ComPtr<IShellItem> item;
        ASSERT_EQ(dialog->GetResult(item.put()), S_OK);
        LPWSTR name = nullptr;
        item->GetDisplayName(SIGDN_NORMALDISPLAY, &name);
        EXPECT_EQ(toUtf8(name), got);
        shell.coTaskMemFree(name);
    }
}

#ifndef _WIN32
TEST_F(WidgetShellRun, aNameMayBeginWithAColon)
{
    make(CLSID_FileSaveDialog);
    dialog->SetFileName(text(":notes").c_str());
    ASSERT_EQ(show([](QFileDialog& window) { WidgetUser(window).pressAccept(); }), S_OK);
    ComPtr<IShellItem> item;
    ASSERT_EQ(dialog->GetResult(item.put()), S_OK);
    LPWSTR name = nullptr;
    item->GetDisplayName(SIGDN_FILESYSPATH, &name);
    EXPECT_EQ(toQString(name), folder.path() + QStringLiteral("/:notes"));
    shell.coTaskMemFree(name);
}
#endif

TEST_F(WidgetShellRun, enterInTheNameFieldAccepts)
{
    dialog->SetFileName(text("a.txt").c_str());
    EXPECT_EQ(show([](QFileDialog& window) { QTest::keyClick(WidgetUser(window).nameEdit(), Qt::Key_Return); }), S_OK);
    EXPECT_EQ(results(), QStringList(QStringLiteral("a.txt")));
}

TEST_F(WidgetShellRun, aSaveDialogAsksForOneFileHoweverManyMayBeChosen)
{
    make(CLSID_FileSaveDialog);
    change(FOS_ALLOWMULTISELECT | FOS_FILEMUSTEXIST, FOS_OVERWRITEPROMPT);
    const HRESULT hr = show([](QFileDialog& window) {
        WidgetUser user(window);
        user.typeName(QStringLiteral("missing.txt"));
        pressAcceptAndReadMessage(user, "missing.txt");
        user.typeName(QStringLiteral("a.txt"));
        user.pressAccept();
    });
    EXPECT_EQ(hr, S_OK);
    EXPECT_EQ(sink.count("OnFileOk"), 1);
    ComPtr<IShellItem> item;
    EXPECT_EQ(dialog->GetResult(item.put()), S_OK);
}

TEST_F(WidgetShellMissingFile, isRefusedAmongSeveral)
{
    change(FOS_ALLOWMULTISELECT);
    expectRefused(QStringLiteral("\"a.txt\" \"missing.txt\""));
}

TEST_F(WidgetShellRun, closingTheDialogWithTheFolderThatIsTypedAsksNothingMore)
{
    const HRESULT hr = show([&](QFileDialog& window) {
        WidgetUser user(window);
        window.setDirectory(folder.filePath(QStringLiteral("inner"))); // told only when the loop runs again
        sink.on["OnFolderChange"] = [&] { return dialog->Close(E_ABORT); };
        user.typeName(QStringLiteral("missing.txt"));
        user.pressAccept();
    });
    EXPECT_EQ(hr, E_ABORT);
    EXPECT_EQ(sink.count("OnFileOk"), 0);
}

} // namespace

} // namespace morvane::test
