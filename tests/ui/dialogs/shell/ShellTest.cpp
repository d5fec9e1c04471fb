// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/shell/Shell.h"

#include "contract/StackObject.h"
#include "ui/qt/dialogs/shell/ComPtr.h"
#include "ui/qt/dialogs/shell/WidgetShell_p.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace {

using morvane::test::StackObject;
using morvane::ui::ComPtr;
using morvane::ui::Shell;
using morvane::ui::ShellOverride;
using morvane::ui::WidgetShell;

static_assert(
    !std::is_copy_constructible_v<ComPtr<IUnknown>> && std::is_nothrow_move_constructible_v<ComPtr<IUnknown>>);

class Counted final : public StackObject<IUnknown>
{
public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID riid, void** object) override
    {
        *object = riid == IID_IUnknown ? this : reinterpret_cast<Counted*>(0x10); // invalid; the call fails
        if (riid != IID_IUnknown) {
            return E_NOINTERFACE;
        }
        AddRef();
        return S_OK;
    }
};

TEST(ShellInstance, isTheSameObjectEachTime)
{
    EXPECT_EQ(&Shell::instance(), &Shell::instance());
}

TEST(ShellInstance, isReplacedWhileAGuardLives)
{
    Shell& original = Shell::instance();
    WidgetShell first;
    {
        const ShellOverride outer(first);
        EXPECT_EQ(&Shell::instance(), &first);
        WidgetShell second;
        {
            const ShellOverride inner(second);
            EXPECT_EQ(&Shell::instance(), &second);
        }
        EXPECT_EQ(&Shell::instance(), &first);
    }
    EXPECT_EQ(&Shell::instance(), &original);
}

TEST(ShellComPtr, adoptsAndReleasesOneReference)
{
    Counted object;
    {
        const ComPtr<IUnknown> pointer(&object);
        EXPECT_EQ(object.references, 1u);
    }
    EXPECT_EQ(object.references, 0u);
}

TEST(ShellComPtr, addsAReferenceOnlyWhenItShares)
{
    Counted object;
    {
        auto shared = ComPtr<IUnknown>::share(&object);
        EXPECT_EQ(object.references, 2u);
        const auto moved = std::move(shared);
        EXPECT_EQ(object.references, 2u);
        EXPECT_FALSE(shared); // NOLINT: the test checks the moved-from pointer
    }
    EXPECT_EQ(object.references, 1u);
}

TEST(ShellComPtr, putReleasesWhatWasHeld)
{
    Counted object;
    ComPtr<IUnknown> pointer(&object);
    EXPECT_EQ(*pointer.put(), nullptr);
    EXPECT_EQ(object.references, 0u);
}

TEST(ShellComPtr, aFailedQueryGivesNothingWhateverItWrote)
{
    Counted object;
    const ComPtr<IUnknown> pointer(&object);
    EXPECT_FALSE(pointer.query<IShellItem>());
    EXPECT_EQ(pointer.query<IUnknown>().get(), &object);
    EXPECT_EQ(object.references, 1u);
}

TEST(ShellComPtr, anEmptyPointerAnswersNoQuery)
{
    EXPECT_FALSE(ComPtr<IUnknown>().query<IShellItem>());
}

