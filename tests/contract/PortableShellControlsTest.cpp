// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// Calls for custom controls that do not exist or are of another kind.
#include "contract/PortableShells.h"

namespace morvane::test {

namespace {

enum : DWORD
{
    DropDown = 0,
    Button = 5,
    Check = 6,
    Missing = 9,
    First = 10,
    Second = 11,
    NoItem = 19
};

class PortableShellControls : public PortableShellContract
{
protected:
    void prepareControls()
    {
        prepare();
        ASSERT_EQ(customize->EnableOpenDropDown(DropDown), S_OK);
        ASSERT_EQ(customize->AddControlItem(DropDown, First, text("First").c_str()), S_OK);
        ASSERT_EQ(customize->AddControlItem(DropDown, Second, text("Second").c_str()), S_OK);
        ASSERT_EQ(customize->AddPushButton(Button, text("Button").c_str()), S_OK);
        ASSERT_EQ(customize->AddCheckButton(Check, text("Check").c_str(), TRUE), S_OK);
    }

    DWORD selected()
    {
        DWORD item = 77;
        return customize->GetSelectedControlItem(DropDown, &item) == S_OK ? item : 0;
    }

    /** Everything that can be read about the controls. */
    std::vector<DWORD> everything()
    {
        std::vector<DWORD> read;
        for (const DWORD control : {DropDown, Button, Check}) {
            CDCONTROLSTATEF state = CDCS_INACTIVE;
            EXPECT_EQ(customize->GetControlState(control, &state), S_OK);
            read.push_back(state);
        }
        for (const DWORD item : {First, Second}) {
            CDCONTROLSTATEF state = CDCS_INACTIVE;
            EXPECT_EQ(customize->GetControlItemState(DropDown, item, &state), S_OK);
            read.push_back(state);
        }
        BOOL checked = FALSE;
        EXPECT_EQ(customize->GetCheckButtonState(Check, &checked), S_OK);
        read.push_back(static_cast<DWORD>(checked));
        read.push_back(selected());
        return read;
    }

    struct Call
    {
        const char* name;
        std::function<HRESULT()> make;
    };
    void expectRefused(const std::vector<Call>& calls)
    {
        const auto before = everything();
        for (const Call& call : calls) {
            EXPECT_EQ(call.make(), E_INVALIDARG) << call.name;
            EXPECT_EQ(everything(), before) << call.name;
        }
    }

