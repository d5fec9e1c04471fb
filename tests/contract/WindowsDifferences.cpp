// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

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
    {"refusesToBeShownWhileItIsShown", "Wine runs the nested dialog, and the outer one never ends"},
    {"releasesItsSinksAtItsEnd", "Wine forgets to release a sink that nobody took back"},
    {"sinkMayLeaveDuringACallback", "Wine walks on over the list of sinks that it has changed, and crashes"},
    {"staysOpenWhenTheSinkRefusesTheChoice", "Wine keeps the result that the sink refused"},
};

const char* differenceIn(const Differences& differences, const std::string& test)
{
    const auto found = differences.find(test);
    return found == differences.end() ? nullptr : found->second;
}

} // namespace

const char* shellDifference(const std::string& test)
{
    const char* const difference = differenceIn(windowsDifferences, test);
    return difference || !isWine() ? difference : differenceIn(wineDifferences, test);
}

} // namespace morvane::test
