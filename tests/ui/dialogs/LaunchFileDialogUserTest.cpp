// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// The launcher as a user sees it, with both dialogs.
#include "LaunchFileDialogTest.h"

#include "support/ActiveWindow.h"

namespace morvane::test {

namespace {

using ::testing::ElementsAre;
using ::testing::UnorderedElementsAre;

class LaunchFileDialogUser : public LaunchFileDialogTest, public ::testing::WithParamInterface<bool>
{
protected:
    LaunchFileDialogUser() : LaunchFileDialogTest(GetParam()) {}

    /** The native dialog gives paths in the platform's form. */
    std::string reported(const char* name) const
    {
        return (GetParam() ? QDir::toNativeSeparators(path(name)) : path(name)).toStdString();
    }
};

TEST_P(LaunchFileDialogUser, opensTheTypedFile)
{
    EXPECT_TRUE(launch({text("a.dat")}, false, false, 0, [this](FileDialogDriver& driver) {
        EXPECT_EQ(driver.dialog().windowTitle(), QStringLiteral("Caption"));
        EXPECT_EQ(driver.dialog().acceptMode(), QFileDialog::AcceptOpen);
        EXPECT_TRUE(GetParam() || driver.dialog().fileMode() == QFileDialog::ExistingFile);
        EXPECT_EQ(driver.dialog().directory().path(), path(""));
        EXPECT_EQ(driver.name(), QStringLiteral("a.dat"));
        EXPECT_FALSE(driver.button(QDialogButtonBox::Help));
        driver.waitForListed({QStringLiteral("a.dat"), QStringLiteral("b.dat"), QStringLiteral("inner")});
        driver.typeName(QStringLiteral("b.dat"));
        driver.click(QDialogButtonBox::Open);
    }));
    EXPECT_THAT(files, ElementsAre(reported("b.dat")));
    EXPECT_EQ(filterIndex, 0);
}

TEST_P(LaunchFileDialogUser, reportsTheChosenFilterWhateverWildcardWasTyped)
{
    filters = {"Data (*.dat)", "Data (*.csv)"};
    EXPECT_TRUE(launch({text("a.dat")}, false, false, 1, [](FileDialogDriver& driver) {
        driver.enterName(QStringLiteral("*.dat"));
        driver.waitForListed({QStringLiteral("a.dat"), QStringLiteral("b.dat"), QStringLiteral("inner")});
        driver.enterName(QStringLiteral("b.dat"));
    }));
    EXPECT_THAT(files, ElementsAre(reported("b.dat")));
    EXPECT_EQ(filterIndex, 1);
}

TEST_P(LaunchFileDialogUser, startsWithTheFilterWhateverBlanksItsTextHas)
{
    filters = {"Text (*.txt)", "Table  (*.dat )"};
    EXPECT_TRUE(launch({text("a.dat")}, false, false, 1, [](FileDialogDriver& driver) {
        EXPECT_EQ(driver.typeCombo().currentIndex(), 1);
        driver.waitForListed({QStringLiteral("a.dat"), QStringLiteral("b.dat"), QStringLiteral("inner")});
        driver.enterName(QStringLiteral("b.dat"));
    }));
    EXPECT_EQ(filterIndex, 1);
}

TEST_P(LaunchFileDialogUser, startsSavingWithTheNamesOfSeveralFilesAsTheyAre)
{
    filters = {"Text (*.txt)", "Data (*.dat)"};
    launch({text("a.dat"), text("b.dat")}, true, true, 0, [](FileDialogDriver& driver) {
        EXPECT_EQ(driver.name().count(QLatin1Char('"')), 4) << driver.name().toStdString();
        EXPECT_EQ(driver.name().count(QStringLiteral(".dat\"")), 2) << driver.name().toStdString();
    });
}

TEST_P(LaunchFileDialogUser, opensTheClickedFileOfThePickedType)
{
    EXPECT_TRUE(launch({text("a.dat")}, false, false, 0, [](FileDialogDriver& driver) {
        driver.waitForListed({QStringLiteral("a.dat"), QStringLiteral("b.dat"), QStringLiteral("inner")});
        driver.pickTypeWithMouse(1);
        driver.waitForListed({QStringLiteral("c.txt"), QStringLiteral("inner")});
        driver.doubleClickFile(QStringLiteral("c.txt"));
    }));
    EXPECT_THAT(files, ElementsAre(reported("c.txt")));
    EXPECT_EQ(filterIndex, 1);
}

TEST_P(LaunchFileDialogUser, opensTheNameThatIsEnteredWithTheKeyboard)
{
    for (const bool several : {false, true}) {
        EXPECT_TRUE(launch({text("a.dat")}, false, several, 0, [](FileDialogDriver& driver) {
            driver.waitForListed({QStringLiteral("a.dat"), QStringLiteral("b.dat"), QStringLiteral("inner")});
            driver.typeName(QStringLiteral("a"));
            driver.typeName(QString());
            driver.enterName(QStringLiteral("b.dat"));
        }));
        EXPECT_THAT(files, ElementsAre(reported("b.dat"))) << several;
    }
}

TEST_P(LaunchFileDialogUser, refusesAMissingFileAlsoWhenSaving)
{
    for (const bool saving : {false, true}) {
        EXPECT_FALSE(launch({text("a.dat")}, saving, true, 0, [](FileDialogDriver& driver) {
            ModalScript inner;
            inner.on<QMessageBox>([](QMessageBox& box) {
                EXPECT_TRUE(box.text().contains(QStringLiteral("missing.dat"))) << box.text().toStdString();
                QTest::keyClick(&box, Qt::Key_Escape);
            });
            driver.enterName(QStringLiteral("missing.dat"));
            EXPECT_TRUE(inner.finished()) << "no message was shown";
            EXPECT_TRUE(driver.isOpen());
        }));
        EXPECT_THAT(files, ElementsAre("old", "older", "oldest"));
    }
}

TEST_P(LaunchFileDialogUser, startsWithTheFilterAtTheIndex)
{
    EXPECT_TRUE(launch({text("a.dat")}, false, false, 1, [](FileDialogDriver& driver) {
        EXPECT_EQ(driver.typeCombo().currentIndex(), 1);
        driver.enterName(QStringLiteral("c.txt"));
    }));
    EXPECT_THAT(files, ElementsAre(reported("c.txt")));
    EXPECT_EQ(filterIndex, 1);
}

TEST_P(LaunchFileDialogUser, opensSeveralFiles)
{
    EXPECT_TRUE(launch({text("a.dat")}, false, true, 2, [this](FileDialogDriver& driver) {
        EXPECT_TRUE(m_widgets || driver.dialog().fileMode() == QFileDialog::ExistingFiles);
        driver.clickFile(QStringLiteral("a.dat"));
        driver.clickFile(QStringLiteral("c.txt"), Qt::ControlModifier);
        driver.click(QDialogButtonBox::Open);
    }));
    EXPECT_THAT(files, UnorderedElementsAre(reported("a.dat"), reported("c.txt")));
    EXPECT_EQ(filterIndex, 2);
}

TEST_P(LaunchFileDialogUser, acceptsTheInitialSelectionOfSeveralAsItStands)
{
    EXPECT_TRUE(launch({"a.dat", "b.dat"}, false, true, 2, [this](FileDialogDriver& driver) {
        EXPECT_EQ(driver.name(), QStringLiteral("\"a.dat\" \"b.dat\" "));
        driver.dialog().setDirectory(path(""));
        driver.enterName(QStringLiteral("\"a.dat\" \"b.dat\" "));
    }));
    EXPECT_THAT(files, UnorderedElementsAre(reported("a.dat"), reported("b.dat")));
}

TEST_P(LaunchFileDialogUser, startsElsewhereWhenTheFolderHasGone)
{
    for (const bool several : {false, true}) {
        EXPECT_TRUE(launch({text("gone/a.dat")}, false, several, 0, [this](FileDialogDriver& driver) {
            EXPECT_TRUE(driver.dialog().directory().exists());
            driver.enterName(path("b.dat"));
        }));
        EXPECT_THAT(files, ElementsAre(reported("b.dat")));
    }
}

TEST_P(LaunchFileDialogUser, startsWithFilesOfWhichOneHasGone)
{
    EXPECT_TRUE(launch({text("gone.dat"), text("a.dat")}, false, true, 0, [this](FileDialogDriver& driver) {
        EXPECT_EQ(driver.dialog().directory().path(), path(""));
        driver.waitForListed({QStringLiteral("a.dat"), QStringLiteral("b.dat"), QStringLiteral("inner")});
        driver.clickFile(QStringLiteral("b.dat"));
        EXPECT_EQ(driver.name(), QStringLiteral("b.dat"));
        driver.click(QDialogButtonBox::Open);
    }));
    EXPECT_THAT(files, ElementsAre(reported("b.dat")));
}

TEST_P(LaunchFileDialogUser, savesANewName)
{
    EXPECT_TRUE(launch({text("inner/new.dat")}, true, false, 0, [this](FileDialogDriver& driver) {
        EXPECT_EQ(driver.dialog().acceptMode(), QFileDialog::AcceptSave);
        EXPECT_EQ(driver.dialog().fileMode(), QFileDialog::AnyFile);
        EXPECT_EQ(driver.dialog().directory().path(), path("inner"));
        EXPECT_EQ(driver.name(), QStringLiteral("new.dat"));
        driver.click(QDialogButtonBox::Save);
    }));
    EXPECT_THAT(files, ElementsAre(reported("inner/new.dat")));
    EXPECT_EQ(filterIndex, 0);
    EXPECT_FALSE(QFile::exists(path("inner/new.dat"))) << "choosing writes nothing";
}

TEST_P(LaunchFileDialogUser, savesANameBeyondAscii)
{
    const std::string name = "Messung \xC3\xBC\xE2\x82\xAC\xF0\x9F\x93\x81.dat";
    EXPECT_TRUE(launch({text("a.dat")}, true, false, 0,
        [&](FileDialogDriver& driver) { driver.enterName(QString::fromStdString(name)); }));
    EXPECT_THAT(files, ElementsAre(reported(name.c_str())));
}

TEST_P(LaunchFileDialogUser, letsSeveralExistingFilesWinOverSaving)
{
    EXPECT_FALSE(launch({text("a.dat")}, true, true, 0, [](FileDialogDriver& driver) {
        EXPECT_EQ(driver.dialog().acceptMode(), QFileDialog::AcceptSave);
        EXPECT_TRUE(GetParam() || driver.dialog().fileMode() == QFileDialog::ExistingFiles);
    }));
}

TEST_P(LaunchFileDialogUser, leavesTheOutputsAloneWhenCancelled)
{
    EXPECT_FALSE(launch({text("a.dat")}, false, true, 1, [](FileDialogDriver& driver) {
        driver.pickTypeWithKeys(2);
        driver.typeName(QStringLiteral("b.dat"));
        QTest::keyClick(&driver.dialog(), Qt::Key_Escape);
    }));
    EXPECT_THAT(files, ElementsAre("old", "older", "oldest"));
    EXPECT_EQ(filterIndex, -77);
}

TEST_P(LaunchFileDialogUser, offersTheFiltersInTheirOrder)
{
    for (const int index : {-1, 0, 3}) {
        launch({}, false, false, index, [index](FileDialogDriver& driver) {
            EXPECT_EQ(driver.types().size(), 3);
            EXPECT_TRUE(driver.types().at(2).startsWith(QStringLiteral("All")));
            EXPECT_EQ(driver.typeCombo().currentIndex(), 0) << index;
        });
    }
}

TEST_P(LaunchFileDialogUser, belongsToTheActiveWindow)
{
    QWidget window;
    window.show();
    setActiveWindow(window);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    launch({}, false, false, 0, [&](FileDialogDriver& driver) {
        EXPECT_EQ(driver.dialog().parentWidget(), &window);
        EXPECT_TRUE(driver.dialog().isModal());
    });
}

TEST_P(LaunchFileDialogUser, belongsToNobodyWithoutActiveWindow)
{
    ASSERT_EQ(QApplication::activeWindow(), nullptr);
    launch({}, false, false, 0, [](FileDialogDriver& driver) { EXPECT_EQ(driver.dialog().parentWidget(), nullptr); });
}

TEST_P(LaunchFileDialogUser, showsNoDialogWithoutFilters)
{
    filters.clear();
    EXPECT_FALSE(ui::LaunchFileDialog(files, filterIndex, "Caption", filters, {text("a.dat")}, false, false, 0));
    EXPECT_THAT(files, ElementsAre("old", "older", "oldest"));
    EXPECT_EQ(filterIndex, -77);
}

TEST_P(LaunchFileDialogUser, asksBeforeOverwriting)
{
    bool asked = false;
    EXPECT_TRUE(launch({text("a.dat")}, true, false, 0, [&](FileDialogDriver& driver) {
        ModalScript inner;
        inner.on<QMessageBox>([&](QMessageBox& box) {
            asked = true;
            QTest::mouseClick(box.button(QMessageBox::Yes), Qt::LeftButton);
        });
        driver.click(QDialogButtonBox::Save);
    }));
    EXPECT_TRUE(asked);
    EXPECT_THAT(files, ElementsAre(reported("a.dat")));
}

INSTANTIATE_TEST_SUITE_P(Dialogs, LaunchFileDialogUser, ::testing::Bool(),
    [](const auto& tested) { return std::string(tested.param ? "native" : "qt"); });

} // namespace

} // namespace morvane::test
