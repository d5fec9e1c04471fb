// The launcher from a user's side, with either dialog.
#include "LaunchFileDialogTest.h"

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
    EXPECT_TRUE(launch({text("a.dat")}, false, false, 0, [this](FileDialogPage& page) {
        EXPECT_EQ(page.dialog().windowTitle(), QStringLiteral("Caption"));
        EXPECT_EQ(page.dialog().acceptMode(), QFileDialog::AcceptOpen);
        EXPECT_TRUE(GetParam() || page.dialog().fileMode() == QFileDialog::ExistingFile);
        EXPECT_EQ(page.dialog().directory().path(), path(""));
        EXPECT_EQ(page.name(), QStringLiteral("a.dat"));
        EXPECT_FALSE(page.button(QDialogButtonBox::Help));
        page.waitForListed({QStringLiteral("a.dat"), QStringLiteral("b.dat"), QStringLiteral("inner")});
        page.typeName(QStringLiteral("b.dat"));
        page.click(QDialogButtonBox::Open);
    }));
    EXPECT_THAT(files, ElementsAre(reported("b.dat")));
    EXPECT_EQ(filterIndex, 0);
}

TEST_P(LaunchFileDialogUser, opensTheClickedFileOfThePickedType)
{
    EXPECT_TRUE(launch({text("a.dat")}, false, false, 0, [](FileDialogPage& page) {
        page.waitForListed({QStringLiteral("a.dat"), QStringLiteral("b.dat"), QStringLiteral("inner")});
        page.pickTypeWithMouse(1);
        page.waitForListed({QStringLiteral("c.txt"), QStringLiteral("inner")});
        page.doubleClickFile(QStringLiteral("c.txt"));
    }));
    EXPECT_THAT(files, ElementsAre(reported("c.txt")));
    EXPECT_EQ(filterIndex, 1);
}

TEST_P(LaunchFileDialogUser, opensTheNameThatIsEnteredWithTheKeyboard)
{
    for (const bool several : {false, true}) {
        EXPECT_TRUE(launch({text("a.dat")}, false, several, 0, [](FileDialogPage& page) {
            page.waitForListed({QStringLiteral("a.dat"), QStringLiteral("b.dat"), QStringLiteral("inner")});
            page.typeName(QStringLiteral("a"));
            page.typeName(QString());
            page.enterName(QStringLiteral("b.dat"));
        }));
        EXPECT_THAT(files, ElementsAre(reported("b.dat"))) << several;
    }
}

TEST_P(LaunchFileDialogUser, refusesAMissingFileAlsoWhenSaving)
{
    for (const bool saving : {false, true}) {
        EXPECT_FALSE(launch({text("a.dat")}, saving, true, 0, [](FileDialogPage& page) {
            ModalScript inner;
            inner.on<QMessageBox>([](QMessageBox& box) {
                EXPECT_TRUE(box.text().contains(QStringLiteral("missing.dat"))) << box.text().toStdString();
                QTest::keyClick(&box, Qt::Key_Escape);
            });
            page.enterName(QStringLiteral("missing.dat"));
            EXPECT_TRUE(inner.finished()) << "no message was shown";
            EXPECT_TRUE(page.isOpen());
        }));
        EXPECT_THAT(files, ElementsAre("old", "older", "oldest"));
    }
}

TEST_P(LaunchFileDialogUser, startsWithTheFilterAtTheIndex)
{
    EXPECT_TRUE(launch({text("a.dat")}, false, false, 1, [](FileDialogPage& page) {
        EXPECT_EQ(page.typeCombo().currentIndex(), 1);
        page.enterName(QStringLiteral("c.txt"));
    }));
    EXPECT_THAT(files, ElementsAre(reported("c.txt")));
    EXPECT_EQ(filterIndex, 1);
}

TEST_P(LaunchFileDialogUser, opensSeveralFiles)
{
    EXPECT_TRUE(launch({text("a.dat")}, false, true, 2, [this](FileDialogPage& page) {
        EXPECT_TRUE(m_widgets || page.dialog().fileMode() == QFileDialog::ExistingFiles);
        page.clickFile(QStringLiteral("a.dat"));
        page.clickFile(QStringLiteral("c.txt"), Qt::ControlModifier);
        page.click(QDialogButtonBox::Open);
    }));
    EXPECT_THAT(files, UnorderedElementsAre(reported("a.dat"), reported("c.txt")));
    EXPECT_EQ(filterIndex, 2);
}

TEST_P(LaunchFileDialogUser, acceptsTheInitialSelectionOfSeveralAsItStands)
{
    EXPECT_TRUE(launch({"a.dat", "b.dat"}, false, true, 2, [this](FileDialogPage& page) {
        EXPECT_EQ(page.name(), QStringLiteral("\"a.dat\" \"b.dat\" "));
        page.dialog().setDirectory(path(""));
        page.enterName(QStringLiteral("\"a.dat\" \"b.dat\" "));
    }));
    EXPECT_THAT(files, UnorderedElementsAre(reported("a.dat"), reported("b.dat")));
}

