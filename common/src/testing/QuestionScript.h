#pragma once

#include <QMessageBox>
#include <QObject>
#include <QString>
#include <QStringList>

#include <deque>

namespace morvane::test {

/**
 * Answers message boxes in a test, one line a question: those of the save flow (SaveFileDialog), on whichever dialog it
 * runs, and those of the host itself. No window appears.
 *
 * @snippet 28-test-your-save-flow/main.cpp questions
 *
 * From construction to destruction it serves every QMessageBox that the program shows. A question that is not the next
 * one in the script is closed as with Escape (or, where the box does not let that happen, with its first button), so
 * that no test waits for a person; isFinished() is false then. GUI thread only, a QApplication must be there, and one
 * script at a time.
 */
class QuestionScript : public QObject
{
public:
    QuestionScript();
    ~QuestionScript() override;

    /**
     * Adds an answer to the end of the script.
     * @param text   part of the question's text; empty: any question
     * @param button the button that is clicked; the box must have it
     */
    QuestionScript& answers(const QString& text, QMessageBox::StandardButton button);

    /** The texts of the questions so far, in order, also of those that were not in the script. */
    const QStringList& asked() const { return m_asked; }
    /** Whether every answer of the script was given, and nothing else asked. */
    bool isFinished() const { return m_answers.empty() && !m_wasSurprised; }

    /** @cond how it meets the boxes */
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
