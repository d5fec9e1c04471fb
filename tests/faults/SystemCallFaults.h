// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <string>
#include <vector>

#define MORVANE_TEST_EXPORT __attribute__((visibility("default")))

namespace morvane::test {

/**
 * While it exists, records the calls that this thread makes to the C library's file functions, and makes one of them
 * fail.
 *
 * The functions are in a shared library of their own. Symbols are looked up there before the C library, so calls from
 * other libraries are recorded, too. Calls inside the C library are not recorded: fopen() is one call. When close() and
 * fclose() fail, they still close their file; every other function does nothing when it fails. Only one object may
 * exist at a time.
 */
class MORVANE_TEST_EXPORT SystemCallFaults
{
public:
    /**
     * @param failing the call to fail, counted from 1; 0 for none
     * @param error   the value of errno after the failure
     */
    explicit SystemCallFaults(int failing = 0, int error = 0);
    /**
     * Runs an action just before a call, as another program could.
     * @param call   the name of the call; only the first call of this name counts
     * @param action its own calls are not recorded
     */
    SystemCallFaults(std::string call, std::function<void()> action);
    ~SystemCallFaults();
    SystemCallFaults(const SystemCallFaults&) = delete;
    SystemCallFaults& operator=(const SystemCallFaults&) = delete;

    /** The names of the calls so far, such as `fopen`. */
    static std::vector<std::string> calls();
};

} // namespace morvane::test
