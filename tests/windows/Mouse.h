// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <windows.h>

namespace morvane::test {

/** Clicks at a position of the screen, with the key Control held down or not: events in the system's input queue. */
void clickAt(POINT position, bool withControl);

} // namespace morvane::test
