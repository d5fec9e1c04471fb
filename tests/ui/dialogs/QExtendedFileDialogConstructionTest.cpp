// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "FileDialogTest.h"

#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QMetaMethod>
#include <QPointer>

#include <type_traits>

using namespace morvane::test;

namespace {

class QExtendedFileDialogConstruction : public FileDialogTest
{
};

QStringList slotSignatures()
{
    const QMetaObject& meta = QExtendedFileDialog::staticMetaObject;
    QStringList signatures;
    for (int index = meta.methodOffset(); index < meta.methodCount(); ++index) {
        EXPECT_EQ(meta.method(index).methodType(), QMetaMethod::Slot);
        signatures.append(QString::fromLatin1(meta.method(index).methodSignature()));
    }
    return signatures;
}

} // namespace

static_assert(std::is_base_of_v<QFileDialog, QExtendedFileDialog>);
static_assert(std::has_virtual_destructor_v<QExtendedFileDialog>);
static_assert(!std::is_copy_constructible_v<QExtendedFileDialog>);
static_assert(!std::is_default_constructible_v<QExtendedFileDialog>);

TEST_F(QExtendedFileDialogConstruction, slotsStandInTheirOrderInTheMetaObject)
{
    const QStringList expected = {"show()", "exec()", "accept()", "restoreFilters()",
        "revertModifiedFilterAndSelect(QString)", "launchHelp()", "onDirectoryLoaded(QString)",
        "onRootPathChanged(QString)"};

    EXPECT_EQ(slotSignatures(), expected);
}

TEST_F(QExtendedFileDialogConstruction, execGivesItsResultThroughTheMetaObject)
{
    const QMetaObject& meta = QExtendedFileDialog::staticMetaObject;

    EXPECT_EQ(meta.method(meta.indexOfMethod("exec()")).returnType(), QMetaType::Int);
    EXPECT_STREQ(meta.className(), "QExtendedFileDialog");
}

TEST_F(QExtendedFileDialogConstruction, textsAreUtf8)
{
    makeFolder(QString::fromUtf8("m\u00e4\u00df \u6d4b \U0001F600"));
    const std::string directory = folder().toStdString() + "/m\u00e4\u00df \u6d4b \U0001F600";
    const std::string filter = "\u00dcbersicht \U0001F4C8 (*.dat);;Alle (*)";

    const QExtendedFileDialog dialog(
        *m_parent, "\u00d6ffnen \u2026 \U0001F4C2", directory, filter, "", QFileDialog::AcceptOpen);

    EXPECT_EQ(dialog.windowTitle(), QString::fromUtf8("\u00d6ffnen \u2026 \U0001F4C2"));
    EXPECT_EQ(dialog.directory().absolutePath().toStdString(), directory);
    EXPECT_EQ(dialog.nameFilters(),
        QStringList({QString::fromUtf8("\u00dcbersicht \U0001F4C8 (*.dat)"), QStringLiteral("Alle (*)")}));
}

TEST_F(QExtendedFileDialogConstruction, invalidUtf8IsReplaced)
{
    const QExtendedFileDialog dialog(*m_parent, "a\xFF", "", "A\xC3 (*.a)", "\xFF", QFileDialog::AcceptOpen);

    EXPECT_EQ(dialog.windowTitle(), QString::fromUtf8("a\uFFFD"));
    EXPECT_EQ(dialog.nameFilters(), QStringList(QString::fromUtf8("A\uFFFD (*.a)")));
}

TEST_F(QExtendedFileDialogConstruction, parentOwnsTheDialog)
{
    const QPointer<QExtendedFileDialog> dialog = openDialog().release();
    EXPECT_EQ(dialog->parentWidget(), m_parent.get());

    m_parent.reset();

    EXPECT_FALSE(dialog);
}

TEST_F(QExtendedFileDialogConstruction, openingTakesOneExistingFile)
{
    const Dialog dialog = openDialog();

    EXPECT_EQ(dialog->acceptMode(), QFileDialog::AcceptOpen);
    EXPECT_EQ(dialog->fileMode(), QFileDialog::ExistingFile);
}

TEST_F(QExtendedFileDialogConstruction, savingTakesAnyFile)
{
    const Dialog dialog = saveDialog();

    EXPECT_EQ(dialog->acceptMode(), QFileDialog::AcceptSave);
    EXPECT_EQ(dialog->fileMode(), QFileDialog::AnyFile);
}

