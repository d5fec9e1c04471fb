// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/controls/EventResender_p.h"

#include <QCoreApplication>
#include <QCursor>
#include <QMouseEvent>

#include <utility>

namespace morvane::ui {

EventResender::EventResender(QObject& filter) : m_filter(&filter) {}

bool EventResender::resend(QObject& receiver, QEvent& event)
{
    const QPointer<QObject> filter = m_filter;
    const QEvent* const outer = std::exchange(m_resent, &event);
    QCoreApplication::sendEvent(&receiver, &event);
    if (filter) {
        m_resent = outer;
    }
    return filter;
}

bool EventResender::resendOutside(QObject& receiver, const QMouseEvent& event)
{
    QMouseEvent outside(
        event.type(), QPointF(-1, -1), QCursor::pos(), event.button(), event.buttons(), event.modifiers());
    return resend(receiver, outside);
}

} // namespace morvane::ui
