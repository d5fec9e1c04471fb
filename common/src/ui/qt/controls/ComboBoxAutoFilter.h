#pragma once

#include "ui/qt/compat/ctkCompleterFwd.h"
#include "ui/qt/MorvaneUiExport.h"

#include <QComboBox>
#include <QCompleter>

#include <memory>

namespace morvane::ui {

/**
 * An editable combo box that narrows its entries to those that contain what is typed, and that announces what became of
 * the editing: an entry was taken, or the editing was cancelled. What it is there for is its edit mode.
 *
 * SingleEdit, at first: an editor that lives for one edit, in a table cell for instance. With the outcome it closes its
 * own widget.
 *
 * | where       | what a user does               | outcome                                               |
 * |-------------|--------------------------------|-------------------------------------------------------|
 * | line        | types                          | none: the first entry that fits is marked             |
 * | line        | Return, Enter, Tab             | selectionComplete(): first entry with the line's text |
 * | line        | Escape                         | editingCanceled(): the current entry stays            |
 * | line        | Up, Down, wheel                | none: the entry becomes current                       |
 * | line        | Shift+Tab, leaves it           | none: text and entry stay as they are                 |
 * | suggestions | Up, Down, Page Up, Page Down   | none: the marked entry is written into the line       |
 * | suggestions | Ctrl+Home, Ctrl+End            | the same                                              |
 * | suggestions | Return, Enter, Tab after these | selectionComplete(): exactly the marked entry         |
 * | suggestions | Return, Enter, Tab otherwise   | selectionComplete(), as in the line                   |
 * | suggestions | a click, letting the mouse go  | selectionComplete(): exactly this entry               |
 * | suggestions | Escape                         | editingCanceled(), as in the line                     |
 * | popup list  | Up, Down                       | none: the entry becomes current                       |
 * | popup list  | Return, Enter                  | selectionComplete(): exactly this entry               |
 * | popup list  | a click; arrow, drag, let go   | selectionComplete(): exactly this entry               |
 * | popup list  | Escape                         | editingCanceled(): back to the entry before the edit  |
 *
 * FormField: a field that stays, for many edits. The same roads lead to the same entries, with these differences:
 *
 * | where       | what a user does           | outcome                                                   |
 * |-------------|----------------------------|-----------------------------------------------------------|
 * | line        | Return, Enter              | selectionComplete(), or editingCanceled() if nothing fits |
 * | line        | leaves it after an edit    | the same; so with Tab, Shift+Tab, a click elsewhere       |
 * | line        | leaves it without an edit  | none                                                      |
 * | line        | wheel, without the focus   | selectionComplete(): exactly this entry                   |
 * | line        | another window, a menu     | none: the edit goes on afterwards                         |
 * | line        | Escape during an edit      | editingCanceled()                                         |
 * | line        | Return, Enter, Escape else | the dialog around gets the key, too                       |
 * | suggestions | Escape                     | editingCanceled()                                         |
 * | popup list  | Tab, Shift+Tab             | selectionComplete(): exactly this entry; moves on         |
 *
 * In a FormField, a text that equals an entry, whatever the case, stands for this entry before one that merely contains
 * it, and an empty text stands for none. An edit begins with what a user types, marks or steps to; a text that the
 * program has put into the line, and that is not the current entry's, counts as one, too. Whenever one is cancelled,
 * the entry from before it is current again, and the line shows its text. Reading the combo box during an
 * edit, for instance from a shortcut that leaves the focus where it is, starts with validateEntry().
 *
 * In both modes: an entry that was picked or marked is taken even where another one has the same text or contains it.
 * Typing on after that goes by the line's text again. What is open is closed with the outcome, and the dialog around
 * never gets a key that has made one, but for a Return without an edit. No road leads a user to a disabled entry. Each
 * outcome is announced once, and a slot on either signal may delete the combo box. In an item view the delegate sees
 * Tab first; let its setModelData() call validateEntry() and store the text of the entry, not currentText(), which is
 * what stands in the line.
 *
 * Set it up with setListModel(), or with setList() and then setCompleterAttributes(). Until then nothing is filtered.
 * Suggestions come from the model and from the column that the combo box shows, also when these change later.
 *
 * @snippet 07-filter-a-list/main.cpp filter
 *
 * "The entry before the edit" is, in a SingleEdit, the current one when the list was first opened or an entry first
 * activated in the life of the combo box, for all edits: make a new one for each edit, or a FormField.
 *
 * GUI thread only.
 */
class MORVANE_UI_EXPORT ComboBoxAutoFilter : public QComboBox
{
    Q_OBJECT
    /** Whether entries are filtered. Here for forms made with Qt Designer; set after the property `editable`. */
    Q_PROPERTY(bool filtering READ isFiltering WRITE setFiltering)
    /** SingleEdit at first; new ones in Qt Designer are FormFields. */
    Q_PROPERTY(EditMode editMode READ editMode WRITE setEditMode)

public:
    /** What the combo box is there for. */
    enum EditMode
    {
        SingleEdit, ///< it is made for one edit, and closes itself with the outcome
        FormField   ///< it stays, and each edit has an outcome of its own
    };
    Q_ENUM(EditMode)

