// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ExtendedWinFileDialogTest.h"

#include "support/QtShims.h"

#include <QDir>

#include <limits>

namespace morvane::test {

namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::StartsWith;

class ExtendedWinFileDialogExec : public ExtendedWinFileDialogTest
{
protected:
    void SetUp() override { m_shell.script.announcesOpening = false; }
};

TEST_F(ExtendedWinFileDialogExec, configuresTheDialogOnceBeforeItIsShown)
{
    Arguments arguments;
    arguments.directory = folder();
    arguments.filter = "Images (*.png *.jpg);;*.dat;; ;;A (x) (*.a)";
    const auto dialog = make(arguments);
    dialog->selectFile(QStringLiteral("/somewhere/else/a.png"));
    dialog->selectNameFilter(QStringLiteral("*.dat"));
    QString native = QString::fromStdString(folder());
    native.replace(QLatin1Char('/'), QLatin1Char('\\'));
    EXPECT_THAT(callsOf([&] { run(*dialog); }),
        ElementsAre("QISearch(IFileDialogEvents)", "IFileDialog::Advise(sink)",
            "IFileDialog::SetTitle(\"Measurement\")", "IFileDialog::GetOptions()", "IFileDialog::SetOptions(0xA)",
            "SHCreateItemFromParsingName(\"" + native.toStdString() + "\", null, IShellItem)",
            "IFileDialog::SetFolder(" + folder() + ")",
            "IFileDialog::SetFileTypes(4, \"Images\" \"*.png;*.jpg\", \"File of Type\" \"*.dat\", "
            "\"File of Type\" \"\", \"A (x)\" \"*.a\")",
            "IFileDialog::SetFileTypeIndex(2)", "IFileDialog::SetFileName(\"a.png\")", "IFileDialog::Show(owner)",
            "IFileDialog::Unadvise(1)"));
    EXPECT_THAT(callsOf([&] { run(*dialog); }), ElementsAre("QISearch(IFileDialogEvents)", "IFileDialog::Advise(sink)",
                                                    "IFileDialog::Show(owner)", "IFileDialog::Unadvise(2)"));
}

TEST_F(ExtendedWinFileDialogExec, sendsTheSameToASaveDialog)
{
    const auto dialog = saveDialog("Data (*.dat)");
    EXPECT_THAT(callsOf([&] { run(*dialog); }),
        ElementsAre("QISearch(IFileDialogEvents)", "IFileDialog::Advise(sink)",
            "IFileDialog::SetTitle(\"Measurement\")", "IFileDialog::GetOptions()", "IFileDialog::SetOptions(0x800A)",
            "IFileDialog::SetFileTypes(1, \"Data\" \"*.dat\")", "IFileDialog::SetFileTypeIndex(1)",
            "IFileDialog::SetFileName(\"\")", "IFileDialog::Show(owner)", "IFileDialog::Unadvise(1)"));
}

TEST_F(ExtendedWinFileDialogExec, sendsTheEmptyTextsAndTheIndexButNoTypesAndNoFolder)
{
    Arguments arguments;
    arguments.caption = "";
    const auto dialog = make(arguments);
    EXPECT_THAT(callsOf([&] { run(*dialog); }),
        ElementsAre("QISearch(IFileDialogEvents)", "IFileDialog::Advise(sink)", "IFileDialog::SetTitle(\"\")",
            "IFileDialog::GetOptions()", "IFileDialog::SetOptions(0xA)", "IFileDialog::SetFileTypeIndex(1)",
            "IFileDialog::SetFileName(\"\")", "IFileDialog::Show(owner)", "IFileDialog::Unadvise(1)"));
}

TEST_F(ExtendedWinFileDialogExec, asksTheMenuAfterTheDialogHasClosed)
{
    const auto dialog = menuDialog();
    run(*dialog);
    EXPECT_THAT(callsOf([&] { run(*dialog); }),
        ElementsAre("QISearch(IFileDialogEvents)", "IFileDialog::Advise(sink)", "IFileDialog::Show(owner)",
            customizeQuery, "IFileDialogCustomize::GetSelectedControlItem(0)", "IFileDialog::Unadvise(2)"));
}

TEST_F(ExtendedWinFileDialogExec, leavesTheFolderToTheShellWhenItHasNoItem)
{
    const auto dialog = openDialog();
    dialog->setDirectory(path(QStringLiteral("missing/../gone")));
    EXPECT_EQ(dialog->directory().path(), path(QStringLiteral("missing/../gone")));
    run(*dialog);
    EXPECT_EQ(m_shell.count("SHCreateItemFromParsingName"), 1);
    EXPECT_EQ(m_shell.count("IFileDialog::SetFolder"), 0);
}

TEST_F(ExtendedWinFileDialogExec, readsNoSettingAfterTheFirstRun)
{
    const auto dialog = openDialog("Data (*.dat)");
    run(*dialog);
    dialog->setFileMode(QFileDialog::ExistingFiles);
    dialog->setDontConfirmOverwrite(true);
    dialog->setNameFilters({QStringLiteral("All (*)"), QStringLiteral("Other (*.o)")});
    dialog->selectNameFilter(QStringLiteral("Other (*.o)"));
    dialog->selectFile(QStringLiteral("late.dat"));
    dialog->setDirectory(QString::fromStdString(folder()));
    EXPECT_THAT(callsOf([&] { run(*dialog); }), Not(Contains(HasSubstr("::Set"))));
    EXPECT_EQ(dialog->selectedNameFilter(), QStringLiteral("Other (*.o)"));
    EXPECT_EQ(dialog->directory().path().toStdString(), folder());
    EXPECT_EQ(dialog->nameFilters().size(), 2);
}

TEST_F(ExtendedWinFileDialogExec, tellsTheShellBeforeTheNextRunWhatTheUserHasLeft)
{
    QDir(QString::fromStdString(folder())).mkdir(QStringLiteral("inner"));
    m_shell.script.announcesOpening = true;
    Arguments arguments;
    arguments.directory = folder();
    arguments.filter = "Data (*.dat);;All (*)";
    arguments.saving = true;
    const auto dialog = make(arguments);
    dialog->selectFile(QStringLiteral("first.dat"));
    run(*dialog, [&](RecordingDialog& user) {
        user.userEntersFolder(path(QStringLiteral("inner")));
        user.userPicksType(2);
        user.userTypesName(QStringLiteral("old.txt"));
        user.userAccepts();
    });
    Calls calls = callsOf([&] {
        run(*dialog, [&](RecordingDialog& user) {
            EXPECT_EQ(user.folder(), path(QStringLiteral("inner")));
            EXPECT_EQ(user.typeIndex(), 2u);
            EXPECT_EQ(user.fileName(), QStringLiteral("old.txt"));
        });
    });
    const std::string inner = path(QStringLiteral("inner")).toStdString();
    EXPECT_THAT(calls, Contains("IFileDialog::SetFolder(" + inner + ")"));
    EXPECT_THAT(calls, Contains("IFileDialog::SetFileTypeIndex(2)"));
    EXPECT_THAT(calls, Contains("IFileDialog::SetFileName(\"old.txt\")"));
    EXPECT_THAT(callsOf([&] { run(*dialog); }), Not(Contains(HasSubstr("::Set")))) << "nothing was left since";
}

TEST_F(ExtendedWinFileDialogExec, makesNoShellCallForASetting)
{
    const auto dialog = openDialog("Data (*.dat);;All (*)");
    EXPECT_THAT(callsOf([&] {
        dialog->setFileMode(QFileDialog::Directory);
        dialog->setDontConfirmOverwrite(true);
        dialog->setShowDirectoriesOnly(true);
        dialog->selectNameFilter(QStringLiteral("All (*)"));
        dialog->selectFile(QStringLiteral("a"));
        dialog->setDirectory(QStringLiteral("/"));
        dialog->nameFilters();
        dialog->selectedNameFilter();
        dialog->selectedAcceptMenuOption();
    }),
        IsEmpty());
}

TEST_F(ExtendedWinFileDialogExec, ignoresShowDirectoriesOnly)
{
    const auto dialog = openDialog();
    dialog->setShowDirectoriesOnly(true);
    run(*dialog);
    EXPECT_THAT(m_shell.calls(), Contains("IFileDialog::SetOptions(0xA)"));
}

TEST_F(ExtendedWinFileDialogExec, tellsTheOutcome)
{
    const auto dialog = openDialog();
    makeFile(QStringLiteral("a"));
    m_shell.script.results = QStringList(path(QStringLiteral("a")));
    EXPECT_EQ(run(*dialog, [](RecordingDialog& user) { user.userAccepts(); }), QDialog::Accepted);
    EXPECT_EQ(run(*dialog, [](RecordingDialog& user) { user.userCancels(); }), QDialog::Rejected);
    for (const HRESULT result : {S_FALSE, E_FAIL, E_UNEXPECTED, E_NOTIMPL}) {
        m_shell.failCalls("IFileDialog::Show", result);
        EXPECT_EQ(run(*dialog), QDialog::Rejected) << result;
    }
}

TEST_F(ExtendedWinFileDialogExec, readsOneResult)
{
    const auto dialog = openDialog();
    m_shell.script.results = QStringList(native(QString::fromUtf8("/a b/\xC3\xBC\xF0\x9F\x93\x81.dat")));
    EXPECT_EQ(run(*dialog, [](RecordingDialog& user) { user.userAccepts(); }), QDialog::Accepted);
    QStringList files;
    EXPECT_THAT(callsOf([&] { files = dialog->selectedFiles(); }),
        ElementsAre("IFileDialog::GetOptions()", "IFileDialog::GetResult()",
            "IShellItem::GetDisplayName(SIGDN_FILESYSPATH)", "CoTaskMemFree(text)"));
    EXPECT_EQ(files, m_shell.script.results);
}

TEST_F(ExtendedWinFileDialogExec, readsSeveralResultsInTheirOrder)
{
    const auto dialog = openDialog();
    dialog->setFileMode(QFileDialog::ExistingFiles);
    m_shell.script.results = QStringList({native(QStringLiteral("/b")), native(QStringLiteral("/a"))});
    EXPECT_EQ(run(*dialog, [](RecordingDialog& user) { user.userAccepts(); }), QDialog::Accepted);
    QStringList files;
    const Calls item = {"IShellItem::GetDisplayName(SIGDN_FILESYSPATH)", "CoTaskMemFree(text)"};
    EXPECT_THAT(callsOf([&] { files = dialog->selectedFiles(); }),
        ElementsAre("IFileDialog::GetOptions()", "IFileDialog::QueryInterface(IFileOpenDialog)",
            "IFileDialog::GetResults()", "IShellItemArray::GetCount()", "IShellItemArray::GetItemAt(0)", item[0],
            item[1], "IShellItemArray::GetItemAt(1)", item[0], item[1]));
    EXPECT_EQ(files, m_shell.script.results);
}

TEST_F(ExtendedWinFileDialogExec, asksTheDialogItselfWhetherItHoldsSeveral)
{
    m_shell.script.openOptions = FOS_ALLOWMULTISELECT;
    const auto dialog = openDialog();
    EXPECT_THAT(dialog->selectedFiles(), IsEmpty());
    EXPECT_EQ(m_shell.count("IFileDialog::GetResults"), 1);
    EXPECT_EQ(m_shell.count("IFileDialog::GetResult"), 0);
}

TEST_F(ExtendedWinFileDialogExec, givesTheOneResultOfASaveDialogThatAllowsSeveral)
{
    const auto dialog = saveDialog();
    dialog->setFileMode(QFileDialog::ExistingFiles);
    m_shell.script.results = QStringList(native(QStringLiteral("/a")));
    EXPECT_EQ(run(*dialog, [](RecordingDialog& user) { user.userAccepts(); }), QDialog::Accepted);
    EXPECT_EQ(dialog->selectedFiles(), m_shell.script.results);
}

TEST_F(ExtendedWinFileDialogExec, givesTheAcceptedNamesWhereASaveDialogHasNoResultForSeveral)
{
    makeFile(QStringLiteral("a b.dat"));
    makeFile(QStringLiteral("c.dat"));
    Arguments arguments;
    arguments.directory = folder();
    arguments.saving = true;
    const auto dialog = make(arguments);
    dialog->setFileMode(QFileDialog::ExistingFiles);
    m_shell.failCalls("IFileDialog::GetResult"); // as the Shell does when several files are chosen
    m_shell.script.results = QStringList(nativePath(QStringLiteral("c.dat")));
    const auto accept = [](RecordingDialog& user) {
        user.userTypesName(QStringLiteral("\"a b.dat\" \"c.dat\""));
        user.userAccepts();
    };
    EXPECT_EQ(run(*dialog, accept), QDialog::Accepted);
    EXPECT_EQ(dialog->selectedFiles(),
        QStringList({nativePath(QStringLiteral("a b.dat")), nativePath(QStringLiteral("c.dat"))}));
    EXPECT_EQ(run(*dialog, [](RecordingDialog& user) { user.userCancels(); }), QDialog::Rejected);
    EXPECT_THAT(dialog->selectedFiles(), IsEmpty()) << "a cancelled run has no names";
}

TEST_F(ExtendedWinFileDialogExec, givesNothingAfterCloseThoughTheShellKeepsTheResultOfTheRunBefore)
{
    const auto dialog = openDialog();
    m_shell.script.results = QStringList(native(QStringLiteral("/a")));
    ASSERT_EQ(run(*dialog, [](RecordingDialog& user) { user.userAccepts(); }), QDialog::Accepted);
    // The Shell still accepts, as some Shells do when they are closed while they ask about the choice.
    EXPECT_EQ(run(*dialog,
                  [&](RecordingDialog& user) {
                      m_shell.failCalls("IFileDialog::Close", S_OK);
                      dialog->close();
                      user.userAccepts();
                  }),
        QDialog::Accepted);
    EXPECT_THAT(dialog->selectedFiles(), IsEmpty());
    m_shell.failNothing();
    ASSERT_EQ(run(*dialog, [](RecordingDialog& user) { user.userAccepts(); }), QDialog::Accepted);
    EXPECT_EQ(dialog->selectedFiles(), m_shell.script.results) << "the next run is a new one";
}

TEST_F(ExtendedWinFileDialogExec, reportsWhatTheShellDoesAfterCancelling)
{
    const auto dialog = openDialog();
    run(*dialog, [](RecordingDialog& user) { user.userCancels(); });
    EXPECT_THAT(dialog->selectedFiles(), IsEmpty());
    EXPECT_EQ(m_shell.count("IFileDialog::GetResult"), 1);
}

TEST_F(ExtendedWinFileDialogExec, keepsTheLastComponentOfASelectedFile)
{
    for (const auto& [file, name] : std::vector<std::pair<const char*, const char*>>{
             {"a.dat", "a.dat"}, {"/x/y/a.dat", "a.dat"}, {"/x/y/", ""}, {"", ""}, {"\xC3\xBC.dat", "\xC3\xBC.dat"}}) {
        const auto dialog = openDialog();
        dialog->selectFile(QString::fromUtf8(file));
        run(*dialog);
        EXPECT_THAT(m_shell.calls(), Contains(std::string("IFileDialog::SetFileName(\"") + name + "\")")) << file;
    }
}

TEST_F(ExtendedWinFileDialogExec, keepsTheLastComponentOfEachPathInAList)
{
    struct List
    {
        const char* text;
        const char* name;
    };
    for (const List& list :
        {List{R"("/x/a.dat" )", "a.dat"}, List{R"("/x/a.dat" "/y/z w/b c.dat" )", R"("a.dat" "b c.dat" )"},
            List{R"("a.dat" "b.dat" "c.dat")", R"("a.dat" "b.dat" "c.dat")"}, List{R"("/x/" "/x/a.dat" )", "a.dat"},
            List{R"("/x/" )", ""}, List{"\"/x/\xC3\xBC \xF0\x9F\x93\x81.dat\" ", "\xC3\xBC \xF0\x9F\x93\x81.dat"},
            List{R"("/x/he said "hi".dat" )", R"(he said "hi".dat)"}, List{R"("/x/"q".dat" )", R"(""q".dat")"},
            List{R"(/x/"q".dat)", R"("q".dat)"}}) {
        const auto dialog = openDialog();
        dialog->selectFile(QString::fromUtf8(list.text));
        run(*dialog);
        EXPECT_THAT(m_shell.calls(), Contains(std::string("IFileDialog::SetFileName(\"") + list.name + "\")"))
            << list.text;
    }
}

TEST_F(ExtendedWinFileDialogExec, sendsTheIndexThatTheHostHasSet)
{
    for (const int index : {0, 2, 7}) {
        const auto dialog = openDialog("Data (*.dat);;All (*)");
        dialog->currentFilterIndex()->setValue(index);
        run(*dialog);
        EXPECT_THAT(m_shell.calls(), Contains("IFileDialog::SetFileTypeIndex(" + std::to_string(index) + ")"));
    }
}

TEST_F(ExtendedWinFileDialogExec, choosesNoTypeForAnUnknownFilter)
{
    const auto dialog = openDialog("Data (*.dat);;All (*)");
    dialog->selectNameFilter(QStringLiteral("data (*.dat)"));
    EXPECT_EQ(dialog->currentFilterIndex()->value(), 0);
    EXPECT_EQ(dialog->selectedNameFilter(), QString());
    for (const int index : {-1, 3, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        dialog->currentFilterIndex()->setValue(index);
        EXPECT_EQ(dialog->selectedNameFilter(), QString()) << index;
    }
}

struct OptionCase
{
    const char* name;
    QFileDialog::FileMode mode;
    FILEOPENDIALOGOPTIONS set;
    FILEOPENDIALOGOPTIONS cleared;
};

void PrintTo(const OptionCase& c, std::ostream* out)
{
    *out << c.name;
}

class ExtendedWinFileDialogExecOptions : public ExtendedWinFileDialogTest,
                                         public ::testing::WithParamInterface<OptionCase>
{
};

TEST_P(ExtendedWinFileDialogExecOptions, changesTheBitsOfItsModeAndNoOther)
{
    const OptionCase& c = GetParam();
    constexpr FILEOPENDIALOGOPTIONS modeBits = 0x20 | 0x200 | 0x800 | 0x1000;
    ASSERT_EQ(c.set & c.cleared, 0u);
    ASSERT_EQ(c.set | c.cleared, modeBits);
    for (const FILEOPENDIALOGOPTIONS reported : {0x0u, 0xFFFFFFFFu, 0x880Au, 0x1808u, 0x220u, 0x10000000u}) {
        for (const bool saving : {false, true}) {
            for (const bool dontConfirm : {false, true}) {
                m_shell.script.openOptions = m_shell.script.saveOptions = reported;
                const auto dialog = saving ? saveDialog() : openDialog();
                dialog->setFileMode(c.mode);
                dialog->setDontConfirmOverwrite(dontConfirm);
                m_shell.clearCalls();
                run(*dialog);
                const FILEOPENDIALOGOPTIONS mode = (reported & ~c.cleared) | c.set;
                const FILEOPENDIALOGOPTIONS expected = dontConfirm ? mode & ~0x2u : mode | 0x2u;
                char text[40];
                std::snprintf(text, sizeof text, "IFileDialog::SetOptions(0x%X)", static_cast<unsigned>(expected));
                EXPECT_THAT(m_shell.calls(), Contains(std::string(text))) << reported << saving << dontConfirm;
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Modes, ExtendedWinFileDialogExecOptions,
    ::testing::Values(OptionCase{"directory", QFileDialog::Directory, 0x820, 0x1200},
        OptionCase{"existingFiles", QFileDialog::ExistingFiles, 0x1200, 0x820},
        OptionCase{"existingFile", QFileDialog::ExistingFile, 0x1000, 0xA20},
        OptionCase{"anyFile", QFileDialog::AnyFile, 0, 0x1A20}, OptionCase{"directoryOnly", directoryOnly, 0, 0x1A20}),
    [](const auto& tested) { return tested.param.name; });

} // namespace

} // namespace morvane::test
