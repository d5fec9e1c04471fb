// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// The save flow with a host's own message handler.
#include "SaveFileDialogFixture.h"

#include "testing/RecordingShell.h"
#include "ui/qt/dialogs/DefaultSaveFileMessageHandler.h"
#include "ui/qt/dialogs/SaveFileWinDialog.h"

#include <functional>
#include <stdexcept>

using namespace morvane::test;

namespace {

class SaveFileHandlerFlowTest : public SaveFlow
{
};

struct Script
{
    std::vector<std::string> calls;
    std::string nameToCheck; ///< if empty, the given name
    std::string throwIn;
};

class ScriptedHandler : public morvane::SaveFileMessageHandlerInterface
{
public:
    explicit ScriptedHandler(Script& script) : m_script(script) {}

    std::string filenameToCheck(const std::string& filename) override
    {
        record("filenameToCheck " + filename);
        return m_script.nameToCheck.empty() ? filename : m_script.nameToCheck;
    }
    std::string okToOverwriteMessage() override
    {
        return record("okToOverwriteMessage"), "<b>Replace</b> it &amp; go?";
    }
    std::string unableToOverwriteMessage() override { return record("unableToOverwriteMessage"), "No <i>way</i>"; }
    std::string systemAccessError(const std::string&) override { return record("systemAccessError"), ""; }

private:
    void record(const std::string& call)
    {
        m_script.calls.push_back(call);
        if (!m_script.throwIn.empty() && call.rfind(m_script.throwIn, 0) == 0) {
            throw std::runtime_error(call);
        }
    }

    Script& m_script;
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Handlers, SaveFileHandlerFlowTest, testing::Bool(), &saveFlowName);

TEST_P(SaveFileHandlerFlowTest, asksTheHandlerInOrder)
{
    makeFile("old.dat");
    Script script;
    const auto flow = makeFlow("Data files (*.dat)", std::make_unique<ScriptedHandler>(script));
    ModalScript user;
    user.on<QFileDialog>([](QFileDialog& dialog) { acceptName(dialog, "old"); });
    user.on<QMessageBox>([](QMessageBox& box) { pressKey(box, Qt::Key_Return); });
    user.on<QFileDialog>([this](QFileDialog& dialog) { acceptName(dialog, refused("one")); });
    user.on<QMessageBox>([](QMessageBox& box) { pressKey(box, Qt::Key_Return); });
    EXPECT_FALSE(flow->launch());
    EXPECT_EQ(
        script.calls, (std::vector<std::string>{"filenameToCheck " + path("old.dat"), "okToOverwriteMessage",
                          "filenameToCheck " + refused("one").toStdString() + ".dat", "unableToOverwriteMessage"}));
}

TEST_P(SaveFileHandlerFlowTest, showsTheTextsOfAHandlerAsTheyStand)
{
    makeFile("old.dat");
    Script script;
    const auto flow = makeFlow("Data files (*.dat)", std::make_unique<ScriptedHandler>(script));
    ModalScript user;
    user.on<QFileDialog>([](QFileDialog& dialog) { acceptName(dialog, "old.dat"); });
    user.on<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ(box.text(), "<b>Replace</b> it &amp; go?");
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        pressKey(box, Qt::Key_Y);
    });
    EXPECT_TRUE(flow->launch());
}

TEST_P(SaveFileHandlerFlowTest, asksAboutTheNameThatTheHandlerGivesAndProbesItsOwn)
{
    makeFile("other");
    Script script;
    script.nameToCheck = path("other");
    const auto flow = makeFlow("Data files (*.dat)", std::make_unique<ScriptedHandler>(script));
    ModalScript user;
    user.on<QFileDialog>([](QFileDialog& dialog) { acceptName(dialog, "new"); });
    user.on<QMessageBox>([](QMessageBox& box) { pressKey(box, Qt::Key_Y); });
    EXPECT_TRUE(flow->launch());
    EXPECT_EQ(flow->selectedFilename(), path("new.dat"));
}

TEST_P(SaveFileHandlerFlowTest, asksAboutADirectoryLikeAboutAFile)
{
    Script script;
    script.nameToCheck = directory();
    const auto flow = makeFlow("Data files (*.dat)", std::make_unique<ScriptedHandler>(script));
    ModalScript user;
    user.on<QFileDialog>([](QFileDialog& dialog) { acceptName(dialog, "new"); });
    user.on<QMessageBox>([](QMessageBox& box) { pressKey(box, Qt::Key_Y); });
    EXPECT_TRUE(flow->launch());
}

TEST_P(SaveFileHandlerFlowTest, doesNotAskWhenTheNameToCheckIsNotThere)
{
    makeFile("old.dat");
    Script script;
    script.nameToCheck = path("missing/name");
    const auto flow = makeFlow("Data files (*.dat)", std::make_unique<ScriptedHandler>(script));
    ModalScript user;
    user.on<QFileDialog>([](QFileDialog& dialog) { acceptName(dialog, "old.dat"); });
    EXPECT_TRUE(flow->launch());
    EXPECT_EQ(script.calls.size(), 1u);
}

