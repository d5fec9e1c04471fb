#pragma once

#include <QCompleter>
#include <QLineEdit>
#include <QPointer>

namespace morvane::ui {

/**
 * The editor line of ComboBoxAutoFilter.
 *
 * Return, Enter and Tab emit editingFinished() whatever the line holds, even where other widgets wait for the focus.
 * After each key, and after a text from an input method, the completer's current entry is marked in the completer's
 * popup, and the line keeps what was typed. Losing the focus neither ends nor changes the editing.
 */
class AutoFilterLineEdit : public QLineEdit
{
public:
    explicit AutoFilterLineEdit(QWidget* parent = nullptr);

    /** Cuts a line edit off from the completer's entries, and lets them be written into it again when it goes. */
    class CompleterDetached
    {
    public:
        CompleterDetached(QLineEdit& line, QCompleter& completer);
        ~CompleterDetached();
        CompleterDetached(const CompleterDetached&) = delete;
        CompleterDetached& operator=(const CompleterDetached&) = delete;

    private:
        const QPointer<QLineEdit> m_line;
        const QPointer<QCompleter> m_completer;
    };

    /** Whether it is the press of the Tab key that Qt uses for moving the focus on, not Backtab and not Ctrl+Tab. */
    static bool isTabPress(const QEvent& event);

    /** Marks an entry in the completer's popup, and keeps it marked until the text is edited. */
    void markSuggestion(const QModelIndex& suggestion);
    /** What is marked in the completer's popup, or that nothing is, stays so until the text is edited. */
    void keepMark() { m_keepsMark = true; }
    bool keepsMark() const { return m_keepsMark; }

    /** Looks as a line without the focus does: no cursor, nothing selected. Does not tell that the editing is over. */
    void showUnfocused(QFocusEvent& event);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void markCurrentCompletion();

    bool m_keepsMark = false;
};

} // namespace morvane::ui