TEST_F(QExtendedFileDialogConstruction, shortFormHasTheSameModes)
{
    const QExtendedFileDialog open(*m_parent, QFileDialog::AcceptOpen);
    const QExtendedFileDialog save(*m_parent, QFileDialog::AcceptSave);

    EXPECT_EQ(open.acceptMode(), QFileDialog::AcceptOpen);
    EXPECT_EQ(open.fileMode(), QFileDialog::ExistingFile);
    EXPECT_EQ(save.acceptMode(), QFileDialog::AcceptSave);
    EXPECT_EQ(save.fileMode(), QFileDialog::AnyFile);
}

TEST_F(QExtendedFileDialogConstruction, shortFormLeavesTextsToQt)
{
    const QFileDialog plain(m_parent.get());
    const QExtendedFileDialog dialog(*m_parent, QFileDialog::AcceptOpen);

    EXPECT_EQ(dialog.parentWidget(), m_parent.get());
    EXPECT_EQ(dialog.directory(), plain.directory());
    EXPECT_EQ(dialog.nameFilters(), QStringList(QStringLiteral("All Files (*)")));
    EXPECT_EQ(dialog.nameFilters(), plain.nameFilters());
}

TEST_F(QExtendedFileDialogConstruction, qtsOwnWidgetsAreAlwaysUsed)
{
    const QExtendedFileDialog shortForm(*m_parent, QFileDialog::AcceptOpen);
    const Dialog longForm = openDialog();

    for (const QExtendedFileDialog* const dialog :
        {&shortForm, static_cast<const QExtendedFileDialog*>(longForm.get())}) {
        EXPECT_TRUE(dialog->testOption(QFileDialog::DontUseNativeDialog));
        EXPECT_TRUE(dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit")));
        EXPECT_TRUE(dialog->findChild<QComboBox*>(QStringLiteral("fileTypeCombo")));
    }
}

TEST_F(QExtendedFileDialogConstruction, touchesNoSettingsAndNoCursor)
{
    const Dialog dialog = openDialog("All (*)", "topic");

    EXPECT_TRUE(m_settings.calls.empty());
    EXPECT_TRUE(overrideCursors().empty());
    EXPECT_TRUE(m_help.topics.empty());
}

TEST_F(QExtendedFileDialogConstruction, startsAtAFileGivenAsTheDirectory)
{
    makeFile(QStringLiteral("run.dat"));
    QExtendedFileDialog dialog(
        *m_parent, "", path(QStringLiteral("run.dat")).toStdString(), "", "", QFileDialog::AcceptOpen);

    EXPECT_EQ(run(dialog, [](FileDialogDriver& driver) { driver.pressEnter(); }), QDialog::Accepted);
    EXPECT_EQ(dialog.selectedFiles(), QStringList(path(QStringLiteral("run.dat"))));
}

TEST_F(QExtendedFileDialogConstruction, overwriteOptionIsForwarded)
{
    const Dialog dialog = saveDialog();
    EXPECT_FALSE(dialog->testOption(QFileDialog::DontConfirmOverwrite));

    dialog->setDontConfirmOverwrite(true);
    EXPECT_TRUE(dialog->testOption(QFileDialog::DontConfirmOverwrite));
    dialog->setDontConfirmOverwrite(false);
    EXPECT_FALSE(dialog->testOption(QFileDialog::DontConfirmOverwrite));
}

TEST_F(QExtendedFileDialogConstruction, directoriesOptionIsForwarded)
{
    const Dialog dialog = openDialog();
    EXPECT_FALSE(dialog->testOption(QFileDialog::ShowDirsOnly));

    dialog->setShowDirectoriesOnly(true);
    EXPECT_TRUE(dialog->testOption(QFileDialog::ShowDirsOnly));
    dialog->setShowDirectoriesOnly(false);
    EXPECT_FALSE(dialog->testOption(QFileDialog::ShowDirsOnly));
}

TEST_F(QExtendedFileDialogConstruction, listsAreNamedByTheirLabelsOnceItIsShown)
{
    const Dialog dialog = openDialog();
    dialog->show();
    for (const char* const list : {"lookIn", "fileType"}) {
        const auto* const label = dialog->findChild<QLabel*>(QStringLiteral("%1Label").arg(list));
        const auto* const combo = dialog->findChild<QComboBox*>(QStringLiteral("%1Combo").arg(list));
        ASSERT_TRUE(label && combo) << list;
        EXPECT_EQ(label->buddy(), combo) << list;
    }
}
