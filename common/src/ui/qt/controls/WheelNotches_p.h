#pragma once

#include <QPoint>
#include <QWheelEvent>

#include <cstdlib>

namespace morvane::ui {

/** Adds up what wheels and touchpads report of a notch, until it is a whole one. */
class WheelNotches
{
public:
    /**
     * Takes in a turn and returns how far it leads in whole notches: a multiple of 120, positive for up, 0 for none.
     * A turn that goes more sideways than up or down counts as none. The part of a notch that is left over is kept for
     * the next turn in the same direction.
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

/** The same turn by whole notches. */
inline QWheelEvent turnBy(int wholeNotches, const QWheelEvent& turn)
{
    return {turn.position(), turn.globalPosition(), turn.pixelDelta(), QPoint(0, wholeNotches), turn.buttons(),
        turn.modifiers(), turn.phase(), turn.inverted(), turn.source()};
}

/** Whether a turn of the wheel ends with this event: what is left of a notch then does not wait for the next turn. */
inline bool endsTurn(const QEvent& event)
{
    return event.type() == QEvent::FocusOut || event.type() == QEvent::Leave;
}

} // namespace morvane::ui
