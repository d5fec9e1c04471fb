// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// Every call of the recording Shell can be made to fail; a failed call has no effect and leaks nothing.
#include "testing/RecordingControls.h"
#include "testing/RecordingDialog.h"
#include "testing/RecordingShell.h"

#include "contract/LoggingSink.h"
#include "ui/qt/dialogs/shell/ShellText_p.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include <cstdlib>

namespace morvane::test {

namespace {

using ::testing::Contains;
using ::testing::HasSubstr;
using ::testing::Not;

/** A dialog with a control of each kind, an item and an array. */
class RecordingShellFailures : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_EQ(shell.coCreateInstance(
                      CLSID_FileOpenDialog, nullptr, CLSCTX_INPROC_SERVER, IID_IFileOpenDialog, dialog.putVoid()),
            S_OK);
        item = itemFor(folder.path());
        customize = dialog.query<IFileDialogCustomize>();
        ASSERT_EQ(customize->EnableOpenDropDown(0), S_OK);
        ASSERT_EQ(customize->AddControlItem(0, 10, text("Item").c_str()), S_OK);
        ASSERT_EQ(customize->AddCheckButton(1, text("Check").c_str(), TRUE), S_OK);
        ASSERT_EQ(dialog->SetFileName(text("name").c_str()), S_OK);
        ASSERT_EQ(dialog->SetFolder(item.get()), S_OK);
        shell.script.showResult = S_OK;
        ASSERT_EQ(dialog->Show(nullptr), S_OK);
        ASSERT_EQ(dialog->GetResults(items.put()), S_OK);
    }

    static ui::ShellString text(const char* utf8) { return ui::toShellString(QString::fromUtf8(utf8)); }
    ui::ComPtr<IShellItem> itemFor(const QString& path)
    {
        ui::ComPtr<IShellItem> made;
        EXPECT_EQ(shell.createItemFromParsingName(ui::toShellString(QDir::toNativeSeparators(path)).c_str(), nullptr,
                      IID_IShellItem, made.putVoid()),
            S_OK);
        return made;
    }

    struct Call
    {
        const char* name;
        std::function<HRESULT()> make;
    };
    /** Makes each call fail by its name and then by its number. */
    void expectFailures(const std::vector<Call>& calls)
    {
        for (const Call& call : calls) {
            shell.failCalls(call.name, E_ACCESSDENIED);
            EXPECT_EQ(call.make(), E_ACCESSDENIED) << call.name;
            shell.failNothing();
            shell.clearCalls();
            shell.failCall(1, E_ABORT);
            EXPECT_EQ(call.make(), E_ABORT) << call.name;
            EXPECT_THAT(shell.callNames(), ::testing::ElementsAre(call.name));
            shell.failNothing();
        }
    }
    /** A call that returns an object or a string; a failed call must return none. */
    template <typename Result>
    static std::function<HRESULT()> giving(std::function<HRESULT(Result**)> call)
    {
        return [call = std::move(call)] {
            auto* result = reinterpret_cast<Result*>(0x10);
            const HRESULT hr = call(&result);
            EXPECT_EQ(result, nullptr);
            return hr;
        };
    }

    QTemporaryDir folder;
    RecordingShell shell;
    ui::ComPtr<IFileOpenDialog> dialog;
    ui::ComPtr<IFileDialogCustomize> customize;
    ui::ComPtr<IShellItem> item;
    ui::ComPtr<IShellItemArray> items;
};

TEST_F(RecordingShellFailures, reachTheCallsOfTheShellItself)
{
    const QITAB table[] = {ui::interfaceRow<IFileDialog, RecordingDialog>(), {}};
    const auto name = text("/");
    expectFailures({{"CoInitializeEx", [&] { return shell.coInitializeEx(nullptr, COINIT_APARTMENTTHREADED); }},
        {"CoCreateInstance", giving<void>([&](void** object) {
             return shell.coCreateInstance(CLSID_FileSaveDialog, nullptr, 1, IID_IFileDialog, object);
         })},
        {"SHCreateItemFromParsingName", giving<void>([&](void** object) {
             return shell.createItemFromParsingName(name.c_str(), nullptr, IID_IShellItem, object);
         })},
        {"QISearch", giving<void>([&](void** object) {
             return shell.qiSearch(dialog.get(), table, IID_IFileDialog, object);
         })}});
    EXPECT_EQ(shell.apartments(), 0);
    EXPECT_EQ(shell.liveObjects(), 3);
}

