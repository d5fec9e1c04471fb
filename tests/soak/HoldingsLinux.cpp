// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "soak/Holdings.h"

#include <QDir>

#include <cstdio>

#include <malloc.h>
#include <unistd.h>

namespace morvane::test {

namespace {

double residentBytes()
{
    long pages = 0;
    if (std::FILE* const file = std::fopen("/proc/self/statm", "r")) {
        if (std::fscanf(file, "%*d %ld", &pages) != 1) {
            pages = 0;
        }
        std::fclose(file);
    }
    return static_cast<double>(pages) * static_cast<double>(sysconf(_SC_PAGESIZE));
}

} // namespace

const std::vector<const char*>& countedThings()
{
    static const std::vector<const char*> things{"descriptors"};
    return things;
}

Holdings holdings()
{
    malloc_trim(0);
    const struct mallinfo2 heap = mallinfo2();
    return {static_cast<double>(heap.uordblks) + static_cast<double>(heap.hblkhd), residentBytes(),
        {static_cast<long>(QDir(QStringLiteral("/proc/self/fd")).count())}};
}

} // namespace morvane::test
