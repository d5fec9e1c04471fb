// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "property/PropertyAbstract.h"
#include "ui/qt/dialogs/FileDialogCustomization.h"
#include "ui/qt/MorvaneUiExport.h"
#include "ui/qt/util/QtText.h"

#include <QDialog>
#include <QDir>
#include <QFileDialog>
#include <QString>
#include <QStringList>

#include <boost/function.hpp>
#include <boost/shared_ptr.hpp>

#include <memory>
#include <string>
#include <utility>
#include <vector>

class QWidget;
namespace morvane::ui {
class NativeFileDialog;
}

/**
 * The platform's own file dialog, with an interface like that of QFileDialog. It has features that the Qt dialog does
 * not have: the host can add push buttons, check boxes, lists, line edits, texts and groups to the dialog, and a menu
 * of options to the accept button.
 *
 * On Windows this is the Shell's common item dialog. On other platforms a Qt dialog implements the same interface,
 * including the controls. In this Qt dialog, a wildcard that the user types filters the list and is never returned. If
 * no controls were added, the desktop's own dialog may be shown instead; it handles wildcards in its own way.
 *
 * Construct it, configure it, run it with exec() one or more times, read the results, destroy it. The settings are
 * applied at the first exec(). Controls and accept options are applied at once, and may be added between runs. Between
 * runs the dialog keeps the folder and the file type that the user left. A save dialog also keeps the accepted name as
 * it was typed.
 *
 * All `std::string` arguments are UTF-8. A name filter is a description, one blank, and patterns in parentheses that
 * are separated by blanks: `Images (*.png *.jpg)`. Several name filters are joined by `;;`.
 *
 * If the user of a save dialog chooses another file type, the typed name gets the extension of that type. It gets no
 * extension if the first pattern of the type is not of the form `*.extension`. A type whose extension is a wildcard,
 * `All files (*.*)`, does not change the name. A list of names in quotes is never changed. Each type of a save dialog
 * should have only one pattern: if it has several, everything after the first `*.` becomes the extension, as in
 * `image.png *.jpg`.
 *
 * When a save dialog opens for the first time, a name without an extension gets the extension of the chosen type, if
 * this type has one pattern. A name with an extension does not change when the dialog opens.
 *
 * @snippet 02-native-controls/main.cpp dialog
 *
 * Failures of the platform are not reported. If it cannot create the dialog, every operation is still safe: exec()
 * returns `Rejected`, and selectedFiles() is empty.
 *
 * GUI thread only. The constructor joins the thread to a single-threaded COM apartment; the destructor leaves the
 * apartment, and so does a constructor that throws. Callbacks run nested in exec(). The object must not be destroyed
 * while exec() runs; its parent may be destroyed then.
 */
class MORVANE_UI_EXPORT ExtendedWinFileDialog
{
public:
    /**
     * @param parent        the dialog is modal to the window of this widget
     * @param caption       window title; may be empty
     * @param directory     start folder; if it is an existing file, the folder of that file. If it is empty or does
     *                      not exist, the platform chooses; except on Windows this is the process's current directory.
     * @param filter        name filters joined by `;;`; empty: no file types
     * @param helpTopic     adds a button "&Help" that passes this topic to morvane::HelpLauncher; empty: no button
     * @param acceptMode    open or save
     * @param useAcceptMenu whether the accept button has a menu, see addAcceptButtonOption()
     */
    ExtendedWinFileDialog(QWidget& parent, const std::string& caption, const std::string& directory,
        const std::string& filter, const std::string& helpTopic, QFileDialog::AcceptMode acceptMode,
        bool useAcceptMenu);
    /** The same with texts of Qt, see morvane::ui::isQtText. */
    template <typename Caption = std::string, typename Directory = std::string, typename Filter = std::string,
        typename HelpTopic = std::string, morvane::ui::IfQtText<Caption, Directory, Filter, HelpTopic> = 0>
    ExtendedWinFileDialog(QWidget& parent, const Caption& caption, const Directory& directory, const Filter& filter,
        const HelpTopic& helpTopic, QFileDialog::AcceptMode acceptMode, bool useAcceptMenu)
        : ExtendedWinFileDialog(parent, morvane::ui::utf8Text(caption), morvane::ui::utf8Text(directory),
              morvane::ui::utf8Text(filter), morvane::ui::utf8Text(helpTopic), acceptMode, useAcceptMenu)
    {
    }
    virtual ~ExtendedWinFileDialog();
    ExtendedWinFileDialog(const ExtendedWinFileDialog&) = delete;
    ExtendedWinFileDialog& operator=(const ExtendedWinFileDialog&) = delete;

    /**
     * Runs the dialog modally. Returns `Accepted` if the user accepted or close() was called. Returns `Rejected` if the
     * user cancelled, after every failure, if the parent is destroyed meanwhile, and at once if the dialog is already
     * running.
     *
     * An exception of an action or an observer passes to the caller if the platform allows it.
     */
    QDialog::DialogCode exec();

