// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ExtendedWinFileDialogTest.h"

#include "property/Property.h"

#include <QDir>

#include <boost/make_shared.hpp>

#include <type_traits>

static_assert(!std::is_copy_constructible_v<ExtendedWinFileDialog>);
static_assert(!std::is_copy_assignable_v<ExtendedWinFileDialog>);
static_assert(std::has_virtual_destructor_v<ExtendedWinFileDialog>);

namespace morvane::test {

namespace {

using ::testing::ElementsAre;

class ExtendedWinFileDialogConstruction : public ExtendedWinFileDialogTest
{
protected:
    QString startDirectory(const std::string& directory)
    {
        Arguments arguments;
        arguments.directory = directory;
        return make(arguments)->directory().path();
    }
};

TEST_F(ExtendedWinFileDialogConstruction, joinsTheApartmentAndMakesAnOpenDialog)
{
    const auto dialog = openDialog();
    EXPECT_THAT(m_shell.calls(),
        ElementsAre("CoInitializeEx(null, 6)", "CoCreateInstance(FileOpenDialog, null, 1, IFileDialog)"));
}

TEST_F(ExtendedWinFileDialogConstruction, makesASaveDialog)
{
    const auto dialog = saveDialog("Data (*.dat)");
    EXPECT_THAT(m_shell.calls(),
        ElementsAre("CoInitializeEx(null, 6)", "CoCreateInstance(FileSaveDialog, null, 1, IFileDialog)"));
}

TEST_F(ExtendedWinFileDialogConstruction, putsTheMenuBeforeTheHelpButton)
{
    Arguments arguments;
    arguments.acceptMenu = true;
    arguments.helpTopic = "topic";
    const auto dialog = make(arguments);
    EXPECT_THAT(m_shell.calls(),
        ElementsAre("CoInitializeEx(null, 6)", "CoCreateInstance(FileOpenDialog, null, 1, IFileDialog)", customizeQuery,
            "IFileDialogCustomize::EnableOpenDropDown(0)", customizeQuery,
            "IFileDialogCustomize::AddPushButton(1, \"&Help\")", "IFileDialogCustomize::MakeProminent(1)"));
}

TEST_F(ExtendedWinFileDialogConstruction, numbersTheHelpButtonFromZeroWithoutMenu)
{
    Arguments arguments;
    arguments.helpTopic = "topic";
    const auto dialog = make(arguments);
    EXPECT_THAT(m_shell.calls(),
        ElementsAre("CoInitializeEx(null, 6)", "CoCreateInstance(FileOpenDialog, null, 1, IFileDialog)", customizeQuery,
            "IFileDialogCustomize::AddPushButton(0, \"&Help\")", "IFileDialogCustomize::MakeProminent(0)"));
}

TEST_F(ExtendedWinFileDialogConstruction, leavesAHelpButtonThatWasRefusedAlone)
{
    m_shell.failCalls("IFileDialogCustomize::AddPushButton");
    Arguments arguments;
    arguments.helpTopic = "topic";
    const auto dialog = make(arguments);
    EXPECT_EQ(m_shell.count("IFileDialogCustomize::MakeProminent"), 0);
}

TEST_F(ExtendedWinFileDialogConstruction, takesTheApartmentThatTheThreadIsInAlready)
{
    const auto first = openDialog();
    const auto second = openDialog();
    EXPECT_EQ(m_shell.count("CoCreateInstance"), 2);
    EXPECT_EQ(m_shell.apartments(), 2);
}

TEST_F(ExtendedWinFileDialogConstruction, startsInAnExistingDirectory)
{
    EXPECT_EQ(startDirectory(folder()), QString::fromStdString(folder()));
}

TEST_F(ExtendedWinFileDialogConstruction, startsInTheFolderOfAFileWithoutItsName)
{
    makeFile(QStringLiteral("run.dat"));
    Arguments arguments;
    arguments.directory = folder() + "/run.dat";
    const auto dialog = make(arguments);
    EXPECT_EQ(dialog->directory().path().toStdString(), folder());
    run(*dialog);
    EXPECT_THAT(m_shell.calls(), ::testing::Contains("IFileDialog::SetFileName(\"\")"));
}

TEST_F(ExtendedWinFileDialogConstruction, leavesAMissingDirectoryToTheShell)
{
    EXPECT_EQ(startDirectory(folder() + "/missing"), QDir(QString()).path());
    EXPECT_EQ(startDirectory(""), QDir(QString()).path());
}

TEST_F(ExtendedWinFileDialogConstruction, swallowsAnErrorOfTheFileSystem)
{
    EXPECT_EQ(startDirectory("/" + std::string(5000, 'x')), QDir(QString()).path());
}

TEST_F(ExtendedWinFileDialogConstruction, startsInADirectoryWithANameBeyondAscii)
{
    const QString name = QString::fromUtf8("Messung \xC3\xBC \xF0\x9F\x93\x81");
    ASSERT_TRUE(QDir(QString::fromStdString(folder())).mkdir(name));
    EXPECT_EQ(startDirectory(path(name).toStdString()), path(name));
}

TEST_F(ExtendedWinFileDialogConstruction, stripsBlanksAroundFiltersAndDropsEmptyPieces)
{
    const auto dialog = openDialog("Text files (*.txt);;;; ;;  Data (*.dat *.csv)  ;;\tTab (*)\t");
    EXPECT_EQ(dialog->nameFilters(), QStringList({QStringLiteral("Text files (*.txt)"), QString(),
                                         QStringLiteral("Data (*.dat *.csv)"), QStringLiteral("\tTab (*)\t")}));
}

TEST_F(ExtendedWinFileDialogConstruction, beginsWithPlainValues)
{
    const auto dialog = openDialog("Data (*.dat);;All (*)");
    EXPECT_EQ(dialog->currentFilterIndex()->value(), 1);
    EXPECT_EQ(dialog->selectedNameFilter(), QStringLiteral("Data (*.dat)"));
    EXPECT_EQ(dialog->selectedAcceptMenuOption(), 255);
    EXPECT_EQ(dialog->parent(), m_parent.get());
}

TEST_F(ExtendedWinFileDialogConstruction, keepsTheParentsPointerOnlyWhileItLives)
{
    const auto dialog = openDialog();
    m_parent.reset();
    EXPECT_EQ(dialog->parent(), nullptr);
}

/** Records how many objects still exist when the apartment is left. */
class ShellWithWitness : public RecordingShell
{
public:
    void coUninitialize() override
    {
        objectsAtTheEnd.push_back(liveObjects());
        RecordingShell::coUninitialize();
    }

