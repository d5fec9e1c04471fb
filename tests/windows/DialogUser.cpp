// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "windows/DialogUser.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <utility>

namespace morvane::test {

namespace {

constexpr int secondsToAppear = 30;
constexpr int secondsToEnd = 10;

bool hasEnded(const NativeDialog& dialog)
{
    return waitUntil([&dialog] { return !dialog.isOpen(); }, secondsToEnd);
}

/** Answers the message boxes above the dialog, then cancels the dialog. */
void putAway(const NativeDialog& dialog)
{
    if (dialog.hasQuestion()) {
        dialog.answer(IDNO);
        dialog.answer(IDOK);
        dialog.answer(IDCANCEL);
        waitUntil([&dialog] { return !dialog.hasQuestion(); }, 2);
    }
    dialog.cancel();
    if (!hasEnded(dialog)) {
        std::fprintf(stderr, "the dialog cannot be closed\n");
        std::fflush(nullptr);
        std::_Exit(3);
    }
}

/** False when no dialog appeared. */
bool use(const DialogUser::Script& script)
{
    const HWND window = NativeDialog::waitForWindow(secondsToAppear);
    if (!window) {
        ADD_FAILURE() << "no dialog appeared";
        return false;
    }
    NativeDialog dialog(window);
    script(dialog);
    if (!hasEnded(dialog)) {
        ADD_FAILURE() << "the dialog was still open at the end of the script";
        putAway(dialog);
    }
    return true;
}

} // namespace

DialogUser::DialogUser(Script script) : DialogUser(std::vector<Script>{std::move(script)}) {}

DialogUser::DialogUser(std::vector<Script> scripts)
    : m_thread([scripts = std::move(scripts)] { static_cast<void>(std::all_of(scripts.begin(), scripts.end(), use)); })
{
}

DialogUser::~DialogUser()
{
    m_thread.join();
}

} // namespace morvane::test
