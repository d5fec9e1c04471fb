#pragma once

#include <vector>

namespace morvane::test {

/** What the process holds at a moment. */
struct Holdings
{
    double heapBytes;         ///< in blocks that were allocated and not freed
    double residentBytes;     ///< of the whole process, what lies outside of the heap included
    std::vector<long> counts; ///< of the things that countedThings() names
};

/** What else than memory is counted on this platform: descriptors, or handles by their kind. */
const std::vector<const char*>& countedThings();

/** Looks at this process. Meant for a quiet moment: nothing waits to be deleted. */
Holdings holdings();

} // namespace morvane::test
