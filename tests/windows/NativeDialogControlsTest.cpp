// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// Push buttons, check boxes, the menu of the accept button, and their stand-in widgets.
#include "host/HelpLauncher.h"
#include "host/InstanceOverride.h"
#include "property/Property.h"
#include "windows/NativeDialogFixture.h"

#include <boost/make_shared.hpp>

#include <atomic>

using namespace morvane::test;
using morvane::Property;

namespace {

using NativeDialogControls = NativeDialogTest;

class RecordingHelp : public morvane::HelpLauncher
{
public:
    void showHelp(const std::string& topic) override
    {
        m_topic = topic;
        m_calls = m_calls + 1;
    }

    std::string m_topic;
    std::atomic<int> m_calls{0};
};

const int first = NativeDialog::customControl(0);
const int second = NativeDialog::customControl(1);

TEST_F(NativeDialogControls, buttonRunsItsActionAtEachClick)
{
    const auto dialog = makeDialog(QFileDialog::AcceptOpen);
    std::atomic<int> clicks{0};
    dialog->addCustomButton(u8"押す \U0001F446", [&clicks] { ++clicks; });
    run(*dialog, [&clicks](NativeDialog& shown) {
        EXPECT_EQ(shown.text(first), L"押す \U0001F446");
        shown.press(first);
        EXPECT_TRUE(waitUntil([&clicks] { return clicks == 1; }));
        shown.press(first);
        EXPECT_TRUE(waitUntil([&clicks] { return clicks == 2; }));
        shown.cancel();
    });
}

TEST_F(NativeDialogControls, checkBoxStartsWithItsPropertyAndSetsIt)
{
    const auto dialog = makeDialog(QFileDialog::AcceptSave);
    const auto on = boost::make_shared<Property<bool>>(true);
    const auto off = boost::make_shared<Property<bool>>(false);
    dialog->addCustomCheckBox("On", on);
    dialog->addCustomCheckBox("Off", off);
    run(*dialog, [](NativeDialog& shown) {
        EXPECT_TRUE(shown.isChecked(first));
        EXPECT_FALSE(shown.isChecked(second));
        shown.press(first);
        shown.press(second);
        EXPECT_TRUE(waitUntil([&shown] { return shown.isChecked(second); }));
        EXPECT_FALSE(shown.isChecked(first));
        shown.cancel();
    });
    EXPECT_FALSE(on->value());
    EXPECT_TRUE(off->value());
}

TEST_F(NativeDialogControls, acceptMenuReportsTheEntryThatTheUserTook)
{
    const auto dialog = makeDialog(QFileDialog::AcceptSave, "Any (*)", "", true);
    dialog->addAcceptButtonOption("Save", 10);
    dialog->addAcceptButtonOption("Save and close", 20);
    EXPECT_EQ(dialog->selectedAcceptMenuOption(), 255);
    const auto result = run(*dialog, [](NativeDialog& shown) {
        EXPECT_TRUE(shown.isVisible(NativeDialog::AcceptArrow));
        shown.setName(L"out.dat");
        EXPECT_TRUE(shown.chooseAcceptOption(1));
    });
    EXPECT_EQ(result, QDialog::Accepted);
    EXPECT_EQ(dialog->selectedAcceptMenuOption(), 20);
    EXPECT_EQ(dialog->selectedFiles(), QStringList(path(QStringLiteral("out.dat"))));
}

TEST_F(NativeDialogControls, cancelReadsTheAcceptOptionToo)
{
    const auto dialog = makeDialog(QFileDialog::AcceptSave, "Any (*)", "", true);
    dialog->addAcceptButtonOption("Save", 10);
    dialog->addAcceptButtonOption("Save and close", 20);
    EXPECT_EQ(run(*dialog, [](NativeDialog& shown) { shown.cancel(); }), QDialog::Rejected);
    EXPECT_EQ(dialog->selectedAcceptMenuOption(), 10);
}

TEST_F(NativeDialogControls, clearedAcceptMenuHasNoArrow)
{
    const auto dialog = makeDialog(QFileDialog::AcceptSave, "Any (*)", "", true);
    dialog->addAcceptButtonOption("Save", 10);
    dialog->addAcceptButtonOption("Save and close", 20);
    dialog->clearAcceptMenuOptions();
    run(*dialog, [](NativeDialog& shown) {
        EXPECT_FALSE(shown.isVisible(NativeDialog::AcceptArrow));
        shown.cancel();
    });
    EXPECT_EQ(dialog->selectedAcceptMenuOption(), 255);
}

TEST_F(NativeDialogControls, widgetsSetBeforeTheRunShapeTheControls)
{
    const auto dialog = makeDialog(QFileDialog::AcceptOpen);
    dialog->addCustomButton("Disabled", [] {})->setEnabled(false);
    QWidget* const hidden = dialog->addCustomButton("Hidden", [] {});
    hidden->show();
    hidden->hide();
    run(*dialog, [](NativeDialog& shown) {
        EXPECT_TRUE(shown.isVisible(first));
        EXPECT_FALSE(shown.isEnabled(first));
        EXPECT_FALSE(shown.isVisible(second));
        shown.cancel();
    });
}

TEST_F(NativeDialogControls, widgetsChangeTheControlsWhileTheDialogRuns)
{
    const auto dialog = makeDialog(QFileDialog::AcceptOpen);
    QWidget* target = nullptr;
    const auto step = std::make_shared<int>(0);
    dialog->addCustomButton("Next", [&target, step] {
        switch (++*step) {
        case 1:
            target->setEnabled(false);
            break;
        case 2:
            target->setEnabled(true);
            target->hide();
            break;
        default:
            target->show();
        }
    });
    target = dialog->addCustomCheckBox("Target", boost::make_shared<Property<bool>>(false));
    target->show();
    run(*dialog, [](NativeDialog& shown) {
        EXPECT_TRUE(shown.isEnabled(second));
        shown.press(first);
        EXPECT_TRUE(waitUntil([&shown] { return !shown.isEnabled(second); }));
        EXPECT_TRUE(shown.isVisible(second));
        shown.press(first);
        EXPECT_TRUE(waitUntil([&shown] { return !shown.isVisible(second); }));
        EXPECT_TRUE(shown.isEnabled(second));
        shown.press(first);
        EXPECT_TRUE(waitUntil([&shown] { return shown.isVisible(second); }));
        shown.cancel();
    });
}

TEST_F(NativeDialogControls, closeFromAnActionIsAccepted)
{
    const auto dialog = makeDialog(QFileDialog::AcceptOpen);
    dialog->addCustomButton("Close", [&dialog] { dialog->close(); });
    const auto result = run(*dialog, [](NativeDialog& shown) {
        shown.setName(L"typed.dat");
        shown.press(first);
    });
    EXPECT_EQ(result, QDialog::Accepted);
    EXPECT_TRUE(dialog->selectedFiles().isEmpty()) << "nothing was chosen";
}

TEST_F(NativeDialogControls, helpButtonHandsItsTopicToTheLauncher)
{
    RecordingHelp help;
    const morvane::InstanceOverride<morvane::HelpLauncher> guard(help);
    const auto dialog = makeDialog(QFileDialog::AcceptOpen, "Any (*)", u8"ファイル/open");
    dialog->addCustomButton("Other", [] {});
    run(*dialog, [&help](NativeDialog& shown) {
        EXPECT_EQ(shown.text(first), L"&Help");
        EXPECT_EQ(shown.text(second), L"Other");
        shown.press(first);
        EXPECT_TRUE(waitUntil([&help] { return help.m_calls == 1; }));
        shown.cancel();
    });
    EXPECT_EQ(help.m_topic, u8"ファイル/open");
}

} // namespace