TEST_P(SaveFileHandlerFlowTest, passesOnWhatAHandlerThrows)
{
    makeFile("old.dat");
    for (const char* const place : {"filenameToCheck", "okToOverwriteMessage"}) {
        Script script;
        script.throwIn = place;
        const auto flow = makeFlow("Data files (*.dat)", std::make_unique<ScriptedHandler>(script));
        ModalScript user;
        user.on<QFileDialog>([](QFileDialog& dialog) { acceptName(dialog, "old.dat"); });
        EXPECT_THROW(flow->launch(), std::runtime_error) << place;
    }
}

TEST_P(SaveFileHandlerFlowTest, ownsItsHandler)
{
    struct Counting : morvane::DefaultSaveFileMessageHandler
    {
        explicit Counting(int& count) : destroyed(count) {}
        ~Counting() override { ++destroyed; }
        int& destroyed;
    };
    int destroyed = 0;
    auto flow = makeFlow("", std::make_unique<Counting>(destroyed));
    EXPECT_EQ(destroyed, 0);
    flow.reset();
    EXPECT_EQ(destroyed, 1);
}

namespace {

/** Does something in one of the operations that the flow calls, and counts them all. */
class ActingHandler : public morvane::DefaultSaveFileMessageHandler
{
public:
    ActingHandler(int operation, std::function<void()> action, int& calls)
        : m_operation(operation), m_action(std::move(action)), m_calls(calls)
    {
    }
    std::string filenameToCheck(const std::string& filename) override { return act(1), filename; }
    std::string okToOverwriteMessage() override { return act(2), "Replace it?"; }
    std::string unableToOverwriteMessage() override { return act(3), "Try again?"; }

private:
    void act(int operation)
    {
        ++m_calls;
        if (operation == m_operation) {
            m_action();
        }
    }

    const int m_operation;
    const std::function<void()> m_action;
    int& m_calls;
};

} // namespace

TEST_P(SaveFileHandlerFlowTest, asksNothingMoreWhenTheParentGoesInAnyOperationOfTheHandler)
{
    makeFile("old.dat");
    for (int operation = 1; operation <= 3; ++operation) {
        SCOPED_TRACE(operation);
        if (!m_parent) {
            m_parent = new QWidget;
        }
        int calls = 0;
        const auto flow = makeFlow("Data files (*.dat)", std::make_unique<ActingHandler>(
                                                             operation, [this] { delete m_parent; }, calls));
        ModalScript user;
        user.on<QFileDialog>([&](QFileDialog& dialog) { acceptName(dialog, operation == 3 ? refused("one") : "old"); });
        EXPECT_FALSE(flow->launch());
        EXPECT_TRUE(user.finished());
        EXPECT_EQ(calls, operation == 1 ? 1 : 2);
        EXPECT_FALSE(flow->launch()) << "and never again";
    }
    EXPECT_EQ(entries(), QStringList("old.dat"));
}

TEST_P(SaveFileHandlerFlowTest, asksNothingMoreWhenItIsDestroyedItself)
{
    makeFile("old.dat");
    for (int operation = 0; operation <= 3; ++operation) {
        SCOPED_TRACE(operation);
        int calls = 0;
        std::unique_ptr<SaveFileDialog> flow;
        flow = makeFlow("Data files (*.dat)", std::make_unique<ActingHandler>(
                                                  operation, [&flow] { flow.reset(); }, calls));
        ModalScript user;
        user.on<QFileDialog>([&](QFileDialog& dialog) {
            if (operation == 0) {
                flow.reset();
            }
            acceptName(dialog, operation == 3 ? refused("one") : "old");
        });
        EXPECT_FALSE(flow->launch());
        EXPECT_TRUE(user.finished());
        EXPECT_EQ(calls, operation < 2 ? operation : 2);
    }
}

TEST_P(SaveFileHandlerFlowTest, endsWithItsOwnDialogWhenItIsDestroyedWithoutAParent)
{
    auto flow = std::make_unique<SaveFileDialog>(nullptr, "Save data", directory(), "", "Data files (*.dat)", "");
    ModalScript user;
    user.on<QFileDialog>([&](QFileDialog& dialog) {
        const QPointer<QFileDialog> open(&dialog);
        flow.reset();
        EXPECT_EQ(!open, !GetParam()) << "nobody else owns the Qt dialog";
        if (open) {
            pressCancel(dialog);
        }
    });
    EXPECT_FALSE(flow->launch());
}

TEST(SaveFileHandlerFlowWithoutAFile, savesNothingWhenTheShellAcceptsWithoutAResult)
{
    RecordingShell shell;
    const morvane::ui::ShellOverride guard(shell);
    QWidget parent;
    Script script;
    SaveFileWinDialog flow(
        &parent, "Save data", "", "", "Data files (*.dat)", "", std::make_unique<ScriptedHandler>(script));
    shell.script.showResult = S_OK;
    shell.failCalls("IFileDialog::GetResult");
    EXPECT_FALSE(flow.launch());
    EXPECT_EQ(shell.count("IFileDialog::Show"), 1);
    EXPECT_TRUE(script.calls.empty());
}
