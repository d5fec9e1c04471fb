// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "FileDialogTest.h"
#include "support/DiskNames.h"

#include <QComboBox>
#include <QLineEdit>
#include <QSignalSpy>

using namespace morvane::test;

namespace {

class QExtendedFileDialogWildcard : public FileDialogTest
{
protected:
    QExtendedFileDialogWildcard()
    {
        makeFiles({QStringLiteral("a.txt"), QStringLiteral("b.dat"), QStringLiteral("c.dat"), QStringLiteral("d.csv")});
    }

    // The types that the dialog shows after the type in @p row was selected and @p pattern was entered.
    QStringList typesAfter(const std::string& filter, int row, const QString& pattern)
    {
        const Dialog dialog = openDialog(filter);
        QStringList types;
        run(*dialog, [&](FileDialogDriver& driver) {
            driver.pickTypeWithKeys(row);
            driver.enterName(pattern);
            EXPECT_TRUE(driver.isOpen());
            EXPECT_EQ(driver.types(), driver.dialog().nameFilters());
            types = driver.types();
        });
        return types;
    }
};

} // namespace

TEST_F(QExtendedFileDialogWildcard, patternReplacesThatOfTheCurrentType)
{
    const Dialog dialog = openDialog("Text files (*.txt);;All (*)");

    const int result = run(*dialog, [](FileDialogDriver& driver) {
        EXPECT_TRUE(driver.waitForListed({QStringLiteral("a.txt")}));
        driver.enterName(QStringLiteral("*.dat"));

        EXPECT_TRUE(driver.isOpen());
        EXPECT_EQ(driver.types(), QStringList({QStringLiteral("Text files (*.dat)"), QStringLiteral("All (*)")}));
        EXPECT_EQ(driver.currentType(), QStringLiteral("Text files (*.dat)"));
        EXPECT_EQ(driver.dialog().selectedNameFilter(), QStringLiteral("Text files (*.dat)"));
        EXPECT_TRUE(driver.waitForListed({QStringLiteral("b.dat"), QStringLiteral("c.dat")}));
        driver.click(QDialogButtonBox::Cancel);
    });

    EXPECT_EQ(result, QDialog::Rejected);
}

TEST_F(QExtendedFileDialogWildcard, typeKeepsItsPlaceInTheList)
{
    EXPECT_EQ(typesAfter("Text (*.txt);;All (*);;Data (*.dat)", 1, QStringLiteral("*.dat")),
        QStringList({QStringLiteral("Text (*.txt)"), QStringLiteral("All (*.dat)"), QStringLiteral("Data (*.dat)")}));
}

TEST_F(QExtendedFileDialogWildcard, typeWithoutParenthesisGetsNoBlank)
{
    EXPECT_EQ(typesAfter("Everything;;All (*)", 0, QStringLiteral("*.dat")),
        QStringList({QStringLiteral("Everything(*.dat)"), QStringLiteral("All (*)")}));
}

TEST_F(QExtendedFileDialogWildcard, descriptionEndsAtTheFirstParenthesis)
{
    EXPECT_EQ(typesAfter("Runs (old) (*.txt);;All (*)", 0, QStringLiteral("*.dat")),
        QStringList({QStringLiteral("Runs (*.dat)"), QStringLiteral("All (*)")}));
}

TEST_F(QExtendedFileDialogWildcard, onlyTheFirstOfEqualTypesIsReplaced)
{
    const QStringList expected = {
        QStringLiteral("Text (*.dat)"), QStringLiteral("Text (*.txt)"), QStringLiteral("All (*)")};

    EXPECT_EQ(typesAfter("Text (*.txt);;Text (*.txt);;All (*)", 0, QStringLiteral("*.dat")), expected);
    EXPECT_EQ(typesAfter("Text (*.txt);;Text (*.txt);;All (*)", 1, QStringLiteral("*.dat")), expected);
}

TEST_F(QExtendedFileDialogWildcard, allFilesStandInForAnEmptyFilter)
{
    EXPECT_EQ(typesAfter("", 0, QStringLiteral("*.dat")), QStringList({QStringLiteral("All Files (*.dat)")}));
}