    CDCONTROLSTATEF readState = CDCS_INACTIVE;
    BOOL readTick = FALSE;
    DWORD readItem = 77;
};

TEST_P(PortableShellControls, refuseWhatIsMeantForOnesThatAreMissing)
{
    prepareControls();
    expectRefused({{"SetControlLabel", [&] { return customize->SetControlLabel(Missing, text("x").c_str()); }},
        {"GetControlState", [&] { return customize->GetControlState(Missing, &readState); }},
        {"SetControlState", [&] { return customize->SetControlState(Missing, CDCS_INACTIVE); }},
        {"GetCheckButtonState", [&] { return customize->GetCheckButtonState(Missing, &readTick); }},
        {"SetCheckButtonState", [&] { return customize->SetCheckButtonState(Missing, FALSE); }},
        {"AddControlItem", [&] { return customize->AddControlItem(Missing, First, text("x").c_str()); }},
        {"RemoveControlItem", [&] { return customize->RemoveControlItem(Missing, First); }},
        {"RemoveAllControlItems", [&] { return customize->RemoveAllControlItems(Missing); }},
        {"GetControlItemState", [&] { return customize->GetControlItemState(Missing, First, &readState); }},
        {"SetControlItemState", [&] { return customize->SetControlItemState(Missing, First, CDCS_INACTIVE); }},
        {"GetSelectedControlItem", [&] { return customize->GetSelectedControlItem(Missing, &readItem); }},
        {"SetSelectedControlItem", [&] { return customize->SetSelectedControlItem(Missing, First); }},
        {"MakeProminent", [&] { return customize->MakeProminent(Missing); }},
        {"SetControlItemText", [&] { return customize->SetControlItemText(Missing, First, text("x").c_str()); }}});
    EXPECT_EQ(readItem, 77u);
}

TEST_P(PortableShellControls, refuseWhatIsMeantForAnotherKind)
{
    prepareControls();
    expectRefused({{"label of a drop-down", [&] { return customize->SetControlLabel(DropDown, text("x").c_str()); }},
        {"prominent drop-down", [&] { return customize->MakeProminent(DropDown); }},
        {"tick of a button", [&] { return customize->GetCheckButtonState(Button, &readTick); }},
        {"setting the tick of a button", [&] { return customize->SetCheckButtonState(Button, TRUE); }},
        {"tick of a drop-down", [&] { return customize->SetCheckButtonState(DropDown, TRUE); }},
        {"item of a button", [&] { return customize->AddControlItem(Button, First, text("x").c_str()); }},
        {"removing an item of a button", [&] { return customize->RemoveControlItem(Button, First); }},
        {"removing all items of a button", [&] { return customize->RemoveAllControlItems(Button); }},
        {"selection of a button", [&] { return customize->GetSelectedControlItem(Button, &readItem); }},
        {"selecting in a button", [&] { return customize->SetSelectedControlItem(Button, First); }},
        {"text of an item of a check button",
            [&] { return customize->SetControlItemText(Check, First, text("x").c_str()); }}});
}

TEST_P(PortableShellControls, refuseItemsThatAreMissingOrTaken)
{
    prepareControls();
    expectRefused({{"AddControlItem",
                       [&] { return customize->AddControlItem(DropDown, First, text("again").c_str()); }},
        {"RemoveControlItem", [&] { return customize->RemoveControlItem(DropDown, NoItem); }},
        {"GetControlItemState", [&] { return customize->GetControlItemState(DropDown, NoItem, &readState); }},
        {"SetControlItemState", [&] { return customize->SetControlItemState(DropDown, NoItem, CDCS_INACTIVE); }},
        {"SetSelectedControlItem", [&] { return customize->SetSelectedControlItem(DropDown, NoItem); }},
        {"SetControlItemText", [&] { return customize->SetControlItemText(DropDown, NoItem, text("x").c_str()); }}});
}

TEST_P(PortableShellControls, refuseToBeReadIntoNothing)
{
    prepareControls();
    expectRefused({{"GetControlState", [&] { return customize->GetControlState(Button, nullptr); }},
        {"GetCheckButtonState", [&] { return customize->GetCheckButtonState(Check, nullptr); }},
        {"GetControlItemState", [&] { return customize->GetControlItemState(DropDown, First, nullptr); }},
        {"GetSelectedControlItem", [&] { return customize->GetSelectedControlItem(DropDown, nullptr); }}});
}

TEST_P(PortableShellControls, refuseIdentifiersThatAreTaken)
{
    prepareControls();
    expectRefused({{"AddPushButton", [&] { return customize->AddPushButton(Check, text("x").c_str()); }},
        {"AddCheckButton", [&] { return customize->AddCheckButton(Button, text("x").c_str(), TRUE); }},
        {"AddPushButton", [&] { return customize->AddPushButton(DropDown, text("x").c_str()); }}});
}

TEST_P(PortableShellControls, haveNoDropDownWhoseIdentifierIsTaken)
{
    prepare();
    ASSERT_EQ(customize->AddPushButton(Button, text("Button").c_str()), S_OK);
    EXPECT_EQ(customize->EnableOpenDropDown(Button), E_INVALIDARG);
    EXPECT_EQ(customize->EnableOpenDropDown(DropDown), S_OK) << "there is none yet";
    EXPECT_EQ(customize->EnableOpenDropDown(Missing), E_UNEXPECTED) << "and now there is";
    EXPECT_EQ(customize->GetControlState(Missing, &readState), E_INVALIDARG);
}

TEST_P(PortableShellControls, selectTheItemThatIsSet)
{
    prepareControls();
    EXPECT_EQ(selected(), First);
    ASSERT_EQ(customize->SetSelectedControlItem(DropDown, Second), S_OK);
    EXPECT_EQ(selected(), Second);
    ASSERT_EQ(customize->RemoveControlItem(DropDown, First), S_OK);
    EXPECT_EQ(selected(), Second) << "another item has gone";
    ASSERT_EQ(customize->AddControlItem(DropDown, First, text("First").c_str()), S_OK);
    ASSERT_EQ(customize->RemoveControlItem(DropDown, Second), S_OK);
    EXPECT_EQ(selected(), First) << "the selected one has gone";
}

TEST_P(PortableShellControls, forgetAllItemsAndTheSelectionTogether)
{
    prepareControls();
    ASSERT_EQ(customize->SetSelectedControlItem(DropDown, Second), S_OK);
    ASSERT_EQ(customize->RemoveAllControlItems(DropDown), S_OK);
    EXPECT_EQ(customize->GetSelectedControlItem(DropDown, &readItem), E_FAIL);
    EXPECT_EQ(readItem, 77u);
    ASSERT_EQ(customize->AddControlItem(DropDown, First, text("First").c_str()), S_OK);
    EXPECT_EQ(selected(), First);
}

TEST_P(PortableShellControls, haveNoSelectionAmongItemsThatNobodyCanPick)
{
    prepareControls();
    ASSERT_EQ(customize->SetControlItemState(DropDown, First, CDCS_VISIBLE), S_OK);
    ASSERT_EQ(customize->SetControlItemState(DropDown, Second, CDCS_ENABLED), S_OK);
    EXPECT_EQ(customize->GetSelectedControlItem(DropDown, &readItem), E_FAIL);
}

TEST_P(PortableShellControls, answerToTheirNewLabels)
{
    prepareControls();
    ASSERT_EQ(customize->SetControlLabel(Button, text("Renamed").c_str()), S_OK);
    ASSERT_EQ(customize->SetControlItemText(DropDown, Second, text("Renamed item").c_str()), S_OK);
    ASSERT_EQ(customize->MakeProminent(Button), S_OK);
    ASSERT_EQ(customize->MakeProminent(Check), S_OK);
    setFileName(QStringLiteral("a.txt"));
    const HRESULT hr = show([](ShellUser& user) {
        user.clickButton(Button, QStringLiteral("Renamed"));
        user.pickAcceptItem(DropDown, Second, QStringLiteral("Renamed item"));
    });
    EXPECT_EQ(hr, S_OK);
    EXPECT_EQ(sink->count("OnButtonClicked 5"), 1);
    EXPECT_EQ(selected(), Second);
}

TEST_P(PortableShellControls, countTheReferencesOfTheirDialog)
{
    prepare();
    const ULONG before = dialog->AddRef();
    EXPECT_EQ(customize->AddRef(), before + 1);
    EXPECT_EQ(customize->Release(), before);
    EXPECT_EQ(dialog->Release(), before - 1);
}

TEST_P(PortableShellControls, leaveASinkAloneThatDoesNotHearOfThem)
{
    prepareControls();
    sink->hearsOfControls = false;
    LoggingSink second(shell());
    DWORD secondCookie = 0;
    ASSERT_EQ(dialog->Advise(&second, &secondCookie), S_OK);
    show([](ShellUser& user) {
        user.clickButton(Button, QStringLiteral("Button"));
        user.pressCancel();
    });
    EXPECT_EQ(sink->count("OnButtonClicked 5"), 0);
    EXPECT_EQ(second.count("OnButtonClicked 5"), 1) << "the next one is still told";
    EXPECT_EQ(dialog->Unadvise(secondCookie), S_OK);
}

INSTANTIATE_TEST_SUITE_P(Shells, PortableShellControls, ::testing::ValuesIn(portableShells()), nameOf);

} // namespace

} // namespace morvane::test
