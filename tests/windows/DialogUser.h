// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "windows/NativeDialog.h"

#include <functional>
#include <thread>
#include <vector>

namespace morvane::test {

/**
 * A user of the next common item dialogs of this process, with one script for each dialog. The scripts run in their own
 * thread while the dialogs run in the test's thread. The test fails when no dialog appears or a script leaves its
 * dialog open; then the dialog is cancelled so that the test can go on. The destructor waits for the end of the
 * scripts.
 *
 * @code
 * const DialogUser user([](NativeDialog& dialog) { dialog.accept(L"out.dat"); });
 * dialog.exec();
 * @endcode
 */
class DialogUser
{
public:
    using Script = std::function<void(NativeDialog& dialog)>;

    explicit DialogUser(Script script);
    explicit DialogUser(std::vector<Script> scripts);
    ~DialogUser();
    DialogUser(const DialogUser&) = delete;
    DialogUser& operator=(const DialogUser&) = delete;

private:
    std::thread m_thread;
};

} // namespace morvane::test
