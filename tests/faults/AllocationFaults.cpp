// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "faults/AllocationFaults.h"

#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <new>

namespace morvane::test {

namespace {

constexpr std::size_t tableSize = 1 << 16;

struct Ledger
{
    bool active = false;
    int failing = 0;
    int count = 0;
    int outstanding = 0;
};

thread_local Ledger ledger;
/** The blocks of the active ledger: a hash table with open addressing, because the ledger must not allocate. */
void* blocks[tableSize];
void* const removed = blocks;

std::size_t placeOf(const void* block)
{
    return (reinterpret_cast<std::uintptr_t>(block) >> 4) % tableSize;
}

/** Whether this allocation is the one that fails. */
bool fails()
{
    return ledger.active && ++ledger.count == ledger.failing;
}

void* made(void* block)
{
    if (!ledger.active || !block) {
        return block;
    }
    std::size_t place = placeOf(block);
    while (blocks[place] && blocks[place] != removed) {
        place = (place + 1) % tableSize;
    }
    blocks[place] = block;
    ++ledger.outstanding;
    return block;
}

void gone(const void* block)
{
    if (!ledger.active || !block) {
        return;
    }
    for (std::size_t place = placeOf(block); blocks[place]; place = (place + 1) % tableSize) {
        if (blocks[place] == block) {
            blocks[place] = removed;
            --ledger.outstanding;
            return;
        }
    }
}

} // namespace

AllocationFaults::AllocationFaults(int failing)
{
    for (void*& block : blocks) {
        block = nullptr;
    }
    ledger = Ledger{true, failing};
}

AllocationFaults::~AllocationFaults()
{
    ledger.active = false;
}

int AllocationFaults::count()
{
    return ledger.count;
}

int AllocationFaults::outstanding()
{
    return ledger.outstanding;
}

} // namespace morvane::test

using morvane::test::fails;
using morvane::test::gone;
using morvane::test::made;

#ifdef __SANITIZE_ADDRESS__

void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    return fails() ? nullptr : made(std::malloc(size == 0 ? 1 : size));
}

void* operator new(std::size_t size)
{
    void* const block = operator new(size, std::nothrow);
    if (!block) {
        throw std::bad_alloc();
    }
    return block;
}

void operator delete(void* block) noexcept
{
    gone(block);
    std::free(block);
}

void operator delete(void* block, std::size_t) noexcept
{
    operator delete(block);
}

#else

// glibc offers its allocator under these names, too.
extern "C" {

void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);
void __libc_free(void* block);

__attribute__((visibility("default"))) void* malloc(std::size_t size)
{
    if (fails()) {
        errno = ENOMEM;
        return nullptr;
    }
    return made(__libc_malloc(size));
}

__attribute__((visibility("default"))) void* calloc(std::size_t count, std::size_t size)
{
    if (fails()) {
        errno = ENOMEM;
        return nullptr;
    }
    return made(__libc_calloc(count, size));
}

__attribute__((visibility("default"))) void* realloc(void* block, std::size_t size)
{
    if (fails()) {
        errno = ENOMEM;
        return nullptr;
    }
    gone(block);
    return made(__libc_realloc(block, size));
}

__attribute__((visibility("default"))) void free(void* block)
{
    gone(block);
    __libc_free(block);
}

} // extern "C"

#endif
