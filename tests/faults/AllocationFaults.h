#pragma once

namespace morvane::test {

/**
 * While it lives, counts the allocations of this thread, makes one of them fail, and knows which were not given back.
 *
 * Everything that comes from malloc counts, and with that operator new and Qt's containers. Under the address
 * sanitizer, which has an allocator of its own, only operator new does. One object at a time.
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
