// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QMessageBox>
#include <QObject>
#include <QString>
#include <QStringList>

#include <deque>

namespace morvane::test {

/**
 * Answers message boxes in a test, with one line for each question. It answers the questions of the save flow
 * (SaveFileDialog), on the native and on the Qt dialog, and those of the host itself. No window appears.
 *
 * @snippet 28-test-your-save-flow/main.cpp questions
 *
 * From construction to destruction it handles every QMessageBox that the program shows. A question that is not the next
 * one in the script is closed as with Escape, or with its first usable button if the box ignores Escape. So no test
 * waits for a person; isFinished() then returns false. GUI thread only. A QApplication must exist. Only one script may
 * exist at a time.
 */
class QuestionScript : public QObject
{
public:
    QuestionScript();
    ~QuestionScript() override;

    /**
     * Adds an answer to the end of the script.
     * @param text   part of the question's text; empty: any question
     * @param button the button that is clicked; the box must have it, and it must be enabled
     */
    QuestionScript& answers(const QString& text, QMessageBox::StandardButton button);

    /** The texts of all questions so far, in order. Questions that were not in the script are included. */
    const QStringList& asked() const { return m_asked; }
    /** Whether every answer of the script was given and no other question was asked. */
    bool isFinished() const { return m_answers.empty() && !m_wasSurprised; }

    /** @cond implementation */
    bool eventFilter(QObject* watched, QEvent* event) override;
    /** @endcond */

private:
    struct Answer
    {
        QString text;
        QMessageBox::StandardButton button;
    };

    void meet(QMessageBox& box);

    std::deque<Answer> m_answers;
    QStringList m_asked;
    bool m_wasSurprised = false;
};

} // namespace morvane::test