TEST_P(LaunchFileDialogUser, startsElsewhereWhenTheFolderHasGone)
{
    for (const bool several : {false, true}) {
        EXPECT_TRUE(launch({text("gone/a.dat")}, false, several, 0, [this](FileDialogPage& page) {
            EXPECT_TRUE(page.dialog().directory().exists());
            page.enterName(path("b.dat"));
        }));
        EXPECT_THAT(files, ElementsAre(reported("b.dat")));
    }
}

TEST_P(LaunchFileDialogUser, startsWithFilesOfWhichOneHasGone)
{
    EXPECT_TRUE(launch({text("gone.dat"), text("a.dat")}, false, true, 0, [this](FileDialogPage& page) {
        EXPECT_EQ(page.dialog().directory().path(), path(""));
        page.waitForListed({QStringLiteral("a.dat"), QStringLiteral("b.dat"), QStringLiteral("inner")});
        page.clickFile(QStringLiteral("b.dat"));
        EXPECT_EQ(page.name(), QStringLiteral("b.dat"));
        page.click(QDialogButtonBox::Open);
    }));
    EXPECT_THAT(files, ElementsAre(reported("b.dat")));
}

TEST_P(LaunchFileDialogUser, savesANewName)
{
    EXPECT_TRUE(launch({text("inner/new.dat")}, true, false, 0, [this](FileDialogPage& page) {
        EXPECT_EQ(page.dialog().acceptMode(), QFileDialog::AcceptSave);
        EXPECT_EQ(page.dialog().fileMode(), QFileDialog::AnyFile);
        EXPECT_EQ(page.dialog().directory().path(), path("inner"));
        EXPECT_EQ(page.name(), QStringLiteral("new.dat"));
        page.click(QDialogButtonBox::Save);
    }));
    EXPECT_THAT(files, ElementsAre(reported("inner/new.dat")));
    EXPECT_EQ(filterIndex, 0);
    EXPECT_FALSE(QFile::exists(path("inner/new.dat"))) << "choosing writes nothing";
}

TEST_P(LaunchFileDialogUser, savesANameBeyondAscii)
{
    const std::string name = "Messung \xC3\xBC\xE2\x82\xAC\xF0\x9F\x93\x81.dat";
    EXPECT_TRUE(launch(
        {text("a.dat")}, true, false, 0, [&](FileDialogPage& page) { page.enterName(QString::fromStdString(name)); }));
    EXPECT_THAT(files, ElementsAre(reported(name.c_str())));
}

TEST_P(LaunchFileDialogUser, letsSeveralExistingFilesWinOverSaving)
{
    EXPECT_FALSE(launch({text("a.dat")}, true, true, 0, [](FileDialogPage& page) {
        EXPECT_EQ(page.dialog().acceptMode(), QFileDialog::AcceptSave);
        EXPECT_TRUE(GetParam() || page.dialog().fileMode() == QFileDialog::ExistingFiles);
    }));
}

TEST_P(LaunchFileDialogUser, leavesTheOutputsAloneWhenCancelled)
{
    EXPECT_FALSE(launch({text("a.dat")}, false, true, 1, [](FileDialogPage& page) {
        page.pickTypeWithKeys(2);
        page.typeName(QStringLiteral("b.dat"));
        QTest::keyClick(&page.dialog(), Qt::Key_Escape);
    }));
    EXPECT_THAT(files, ElementsAre("old", "older", "oldest"));
    EXPECT_EQ(filterIndex, -77);
}

TEST_P(LaunchFileDialogUser, offersTheFiltersInTheirOrder)
{
    for (const int index : {-1, 0, 3}) {
        launch({}, false, false, index, [index](FileDialogPage& page) {
            EXPECT_EQ(page.types().size(), 3);
            EXPECT_TRUE(page.types().at(2).startsWith(QStringLiteral("All")));
            EXPECT_EQ(page.typeCombo().currentIndex(), 0) << index;
        });
    }
}

TEST_P(LaunchFileDialogUser, belongsToTheActiveWindow)
{
    QWidget window;
    window.show();
    QApplication::setActiveWindow(&window);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    launch({}, false, false, 0, [&](FileDialogPage& page) {
        EXPECT_EQ(page.dialog().parentWidget(), &window);
        EXPECT_TRUE(page.dialog().isModal());
    });
}

TEST_P(LaunchFileDialogUser, belongsToNobodyWithoutActiveWindow)
{
    ASSERT_EQ(QApplication::activeWindow(), nullptr);
    launch({}, false, false, 0, [](FileDialogPage& page) { EXPECT_EQ(page.dialog().parentWidget(), nullptr); });
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
    EXPECT_TRUE(launch({text("a.dat")}, true, false, 0, [&](FileDialogPage& page) {
        ModalScript inner;
        inner.on<QMessageBox>([&](QMessageBox& box) {
            asked = true;
            QTest::mouseClick(box.button(QMessageBox::Yes), Qt::LeftButton);
        });
        page.click(QDialogButtonBox::Save);
    }));
    EXPECT_TRUE(asked);
    EXPECT_THAT(files, ElementsAre(reported("a.dat")));
}

INSTANTIATE_TEST_SUITE_P(Dialogs, LaunchFileDialogUser, ::testing::Bool(),
    [](const auto& tested) { return std::string(tested.param ? "native" : "qt"); });

} // namespace

} // namespace morvane::test
