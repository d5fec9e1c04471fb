// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "tour/Watchdog.h"

#include <cstdio>
#include <cstdlib>

namespace gallery {

Watchdog::Watchdog(std::chrono::seconds limit) : m_limit(limit), m_thread([this] { watch(); }) {}

Watchdog::~Watchdog()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_done = true;
    }
    m_changed.notify_one();
    m_thread.join();
}

void Watchdog::beat()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        ++m_beats;
    }
    m_changed.notify_one();
}

void Watchdog::watch()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    while (!m_done) {
        const unsigned seen = m_beats;
        if (!m_changed.wait_for(lock, m_limit, [&] { return m_done || m_beats != seen; })) {
            std::fputs("morvane-gallery: the tour hangs; giving up\n", stderr);
            std::_Exit(1);
        }
    }
}

} // namespace gallery
