// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

/**
 * @file
 * The interfaces of the Windows Shell's common item dialog, for every platform.
 *
 * On Windows the SDK declares them. Elsewhere this header declares the same published interfaces: with the same names,
 * slot order, identifiers, flags, result codes and widths of the integer types, and with text of 16-bit units. So code
 * that uses them compiles unchanged. This is the only header that includes headers of the SDK.
 *
 * WCHAR is `wchar_t` on Windows and `char16_t` elsewhere; ULONG and DWORD have 32 bits everywhere.
 */

#ifdef _WIN32

#ifndef NOMINMAX
#define NOMINMAX
#endif
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
// clang-format off: windows.h comes first
#include <objbase.h>
#include <shlwapi.h>
#include <shobjidl.h>
#include <windows.h>
// clang-format on

#else

#include "ui/qt/dialogs/shell/ShellTypes.h"

struct IBindCtx;
struct IEnumShellItems;
struct IFileOperationProgressSink;
struct IPropertyDescriptionList;
struct IPropertyStore;
struct IShellItemFilter;

// A virtual destructor would take a slot of the interface. The destructors are protected instead, so no code can delete
// an object through an interface.

struct IUnknown
{
    virtual HRESULT STDMETHODCALLTYPE QueryInterface(REFIID riid, void** object) = 0;
    virtual ULONG STDMETHODCALLTYPE AddRef() = 0;
    virtual ULONG STDMETHODCALLTYPE Release() = 0;

protected:
    ~IUnknown() = default;
};

struct IShellItem : IUnknown
{
    virtual HRESULT STDMETHODCALLTYPE BindToHandler(IBindCtx* context, REFGUID handler, REFIID riid, void** object) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetParent(IShellItem** parent) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetDisplayName(SIGDN form, LPWSTR* name) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetAttributes(SFGAOF mask, SFGAOF* attributes) = 0;
    virtual HRESULT STDMETHODCALLTYPE Compare(IShellItem* other, SICHINTF hint, int* order) = 0;

protected:
    ~IShellItem() = default;
};

struct IShellItemArray : IUnknown
{
    virtual HRESULT STDMETHODCALLTYPE BindToHandler(IBindCtx* context, REFGUID handler, REFIID riid, void** object) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetPropertyStore(GETPROPERTYSTOREFLAGS flags, REFIID riid, void** store) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetPropertyDescriptionList(REFPROPERTYKEY type, REFIID riid, void** list) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetAttributes(SIATTRIBFLAGS how, SFGAOF mask, SFGAOF* attributes) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetCount(DWORD* count) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetItemAt(DWORD index, IShellItem** item) = 0;
    virtual HRESULT STDMETHODCALLTYPE EnumItems(IEnumShellItems** items) = 0;

protected:
    ~IShellItemArray() = default;
};

struct IModalWindow : IUnknown
{
    virtual HRESULT STDMETHODCALLTYPE Show(HWND owner) = 0;

protected:
    ~IModalWindow() = default;
};

struct IFileDialogEvents;

struct IFileDialog : IModalWindow
{
    virtual HRESULT STDMETHODCALLTYPE SetFileTypes(UINT count, const COMDLG_FILTERSPEC* types) = 0;
    virtual HRESULT STDMETHODCALLTYPE SetFileTypeIndex(UINT index) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetFileTypeIndex(UINT* index) = 0;
    virtual HRESULT STDMETHODCALLTYPE Advise(IFileDialogEvents* sink, DWORD* cookie) = 0;
    virtual HRESULT STDMETHODCALLTYPE Unadvise(DWORD cookie) = 0;
    virtual HRESULT STDMETHODCALLTYPE SetOptions(FILEOPENDIALOGOPTIONS options) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetOptions(FILEOPENDIALOGOPTIONS* options) = 0;
    virtual HRESULT STDMETHODCALLTYPE SetDefaultFolder(IShellItem* folder) = 0;
    virtual HRESULT STDMETHODCALLTYPE SetFolder(IShellItem* folder) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetFolder(IShellItem** folder) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetCurrentSelection(IShellItem** item) = 0;
    virtual HRESULT STDMETHODCALLTYPE SetFileName(LPCWSTR name) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetFileName(LPWSTR* name) = 0;
    virtual HRESULT STDMETHODCALLTYPE SetTitle(LPCWSTR title) = 0;
    virtual HRESULT STDMETHODCALLTYPE SetOkButtonLabel(LPCWSTR text) = 0;
    virtual HRESULT STDMETHODCALLTYPE SetFileNameLabel(LPCWSTR label) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetResult(IShellItem** item) = 0;
    virtual HRESULT STDMETHODCALLTYPE AddPlace(IShellItem* item, FDAP where) = 0;
    virtual HRESULT STDMETHODCALLTYPE SetDefaultExtension(LPCWSTR extension) = 0;
    virtual HRESULT STDMETHODCALLTYPE Close(HRESULT result) = 0;
    virtual HRESULT STDMETHODCALLTYPE SetClientGuid(REFGUID guid) = 0;
    virtual HRESULT STDMETHODCALLTYPE ClearClientData() = 0;
    virtual HRESULT STDMETHODCALLTYPE SetFilter(IShellItemFilter* filter) = 0;

protected:
    ~IFileDialog() = default;
};