    /**
     * Sets the text of the name field to the last component of @p file, without the folder. @p file may be a list of
     * paths in double quotes, separated by blanks: `"/x/a.dat" "/x/b.dat"`. Each path is reduced to its last component
     * and stays in quotes. A list with only one path becomes a name without quotes.
     */
    void selectFile(const QString& file);
    ///@{
    /**
     * After an exec() that the user accepted: returns the chosen paths in the platform's form. After close() ended the
     * dialog: returns an empty list. Otherwise: returns what the platform reports. With `ExistingFiles` there may be
     * several paths. In a save dialog there may be several only if the platform accepts several names there; otherwise
     * there is one.
     */
    QStringList selectedFiles();
    QStringList selectedFiles() const;
    ///@}

    /**
     * Sets what the user may choose; initially `AnyFile`. With `Directory` the user picks a folder. `DirectoryOnly`,
     * which only Qt 5 has, is treated as `AnyFile`.
     */
    void setFileMode(QFileDialog::FileMode mode);

    ///@{
    /**
     * Returns the folder that was set; after a run, the folder that the dialog showed last. Returns `.` if no folder
     * was set and the dialog has not run.
     */
    QDir directory();
    QDir directory() const;
    ///@}
    /** Sets the start folder. Does not check whether it exists. */
    void setDirectory(const QString& dir);

    /**
     * Chooses the file type with exactly this text. If the text is not in the list, no type is chosen; the dialog then
     * opens with the first type, which is the chosen one from then on.
     */
    void selectNameFilter(const QString& filter);
    ///@{
    /** Returns the file types, one for each entry. */
    QStringList nameFilters();
    QStringList nameFilters() const;
    ///@}
    /** Replaces the filters. The texts are used unchanged. */
    void setNameFilters(const QStringList& filters);
    ///@{
    /** Returns the text of the chosen file type; empty if none is chosen. */
    QString selectedNameFilter();
    QString selectedNameFilter() const;
    ///@}

    /**
     * Adds a push button.
     * @param text   label; `&` marks the mnemonic key
     * @param action called at each click, while the dialog is open; may call close(). If it is empty, a click throws
     *        boost::bad_function_call.
     * @return a proxy widget for the button, see below
     *
     * This function and the next two return a proxy widget, which is never shown itself. Call show(), hide(),
     * setVisible(), setEnabled() and setDisabled() on it, before or while the dialog runs; the control changes
     * accordingly. This object owns the proxy widget, so do not delete it. It exists as long as this object; for an
     * accept option, at most until clearAcceptMenuOptions().
     */
    QWidget* addCustomButton(const std::string& text, boost::function<void()> action);
    /**
     * Adds a check box.
     * @param text    label; `&` marks the mnemonic key
     * @param checked has the initial state of the box, and is set when the user toggles the box. If it is set otherwise
     *                or rejects the new state, the box changes accordingly. Null: no state is shared, and the box is
     *                unchecked initially.
     * @return a proxy widget for the check box, see addCustomButton()
     */
    QWidget* addCustomCheckBox(const std::string& text, boost::shared_ptr<morvane::PropertyAbstract<bool>> checked);
    /**
     * Adds an entry to the menu of the accept button; needs `useAcceptMenu`. The accept button shows the text of the
     * first entry; a click on the button selects this entry.
     * @param text  label
     * @param value what selectedAcceptMenuOption() returns after the user accepted with this entry
     * @return a proxy widget for the entry, see addCustomButton()
     */
    QWidget* addAcceptButtonOption(const std::string& text, int value);
    /** Removes all entries of the menu and destroys their proxy widgets. */
    void clearAcceptMenuOptions();
    /**
     * Returns the value of the entry that was selected when the last run ended, also by Cancel. 255 before the first
     * run. If the user picked no entry, it is the first visible and enabled entry, whose text the accept button shows.
     */
    int selectedAcceptMenuOption() const;

