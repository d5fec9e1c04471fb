// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/compat/ctkCompleterFwd.h"
#include "ui/qt/MorvaneUiExport.h"

#include <QComboBox>
#include <QCompleter>

#include <memory>

namespace morvane::ui {

/**
 * An editable combo box that offers only the entries that contain the typed text. It emits a signal for the outcome of
 * an edit: selectionComplete() when it was completed, editingCanceled() when it was cancelled. The edit mode
 * sets how the combo box is used.
 *
 * In the tables, "line" is the line edit, "suggestions" is the popup of the completer, and "popup list" is the popup of
 * the combo box.
 *
 * SingleEdit, the initial mode: an editor that exists for one edit, for instance in a table cell. It closes itself when
 * the edit ends.
 *
 * | where       | what the user does              | outcome                                                        |
 * |-------------|---------------------------------|----------------------------------------------------------------|
 * | line        | types                           | none: the first matching entry is marked                       |
 * | line        | Return, Enter, Tab              | selectionComplete(): the first entry that contains the text    |
 * | line        | Escape                          | editingCanceled(): the current entry stays                     |
 * | line        | Up, Down, wheel                 | none: the entry becomes current                                |
 * | line        | Shift+Tab, moves the focus away | none: text and entry stay unchanged                            |
 * | suggestions | Up, Down, Page Up, Page Down    | none: the marked entry is written into the line                |
 * | suggestions | Ctrl+Home, Ctrl+End             | the same                                                       |
 * | suggestions | Return, Enter, Tab after these  | selectionComplete(): exactly the marked entry                  |
 * | suggestions | Return, Enter, Tab otherwise    | selectionComplete(), as in the line                            |
 * | suggestions | click (when released)           | selectionComplete(): exactly this entry                        |
 * | suggestions | Escape                          | editingCanceled(), as in the line                              |
 * | popup list  | Up, Down                        | none: the entry becomes current                                |
 * | popup list  | Return, Enter                   | selectionComplete(): exactly this entry                        |
 * | popup list  | click; or arrow, drag, release  | selectionComplete(): exactly this entry                        |
 * | popup list  | Escape                          | editingCanceled(): back to the entry before the edit           |
 *
 * FormField: a field that stays open for many edits. The table above applies, with these differences:
 *
 * | where       | what the user does              | outcome                                                       |
 * |-------------|---------------------------------|---------------------------------------------------------------|
 * | line        | Return, Enter                   | selectionComplete(), or editingCanceled() if no entry matches |
 * | line        | moves the focus away in an edit | the same; with Tab, Shift+Tab or a click elsewhere            |
 * | line        | moves the focus away otherwise  | none                                                          |
 * | line        | wheel, without the focus        | selectionComplete(): exactly this entry                       |
 * | line        | another window, a menu          | none: the edit continues afterwards                           |
 * | line        | Escape in an edit               | editingCanceled()                                             |
 * | line        | Return, Enter, Escape otherwise | the parent dialog receives the key, too                       |
 * | suggestions | Escape                          | editingCanceled()                                             |
 * | popup list  | Tab, Shift+Tab                  | selectionComplete(): exactly this entry; the focus moves on   |
 *
 * In a FormField, a text that equals an entry, ignoring case, matches this entry, even if an earlier entry contains the
 * text. An empty text matches only an entry with an empty text. An edit begins when the user types, marks an entry or
 * steps to an entry. A text that the program sets in the line is an edit, too, if it is not the text of the current
 * entry. When an edit is cancelled, the entry from before the edit is current again, and the line shows its text. Call
 * validateEntry() before you read the combo box during an edit, for instance in a shortcut that does not move the
 * focus.
 *
 * In both modes:
 *
 * - An entry that was picked or marked is chosen even if another entry has the same text or contains it. If the user
 *   types after that, the text of the line decides again.
 * - An outcome closes the open popup. A key that caused an outcome does not reach the parent dialog, except Return
 *   without an edit.
 * - A user cannot choose a disabled entry.
 * - Each outcome emits its signal once. A slot of either signal may delete the combo box.
 * - In an item view the delegate receives Tab first. Its setModelData() must call validateEntry() and store the text of
 *   the current entry, not currentText(), which is the text of the line.
 *
 * Set it up with setListModel(), or with setList() and then setCompleterAttributes(). Before that, nothing is filtered.
 * The suggestions are from the model and the column that the combo box shows, also after these change.
 *
 * @snippet 07-filter-a-list/main.cpp filter
 *
 * Texts can also be compared by words, and without accents, and the suggestions can show what was found:
 *
 * @snippet 32-words-in-any-order/main.cpp words
 *
 * In a SingleEdit, "the entry before the edit" is recorded only once: it is the current entry when the list is first
 * opened or an entry is first activated. So create a new SingleEdit for each edit, or use a FormField.
 *
 * GUI thread only.
 */
class MORVANE_UI_EXPORT ComboBoxAutoFilter : public QComboBox
{
    Q_OBJECT
    /** Whether entries are filtered. For forms made with Qt Designer; set it after the property `editable`. */
    Q_PROPERTY(bool filtering READ isFiltering WRITE setFiltering)
    /** SingleEdit initially. A new combo box in Qt Designer is a FormField. */
    Q_PROPERTY(EditMode editMode READ editMode WRITE setEditMode)
    /** Whether the text is a list of words that an entry must contain; false initially. */
    Q_PROPERTY(bool matchingWords READ isMatchingWords WRITE setMatchingWords)
    /** Whether a letter with an accent equals the letter without it; false initially. */
    Q_PROPERTY(bool ignoringAccents READ isIgnoringAccents WRITE setIgnoringAccents)
    /** Whether the suggestions show in bold where they contain the text; false initially. */
    Q_PROPERTY(bool matchShown READ isMatchShown WRITE setMatchShown)

public:
    /** How the combo box is used. */
    enum EditMode
    {
        SingleEdit, ///< exists for one edit, and closes itself when the edit ends
        FormField   ///< stays open; each edit has its own outcome
    };
    Q_ENUM(EditMode)