TEST_F(RecordingShellFailures, reachWhatADialogIsAskedFor)
{
    UINT index = 0;
    FILEOPENDIALOGOPTIONS options = 0;
    expectFailures({{"IFileDialog::QueryInterface",
                        giving<void>([&](void** object) { return dialog->QueryInterface(IID_IUnknown, object); })},
        {"IFileDialog::GetFileTypeIndex", [&] { return dialog->GetFileTypeIndex(&index); }},
        {"IFileDialog::GetOptions", [&] { return dialog->GetOptions(&options); }},
        {"IFileDialog::GetFolder",
            giving<IShellItem>([&](IShellItem** folderItem) { return dialog->GetFolder(folderItem); })},
        {"IFileDialog::GetCurrentSelection",
            giving<IShellItem>([&](IShellItem** selected) { return dialog->GetCurrentSelection(selected); })},
        {"IFileDialog::GetFileName", giving<WCHAR>([&](WCHAR** name) { return dialog->GetFileName(name); })},
        {"IFileDialog::GetResult", giving<IShellItem>([&](IShellItem** result) { return dialog->GetResult(result); })},
        {"IFileDialog::GetResults",
            giving<IShellItemArray>([&](IShellItemArray** results) { return dialog->GetResults(results); })},
        {"IFileDialog::GetSelectedItems",
            giving<IShellItemArray>([&](IShellItemArray** selected) { return dialog->GetSelectedItems(selected); })}});
    EXPECT_EQ(index, 0u);
    EXPECT_EQ(options, 0u);
}

TEST_F(RecordingShellFailures, reachWhatADialogIsTold)
{
    const auto other = text("other");
    const COMDLG_FILTERSPEC type{other.c_str(), other.c_str()};
    const auto parent = itemFor(QDir::rootPath());
    shell.script.duringShow = [](RecordingDialog&) { ADD_FAILURE() << "it is shown"; };
    expectFailures({{"IFileDialog::Show", [&] { return dialog->Show(nullptr); }},
        {"IFileDialog::SetFileTypes", [&] { return dialog->SetFileTypes(1, &type); }},
        {"IFileDialog::SetFileTypeIndex", [&] { return dialog->SetFileTypeIndex(1); }},
        {"IFileDialog::Unadvise", [&] { return dialog->Unadvise(1); }},
        {"IFileDialog::SetOptions", [&] { return dialog->SetOptions(FOS_PICKFOLDERS); }},
        {"IFileDialog::SetDefaultFolder", [&] { return dialog->SetDefaultFolder(parent.get()); }},
        {"IFileDialog::SetFolder", [&] { return dialog->SetFolder(parent.get()); }},
        {"IFileDialog::SetFileName", [&] { return dialog->SetFileName(other.c_str()); }},
        {"IFileDialog::SetTitle", [&] { return dialog->SetTitle(other.c_str()); }},
        {"IFileDialog::SetOkButtonLabel", [&] { return dialog->SetOkButtonLabel(other.c_str()); }},
        {"IFileDialog::SetFileNameLabel", [&] { return dialog->SetFileNameLabel(other.c_str()); }},
        {"IFileDialog::AddPlace", [&] { return dialog->AddPlace(parent.get(), FDAP_TOP); }},
        {"IFileDialog::SetDefaultExtension", [&] { return dialog->SetDefaultExtension(other.c_str()); }},
        {"IFileDialog::Close", [&] { return dialog->Close(E_FAIL); }},
        {"IFileDialog::SetClientGuid", [&] { return dialog->SetClientGuid(IID_IUnknown); }},
        {"IFileDialog::ClearClientData", [&] { return dialog->ClearClientData(); }},
        {"IFileDialog::SetFilter", [&] { return dialog->SetFilter(nullptr); }}});
    const RecordingDialog& recorded = *shell.dialog();
    EXPECT_TRUE(recorded.types().empty());
    EXPECT_EQ(recorded.folder(), folder.path());
    EXPECT_EQ(recorded.fileName(), QStringLiteral("name"));
    EXPECT_EQ(recorded.title(), QString());
    FILEOPENDIALOGOPTIONS options = 0;
    EXPECT_EQ(dialog->GetOptions(&options), S_OK);
    EXPECT_EQ(options, shell.script.openOptions);
}