struct IFileOpenDialog : IFileDialog
{
    virtual HRESULT STDMETHODCALLTYPE GetResults(IShellItemArray** items) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetSelectedItems(IShellItemArray** items) = 0;

protected:
    ~IFileOpenDialog() = default;
};

struct IFileSaveDialog : IFileDialog
{
    virtual HRESULT STDMETHODCALLTYPE SetSaveAsItem(IShellItem* item) = 0;
    virtual HRESULT STDMETHODCALLTYPE SetProperties(IPropertyStore* store) = 0;
    virtual HRESULT STDMETHODCALLTYPE SetCollectedProperties(IPropertyDescriptionList* list, BOOL appendDefault) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetProperties(IPropertyStore** store) = 0;
    virtual HRESULT STDMETHODCALLTYPE ApplyProperties(
        IShellItem* item, IPropertyStore* store, HWND window, IFileOperationProgressSink* sink) = 0;

protected:
    ~IFileSaveDialog() = default;
};

struct IFileDialogCustomize : IUnknown
{
    virtual HRESULT STDMETHODCALLTYPE EnableOpenDropDown(DWORD control) = 0;
    virtual HRESULT STDMETHODCALLTYPE AddMenu(DWORD control, LPCWSTR label) = 0;
    virtual HRESULT STDMETHODCALLTYPE AddPushButton(DWORD control, LPCWSTR label) = 0;
    virtual HRESULT STDMETHODCALLTYPE AddComboBox(DWORD control) = 0;
    virtual HRESULT STDMETHODCALLTYPE AddRadioButtonList(DWORD control) = 0;
    virtual HRESULT STDMETHODCALLTYPE AddCheckButton(DWORD control, LPCWSTR label, BOOL checked) = 0;
    virtual HRESULT STDMETHODCALLTYPE AddEditBox(DWORD control, LPCWSTR text) = 0;
    virtual HRESULT STDMETHODCALLTYPE AddSeparator(DWORD control) = 0;
    virtual HRESULT STDMETHODCALLTYPE AddText(DWORD control, LPCWSTR text) = 0;
    virtual HRESULT STDMETHODCALLTYPE SetControlLabel(DWORD control, LPCWSTR label) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetControlState(DWORD control, CDCONTROLSTATEF* state) = 0;
    virtual HRESULT STDMETHODCALLTYPE SetControlState(DWORD control, CDCONTROLSTATEF state) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetEditBoxText(DWORD control, WCHAR** text) = 0;
    virtual HRESULT STDMETHODCALLTYPE SetEditBoxText(DWORD control, LPCWSTR text) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetCheckButtonState(DWORD control, BOOL* checked) = 0;
    virtual HRESULT STDMETHODCALLTYPE SetCheckButtonState(DWORD control, BOOL checked) = 0;
    virtual HRESULT STDMETHODCALLTYPE AddControlItem(DWORD control, DWORD item, LPCWSTR label) = 0;
    virtual HRESULT STDMETHODCALLTYPE RemoveControlItem(DWORD control, DWORD item) = 0;
    virtual HRESULT STDMETHODCALLTYPE RemoveAllControlItems(DWORD control) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetControlItemState(DWORD control, DWORD item, CDCONTROLSTATEF* state) = 0;
    virtual HRESULT STDMETHODCALLTYPE SetControlItemState(DWORD control, DWORD item, CDCONTROLSTATEF state) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetSelectedControlItem(DWORD control, DWORD* item) = 0;
    virtual HRESULT STDMETHODCALLTYPE SetSelectedControlItem(DWORD control, DWORD item) = 0;
    virtual HRESULT STDMETHODCALLTYPE StartVisualGroup(DWORD control, LPCWSTR label) = 0;
    virtual HRESULT STDMETHODCALLTYPE EndVisualGroup() = 0;
    virtual HRESULT STDMETHODCALLTYPE MakeProminent(DWORD control) = 0;
    virtual HRESULT STDMETHODCALLTYPE SetControlItemText(DWORD control, DWORD item, LPCWSTR label) = 0;

protected:
    ~IFileDialogCustomize() = default;
};

struct IFileDialogEvents : IUnknown
{
    virtual HRESULT STDMETHODCALLTYPE OnFileOk(IFileDialog* dialog) = 0;
    virtual HRESULT STDMETHODCALLTYPE OnFolderChanging(IFileDialog* dialog, IShellItem* folder) = 0;
    virtual HRESULT STDMETHODCALLTYPE OnFolderChange(IFileDialog* dialog) = 0;
    virtual HRESULT STDMETHODCALLTYPE OnSelectionChange(IFileDialog* dialog) = 0;
    virtual HRESULT STDMETHODCALLTYPE OnShareViolation(
        IFileDialog* dialog, IShellItem* item, FDE_SHAREVIOLATION_RESPONSE* response) = 0;
    virtual HRESULT STDMETHODCALLTYPE OnTypeChange(IFileDialog* dialog) = 0;
    virtual HRESULT STDMETHODCALLTYPE OnOverwrite(
        IFileDialog* dialog, IShellItem* item, FDE_OVERWRITE_RESPONSE* response) = 0;

protected:
    ~IFileDialogEvents() = default;
};

