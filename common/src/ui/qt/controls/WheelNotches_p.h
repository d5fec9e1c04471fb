// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPoint>
#include <QWheelEvent>

#include <cstdlib>

namespace morvane::ui {

/** Adds up the parts of a notch that wheels and touchpads report. */
class WheelNotches
{
public:
    /**
     * Adds a turn and returns the angle of the whole notches: a multiple of 120, positive for up, 0 for none. Ignores a
     * turn that is more horizontal than vertical. Keeps the rest for the next turn in the same direction.
     */
    int add(const QWheelEvent& turn)
    {
        const QPoint angle = turn.angleDelta();
        if (angle.y() == 0 || std::abs(angle.x()) > std::abs(angle.y())) {
            return 0;
        }
        if ((angle.y() > 0) != (m_part > 0)) {
            m_part = 0;
        }
        m_part += angle.y();
        const int whole = m_part / QWheelEvent::DefaultDeltasPerStep * QWheelEvent::DefaultDeltasPerStep;
        m_part -= whole;
        return whole;
    }

    void forgetPart() { m_part = 0; }

private:
    int m_part = 0;
};

/** A copy of the event with the angle of whole notches. */
inline QWheelEvent turnBy(int wholeNotches, const QWheelEvent& turn)
{
    return {turn.position(), turn.globalPosition(), turn.pixelDelta(), QPoint(0, wholeNotches), turn.buttons(),
        turn.modifiers(), turn.phase(), turn.inverted(), turn.source()};
}

/** Whether a turn of the wheel ends with this event. The rest of a notch is dropped then. */
inline bool endsTurn(const QEvent& event)
{
    return event.type() == QEvent::FocusOut || event.type() == QEvent::Leave;
}

} // namespace morvane::ui