    ///@{
    /** See the function of the same name in FileDialogCustomization. */
    QWidget* addCustomComboBox(const std::string& label, const std::vector<std::string>& entries,
        boost::shared_ptr<morvane::PropertyAbstract<int>> chosen);
    QWidget* addCustomRadioButtons(const std::string& label, const std::vector<std::string>& entries,
        boost::shared_ptr<morvane::PropertyAbstract<int>> chosen);
    QWidget* addCustomLineEdit(
        const std::string& label, boost::shared_ptr<morvane::PropertyAbstract<std::string>> text);
    QWidget* addCustomText(const std::string& text);
    QWidget* addCustomSeparator();
    QWidget* beginCustomGroup(const std::string& label);
    void endCustomGroup();
    QWidget* customEntry(const QWidget* control, int position);
    void setAcceptanceCheck(morvane::ui::FileDialogCustomization::AcceptanceCheck check);
    void setAcceptButtonText(const std::string& text);
    void setFileNameLabel(const std::string& label);
    void addPlace(const std::string& folder, morvane::ui::FileDialogCustomization::Place where);
    void setMemoryKey(const std::string& key);
    void clearMemory();
    ///@}
    ///@{
    /** The same with texts of Qt, see morvane::ui::isQtText. */
    template <typename Text, morvane::ui::IfQtText<Text> = 0>
    QWidget* addCustomButton(const Text& text, boost::function<void()> action)
    {
        return addCustomButton(morvane::ui::utf8Text(text), std::move(action));
    }
    template <typename Text, morvane::ui::IfQtText<Text> = 0>
    QWidget* addCustomCheckBox(const Text& text, boost::shared_ptr<morvane::PropertyAbstract<bool>> checked)
    {
        return addCustomCheckBox(morvane::ui::utf8Text(text), std::move(checked));
    }
    template <typename Text, morvane::ui::IfQtText<Text> = 0>
    QWidget* addAcceptButtonOption(const Text& text, int value)
    {
        return addAcceptButtonOption(morvane::ui::utf8Text(text), value);
    }
    template <typename Label = std::string, typename Entries = morvane::ui::BracedTexts,
        morvane::ui::IfQtText<Label, Entries> = 0>
    QWidget* addCustomComboBox(
        const Label& label, const Entries& entries, boost::shared_ptr<morvane::PropertyAbstract<int>> chosen)
    {
        return addCustomComboBox(morvane::ui::utf8Text(label), morvane::ui::utf8Texts(entries), std::move(chosen));
    }
    template <typename Label = std::string, typename Entries = morvane::ui::BracedTexts,
        morvane::ui::IfQtText<Label, Entries> = 0>
    QWidget* addCustomRadioButtons(
        const Label& label, const Entries& entries, boost::shared_ptr<morvane::PropertyAbstract<int>> chosen)
    {
        return addCustomRadioButtons(morvane::ui::utf8Text(label), morvane::ui::utf8Texts(entries), std::move(chosen));
    }
    template <typename Text, morvane::ui::IfQtText<Text> = 0>
    QWidget* addCustomLineEdit(const Text& label, boost::shared_ptr<morvane::PropertyAbstract<std::string>> text)
    {
        return addCustomLineEdit(morvane::ui::utf8Text(label), std::move(text));
    }
    template <typename Text, morvane::ui::IfQtText<Text> = 0>
    QWidget* addCustomText(const Text& text)
    {
        return addCustomText(morvane::ui::utf8Text(text));
    }
    template <typename Text, morvane::ui::IfQtText<Text> = 0>
    QWidget* beginCustomGroup(const Text& label)
    {
        return beginCustomGroup(morvane::ui::utf8Text(label));
    }
    template <typename Text, morvane::ui::IfQtText<Text> = 0>
    void setAcceptButtonText(const Text& text)
    {
        setAcceptButtonText(morvane::ui::utf8Text(text));
    }
    template <typename Text, morvane::ui::IfQtText<Text> = 0>
    void setFileNameLabel(const Text& label)
    {
        setFileNameLabel(morvane::ui::utf8Text(label));
    }
    template <typename Text, morvane::ui::IfQtText<Text> = 0>
    void addPlace(const Text& folder, morvane::ui::FileDialogCustomization::Place where)
    {
        addPlace(morvane::ui::utf8Text(folder), where);
    }
    template <typename Text, morvane::ui::IfQtText<Text> = 0>
    void setMemoryKey(const Text& key)
    {
        setMemoryKey(morvane::ui::utf8Text(key));
    }
    ///@}

    /**
     * The same functions as an object, which the other file dialogs have, too. Never null; owned by this object.
     */
    morvane::ui::FileDialogCustomization* customization();

    /**
     * The chosen file type, counted from 1; 0 means none. It is updated while the dialog runs, when the user chooses a
     * type. Set it before the first exec() to choose the type. Never null.
     */
    boost::shared_ptr<morvane::PropertyAbstract<int>> currentFilterIndex();

    /** If true, the platform does not ask before it accepts an existing file for saving. */
    void setDontConfirmOverwrite(bool on);
    /**
     * Has no effect. It exists because the Qt dialog has it. Use setFileMode(QFileDialog::Directory) to let the user
     * pick a folder.
     */
    void setShowDirectoriesOnly(bool on);

    ///@{
    /** Returns the widget that was passed to the constructor; null after it was destroyed. */
    QWidget* parent();
    QWidget* parent() const;
    ///@}

    /**
     * Closes a running dialog; actions and observers may call it. exec() then returns `Accepted`, but nothing was
     * chosen: selectedFiles() is empty, even if something was selected or typed. directory(), currentFilterIndex() and
     * selectedAcceptMenuOption() return the state in which the dialog was closed. Does nothing if no dialog is open.
     */
    void close();

private:
    friend class ExtendedFileDialog;
    friend class SaveFileWinDialog;

    // For callers that may have no parent.
    ExtendedWinFileDialog(QWidget* parent, const std::string& caption, const std::string& directory,
        const std::string& filter, const std::string& helpTopic, QFileDialog::AcceptMode acceptMode,
        bool useAcceptMenu);

    std::unique_ptr<morvane::ui::NativeFileDialog> m_native;
};
