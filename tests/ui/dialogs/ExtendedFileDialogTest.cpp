// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ExtendedFileDialogTest.h"

#include <QDir>

#include <type_traits>

static_assert(!std::is_copy_constructible_v<ExtendedFileDialog>);
static_assert(!std::is_copy_assignable_v<ExtendedFileDialog>);
static_assert(std::has_virtual_destructor_v<ExtendedFileDialog>);

namespace morvane::test {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// Read before any test can have changed it.
const bool nativeAtStart = ExtendedFileDialog::useNativeFileDialog();

TEST_F(ExtendedFileDialogTest, isNativeUnlessToldOtherwise)
{
    EXPECT_TRUE(nativeAtStart);
    ExtendedFileDialog::setUseNativeFileDialog(false);
    EXPECT_FALSE(ExtendedFileDialog::useNativeFileDialog());
    ExtendedFileDialog::setUseNativeFileDialog(true);
    EXPECT_TRUE(ExtendedFileDialog::useNativeFileDialog());
}

TEST_F(ExtendedFileDialogTest, makesOneOfTheTwoDialogs)
{
    const auto native = make(true);
    EXPECT_TRUE(m_shell.dialog());
    EXPECT_FALSE(qt());
    m_shell.clearCalls();
    const auto widgets = make(false);
    EXPECT_TRUE(qt());
    EXPECT_THAT(m_shell.calls(), IsEmpty());
}

TEST_F(ExtendedFileDialogTest, keepsItsKindWhenTheSwitchIsTurned)
{
    const auto native = make(true);
    const auto widgets = make(false);
    EXPECT_EQ(native->exec(), QDialog::Rejected);
    EXPECT_EQ(m_shell.count("IFileDialog::Show"), 1);
    ExtendedFileDialog::setUseNativeFileDialog(true);
    m_shell.clearCalls();
    EXPECT_EQ(runQt(*widgets, [](FileDialogDriver& driver) { driver.dialog().reject(); }), QDialog::Rejected);
    EXPECT_THAT(m_shell.calls(), IsEmpty());
}

TEST_F(ExtendedFileDialogTest, handsItsArgumentsToTheNativeDialogWithoutAcceptMenu)
{
    auto dialog = make(true, QFileDialog::AcceptSave, "topic");
    m_shell.script.announcesOpening = false;
    m_shell.script.showResult = E_FAIL;
    m_shell.script.duringShow = [](RecordingDialog& user) { user.userClicks(0); };
    EXPECT_EQ(dialog->exec(), QDialog::Rejected);
    EXPECT_THAT(m_shell.calls(),
        ElementsAre("CoInitializeEx(null, 6)", "CoCreateInstance(FileSaveDialog, null, 1, IFileDialog)",
            "IFileDialog::QueryInterface(IFileDialogCustomize)", "IFileDialogCustomize::AddPushButton(0, \"&Help\")",
            "IFileDialogCustomize::MakeProminent(0)", "QISearch(IFileDialogEvents)", "IFileDialog::Advise(sink)",
            "IFileDialog::SetTitle(\"Caption\")", "IFileDialog::GetOptions()", "IFileDialog::SetOptions(0x800A)",
            ::testing::StartsWith("SHCreateItemFromParsingName("),
            "IFileDialog::SetFolder(" + m_folder.path().toStdString() + ")",
            "IFileDialog::SetFileTypes(2, \"Data\" \"*.dat\", \"All\" \"*\")", "IFileDialog::SetFileTypeIndex(1)",
            "IFileDialog::SetFileName(\"\")", "IFileDialog::Show(owner)", "QISearch(IFileDialogControlEvents)",
            "IFileDialog::Unadvise(1)"));
    EXPECT_THAT(m_help.topics, ElementsAre("topic"));
}

TEST_F(ExtendedFileDialogTest, handsItsArgumentsToTheQtDialog)
{
    const auto dialog = make(false, QFileDialog::AcceptSave, "topic");
    EXPECT_EQ(qt()->windowTitle(), QStringLiteral("Caption"));
    EXPECT_EQ(qt()->directory().path(), m_folder.path());
    EXPECT_EQ(qt()->nameFilters(), QStringList({dataFilter, allFilter}));
    EXPECT_EQ(qt()->acceptMode(), QFileDialog::AcceptSave);
    runQt(*dialog, [](FileDialogDriver& driver) {
        driver.click(QDialogButtonBox::Help);
        driver.dialog().reject();
    });
    EXPECT_THAT(m_help.topics, ElementsAre("topic"));
}

TEST_F(ExtendedFileDialogTest, returnsTheResultOfTheNativeDialog)
{
    const auto dialog = make(true);
    m_shell.script.results = QStringList(QDir::toNativeSeparators(QStringLiteral("/x/\u00FC.dat")));
    EXPECT_EQ(dialog->exec(), 1);
    EXPECT_EQ(dialog->selectedFiles(), m_shell.script.results);
    m_shell.script.showResult = E_FAIL;
    EXPECT_EQ(dialog->exec(), 0);
    EXPECT_THAT(dialog->selectedFiles(), IsEmpty());
}

TEST_F(ExtendedFileDialogTest, returnsTheResultOfTheQtDialog)
{
    const auto dialog = make(false);
    dialog->setFileMode(QFileDialog::ExistingFile);
    EXPECT_EQ(runQt(*dialog, [](FileDialogDriver& driver) { driver.enterName(QStringLiteral("a.dat")); }), 1);
    EXPECT_EQ(dialog->selectedFiles(), QStringList(path("a.dat")));
    EXPECT_EQ(runQt(*dialog, [](FileDialogDriver& driver) { QTest::keyClick(&driver.dialog(), Qt::Key_Escape); }), 0);
}

TEST_F(ExtendedFileDialogTest, runsTheQtDialogThroughItsVirtualExec)
{
    const auto dialog = make(false);
    int restored = 0;
    runQt(*dialog, [&](FileDialogDriver& driver) {
        restored = driver.dialog().sidebarUrls().size();
        driver.dialog().reject();
    });
    EXPECT_GT(restored, 0) << "the places are added by the dialog's own exec";
}

TEST_F(ExtendedFileDialogTest, isEmptyOnceTheParentHasTakenTheQtDialogAway)
{
    ExtendedFileDialog::setUseNativeFileDialog(false);
    auto parent = std::make_unique<QWidget>();
    ExtendedFileDialog dialog(*parent, "Caption", "", "Data (*.dat)", "", QFileDialog::AcceptOpen);
    EXPECT_EQ(dialog.nameFilters(), QStringList(dataFilter));
    parent.reset();
    dialog.setNameFilters({allFilter});
    dialog.selectNameFilter(allFilter);
    dialog.selectFile(path("a.dat"));
    dialog.setDirectory(m_folder.path());
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setDontConfirmOverwrite(true);
    dialog.setShowDirectoriesOnly(true);
    EXPECT_EQ(dialog.exec(), QDialog::Rejected);
    EXPECT_THAT(dialog.selectedFiles(), IsEmpty());
    EXPECT_THAT(dialog.nameFilters(), IsEmpty());
    EXPECT_EQ(dialog.selectedNameFilter(), QString());
    EXPECT_EQ(dialog.directory(), QDir());
}

TEST_F(ExtendedFileDialogTest, destroysItsDialog)
{
    auto widgets = make(false);
    ASSERT_TRUE(qt());
    widgets.reset();
    EXPECT_FALSE(qt());
    auto native = make(true);
    native.reset();
    EXPECT_FALSE(m_shell.dialog());
    EXPECT_EQ(m_shell.calls().back(), "CoUninitialize()");
}

TEST_F(ExtendedFileDialogTest, survivesANativeDialogThatCannotBeMade)
{
    m_shell.failCalls("CoCreateInstance");
    const auto dialog = make(true);
    EXPECT_EQ(dialog->exec(), QDialog::Rejected);
    EXPECT_THAT(dialog->selectedFiles(), IsEmpty());
    EXPECT_FALSE(qt()) << "the kind is not changed behind the host's back";
}

} // namespace

} // namespace morvane::test
