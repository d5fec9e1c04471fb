// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "FileDialogTest.h"

#include <QAbstractButton>
#include <QMessageBox>
#include <QSignalSpy>
#include <QTest>

using namespace morvane::test;

namespace {

class QExtendedFileDialogValidation : public FileDialogTest
{
protected:
    QExtendedFileDialogValidation() { makeFile(QStringLiteral("old.dat")); }

    static void answer(ModalScript& script, QMessageBox::StandardButton button)
    {
        script.on<QMessageBox>([button](QMessageBox& box) {
            ASSERT_TRUE(box.button(button));
            QTest::keyClick(box.button(button), Qt::Key_Space);
        });
    }
};

} // namespace

TEST_F(QExtendedFileDialogValidation, existingNameOpens)
{
    const Dialog dialog = openDialog();
    const QSignalSpy selected(dialog.get(), &QFileDialog::fileSelected);

    EXPECT_EQ(
        run(*dialog, [](FileDialogDriver& driver) { driver.enterName(QStringLiteral("old.dat")); }), QDialog::Accepted);
    EXPECT_EQ(dialog->selectedFiles(), QStringList(path(QStringLiteral("old.dat"))));
    EXPECT_EQ(selected.size(), 1);
}

TEST_F(QExtendedFileDialogValidation, missingNameIsRefused)
{
    const Dialog dialog = openDialog();
    ModalScript script;
    answer(script, QMessageBox::Ok);

    const int result = run(*dialog, script, [](FileDialogDriver& driver) {
        driver.enterName(QStringLiteral("new.dat"));
        EXPECT_TRUE(driver.isOpen());
    });

    EXPECT_EQ(result, QDialog::Rejected);
}

TEST_F(QExtendedFileDialogValidation, missingNameIsAcceptedWithoutValidation)
{
    const Dialog dialog = openDialog();
    dialog->performSelectedFileValidation(false);

    EXPECT_EQ(
        run(*dialog, [](FileDialogDriver& driver) { driver.enterName(QStringLiteral("new.dat")); }), QDialog::Accepted);
    EXPECT_EQ(dialog->selectedFiles(), QStringList(path(QStringLiteral("new.dat"))));
}

TEST_F(QExtendedFileDialogValidation, anyNameClosesWithoutValidation)
{
    makeFolder(QStringLiteral("folder"));
    for (const char* const name : {"", "folder", "no/such/folder/x", "..", "\"a\" \"b\"", "?"}) {
        SCOPED_TRACE(name);
        const Dialog dialog = openDialog();
        dialog->performSelectedFileValidation(false);

        EXPECT_EQ(
            run(*dialog, [&](FileDialogDriver& driver) { driver.enterName(QLatin1String(name)); }), QDialog::Accepted);
    }
}

TEST_F(QExtendedFileDialogValidation, canBeSwitchedOnAgain)
{
    const Dialog dialog = openDialog();
    dialog->performSelectedFileValidation(false);
    dialog->performSelectedFileValidation(true);
    ModalScript script;
    answer(script, QMessageBox::Ok);

    EXPECT_EQ(run(*dialog, script, [](FileDialogDriver& driver) { driver.enterName(QStringLiteral("new.dat")); }),
        QDialog::Rejected);
}

TEST_F(QExtendedFileDialogValidation, newNameIsSavedWithoutQuestion)
{
    const Dialog dialog = saveDialog();

    EXPECT_EQ(
        run(*dialog, [](FileDialogDriver& driver) { driver.enterName(QStringLiteral("new.dat")); }), QDialog::Accepted);
    EXPECT_EQ(dialog->selectedFiles(), QStringList(path(QStringLiteral("new.dat"))));
}

TEST_F(QExtendedFileDialogValidation, existingNameIsSavedAfterYes)
{
    const Dialog dialog = saveDialog();
    ModalScript script;
    answer(script, QMessageBox::Yes);

    EXPECT_EQ(run(*dialog, script, [](FileDialogDriver& driver) { driver.enterName(QStringLiteral("old.dat")); }),
        QDialog::Accepted);
    EXPECT_EQ(dialog->selectedFiles(), QStringList(path(QStringLiteral("old.dat"))));
}

