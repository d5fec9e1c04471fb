// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

namespace morvane::test {

/** The memory and other resources of the process at a moment. */
struct Holdings
{
    double heapBytes;         ///< in blocks that were allocated and not freed
    double residentBytes;     ///< of the whole process, including memory outside of the heap
    std::vector<long> counts; ///< of the things that countedThings() names
};

/** The resources other than memory that are counted on this platform: descriptors, or each kind of handle. */
const std::vector<const char*>& countedThings();

/** The holdings of this process. To be called when nothing waits to be deleted. */
Holdings holdings();

} // namespace morvane::test