    std::vector<int> objectsAtTheEnd;
};

TEST_F(ExtendedWinFileDialogConstruction, leavesTheApartmentBeforeTheDialogIsReleased)
{
    ShellWithWitness shell;
    const ui::ShellOverride override(shell);
    auto dialog = menuDialog();
    dialog->addCustomButton("Button", [] {});
    dialog->addCustomCheckBox("Check", nullptr);
    dialog->addAcceptButtonOption("Option", 1);
    dialog->exec();
    shell.clearCalls();
    dialog.reset();
    EXPECT_THAT(shell.calls(), ElementsAre("CoUninitialize()"));
    EXPECT_THAT(shell.objectsAtTheEnd, ElementsAre(1)) << "the dialog itself is left to the end";
    EXPECT_EQ(shell.liveObjects(), 0);
}

/** Records its name when it is destroyed. */
struct Leaving
{
    Leaving(std::vector<std::string>& allGone, const char* ownName) : gone(allGone), name(ownName) {}
    ~Leaving() { gone.emplace_back(name); }
    Leaving(const Leaving&) = delete;
    Leaving& operator=(const Leaving&) = delete;

    std::vector<std::string>& gone;
    const char* const name;
};

struct LeavingFlag : Leaving, Property<bool>
{
    explicit LeavingFlag(std::vector<std::string>& allGone) : Leaving(allGone, "check box"), Property<bool>(true) {}
};

TEST_F(ExtendedWinFileDialogConstruction, letsGoOfCheckBoxesAndThenOfActionsBetweenTheApartmentAndTheDialog)
{
    std::vector<std::string> gone;
    auto dialog = openDialog();
    dialog->addCustomButton("Button", [action = std::make_shared<Leaving>(gone, "action")] {});
    dialog->addCustomCheckBox("Check", boost::make_shared<LeavingFlag>(gone));
    dialog->addCustomButton("Other", [witness = std::shared_ptr<int>(new int, [&](const int* number) {
        delete number;
        gone.emplace_back(m_shell.calls().back() + ", dialogs: " + std::to_string(m_shell.liveObjects()));
    })] {});
    EXPECT_THAT(gone, ::testing::IsEmpty());
    dialog.reset();
    EXPECT_THAT(gone, ::testing::UnorderedElementsAre("check box", "action", "CoUninitialize(), dialogs: 1"));
    EXPECT_EQ(gone.front(), "check box");
}

TEST_F(ExtendedWinFileDialogConstruction, destroysStandInsOfOptionsThenOfControlsBeforeWhatTheControlsCall)
{
    std::vector<std::string> gone;
    auto dialog = menuDialog();
    const auto watch = [&gone](QWidget* standIn, const char* name) {
        QObject::connect(standIn, &QObject::destroyed, [&gone, name] { gone.emplace_back(name); });
    };
    watch(dialog->addCustomButton("Button", [action = std::make_shared<Leaving>(gone, "action")] {}), "control");
    watch(dialog->addAcceptButtonOption("Option", 1), "option");
    watch(dialog->addCustomCheckBox("Check", boost::make_shared<LeavingFlag>(gone)), "control");
    dialog.reset();
    EXPECT_THAT(gone, ElementsAre("option", "control", "control", "check box", "action"));
}

TEST_F(ExtendedWinFileDialogConstruction, leavesTheApartmentEvenWhenJoiningFailed)
{
    m_shell.failCalls("CoInitializeEx", RPC_E_CHANGED_MODE);
    m_expectedApartments = -1;
    auto dialog = openDialog();
    EXPECT_THAT(callsOf([&] { dialog.reset(); }), ElementsAre("CoUninitialize()"));
}

/** Throws when it is asked for a dialog, either before or after it makes the dialog. */
class ThrowingShell : public ShellWithWitness
{
public:
    explicit ThrowingShell(bool makesDialog) : m_makesDialog(makesDialog) {}

