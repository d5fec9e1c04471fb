#pragma once

#include <memory>

class QPoint;
class QWidget;

namespace morvane::test {

/**
 * Tells when this program has taken in all events that were made before. It sends an event of its own after them, by a
 * connection of its own to the X server; the window manager, which holds clicks back for a moment, is asked first
 * whether it is through.
 */
class Fence
{
public:
    Fence();
    ~Fence();
    Fence(const Fence&) = delete;
    Fence& operator=(const Fence&) = delete;

    /** Processes events until all that came before this call is taken in; fails the test when that takes too long. */
    void pass();

    /** Whether the server has this window, which shows, at this place of the screen. */
    bool isAt(const QWidget& window, QPoint position) const;

private:
    struct Impl;
    const std::unique_ptr<Impl> m_impl;
};

} // namespace morvane::test