TEST_F(RecordingShellFailures, reachTheCallsOfControls)
{
    const auto label = text("Other");
    expectFailures({{"IFileDialogCustomize::EnableOpenDropDown", [&] { return customize->EnableOpenDropDown(7); }},
        {"IFileDialogCustomize::AddMenu", [&] { return customize->AddMenu(7, label.c_str()); }},
        {"IFileDialogCustomize::AddPushButton", [&] { return customize->AddPushButton(7, label.c_str()); }},
        {"IFileDialogCustomize::AddComboBox", [&] { return customize->AddComboBox(7); }},
        {"IFileDialogCustomize::AddRadioButtonList", [&] { return customize->AddRadioButtonList(7); }},
        {"IFileDialogCustomize::AddCheckButton", [&] { return customize->AddCheckButton(7, label.c_str(), TRUE); }},
        {"IFileDialogCustomize::AddEditBox", [&] { return customize->AddEditBox(7, label.c_str()); }},
        {"IFileDialogCustomize::AddSeparator", [&] { return customize->AddSeparator(7); }},
        {"IFileDialogCustomize::AddText", [&] { return customize->AddText(7, label.c_str()); }},
        {"IFileDialogCustomize::SetControlLabel", [&] { return customize->SetControlLabel(1, label.c_str()); }},
        {"IFileDialogCustomize::SetControlState", [&] { return customize->SetControlState(1, CDCS_INACTIVE); }},
        {"IFileDialogCustomize::GetEditBoxText",
            giving<WCHAR>([&](WCHAR** read) { return customize->GetEditBoxText(1, read); })},
        {"IFileDialogCustomize::SetEditBoxText", [&] { return customize->SetEditBoxText(1, label.c_str()); }},
        {"IFileDialogCustomize::SetCheckButtonState", [&] { return customize->SetCheckButtonState(1, FALSE); }},
        {"IFileDialogCustomize::StartVisualGroup", [&] { return customize->StartVisualGroup(7, label.c_str()); }},
        {"IFileDialogCustomize::EndVisualGroup", [&] { return customize->EndVisualGroup(); }},
        {"IFileDialogCustomize::MakeProminent", [&] { return customize->MakeProminent(1); }}});
    const RecordingControls& controls = shell.dialog()->controls();
    EXPECT_EQ(controls.state(7), -1) << "nothing was added";
    EXPECT_EQ(controls.idOf(QStringLiteral("Check")), 1u);
    EXPECT_EQ(controls.state(1), CDCS_ENABLEDVISIBLE);
    EXPECT_TRUE(controls.isChecked(1));
}

TEST_F(RecordingShellFailures, reachTheCallsOfItemsOfControls)
{
    const auto label = text("Other");
    CDCONTROLSTATEF state = CDCS_INACTIVE;
    BOOL checked = FALSE;
    DWORD selected = 77;
    expectFailures({{"IFileDialogCustomize::GetControlState", [&] { return customize->GetControlState(1, &state); }},
        {"IFileDialogCustomize::GetCheckButtonState", [&] { return customize->GetCheckButtonState(1, &checked); }},
        {"IFileDialogCustomize::AddControlItem", [&] { return customize->AddControlItem(0, 11, label.c_str()); }},
        {"IFileDialogCustomize::RemoveControlItem", [&] { return customize->RemoveControlItem(0, 10); }},
        {"IFileDialogCustomize::RemoveAllControlItems", [&] { return customize->RemoveAllControlItems(0); }},
        {"IFileDialogCustomize::GetControlItemState", [&] { return customize->GetControlItemState(0, 10, &state); }},
        {"IFileDialogCustomize::SetControlItemState",
            [&] { return customize->SetControlItemState(0, 10, CDCS_INACTIVE); }},
        {"IFileDialogCustomize::GetSelectedControlItem",
            [&] { return customize->GetSelectedControlItem(0, &selected); }},
        {"IFileDialogCustomize::SetSelectedControlItem", [&] { return customize->SetSelectedControlItem(0, 10); }},
        {"IFileDialogCustomize::SetControlItemText",
            [&] { return customize->SetControlItemText(0, 10, label.c_str()); }}});
    EXPECT_EQ(state, CDCS_INACTIVE);
    EXPECT_EQ(checked, FALSE);
    EXPECT_EQ(selected, 77u);
    const RecordingControls& controls = shell.dialog()->controls();
    EXPECT_EQ(controls.itemOf(QStringLiteral("Item")), std::make_pair(DWORD(0), DWORD(10)));
    EXPECT_EQ(controls.itemState(0, 10), CDCS_ENABLEDVISIBLE);
    EXPECT_EQ(controls.itemOf(QStringLiteral("Other")), std::nullopt);
}

