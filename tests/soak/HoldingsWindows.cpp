// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// Wine 8 answers GetProcessHandleCount and GetGuiResources with 0. Therefore this file counts other data: the system's
// list of handles, the table of GDI objects, which every process can read, and the windows and menus themselves.
#include "soak/Holdings.h"

#include <windows.h>

#include <psapi.h>
#include <winternl.h>

#include <cstddef>

namespace morvane::test {

namespace {

constexpr DWORD mostHeaps = 256;
constexpr auto extendedHandleInformation = static_cast<SYSTEM_INFORMATION_CLASS>(64);
constexpr std::size_t gdiTableInPeb = 0xF8;
constexpr int gdiTableSize = 0x10000;
constexpr UINT firstUserHandle = 0x20;
constexpr UINT lastUserHandle = 0xFFEE;

struct HandleEntry
{
    void* object;
    ULONG_PTR process;
    ULONG_PTR handle;
    ULONG access;
    USHORT trace;
    USHORT type;
    ULONG attributes;
    ULONG reserved;
};

struct HandleList
{
    ULONG_PTR count;
    ULONG_PTR reserved;
    HandleEntry entries[1];
};

struct GdiEntry
{
    ULONG64 object;
    USHORT owner[2];
    USHORT generation;
    BYTE type;
    BYTE extendedType;
    ULONG64 user;
};

double busyBytes(HANDLE heap)
{
    double bytes = 0;
    HeapLock(heap);
    PROCESS_HEAP_ENTRY entry{};
    while (HeapWalk(heap, &entry)) {
        if ((entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0) {
            bytes += entry.cbData;
        }
    }
    HeapUnlock(heap);
    return bytes;
}

double heapBytes()
{
    HANDLE heaps[mostHeaps] = {};
    const DWORD count = GetProcessHeaps(mostHeaps, heaps);
    double bytes = 0;
    for (DWORD i = 0; i < count && i < mostHeaps; ++i) {
        bytes += busyBytes(heaps[i]);
    }
    return bytes;
}

double residentBytes()
{
    PROCESS_MEMORY_COUNTERS counters{};
    GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof(counters));
    return static_cast<double>(counters.WorkingSetSize);
}

long listedHandles()
{
    std::vector<std::byte> buffer(1 << 20);
    ULONG needed = 0;
    while (NtQuerySystemInformation(
               extendedHandleInformation, buffer.data(), static_cast<ULONG>(buffer.size()), &needed) != 0) {
        if (buffer.size() > (std::size_t{1} << 28)) {
            return -1;
        }
        buffer.resize(buffer.size() * 2);
    }
    const auto* const list = reinterpret_cast<const HandleList*>(buffer.data());
    long count = 0;
    for (ULONG_PTR i = 0; i < list->count; ++i) {
        count += list->entries[i].process == GetCurrentProcessId() ? 1 : 0;
    }
    return count;
}

long handles()
{
    DWORD count = 0;
    GetProcessHandleCount(GetCurrentProcess(), &count);
    return count > 0 ? static_cast<long>(count) : listedHandles();
}

long listedGdiObjects()
{
    PROCESS_BASIC_INFORMATION process{};
    NtQueryInformationProcess(GetCurrentProcess(), ProcessBasicInformation, &process, sizeof(process), nullptr);
    const auto* const peb = reinterpret_cast<const std::byte*>(process.PebBaseAddress);
    const auto* const table = *reinterpret_cast<const GdiEntry* const*>(peb + gdiTableInPeb);
    long count = 0;
    for (int i = 0; table && i < gdiTableSize; ++i) {
        count += table[i].type != 0 ? 1 : 0;
    }
    return count;
}

bool isWindowOfOurs(HWND window)
{
    DWORD process = 0;
    return IsWindow(window) && GetWindowThreadProcessId(window, &process) != 0 && process == GetCurrentProcessId();
}

/** A handle without its upper half, the generation, refers to the object that uses this entry of the table now. */
long windowsAndMenus()
{
    long count = 0;
    for (UINT value = firstUserHandle; value <= lastUserHandle; value += 2) {
        // NOLINTNEXTLINE(performance-no-int-to-ptr)
        auto* const handle = reinterpret_cast<void*>(static_cast<UINT_PTR>(value));
        count += isWindowOfOurs(static_cast<HWND>(handle)) || IsMenu(static_cast<HMENU>(handle)) ? 1 : 0;
    }
    return count;
}

long guiResources(DWORD kind, long (*listed)())
{
    const DWORD count = GetGuiResources(GetCurrentProcess(), kind);
    return count > 0 ? static_cast<long>(count) : listed();
}

} // namespace

const std::vector<const char*>& countedThings()
{
    static const std::vector<const char*> things{"handles", "GDI objects", "windows and menus"};
    return things;
}

Holdings holdings()
{
    return {heapBytes(), residentBytes(),
        {handles(), guiResources(GR_GDIOBJECTS, &listedGdiObjects), guiResources(GR_USEROBJECTS, &windowsAndMenus)}};
}

} // namespace morvane::test
