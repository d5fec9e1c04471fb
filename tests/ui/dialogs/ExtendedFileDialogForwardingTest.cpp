// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// Each setting of the facade, and its effect on the native dialog and on the Qt dialog.
#include "ExtendedFileDialogTest.h"

namespace morvane::test {

namespace {

class ExtendedFileDialogForwarding : public ExtendedFileDialogTest
{
};

using ::testing::Contains;
using ::testing::IsEmpty;

TEST_F(ExtendedFileDialogForwarding, selectsAFile)
{
    const auto native = make(true);
    native->selectFile(QStringLiteral("/elsewhere/b.dat"));
    native->exec();
    EXPECT_THAT(m_shell.calls(), Contains("IFileDialog::SetFileName(\"b.dat\")"));
    const auto widgets = make(false, QFileDialog::AcceptSave);
    widgets->selectFile(path("b.dat"));
    EXPECT_EQ(FileDialogDriver(*qt()).name(), QStringLiteral("b.dat"));
    EXPECT_EQ(widgets->selectedFiles(), QStringList(path("b.dat")));
}

TEST_F(ExtendedFileDialogForwarding, setsTheFileMode)
{
    const auto native = make(true);
    native->setFileMode(QFileDialog::ExistingFiles);
    native->exec();
    EXPECT_THAT(m_shell.calls(), Contains("IFileDialog::SetOptions(0x120A)"));
    const auto widgets = make(false);
    widgets->setFileMode(QFileDialog::Directory);
    EXPECT_EQ(qt()->fileMode(), QFileDialog::Directory);
}

TEST_F(ExtendedFileDialogForwarding, setsAndTellsTheDirectory)
{
    for (const bool native : {true, false}) {
        const auto dialog = make(native);
        EXPECT_EQ(dialog->directory().path(), m_folder.path()) << native;
        dialog->setDirectory(QDir::rootPath());
        EXPECT_EQ(dialog->directory().path(), QDir::rootPath()) << native;
        if (!native) {
            EXPECT_EQ(qt()->directory().path(), QDir::rootPath());
        }
    }
}

TEST_F(ExtendedFileDialogForwarding, selectsAndTellsTheNameFilter)
{
    for (const bool native : {true, false}) {
        const auto dialog = make(native);
        EXPECT_EQ(dialog->selectedNameFilter(), dataFilter) << native;
        dialog->selectNameFilter(allFilter);
        EXPECT_EQ(dialog->selectedNameFilter(), allFilter) << native;
    }
}

TEST_F(ExtendedFileDialogForwarding, unknownFilterSelectsNoneInTheNativeDialogAndNothingInTheQtDialog)
{
    const auto native = make(true);
    native->selectNameFilter(QStringLiteral("Other (*.o)"));
    EXPECT_EQ(native->selectedNameFilter(), QString());
    const auto widgets = make(false);
    widgets->selectNameFilter(QStringLiteral("Other (*.o)"));
    EXPECT_EQ(widgets->selectedNameFilter(), dataFilter);
}

TEST_F(ExtendedFileDialogForwarding, setsAndTellsTheNameFilters)
{
    const QStringList filters({QStringLiteral("A (*.a)"), QStringLiteral("B (*.b)"), QStringLiteral("C (*.c)")});
    for (const bool native : {true, false}) {
        const auto dialog = make(native);
        EXPECT_EQ(dialog->nameFilters(), QStringList({dataFilter, allFilter})) << native;
        dialog->setNameFilters(filters);
        EXPECT_EQ(dialog->nameFilters(), filters) << native;
        dialog->nameFilters().clear();
        EXPECT_EQ(dialog->nameFilters(), filters) << native;
    }
}

TEST_F(ExtendedFileDialogForwarding, setsWhetherOverwritingIsConfirmed)
{
    for (const bool on : {true, false}) {
        const auto native = make(true, QFileDialog::AcceptSave);
        native->setDontConfirmOverwrite(!on);
        native->setDontConfirmOverwrite(on);
        m_shell.clearCalls();
        native->exec();
        EXPECT_THAT(
            m_shell.calls(), Contains(on ? "IFileDialog::SetOptions(0x8008)" : "IFileDialog::SetOptions(0x800A)"));
        const auto widgets = make(false, QFileDialog::AcceptSave);
        widgets->setDontConfirmOverwrite(!on);
        widgets->setDontConfirmOverwrite(on);
        EXPECT_EQ(qt()->testOption(QFileDialog::DontConfirmOverwrite), on);
    }
}

TEST_F(ExtendedFileDialogForwarding, showsDirectoriesOnlyInTheQtDialogAlone)
{
    const auto native = make(true);
    m_shell.clearCalls();
    native->setShowDirectoriesOnly(true);
    EXPECT_THAT(m_shell.calls(), IsEmpty());
    native->exec();
    EXPECT_THAT(m_shell.calls(), Contains("IFileDialog::SetOptions(0xA)"));
    const auto widgets = make(false);
    widgets->setShowDirectoriesOnly(true);
    EXPECT_TRUE(qt()->testOption(QFileDialog::ShowDirsOnly));
    widgets->setShowDirectoriesOnly(false);
    EXPECT_FALSE(qt()->testOption(QFileDialog::ShowDirsOnly));
}

} // namespace

} // namespace morvane::test