TEST_F(RecordingShellFailures, reachTheCallsOfItems)
{
    SFGAOF attributes = SFGAO_FOLDER;
    expectFailures({{"IShellItem::QueryInterface",
                        giving<void>([&](void** object) { return item->QueryInterface(IID_IShellItem, object); })},
        {"IShellItem::BindToHandler", giving<void>([&](void** object) {
             return item->BindToHandler(nullptr, IID_IUnknown, IID_IUnknown, object);
         })},
        {"IShellItem::GetParent", giving<IShellItem>([&](IShellItem** parent) { return item->GetParent(parent); })},
        {"IShellItem::GetDisplayName",
            giving<WCHAR>([&](WCHAR** name) { return item->GetDisplayName(SIGDN_FILESYSPATH, name); })},
        {"IShellItem::GetAttributes", [&] { return item->GetAttributes(SFGAO_FOLDER, &attributes); }}});
    EXPECT_EQ(attributes, 0u);
}

TEST_F(RecordingShellFailures, reachTheCallsOfArrays)
{
    const PROPERTYKEY key{IID_IUnknown, 0};
    SFGAOF attributes = SFGAO_FOLDER;
    DWORD count = 77;
    expectFailures({{"IShellItemArray::QueryInterface",
                        giving<void>([&](void** object) { return items->QueryInterface(IID_IUnknown, object); })},
        {"IShellItemArray::BindToHandler", giving<void>([&](void** object) {
             return items->BindToHandler(nullptr, IID_IUnknown, IID_IUnknown, object);
         })},
        {"IShellItemArray::GetPropertyStore",
            giving<void>([&](void** store) { return items->GetPropertyStore(GPS_DEFAULT, IID_IUnknown, store); })},
        {"IShellItemArray::GetPropertyDescriptionList",
            giving<void>([&](void** list) { return items->GetPropertyDescriptionList(key, IID_IUnknown, list); })},
        {"IShellItemArray::GetAttributes",
            [&] { return items->GetAttributes(SIATTRIBFLAGS_AND, SFGAO_FOLDER, &attributes); }},
        {"IShellItemArray::GetCount", [&] { return items->GetCount(&count); }},
        {"IShellItemArray::GetItemAt",
            giving<IShellItem>([&](IShellItem** first) { return items->GetItemAt(0, first); })},
        {"IShellItemArray::EnumItems",
            giving<IEnumShellItems>([&](IEnumShellItems** all) { return items->EnumItems(all); })}});
    EXPECT_EQ(attributes, 0u);
    EXPECT_EQ(count, 0u);
}

TEST_F(RecordingShellFailures, aRefusedAdviceHoldsNoSink)
{
    LoggingSink sink(shell);
    DWORD cookie = 77;
    expectFailures({{"IFileDialog::Advise", [&] { return dialog->Advise(&sink, &cookie); }}});
    EXPECT_EQ(sink.references, 1u);
    EXPECT_EQ(cookie, 77u);
}

