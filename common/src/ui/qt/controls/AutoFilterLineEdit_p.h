// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCompleter>
#include <QLineEdit>
#include <QPointer>

class QComboBox;

namespace morvane::ui {

/**
 * The editor line of ComboBoxAutoFilter.
 *
 * Return, Enter and Tab emit editingFinished() for any text. The line itself never moves the focus on Tab.
 * After each key, and after a text from an input method, the completer's current entry is marked in the completer's
 * popup, and the line keeps what was typed. Losing the focus neither ends nor changes the editing.
 */
class AutoFilterLineEdit : public QLineEdit
{
public:
    explicit AutoFilterLineEdit(QWidget* parent = nullptr);

    /** The line of a combo box. Null if the line has another class. */
    static AutoFilterLineEdit* of(const QComboBox& box);

    /** While it exists, a completer does not write its entries into the line edit. */
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

    /** Whether the event is the key press with which Qt moves the focus to the next widget: Tab, but not Ctrl+Tab. */
    static bool isTabPress(const QEvent& event);

    /** Marks a suggestion in the completer's popup, or none if it is invalid, and calls keepMark(). */
    void markSuggestion(const QModelIndex& suggestion);
    /** Does not change the mark in the completer's popup until the text is edited. */
    void keepMark() { m_keepsMark = true; }
    bool keepsMark() const { return m_keepsMark; }

    /** Shows the line like a line without the focus: without cursor and selection. Emits no signal. */
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
