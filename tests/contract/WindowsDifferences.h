// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

namespace morvane::test {

/**
 * How the Shell of the running system, Windows or Wine, differs from what the contract test of this name expects; null
 * when no difference is known.
 */
const char* shellDifference(const std::string& test);

} // namespace morvane::test
