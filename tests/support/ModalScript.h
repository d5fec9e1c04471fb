// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <deque>
#include <functional>

namespace morvane::test {

/**
 * Plays the user in modal loops: each step waits for a modal window of its type and then acts on it.
 *
 * @code
 * ModalScript user;
 * user.on<QFileDialog>([](QFileDialog& dialog) { ... press Save ... });
 * user.on<QMessageBox>([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
 * dialog.exec();
 * EXPECT_TRUE(user.finished());
 * @endcode
 *
 * Steps run in the order given, each once. A step may open further modal loops, in which the next steps run. When the
 * steps take longer than the time limit, the script fails the test and ends every modal loop, so that it never hangs.
 */
class ModalScript : public QObject
{
public:
    static constexpr int defaultTimeLimitMs = 20000;

    explicit ModalScript(int timeLimitMs = defaultTimeLimitMs);
    ~ModalScript() override;

    template <typename Dialog>
    ModalScript& on(std::function<void(Dialog&)> action)
    {
        m_steps.push_back([action = std::move(action)](QWidget* modal) {
            auto* const dialog = qobject_cast<Dialog*>(modal);
            if (dialog) {
                action(*dialog);
            }
            return dialog != nullptr;
        });
        return *this;
    }

    /** Whether every step has run and the script did not give up. */
    bool finished() const { return m_steps.empty() && !m_gaveUp; }

private:
    // Returns whether this was the window that the step waits for. The step is removed from the list before the call.
    using Step = std::function<bool(QWidget*)>;

    void poll();
    void giveUp();

    std::deque<Step> m_steps;
    QPointer<QWidget> m_current; // the window of the running step; while that step waits, the next one must not begin
    QTimer m_poll;
    QTimer m_watchdog;
    bool m_gaveUp = false;
};

} // namespace morvane::test