    HRESULT coCreateInstance(REFCLSID clsid, IUnknown* outer, DWORD context, REFIID iid, void** object) override
    {
        if (m_makesDialog) {
            ShellWithWitness::coCreateInstance(clsid, outer, context, iid, object);
        }
        throw std::runtime_error("no dialog");
    }

private:
    const bool m_makesDialog;
};

TEST_F(ExtendedWinFileDialogConstruction, leavesTheApartmentWhenItThrows)
{
    for (const bool makesDialog : {false, true}) {
        ThrowingShell shell(makesDialog);
        const ui::ShellOverride override(shell);
        EXPECT_THROW(openDialog(), std::runtime_error);
        EXPECT_EQ(shell.apartments(), 0);
        EXPECT_THAT(shell.objectsAtTheEnd, ElementsAre(makesDialog ? 1 : 0)) << "the dialog itself is left to the end";
        EXPECT_EQ(shell.liveObjects(), 0);
    }
}

TEST_F(ExtendedWinFileDialogConstruction, staysWithTheShellThatItWasMadeIn)
{
    auto dialog = openDialog();
    RecordingShell other;
    const ui::ShellOverride override(other);
    run(*dialog);
    dialog.reset();
    EXPECT_TRUE(other.calls().empty());
}

} // namespace

} // namespace morvane::test
