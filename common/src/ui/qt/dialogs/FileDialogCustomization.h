// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/ValidationResult.h"
#include "property/PropertyAbstract.h"
#include "ui/qt/MorvaneUiExport.h"
#include "ui/qt/util/QtText.h"

#include <QStringList>

#include <boost/function.hpp>
#include <boost/shared_ptr.hpp>

#include <memory>
#include <string>
#include <utility>
#include <vector>

class QWidget;

namespace morvane::ui {

class CustomizationTarget;

/**
 * What a host can add to a file dialog: controls, texts, places, a memory for folder and size, and a check of what the
 * user accepts. It is the same for every dialog of this library that has a customization(), with native dialogs and
 * with Qt's, for opening and for saving. So one function of the host serves all of them.
 *
 * @snippet 33-choose-an-encoding/main.cpp options
 *
 * Texts are UTF-8. In labels, `&` marks the mnemonic key and `&&` is an ampersand. A null property shares no value.
 *
 * **Order and layout.** Controls appear in the order in which they were added, below the list of files. The platform
 * arranges them: Windows in columns, the dialogs made of Qt widgets in lines that break where the dialog ends, with a
 * scroll bar if there are very many. In right-to-left languages the order is mirrored. The label of a list or a line
 * edit is before it. The controls of a group are together, with the heading of the group. In the dialogs made of Qt
 * widgets, the mouse wheel scrolls the controls, and changes only the list that has the focus.
 *
 * **Identifiers.** Each dialog counts from 0. These take the next identifier, in this order: the menu of the accept
 * button, the native dialog's Help button, each push button, check box, text, separator and group, and each entry of
 * the accept button's menu. A list or a line edit takes one for its label, if this is not empty, then one for itself; a
 * list takes one more for each entry.
 *
 * **Both ways.** Each property has the initial value of its control. While the dialog is open, the property follows the
 * user and the control follows the property. If a validator rejects a value, a list and a check box show the value of
 * the property again. A line edit keeps what is being typed, and the property keeps the last text that was valid. When
 * the user accepts with a text that is rejected, the dialog stays open, shows the validator's reason, and the line edit
 * gets the text of the property again; if the user goes on to another control, it gets that text without a message.
 * The native dialog has no event for typed text, so there the property follows a tenth of a second later, and in any
 * case before an action is called and before the dialog is accepted. The values stay when the user cancels.
 *
 * **Limits.** A dialog has at most 32,767 identifiers, and a text at most 32,767 characters (UTF-16 units): this is
 * what Windows can count. Groups are not nested. The functions that add lists, line edits, texts, separators and groups
 * throw std::length_error or std::logic_error, before anything is added or shown. They also throw std::logic_error
 * while the dialog is open, because the platform takes no more controls then.
 *
 * The dialog owns this object. GUI thread only.
 */
class MORVANE_UI_EXPORT FileDialogCustomization
{
public:
    /** Called with the chosen paths, in the form of selectedFiles(), when the user accepts. */
    using AcceptanceCheck = boost::function<ValidationResult(const QStringList& paths)>;
    /** Where a folder stands among the places. */
    enum class Place
    {
        Top,
        Bottom
    };

    /** @cond made by the dialogs */
    explicit FileDialogCustomization(CustomizationTarget& target);
    ~FileDialogCustomization();
    FileDialogCustomization(const FileDialogCustomization&) = delete;
    FileDialogCustomization& operator=(const FileDialogCustomization&) = delete;
    /** @endcond */

    /**
     * Adds a push button.
     * @param text   label, may have a mnemonic
     * @param action called at each click while the dialog is open. If it is empty, a click throws
     *        boost::bad_function_call. An exception ends the dialog and passes to the caller of exec(), if the platform
     *        allows it.
     * @return a proxy widget for the button
     *
     * The proxy widget is never shown itself. Call show(), hide(), setVisible(), setEnabled() and setDisabled() on it,
     * before or while the dialog runs; the control and its label change accordingly. The dialog owns the proxy widget
     * and destroys it with itself. The other functions that return a QWidget return such a proxy widget, too.
     */
    QWidget* addCustomButton(const std::string& text, boost::function<void()> action);
    /**
     * Adds a check box. If a validator of @p checked rejects a click, the box changes back, and
     * InvalidPropertyValueException passes to the caller of exec(), if the platform allows it.
     */
    QWidget* addCustomCheckBox(const std::string& text, boost::shared_ptr<PropertyAbstract<bool>> checked);
    /**
     * Adds a drop-down list with a label.
     * @param label   may be empty
     * @param entries their texts; equal ones are allowed
     * @param chosen  position of the chosen entry, counted from 0. A value that is not in the list chooses nothing: a
     *                list that shows an entry goes on showing it. The user can only choose entries, so the property
     *                gets no other value from the list. A rejected choice throws nothing.
     */
    QWidget* addCustomComboBox(const std::string& label, const std::vector<std::string>& entries,
        boost::shared_ptr<PropertyAbstract<int>> chosen);
    /** Adds a list of radio buttons with a label. The parameters are those of addCustomComboBox(). */
    QWidget* addCustomRadioButtons(const std::string& label, const std::vector<std::string>& entries,
        boost::shared_ptr<PropertyAbstract<int>> chosen);
    /** Adds a field for one line of text, with a label, which may be empty. A text ends at its first null character. */
    QWidget* addCustomLineEdit(const std::string& label, boost::shared_ptr<PropertyAbstract<std::string>> text);
    /** Adds words that the user can read. Directly before a list or a line edit without a label they are its label. */
    QWidget* addCustomText(const std::string& text);
    /** Adds a line that separates what is before it from what is after it. */
    QWidget* addCustomSeparator();
    /**
     * Begins a group with a heading. All controls that are added until endCustomGroup() belong to it, and are hidden
     * with it.
     */
    QWidget* beginCustomGroup(const std::string& label);
    /** Ends the group. @throws std::logic_error if there is none */
    void endCustomGroup();
    /**
     * Returns the proxy widget of one entry, to hide or disable this entry alone. Entries that are hidden or disabled
     * keep their positions. An entry that is chosen stays chosen.
     * @param control  what addCustomComboBox() or addCustomRadioButtons() has returned
     * @param position counted from 0
     * @return null if there is no such list or entry
     */
    QWidget* customEntry(const QWidget* control, int position);

