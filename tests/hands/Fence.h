// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <string>

class QPoint;
class QWidget;

namespace morvane::test {

/**
 * Tells when this program has processed all earlier events. To do so, it sends an event of its own after them, through
 * a separate connection to the X server. The window manager holds clicks back for a moment, so it is asked first
 * whether it is done.
 */
class Fence
{
public:
    Fence();
    ~Fence();
    Fence(const Fence&) = delete;
    Fence& operator=(const Fence&) = delete;

    /** Processes events until all events from before this call are done; fails the test when that takes too long. */
    void pass();

    /** Whether the server shows this window at this place of the screen. */
    bool isAt(const QWidget& window, QPoint position) const;

    /** Which window has the keyboard according to the server, the window manager and Qt, for messages of a test. */
    std::string describeFocus(const QWidget& window) const;

private:
    struct Impl;
    const std::unique_ptr<Impl> m_impl;
};

} // namespace morvane::test
