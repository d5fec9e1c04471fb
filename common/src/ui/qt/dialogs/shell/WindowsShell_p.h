// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/dialogs/shell/Shell.h"

namespace morvane::ui {

/** Passes every call on to the operating system. Exists only on Windows. */
class WindowsShell final : public Shell
{
public:
    HRESULT coInitializeEx(void* reserved, DWORD flags) override;
    void coUninitialize() override;
    HRESULT coCreateInstance(REFCLSID clsid, IUnknown* outer, DWORD context, REFIID iid, void** object) override;
    void coTaskMemFree(void* memory) override;
    HRESULT createItemFromParsingName(PCWSTR path, IBindCtx* context, REFIID iid, void** object) override;
    HRESULT qiSearch(void* that, const QITAB* table, REFIID iid, void** object) override;
};

} // namespace morvane::ui
