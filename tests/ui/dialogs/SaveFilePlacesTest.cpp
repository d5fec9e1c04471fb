// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// The save flow at places that change or refuse access.
#include "SaveFileDialogFixture.h"

#include "ui/qt/dialogs/DefaultSaveFileMessageHandler.h"

#include <functional>
#include <stdexcept>

using namespace morvane::test;

namespace {

class SaveFilePlacesTest : public SaveFlow
{
};

/** Runs an action after the dialog and before the flow checks the disk. */
class HandlerThatActsAtExists : public morvane::DefaultSaveFileMessageHandler
{
public:
    explicit HandlerThatActsAtExists(std::function<void()> action) : m_action(std::move(action)) {}
    std::string filenameToCheck(const std::string& filename) override
    {
        m_action();
        return DefaultSaveFileMessageHandler::filenameToCheck(filename);
    }

private:
    std::function<void()> m_action;
};

void answerYes(QMessageBox& box)
{
    const QPointer<QMessageBox> open(&box);
    pressKey(box, Qt::Key_Y);
    // The button is shown pressed for a moment first. Waits, so that this box is not taken for the next question.
    EXPECT_TRUE(waitUntil([&] { return !open || !open->isVisible(); }));
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Places, SaveFilePlacesTest, testing::Bool(), &saveFlowName);

TEST_P(SaveFilePlacesTest, aFileThatMayBeReplacedButNotWrittenLeadsToAnotherPlace)
{
    makeFile("fixed.dat");
    const std::string file = path("fixed.dat");
    if (std::system(("chattr +i '" + file + "' 2>/dev/null").c_str()) != 0) {
        GTEST_SKIP() << "this file system has no immutable files";
    }
    const auto flow = makeFlow();
    ModalScript user;
    user.on<QFileDialog>([](QFileDialog& dialog) { acceptName(dialog, "fixed.dat"); });
    user.on<QMessageBox>([](QMessageBox& box) {
        EXPECT_TRUE(box.text().contains("already exists"));
        answerYes(box);
    });
    user.on<QMessageBox>([](QMessageBox& box) {
        EXPECT_TRUE(box.text().startsWith("Unable to save file "));
        answerYes(box);
    });
    user.on<QFileDialog>([](QFileDialog& dialog) { acceptName(dialog, "free"); });
    EXPECT_TRUE(flow->launch());
    EXPECT_EQ(std::system(("chattr -i '" + file + "'").c_str()), 0);
    EXPECT_EQ(flow->selectedFilename(), path("free.dat"));
    EXPECT_EQ(contentOf("fixed.dat"), "old content");
    EXPECT_EQ(entries(), QStringList("fixed.dat"));
}

TEST_P(SaveFilePlacesTest, aDirectoryThatVanishesAfterTheDialogIsNotWritable)
{
#ifdef Q_OS_WIN
    if (!GetParam()) {
        GTEST_SKIP() << "Qt's dialog watches the folder that it shows, and Windows keeps a folder that is watched";
    }
#endif
    QDir folder(m_directory.path());
    ASSERT_TRUE(folder.mkdir("short-lived"));
    const auto flow = makeFlow("Data files (*.dat)",
        std::make_unique<HandlerThatActsAtExists>([folder]() mutable { folder.rmdir("short-lived"); }));
    ModalScript user;
    user.on<QFileDialog>(
        [this](QFileDialog& dialog) { acceptName(dialog, QString::fromStdString(path("short-lived/new"))); });
    user.on<QMessageBox>([](QMessageBox& box) {
        EXPECT_TRUE(box.text().startsWith("Unable to save file "));
        pressKey(box, Qt::Key_Escape);
    });
    EXPECT_FALSE(flow->launch());
    EXPECT_EQ(entries(), QStringList()) << "and it is not made again";
}

TEST_P(SaveFilePlacesTest, aFileThatAppearsAfterTheDialogIsAskedAbout)
{
    const auto flow = makeFlow(
        "Data files (*.dat)", std::make_unique<HandlerThatActsAtExists>([this] { makeFile("new.dat", "theirs"); }));
    ModalScript user;
    user.on<QFileDialog>([](QFileDialog& dialog) { acceptName(dialog, "new"); });
    user.on<QMessageBox>([](QMessageBox& box) { answerYes(box); });
    EXPECT_TRUE(flow->launch());
    EXPECT_EQ(contentOf("new.dat"), "theirs");
}

TEST_P(SaveFilePlacesTest, cancelsHalfWay)
{
    makeFile("old.dat");
    const auto flow = makeFlow({"Text (*.txt)", "Data (*.dat)"}, 0);
    ModalScript user;
    user.on<QFileDialog>([](QFileDialog& dialog) {
        FileDialogDriver(dialog).pickTypeWithKeys(1);
        acceptName(dialog, "old");
    });
    user.on<QMessageBox>([](QMessageBox& box) { pressKey(box, Qt::Key_Return); });
    user.on<QFileDialog>([this](QFileDialog& dialog) { acceptName(dialog, refused("one")); });
    user.on<QMessageBox>(answerYes);
    user.on<QFileDialog>([](QFileDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    EXPECT_FALSE(flow->launch());
    EXPECT_EQ(flow->selectedFilename(), refused("one").toStdString() + ".dat") << "the name of the last pass";
    EXPECT_EQ(flow->selectedWriter(), 1);
    EXPECT_EQ(contentOf("old.dat"), "old content");
}

TEST_P(SaveFilePlacesTest, passesOnWhatTheTextOfARefusalThrows)
{
    struct Throwing : morvane::DefaultSaveFileMessageHandler
    {
        std::string unableToOverwriteMessage() override { throw std::runtime_error("no text"); }
    };
    const auto flow = makeFlow("Data files (*.dat)", std::make_unique<Throwing>());
    ModalScript user;
    user.on<QFileDialog>([this](QFileDialog& dialog) { acceptName(dialog, refused("one")); });
    EXPECT_THROW(flow->launch(), std::runtime_error);
}
