// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "FileDialogTest.h"

#include <QComboBox>
#include <QTest>

using namespace morvane::test;

namespace {

const QStringList callersTypes = {
    QStringLiteral("Text (*.txt)"), QStringLiteral("All (*)"), QStringLiteral("Data (*.dat)")};
const QStringList editedTypes = {
    QStringLiteral("Text (*.txt)"), QStringLiteral("All (*.dat)"), QStringLiteral("Data (*.dat)")};

class QExtendedFileDialogWildcardRevert : public FileDialogTest
{
protected:
    QExtendedFileDialogWildcardRevert()
    {
        makeFiles({QStringLiteral("a.txt"), QStringLiteral("b.dat"), QStringLiteral("c.csv")});
    }

    Dialog dialogWithTypes() { return openDialog("Text (*.txt);;All (*);;Data (*.dat)"); }

    static void editAll(FileDialogDriver& driver)
    {
        driver.pickTypeWithKeys(1);
        driver.enterName(QStringLiteral("*.dat"));
        EXPECT_EQ(driver.types(), editedTypes);
        EXPECT_TRUE(driver.waitForListed({QStringLiteral("b.dat")}));
    }
};

} // namespace

TEST_F(QExtendedFileDialogWildcardRevert, anotherTypePickedWithKeysRestoresTheList)
{
    const Dialog dialog = dialogWithTypes();

    run(*dialog, [](FileDialogDriver& driver) {
        editAll(driver);
        driver.pickTypeWithKeys(0);

        EXPECT_EQ(driver.types(), callersTypes);
        EXPECT_EQ(driver.dialog().nameFilters(), callersTypes);
        EXPECT_EQ(driver.currentType(), QStringLiteral("Text (*.txt)"));
        EXPECT_TRUE(driver.waitForListed({QStringLiteral("a.txt")}));
    });
}

TEST_F(QExtendedFileDialogWildcardRevert, anotherTypePickedWithTheMouseRestoresTheList)
{
    const Dialog dialog = dialogWithTypes();

    run(*dialog, [](FileDialogDriver& driver) {
        editAll(driver);
        driver.pickTypeWithMouse(2);

        EXPECT_EQ(driver.types(), callersTypes);
        EXPECT_EQ(driver.currentType(), QStringLiteral("Data (*.dat)"));
        EXPECT_TRUE(driver.waitForListed({QStringLiteral("b.dat")}));
    });
}

TEST_F(QExtendedFileDialogWildcardRevert, arrowKeyInTheClosedBoxRestoresTheList)
{
    const Dialog dialog = dialogWithTypes();

    run(*dialog, [](FileDialogDriver& driver) {
        editAll(driver);
        QTest::keyClick(&driver.typeCombo(), Qt::Key_Up);

        EXPECT_EQ(driver.types(), callersTypes);
        EXPECT_EQ(driver.currentType(), QStringLiteral("Text (*.txt)"));
    });
}

TEST_F(QExtendedFileDialogWildcardRevert, editedTypePickedAgainKeepsTheEditedList)
{
    const Dialog dialog = dialogWithTypes();

    run(*dialog, [](FileDialogDriver& driver) {
        editAll(driver);
        driver.pickTypeWithMouse(1);
        EXPECT_EQ(driver.types(), editedTypes);
        driver.pickTypeWithKeys(1);
        EXPECT_EQ(driver.types(), editedTypes);
        EXPECT_EQ(driver.currentType(), QStringLiteral("All (*.dat)"));
        EXPECT_TRUE(driver.waitForListed({QStringLiteral("b.dat")}));

        driver.pickTypeWithKeys(0);
        EXPECT_EQ(driver.types(), callersTypes);
    });
}

TEST_F(QExtendedFileDialogWildcardRevert, editedTypeWithBlanksPickedAgainKeepsTheEditedList)
{
    const Dialog dialog = dialogWithTypes();

    run(*dialog, [](FileDialogDriver& driver) {
        driver.enterName(QStringLiteral("*.dat   *.csv"));
        const QStringList edited = driver.types();
        EXPECT_NE(edited, callersTypes);
        driver.pickTypeWithKeys(0);
        EXPECT_EQ(driver.types(), edited);
    });
}

TEST_F(QExtendedFileDialogWildcardRevert, listOfTheCallerIsRememberedThroughSeveralPatterns)
{
    const Dialog dialog = dialogWithTypes();

    run(*dialog, [](FileDialogDriver& driver) {
        editAll(driver);
        driver.enterName(QStringLiteral("*.csv"));
        driver.enterName(QStringLiteral("c*"));
        EXPECT_EQ(driver.types().at(1), QStringLiteral("All (c*)"));

        driver.pickTypeWithMouse(0);
        EXPECT_EQ(driver.types(), callersTypes);
    });
}

TEST_F(QExtendedFileDialogWildcardRevert, listCanBeEditedAgainAfterItWasRestored)
{
    const Dialog dialog = dialogWithTypes();

    run(*dialog, [](FileDialogDriver& driver) {
        for (int round = 0; round < 3; ++round) {
            editAll(driver);
            driver.pickTypeWithKeys(2);
            EXPECT_EQ(driver.types(), callersTypes);
            EXPECT_EQ(driver.currentType(), QStringLiteral("Data (*.dat)"));
        }
    });
}