    /** @param parent owner; null for a window of its own that the caller deletes */
    explicit ComboBoxAutoFilter(QWidget* parent);
    ~ComboBoxAutoFilter() override;

    /** Appends entries. Filtering is another step, setCompleterAttributes(). */
    void setList(const QStringList& items);

    /**
     * Takes the entries from a model, as QComboBox::setModel() does, and sets the filtering up over it as
     * setCompleterAttributes() does.
     *
     * @param model not null; stays the caller's and may be shared, unless the combo box is its parent
     * @param editable,mode,cs,elide,match as setCompleterAttributes() takes them
     */
    void setListModel(QAbstractItemModel* model, bool editable, QCompleter::CompletionMode mode, Qt::CaseSensitivity cs,
        Qt::TextElideMode elide, Qt::MatchFlag match);

    /**
     * Sets the filtering up over the current model, with a new line, which takes over the current text, and a new
     * completer. Can be called again.
     *
     * @param editable handed to setEditable(); the line comes either way, and so the combo box can be edited either way
     * @param mode     how the completer offers the entries that fit
     * @param cs       whether the completer heeds case; ending the editing never does
     * @param elide    how the completer's popup shortens long entries; without effect where the mode has no popup
     * @param match    without effect: the entries that fit are always those that contain the text
     */
    void setCompleterAttributes(bool editable, QCompleter::CompletionMode mode, Qt::CaseSensitivity cs,
        Qt::TextElideMode elide, Qt::MatchFlag match);

    /** Whether the filtering is set up. */
    bool isFiltering() const;
    /**
     * Sets the filtering up, unless it is, as a form field wants it: a popup offers the entries that fit, whatever
     * their case. Or takes it down, unless there is none, and leaves a combo box without a line.
     */
    void setFiltering(bool on);

    /** SingleEdit at first. */
    EditMode editMode() const;
    /** To be called before an edit begins. */
    void setEditMode(EditMode mode);

    /**
     * Makes the entry current that the line stands for: the one that a user has picked or marked, as long as the line
     * shows it; otherwise the first one that contains the line's text, whatever its case, which of an empty text is the
     * first of all. So a "Car" that is typed gives way to a "Scar" above it. In a FormField an entry that equals the
     * text goes first, and an empty text stands for no other. Disabled entries do not count. Announces nothing;
     * an edit in a FormField goes on, and is cancelled to this entry.
     *
     * @return false, with everything left alone, when there is no such entry or no line; true otherwise, and in a
     * SingleEdit always, with everything left alone, once Escape has been pressed in the combo box
     */
    bool validateEntry();

    /**
     * Makes the first entry current whose text is exactly this one, with case. Then, found or not, selects as many
     * characters at the start of the line as the text has.
     */
    void setSelectedText(const QString& text);

    /** Makes the first entry current whose Qt::UserRole data equals the value; without one, nothing happens. */
    void setFromValue(const QVariant& value);

    /** Opens the whole list, at the entry that the line stands for when there is one. It is current then. */
    void showPopup() override;

Q_SIGNALS:
    /**
     * An entry was picked or the editing ended. A SingleEdit has closed itself. currentIndex() is the outcome; in a
     * SingleEdit it is what it was before when no entry fits the line's text.
     */
    void selectionComplete();
    /** The editing was cancelled. A SingleEdit has closed itself; a FormField shows the entry from before the edit. */
    void editingCanceled();

protected:
    /** Gives Tab to the line, or ends the edit of a form field with it. */
    bool event(QEvent* event) override;
    /** Watches the keys and clicks in the two popups. */
    bool eventFilter(QObject* watched, QEvent* event) override;
    /** Marks what fits the text that an input method brings. */
    void inputMethodEvent(QInputMethodEvent* event) override;
    /** Makes the next entry current, as QComboBox does; an edit of a form field without the focus ends with it. */
    void wheelEvent(QWheelEvent* event) override;
    /** Goes on with an edit. */
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

    enum class Announcement
    {
        AtOnce,
        Held,
        Due
    };
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
    Announcement m_announcement = Announcement::AtOnce;
    std::unique_ptr<Impl> m_impl;
};

} // namespace morvane::ui
