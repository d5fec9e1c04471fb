// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/shell/WindowsShell_p.h"

namespace morvane::ui {

HRESULT WindowsShell::coInitializeEx(void* reserved, DWORD flags)
{
    return ::CoInitializeEx(reserved, flags);
}

void WindowsShell::coUninitialize()
{
    ::CoUninitialize();
}

HRESULT WindowsShell::coCreateInstance(REFCLSID clsid, IUnknown* outer, DWORD context, REFIID iid, void** object)
{
    return ::CoCreateInstance(clsid, outer, context, iid, object);
}

void WindowsShell::coTaskMemFree(void* memory)
{
    ::CoTaskMemFree(memory);
}

HRESULT WindowsShell::createItemFromParsingName(PCWSTR path, IBindCtx* context, REFIID iid, void** object)
{
    return ::SHCreateItemFromParsingName(path, context, iid, object);
}

HRESULT WindowsShell::qiSearch(void* that, const QITAB* table, REFIID iid, void** object)
{
    return ::QISearch(that, table, iid, object);
}

} // namespace morvane::ui
