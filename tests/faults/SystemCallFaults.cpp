// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "faults/SystemCallFaults.h"

#include <cerrno>
#include <cstdarg>
#include <cstddef>
#include <cstdio>
#include <utility>

#include <dlfcn.h>
#include <linux/fcntl.h>
#include <sys/types.h>

namespace morvane::test {

namespace {

constexpr int mostCalls = 200;

struct Plan
{
    bool active = false;
    int failing = 0;
    int error = 0;
    int count = 0;
    const char* names[mostCalls] = {};
    std::string awaited{};
    std::function<void()> action{};
};

// Per thread: the test ignores what other threads do with files.
thread_local Plan plan;

void actBefore(const char* name)
{
    if (plan.action && plan.awaited == name) {
        plan.active = false;
        std::exchange(plan.action, nullptr)();
        plan.active = true;
    }
}

/** Whether this call is the one that fails; sets errno then. */
bool fails(const char* name)
{
    if (!plan.active || plan.count == mostCalls) {
        return false;
    }
    actBefore(name);
    plan.names[plan.count++] = name;
    if (plan.count != plan.failing) {
        return false;
    }
    errno = plan.error;
    return true;
}

template <typename Function>
Function* original(Function*, const char* name)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

} // namespace

SystemCallFaults::SystemCallFaults(int failing, int error)
{
    plan = Plan{true, failing, error};
}

SystemCallFaults::SystemCallFaults(std::string call, std::function<void()> action)
{
    plan = Plan{true};
    plan.awaited = std::move(call);
    plan.action = std::move(action);
}

SystemCallFaults::~SystemCallFaults()
{
    plan.active = false;
    plan.action = nullptr;
}

std::vector<std::string> SystemCallFaults::calls()
{
    return std::vector<std::string>(plan.names, plan.names + plan.count);
}

} // namespace morvane::test

using morvane::test::fails;
using morvane::test::original;

// Declared here, because the system headers give some of them other names.
extern "C" {

MORVANE_TEST_EXPORT int stat64(const char* path, void* status);
MORVANE_TEST_EXPORT int lstat64(const char* path, void* status);
MORVANE_TEST_EXPORT int fstat64(int file, void* status);
MORVANE_TEST_EXPORT int stat(const char* path, void* status);
MORVANE_TEST_EXPORT int lstat(const char* path, void* status);
MORVANE_TEST_EXPORT int fstat(int file, void* status);
MORVANE_TEST_EXPORT int statx(int directory, const char* path, int flags, unsigned mask, void* status);
MORVANE_TEST_EXPORT int open(const char* path, int flags, ...);
MORVANE_TEST_EXPORT int open64(const char* path, int flags, ...);
MORVANE_TEST_EXPORT int close(int file);
MORVANE_TEST_EXPORT int unlink(const char* path);
MORVANE_TEST_EXPORT int rename(const char* from, const char* to) noexcept;
MORVANE_TEST_EXPORT int link(const char* from, const char* to);
MORVANE_TEST_EXPORT int rmdir(const char* path);
MORVANE_TEST_EXPORT ssize_t readlink(const char* path, char* buffer, std::size_t size);
MORVANE_TEST_EXPORT ssize_t getrandom(void* buffer, std::size_t size, unsigned flags);

MORVANE_TEST_EXPORT std::FILE* fopen(const char* path, const char* mode)
{
    static auto* const next = original(&fopen, "fopen");
    return fails("fopen") ? nullptr : next(path, mode);
}

MORVANE_TEST_EXPORT int fclose(std::FILE* file)
{
    static auto* const next = original(&fclose, "fclose");
    const bool failing = fails("fclose");
    const int error = errno;
    const int result = next(file);
    if (failing) {
        errno = error;
        return EOF;
    }
    return result;
}

int stat(const char* path, void* status)
{
    static auto* const next = original(&stat, "stat");
    return fails("stat") ? -1 : next(path, status);
}

int stat64(const char* path, void* status)
{
    static auto* const next = original(&stat64, "stat64");
    return fails("stat") ? -1 : next(path, status);
}

int lstat(const char* path, void* status)
{
    static auto* const next = original(&lstat, "lstat");
    return fails("lstat") ? -1 : next(path, status);
}

int lstat64(const char* path, void* status)
{
    static auto* const next = original(&lstat64, "lstat64");
    return fails("lstat") ? -1 : next(path, status);
}

int fstat(int file, void* status)
{
    static auto* const next = original(&fstat, "fstat");
    return fails("fstat") ? -1 : next(file, status);
}

int fstat64(int file, void* status)
{
    static auto* const next = original(&fstat64, "fstat64");
    return fails("fstat") ? -1 : next(file, status);
}

// Newer versions of Boost.Filesystem call it instead of the others.
int statx(int directory, const char* path, int flags, unsigned mask, void* status)
{
    static auto* const next = original(&statx, "statx");
    const bool followsLinks = (flags & AT_SYMLINK_NOFOLLOW) == 0;
    return fails(followsLinks ? "stat" : "lstat") ? -1 : next(directory, path, flags, mask, status);
}

int open(const char* path, int flags, ...)
{
    static auto* const next = original(&open, "open");
    va_list arguments;
    va_start(arguments, flags);
    const auto mode = va_arg(arguments, unsigned);
    va_end(arguments);
    return fails("open") ? -1 : next(path, flags, mode);
}

int close(int file)
{
    static auto* const next = original(&close, "close");
    const bool failing = fails("close");
    const int error = errno;
    const int result = next(file);
    if (failing) {
        errno = error;
        return -1;
    }
    return result;
}

int open64(const char* path, int flags, ...)
{
    static auto* const next = original(&open64, "open64");
    va_list arguments;
    va_start(arguments, flags);
    const auto mode = va_arg(arguments, unsigned);
    va_end(arguments);
    return fails("open") ? -1 : next(path, flags, mode);
}

int unlink(const char* path)
{
    static auto* const next = original(&unlink, "unlink");
    return fails("unlink") ? -1 : next(path);
}

int rename(const char* from, const char* to) noexcept
{
    static auto* const next = original(&rename, "rename");
    return fails("rename") ? -1 : next(from, to);
}

int link(const char* from, const char* to)
{
    static auto* const next = original(&link, "link");
    return fails("link") ? -1 : next(from, to);
}

int rmdir(const char* path)
{
    static auto* const next = original(&rmdir, "rmdir");
    return fails("rmdir") ? -1 : next(path);
}

ssize_t readlink(const char* path, char* buffer, std::size_t size)
{
    static auto* const next = original(&readlink, "readlink");
    return fails("readlink") ? -1 : next(path, buffer, size);
}

ssize_t getrandom(void* buffer, std::size_t size, unsigned flags)
{
    static auto* const next = original(&getrandom, "getrandom");
    return fails("getrandom") ? -1 : next(buffer, size, flags);
}

} // extern "C"