TEST_F(QExtendedFileDialogWildcard, viewShowsOnlyWhatThePatternMatches)
{
    makeFolder(QStringLiteral("folder"));
    const struct
    {
        QString pattern;
        QStringList listed;
    } rows[] = {
        {QStringLiteral("*.dat"), {QStringLiteral("b.dat"), QStringLiteral("c.dat"), QStringLiteral("folder")}},
        {QStringLiteral("*.none"), {QStringLiteral("folder")}},
        {QStringLiteral("c*"), {QStringLiteral("c.dat"), QStringLiteral("folder")}},
        {QStringLiteral("*.d* *.csv"),
            {QStringLiteral("b.dat"), QStringLiteral("c.dat"), QStringLiteral("d.csv"), QStringLiteral("folder")}},
        {QStringLiteral("*.txt  *.csv"), {QStringLiteral("a.txt"), QStringLiteral("d.csv"), QStringLiteral("folder")}},
        {QStringLiteral("a.txt *.none"), {QStringLiteral("a.txt"), QStringLiteral("folder")}},
        {QStringLiteral("*"), {QStringLiteral("a.txt"), QStringLiteral("b.dat"), QStringLiteral("c.dat"),
                                  QStringLiteral("d.csv"), QStringLiteral("folder")}},
    };
    const Dialog dialog = openDialog("All (*)");
    run(*dialog, [&](FileDialogDriver& driver) {
        for (const auto& row : rows) {
            SCOPED_TRACE(row.pattern.toStdString());
            driver.enterName(row.pattern);
            EXPECT_TRUE(driver.waitForListed(row.listed));
        }
    });
}

TEST_F(QExtendedFileDialogWildcard, blanksInThePatternDoNotLoseTheType)
{
    const Dialog dialog = openDialog("Text (*.txt);;All (*)");

    run(*dialog, [](FileDialogDriver& driver) {
        driver.pickTypeWithKeys(1);
        driver.enterName(QStringLiteral(" *.dat   *.csv "));

        EXPECT_EQ(driver.currentType(), driver.types().at(1));
        EXPECT_TRUE(driver.currentType().startsWith(QStringLiteral("All (")));
        EXPECT_TRUE(driver.currentType().contains(QStringLiteral("*.dat *.csv")));
        EXPECT_TRUE(driver.waitForListed({QStringLiteral("b.dat"), QStringLiteral("c.dat"), QStringLiteral("d.csv")}));
    });
}

TEST_F(QExtendedFileDialogWildcard, secondPatternReplacesTheFirst)
{
    const Dialog dialog = openDialog("Text (*.txt);;All (*)");

    run(*dialog, [](FileDialogDriver& driver) {
        driver.enterName(QStringLiteral("*.dat"));
        driver.enterName(QStringLiteral("*.csv"));

        EXPECT_EQ(driver.types(), QStringList({QStringLiteral("Text (*.csv)"), QStringLiteral("All (*)")}));
        EXPECT_EQ(driver.currentType(), QStringLiteral("Text (*.csv)"));
        EXPECT_TRUE(driver.waitForListed({QStringLiteral("d.csv")}));
    });
}

TEST_F(QExtendedFileDialogWildcard, samePatternAgainChangesNothing)
{
    const Dialog dialog = openDialog("Text (*.txt);;All (*)");

    run(*dialog, [](FileDialogDriver& driver) {
        driver.enterName(QStringLiteral("*.dat"));
        driver.pressEnter();

        EXPECT_TRUE(driver.isOpen());
        EXPECT_EQ(driver.types(), QStringList({QStringLiteral("Text (*.dat)"), QStringLiteral("All (*)")}));
        EXPECT_EQ(driver.currentType(), QStringLiteral("Text (*.dat)"));
    });
}

