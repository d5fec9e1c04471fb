// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QTimer>

#include <functional>

namespace morvane::test {

/**
 * Answers the modal dialog that is about to open, from within its loop. The destructor ends the program if there was no
 * dialog to answer, because then nothing was tested.
 */
class DialogAnswer
{
public:
    /** @param answer looks whether the dialog is open and answers it; called again until it returns true */
    explicit DialogAnswer(std::function<bool()> answer, int intervalMs = 0);
    ~DialogAnswer();
    DialogAnswer(const DialogAnswer&) = delete;
    DialogAnswer& operator=(const DialogAnswer&) = delete;

    /** Cancels a dialog of Qt's widgets. */
    static bool cancelQtDialog();

private:
    QTimer m_timer;
    bool m_answered = false;
};

} // namespace morvane::test
