// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

namespace gallery {

/**
 * Ends the process with exit code 1 if beat() is not called within the time limit, even if the GUI thread is blocked.
 */
class Watchdog
{
public:
    explicit Watchdog(std::chrono::seconds limit);
    ~Watchdog();
    Watchdog(const Watchdog&) = delete;
    Watchdog& operator=(const Watchdog&) = delete;

    void beat();

private:
    void watch();

    const std::chrono::seconds m_limit;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    unsigned m_beats = 0;
    bool m_done = false;
    std::thread m_thread;
};

} // namespace gallery
