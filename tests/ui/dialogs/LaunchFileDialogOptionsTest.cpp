// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "LaunchFileDialogTest.h"

#include "ui/qt/dialogs/LaunchFileDialogOptions.h"

namespace morvane::test {

namespace {

using ui::LaunchFileDialogOptions;

TEST(LaunchFileDialogOptions, beginAsTheDialogForOneExistingFileOfAnyType)
{
    const LaunchFileDialogOptions options;
    EXPECT_EQ(options.caption(), QString());
    EXPECT_EQ(options.nameFilters(), QStringList("All files (*)"));
    EXPECT_EQ(options.initialFilterIndex(), 0);
    EXPECT_EQ(options.initialSelection(), QStringList());
    EXPECT_FALSE(options.saveMode());
    EXPECT_FALSE(options.allowMultiple());
}

TEST(LaunchFileDialogOptions, copyIsEqualAndIndependent)
{
    LaunchFileDialogOptions options;
    options.setCaption("a").setNameFilters({"b (*.b)"}).setInitialFilterIndex(3).setInitialSelection({"/c"});
    options.setSaveMode().setAllowMultiple();
    const LaunchFileDialogOptions copy(options);
    LaunchFileDialogOptions assigned;
    assigned = options;
    assigned = *&assigned;
    options.setCaption("other").setNameFilters({}).setInitialFilterIndex(0).setInitialSelection({});
    options.setSaveMode(false).setAllowMultiple(false);
    for (const LaunchFileDialogOptions* const other : {&copy, &std::as_const(assigned)}) {
        EXPECT_EQ(other->caption(), "a");
        EXPECT_EQ(other->nameFilters(), QStringList("b (*.b)"));
        EXPECT_EQ(other->initialFilterIndex(), 3);
        EXPECT_EQ(other->initialSelection(), QStringList("/c"));
        EXPECT_TRUE(other->saveMode());
        EXPECT_TRUE(other->allowMultiple());
    }
    EXPECT_EQ(options.nameFilters(), QStringList("All files (*)"));
}

class LaunchFileDialogByOptions : public LaunchFileDialogTest, public ::testing::WithParamInterface<bool>
{
protected:
    LaunchFileDialogByOptions() : LaunchFileDialogTest(GetParam()) {}

    bool launch(std::function<void(FileDialogDriver&)> act)
    {
        ModalScript user;
        user.on<QFileDialog>(FileDialogDriver::playing(std::move(act)));
        const bool accepted = ui::LaunchFileDialog(chosen, index, options);
        EXPECT_TRUE(user.finished());
        return accepted;
    }
    /** With slashes: the native dialog's paths have the platform's form. */
    QStringList chosenFiles() const
    {
        QStringList paths;
        for (const QString& file : chosen) {
            paths.append(QDir::fromNativeSeparators(file));
        }
        return paths;
    }

    LaunchFileDialogOptions options;
    QStringList chosen{"old"};
    int index = -77;
};

TEST_P(LaunchFileDialogByOptions, everyOptionReachesTheDialog)
{
    options.setCaption(QString::fromUtf8("Messung öffnen")).setNameFilters({"Text (*.txt)", "Data (*.dat)"});
    options.setInitialFilterIndex(1).setInitialSelection({path("a.dat"), path("b.dat")}).setAllowMultiple();
    EXPECT_TRUE(launch([&](FileDialogDriver& driver) {
        EXPECT_EQ(driver.dialog().windowTitle(), QString::fromUtf8("Messung öffnen"));
        EXPECT_EQ(driver.typeCombo().currentIndex(), 1);
        EXPECT_TRUE(driver.name().contains("b.dat"));
        EXPECT_EQ(driver.dialog().acceptMode(), QFileDialog::AcceptOpen);
        driver.pressAccept();
    }));
    EXPECT_EQ(chosenFiles(), (QStringList{path("a.dat"), path("b.dat")}));
    EXPECT_EQ(index, 1);
}

TEST_P(LaunchFileDialogByOptions, withoutFiltersAllFilesAreOffered)
{
    EXPECT_FALSE(launch([&](FileDialogDriver& driver) {
        EXPECT_EQ(driver.typeCombo().count(), 1);
        EXPECT_FALSE(driver.dialog().windowTitle().isEmpty());
    }));
}

TEST_P(LaunchFileDialogByOptions, cancellingChangesNothing)
{
    EXPECT_FALSE(launch([](FileDialogDriver& driver) { driver.dialog().reject(); }));
    EXPECT_EQ(chosen, QStringList("old"));
    EXPECT_EQ(index, -77);
}

TEST_P(LaunchFileDialogByOptions, saveModeGivesANewName)
{
    options.setSaveMode().setNameFilters({"Text (*.txt)"}).setInitialSelection({path("new")});
    EXPECT_TRUE(launch([](FileDialogDriver& driver) {
        EXPECT_EQ(driver.dialog().acceptMode(), QFileDialog::AcceptSave);
        driver.typeName(QStringLiteral("new.txt"));
        driver.pressAccept();
    }));
    EXPECT_EQ(chosenFiles(), QStringList(path("new.txt")));
    EXPECT_EQ(index, 0);
}

TEST_P(LaunchFileDialogByOptions, filterMayBeLeftOut)
{
    options.setInitialSelection({path("c.txt")});
    ModalScript user;
    user.on<QFileDialog>(FileDialogDriver::playing([](FileDialogDriver& driver) { driver.pressAccept(); }));
    EXPECT_TRUE(ui::LaunchFileDialog(chosen, options));
    EXPECT_EQ(chosenFiles(), QStringList(path("c.txt")));
}

INSTANTIATE_TEST_SUITE_P(
    , LaunchFileDialogByOptions, ::testing::Bool(), [](const auto& test) { return test.param ? "native" : "qt"; });

} // namespace

} // namespace morvane::test
