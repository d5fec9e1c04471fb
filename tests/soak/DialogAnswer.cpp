// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "soak/DialogAnswer.h"

#include <QApplication>
#include <QDialog>

#include <utility>

namespace morvane::test {

DialogAnswer::DialogAnswer(std::function<bool()> answer, int intervalMs)
{
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this, answer = std::move(answer)] {
        m_timer.stop(); // an answer may run a loop of its own
        m_answered = answer();
        if (!m_answered) {
            m_timer.start();
        }
    });
    m_timer.start(intervalMs);
}

DialogAnswer::~DialogAnswer()
{
    if (!m_answered) {
        qFatal("no dialog has opened");
    }
}

bool DialogAnswer::cancelQtDialog()
{
    auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialog) {
        dialog->reject();
    }
    return dialog != nullptr;
}

} // namespace morvane::test
