// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "SaveFileDialogFixture.h"

#include "ui/qt/dialogs/QExtendedFileDialog.h"

#include <QComboBox>

#include <algorithm>

using namespace morvane::test;

namespace {

class SaveFileDialogTest : public SaveFlow
{
};

/** @p flow is new and belongs to @p parent. */
void cancelAndExpectTheDialog(SaveFileDialog& flow, const QWidget& parent, bool isNative)
{
    EXPECT_EQ(parent.findChild<QExtendedFileDialog*>() != nullptr, !isNative);
    ModalScript user;
    user.on<QFileDialog>([&](QFileDialog& dialog) {
        EXPECT_EQ(qobject_cast<QExtendedFileDialog*>(&dialog) != nullptr, !isNative);
        pressCancel(dialog);
    });
    EXPECT_FALSE(flow.launch());
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Dialogs, SaveFileDialogTest, testing::Bool(), &saveFlowName);

TEST_P(SaveFileDialogTest, givesANewNameTheExtensionOfTheFilter)
{
    const auto flow = makeFlow();
    ModalScript user;
    user.on<QFileDialog>([](QFileDialog& dialog) { acceptName(dialog, "report"); });
    EXPECT_TRUE(flow->launch());
    EXPECT_EQ(flow->selectedFilename(), path("report.dat"));
    EXPECT_EQ(flow->selectedFilter(), "Data files (*.dat)");
    EXPECT_EQ(flow->selectedWriter(), 0);
    EXPECT_EQ(entries(), QStringList()) << "the probe must leave nothing behind";
}

TEST_P(SaveFileDialogTest, keepsATypedExtension)
{
    const auto flow = makeFlow();
    ModalScript user;
    user.on<QFileDialog>([](QFileDialog& dialog) { acceptName(dialog, "report.txt"); });
    EXPECT_TRUE(flow->launch());
    EXPECT_EQ(flow->selectedFilename(), unchanged("report.txt"));
}

TEST_P(SaveFileDialogTest, takesNamesOutsideAsciiAndTheBasicPlane)
{
    const QString name = QString::fromUtf8("\xE6\x97\xA5\xE6\x9C\xAC \xF0\x9F\x98\x80");
    const auto flow = makeFlow();
    ModalScript user;
    user.on<QFileDialog>([&](QFileDialog& dialog) { acceptName(dialog, name); });
    EXPECT_TRUE(flow->launch());
    EXPECT_EQ(flow->selectedFilename(), path(name.toStdString() + ".dat"));
}

TEST_P(SaveFileDialogTest, returnsFalseOnCancelAndHasNoName)
{
    const auto flow = makeFlow();
    ModalScript user;
    user.on<QFileDialog>([](QFileDialog& dialog) { pressCancel(dialog); });
    EXPECT_FALSE(flow->launch());
    EXPECT_EQ(flow->selectedFilename(), "");
}

TEST_P(SaveFileDialogTest, asksBeforeReplacingAndShowsTheDialogAgainOnNo)
{
    makeFile("old.dat");
    const auto flow = makeFlow();
    const std::string question = "File " + path("old.dat") + " already exists. Do you want to replace it?";
    ModalScript user;
    user.on<QFileDialog>([](QFileDialog& dialog) { acceptName(dialog, "old"); });
    user.on<QMessageBox>([&](QMessageBox& box) {
        EXPECT_EQ(box.text().toStdString(), question);
        EXPECT_EQ(box.windowTitle(), "Save data");
        EXPECT_EQ(box.standardButtons(), QMessageBox::Yes | QMessageBox::No);
        pressKey(box, Qt::Key_Return); // No is the default
    });
    user.on<QFileDialog>([](QFileDialog& dialog) {
        EXPECT_TRUE(FileDialogDriver(dialog).name().startsWith("old")) << "the dialog is as the user left it";
        acceptName(dialog, "new");
    });
    EXPECT_TRUE(flow->launch());
    EXPECT_EQ(flow->selectedFilename(), path("new.dat"));
    EXPECT_EQ(contentOf("old.dat"), "old content");
}

TEST_P(SaveFileDialogTest, takesEscapeForNo)
{
    makeFile("old.dat");
    const auto flow = makeFlow();
    ModalScript user;
    user.on<QFileDialog>([](QFileDialog& dialog) { acceptName(dialog, "old.dat"); });
    user.on<QMessageBox>([](QMessageBox& box) { pressKey(box, Qt::Key_Escape); });
    user.on<QFileDialog>([](QFileDialog& dialog) { pressCancel(dialog); });
    EXPECT_FALSE(flow->launch());
    EXPECT_EQ(flow->selectedFilename(), unchanged("old.dat")) << "the name of the last pass";
}

TEST_P(SaveFileDialogTest, returnsAnExistingNameOnYesWithoutTouchingTheFile)
{
    makeFile("old.dat");
    const auto flow = makeFlow();
    ModalScript user;
    user.on<QFileDialog>([](QFileDialog& dialog) { acceptName(dialog, "old.dat"); });
    user.on<QMessageBox>([](QMessageBox& box) { pressKey(box, Qt::Key_Y); });
    EXPECT_TRUE(flow->launch());
    EXPECT_EQ(flow->selectedFilename(), unchanged("old.dat"));
    EXPECT_EQ(contentOf("old.dat"), "old content");
}

TEST_P(SaveFileDialogTest, asksForAnotherPlaceUntilOneWorks)
{
    const auto flow = makeFlow();
    const auto refuse = [](const QString& name) { return [name](QFileDialog& dialog) { acceptName(dialog, name); }; };
    const auto tryAgain = [](QMessageBox& box) {
        EXPECT_TRUE(box.text().startsWith("Unable to save file ")) << box.text().toStdString();
        pressKey(box, Qt::Key_Y);
    };
    ModalScript user;
    for (const char* const name : {"one", "two", "three"}) {
        user.on<QFileDialog>(refuse(refused(name))).on<QMessageBox>(tryAgain);
    }
    user.on<QFileDialog>([&](QFileDialog& dialog) { acceptName(dialog, QString::fromStdString(path("four"))); });
    EXPECT_TRUE(flow->launch());
    EXPECT_EQ(flow->selectedFilename(), path("four.dat"));
}

TEST_P(SaveFileDialogTest, givesUpWhenNoOtherPlaceIsWanted)
{
    const auto flow = makeFlow();
    ModalScript user;
    user.on<QFileDialog>([this](QFileDialog& dialog) { acceptName(dialog, refused("one")); });
    user.on<QMessageBox>([this](QMessageBox& box) {
        EXPECT_EQ(box.text(),
            "Unable to save file " + refused("one") +
                ".dat, check access permissions for the file and the parent directory. Do you want to try again and "
                "choose a different location?");
        EXPECT_EQ(box.windowTitle(), "Save data");
        pressKey(box, Qt::Key_Return); // No is the default here, too
    });
    EXPECT_FALSE(flow->launch());
}

TEST_P(SaveFileDialogTest, asksForAnotherPlaceWhenTheExtensionMakesTheNameTooLong)
{
    const auto flow = makeFlow();
    ModalScript user;
    user.on<QFileDialog>([](QFileDialog& dialog) { acceptName(dialog, QString(252, 'n')); });
    user.on<QMessageBox>([](QMessageBox& box) {
        EXPECT_TRUE(box.text().startsWith("Unable to save file "));
        pressKey(box, Qt::Key_Escape);
    });
    EXPECT_FALSE(flow->launch());
}

TEST_P(SaveFileDialogTest, tellsWhichWriterWasChosen)
{
    const auto flow = makeFlow({"Text (*.txt)", "Table (*.csv)", "Page (*.html)"}, 1);
    EXPECT_EQ(flow->selectedWriter(), 1) << "the one to start with";
    ModalScript user;
    user.on<QFileDialog>([](QFileDialog& dialog) {
        FileDialogDriver(dialog).pickTypeWithKeys(2);
        acceptName(dialog, "report");
    });
    EXPECT_TRUE(flow->launch());
    EXPECT_EQ(flow->selectedWriter(), 2);
    EXPECT_EQ(flow->selectedFilter(), "Page (*.html)");
    EXPECT_EQ(flow->selectedFilename(), path("report.html"));
}

TEST_P(SaveFileDialogTest, startsWithTheGivenNameAndWriter)
{
    const auto flow = makeFlow({"Text (*.txt)", "Table (*.csv)"}, 1);
    ModalScript user;
    user.on<QFileDialog>([](QFileDialog& dialog) {
        EXPECT_TRUE(FileDialogDriver(dialog).name().startsWith("report"));
        pressAccept(dialog);
    });
    EXPECT_TRUE(flow->launch());
    EXPECT_EQ(flow->selectedWriter(), 1);
    EXPECT_EQ(flow->selectedFilename(), unchanged("report.csv"));
}

TEST_P(SaveFileDialogTest, reportsTheFirstOfEqualWriters)
{
    const auto flow = makeFlow({"Text (*.txt)", "Data (*.dat)", "Data (*.dat)"}, 2);
    EXPECT_EQ(flow->selectedWriter(), 1);
}

TEST_P(SaveFileDialogTest, takesAWriterOutsideTheListForNone)
{
    for (const int index : {-1, 2, 1000}) {
        const auto flow = makeFlow({"Text (*.txt)", "Table (*.csv)"}, index);
        EXPECT_EQ(flow->selectedWriter(), 0) << index;
    }
    EXPECT_NE(makeFlow(std::vector<std::string>(), 0), nullptr);
}

TEST_P(SaveFileDialogTest, findsItsWriterWhateverBlanksTheTextsHave)
{
    const std::vector<std::string> writers = {
        "Text (*.txt)", " Long  table ( *.csv  *.tsv ) ", "Page\t(*.html)", "Page (*.html)", "Page (*.html)"};
    for (int index = 0; index < 5; ++index) {
        const int expected = std::min(index, 3); // of equal types, the first
        const auto flow = makeFlow(writers, index);
        EXPECT_EQ(flow->selectedWriter(), expected);
        ModalScript user;
        user.on<QFileDialog>([&](QFileDialog& dialog) {
            EXPECT_EQ(FileDialogDriver(dialog).typeCombo().currentIndex(), expected);
            acceptName(dialog, "new");
        });
        EXPECT_TRUE(flow->launch());
        EXPECT_EQ(flow->selectedWriter(), expected);
    }
}

TEST_P(SaveFileDialogTest, givesTheNameAsItWasTypedWithoutAFilter)
{
    for (const char* const filter : {"", " "}) {
        const auto flow = makeFlow(filter);
        ModalScript user;
        user.on<QFileDialog>([](QFileDialog& dialog) { acceptName(dialog, "new"); });
        EXPECT_TRUE(flow->launch());
        EXPECT_EQ(flow->selectedFilename(), unchanged("new"));
    }
    const auto flow = makeFlow(std::vector<std::string>(), 0);
    ModalScript user;
    user.on<QFileDialog>([](QFileDialog& dialog) { acceptName(dialog, "new"); });
    EXPECT_TRUE(flow->launch());
    EXPECT_EQ(flow->selectedFilename(), unchanged("new"));
}

TEST_P(SaveFileDialogTest, runsAgain)
{
    const auto flow = makeFlow();
    ModalScript user;
    user.on<QFileDialog>([](QFileDialog& dialog) { acceptName(dialog, "one"); });
    user.on<QFileDialog>([](QFileDialog& dialog) { acceptName(dialog, "two"); });
    EXPECT_TRUE(flow->launch());
    EXPECT_TRUE(flow->launch());
    EXPECT_EQ(flow->selectedFilename(), path("two.dat"));
}

TEST_P(SaveFileDialogTest, keepsTheDialogThatItWasMadeWith)
{
    const auto flow = makeFlow();
    ExtendedFileDialog::setUseNativeFileDialog(!GetParam());
    cancelAndExpectTheDialog(*flow, *m_parent, GetParam());
}

TEST_P(SaveFileDialogTest, choosesTheDialogForWritersToo)
{
    const auto flow = makeFlow({"Text (*.txt)", "Data (*.dat)"}, 1);
    cancelAndExpectTheDialog(*flow, *m_parent, GetParam());
}

TEST_P(SaveFileDialogTest, leavesItsQtDialogToTheParent)
{
    auto flow = makeFlow();
    const QPointer<QExtendedFileDialog> dialog = m_parent->findChild<QExtendedFileDialog*>();
    flow.reset();
    EXPECT_EQ(!dialog, GetParam()) << "the Qt dialog lives until its parent is destroyed";
    delete m_parent;
    EXPECT_FALSE(dialog);
}

TEST_P(SaveFileDialogTest, worksWithoutAParent)
{
    SaveFileDialog flow(nullptr, "Save data", directory(), "", "Data files (*.dat)", "");
    ModalScript user;
    user.on<QFileDialog>([](QFileDialog& dialog) { acceptName(dialog, "report"); });
    EXPECT_TRUE(flow.launch());
    EXPECT_EQ(flow.selectedFilename(), path("report.dat"));
}

TEST_P(SaveFileDialogTest, endsWhenTheParentIsDestroyedWhileTheDialogIsOpen)
{
    const auto flow = makeFlow();
    ModalScript user;
    user.on<QFileDialog>([this](QFileDialog&) { delete m_parent; });
    EXPECT_FALSE(flow->launch());
    EXPECT_FALSE(flow->launch()) << "and never runs again";
}

TEST_P(SaveFileDialogTest, endsWhenTheParentIsDestroyedWhileAQuestionIsOpen)
{
    makeFile("old.dat");
    const auto flow = makeFlow();
    ModalScript user;
    user.on<QFileDialog>([](QFileDialog& dialog) { acceptName(dialog, "old.dat"); });
    user.on<QMessageBox>([this](QMessageBox&) { delete m_parent; });
    EXPECT_FALSE(flow->launch());

    m_parent = new QWidget;
    const auto again = makeFlow();
    user.on<QFileDialog>([this](QFileDialog& dialog) { acceptName(dialog, refused("one")); });
    user.on<QMessageBox>([this](QMessageBox&) { delete m_parent; });
    EXPECT_FALSE(again->launch());
}
