// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/util/DelayedWaitCursor_p.h"

#include <algorithm>
#include <limits>

namespace morvane::ui {

namespace {

constexpr qint64 patienceMs = 500;
constexpr qint64 briskMs = 5;
constexpr int longestStride = 256;

} // namespace

void DelayedWaitCursor::look()
{
    const qint64 nowMs = m_timer.elapsed();
    if (m_cursor || nowMs >= patienceMs) {
        if (!m_cursor) {
            m_cursor.emplace(Qt::WaitCursor);
        }
        m_stepsToLook = std::numeric_limits<int>::max();
        return;
    }
    // Reading the clock takes as long as a quick step. So it is read less often while steps are quick. While steps are
    // slow, it is read more often, so that the cursor is not late.
    const bool brisk = nowMs - m_lastLookMs < briskMs;
    m_stride = brisk ? std::min(2 * m_stride, longestStride) : std::max(m_stride / 2, 1);
    m_stepsToLook = m_stride;
    m_lastLookMs = nowMs;
}

} // namespace morvane::ui