    /** @param parent owner; null: a top-level window that the caller deletes */
    explicit ComboBoxAutoFilter(QWidget* parent);
    ~ComboBoxAutoFilter() override;

    /** Appends entries. Does not set up the filtering; call setCompleterAttributes() for that. */
    void setList(const QStringList& items);

    /**
     * Sets the model, as QComboBox::setModel() does, and sets up the filtering, as setCompleterAttributes() does.
     *
     * @param model not null. The caller keeps the ownership, unless the combo box is the parent of the model. The model
     *              may be shared.
     * @param editable,mode,cs,elide,match see setCompleterAttributes()
     */
    void setListModel(QAbstractItemModel* model, bool editable, QCompleter::CompletionMode mode, Qt::CaseSensitivity cs,
        Qt::TextElideMode elide, Qt::MatchFlag match);

    /**
     * Sets up the filtering for the current model, with a new line edit and a new completer. The new line edit takes
     * over the current text. Can be called again.
     *
     * @param editable passed to setEditable(). The combo box gets a line edit, and so is editable, in either case.
     * @param mode     how the completer shows the matching entries
     * @param cs       case sensitivity of the completer. The search at the end of an edit ignores case.
     * @param elide    how the popup of the completer shortens long entries; no effect if the mode has no popup
     * @param match    no effect: the matching entries are always those that contain the text
     */
    void setCompleterAttributes(bool editable, QCompleter::CompletionMode mode, Qt::CaseSensitivity cs,
        Qt::TextElideMode elide, Qt::MatchFlag match);

    /** Whether the filtering is set up. */
    bool isFiltering() const;
    /**
     * True sets up the filtering for a form field: a popup offers the entries that contain the text, ignoring case.
     * False removes the filtering and makes the combo box not editable. Does nothing if the state is already the
     * requested one.
     */
    void setFiltering(bool on);

    /** SingleEdit initially. */
    EditMode editMode() const;
    /** Call it before an edit begins. */
    void setEditMode(EditMode mode);

    /** False initially. */
    bool isMatchingWords() const;
    /**
     * True: an entry contains a text if it contains each word of the text, in any order; words are separated by blanks.
     * So "pump 2" finds "2nd pump". Applies wherever this class compares what an entry contains: to the suggestions of
     * a completer with a popup, and to the entry that is chosen at the end of an edit. A text of blanks only counts as
     * empty.
     */
    void setMatchingWords(bool on);

