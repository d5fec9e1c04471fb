// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ExtendedWinFileDialogTest.h"

#include "property/Property.h"

#include <boost/make_shared.hpp>

#include <algorithm>
#include <set>

namespace morvane::test {

namespace {

using ::testing::IsEmpty;

class ExtendedWinFileDialogFailure : public ExtendedWinFileDialogTest
{
protected:
    /** What a host sees in a scenario that uses every operation. */
    struct Outcome
    {
        QDialog::DialogCode first = QDialog::Rejected;
        QDialog::DialogCode second = QDialog::Rejected;
        QStringList several;
        QStringList single;
        int clicks = 0;
        bool checked = false;
        int option = 0;
        int type = 0;
        QString directory;
    };

    Outcome playAll();
    void playOpening(Outcome& outcome);
    void playSaving(Outcome& outcome);
    void useEverything(ExtendedWinFileDialog& dialog);
};

void ExtendedWinFileDialogFailure::playOpening(Outcome& outcome)
{
    Arguments arguments;
    arguments.directory = folder();
    arguments.filter = "Data (*.dat);;All (*)";
    arguments.helpTopic = "topic";
    arguments.acceptMenu = true;
    const auto dialog = make(arguments);
    const auto checked = boost::make_shared<Property<bool>>(false);
    QWidget* const button = dialog->addCustomButton("Button", [&] { ++outcome.clicks; });
    QWidget* const check = dialog->addCustomCheckBox("Check", checked);
    QWidget* const option = dialog->addAcceptButtonOption("First", 11);
    dialog->addAcceptButtonOption("Second", 12);
    for (QWidget* const widget : {button, check, option}) {
        widget->hide();
        widget->setEnabled(false);
        widget->show();
        widget->setEnabled(true);
    }
    dialog->setFileMode(QFileDialog::ExistingFiles);
    m_shell.script.results = QStringList({QStringLiteral("/a"), QStringLiteral("/b")});
    outcome.first = run(*dialog, [](RecordingDialog& user) {
        user.fireControls([&](IFileDialogControlEvents& sink) { return sink.OnButtonClicked(nullptr, 2); });
        user.fireControls([&](IFileDialogControlEvents& sink) { return sink.OnCheckButtonToggled(nullptr, 3, TRUE); });
        user.userPicksType(2);
        user.userAccepts();
    });
    outcome.several = dialog->selectedFiles();
    outcome.checked = checked->value();
    outcome.option = dialog->selectedAcceptMenuOption();
    outcome.type = dialog->currentFilterIndex()->value();
    outcome.directory = dialog->directory().path();
    dialog->clearAcceptMenuOptions();
}

void ExtendedWinFileDialogFailure::playSaving(Outcome& outcome)
{
    const auto dialog = saveDialog("Data (*.dat);;All (*)");
    dialog->selectFile(QStringLiteral("out.txt"));
    m_shell.script.results = QStringList(QStringLiteral("/c"));
    run(*dialog, [](RecordingDialog& user) { user.userPicksType(2); });
    outcome.second = run(*dialog, [&](RecordingDialog&) { dialog->close(); });
    run(*dialog, [](RecordingDialog& user) { user.userAccepts(); });
    outcome.single = dialog->selectedFiles();
}

ExtendedWinFileDialogFailure::Outcome ExtendedWinFileDialogFailure::playAll()
{
    Outcome outcome;
    playOpening(outcome);
    playSaving(outcome);
    return outcome;
}

void ExtendedWinFileDialogFailure::useEverything(ExtendedWinFileDialog& dialog)
{
    const auto checked = boost::make_shared<Property<bool>>(true);
    for (QWidget* const widget : {dialog.addCustomButton("Button", [] {}), dialog.addCustomCheckBox("Check", checked),
             dialog.addAcceptButtonOption("Option", 1)}) {
        ASSERT_TRUE(widget);
        widget->hide();
        widget->show();
        widget->setEnabled(false);
    }
    dialog.clearAcceptMenuOptions();
    dialog.setFileMode(QFileDialog::ExistingFiles);
    dialog.setDontConfirmOverwrite(true);
    dialog.setShowDirectoriesOnly(true);
    dialog.setNameFilters({QStringLiteral("B (*.b)"), QStringLiteral("C (*.c)")});
    dialog.selectNameFilter(QStringLiteral("C (*.c)"));
    EXPECT_EQ(dialog.selectedNameFilter(), QStringLiteral("C (*.c)"));
    dialog.selectFile(QStringLiteral("/x/y"));
    dialog.setDirectory(QStringLiteral("/x"));
    EXPECT_EQ(dialog.directory().path(), QStringLiteral("/x"));
    dialog.close();
    EXPECT_EQ(dialog.exec(), QDialog::Rejected);
    EXPECT_EQ(dialog.exec(), QDialog::Rejected);
    EXPECT_THAT(dialog.selectedFiles(), IsEmpty());
    EXPECT_EQ(dialog.selectedAcceptMenuOption(), 255);
    EXPECT_EQ(dialog.parent(), m_parent.get());
    EXPECT_TRUE(checked->value());
}

TEST_F(ExtendedWinFileDialogFailure, withoutApartmentNothingIsMadeAndEverythingIsSafe)
{
    m_shell.failCalls("CoInitializeEx", RPC_E_CHANGED_MODE);
    m_expectedApartments = -1;
    Arguments arguments;
    arguments.directory = folder();
    arguments.filter = "A (*.a)";
    arguments.helpTopic = "topic";
    arguments.acceptMenu = true;
    const auto dialog = make(arguments);
    EXPECT_THAT(dialog->nameFilters(), IsEmpty());
    EXPECT_EQ(dialog->selectedNameFilter(), QString());
    EXPECT_EQ(dialog->directory(), QDir(QString())) << "the folder is not looked at";
    useEverything(*dialog);
    EXPECT_THAT(m_shell.calls(), ::testing::ElementsAre("CoInitializeEx(null, 6)"));
}

TEST_F(ExtendedWinFileDialogFailure, withoutDialogTheValuesAreKeptAndEverythingIsSafe)
{
    m_shell.failCalls("CoCreateInstance");
    Arguments arguments;
    arguments.directory = folder();
    arguments.filter = "A (*.a)";
    arguments.helpTopic = "topic";
    arguments.acceptMenu = true;
    const auto dialog = make(arguments);
    EXPECT_EQ(dialog->nameFilters(), QStringList(QStringLiteral("A (*.a)")));
    EXPECT_EQ(dialog->directory().path().toStdString(), folder());
    useEverything(*dialog);
    EXPECT_EQ(m_shell.calls().size(), 2u);
}

TEST_F(ExtendedWinFileDialogFailure, aResultThatIsAnnouncedButMissingIsNone)
{
    for (const bool several : {false, true}) {
        const auto dialog = openDialog();
        dialog->setFileMode(several ? QFileDialog::ExistingFiles : QFileDialog::ExistingFile);
        m_shell.script.results = QStringList(QStringLiteral("/a"));
        run(*dialog, [](RecordingDialog& user) { user.userAccepts(); });
        EXPECT_EQ(dialog->selectedFiles().size(), 1);
        for (const char* const call : {several ? "IFileDialog::GetResults" : "IFileDialog::GetResult",
                 "IShellItemArray::GetItemAt", "IShellItem::GetDisplayName"}) {
            m_shell.failCalls(call, S_OK);
            EXPECT_EQ(dialog->selectedFiles().size(), !several && call == std::string("IShellItemArray::GetItemAt"))
                << call;
            m_shell.failNothing();
        }
    }
}

TEST_F(ExtendedWinFileDialogFailure, whatTheDialogDoesNotTellCountsAsNothing)
{
    const auto dialog = openDialog();
    m_shell.failCalls("IFileDialog::GetOptions");
    m_shell.failCalls("IFileDialog::Advise");
    const Calls calls = callsOf([&] { run(*dialog); });
    EXPECT_THAT(calls, ::testing::Contains("IFileDialog::SetOptions(0x2)"));
    EXPECT_THAT(calls, ::testing::Contains("IFileDialog::Unadvise(0)"));
}

TEST_F(ExtendedWinFileDialogFailure, theScenarioSucceedsWithoutFailures)
{
    const Outcome outcome = playAll();
    EXPECT_EQ(outcome.first, QDialog::Accepted);
    EXPECT_EQ(outcome.second, QDialog::Accepted);
    EXPECT_EQ(outcome.several.size(), 2);
    EXPECT_EQ(outcome.single.size(), 1);
    EXPECT_EQ(outcome.clicks, 1);
    EXPECT_TRUE(outcome.checked);
    EXPECT_EQ(outcome.option, 11);
    EXPECT_EQ(outcome.type, 2);
}

/** Whether the result @p what may differ from the scenario without failures when @p call fails. */
bool mayChange(const std::string& call, const char* what)
{
    const std::vector<std::pair<const char*, std::vector<std::string>>> table = {
        {"first", {"CoInitializeEx", "CoCreateInstance", "IFileDialog::Show"}},
        {"second", {"CoInitializeEx", "CoCreateInstance", "IFileDialog::Show", "IFileDialog::Close"}},
        {"several", {"CoInitializeEx", "CoCreateInstance", "IFileDialog::Show", "IFileDialog::GetOptions",
                        "IFileDialog::SetOptions", "IFileDialog::QueryInterface", "IFileDialog::GetResults",
                        "IShellItemArray::GetCount", "IShellItemArray::GetItemAt", "IShellItem::GetDisplayName"}},
        {"single", {"CoInitializeEx", "CoCreateInstance", "IFileDialog::Show", "IFileDialog::GetResult",
                       "IShellItem::GetDisplayName"}},
        // Events reach the host through the sink, which needs QISearch and Advise.
        {"clicks", {"CoInitializeEx", "CoCreateInstance", "IFileDialog::Show", "QISearch", "IFileDialog::Advise"}},
        {"checked", {"CoInitializeEx", "CoCreateInstance", "IFileDialog::Show", "QISearch", "IFileDialog::Advise"}},
        {"option", {"CoInitializeEx", "CoCreateInstance", "IFileDialog::QueryInterface",
                       "IFileDialogCustomize::EnableOpenDropDown", "IFileDialogCustomize::AddControlItem",
                       "IFileDialogCustomize::GetControlItemState", "IFileDialogCustomize::SetControlItemState",
                       "IFileDialogCustomize::GetSelectedControlItem"}},
        {"type", {"CoInitializeEx", "CoCreateInstance", "IFileDialog::Show", "QISearch", "IFileDialog::Advise",
                     "IFileDialog::GetFileTypeIndex", "IFileDialog::SetFileTypes"}},
    };
    for (const auto& [name, calls] : table) {
        if (std::string(name) == what) {
            return std::find(calls.begin(), calls.end(), call) != calls.end();
        }
    }
    return false;
}

TEST_F(ExtendedWinFileDialogFailure, eachCallMayFailOnce)
{
    const Outcome normal = playAll();
    const std::vector<std::string> names = m_shell.callNames();
    const std::set<std::string> distinct(names.begin(), names.end());
    ASSERT_GE(distinct.size(), 35u) << "the scenario has become poor";
    const int apartments = m_shell.apartments();
    for (std::size_t i = 0; i < names.size(); ++i) {
        SCOPED_TRACE(std::to_string(i + 1) + ": " + names[i]);
        m_shell.clearCalls();
        m_shell.failNothing();
        m_shell.failCall(static_cast<int>(i) + 1);
        const int before = m_shell.apartments();
        const Outcome outcome = playAll();
        m_shell.failNothing();
        EXPECT_EQ(m_shell.liveObjects(), 0);
        EXPECT_EQ(m_shell.liveStrings(), 0);
        EXPECT_EQ(m_shell.apartments() - before, names[i] == "CoInitializeEx" ? -1 : 0);
        const auto same = [&](const char* what, const auto& actual, const auto& expected) {
            if (!mayChange(names[i], what)) {
                EXPECT_EQ(actual, expected) << what;
            }
        };
        same("first", outcome.first, normal.first);
        same("second", outcome.second, normal.second);
        same("several", outcome.several, normal.several);
        same("single", outcome.single, normal.single);
        same("clicks", outcome.clicks, normal.clicks);
        same("checked", outcome.checked, normal.checked);
        same("option", outcome.option, normal.option);
        same("type", outcome.type, normal.type);
        EXPECT_LE(outcome.several.size(), normal.several.size());
        EXPECT_LE(outcome.single.size(), normal.single.size());
        EXPECT_FALSE(outcome.several.contains(QString())) << "a failure shortens the list";
        EXPECT_FALSE(outcome.single.contains(QString())) << "a failure shortens the list";
    }
    m_expectedApartments = apartments - static_cast<int>(std::count(names.begin(), names.end(), "CoInitializeEx"));
}

} // namespace

} // namespace morvane::test
