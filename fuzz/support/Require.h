// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdio>
#include <cstdlib>

namespace morvane::fuzz {

/** Ends the process unless `condition` holds; the fuzzer reports that as a crash. */
inline void require(bool condition, const char* what)
{
    if (!condition) {
        std::fprintf(stderr, "not so: %s\n", what);
        std::abort();
    }
}

} // namespace morvane::fuzz
