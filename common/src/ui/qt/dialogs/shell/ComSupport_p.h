#pragma once

#include "ui/qt/dialogs/shell/ShellInterfaces.h"
#include "ui/qt/dialogs/shell/ShellText_p.h"

#include <atomic>
#include <cstdlib>
#include <cstring>

namespace morvane::ui {

/** The reference count of an object that is made with one reference. */
class ReferenceCount
{
public:
    ULONG increment() { return ++m_count; }
    /** The caller deletes the object when this returns 0. */
    ULONG decrement() { return --m_count; }

private:
    std::atomic<ULONG> m_count{1};
};

/** The answer of a method that is not offered and would give something back; @p result is null afterwards. */
template <typename Result>
HRESULT notImplemented(Result** result)
{
    if (!result) {
        return E_POINTER;
    }
    *result = nullptr;
    return E_NOTIMPL;
}

/** Hands @p text to a caller who frees it with Shell::coTaskMemFree() of WidgetShell. */
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

/** Frees what copyToTaskMemory() has made, whichever Shell is the process's own; null is allowed. */
inline void freeTaskMemory(void* memory)
{
    std::free(memory);
}

} // namespace morvane::ui
