// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/util/OverrideCursor.h"

#include <QElapsedTimer>

#include <optional>

namespace morvane::ui {

/**
 * Shows the wait cursor when some work has taken half a second, until the object is destroyed.
 *
 * The work must call step() often, because only step() reads the clock. Most calls only count.
 */
class DelayedWaitCursor
{
public:
    DelayedWaitCursor() { m_timer.start(); }
    DelayedWaitCursor(const DelayedWaitCursor&) = delete;
    DelayedWaitCursor& operator=(const DelayedWaitCursor&) = delete;

    void step()
    {
        if (--m_stepsToLook == 0) {
            look();
        }
    }

private:
    void look();

    QElapsedTimer m_timer;
    qint64 m_lastLookMs = 0;
    int m_stride = 1;
    int m_stepsToLook = 1;
    std::optional<OverrideCursor> m_cursor;
};

} // namespace morvane::ui
