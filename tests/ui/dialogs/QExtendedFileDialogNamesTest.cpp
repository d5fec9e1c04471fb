// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "FileDialogTest.h"
#include "support/DiskNames.h"

#include <QFileInfo>

#include <algorithm>
#include <iterator>
#include <vector>

using namespace morvane::test;

namespace {

struct Name
{
    const char* label;
    const char* utf8;
    bool typable; ///< can be typed unchanged into the name field

    QString text() const { return QString::fromUtf8(utf8); }
};

void PrintTo(const Name& name, std::ostream* out)
{
    *out << name.label;
}

class QExtendedFileDialogNames : public FileDialogTest, public testing::WithParamInterface<Name>
{
};

class QExtendedFileDialogNamesTyped : public QExtendedFileDialogNames
{
};

class QExtendedFileDialogNamesSeveral : public FileDialogTest
{
};

const Name names[] = {
    {"plain", "run.dat", true},
    {"noSuffix", "run", true},
    {"blanks", "my first  run.dat", true},
    {"leadingBlank", " run.dat", true},
    {"trailingBlank", "run.dat ", true},
    {"doubleQuotes", "say \"run\".dat", false},
    {"singleQuotes", "it's 'run'.dat", true},
    {"lineFeed", "first\nsecond.dat", false},
    {"onlyALineFeed", "\n", false},
    {"tabulator", "first\tsecond.dat", false},
    {"umlauts", "Gr\u00f6\u00dfe.dat", true},
    {"combiningAccent", "e\u0301.dat", true},
    {"basicPlane", "\u6d4b\u91cf.dat", true},
    {"outsideTheBasicPlane", "\U0001F600 \U0001D4B3.dat", true},
    {"rightToLeft", "\u05e9\u05dc\u05d5\u05dd.dat", true},
    {"backslash", "a\\b.dat", true},
    {"percent", "100%25 %s.dat", true},
    {"dollar", "$HOME.dat", true},
    {"leadingDash", "-rf", true},
    {"brackets", "[a](b){c}.dat", true},
    {"semicolons", "a;;b.dat", true},
    {"ampersand", "a&b.dat", true},
    {"markup", "<b>run.dat", true},
    {"twoHundredFiftyFive",
        "aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa"
        "aaaaa"
        "aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa"
        "aaaaa"
        "aaaaaaaaaaaaaaaaaaaaaaaaa",
        true},
};

std::vector<Name> namesThatTheDiskTakes()
{
    std::vector<Name> result;
    std::copy_if(std::begin(names), std::end(names), std::back_inserter(result),
        [](const Name& n) { return diskTakesName(n.text()); });
    return result;
}

std::vector<Name> typableNames()
{
    std::vector<Name> result = namesThatTheDiskTakes();
    result.erase(std::remove_if(result.begin(), result.end(), [](const Name& n) { return !n.typable; }), result.end());
    return result;
}

std::string labelOf(const testing::TestParamInfo<Name>& info)
{
    return info.param.label;
}

} // namespace

INSTANTIATE_TEST_SUITE_P(, QExtendedFileDialogNames, testing::ValuesIn(namesThatTheDiskTakes()), labelOf);
INSTANTIATE_TEST_SUITE_P(, QExtendedFileDialogNamesTyped, testing::ValuesIn(typableNames()), labelOf);

TEST_P(QExtendedFileDialogNames, isPickedWithTheMouse)
{
    const QString name = GetParam().text();
    makeFiles({name, QStringLiteral("zz.other")});
    const Dialog dialog = openDialog();

    const int result = run(*dialog, [&](FileDialogDriver& driver) {
        driver.clickFile(name);
        driver.click(QDialogButtonBox::Open);
    });

    EXPECT_EQ(result, QDialog::Accepted);
    EXPECT_EQ(dialog->selectedFiles(), QStringList(path(name)));
    EXPECT_TRUE(QFileInfo::exists(dialog->selectedFiles().value(0)));
}

TEST_P(QExtendedFileDialogNames, isPickedWithADoubleClick)
{
    const QString name = GetParam().text();
    makeFiles({name, QStringLiteral("zz.other")});
    const Dialog dialog = openDialog();

    const int result = run(*dialog, [&](FileDialogDriver& driver) { driver.doubleClickFile(name); });

    EXPECT_EQ(result, QDialog::Accepted);
    EXPECT_EQ(dialog->selectedFiles(), QStringList(path(name)));
}

TEST_P(QExtendedFileDialogNamesTyped, opens)
{
    const QString name = GetParam().text();
    makeFiles({name, QStringLiteral("zz.other")});
    const Dialog dialog = openDialog();

    const int result = run(*dialog, [&](FileDialogDriver& driver) {
        driver.typeName(name);
        EXPECT_EQ(driver.name(), name);
        driver.pressEnter();
    });

    EXPECT_EQ(result, QDialog::Accepted);
    EXPECT_EQ(dialog->selectedFiles(), QStringList(path(name)));
}

TEST_P(QExtendedFileDialogNamesTyped, saves)
{
    const QString name = GetParam().text();
    const Dialog dialog = saveDialog();

    EXPECT_EQ(run(*dialog, [&](FileDialogDriver& driver) { driver.enterName(name); }), QDialog::Accepted);
    EXPECT_EQ(dialog->selectedFiles(), QStringList(path(name)));
}

TEST_F(QExtendedFileDialogNamesSeveral, oddNamesArePickedTogether)
{
    const QStringList all = namesForDisk(
        {QStringLiteral("first\nsecond.dat"), QStringLiteral("say \"run\".dat"), QStringLiteral("it's.dat"),
            QString::fromUtf8("\U0001F600 \U0001D4B3.dat"), QStringLiteral("my first  run.dat")});
    makeFiles(all);
    const Dialog dialog = openDialog();
    dialog->setFileMode(QFileDialog::ExistingFiles);

    const int result = run(*dialog, [&](FileDialogDriver& driver) {
        for (const QString& name : all) {
            driver.clickFile(name, Qt::ControlModifier);
        }
        driver.click(QDialogButtonBox::Open);
    });

    EXPECT_EQ(result, QDialog::Accepted);
    QStringList expected;
    for (const QString& name : all) {
        expected.append(path(name));
    }
    QStringList chosen = dialog->selectedFiles();
    chosen.sort();
    expected.sort();
    EXPECT_EQ(chosen, expected);
}

TEST_F(QExtendedFileDialogNamesSeveral, nameWithAStarFiltersInsteadOfOpening)
{
    if (!diskTakesName(QStringLiteral("a*.dat"))) {
        GTEST_SKIP() << "no file of this system has a star in its name";
    }
    makeFiles({QStringLiteral("a*.dat"), QStringLiteral("b.dat")});
    const Dialog dialog = openDialog("All (*)");

    run(*dialog, [](FileDialogDriver& driver) {
        driver.clickFile(QStringLiteral("a*.dat"));
        driver.click(QDialogButtonBox::Open);
        EXPECT_TRUE(driver.isOpen());
        EXPECT_EQ(driver.currentType(), QStringLiteral("All (a*.dat)"));
        EXPECT_TRUE(driver.waitForListed({QStringLiteral("a*.dat")}));
    });
}
