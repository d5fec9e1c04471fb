// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// Behaviour that the launcher has only with the dialog made of Qt's widgets.
#include "LaunchFileDialogTest.h"

namespace morvane::test {

namespace {

using ::testing::ElementsAre;

class LaunchFileDialogQt : public LaunchFileDialogTest
{
protected:
    LaunchFileDialogQt() : LaunchFileDialogTest(false) {}

    /** The name and the position of the type that a save dialog opens with. */
    std::pair<std::string, int> opening(const Texts& given, const char* selection, int index)
    {
        filters = given;
        std::pair<std::string, int> seen;
        launch({text(selection)}, true, false, index, [&](FileDialogDriver& driver) {
            seen = {driver.name().toStdString(), driver.typeCombo().currentIndex()};
        });
        return seen;
    }
};

const std::vector<std::string> anyFirst{"All (*.*)", "Data (*.dat)", "Text (*.txt)"};
const std::vector<std::string> dataFirst{"Data (*.dat)", "All (*.*)", "Text (*.txt)"};

TEST_F(LaunchFileDialogQt, choosesTheFilterBeforeTheNameWhenTheFirstTakesEverything)
{
    EXPECT_EQ(opening(anyFirst, "out.raw", 2), std::make_pair(std::string("out.raw"), 2));
}

TEST_F(LaunchFileDialogQt, choosesTheFilterAfterTheNameOtherwise)
{
    EXPECT_EQ(opening(dataFirst, "out.raw", 2), std::make_pair(std::string("out.txt"), 2))
        << "choosing a type gives the name its extension";
}

TEST_F(LaunchFileDialogQt, choosesNoFilterAtAllOutsideTheListWhenTheFirstTakesEverything)
{
    for (const int index : {-1, 3, 1000}) {
        EXPECT_EQ(opening(anyFirst, "out.raw", index), std::make_pair(std::string("out.raw"), 0)) << index;
    }
}

TEST_F(LaunchFileDialogQt, choosesNoFilterAtAllOutsideTheListOtherwise)
{
    for (const int index : {-1, 3, 1000}) {
        EXPECT_EQ(opening(dataFirst, "out.raw", index), std::make_pair(std::string("out.raw"), 0)) << index;
    }
}

TEST_F(LaunchFileDialogQt, opensWithTheNameAsItIsWhateverTheFilter)
{
    for (const int index : {0, 1, 2}) {
        filters = anyFirst;
        launch({text("c.txt")}, false, false, index, [&](FileDialogDriver& driver) {
            EXPECT_EQ(driver.name(), QStringLiteral("c.txt"));
            EXPECT_EQ(driver.typeCombo().currentIndex(), index);
        });
    }
}

TEST_F(LaunchFileDialogQt, quotesWholePathsAndEndsInABlank)
{
    const std::string quotes = '"' + text("a.dat") + "\" \"" + text("c.txt") + "\" ";
    launch({text("a.dat"), "", text("c.txt")}, false, true, 0, [&](FileDialogDriver& driver) {
        EXPECT_EQ(driver.dialog().directory().path(), path(""));
        EXPECT_EQ(driver.name().toStdString(), quotes);
    });
}

TEST_F(LaunchFileDialogQt, handsOnAnEmptyTextWhenEveryEntryIsEmpty)
{
    launch({"", ""}, false, true, 0, [](FileDialogDriver& driver) { EXPECT_EQ(driver.name(), QString()); });
}

TEST_F(LaunchFileDialogQt, aTypeEditedByAWildcardKeepsItsPosition)
{
    EXPECT_TRUE(launch({text("a.dat")}, false, false, 1, [](FileDialogDriver& driver) {
        driver.enterName(QStringLiteral("*.dat"));
        EXPECT_NE(driver.currentType(), QStringLiteral("Text (*.txt)"));
        EXPECT_TRUE(driver.waitForListed({QStringLiteral("a.dat"), QStringLiteral("b.dat"), QStringLiteral("inner")}));
        driver.enterName(QStringLiteral("b.dat"));
    }));
    EXPECT_THAT(files, ElementsAre(text("b.dat")));
    EXPECT_EQ(filterIndex, 1);
}

TEST_F(LaunchFileDialogQt, reportsTheFirstOfEqualFilters)
{
    filters = {"Data (*.dat)", "Data (*.dat)"};
    EXPECT_TRUE(launch(
        {text("a.dat")}, false, false, 1, [](FileDialogDriver& driver) { driver.enterName(QStringLiteral("b.dat")); }));
    EXPECT_THAT(files, ElementsAre(text("b.dat")));
    EXPECT_EQ(filterIndex, 0);
}

} // namespace

} // namespace morvane::test
