#pragma once

#include "soak/Subject.h"

#include <memory>
#include <vector>

namespace morvane::ui {
class Shell;
}

namespace morvane::test {

/** What the library's native dialog is to run on here; null for the library's own choice. */
std::unique_ptr<ui::Shell> nativeShell();

/** Presses Cancel in the native dialog if it is open; false if not. */
bool cancelNativeDialog();
/** Accepts what stands in its name field, likewise. */
bool acceptNativeDialog();
/** How often to look whether the native dialog is open, in milliseconds. */
int nativeDialogInterval();

/** The platform's dialog without any code of the library. */
std::vector<Subject> systemSubjects();

} // namespace morvane::test
