#pragma once

#include "ui/qt/MorvaneUiExport.h"

#include <QComboBox>
#include <QCompleter>

#include <memory>

class ctkCompleter;

namespace morvane::ui {

/**
 * An editable combo box that narrows its entries to those that contain what is typed, and that finishes itself: when an
 * entry is picked, or the editing is ended or cancelled with a key, it closes its own widget and announces the outcome.
 * Good as an editor that lives for one edit, in a table cell for instance, and as a field of a form.
 *
 * | where                   | key                            | outcome                                               |
 * |-------------------------|--------------------------------|-------------------------------------------------------|
 * | line, completer's popup | Return, Enter, Tab             | selectionComplete(): first entry with the line's text |
 * | line, completer's popup | Escape                         | editingCanceled(): the current entry stays            |
 * | line                    | Shift+Tab, losing the focus    | none: text and entry stay as they are                 |
 * | completer's popup       | Up, Down                       | none: marks an entry and leaves the line alone        |
 * | popup list              | Up, Down                       | none: the entry becomes current                       |
 * | popup list              | Return, Enter, a clicked entry | selectionComplete(), as Return in the line            |
 * | popup list              | Escape                         | editingCanceled(): back to the entry before the edit  |
 *
 * Each of these announces once. A slot on either signal may delete the combo box. In an item view the delegate sees Tab
 * first; let its setModelData() call validateEntry().
 *
 * Set it up with setListModel(), or with setList() and then setCompleterAttributes(). Until then nothing is filtered,
 * and there is no line to finish in.
 *
 * @snippet 07-filter-a-list/main.cpp filter
 *
 * "The entry before the edit" is the current one when the list was first opened or an entry first activated in the life
 * of the combo box, for all edits: make a new one for each edit where that matters.
 *
 * GUI thread only.
 */
class MORVANE_UI_EXPORT ComboBoxAutoFilter : public QComboBox
{
    Q_OBJECT
    /** Whether entries are filtered. Here for forms made with Qt Designer; set after the property `editable`. */
    Q_PROPERTY(bool filtering READ isFiltering WRITE setFiltering)
    /** What the combo box is there for. */
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

    /** SingleEdit at first. To be set before an edit begins. */
    EditMode editMode() const;
    void setEditMode(EditMode mode);

    /**
     * Makes the first entry current that contains the line's text, whatever its case; of an empty text that is the
     * first entry of all. So a picked "Car" gives way to a "Scar" above it.
     *
     * @return false, with everything left alone, when no entry contains the text or there is no line; true otherwise,
     * and always, with everything left alone, once Escape has been pressed in the combo box
     */
    bool validateEntry();

    /**
     * Makes the first entry current whose text is exactly this one, with case. Then, found or not, selects as many
     * characters at the start of the line as the text has.
     */
    void setSelectedText(const QString& text);

    /** Makes the first entry current whose Qt::UserRole data equals the value; without one, nothing happens. */
    void setFromValue(const QVariant& value);

    /** Opens the popup list, at the first entry that contains the line's text when there is one. */
    void showPopup() override;

Q_SIGNALS:
    /** An entry was picked or the editing ended, and the widget has closed itself. currentIndex() is the outcome. */
    void selectionComplete();
    /** The editing was cancelled, and the widget has closed itself. */
    void editingCanceled();

protected:
    /** Gives Tab to the line, or ends the edit of a form field with it. */
    bool event(QEvent* event) override;
    /** Watches the keys and clicks in the two popups. */
    bool eventFilter(QObject* watched, QEvent* event) override;
    /** Marks what fits the text that an input method brings. */
    void inputMethodEvent(QInputMethodEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
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
    void followModel();

    QModelIndex currentEntry() const;
    QAbstractItemView* suggestions() const;
    bool hasUnfinishedEdit() const;
    int findOutcome() const;
    bool takeOutcome();
    void takeRow(int row);
    void announceActivation();
    void closeSelf();
    void cancelEdit();
    void watchFocusFromAway();

    bool resend(QObject& receiver, QEvent& event);
    bool resendOutside(QObject& viewport, const QMouseEvent& event);
    bool filterListKey(QKeyEvent& event);
    bool filterListTab(QKeyEvent& event);
    bool filterListRelease(QObject& viewport, QMouseEvent& event);
    bool filterSuggestions(QObject& viewport, QEvent& event);
    bool filterSuggestionRelease(QObject& viewport, QMouseEvent& event);
    bool filterCompleterKey(QObject& popup, QKeyEvent& event);
    void moveCompleterMark(QObject& popup, QKeyEvent& event);
    void followCompleterMark();
    void markOutcome();
    bool handleFieldKey(QKeyEvent& event);
    bool handleFieldReturn(QKeyEvent& event);

    bool m_itemClicked = false;
    bool m_escapePressed = false;
    int m_indexBeforeEdit = -1;
    ctkCompleter* m_completer = nullptr;
    Announcement m_announcement = Announcement::AtOnce;
    const QEvent* m_resent = nullptr;
    std::unique_ptr<Impl> m_impl;
};

} // namespace morvane::ui