TEST_F(QExtendedFileDialogValidation, dialogStaysOpenAfterNo)
{
    const Dialog dialog = saveDialog();
    ModalScript script;
    answer(script, QMessageBox::No);

    const int result = run(*dialog, script, [](FileDialogDriver& driver) {
        driver.typeName(QStringLiteral("old.dat"));
        driver.click(QDialogButtonBox::Save);
        EXPECT_TRUE(driver.isOpen());
        EXPECT_EQ(driver.name(), QStringLiteral("old.dat"));
    });

    EXPECT_EQ(result, QDialog::Rejected);
}

TEST_F(QExtendedFileDialogValidation, enterAnswersTheOverwriteQuestionWithNo)
{
    const Dialog dialog = saveDialog();
    ModalScript script;
    script.on<QMessageBox>([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); });

    const int result = run(*dialog, script, [](FileDialogDriver& driver) {
        driver.enterName(QStringLiteral("old.dat"));
        EXPECT_TRUE(driver.isOpen());
    });

    EXPECT_EQ(result, QDialog::Rejected);
}

TEST_F(QExtendedFileDialogValidation, overwriteQuestionCanBeLeftOut)
{
    const Dialog dialog = saveDialog();
    dialog->setDontConfirmOverwrite(true);

    EXPECT_EQ(
        run(*dialog, [](FileDialogDriver& driver) { driver.enterName(QStringLiteral("old.dat")); }), QDialog::Accepted);
    EXPECT_EQ(dialog->selectedFiles(), QStringList(path(QStringLiteral("old.dat"))));
}

TEST_F(QExtendedFileDialogValidation, overwriteQuestionComesBack)
{
    const Dialog dialog = saveDialog();
    dialog->setDontConfirmOverwrite(true);
    dialog->setDontConfirmOverwrite(false);
    ModalScript script;
    answer(script, QMessageBox::Yes);

    EXPECT_EQ(run(*dialog, script, [](FileDialogDriver& driver) { driver.enterName(QStringLiteral("old.dat")); }),
        QDialog::Accepted);
}

TEST_F(QExtendedFileDialogValidation, savingWithoutValidationAsksNothing)
{
    const Dialog dialog = saveDialog();
    dialog->performSelectedFileValidation(false);

    EXPECT_EQ(
        run(*dialog, [](FileDialogDriver& driver) { driver.enterName(QStringLiteral("old.dat")); }), QDialog::Accepted);
    EXPECT_EQ(dialog->selectedFiles(), QStringList(path(QStringLiteral("old.dat"))));
}

TEST_F(QExtendedFileDialogValidation, directoryModeListsOnlyDirectoriesWhenAsked)
{
    makeFolder(QStringLiteral("folder"));
    const Dialog dialog = openDialog();
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setShowDirectoriesOnly(true);

    const int result = run(*dialog, [](FileDialogDriver& driver) {
        EXPECT_TRUE(driver.waitForListed({QStringLiteral("folder")}));
        driver.clickFile(QStringLiteral("folder"));
        driver.click(QDialogButtonBox::Open);
    });

    EXPECT_EQ(result, QDialog::Accepted);
    EXPECT_EQ(dialog->selectedFiles(), QStringList(path(QStringLiteral("folder"))));
}

TEST_F(QExtendedFileDialogValidation, directoryModeListsFilesToo)
{
    makeFolder(QStringLiteral("folder"));
    const Dialog dialog = openDialog();
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setShowDirectoriesOnly(true);
    dialog->setShowDirectoriesOnly(false);

    run(*dialog, [](FileDialogDriver& driver) {
        EXPECT_TRUE(driver.waitForListed({QStringLiteral("folder"), QStringLiteral("old.dat")}));
    });
}
