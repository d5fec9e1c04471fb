#pragma once

#include <functional>
#include <string>
#include <vector>

#define MORVANE_TEST_EXPORT __attribute__((visibility("default")))

namespace morvane::test {

/**
 * While it lives, notes each call of the C library's file functions by this thread and makes one of them fail.
 *
 * The functions stand in a shared library of their own, which comes before the C library when symbols are looked up, so
 * that calls of other libraries are seen too. Calls that the C library makes within itself are not: fopen() is one
 * call. close() and fclose() close their file also when they fail; every other function does nothing then. One object
 * at a time.
 */
class MORVANE_TEST_EXPORT SystemCallFaults
{
public:
    /**
     * @param failing the call to fail, counted from 1; 0 for none
     * @param error   what errno is then
     */
    explicit SystemCallFaults(int failing = 0, int error = 0);
    /**
     * What somebody else does just before a call.
     * @param call   the name of the call; its first time counts
     * @param action its own calls are not noted
     */
    SystemCallFaults(std::string call, std::function<void()> action);
    ~SystemCallFaults();
    SystemCallFaults(const SystemCallFaults&) = delete;
    SystemCallFaults& operator=(const SystemCallFaults&) = delete;

    /** The names of the calls so far, such as `fopen`. */
    static std::vector<std::string> calls();
};

} // namespace morvane::test
