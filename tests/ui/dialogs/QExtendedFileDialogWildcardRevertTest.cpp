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

    static void editAll(FileDialogPage& page)
    {
        page.pickTypeWithKeys(1);
        page.enterName(QStringLiteral("*.dat"));
        EXPECT_EQ(page.types(), editedTypes);
        EXPECT_TRUE(page.waitForListed({QStringLiteral("b.dat")}));
    }
};

} // namespace

TEST_F(QExtendedFileDialogWildcardRevert, anotherTypePickedWithKeysRestoresTheList)
{
    const Dialog dialog = dialogWithTypes();

    run(*dialog, [](FileDialogPage& page) {
        editAll(page);
        page.pickTypeWithKeys(0);

        EXPECT_EQ(page.types(), callersTypes);
        EXPECT_EQ(page.dialog().nameFilters(), callersTypes);
        EXPECT_EQ(page.currentType(), QStringLiteral("Text (*.txt)"));
        EXPECT_TRUE(page.waitForListed({QStringLiteral("a.txt")}));
    });
}

TEST_F(QExtendedFileDialogWildcardRevert, anotherTypePickedWithTheMouseRestoresTheList)
{
    const Dialog dialog = dialogWithTypes();

    run(*dialog, [](FileDialogPage& page) {
        editAll(page);
        page.pickTypeWithMouse(2);

        EXPECT_EQ(page.types(), callersTypes);
        EXPECT_EQ(page.currentType(), QStringLiteral("Data (*.dat)"));
        EXPECT_TRUE(page.waitForListed({QStringLiteral("b.dat")}));
    });
}

TEST_F(QExtendedFileDialogWildcardRevert, arrowKeyInTheClosedBoxRestoresTheList)
{
    const Dialog dialog = dialogWithTypes();

    run(*dialog, [](FileDialogPage& page) {
        editAll(page);
        QTest::keyClick(&page.typeCombo(), Qt::Key_Up);

        EXPECT_EQ(page.types(), callersTypes);
        EXPECT_EQ(page.currentType(), QStringLiteral("Text (*.txt)"));
    });
}

TEST_F(QExtendedFileDialogWildcardRevert, editedTypePickedAgainKeepsTheEditedList)
{
    const Dialog dialog = dialogWithTypes();

    run(*dialog, [](FileDialogPage& page) {
        editAll(page);
        page.pickTypeWithMouse(1);
        EXPECT_EQ(page.types(), editedTypes);
        page.pickTypeWithKeys(1);
        EXPECT_EQ(page.types(), editedTypes);
        EXPECT_EQ(page.currentType(), QStringLiteral("All (*.dat)"));
        EXPECT_TRUE(page.waitForListed({QStringLiteral("b.dat")}));

        page.pickTypeWithKeys(0);
        EXPECT_EQ(page.types(), callersTypes);
    });
}

TEST_F(QExtendedFileDialogWildcardRevert, editedTypeWithBlanksPickedAgainKeepsTheEditedList)
{
    const Dialog dialog = dialogWithTypes();

    run(*dialog, [](FileDialogPage& page) {
        page.enterName(QStringLiteral("*.dat   *.csv"));
        const QStringList edited = page.types();
        EXPECT_NE(edited, callersTypes);
        page.pickTypeWithKeys(0);
        EXPECT_EQ(page.types(), edited);
    });
}

TEST_F(QExtendedFileDialogWildcardRevert, listOfTheCallerIsRememberedThroughSeveralPatterns)
{
    const Dialog dialog = dialogWithTypes();

    run(*dialog, [](FileDialogPage& page) {
        editAll(page);
        page.enterName(QStringLiteral("*.csv"));
        page.enterName(QStringLiteral("c*"));
        EXPECT_EQ(page.types().at(1), QStringLiteral("All (c*)"));

        page.pickTypeWithMouse(0);
        EXPECT_EQ(page.types(), callersTypes);
    });
}

TEST_F(QExtendedFileDialogWildcardRevert, listCanBeEditedAgainAfterItWasRestored)
{
    const Dialog dialog = dialogWithTypes();

    run(*dialog, [](FileDialogPage& page) {
        for (int round = 0; round < 3; ++round) {
            editAll(page);
            page.pickTypeWithKeys(2);
            EXPECT_EQ(page.types(), callersTypes);
            EXPECT_EQ(page.currentType(), QStringLiteral("Data (*.dat)"));
        }
    });
}

