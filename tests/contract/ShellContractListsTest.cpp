// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// Combo boxes, lists of radio buttons, edit boxes, texts, groups and separators.
#include "contract/ShellContract.h"

namespace morvane::test {

namespace {

enum : DWORD
{
    Group = 20,
    List = 21,
    Edit = 22,
    First = 30,
    Second = 31,
    Third = 32
};

ui::ShellString text(const char* utf8)
{
    return ui::toShellString(QString::fromUtf8(utf8));
}

void addEntries(IFileDialogCustomize& customize)
{
    for (const auto& [id, label] :
        {std::pair<DWORD, const char*>(First, "UTF-8"), {Second, "UTF-16"}, {Third, "Latin 1"}}) {
        EXPECT_EQ(customize.AddControlItem(List, id, text(label).c_str()), S_OK);
    }
}

/** 0 when nothing is selected. */
DWORD selected(IFileDialogCustomize& customize)
{
    DWORD item = 0;
    return SUCCEEDED(customize.GetSelectedControlItem(List, &item)) ? item : 0;
}

using Text = std::pair<HRESULT, QString>;

Text editText(ui::Shell& shell, IFileDialogCustomize& customize)
{
    WCHAR* read = nullptr;
    const HRESULT result = customize.GetEditBoxText(Edit, &read);
    const QString shown = ui::toQString(read);
    shell.coTaskMemFree(read);
    return {result, shown};
}

TEST_P(ShellContract, choosingFromAComboBoxSelectsAndTells)
{
    prepare();
    ASSERT_EQ(customize->AddComboBox(List), S_OK);
    addEntries(*customize);
    ASSERT_EQ(customize->SetSelectedControlItem(List, First), S_OK);
    DWORD during = 0;
    show([&](ShellUser& user) {
        EXPECT_EQ(selected(*customize), First);
        user.chooseEntry(List, Second, 1);
        during = selected(*customize);
        user.pressCancel();
    });
    EXPECT_EQ(during, Second);
    EXPECT_EQ(selected(*customize), Second) << "after the run";
    EXPECT_EQ(sink->count("OnItemSelected 21 31"), 1);
}

TEST_P(ShellContract, choosingARadioButtonSelectsAndTells)
{
    prepare();
    ASSERT_EQ(customize->AddRadioButtonList(List), S_OK);
    addEntries(*customize);
    ASSERT_EQ(customize->SetSelectedControlItem(List, First), S_OK);
    DWORD during = 0;
    show([&](ShellUser& user) {
        user.chooseRadio(List, Third, QStringLiteral("Latin 1"));
        during = selected(*customize);
        user.pressCancel();
    });
    EXPECT_EQ(during, Third);
    EXPECT_EQ(sink->count("OnItemSelected 21 32"), 1);
}

TEST_P(ShellContract, selectingAnEntryOfAListTellsNobody)
{
    prepare();
    ASSERT_EQ(customize->AddComboBox(List), S_OK);
    addEntries(*customize);
    show([&](ShellUser& user) {
        EXPECT_EQ(customize->SetSelectedControlItem(List, Third), S_OK);
        EXPECT_EQ(selected(*customize), Third);
        user.pressCancel();
    });
    EXPECT_EQ(sink->count("OnItemSelected 21 32"), 0);
}

TEST_P(ShellContract, aListSelectsNothingByItself)
{
    prepare();
    ASSERT_EQ(customize->AddComboBox(List), S_OK);
    addEntries(*customize);
    EXPECT_EQ(selected(*customize), 0u);
}

TEST_P(ShellContract, aSelectionMayBePutBackWhenItIsTold)
{
    prepare();
    ASSERT_EQ(customize->AddComboBox(List), S_OK);
    addEntries(*customize);
    ASSERT_EQ(customize->SetSelectedControlItem(List, First), S_OK);
    sink->on["OnItemSelected"] = [&] { return customize->SetSelectedControlItem(List, First); };
    DWORD during = 0;
    show([&](ShellUser& user) {
        user.chooseEntry(List, Second, 1);
        during = selected(*customize);
        user.pressCancel();
    });
    EXPECT_EQ(during, First);
}

TEST_P(ShellContract, anEditBoxHasTheTextThatIsSetAndTheOneThatIsTyped)
{
    prepare();
    ASSERT_EQ(customize->AddEditBox(Edit, text("before").c_str()), S_OK);
    Text given;
    Text set;
    Text typed;
    show([&](ShellUser& user) {
        given = editText(shell(), *customize);
        EXPECT_EQ(customize->SetEditBoxText(Edit, text("by the program").c_str()), S_OK);
        set = editText(shell(), *customize);
        user.typeText(Edit, QStringLiteral("typed"));
        typed = editText(shell(), *customize);
        user.pressCancel();
    });
    EXPECT_EQ(given, Text(S_OK, QStringLiteral("before")));
    EXPECT_EQ(set, Text(S_OK, QStringLiteral("by the program")));
    EXPECT_EQ(typed, Text(S_OK, QStringLiteral("typed")));
}

TEST_P(ShellContract, anEmptyEditBoxHasAnEmptyText)
{
    prepare();
    ASSERT_EQ(customize->AddEditBox(Edit, text("").c_str()), S_OK);
    Text given;
    show([&](ShellUser& user) {
        given = editText(shell(), *customize);
        user.pressCancel();
    });
    EXPECT_EQ(given, Text(S_OK, QString()));
}

TEST_P(ShellContract, theTextOfAnEditBoxIsThereWhenTheUserAccepts)
{
    prepare();
    ASSERT_EQ(customize->AddEditBox(Edit, text("").c_str()), S_OK);
    setFileName(QStringLiteral("a.txt"));
    Text atTheEnd;
    sink->on["OnFileOk"] = [&] {
        atTheEnd = editText(shell(), *customize);
        return S_OK;
    };
    EXPECT_EQ(show([](ShellUser& user) {
        user.typeText(Edit, QStringLiteral("night run"));
        user.pressAccept();
    }),
        S_OK);
    EXPECT_EQ(atTheEnd, Text(S_OK, QStringLiteral("night run")));
}

TEST_P(ShellContract, entriesOfAListHaveAStateEach)
{
    prepare();
    ASSERT_EQ(customize->AddRadioButtonList(List), S_OK);
    addEntries(*customize);
    CDCONTROLSTATEF state = CDCS_INACTIVE;
    EXPECT_EQ(customize->GetControlItemState(List, Second, &state), S_OK);
    EXPECT_EQ(state, CDCS_ENABLEDVISIBLE);
    EXPECT_EQ(customize->SetControlItemState(List, Second, CDCS_VISIBLE), S_OK);
    EXPECT_EQ(customize->GetControlItemState(List, Second, &state), S_OK);
    EXPECT_EQ(state, CDCS_VISIBLE);
    EXPECT_EQ(customize->GetControlItemState(List, First, &state), S_OK);
    EXPECT_EQ(state, CDCS_ENABLEDVISIBLE);
}

TEST_P(ShellContract, groupsTextsAndSeparatorsHaveAState)
{
    prepare();
    constexpr DWORD textId = 40;
    constexpr DWORD separatorId = 41;
    ASSERT_EQ(customize->StartVisualGroup(Group, text("Options").c_str()), S_OK);
    ASSERT_EQ(customize->AddText(textId, text("Some words").c_str()), S_OK);
    ASSERT_EQ(customize->AddEditBox(Edit, text("x").c_str()), S_OK);
    ASSERT_EQ(customize->EndVisualGroup(), S_OK);
    ASSERT_EQ(customize->AddSeparator(separatorId), S_OK);
    show([&](ShellUser& user) {
        for (const DWORD control : {DWORD(Group), textId, DWORD(Edit), separatorId}) {
            CDCONTROLSTATEF state = CDCS_INACTIVE;
            EXPECT_EQ(customize->GetControlState(control, &state), S_OK) << control;
            EXPECT_EQ(state, CDCS_ENABLEDVISIBLE) << control;
            EXPECT_EQ(customize->SetControlState(control, CDCS_ENABLED), S_OK) << control;
            EXPECT_EQ(customize->GetControlState(control, &state), S_OK) << control;
            EXPECT_EQ(state, CDCS_ENABLED) << control;
        }
        user.pressCancel();
    });
}

TEST_P(ShellContract, groupsAreNotNested)
{
    prepare();
    ASSERT_EQ(customize->StartVisualGroup(Group, text("Options").c_str()), S_OK);
    EXPECT_TRUE(FAILED(customize->StartVisualGroup(Group + 10, text("Inner").c_str())));
    EXPECT_EQ(customize->EndVisualGroup(), S_OK);
    EXPECT_EQ(customize->StartVisualGroup(Group + 10, text("Next").c_str()), S_OK);
}

TEST_P(ShellContract, takesLabelsForTheAcceptButtonAndTheNameField)
{
    prepare();
    EXPECT_EQ(dialog->SetOkButtonLabel(text("Import").c_str()), S_OK);
    EXPECT_EQ(dialog->SetFileNameLabel(text("Measurement:").c_str()), S_OK);
    EXPECT_EQ(show([](ShellUser& user) { user.pressCancel(); }), cancelled);
}

TEST_P(ShellContract, keepsTheFolderUnderAClientIdentifier)
{
    const GUID client = {0x7b1f0a55, 0x31d2, 0x4c0e, {0x9a, 0x61, 0x05, 0x7d, 0x2c, 0x40, 0x88, 0x13}};
    const QString inner = path(QStringLiteral("inner"));
    makeFile(QStringLiteral("inner/deep.txt"));
    for (const bool isFirst : {true, false}) {
        dialog = makeDialog();
        EXPECT_EQ(dialog->SetClientGuid(client), S_OK);
        if (isFirst) {
            EXPECT_EQ(dialog->ClearClientData(), S_OK);
        }
        EXPECT_EQ(dialog->SetDefaultFolder(itemFor(isFirst ? inner : folder.path()).get()), S_OK);
        setFileName(QStringLiteral("deep.txt"));
        ui::ComPtr<IShellItem> opened;
        EXPECT_EQ(show([&](ShellUser& user) {
            EXPECT_EQ(dialog->GetFolder(opened.put()), S_OK);
            user.pressAccept();
        }),
            S_OK);
        EXPECT_EQ(pathOf(opened.get()), inner) << (isFirst ? "the default" : "the folder of the dialog before");
    }
    EXPECT_EQ(dialog->ClearClientData(), S_OK);
}

TEST_P(ShellContract, takesPlacesBeforeItRuns)
{
    prepare();
    EXPECT_EQ(dialog->AddPlace(itemFor(folder.path()).get(), FDAP_TOP), S_OK);
    EXPECT_EQ(dialog->AddPlace(itemFor(path(QStringLiteral("inner"))).get(), FDAP_BOTTOM), S_OK);
    EXPECT_EQ(show([](ShellUser& user) { user.pressCancel(); }), cancelled);
}

TEST_P(ShellContract, showsThePlacesThatWereAdded)
{
    prepare();
    const QString inner = path(QStringLiteral("inner"));
    EXPECT_EQ(dialog->AddPlace(itemFor(inner).get(), FDAP_TOP), S_OK);
    EXPECT_EQ(dialog->AddPlace(itemFor(folder.path()).get(), FDAP_BOTTOM), S_OK);
    QStringList shown;
    show([&](ShellUser& user) {
        shown = user.places();
        user.pressCancel();
    });
    EXPECT_EQ(shown.value(0), inner);
    EXPECT_EQ(shown.value(shown.size() - 1), folder.path());
}

} // namespace

} // namespace morvane::test
