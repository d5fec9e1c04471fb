#pragma once

#include <boost/signals2/signal.hpp>

namespace morvane::ui {

/**
 * Leaves a step to the host: fires `increment` for steps above 0, else `decrement`, if that one has a connected slot.
 * Returns whether it had. What a slot throws comes through.
 */
inline bool handStepToHost(
    int steps, boost::signals2::signal<void()>& increment, boost::signals2::signal<void()>& decrement)
{
    boost::signals2::signal<void()>& signal = steps > 0 ? increment : decrement;
    if (signal.empty()) {
        return false;
    }
    signal();
    return true;
}

} // namespace morvane::ui
