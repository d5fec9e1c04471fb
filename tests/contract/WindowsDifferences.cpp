#include "contract/WindowsDifferences.h"

#include <windows.h>

#include <map>

namespace morvane::test {

namespace {

bool isWine()
{
    const HMODULE library = GetModuleHandleW(L"ntdll.dll");
    return library && GetProcAddress(library, "wine_get_version");
}

// Each is a step of docs/windows-checklist.md.
const std::map<std::string, const char*> differences{
    {"refusesToBeShownWhileItIsShown", "Wine runs the nested dialog, and the outer one never ends"},
};

} // namespace

const char* wineDifference(const std::string& test)
{
    const auto found = isWine() ? differences.find(test) : differences.end();
    return found == differences.end() ? nullptr : found->second;
}

} // namespace morvane::test
