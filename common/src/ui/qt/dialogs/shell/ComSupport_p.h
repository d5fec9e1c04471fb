// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/dialogs/shell/ShellInterfaces.h"
#include "ui/qt/dialogs/shell/ShellText_p.h"

#include <cstdlib>
#include <cstring>

namespace morvane::ui {

/**
 * Finds the interface in a table for Shell::qiSearch(). Objects that are implemented here answer QueryInterface with
 * it, and Shells that are not the system's implement qiSearch() with it.
 */
inline HRESULT searchInterfaces(void* that, const QITAB* table, REFIID iid, void** object)
{
    if (!object) {
        return E_POINTER;
    }
    *object = nullptr;
    for (const QITAB* row = table; row->piid; ++row) {
        if (*row->piid == iid || (row == table && iid == IID_IUnknown)) {
            auto* const found = reinterpret_cast<IUnknown*>(static_cast<char*>(that) + row->dwOffset);
            found->AddRef();
            *object = found;
            return S_OK;
        }
    }
    return E_NOINTERFACE;
}

/** Sets @p result to null and returns @p answer; E_POINTER if there is no place for the result. */
template <typename Result>
HRESULT withoutResult(Result** result, HRESULT answer = E_NOTIMPL)
{
    if (!result) {
        return E_POINTER;
    }
    *result = nullptr;
    return answer;
}

/** Makes a copy of @p text. The caller frees it with freeTaskMemory(). */
inline HRESULT copyToTaskMemory(const QString& text, LPWSTR* copy)
{
    const ShellString units = toShellString(text);
    const std::size_t bytes = (units.size() + 1) * sizeof(WCHAR);
    *copy = static_cast<LPWSTR>(std::malloc(bytes));
    if (!*copy) {
        return E_OUTOFMEMORY;
    }
    std::memcpy(*copy, units.c_str(), bytes);
    return S_OK;
}

/** Frees a copy made by copyToTaskMemory(), whatever Shell::instance() is. Null is allowed. */
inline void freeTaskMemory(void* memory)
{
    std::free(memory);
}

} // namespace morvane::ui
