// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "contract/ShellContract.h"

namespace morvane::test {

namespace {

using ::testing::Contains;

class Controls
{
public:
    static ui::ShellString text(const char* label) { return ui::toShellString(QString::fromUtf8(label)); }
};

CDCONTROLSTATEF stateOf(IFileDialogCustomize& customize, DWORD control)
{
    CDCONTROLSTATEF state = CDCS_INACTIVE;
    EXPECT_EQ(customize.GetControlState(control, &state), S_OK);
    return state;
}

TEST_P(ShellContract, aClickOnACustomButtonReachesTheSink)
{
    prepare();
    ASSERT_EQ(customize->AddPushButton(5, Controls::text("Preview").c_str()), S_OK);
    show([](ShellUser& user) {
        user.clickButton(5, QStringLiteral("Preview"));
        user.pressCancel();
    });
    EXPECT_EQ(sink->count("OnButtonClicked 5"), 1);
}

TEST_P(ShellContract, aCustomButtonMayCloseTheDialog)
{
    prepare();
    ASSERT_EQ(customize->AddPushButton(5, Controls::text("Done").c_str()), S_OK);
    sink->on["OnButtonClicked"] = [&] { return dialog->Close(S_OK); };
    EXPECT_EQ(show([](ShellUser& user) { user.clickButton(5, QStringLiteral("Done")); }), S_OK);
}

TEST_P(ShellContract, anExceptionFromAButtonLeavesShow)
{
    prepare();
    ASSERT_EQ(customize->AddPushButton(5, Controls::text("Fail").c_str()), S_OK);
    sink->on["OnButtonClicked"] = []() -> HRESULT { throw std::runtime_error("no"); };
    EXPECT_THROW(show([](ShellUser& user) { user.clickButton(5, QStringLiteral("Fail")); }), std::runtime_error);
    sink->on.clear();
    EXPECT_EQ(show([](ShellUser& user) { user.pressCancel(); }), cancelled);
}

TEST_P(ShellContract, aCheckButtonStartsAsGivenAndFollowsTheUser)
{
    prepare();
    ASSERT_EQ(customize->AddCheckButton(3, Controls::text("Keep").c_str(), TRUE), S_OK);
    ASSERT_EQ(customize->AddCheckButton(4, Controls::text("Compress").c_str(), FALSE), S_OK);
    show([](ShellUser& user) {
        user.toggleCheck(3, QStringLiteral("Keep"));
        user.toggleCheck(4, QStringLiteral("Compress"));
        user.pressCancel();
    });
    EXPECT_EQ(sink->count("OnCheckButtonToggled 3 0"), 1);
    EXPECT_EQ(sink->count("OnCheckButtonToggled 4 1"), 1);
    BOOL checked = TRUE;
    EXPECT_EQ(customize->GetCheckButtonState(3, &checked), S_OK);
    EXPECT_EQ(checked, FALSE);
}

TEST_P(ShellContract, settingACheckButtonTellsNobody)
{
    prepare();
    ASSERT_EQ(customize->AddCheckButton(3, Controls::text("Keep").c_str(), FALSE), S_OK);
    show([&](ShellUser& user) {
        EXPECT_EQ(customize->SetCheckButtonState(3, TRUE), S_OK);
        user.pressCancel();
    });
    BOOL checked = FALSE;
    EXPECT_EQ(customize->GetCheckButtonState(3, &checked), S_OK);
    EXPECT_EQ(checked, TRUE);
    EXPECT_EQ(sink->count("OnCheckButtonToggled 3 1"), 0);
}

TEST_P(ShellContract, controlsStartEnabledAndVisible)
{
    prepare();
    ASSERT_EQ(customize->AddPushButton(1, Controls::text("Button").c_str()), S_OK);
    EXPECT_EQ(stateOf(*customize, 1), CDCS_ENABLEDVISIBLE);
}

TEST_P(ShellContract, readsBackTheStateOfAControlBeforeDuringAndAfterARun)
{
    prepare();
    ASSERT_EQ(customize->AddPushButton(1, Controls::text("Button").c_str()), S_OK);
    EXPECT_EQ(customize->SetControlState(1, CDCS_VISIBLE), S_OK);
    EXPECT_EQ(stateOf(*customize, 1), CDCS_VISIBLE);
    show([&](ShellUser& user) {
        EXPECT_EQ(stateOf(*customize, 1), CDCS_VISIBLE);
        EXPECT_EQ(customize->SetControlState(1, CDCS_ENABLED), S_OK);
        user.pressCancel();
    });
    EXPECT_EQ(stateOf(*customize, 1), CDCS_ENABLED);
}

TEST_P(ShellContract, refusesControlsThatAreNotThere)
{
    prepare();
    CDCONTROLSTATEF state = CDCS_INACTIVE;
    DWORD item = 0;
    EXPECT_TRUE(FAILED(customize->GetControlState(9, &state)));
    EXPECT_TRUE(FAILED(customize->SetControlState(9, CDCS_VISIBLE)));
    EXPECT_TRUE(FAILED(customize->GetControlItemState(9, 1, &state)));
    EXPECT_TRUE(FAILED(customize->AddControlItem(9, 1, Controls::text("x").c_str())));
    EXPECT_TRUE(FAILED(customize->GetSelectedControlItem(9, &item)));
}

TEST_P(ShellContract, refusesAnIdentifierThatIsTaken)
{
    prepare();
    ASSERT_EQ(customize->AddPushButton(1, Controls::text("One").c_str()), S_OK);
    EXPECT_TRUE(FAILED(customize->AddPushButton(1, Controls::text("Two").c_str())));
    EXPECT_TRUE(FAILED(customize->AddCheckButton(1, Controls::text("Two").c_str(), FALSE)));
}

TEST_P(ShellContract, hasOneDropDown)
{
    prepare();
    EXPECT_EQ(customize->EnableOpenDropDown(0), S_OK);
    EXPECT_TRUE(FAILED(customize->EnableOpenDropDown(1)));
}

class AcceptMenu
{
public:
    explicit AcceptMenu(IFileDialogCustomize& customize) : m_customize(customize)
    {
        EXPECT_EQ(customize.EnableOpenDropDown(0), S_OK);
        for (const auto& [id, label] : {std::pair(10u, "Open"), {11u, "Open read-only"}, {12u, "Open a copy"}}) {
            EXPECT_EQ(customize.AddControlItem(0, id, Controls::text(label).c_str()), S_OK);
        }
    }

