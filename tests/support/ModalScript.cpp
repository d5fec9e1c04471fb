// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "support/ModalScript.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>

#include <utility>

namespace morvane::test {

namespace {

constexpr int pollIntervalMs = 5;

} // namespace

ModalScript::ModalScript(int timeLimitMs)
{
    connect(&m_poll, &QTimer::timeout, this, [this] { poll(); });
    connect(&m_watchdog, &QTimer::timeout, this, [this] { giveUp(); });
    m_poll.setSingleShot(true);
    m_poll.start(pollIntervalMs);
    m_watchdog.start(timeLimitMs);
}

ModalScript::~ModalScript()
{
    if (!m_steps.empty() && !m_gaveUp) {
        ADD_FAILURE() << m_steps.size() << " steps of the script were never reached";
    }
}

void ModalScript::poll()
{
    // Starts again before the step: a timer does not fire within its own slot, and the step may open another loop
    // there.
    m_poll.start(pollIntervalMs);
    QWidget* const modal = QApplication::activeModalWidget();
    if (m_gaveUp || m_steps.empty() || !modal || !modal->isVisible() || modal == m_current) {
        return;
    }
    // The step may open a modal loop of its own, in which the next step is due.
    const QPointer<ModalScript> self(this);
    Step step = std::move(m_steps.front());
    m_steps.pop_front();
    const QPointer<QWidget> outer = std::exchange(m_current, modal);
    const bool done = step(modal);
    if (!self) {
        return;
    }
    m_current = outer;
    if (!done) {
        m_steps.push_front(std::move(step));
    }
}

void ModalScript::giveUp()
{
    if (m_steps.empty() && !QApplication::activeModalWidget()) {
        return;
    }
    if (!m_gaveUp) {
        m_gaveUp = true;
        ADD_FAILURE() << "the script hung with " << m_steps.size() << " steps left";
        m_watchdog.start(50);
    }
    if (auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
        dialog->reject();
    }
}

} // namespace morvane::test
