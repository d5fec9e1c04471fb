#pragma once

#include <QPointer>

class QEvent;
class QMouseEvent;

namespace morvane::ui {

/** Lets an event filter send an event to its receiver itself, to act before and after the receiver has handled it. */
class EventResender
{
public:
    /** @param filter the object with the event filter; it owns this one */
    explicit EventResender(QObject& filter);

    /** Whether the event is one that resend() is sending. The filter lets it pass. */
    bool isResent(const QEvent& event) const { return &event == m_resent; }

    /** Sends an event. Returns false when the filter was destroyed meanwhile. */
    bool resend(QObject& receiver, QEvent& event);
    /** Sends the same mouse event at a place outside of the receiver. Returns what resend() returns. */
    bool resendOutside(QObject& receiver, const QMouseEvent& event);

private:
    const QPointer<QObject> m_filter;
    const QEvent* m_resent = nullptr;
};

} // namespace morvane::ui
