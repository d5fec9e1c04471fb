#pragma once

#include <cstdio>
#include <cstdlib>

namespace morvane::fuzz {

/** Ends the process, which the fuzzer takes for a crash, unless `condition` holds. */
inline void require(bool condition, const char* what)
{
    if (!condition) {
        std::fprintf(stderr, "not so: %s\n", what);
        std::abort();
    }
}

} // namespace morvane::fuzz
