// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "contract/WindowsDifferences.h"

#include <QtGlobal>

#include <windows.h>

#include <cstdlib>
#include <map>

namespace morvane::test {

namespace {

/** The first number of Wine's version; 0 on Windows. */
int wineVersion()
{
    const HMODULE library = GetModuleHandleW(L"ntdll.dll");
    const FARPROC function = library ? GetProcAddress(library, "wine_get_version") : nullptr;
    return function ? std::atoi(reinterpret_cast<const char* (*)()>(reinterpret_cast<void*>(function))()) : 0;
}

using Differences = std::map<std::string, const char*>;

// What our own shells promise beyond the published interfaces.
const char* const foreignFrames = "an exception cannot be expected to pass through the frames of the system's Shell";
const Differences windowsDifferences{
    {"showsThePlacesThatWereAdded", "nobody can read the places from outside, and Wine shows none of them"},
    {"anExceptionFromAButtonLeavesShow", foreignFrames},
    {"anExceptionWhileItOpensLeavesShowAndTheDialogStaysUsable", foreignFrames},
    {"anExceptionWhileItRunsLeavesShowAndTheDialogStaysUsable", foreignFrames},
};

// If the library relies on one of these, docs/windows-checklist.md has a step for it; it does none of the others.
const Differences wineDifferences{
    {"anEmptyEditBoxHasAnEmptyText", "Wine has no text for an edit box that is empty"},
    {"closingFromACallbackEndsShowWithTheGivenResult", "Wine goes on accepting when it is closed in OnFileOk"},
    {"closingFromEachCallbackEndsShow", "Wine goes on accepting when it is closed in OnFileOk"},
    {"closingGivesNoResultOfTheRunBefore", "Wine keeps the result of the run before"},
    {"closingGivesNoResultWhateverIsTypedOrSelected", "Wine has another error for the results of a closed dialog"},
    {"forgetsTheResultOfTheRunBefore", "Wine keeps the result of the run before"},
    {"itemsMayBeAddedAndRemovedWhenOneIsPicked", "Wine accepts with the item of the menu, and tells no sink of it"},
    {"keepsFolderNameAndTypeFromRunToRun", "Wine goes back to the folder and the name that were set"},
    {"keepsTheFolderUnderAClientIdentifier", "Wine takes a client identifier, and keeps nothing under it"},
    {"keepsTheNameThatTheSinkSetsOnATypeChange", "Wine puts the extension of the type in before it tells the sink"},
    {"pickingAnAcceptItemSelectsItAndAccepts", "Wine accepts with the item of the menu, and tells no sink of it"},
    {"refusesControlsThatAreNotThere", "Wine takes the state of a control that is not there"},
    {"releasesItsSinksAtItsEnd", "Wine forgets to release a sink that nobody took back"},
    {"staysOpenWhenTheSinkRefusesTheChoice", "Wine keeps the result that the sink refused"},
};

// Wine 8 has these, Wine 10 does not.
const Differences olderWineDifferences{
    {"refusesToBeShownWhileItIsShown", "Wine before 10 runs the nested dialog, and the outer one never ends"},
    {"sinkMayLeaveDuringACallback", "Wine before 10 walks on over the list of sinks that it has changed, and crashes"},
};

const char* differenceIn(const Differences& differences, const std::string& test)
{
    const auto found = differences.find(test);
    return found == differences.end() ? nullptr : found->second;
}

} // namespace

const char* shellDifference(const std::string& test)
{
    if (qEnvironmentVariableIsSet("MORVANE_RUN_DIFFERENCES")) {
        return nullptr;
    }
    const int wine = wineVersion();
    const char* difference = differenceIn(windowsDifferences, test);
    if (!difference && wine > 0) {
        difference = differenceIn(wineDifferences, test);
    }
    if (!difference && wine > 0 && wine < 10) {
        difference = differenceIn(olderWineDifferences, test);
    }
    return difference;
}

} // namespace morvane::test