TEST_F(QExtendedFileDialogWildcardRevert, pickingTypesOfAPlainListKeepsIt)
{
    const Dialog dialog = dialogWithTypes();

    run(*dialog, [](FileDialogDriver& driver) {
        for (const int row : {2, 0, 1}) {
            driver.pickTypeWithMouse(row);
            EXPECT_EQ(driver.types(), callersTypes);
            EXPECT_EQ(driver.currentType(), callersTypes.at(row));
        }
    });
}

TEST_F(QExtendedFileDialogWildcardRevert, nextExecRestoresTheList)
{
    const Dialog dialog = dialogWithTypes();
    run(*dialog, [](FileDialogDriver& driver) { editAll(driver); });
    EXPECT_EQ(dialog->nameFilters(), editedTypes);

    run(*dialog, [](FileDialogDriver& driver) {
        EXPECT_EQ(driver.types(), callersTypes);
        driver.pickTypeWithKeys(1);
        EXPECT_EQ(driver.types(), callersTypes);
        EXPECT_EQ(driver.currentType(), QStringLiteral("All (*)"));
        editAll(driver);
        driver.pickTypeWithKeys(0);
        EXPECT_EQ(driver.types(), callersTypes);
    });
}

TEST_F(QExtendedFileDialogWildcardRevert, nextShowRestoresTheList)
{
    const Dialog dialog = dialogWithTypes();
    run(*dialog, [](FileDialogDriver& driver) { editAll(driver); });

    dialog->show();

    EXPECT_EQ(dialog->nameFilters(), callersTypes);
    EXPECT_EQ(FileDialogDriver(*dialog).types(), callersTypes);
}

TEST_F(QExtendedFileDialogWildcardRevert, aRestoredListGivesWayToTheNextOne)
{
    const QStringList others = {QStringLiteral("Image (*.png)"), QStringLiteral("Table (*.csv)")};
    const Dialog dialog = dialogWithTypes();
    run(*dialog, [](FileDialogDriver& driver) { editAll(driver); });
    dialog->show();
    dialog->hide();
    dialog->setNameFilters(others);

    dialog->show();

    EXPECT_EQ(dialog->nameFilters(), others);
}

TEST_F(QExtendedFileDialogWildcardRevert, runWithoutAPatternKeepsTheSelectedType)
{
    const Dialog dialog = dialogWithTypes();
    run(*dialog, [](FileDialogDriver& driver) { driver.pickTypeWithKeys(2); });

    run(*dialog, [](FileDialogDriver& driver) { EXPECT_EQ(driver.currentType(), QStringLiteral("Data (*.dat)")); });
}

TEST_F(QExtendedFileDialogWildcardRevert, duplicatesInTheListAreRestored)
{
    const QStringList types = {
        QStringLiteral("Text (*.txt)"), QStringLiteral("Text (*.txt)"), QStringLiteral("All (*)")};
    const Dialog dialog = openDialog("Text (*.txt);;Text (*.txt);;All (*)");

    run(*dialog, [&](FileDialogDriver& driver) {
        driver.pickTypeWithKeys(1);
        driver.enterName(QStringLiteral("*.dat"));
        driver.pickTypeWithKeys(2);
        EXPECT_EQ(driver.types(), types);
        EXPECT_EQ(driver.currentType(), QStringLiteral("All (*)"));
        EXPECT_TRUE(driver.waitForListed({QStringLiteral("a.txt"), QStringLiteral("b.dat"), QStringLiteral("c.csv")}));
    });
}

TEST_F(QExtendedFileDialogWildcardRevert, theSecondOfTwoEqualTypesCanBePickedOnceTheListIsRestored)
{
    const Dialog dialog = openDialog("All (*);;Text (*.txt);;Text (*.txt)");
    run(*dialog, [](FileDialogDriver& driver) { driver.enterName(QStringLiteral("*.dat")); });

    run(*dialog, [](FileDialogDriver& driver) {
        driver.pickTypeWithKeys(2);
        EXPECT_EQ(driver.typeCombo().currentIndex(), 2);
        driver.enterName(QStringLiteral("*.dat"));
        driver.pickTypeWithKeys(0);
        driver.pickTypeWithKeys(2);
        EXPECT_EQ(driver.typeCombo().currentIndex(), 2);
    });
}

TEST_F(QExtendedFileDialogWildcardRevert, saveModeRestoresTheListToo)
{
    const Dialog dialog = saveDialog("Text (*.txt);;All (*);;Data (*.dat)");

    run(*dialog, [](FileDialogDriver& driver) {
        editAll(driver);
        driver.pickTypeWithMouse(0);
        EXPECT_EQ(driver.types(), callersTypes);
        EXPECT_EQ(driver.currentType(), QStringLiteral("Text (*.txt)"));
        EXPECT_TRUE(driver.waitForListed({QStringLiteral("a.txt")}));
    });
}