    /** False initially. */
    bool isIgnoringAccents() const;
    /**
     * True: letters with and without accents are equal, so "Muller" finds "Müller", and the other way round. A letter
     * with a stroke, such as ø, is a letter of its own. Applies as setMatchingWords() does.
     */
    void setIgnoringAccents(bool on);

    /** False initially. */
    bool isMatchShown() const;
    /**
     * True: the suggestions show the text, or its words, in bold wherever they have it. Replaces the delegate of the
     * completer's popup.
     */
    void setMatchShown(bool on);

    /**
     * Makes the entry current that matches the line. That is the entry that the user picked or marked, as long as the
     * line shows it. Otherwise it is the first entry that contains the text of the line, ignoring case; for an empty
     * text it is the first entry of all. So the typed text "Car" matches an entry "Scar" that is above "Car". In a
     * FormField an entry that equals the text is preferred, and an empty text matches only an entry with an empty text.
     *
     * Disabled entries never match. No outcome is emitted. An edit in a FormField continues; if it is cancelled later,
     * this entry is current again.
     *
     * @return false if no entry matches or there is no line edit; nothing changes then. Otherwise true. A SingleEdit in
     * which Escape was pressed always returns true and changes nothing.
     */
    bool validateEntry();

    /**
     * Makes the first entry current whose text is exactly @p text, case-sensitive. Then, found or not, selects as many
     * characters at the start of the line as @p text has.
     */
    void setSelectedText(const QString& text);

    /** Makes the first entry current whose Qt::UserRole data equals @p value. If there is none, nothing happens. */
    void setFromValue(const QVariant& value);

    /**
     * Opens the whole list. If an entry matches the line, as in validateEntry(), this entry becomes current first, and
     * the list opens at it.
     */
    void showPopup() override;

Q_SIGNALS:
    /**
     * Emitted when an entry was picked or the edit ended. A SingleEdit has already closed itself. currentIndex() is the
     * outcome. In a SingleEdit it is unchanged if no entry matches the text of the line.
     */
    void selectionComplete();
    /**
     * Emitted when the edit was cancelled. A SingleEdit has already closed itself. A FormField shows the entry from
     * before the edit.
     */
    void editingCanceled();

protected:
    /** Passes Tab to the line edit, or ends the edit of a form field with Tab. */
    bool event(QEvent* event) override;
    /** Handles the keys and clicks in the two popups. */
    bool eventFilter(QObject* watched, QEvent* event) override;
    /** Marks the entry that matches the text from an input method. */
    void inputMethodEvent(QInputMethodEvent* event) override;
    /** Makes the next entry current, as QComboBox does. In a form field without the focus, this ends the edit. */
    void wheelEvent(QWheelEvent* event) override;
    /** Continues an edit. */
    void focusInEvent(QFocusEvent* event) override;
    /** Ends the edit of a form field. */
    void focusOutEvent(QFocusEvent* event) override;

private Q_SLOTS:
    void onItemClicked(const QModelIndex& index);
    void onEditingFinished();
    void onEditingCanceled();
    void onCurrentIndexChanged(const QModelIndex& index);
    void onItemActivated(int index);

private:
    using ctkCompleter = compat::ctkCompleter;

    struct Impl;

    void keyPressEvent(QKeyEvent* event) override;
    void finishEditing();

    void init(bool editable, QCompleter::CompletionMode mode, Qt::CaseSensitivity cs, Qt::TextElideMode elide,
        Qt::MatchFlag match);
    void connectLine();

    bool takeOutcome();
    void closeSelf();
    void cancelEdit();
    void watchFocus();

    bool filterListKey(QKeyEvent& event);
    bool filterListTab(QKeyEvent& event);
    bool filterListRelease(QObject& viewport, QMouseEvent& event);
    bool handleFieldKey(QKeyEvent& event);
    bool handleFieldReturn(QKeyEvent& event);

    bool m_itemClicked = false;
    bool m_escapePressed = false;
    int m_indexBeforeEdit = -1;
    ctkCompleter* m_completer = nullptr;
    std::unique_ptr<Impl> m_impl;
};

} // namespace morvane::ui
