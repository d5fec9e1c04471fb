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

TEST_P(PortableShellContract, aDialogDoesNotOfferFilters)
{
    prepare();
    EXPECT_EQ(dialog->SetFilter(nullptr), E_NOTIMPL);
}

TEST_P(PortableShellContract, aDialogOffersNoMenus)
{
    prepare();
    constexpr DWORD id = 1;
    EXPECT_EQ(customize->AddMenu(id, text("Label").c_str()), E_NOTIMPL);
    EXPECT_EQ(customize->AddPushButton(id, text("Label").c_str()), S_OK) << "nothing has taken the identifier";
}

TEST_P(PortableShellContract, onlyAnEditBoxHasAText)
{
    prepare();
    ASSERT_EQ(customize->AddComboBox(1), S_OK);
    for (const DWORD id : {1u, 2u}) {
        auto* read = reinterpret_cast<WCHAR*>(this);
        EXPECT_EQ(customize->GetEditBoxText(id, &read), E_INVALIDARG);
        EXPECT_EQ(read, nullptr);
        EXPECT_EQ(customize->SetEditBoxText(id, text("x").c_str()), E_INVALIDARG);
    }
    EXPECT_EQ(customize->GetEditBoxText(1, nullptr), E_POINTER);
}

TEST_P(PortableShellContract, aGroupEndsOnce)
{
    prepare();
    EXPECT_EQ(customize->EndVisualGroup(), E_UNEXPECTED);
    EXPECT_EQ(customize->StartVisualGroup(1, text("Group").c_str()), S_OK);
    EXPECT_EQ(customize->EndVisualGroup(), S_OK);
    EXPECT_EQ(customize->EndVisualGroup(), E_UNEXPECTED);
}

TEST_P(PortableShellContract, aGroupWhoseIdentifierIsTakenIsNotOpen)
{
    prepare();
    ASSERT_EQ(customize->AddSeparator(1), S_OK);
    EXPECT_EQ(customize->StartVisualGroup(1, text("Group").c_str()), E_INVALIDARG);
    EXPECT_EQ(customize->EndVisualGroup(), E_UNEXPECTED);
}

TEST_P(PortableShellContract, onlySomeControlsHaveALabelOfTheirOwn)
{
    prepare();
    ASSERT_EQ(customize->AddText(1, text("Text").c_str()), S_OK);
    ASSERT_EQ(customize->StartVisualGroup(2, text("Group").c_str()), S_OK);
    ASSERT_EQ(customize->AddComboBox(3), S_OK);
    ASSERT_EQ(customize->AddRadioButtonList(4), S_OK);
    ASSERT_EQ(customize->AddEditBox(5, text("").c_str()), S_OK);
    ASSERT_EQ(customize->AddSeparator(6), S_OK);
    for (const DWORD id : {1u, 2u}) {
        EXPECT_EQ(customize->SetControlLabel(id, text("New").c_str()), S_OK) << id;
    }
    for (const DWORD id : {3u, 4u, 5u, 6u}) {
        EXPECT_EQ(customize->SetControlLabel(id, text("New").c_str()), E_INVALIDARG) << id;
    }
}

TEST_P(PortableShellContract, aListThatLosesItsSelectedEntrySelectsNothing)
{
    prepare();
    DWORD item = 77;
    ASSERT_EQ(customize->AddComboBox(1), S_OK);
    ASSERT_EQ(customize->AddControlItem(1, 10, text("First").c_str()), S_OK);
    ASSERT_EQ(customize->AddControlItem(1, 11, text("Second").c_str()), S_OK);
    EXPECT_EQ(customize->AddControlItem(1, 10, text("Again").c_str()), E_INVALIDARG);
    ASSERT_EQ(customize->SetSelectedControlItem(1, 11), S_OK);
    ASSERT_EQ(customize->RemoveControlItem(1, 11), S_OK);
    EXPECT_EQ(customize->GetSelectedControlItem(1, &item), E_FAIL);
    EXPECT_EQ(item, 77u);
    EXPECT_EQ(customize->AddControlItem(1, 11, text("Second").c_str()), S_OK) << "its identifier is free";
}

TEST_P(PortableShellContract, placesMustExist)
{
    prepare();
    EXPECT_EQ(dialog->AddPlace(itemFor(folder.path()).get(), FDAP_TOP), S_OK);
    EXPECT_EQ(dialog->AddPlace(nullptr, FDAP_BOTTOM), E_INVALIDARG);
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
