// The save flow with a host's own message handler.
#include "SaveFileDialogFixture.h"

#include "testing/RecordingShell.h"
#include "ui/qt/dialogs/DefaultSaveFileMessageHandler.h"
#include "ui/qt/dialogs/SaveFileWinDialog.h"

#include <stdexcept>

using namespace morvane::test;

namespace {

struct Script
{
    std::vector<std::string> calls;
    std::string nameToCheck; ///< empty: the name given
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

INSTANTIATE_TEST_SUITE_P(Handlers, SaveFlow, testing::Bool(), &saveFlowName);

TEST_P(SaveFlow, asksTheHandlerInOrder)
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

TEST_P(SaveFlow, showsTheTextsOfAHandlerAsTheyStand)
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

TEST_P(SaveFlow, asksAboutTheNameThatTheHandlerGivesAndProbesItsOwn)
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

TEST_P(SaveFlow, asksAboutADirectoryLikeAboutAFile)
{
    Script script;
    script.nameToCheck = directory();
    const auto flow = makeFlow("Data files (*.dat)", std::make_unique<ScriptedHandler>(script));
    ModalScript user;
    user.on<QFileDialog>([](QFileDialog& dialog) { acceptName(dialog, "new"); });
    user.on<QMessageBox>([](QMessageBox& box) { pressKey(box, Qt::Key_Y); });
    EXPECT_TRUE(flow->launch());
}

TEST_P(SaveFlow, doesNotAskWhenTheNameToCheckIsNotThere)
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

TEST_P(SaveFlow, passesOnWhatAHandlerThrows)
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

TEST_P(SaveFlow, ownsItsHandler)
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

TEST_P(SaveFlow, savesNothingWhenTheParentGoesWhileTheHandlerIsAsked)
{
    struct Leaving : morvane::DefaultSaveFileMessageHandler
    {
        explicit Leaving(QPointer<QWidget>& leaving) : parent(leaving) {}
        std::string filenameToCheck(const std::string& filename) override
        {
            delete parent;
            return filename;
        }
        QPointer<QWidget>& parent;
    };
    const auto flow = makeFlow("Data files (*.dat)", std::make_unique<Leaving>(m_parent));
    ModalScript user;
    user.on<QFileDialog>([](QFileDialog& dialog) { acceptName(dialog, "new"); });
    EXPECT_FALSE(flow->launch());
    EXPECT_TRUE(user.finished());
    EXPECT_EQ(entries(), QStringList());
}

TEST(SaveFlowWithoutAFile, savesNothingWhenTheShellAcceptsWithoutAResult)
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