struct IFileDialogControlEvents : IUnknown
{
    virtual HRESULT STDMETHODCALLTYPE OnItemSelected(IFileDialogCustomize* dialog, DWORD control, DWORD item) = 0;
    virtual HRESULT STDMETHODCALLTYPE OnButtonClicked(IFileDialogCustomize* dialog, DWORD control) = 0;
    virtual HRESULT STDMETHODCALLTYPE OnCheckButtonToggled(
        IFileDialogCustomize* dialog, DWORD control, BOOL checked) = 0;
    virtual HRESULT STDMETHODCALLTYPE OnControlActivating(IFileDialogCustomize* dialog, DWORD control) = 0;

protected:
    ~IFileDialogControlEvents() = default;
};

// The published identifiers.
inline constexpr IID IID_IUnknown = {0x00000000, 0x0000, 0x0000, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
inline constexpr IID IID_IShellItem = {0x43826d1e, 0xe718, 0x42ee, {0xbc, 0x55, 0xa1, 0xe2, 0x61, 0xc3, 0x7b, 0xfe}};
inline constexpr IID IID_IShellItemArray = {
    0xb63ea76d, 0x1f85, 0x456f, {0xa1, 0x9c, 0x48, 0x15, 0x9e, 0xfa, 0x85, 0x8b}};
inline constexpr IID IID_IModalWindow = {0xb4db1657, 0x70d7, 0x485e, {0x8e, 0x3e, 0x6f, 0xcb, 0x5a, 0x5c, 0x18, 0x02}};
inline constexpr IID IID_IFileDialog = {0x42f85136, 0xdb7e, 0x439c, {0x85, 0xf1, 0xe4, 0x07, 0x5d, 0x13, 0x5f, 0xc8}};
inline constexpr IID IID_IFileOpenDialog = {
    0xd57c7288, 0xd4ad, 0x4768, {0xbe, 0x02, 0x9d, 0x96, 0x95, 0x32, 0xd9, 0x60}};
inline constexpr IID IID_IFileSaveDialog = {
    0x84bccd23, 0x5fde, 0x4cdb, {0xae, 0xa4, 0xaf, 0x64, 0xb8, 0x3d, 0x78, 0xab}};
inline constexpr IID IID_IFileDialogCustomize = {
    0xe6fdd21a, 0x163f, 0x4975, {0x9c, 0x8c, 0xa6, 0x9f, 0x1b, 0xa3, 0x70, 0x34}};
inline constexpr IID IID_IFileDialogEvents = {
    0x973510db, 0x7d7f, 0x452b, {0x89, 0x75, 0x74, 0xa8, 0x58, 0x28, 0xd3, 0x54}};
inline constexpr IID IID_IFileDialogControlEvents = {
    0x36116642, 0xd713, 0x4b97, {0x9b, 0x83, 0x74, 0x84, 0xa9, 0xd0, 0x04, 0x33}};
inline constexpr CLSID CLSID_FileOpenDialog = {
    0xdc1c5a9c, 0xe88a, 0x4dde, {0xa5, 0xa1, 0x60, 0xf8, 0x2a, 0x20, 0xae, 0xf7}};
inline constexpr CLSID CLSID_FileSaveDialog = {
    0xc0b4e2f3, 0xba21, 0x4773, {0x8d, 0xba, 0x33, 0x5e, 0xc9, 0x46, 0xeb, 0x8b}};

#endif

namespace morvane::ui {

/** Returns the identifier of one of the interfaces above, with every compiler. */
template <typename Interface>
const IID& iidOf();

// clang-format off
template <> inline const IID& iidOf<IUnknown>() { return IID_IUnknown; }
template <> inline const IID& iidOf<IShellItem>() { return IID_IShellItem; }
template <> inline const IID& iidOf<IShellItemArray>() { return IID_IShellItemArray; }
template <> inline const IID& iidOf<IModalWindow>() { return IID_IModalWindow; }
template <> inline const IID& iidOf<IFileDialog>() { return IID_IFileDialog; }
template <> inline const IID& iidOf<IFileOpenDialog>() { return IID_IFileOpenDialog; }
template <> inline const IID& iidOf<IFileSaveDialog>() { return IID_IFileSaveDialog; }
template <> inline const IID& iidOf<IFileDialogCustomize>() { return IID_IFileDialogCustomize; }
template <> inline const IID& iidOf<IFileDialogEvents>() { return IID_IFileDialogEvents; }
template <> inline const IID& iidOf<IFileDialogControlEvents>() { return IID_IFileDialogControlEvents; }
// clang-format on

} // namespace morvane::ui