    /**
     * Sets a function that may refuse what the user accepts: an invalid result keeps the dialog open, and the user
     * reads its reason in a message box (a general text if it is empty). Called after the dialog's own checks; the Qt
     * dialog has emitted its signals for a selected file before. May call close() of the native dialog. Empty: every
     * choice is accepted, as initially.
     */
    void setAcceptanceCheck(AcceptanceCheck check);
    /**
     * Sets the text of the accept button. Empty: no change. Entries of a menu on the accept button replace it.
     */
    void setAcceptButtonText(const std::string& text);
    /** Sets the label of the name field. Empty: no change. */
    void setFileNameLabel(const std::string& label);
    /**
     * Adds a folder to the list of places at the side of the dialog, from the next run on. Does nothing if it does not
     * exist. The user's own places stay as they are, in this dialog and in others.
     */
    void addPlace(const std::string& folder, Place where);
    /**
     * Makes the dialog keep its folder and its size under a key, from one dialog to the next: the folder when the user
     * accepts, the size always. A kept folder takes precedence over the start folder in the first run. Windows keeps
     * them itself; the dialogs made of Qt widgets use morvane::ApplicationSettings. Call it before the first run.
     * Empty: as initially, nothing more is kept than before.
     */
    void setMemoryKey(const std::string& key);
    /** Forgets what is kept under the key that was set. Without a key it does nothing. */
    void clearMemory();

    ///@{
    /** The same with texts of Qt, see isQtText. */
    template <typename Text, IfQtText<Text> = 0>
    QWidget* addCustomButton(const Text& text, boost::function<void()> action)
    {
        return addCustomButton(utf8Text(text), std::move(action));
    }
    template <typename Text, IfQtText<Text> = 0>
    QWidget* addCustomCheckBox(const Text& text, boost::shared_ptr<PropertyAbstract<bool>> checked)
    {
        return addCustomCheckBox(utf8Text(text), std::move(checked));
    }
    template <typename Label = std::string, typename Entries = BracedTexts, IfQtText<Label, Entries> = 0>
    QWidget* addCustomComboBox(
        const Label& label, const Entries& entries, boost::shared_ptr<PropertyAbstract<int>> chosen)
    {
        return addCustomComboBox(utf8Text(label), utf8Texts(entries), std::move(chosen));
    }
    template <typename Label = std::string, typename Entries = BracedTexts, IfQtText<Label, Entries> = 0>
    QWidget* addCustomRadioButtons(
        const Label& label, const Entries& entries, boost::shared_ptr<PropertyAbstract<int>> chosen)
    {
        return addCustomRadioButtons(utf8Text(label), utf8Texts(entries), std::move(chosen));
    }
    template <typename Text, IfQtText<Text> = 0>
    QWidget* addCustomLineEdit(const Text& label, boost::shared_ptr<PropertyAbstract<std::string>> text)
    {
        return addCustomLineEdit(utf8Text(label), std::move(text));
    }
    template <typename Text, IfQtText<Text> = 0>
    QWidget* addCustomText(const Text& text)
    {
        return addCustomText(utf8Text(text));
    }
    template <typename Text, IfQtText<Text> = 0>
    QWidget* beginCustomGroup(const Text& label)
    {
        return beginCustomGroup(utf8Text(label));
    }
    template <typename Text, IfQtText<Text> = 0>
    void setAcceptButtonText(const Text& text)
    {
        setAcceptButtonText(utf8Text(text));
    }
    template <typename Text, IfQtText<Text> = 0>
    void setFileNameLabel(const Text& label)
    {
        setFileNameLabel(utf8Text(label));
    }
    template <typename Text, IfQtText<Text> = 0>
    void addPlace(const Text& folder, Place where)
    {
        addPlace(utf8Text(folder), where);
    }
    template <typename Text, IfQtText<Text> = 0>
    void setMemoryKey(const Text& key)
    {
        setMemoryKey(utf8Text(key));
    }
    ///@}

private:
    struct Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace morvane::ui
