// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPointer>

class QEvent;
class QMouseEvent;

namespace morvane::ui {

/** Sends an event to its receiver from an event filter, so that the filter can act before and after the receiver. */
class EventResender
{
public:
    /** @param filter the object with the event filter; it owns this object */
    explicit EventResender(QObject& filter);

    /** Whether resend() is sending this event. The filter must not handle it then. */
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