TEST_F(RecordingShellFailures, ofOneNumberLeaveTheOtherCallsAlone)
{
    shell.clearCalls();
    shell.failCall(2, E_ABORT);
    EXPECT_EQ(dialog->SetTitle(text("First").c_str()), S_OK);
    EXPECT_EQ(dialog->SetTitle(text("Second").c_str()), E_ABORT);
    EXPECT_EQ(shell.dialog()->title(), QStringLiteral("First"));
    EXPECT_EQ(dialog->SetTitle(text("Third").c_str()), S_OK);
    EXPECT_EQ(shell.count("IFileDialog::SetTitle"), 3);
}

TEST_F(RecordingShellFailures, knowForeignMemoryFromTheirOwn)
{
    void* const foreign = std::malloc(8);
    shell.coTaskMemFree(foreign);
    EXPECT_THAT(shell.calls(), Contains(HasSubstr("ERROR")));
    std::free(foreign);
    shell.clearCalls();
    LPWSTR own = nullptr;
    ASSERT_EQ(dialog->GetFileName(&own), S_OK);
    EXPECT_EQ(shell.liveStrings(), 1);
    shell.coTaskMemFree(own);
    shell.coTaskMemFree(nullptr);
    EXPECT_EQ(shell.liveStrings(), 0);
    EXPECT_THAT(shell.calls(), Not(Contains(HasSubstr("ERROR"))));
}

TEST(RecordingShellFailuresEnd, freesTheStringsThatNobodyFreed)
{
    RecordingShell shell; // the leak check of the address sanitizer finds what is not freed
    LPWSTR text = nullptr;
    ASSERT_EQ(shell.copyString(QStringLiteral("forgotten"), &text), S_OK);
    EXPECT_EQ(shell.liveStrings(), 1);
}

TEST(RecordingShellFailuresControls, thatAreNotThereLookLikeNothing)
{
    RecordingShell shell;
    ui::ComPtr<IFileDialog> dialog;
    ASSERT_EQ(shell.coCreateInstance(CLSID_FileSaveDialog, nullptr, 1, IID_IFileDialog, dialog.putVoid()), S_OK);
    const RecordingControls& controls = shell.dialog()->controls();
    EXPECT_EQ(controls.state(1), -1);
    EXPECT_EQ(controls.itemState(1, 2), -1);
    EXPECT_FALSE(controls.isCheckBox(1));
    EXPECT_FALSE(controls.isChecked(1));
    EXPECT_FALSE(controls.idOf(QStringLiteral("x")));
    EXPECT_FALSE(controls.itemOf(QStringLiteral("x")));
}

TEST(RecordingShellFailuresRecord, namesInterfacesAndArguments)
{
    RecordingShell shell;
    ui::ComPtr<IFileDialog> dialog;
    ASSERT_EQ(shell.coCreateInstance(CLSID_FileSaveDialog, nullptr, 1, IID_IFileDialog, dialog.putVoid()), S_OK);
    EXPECT_FALSE(dialog.query<IShellItemArray>());
    void* object = nullptr;
    EXPECT_EQ(dialog->QueryInterface(CLSID_FileOpenDialog, &object), E_NOINTERFACE);
    EXPECT_EQ(shell.coCreateInstance(IID_IUnknown, dialog.get(), 1, IID_IUnknown, &object), CLASS_E_NOAGGREGATION);
    EXPECT_EQ(shell.coCreateInstance(IID_IUnknown, nullptr, 1, IID_IUnknown, &object), REGDB_E_CLASSNOTREG);
    auto* const context = reinterpret_cast<IBindCtx*>(0x10); // never used
    EXPECT_EQ(shell.createItemFromParsingName(nullptr, context, IID_IShellItem, &object), E_INVALIDARG);
    EXPECT_EQ(dialog->SetTitle(nullptr), S_OK);
    EXPECT_THAT(shell.calls(),
        ::testing::ElementsAre("CoCreateInstance(FileSaveDialog, null, 1, IFileDialog)",
            "IFileDialog::QueryInterface(IShellItemArray)", "IFileDialog::QueryInterface(unknown interface)",
            "CoCreateInstance(unknown class, outer, 1, IUnknown)", "CoCreateInstance(unknown class, null, 1, IUnknown)",
            "SHCreateItemFromParsingName(null, context, IShellItem)", "IFileDialog::SetTitle(null)"));
}

} // namespace

} // namespace morvane::test
