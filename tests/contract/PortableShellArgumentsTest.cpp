// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// Arguments that nobody should pass: they are refused, and nothing changes.
#include "contract/PortableShells.h"

namespace morvane::test {

namespace {

struct Call
{
    const char* name;
    std::function<HRESULT()> make;
};

void expectAll(const std::vector<Call>& calls, HRESULT expected)
{
    for (const Call& call : calls) {
        EXPECT_EQ(call.make(), expected) << call.name;
    }
}

/** An item that has no path. */
class ItemWithoutPath final : public StackObject<IShellItem>
{
public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID, void**) override { return E_NOINTERFACE; }
    HRESULT STDMETHODCALLTYPE BindToHandler(IBindCtx*, REFGUID, REFIID, void**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetParent(IShellItem**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetDisplayName(SIGDN, LPWSTR*) override { return E_FAIL; }
    HRESULT STDMETHODCALLTYPE GetAttributes(SFGAOF, SFGAOF*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Compare(IShellItem*, SICHINTF, int*) override { return E_NOTIMPL; }
};

TEST_P(PortableShellContract, refusesToJoinAnApartmentWithAReservedArgument)
{
    int reserved = 0;
    EXPECT_EQ(shell().coInitializeEx(&reserved, COINIT_APARTMENTTHREADED), E_INVALIDARG);
    EXPECT_EQ(shell().coInitializeEx(nullptr, COINIT_APARTMENTTHREADED), S_FALSE) << "the one of the set-up";
    shell().coUninitialize();
}

TEST_P(PortableShellContract, makesNothingWithoutAPlaceForIt)
{
    const auto name = ui::toShellString(folder.path());
    const QITAB table[] = {ui::interfaceRow<IFileDialogEvents, LoggingSink>(), {}};
    expectAll(
        {{"CoCreateInstance",
             [&] {
                 return shell().coCreateInstance(
                     CLSID_FileOpenDialog, nullptr, CLSCTX_INPROC_SERVER, IID_IFileDialog, nullptr);
             }},
            {"SHCreateItemFromParsingName",
                [&] { return shell().createItemFromParsingName(name.c_str(), nullptr, IID_IShellItem, nullptr); }},
            {"QISearch", [&] { return shell().qiSearch(sink.get(), table, IID_IFileDialogEvents, nullptr); }}},
        E_POINTER);
    EXPECT_EQ(sink->references, 1u);
}

TEST_P(PortableShellContract, makesNoDialogAsAPartOfAnother)
{
    dialog = makeDialog();
    void* object = this;
    EXPECT_EQ(
        shell().coCreateInstance(CLSID_FileSaveDialog, dialog.get(), CLSCTX_INPROC_SERVER, IID_IFileDialog, &object),
        CLASS_E_NOAGGREGATION);
    EXPECT_EQ(object, nullptr);
}

TEST_P(PortableShellContract, makesNothingThatLacksTheInterface)
{
    const auto name = ui::toShellString(folder.path());
    void* object = this;
    EXPECT_EQ(shell().coCreateInstance(CLSID_FileOpenDialog, nullptr, CLSCTX_INPROC_SERVER, IID_IShellItem, &object),
        E_NOINTERFACE);
    EXPECT_EQ(object, nullptr);
    object = this;
    EXPECT_EQ(
        shell().coCreateInstance(CLSID_FileOpenDialog, nullptr, CLSCTX_INPROC_SERVER, IID_IFileSaveDialog, &object),
        E_NOINTERFACE);
    EXPECT_EQ(object, nullptr);
    object = this;
    EXPECT_EQ(shell().createItemFromParsingName(name.c_str(), nullptr, IID_IFileDialog, &object), E_NOINTERFACE);
    EXPECT_EQ(object, nullptr);
}

TEST_P(PortableShellContract, refusesEmptyParsingNames)
{
    const auto empty = text("");
    for (const auto* const name : {static_cast<PCWSTR>(nullptr), empty.c_str()}) {
        void* object = this;
        EXPECT_EQ(shell().createItemFromParsingName(name, nullptr, IID_IShellItem, &object), E_INVALIDARG);
        EXPECT_EQ(object, nullptr);
    }
}

TEST_P(PortableShellContract, givesAnItemAsAnUnknownObject)
{
    ui::ComPtr<IUnknown> object;
    const auto name = ui::toShellString(folder.path());
    ASSERT_EQ(shell().createItemFromParsingName(name.c_str(), nullptr, IID_IUnknown, object.putVoid()), S_OK);
    EXPECT_EQ(pathOf(object.query<IShellItem>().get()), folder.path());
}

TEST_P(PortableShellContract, aDialogRefusesToReadIntoNothing)
{
    prepare();
    const auto open = dialog.query<IFileOpenDialog>();
    DWORD unused = 77;
    expectAll({{"GetFileTypeIndex", [&] { return dialog->GetFileTypeIndex(nullptr); }},
                  {"GetOptions", [&] { return dialog->GetOptions(nullptr); }},
                  {"GetFolder", [&] { return dialog->GetFolder(nullptr); }},
                  {"GetCurrentSelection", [&] { return dialog->GetCurrentSelection(nullptr); }},
                  {"GetFileName", [&] { return dialog->GetFileName(nullptr); }},
                  {"GetResult", [&] { return dialog->GetResult(nullptr); }},
                  {"GetResults", [&] { return open->GetResults(nullptr); }},
                  {"GetSelectedItems", [&] { return open->GetSelectedItems(nullptr); }},
                  {"Advise without a cookie", [&] { return dialog->Advise(sink.get(), nullptr); }},
                  {"Advise without a sink", [&] { return dialog->Advise(nullptr, &unused); }}},
        E_INVALIDARG);
    EXPECT_EQ(unused, 77u);
    EXPECT_EQ(sink->references, 2u) << "the one of the test and the one of its advice";
    EXPECT_EQ(dialog->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
    EXPECT_EQ(customize->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
}

TEST_P(PortableShellContract, refusesFoldersThatAreNone)
{
    prepare();
    ItemWithoutPath nowhere;
    expectAll({{"SetFolder null", [&] { return dialog->SetFolder(nullptr); }},
                  {"SetFolder", [&] { return dialog->SetFolder(&nowhere); }},
                  {"SetDefaultFolder null", [&] { return dialog->SetDefaultFolder(nullptr); }},
                  {"SetDefaultFolder", [&] { return dialog->SetDefaultFolder(&nowhere); }}},
        E_INVALIDARG);
    ui::ComPtr<IShellItem> read;
    ASSERT_EQ(dialog->GetFolder(read.put()), S_OK);
    EXPECT_EQ(pathOf(read.get()), folder.path());
}

TEST_P(PortableShellContract, keepsTheDefaultFolderWhenAnotherIsRefused)
{
    dialog = makeDialog();
    ASSERT_EQ(dialog->SetDefaultFolder(itemFor(folder.path()).get()), S_OK);
    EXPECT_EQ(dialog->SetDefaultFolder(nullptr), E_INVALIDARG);
    ui::ComPtr<IShellItem> read;
    ASSERT_EQ(dialog->GetFolder(read.put()), S_OK);
    EXPECT_EQ(pathOf(read.get()), folder.path());
}

TEST_P(PortableShellContract, refusesTypesThatAreNotThere)
{
    dialog = makeDialog();
    EXPECT_EQ(dialog->SetFileTypes(2, nullptr), E_INVALIDARG);
    const auto pattern = text("*.txt");
    const COMDLG_FILTERSPEC type{pattern.c_str(), pattern.c_str()};
    EXPECT_EQ(dialog->SetFileTypes(0, &type), E_INVALIDARG);
    EXPECT_EQ(typeIndex(), 0u);
}

TEST_P(PortableShellContract, anItemRefusesToReadIntoNothing)
{
    const auto item = itemFor(folder.path());
    int order = 5;
    expectAll({{"QueryInterface", [&] { return item->QueryInterface(IID_IShellItem, nullptr); }},
                  {"BindToHandler", [&] { return item->BindToHandler(nullptr, IID_IUnknown, IID_IUnknown, nullptr); }},
                  {"GetParent", [&] { return item->GetParent(nullptr); }},
                  {"GetDisplayName", [&] { return item->GetDisplayName(SIGDN_FILESYSPATH, nullptr); }},
                  {"GetAttributes", [&] { return item->GetAttributes(SFGAO_FOLDER, nullptr); }},
                  {"Compare with nothing", [&] { return item->Compare(nullptr, SICHINT_CANONICAL, &order); }},
                  {"Compare into nothing", [&] { return item->Compare(item.get(), SICHINT_CANONICAL, nullptr); }}},
        E_POINTER);
    EXPECT_EQ(order, 5);
}

TEST_P(PortableShellContract, anItemDiffersFromOneWithoutAPath)
{
    const auto item = itemFor(folder.path());
    ItemWithoutPath nowhere;
    int order = 0;
    EXPECT_EQ(item->Compare(&nowhere, SICHINT_CANONICAL, &order), S_FALSE);
    EXPECT_NE(order, 0);
}

TEST_P(PortableShellContract, anArrayRefusesToReadIntoNothing)
{
    const auto items = chosenArray();
    const PROPERTYKEY key{IID_IUnknown, 0};
    expectAll({{"QueryInterface", [&] { return items->QueryInterface(IID_IShellItemArray, nullptr); }},
                  {"BindToHandler", [&] { return items->BindToHandler(nullptr, IID_IUnknown, IID_IUnknown, nullptr); }},
                  {"GetPropertyStore", [&] { return items->GetPropertyStore(GPS_DEFAULT, IID_IUnknown, nullptr); }},
                  {"GetPropertyDescriptionList",
                      [&] { return items->GetPropertyDescriptionList(key, IID_IUnknown, nullptr); }},
                  {"GetAttributes", [&] { return items->GetAttributes(SIATTRIBFLAGS_AND, SFGAO_FOLDER, nullptr); }},
                  {"GetCount", [&] { return items->GetCount(nullptr); }},
                  {"GetItemAt", [&] { return items->GetItemAt(0, nullptr); }},
                  {"EnumItems", [&] { return items->EnumItems(nullptr); }}},
        E_POINTER);
}

TEST_P(PortableShellContract, anArrayEndsWithItsLastItem)
{
    const auto items = chosenArray();
    for (const DWORD index : {1u, 0xFFFFFFFFu}) {
        auto* item = reinterpret_cast<IShellItem*>(this);
        EXPECT_EQ(items->GetItemAt(index, &item), E_FAIL) << index;
        EXPECT_EQ(item, nullptr) << index;
    }
}

} // namespace

} // namespace morvane::test