TEST_F(QExtendedFileDialogWildcardRevert, pickingTypesOfAPlainListKeepsIt)
{
    const Dialog dialog = dialogWithTypes();

    run(*dialog, [](FileDialogPage& page) {
        for (const int row : {2, 0, 1}) {
            page.pickTypeWithMouse(row);
            EXPECT_EQ(page.types(), callersTypes);
            EXPECT_EQ(page.currentType(), callersTypes.at(row));
        }
    });
}

TEST_F(QExtendedFileDialogWildcardRevert, nextExecRestoresTheList)
{
    const Dialog dialog = dialogWithTypes();
    run(*dialog, [](FileDialogPage& page) { editAll(page); });
    EXPECT_EQ(dialog->nameFilters(), editedTypes);

    run(*dialog, [](FileDialogPage& page) {
        EXPECT_EQ(page.types(), callersTypes);
        page.pickTypeWithKeys(1);
        EXPECT_EQ(page.types(), callersTypes);
        EXPECT_EQ(page.currentType(), QStringLiteral("All (*)"));
        editAll(page);
        page.pickTypeWithKeys(0);
        EXPECT_EQ(page.types(), callersTypes);
    });
}

TEST_F(QExtendedFileDialogWildcardRevert, nextShowRestoresTheList)
{
    const Dialog dialog = dialogWithTypes();
    run(*dialog, [](FileDialogPage& page) { editAll(page); });

    dialog->show();

    EXPECT_EQ(dialog->nameFilters(), callersTypes);
    EXPECT_EQ(FileDialogPage(*dialog).types(), callersTypes);
}

TEST_F(QExtendedFileDialogWildcardRevert, aRestoredListGivesWayToTheNextOne)
{
    const QStringList others = {QStringLiteral("Image (*.png)"), QStringLiteral("Table (*.csv)")};
    const Dialog dialog = dialogWithTypes();
    run(*dialog, [](FileDialogPage& page) { editAll(page); });
    dialog->show();
    dialog->hide();
    dialog->setNameFilters(others);

    dialog->show();

    EXPECT_EQ(dialog->nameFilters(), others);
}

TEST_F(QExtendedFileDialogWildcardRevert, runWithoutAPatternKeepsTheSelectedType)
{
    const Dialog dialog = dialogWithTypes();
    run(*dialog, [](FileDialogPage& page) { page.pickTypeWithKeys(2); });

    run(*dialog, [](FileDialogPage& page) { EXPECT_EQ(page.currentType(), QStringLiteral("Data (*.dat)")); });
}

TEST_F(QExtendedFileDialogWildcardRevert, duplicatesInTheListAreRestored)
{
    const QStringList types = {
        QStringLiteral("Text (*.txt)"), QStringLiteral("Text (*.txt)"), QStringLiteral("All (*)")};
    const Dialog dialog = openDialog("Text (*.txt);;Text (*.txt);;All (*)");

    run(*dialog, [&](FileDialogPage& page) {
        page.pickTypeWithKeys(1);
        page.enterName(QStringLiteral("*.dat"));
        page.pickTypeWithKeys(2);
        EXPECT_EQ(page.types(), types);
        EXPECT_EQ(page.currentType(), QStringLiteral("All (*)"));
        EXPECT_TRUE(page.waitForListed({QStringLiteral("a.txt"), QStringLiteral("b.dat"), QStringLiteral("c.csv")}));
    });
}

TEST_F(QExtendedFileDialogWildcardRevert, theSecondOfTwoEqualTypesCanBePickedOnceTheListIsRestored)
{
    const Dialog dialog = openDialog("All (*);;Text (*.txt);;Text (*.txt)");
    run(*dialog, [](FileDialogPage& page) { page.enterName(QStringLiteral("*.dat")); });

    run(*dialog, [](FileDialogPage& page) {
        page.pickTypeWithKeys(2);
        EXPECT_EQ(page.typeCombo().currentIndex(), 2);
        page.enterName(QStringLiteral("*.dat"));
        page.pickTypeWithKeys(0);
        page.pickTypeWithKeys(2);
        EXPECT_EQ(page.typeCombo().currentIndex(), 2);
    });
}

TEST_F(QExtendedFileDialogWildcardRevert, saveModeRestoresTheListToo)
{
    const Dialog dialog = saveDialog("Text (*.txt);;All (*);;Data (*.dat)");

    run(*dialog, [](FileDialogPage& page) {
        editAll(page);
        page.pickTypeWithMouse(0);
        EXPECT_EQ(page.types(), callersTypes);
        EXPECT_EQ(page.currentType(), QStringLiteral("Text (*.txt)"));
        EXPECT_TRUE(page.waitForListed({QStringLiteral("a.txt")}));
    });
}