    /** 0 when there is none. */
    DWORD selected()
    {
        DWORD item = 0;
        return SUCCEEDED(m_customize.GetSelectedControlItem(0, &item)) ? item : 0;
    }

private:
    IFileDialogCustomize& m_customize;
};

TEST_P(ShellContract, pickingAnAcceptItemSelectsItAndAccepts)
{
    prepare();
    AcceptMenu menu(*customize);
    setFileName(QStringLiteral("a.txt"));
    const HRESULT hr = show([](ShellUser& user) { user.pickAcceptItem(0, 11, QStringLiteral("Open read-only")); });
    EXPECT_EQ(hr, S_OK);
    EXPECT_EQ(sink->count("OnItemSelected 0 11"), 1);
    EXPECT_EQ(menu.selected(), 11u);
    EXPECT_EQ(result(), path(QStringLiteral("a.txt")));
}

TEST_P(ShellContract, theAcceptButtonItselfMeansTheFirstItemThatIsEnabled)
{
    prepare();
    AcceptMenu menu(*customize);
    setFileName(QStringLiteral("a.txt"));
    ASSERT_EQ(show([](ShellUser& user) { user.pressAccept(); }), S_OK);
    EXPECT_EQ(menu.selected(), 10u);
    EXPECT_EQ(customize->SetControlItemState(0, 10, CDCS_VISIBLE), S_OK);
    EXPECT_EQ(menu.selected(), 11u);
}

TEST_P(ShellContract, aNewRunForgetsThePickedItem)
{
    prepare();
    AcceptMenu menu(*customize);
    setFileName(QStringLiteral("a.txt"));
    show([](ShellUser& user) { user.pickAcceptItem(0, 12, QStringLiteral("Open a copy")); });
    ASSERT_EQ(menu.selected(), 12u);
    show([](ShellUser& user) { user.pressCancel(); });
    EXPECT_EQ(menu.selected(), 10u);
}

TEST_P(ShellContract, anEmptyDropDownHasNoSelection)
{
    prepare();
    AcceptMenu menu(*customize);
    for (const DWORD item : {10u, 11u, 12u}) {
        EXPECT_EQ(customize->RemoveControlItem(0, item), S_OK);
    }
    EXPECT_EQ(menu.selected(), 0u);
    EXPECT_TRUE(FAILED(customize->RemoveControlItem(0, 10)));
}

TEST_P(ShellContract, itemsMayBeAddedAndRemovedWhenOneIsPicked)
{
    prepare();
    AcceptMenu menu(*customize);
    setFileName(QStringLiteral("a.txt"));
    sink->on["OnItemSelected"] = [&] {
        EXPECT_EQ(customize->RemoveControlItem(0, 11), S_OK);
        EXPECT_EQ(customize->AddControlItem(0, 13, Controls::text("More").c_str()), S_OK);
        return S_OK;
    };
    EXPECT_EQ(show([](ShellUser& user) { user.pickAcceptItem(0, 11, QStringLiteral("Open read-only")); }), S_OK);
    EXPECT_EQ(menu.selected(), 10u);
}

TEST_P(ShellContract, readsBackTheStateOfAnItem)
{
    prepare();
    AcceptMenu menu(*customize);
    CDCONTROLSTATEF state = CDCS_INACTIVE;
    EXPECT_EQ(customize->GetControlItemState(0, 10, &state), S_OK);
    EXPECT_EQ(state, CDCS_ENABLEDVISIBLE);
    EXPECT_EQ(customize->SetControlItemState(0, 10, CDCS_INACTIVE), S_OK);
    EXPECT_EQ(customize->GetControlItemState(0, 10, &state), S_OK);
    EXPECT_EQ(state, CDCS_INACTIVE);
}

} // namespace

} // namespace morvane::test
