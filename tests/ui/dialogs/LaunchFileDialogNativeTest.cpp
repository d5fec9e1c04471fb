// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// What the launcher passes to the native dialog, call by call.
#include "support/ActiveWindow.h"
#include "testing/RecordingDialog.h"
#include "testing/RecordingShell.h"
#include "ui/qt/dialogs/ExtendedFileDialog.h"
#include "ui/qt/dialogs/LaunchFileDialog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>
#include <QTest>
#include <QWidget>

#include <climits>

namespace morvane::test {

namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class LaunchFileDialogNative : public ::testing::Test
{
protected:
    using Texts = std::vector<std::string>;

    void TearDown() override { EXPECT_EQ(m_shell.liveObjects() + m_shell.liveStrings() + m_shell.apartments(), 0); }

    bool launch(const Texts& selection, bool save, bool several, int index)
    {
        m_shell.clearCalls();
        const bool result =
            ui::LaunchFileDialog(files, filterIndex, "Caption", filters, selection, save, several, index);
        for (std::string& file : files) { // they are in the platform's form
            file = QDir::fromNativeSeparators(QString::fromStdString(file)).toStdString();
        }
        return result;
    }
    int sentIndex() const
    {
        for (const std::string& call : m_shell.calls()) {
            if (call.rfind("IFileDialog::SetFileTypeIndex(", 0) == 0) {
                return std::stoi(call.substr(30));
            }
        }
        return -1;
    }

    RecordingShell m_shell;
    ui::ShellOverride m_override{m_shell};
    Texts filters{"Data (*.dat)", "Text (*.txt)"};
    Texts files{"old", "older", "oldest"};
    int filterIndex = -77;
};

TEST_F(LaunchFileDialogNative, showsAnOpenDialogWithoutOwnerFolderOrHelp)
{
    ASSERT_EQ(QApplication::activeWindow(), nullptr);
    m_shell.script.announcesOpening = false;
    m_shell.script.results = QStringList(QStringLiteral("/a.dat"));
    EXPECT_TRUE(launch({}, false, false, 1));
    EXPECT_THAT(m_shell.calls(),
        ElementsAre("CoInitializeEx(null, 6)", "CoCreateInstance(FileOpenDialog, null, 1, IFileDialog)",
            "QISearch(IFileDialogEvents)", "IFileDialog::Advise(sink)", "IFileDialog::SetTitle(\"Caption\")",
            "IFileDialog::GetOptions()", "IFileDialog::SetOptions(0x100A)",
            "IFileDialog::SetFileTypes(2, \"Data\" \"*.dat\", \"Text\" \"*.txt\")", "IFileDialog::SetFileTypeIndex(2)",
            "IFileDialog::SetFileName(\"\")", "IFileDialog::Show(null)", "IFileDialog::Unadvise(1)",
            "IFileDialog::GetOptions()", "IFileDialog::GetResult()", "IShellItem::GetDisplayName(SIGDN_FILESYSPATH)",
            "CoTaskMemFree(text)", "CoUninitialize()"));
    EXPECT_THAT(files, ElementsAre("/a.dat"));
    EXPECT_EQ(filterIndex, 1);
}

TEST_F(LaunchFileDialogNative, ownsTheDialogByTheActiveWindow)
{
    QWidget window;
    window.show();
    setActiveWindow(window);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    launch({}, false, false, 0);
    EXPECT_THAT(m_shell.calls(), Contains("IFileDialog::Show(owner)"));
}

TEST_F(LaunchFileDialogNative, choosesTheModeFromTheArguments)
{
    launch({}, false, false, 0);
    EXPECT_THAT(m_shell.calls(), Contains("IFileDialog::SetOptions(0x100A)"));
    launch({}, true, false, 0);
    EXPECT_THAT(m_shell.calls(), Contains("IFileDialog::SetOptions(0x800A)"));
    EXPECT_THAT(m_shell.calls(), Contains("CoCreateInstance(FileSaveDialog, null, 1, IFileDialog)"));
    launch({}, false, true, 0);
    EXPECT_THAT(m_shell.calls(), Contains("IFileDialog::SetOptions(0x120A)"));
    launch({}, true, true, 0);
    EXPECT_THAT(m_shell.calls(), Contains("IFileDialog::SetOptions(0x920A)")) << "several existing files win";
    EXPECT_THAT(m_shell.calls(), Contains("CoCreateInstance(FileSaveDialog, null, 1, IFileDialog)"));
}

TEST_F(LaunchFileDialogNative, quotesEachOfSeveralNamesAndEndsInABlank)
{
    launch({"/x y/a b.dat", "", "/x y/\xC3\xBC.dat"}, false, true, 0);
    EXPECT_THAT(m_shell.calls(), Contains("IFileDialog::SetFileName(\"\"a b.dat\" \"\xC3\xBC.dat\" \")"));
    launch({"/x y/a b.dat"}, false, true, 0);
    EXPECT_THAT(m_shell.calls(), Contains("IFileDialog::SetFileName(\"a b.dat\")"));
    launch({"/x/he said \"hi\".dat"}, false, true, 0);
    EXPECT_THAT(m_shell.calls(), Contains("IFileDialog::SetFileName(\"he said \"hi\".dat\")"));
    launch({"", ""}, false, true, 0);
    EXPECT_THAT(m_shell.calls(), Contains("IFileDialog::SetFileName(\"\")"));
}

TEST_F(LaunchFileDialogNative, handsOnOneNameUnchanged)
{
    launch({"a b.dat", "ignored.dat"}, false, false, 0);
    EXPECT_THAT(m_shell.calls(), Contains("IFileDialog::SetFileName(\"a b.dat\")"));
}

TEST_F(LaunchFileDialogNative, startsInTheFolderOfTheFirstName)
{
    const QTemporaryDir folder;
    launch({folder.filePath(QStringLiteral("out.dat")).toStdString()}, true, false, 0);
    EXPECT_THAT(m_shell.calls(), Contains("IFileDialog::SetFolder(" + folder.path().toStdString() + ")"));
    EXPECT_THAT(m_shell.calls(), Contains("IFileDialog::SetFileName(\"out.dat\")"));
    launch({}, true, false, 0);
    EXPECT_EQ(m_shell.count("IFileDialog::SetFolder"), 0);
    launch({"out.dat"}, true, false, 0);
    EXPECT_THAT(m_shell.calls(), Contains("IFileDialog::SetFolder(" + QDir::currentPath().toStdString() + ")"));
}

TEST_F(LaunchFileDialogNative, selectsNoFilterForAnIndexOutsideTheList)
{
    for (const int index : {-1, 2, INT_MAX, INT_MIN}) {
        for (const bool save : {false, true}) {
            for (const char* const first : {"Data (*.dat)", "All (*.*)"}) {
                filters[0] = first;
                launch({}, save, false, index);
                EXPECT_EQ(sentIndex(), 1) << "the dialog's own first choice, for " << index;
            }
        }
    }
}

TEST_F(LaunchFileDialogNative, selectsTheFilterInEveryMode)
{
    for (const char* const first : {"Data (*.dat)", "All (*.*)"}) {
        for (const bool save : {false, true}) {
            filters[0] = first;
            launch({"/x.dat"}, save, false, 1);
            EXPECT_EQ(sentIndex(), 2) << first << save;
        }
    }
}

TEST_F(LaunchFileDialogNative, leavesTheOutputsAloneUnlessAccepted)
{
    for (const HRESULT result : {HRESULT_FROM_WIN32(ERROR_CANCELLED), E_FAIL, S_FALSE}) {
        m_shell.script.showResult = result;
        EXPECT_FALSE(launch({}, false, true, 0));
    }
    m_shell.failCalls("CoInitializeEx");
    EXPECT_FALSE(launch({}, false, true, 0));
    m_shell.failNothing();
    m_shell.coInitializeEx(nullptr, 0); // balances the failed call: the apartment was left but not joined
    m_shell.failCalls("CoCreateInstance");
    EXPECT_FALSE(launch({}, false, true, 0));
    EXPECT_THAT(files, ElementsAre("old", "older", "oldest"));
    EXPECT_EQ(filterIndex, -77);
}

TEST_F(LaunchFileDialogNative, writesFewerAndMoreFilesThanThereWere)
{
    m_shell.script.results.clear();
    for (int i = 0; i < 5; ++i) {
        m_shell.script.results.append(QStringLiteral("/\u00FC%1").arg(i));
    }
    EXPECT_TRUE(launch({}, false, true, 0));
    EXPECT_THAT(files, ElementsAre("/\xC3\xBC"
                                   "0",
                           "/\xC3\xBC"
                           "1",
                           "/\xC3\xBC"
                           "2",
                           "/\xC3\xBC"
                           "3",
                           "/\xC3\xBC"
                           "4"));
    m_shell.failCalls("IFileDialog::GetResult");
    EXPECT_FALSE(launch({}, false, false, 0)) << "accepted, but without a file";
    EXPECT_EQ(files.size(), 5u) << "left alone";
}

TEST_F(LaunchFileDialogNative, givesTheFileOfASaveDialogThatAllowsSeveral)
{
    m_shell.script.results = QStringList(QStringLiteral("/a.dat"));
    EXPECT_TRUE(launch({}, true, true, 0));
    EXPECT_THAT(files, ElementsAre("/a.dat"));
    m_shell.script.results.clear();
    m_shell.script.duringShow = [](RecordingDialog& user) { user.userTypesName(QString()); };
    EXPECT_FALSE(launch({}, true, true, 0)) << "the Shell accepts, but has no file";
    EXPECT_THAT(files, ElementsAre("/a.dat"));
}

TEST_F(LaunchFileDialogNative, givesTheFilesThatItStartedWithWhenTheUserOnlyAccepts)
{
    const QTemporaryDir folder;
    Texts paths;
    for (const char* const name : {"a.dat", "b.dat"}) {
        QFile file(folder.filePath(QString::fromLatin1(name)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        paths.push_back(file.fileName().toStdString());
    }
    m_shell.script.duringShow = [](RecordingDialog& user) { user.userAccepts(); };
    EXPECT_TRUE(launch(paths, false, true, 0));
    EXPECT_EQ(files.size(), 2U);
    m_shell.script.duringShow = nullptr;
    m_shell.script.results = QStringList({QStringLiteral("/a.dat"), QStringLiteral("/b.dat")});
    EXPECT_TRUE(launch({}, true, true, 0)) << "saving has no list of results";
    EXPECT_EQ(files.size(), 2U);
}

TEST_F(LaunchFileDialogNative, reportsTheFirstOfEqualFiltersAndNoneForNone)
{
    filters = {"Data (*.dat)", "Text (*.txt)", "Text (*.txt)"};
    m_shell.script.results = QStringList(QStringLiteral("/a"));
    EXPECT_TRUE(launch({}, false, false, 2));
    EXPECT_EQ(filterIndex, 1);
    m_shell.script.duringShow = [](RecordingDialog& user) { user.userPicksType(9); };
    EXPECT_TRUE(launch({}, false, false, 0));
    EXPECT_EQ(filterIndex, -1);
}

TEST_F(LaunchFileDialogNative, makesNoDialogWithoutFilters)
{
    filters.clear();
    EXPECT_FALSE(launch({"/a"}, false, false, 0));
    EXPECT_THAT(m_shell.calls(), IsEmpty());
    EXPECT_THAT(files, ElementsAre("old", "older", "oldest"));
    EXPECT_EQ(filterIndex, -77);
}

} // namespace

} // namespace morvane::test
