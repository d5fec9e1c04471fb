// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ctime>

namespace morvane::bench {

/**
 * Processor time of the process. The wall clock would also count the pauses in which the system runs something else,
 * and they may be longer than what is measured.
 */
inline double processorSeconds()
{
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
}

} // namespace morvane::bench