TEST_F(QExtendedFileDialogWildcard, typeBoxTellsNothingWhileItIsChanged)
{
    const Dialog dialog = openDialog("Text (*.txt);;All (*)");

    run(*dialog, [](FileDialogDriver& driver) {
        const QSignalSpy current(&driver.typeCombo(), SIGNAL(currentIndexChanged(int)));
        driver.enterName(QStringLiteral("*.dat"));

        EXPECT_TRUE(current.isEmpty());
        EXPECT_FALSE(driver.typeCombo().signalsBlocked());
    });
}

TEST_F(QExtendedFileDialogWildcard, patternIsNoNameWithValidationOffEither)
{
    const Dialog dialog = openDialog("All (*)");
    dialog->performSelectedFileValidation(false);

    const int result = run(*dialog, [](FileDialogDriver& driver) {
        driver.enterName(QStringLiteral("*.dat"));
        EXPECT_TRUE(driver.isOpen());
        EXPECT_EQ(driver.currentType(), QStringLiteral("All (*.dat)"));
    });

    EXPECT_EQ(result, QDialog::Rejected);
}

TEST_F(QExtendedFileDialogWildcard, otherWildcardCharactersAreNames)
{
    const QStringList names = namesForDisk({QStringLiteral("[b]?.dat"), QStringLiteral("[b].dat")});
    const QString& name = names.first();
    makeFile(name);
    const Dialog dialog = openDialog("All (*)");

    EXPECT_EQ(run(*dialog, [&name](FileDialogDriver& driver) { driver.enterName(name); }), QDialog::Accepted);
    EXPECT_EQ(dialog->selectedFiles(), QStringList(path(name)));
}

TEST_F(QExtendedFileDialogWildcard, fileIsPickedFromTheFilteredView)
{
    const Dialog dialog = openDialog("Text (*.txt);;All (*)");

    const int result = run(*dialog, [](FileDialogDriver& driver) {
        driver.enterName(QStringLiteral("*.dat"));
        EXPECT_TRUE(driver.waitForListed({QStringLiteral("b.dat"), QStringLiteral("c.dat")}));
        driver.clickFile(QStringLiteral("c.dat"));
        driver.click(QDialogButtonBox::Open);
    });

    EXPECT_EQ(result, QDialog::Accepted);
    EXPECT_EQ(dialog->selectedFiles(), QStringList(path(QStringLiteral("c.dat"))));
    EXPECT_EQ(dialog->selectedNameFilter(), QStringLiteral("Text (*.dat)"));
}

TEST_F(QExtendedFileDialogWildcard, saveModeFiltersTheViewToo)
{
    const Dialog dialog = saveDialog("Text (*.txt);;All (*)");

    run(*dialog, [](FileDialogDriver& driver) {
        driver.enterName(QStringLiteral("*.dat"));
        EXPECT_TRUE(driver.isOpen());
        EXPECT_EQ(driver.types(), QStringList({QStringLiteral("Text (*.dat)"), QStringLiteral("All (*)")}));
        EXPECT_EQ(driver.currentType(), QStringLiteral("Text (*.dat)"));
        EXPECT_TRUE(driver.waitForListed({QStringLiteral("b.dat"), QStringLiteral("c.dat")}));

        driver.typeName(QStringLiteral("*.csv"));
        driver.click(QDialogButtonBox::Save);
        EXPECT_TRUE(driver.isOpen());
        EXPECT_EQ(driver.types(), QStringList({QStringLiteral("Text (*.csv)"), QStringLiteral("All (*)")}));
        EXPECT_TRUE(driver.waitForListed({QStringLiteral("d.csv")}));
    });
}

TEST_F(QExtendedFileDialogWildcard, saveModeEditsALaterTypeAsWell)
{
    const Dialog dialog = saveDialog("Text (*.txt);;All (*)");

    run(*dialog, [](FileDialogDriver& driver) {
        driver.pickTypeWithKeys(1);
        driver.enterName(QStringLiteral("*.dat"));
        EXPECT_EQ(driver.types(), QStringList({QStringLiteral("Text (*.txt)"), QStringLiteral("All (*.dat)")}));
        EXPECT_EQ(driver.currentType(), QStringLiteral("All (*.dat)"));
        EXPECT_EQ(driver.name(), QStringLiteral("*.dat"));
    });
}
