// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/signals2/signal.hpp>

namespace morvane::ui {

/**
 * Calls the slots of `increment` if `steps` is above 0, else those of `decrement`. Returns whether there was a slot. If
 * so, the host makes the step. Passes on exceptions of the slots.
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
