// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "soak/Subject.h"

#include <memory>
#include <vector>

namespace morvane::ui {
class Shell;
}

namespace morvane::test {

/** The Shell that the library's native dialog uses here; null for the library's own choice. */
std::unique_ptr<ui::Shell> nativeShell();

/** Presses Cancel in the native dialog if it is open; false if not. */
bool cancelNativeDialog();
/** Accepts the text of its name field if it is open; false if not. */
bool acceptNativeDialog();
/** How often to look whether the native dialog is open, in milliseconds. */
int nativeDialogInterval();

/** The platform's dialog without any code of the library. */
std::vector<Subject> systemSubjects();

} // namespace morvane::test
