// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

namespace morvane::test {

/**
 * How the Shell of the running system, Windows or Wine, differs from what the contract test of this name expects; null
 * when no difference is known. With MORVANE_RUN_DIFFERENCES in the environment none is, so that all tests run and one
 * can see which differences are still there.
 */
const char* shellDifference(const std::string& test);

} // namespace morvane::test