struct TwoInterfaces final : StackObject<IFileDialogEvents, IFileDialogControlEvents>
{
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID, void**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE OnFileOk(IFileDialog*) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnFolderChanging(IFileDialog*, IShellItem*) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnFolderChange(IFileDialog*) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnSelectionChange(IFileDialog*) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnShareViolation(IFileDialog*, IShellItem*, FDE_SHAREVIOLATION_RESPONSE*) override
    {
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE OnTypeChange(IFileDialog*) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnOverwrite(IFileDialog*, IShellItem*, FDE_OVERWRITE_RESPONSE*) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnItemSelected(IFileDialogCustomize*, DWORD, DWORD) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnButtonClicked(IFileDialogCustomize*, DWORD) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnCheckButtonToggled(IFileDialogCustomize*, DWORD, BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnControlActivating(IFileDialogCustomize*, DWORD) override { return S_OK; }
};

TEST(ShellTableSearch, findsEachInterfaceAndAnswersForIUnknownWithTheFirst)
{
    TwoInterfaces object;
    const QITAB table[] = {morvane::ui::interfaceRow<IFileDialogEvents, TwoInterfaces>(),
        morvane::ui::interfaceRow<IFileDialogControlEvents, TwoInterfaces>(), {}};
    const std::pair<const IID*, void*> expected[] = {{&IID_IFileDialogEvents, static_cast<IFileDialogEvents*>(&object)},
        {&IID_IFileDialogControlEvents, static_cast<IFileDialogControlEvents*>(&object)},
        {&IID_IUnknown, static_cast<IFileDialogEvents*>(&object)}};
    WidgetShell shell;
    for (const auto& [iid, address] : expected) {
        void* found = nullptr;
        EXPECT_EQ(shell.qiSearch(&object, table, *iid, &found), S_OK);
        EXPECT_EQ(found, address);
    }
    EXPECT_EQ(object.references, 4u);
    void* nothing = &object;
    EXPECT_EQ(shell.qiSearch(&object, table, IID_IShellItem, &nothing), E_NOINTERFACE);
    EXPECT_EQ(nothing, nullptr);
}

TEST(ShellConstants, combineAsInTheSdk)
{
    CDCONTROLSTATEF state = CDCS_INACTIVE;
    state = state | CDCS_VISIBLE;
    state = state | CDCS_ENABLED;
    EXPECT_EQ(state, CDCS_ENABLEDVISIBLE);
    state = state & ~CDCS_ENABLED;
    EXPECT_EQ(state, CDCS_VISIBLE);
}

TEST(ShellConstants, turnErrorsOfTheSystemIntoResults)
{
    const std::pair<ULONG, unsigned> table[] = {{0, 0}, {ERROR_FILE_NOT_FOUND, 0x80070002}, {ERROR_BUSY, 0x800700AA},
        {ERROR_CANCELLED, 0x800704C7}, {0x12345678, 0x80075678}, {0x80004005, 0x80004005}};
    for (const auto& [error, expected] : table) {
        const HRESULT result = HRESULT_FROM_WIN32(error);
        EXPECT_EQ(static_cast<unsigned>(result), expected);
        EXPECT_EQ(SUCCEEDED(result), error == 0);
        EXPECT_EQ(FAILED(result), error != 0);
    }
}

TEST(ShellConstants, compareIdentifiersByEveryPart)
{
    const IID original = IID_IUnknown;
    EXPECT_TRUE(original == IID_IUnknown);
    IID other[] = {original, original, original, original, original};
    ++other[0].Data1;
    ++other[1].Data2;
    ++other[2].Data3;
    ++other[3].Data4[0];
    ++other[4].Data4[7];
    for (const IID& changed : other) {
        EXPECT_FALSE(changed == original);
        EXPECT_TRUE(changed != original);
    }
}

TEST(ShellConstants, nameEachInterfaceByItsIdentifier)
{
    using morvane::ui::iidOf;
    EXPECT_EQ(iidOf<IUnknown>(), IID_IUnknown);
    EXPECT_EQ(iidOf<IShellItem>(), IID_IShellItem);
    EXPECT_EQ(iidOf<IShellItemArray>(), IID_IShellItemArray);
    EXPECT_EQ(iidOf<IModalWindow>(), IID_IModalWindow);
    EXPECT_EQ(iidOf<IFileDialog>(), IID_IFileDialog);
    EXPECT_EQ(iidOf<IFileOpenDialog>(), IID_IFileOpenDialog);
    EXPECT_EQ(iidOf<IFileSaveDialog>(), IID_IFileSaveDialog);
    EXPECT_EQ(iidOf<IFileDialogCustomize>(), IID_IFileDialogCustomize);
    EXPECT_EQ(iidOf<IFileDialogEvents>(), IID_IFileDialogEvents);
    EXPECT_EQ(iidOf<IFileDialogControlEvents>(), IID_IFileDialogControlEvents);
}

TEST(ShellComPtr, isTheObjectThatItHolds)
{
    Counted object;
    const ComPtr<IUnknown> pointer(&object);
    EXPECT_EQ(&*pointer, &object);
    EXPECT_TRUE(pointer);
    EXPECT_FALSE(ComPtr<IUnknown>::share(nullptr));
}

TEST(ShellComPtr, releasesWhatItHeldWhenItTakesAnother)
{
    Counted first;
    Counted second;
    ComPtr<IUnknown> pointer(&first);
    pointer = ComPtr<IUnknown>(&second);
    EXPECT_EQ(first.references, 0u);
    EXPECT_EQ(second.references, 1u);
}

} // namespace
