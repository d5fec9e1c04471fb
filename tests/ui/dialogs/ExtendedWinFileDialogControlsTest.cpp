// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ExtendedWinFileDialogTest.h"

#include "host/InvalidPropertyValueException.h"
#include "property/Property.h"

#include <boost/make_shared.hpp>

namespace morvane::test {

namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::StartsWith;

boost::shared_ptr<Property<bool>> flag(bool value)
{
    return boost::make_shared<Property<bool>>(value);
}

class RejectAll : public ValidatorInterface<bool>
{
public:
    ValidationResult validate(const bool&) const override { return ValidationResult("never"); }
};

class ExtendedWinFileDialogControls : public ExtendedWinFileDialogTest
{
protected:
    void SetUp() override { m_shell.script.announcesOpening = false; }
    static HRESULT toggle(RecordingDialog& dialog, DWORD control, BOOL checked)
    {
        return dialog.fireControls([&](IFileDialogControlEvents& sink) {
            return sink.OnCheckButtonToggled(&dialog.controls(), control, checked);
        });
    }
};

TEST_F(ExtendedWinFileDialogControls, addsAButtonWithTwoCalls)
{
    const auto dialog = openDialog();
    EXPECT_THAT(callsOf([&] {
        EXPECT_TRUE(dialog->addCustomButton("Pr\xC3\xBC"
                                            "fen",
            [] {}));
    }),
        ElementsAre(customizeQuery, "IFileDialogCustomize::AddPushButton(0, \"Pr\xC3\xBC"
                                    "fen\")"));
}

TEST_F(ExtendedWinFileDialogControls, addsACheckBoxWithTheStateOfItsProperty)
{
    const auto dialog = openDialog();
    EXPECT_THAT(callsOf([&] { EXPECT_TRUE(dialog->addCustomCheckBox("On", flag(true))); }),
        ElementsAre(customizeQuery, "IFileDialogCustomize::AddCheckButton(0, \"On\", 1)"));
    EXPECT_THAT(callsOf([&] { EXPECT_TRUE(dialog->addCustomCheckBox("Off", flag(false))); }),
        ElementsAre(customizeQuery, "IFileDialogCustomize::AddCheckButton(1, \"Off\", 0)"));
}

TEST_F(ExtendedWinFileDialogControls, addsAndRemovesOptionsOfTheMenu)
{
    const auto dialog = menuDialog();
    EXPECT_THAT(callsOf([&] { EXPECT_TRUE(dialog->addAcceptButtonOption("First", 7)); }),
        ElementsAre(customizeQuery, "IFileDialogCustomize::AddControlItem(0, 1, \"First\")"));
    dialog->addCustomButton("Button", [] {});
    dialog->addAcceptButtonOption("Second", 8);
    EXPECT_THAT(callsOf([&] { dialog->clearAcceptMenuOptions(); }),
        ElementsAre(customizeQuery, "IFileDialogCustomize::RemoveControlItem(0, 1)",
            "IFileDialogCustomize::RemoveControlItem(0, 3)"));
    EXPECT_THAT(callsOf([&] { dialog->clearAcceptMenuOptions(); }), ElementsAre(customizeQuery));
    EXPECT_THAT(callsOf([&] { dialog->addAcceptButtonOption("Third", 9); }),
        Contains("IFileDialogCustomize::AddControlItem(0, 4, \"Third\")"));
}

TEST_F(ExtendedWinFileDialogControls, countsOnWhenTheShellRefusesAControl)
{
    const auto dialog = openDialog();
    m_shell.failCalls("IFileDialogCustomize::AddPushButton");
    EXPECT_TRUE(dialog->addCustomButton("Refused", [] {}));
    m_shell.failNothing();
    EXPECT_THAT(callsOf([&] { dialog->addCustomButton("Taken", [] {}); }),
        Contains("IFileDialogCustomize::AddPushButton(1, \"Taken\")"));
}

TEST_F(ExtendedWinFileDialogControls, numbersTheFirstControlOfTheCallerAfterMenuAndHelp)
{
    Arguments arguments;
    arguments.helpTopic = "topic";
    arguments.acceptMenu = true;
    const auto dialog = make(arguments);
    EXPECT_THAT(callsOf([&] { dialog->addCustomCheckBox("Check", flag(false)); }),
        Contains("IFileDialogCustomize::AddCheckButton(2, \"Check\", 0)"));
}

TEST_F(ExtendedWinFileDialogControls, makesOnlyTheHelpButtonProminent)
{
    Arguments arguments;
    arguments.helpTopic = "topic";
    arguments.acceptMenu = true;
    const auto dialog = make(arguments);
    EXPECT_THAT(callsOf([&] {
        dialog->addCustomButton("Button", [] {});
        dialog->addCustomCheckBox("Check", flag(true));
        dialog->addAcceptButtonOption("Option", 1);
    }),
        Not(Contains(StartsWith("IFileDialogCustomize::MakeProminent"))));
}

TEST_F(ExtendedWinFileDialogControls, runsTheActionOfTheClickedButton)
{
    const auto dialog = openDialog();
    std::string clicked;
    dialog->addCustomButton("A", [&] { clicked += 'a'; });
    dialog->addCustomButton("B", [&] { clicked += 'b'; });
    run(*dialog, [](RecordingDialog& user) {
        for (const DWORD control : {1u, 0u, 1u, 2u, 77u}) {
            user.userClicks(control);
        }
    });
    EXPECT_EQ(clicked, "bab");
}

TEST_F(ExtendedWinFileDialogControls, helpButtonShowsTheTopic)
{
    Arguments arguments;
    arguments.helpTopic = "\xC3\xBC/open";
    const auto dialog = make(arguments);
    run(*dialog, [](RecordingDialog& user) {
        user.userClicks(0);
        user.userClicks(0);
    });
    EXPECT_THAT(m_help.topics, ElementsAre("\xC3\xBC/open", "\xC3\xBC/open"));
}

TEST_F(ExtendedWinFileDialogControls, anEmptyActionThrowsAndLeavesNothingAdvised)
{
    const auto dialog = openDialog();
    dialog->addCustomButton("Nothing", boost::function<void()>());
    EXPECT_THROW(run(*dialog, [](RecordingDialog& user) { user.userClicks(0); }), boost::bad_function_call);
    EXPECT_EQ(m_shell.calls().back(), "IFileDialog::Unadvise(1)");
    EXPECT_EQ(m_shell.count("QISearch"), 2) << "the sink of the first run answered for its controls";
    EXPECT_EQ(run(*dialog, [](RecordingDialog& user) { user.userAccepts(); }), QDialog::Rejected);
    EXPECT_EQ(m_shell.calls().back(), "IFileDialog::Unadvise(2)") << "the dialog runs again";
}

TEST_F(ExtendedWinFileDialogControls, anActionMayAddButtonsAndOptions)
{
    const auto dialog = menuDialog();
    int clicks = 0;
    dialog->addCustomButton("Add", [&] {
        ++clicks;
        for (int i = 0; i < 50; ++i) {
            dialog->addCustomButton("More", [&] { clicks += 10; });
            dialog->addAcceptButtonOption("Option", i);
        }
    });
    run(*dialog, [](RecordingDialog& user) {
        user.userClicks(1);
        user.userClicks(2);
        user.userClicks(4);
    });
    EXPECT_EQ(clicks, 21);
}

TEST_F(ExtendedWinFileDialogControls, releasesActionsAndPropertiesWithTheDialog)
{
    auto dialog = openDialog();
    const auto property = flag(false);
    const auto captured = boost::make_shared<int>(0);
    dialog->addCustomCheckBox("Check", property);
    dialog->addCustomButton("Button", [captured] { ++*captured; });
    EXPECT_EQ(property.use_count(), 2);
    EXPECT_EQ(captured.use_count(), 2);
    dialog.reset();
    EXPECT_EQ(property.use_count(), 1);
    EXPECT_EQ(captured.use_count(), 1);
}

TEST_F(ExtendedWinFileDialogControls, aCheckBoxSetsItsPropertyAtEachToggle)
{
    const auto dialog = openDialog();
    const auto first = flag(true);
    const auto second = flag(false);
    dialog->addCustomCheckBox("First", first);
    dialog->addCustomCheckBox("Second", second);
    run(*dialog, [&](RecordingDialog& user) {
        user.userToggles(1);
        EXPECT_TRUE(first->value());
        EXPECT_TRUE(second->value());
        user.userToggles(0);
        EXPECT_FALSE(first->value());
        EXPECT_TRUE(second->value());
        EXPECT_EQ(toggle(user, 9, TRUE), S_OK);
    });
}

TEST_F(ExtendedWinFileDialogControls, onlyTheValueOneCountsAsChecked)
{
    const auto dialog = openDialog();
    const auto property = flag(false);
    dialog->addCustomCheckBox("Check", property);
    run(*dialog, [&](RecordingDialog& user) {
        for (const auto& [reported, expected] :
            std::vector<std::pair<BOOL, bool>>{{1, true}, {2, false}, {1, true}, {-1, false}, {1, true}, {0, false}}) {
            toggle(user, 0, reported);
            EXPECT_EQ(property->value(), expected) << reported;
        }
    });
}

TEST_F(ExtendedWinFileDialogControls, aRejectedValueLeavesTheRunAsAnException)
{
    const auto dialog = openDialog();
    const auto property = flag(false);
    property->setValidator(boost::make_shared<RejectAll>());
    dialog->addCustomCheckBox("Check", property);
    EXPECT_THROW(run(*dialog, [](RecordingDialog& user) { user.userToggles(0); }), InvalidPropertyValueException);
    EXPECT_FALSE(property->value());
    EXPECT_EQ(m_shell.calls().back(), "IFileDialog::Unadvise(1)");
}

TEST_F(ExtendedWinFileDialogControls, aCheckBoxWithoutPropertyIsHarmless)
{
    const auto dialog = openDialog();
    EXPECT_THAT(callsOf([&] { dialog->addCustomCheckBox("Check", nullptr); }),
        Contains("IFileDialogCustomize::AddCheckButton(0, \"Check\", 0)"));
    run(*dialog, [&](RecordingDialog& user) { EXPECT_EQ(toggle(user, 0, TRUE), S_OK); });
}

TEST_F(ExtendedWinFileDialogControls, reportsTheValueOfThePickedOption)
{
    const auto dialog = menuDialog();
    dialog->addAcceptButtonOption("Save", 40);
    dialog->addAcceptButtonOption("Save and close", -3);
    m_shell.script.results = QStringList(QStringLiteral("/a"));
    EXPECT_EQ(run(*dialog, [](RecordingDialog& user) { user.userPicksItem(0, 2); }), QDialog::Accepted);
    EXPECT_EQ(dialog->selectedAcceptMenuOption(), -3);
    EXPECT_EQ(run(*dialog, [](RecordingDialog& user) { user.userCancels(); }), QDialog::Rejected);
    EXPECT_EQ(dialog->selectedAcceptMenuOption(), 40) << "the first one is reported after cancelling, too";
}

TEST_F(ExtendedWinFileDialogControls, keepsTheOptionWhenTheShellReportsNoneThatIsKnown)
{
    const auto dialog = menuDialog();
    run(*dialog);
    EXPECT_EQ(dialog->selectedAcceptMenuOption(), 255) << "a menu without options has no selection";
    dialog->addAcceptButtonOption("Save", 40);
    run(*dialog);
    ASSERT_EQ(dialog->selectedAcceptMenuOption(), 40);
    m_shell.script.selectedItem = 4711;
    run(*dialog);
    EXPECT_EQ(dialog->selectedAcceptMenuOption(), 40);
    m_shell.failCalls("IFileDialogCustomize::GetSelectedControlItem");
    run(*dialog);
    EXPECT_EQ(dialog->selectedAcceptMenuOption(), 40);
}

TEST_F(ExtendedWinFileDialogControls, knowsTheValueOfAnOptionThatWasRemoved)
{
    const auto dialog = menuDialog();
    dialog->addAcceptButtonOption("Save", 40);
    dialog->clearAcceptMenuOptions();
    m_shell.script.selectedItem = 1;
    run(*dialog);
    EXPECT_EQ(dialog->selectedAcceptMenuOption(), 40);
}

TEST_F(ExtendedWinFileDialogControls, asksNoMenuWhenThereIsNone)
{
    const auto dialog = openDialog();
    dialog->addAcceptButtonOption("Option", 40);
    run(*dialog);
    EXPECT_EQ(m_shell.count("IFileDialogCustomize::GetSelectedControlItem"), 0);
    EXPECT_EQ(dialog->selectedAcceptMenuOption(), 255);
}

} // namespace

} // namespace morvane::test
