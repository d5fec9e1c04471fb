// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// Which parts of the interfaces our own Shells implement, and what the other parts return.
#include "contract/PortableShells.h"

namespace morvane::test {

namespace {

TEST_P(PortableShellContract, aDialogIsAlsoAWindow)
{
    for (const CLSID& clsid : {CLSID_FileOpenDialog, CLSID_FileSaveDialog}) {
        dialog = makeDialog(clsid);
        EXPECT_EQ(dialog.query<IModalWindow>().get(), dialog.get());
    }
}

TEST_P(PortableShellContract, aDialogWithoutTheInterfaceLeavesNull)
{
    prepare();
    for (IUnknown* const object : {static_cast<IUnknown*>(dialog.get()), static_cast<IUnknown*>(customize.get())}) {
        void* other = this;
        EXPECT_EQ(object->QueryInterface(IID_IShellItemArray, &other), E_NOINTERFACE);
        EXPECT_EQ(other, nullptr);
    }
}

TEST_P(PortableShellContract, aDialogDoesNotOfferPlacesNorClientDataNorFilters)
{
    prepare();
    EXPECT_EQ(dialog->AddPlace(itemFor(folder.path()).get(), FDAP_TOP), E_NOTIMPL);
    EXPECT_EQ(dialog->SetClientGuid(IID_IUnknown), E_NOTIMPL);
    EXPECT_EQ(dialog->ClearClientData(), E_NOTIMPL);
    EXPECT_EQ(dialog->SetFilter(nullptr), E_NOTIMPL);
}

TEST_P(PortableShellContract, aDialogOffersNoOtherKindsOfControls)
{
    prepare();
    constexpr DWORD id = 1;
    const auto label = text("Label");
    EXPECT_EQ(customize->AddMenu(id, label.c_str()), E_NOTIMPL);
    EXPECT_EQ(customize->AddComboBox(id), E_NOTIMPL);
    EXPECT_EQ(customize->AddRadioButtonList(id), E_NOTIMPL);
    EXPECT_EQ(customize->AddEditBox(id, label.c_str()), E_NOTIMPL);
    EXPECT_EQ(customize->AddSeparator(id), E_NOTIMPL);
    EXPECT_EQ(customize->AddText(id, label.c_str()), E_NOTIMPL);
    EXPECT_EQ(customize->SetEditBoxText(id, label.c_str()), E_NOTIMPL);
    EXPECT_EQ(customize->StartVisualGroup(id, label.c_str()), E_NOTIMPL);
    EXPECT_EQ(customize->EndVisualGroup(), E_NOTIMPL);
    EXPECT_EQ(customize->AddPushButton(id, label.c_str()), S_OK) << "nothing has taken the identifier";
}

TEST_P(PortableShellContract, aDialogHasNoTextOfAnEditBox)
{
    prepare();
    auto* read = reinterpret_cast<WCHAR*>(this);
    EXPECT_EQ(customize->GetEditBoxText(1, &read), E_NOTIMPL);
    EXPECT_EQ(read, nullptr);
    EXPECT_EQ(customize->GetEditBoxText(1, nullptr), E_POINTER);
}

/** The object must have the interface @p own, at the same address as its IUnknown, and must not have @p other. */
void expectInterfaces(IUnknown& object, REFIID own, REFIID other)
{
    void* found = nullptr;
    EXPECT_EQ(object.QueryInterface(own, &found), S_OK);
    EXPECT_EQ(found, &object);
    EXPECT_EQ(object.Release(), 1u);
    EXPECT_EQ(object.QueryInterface(IID_IUnknown, &found), S_OK);
    EXPECT_EQ(found, &object);
    EXPECT_EQ(object.Release(), 1u);
    EXPECT_EQ(object.QueryInterface(other, &found), E_NOINTERFACE);
    EXPECT_EQ(found, nullptr);
    EXPECT_EQ(object.AddRef(), 2u);
    EXPECT_EQ(object.Release(), 1u);
}

TEST_P(PortableShellContract, itemsAndArraysHaveOneInterface)
{
    expectInterfaces(*itemFor(folder.path()).get(), IID_IShellItem, IID_IShellItemArray);
    expectInterfaces(*chosenArray().get(), IID_IShellItemArray, IID_IShellItem);
}

TEST_P(PortableShellContract, itemsBindToNothing)
{
    const auto item = itemFor(folder.path());
    void* object = this;
    EXPECT_EQ(item->BindToHandler(nullptr, IID_IUnknown, IID_IUnknown, &object), E_NOTIMPL);
    EXPECT_EQ(object, nullptr);
}

TEST_P(PortableShellContract, arraysHaveNeitherHandlersNorPropertiesNorEnumerations)
{
    const auto items = chosenArray();
    const PROPERTYKEY key{IID_IUnknown, 0};
    void* object = this;
    EXPECT_EQ(items->BindToHandler(nullptr, IID_IUnknown, IID_IUnknown, &object), E_NOTIMPL);
    EXPECT_EQ(object, nullptr);
    object = this;
    EXPECT_EQ(items->GetPropertyStore(GPS_DEFAULT, IID_IUnknown, &object), E_NOTIMPL);
    EXPECT_EQ(object, nullptr);
    object = this;
    EXPECT_EQ(items->GetPropertyDescriptionList(key, IID_IUnknown, &object), E_NOTIMPL);
    EXPECT_EQ(object, nullptr);
    auto* list = reinterpret_cast<IEnumShellItems*>(this);
    EXPECT_EQ(items->EnumItems(&list), E_NOTIMPL);
    EXPECT_EQ(list, nullptr);
}

TEST_P(PortableShellContract, anItemHasAParentUnlessItIsTheRoot)
{
    ui::ComPtr<IShellItem> parent;
    ASSERT_EQ(itemFor(path(QStringLiteral("inner")))->GetParent(parent.put()), S_OK);
    EXPECT_EQ(pathOf(parent.get()), folder.path());
    auto* none = reinterpret_cast<IShellItem*>(this);
    EXPECT_EQ(itemFor(QDir::rootPath())->GetParent(&none), E_FAIL);
    EXPECT_EQ(none, nullptr);
}

TEST_P(PortableShellContract, anItemHasANameOfItsOwnAndAWholePath)
{
    const auto nameOfItem = [this](const QString& path, SIGDN form) {
        LPWSTR read = nullptr;
        EXPECT_EQ(itemFor(path)->GetDisplayName(form, &read), S_OK);
        const QString name = ui::toQString(read);
        shell().coTaskMemFree(read);
        return name;
    };
    const QString file = path(QStringLiteral("a.txt"));
    EXPECT_EQ(nameOfItem(file, SIGDN_NORMALDISPLAY), QStringLiteral("a.txt"));
    EXPECT_EQ(nameOfItem(file, SIGDN_DESKTOPABSOLUTEPARSING), QDir::toNativeSeparators(file));
    EXPECT_EQ(nameOfItem(file, SIGDN_FILESYSPATH), QDir::toNativeSeparators(file));
    EXPECT_EQ(nameOfItem(QDir::rootPath(), SIGDN_NORMALDISPLAY), QDir::toNativeSeparators(QDir::rootPath()));
}

TEST_P(PortableShellContract, itemsOfOnePathAreEqual)
{
    int order = 5;
    const auto item = itemFor(path(QStringLiteral("inner")));
    EXPECT_EQ(item->Compare(itemFor(path(QStringLiteral("./inner/"))).get(), SICHINT_CANONICAL, &order), S_OK);
    EXPECT_EQ(order, 0);
    EXPECT_EQ(item->Compare(itemFor(folder.path()).get(), SICHINT_CANONICAL, &order), S_FALSE);
    EXPECT_GT(order, 0) << "a folder comes before what is in it";
    EXPECT_EQ(itemFor(folder.path())->Compare(item.get(), SICHINT_CANONICAL, &order), S_FALSE);
    EXPECT_LT(order, 0);
}

} // namespace

} // namespace morvane::test
