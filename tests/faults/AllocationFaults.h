// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

namespace morvane::test {

/**
 * While it exists, counts the allocations of this thread, makes one of them fail, and knows which ones were not freed.
 *
 * All memory from malloc counts, and so does that of operator new and of Qt's containers. With the address sanitizer,
 * which has an allocator of its own, only operator new counts. Only one object may exist at a time.
 */
class AllocationFaults
{
public:
    /** @param failing the allocation to fail, counted from 1; 0 for none */
    explicit AllocationFaults(int failing = 0);
    ~AllocationFaults();
    AllocationFaults(const AllocationFaults&) = delete;
    AllocationFaults& operator=(const AllocationFaults&) = delete;

    static int count();
    /** Blocks that were allocated since the beginning and are still there. */
    static int outstanding();
};

} // namespace morvane::test
