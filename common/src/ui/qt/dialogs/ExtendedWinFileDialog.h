#pragma once

#include "property/PropertyAbstract.h"
#include "ui/qt/MorvaneUiExport.h"

#include <QDialog>
#include <QDir>
#include <QFileDialog>
#include <QString>
#include <QStringList>

#include <boost/function.hpp>
#include <boost/shared_ptr.hpp>

#include <memory>
#include <string>

class QWidget;
namespace morvane::ui {
class NativeFileDialog;
}

/**
 * The platform's own file dialog behind an interface shaped like that of QFileDialog, with what the Qt dialog cannot
 * do: push buttons and check boxes of the host inside the dialog, and a menu of options on the accept button.
 *
 * On Windows this is the Shell's common item dialog. Elsewhere the same interface is served by Qt's dialog, controls
 * included. There a wildcard that the user types filters what is listed and is never returned; where no controls were
 * added, the desktop's own dialog may appear and does it its own way.
 *
 * Make it, configure it, run it with exec() one or more times, read it, destroy it. Settings reach the dialog at the
 * first exec(); controls and accept options reach it at once and may be added between runs. Between runs the dialog
 * keeps the folder and the file type as the user left them, and a save dialog the accepted name as it was typed.
 *
 * All `std::string` arguments are UTF-8. A name filter is a description, one blank, and blank-separated patterns in
 * parentheses, `Images (*.png *.jpg)`; several are joined by `;;`.
 *
 * In a save dialog, choosing another file type gives the typed name the extension of that type, or none when its first
 * pattern is not of the form `*.extension`. A type whose extension is a wildcard, `All files (*.*)`, leaves the name
 * alone. Give each type of a save dialog one pattern: of several, everything after the first `*.` becomes the
 * extension, as in `image.png *.jpg`. A list of names in quotes is never changed. Opening the dialog chooses no type: a
 * name that has an extension stays as it is, and one that has none gets that of a type with one pattern, the first
 * time.
 *
 * @snippet 02-native-controls/main.cpp dialog
 *
 * Failures of the platform are not reported. When it cannot make a dialog at all, every operation is safe, exec()
 * returns `Rejected` and selectedFiles() is empty.
 *
 * GUI thread only; the constructor joins it to a single-threaded COM apartment, and leaves it again when it throws; the
 * destructor leaves it. Callbacks run nested in exec(). The object must not be destroyed while exec() runs; its parent
 * may be.
 */
class MORVANE_UI_EXPORT ExtendedWinFileDialog
{
public:
    /**
     * @param parent        the dialog is modal to its window
     * @param caption       window title; may be empty
     * @param directory     start folder; for an existing file its folder; empty or missing: the platform chooses, and
     *                      elsewhere than on Windows that is the process's current directory
     * @param filter        name filters joined by `;;`; empty for none
     * @param helpTopic     adds a button "&Help" that hands it to morvane::HelpLauncher; empty for no button
     * @param acceptMode    open or save
     * @param useAcceptMenu whether the accept button carries a menu, see addAcceptButtonOption()
     */
    ExtendedWinFileDialog(QWidget& parent, const std::string& caption, const std::string& directory,
        const std::string& filter, const std::string& helpTopic, QFileDialog::AcceptMode acceptMode,
        bool useAcceptMenu);
    virtual ~ExtendedWinFileDialog();
    ExtendedWinFileDialog(const ExtendedWinFileDialog&) = delete;
    ExtendedWinFileDialog& operator=(const ExtendedWinFileDialog&) = delete;

    /**
     * Runs the dialog modally. `Accepted` when the user accepted or close() was called, `Rejected` on cancel, on every
     * failure, when the parent is destroyed meanwhile, and at once when the dialog is already running.
     *
     * An exception thrown by an action or by an observer passes through where the platform lets it.
     */
    QDialog::DialogCode exec();

    /**
     * Puts the last component of @p file into the name field; the folder part is dropped. @p file may be a list of
     * paths in double quotes with blanks in between, `"/x/a.dat" "/x/b.dat"`: each is reduced to its last component and
     * stays in quotes, and one alone stands without them.
     */
    void selectFile(const QString& file);
    /**
     * The chosen paths in the platform's form, after an exec() that the user accepted; none when close() ended it.
     * Otherwise whatever the platform reports. Several under `ExistingFiles`; a save dialog gives several where the
     * platform takes several names there, and else the one that was chosen.
     */
    QStringList selectedFiles();

    /** What is asked for; initially `AnyFile`. `Directory` picks a folder; `DirectoryOnly` counts as `AnyFile`. */
    void setFileMode(QFileDialog::FileMode mode);

    /**
     * The folder that was set, and, once the dialog has run, the one that it was left in. `.` when none was set and it
     * has not run.
     */
    QDir directory();
    /** Takes the text as it is, without looking whether the directory exists. */
    void setDirectory(const QString& dir);

    /**
     * Chooses the file type with exactly this text. A text that is not in the list chooses none; the dialog then opens
     * with the first type, and that one is the chosen one from then on.
     */
    void selectNameFilter(const QString& filter);
    /** The file types, one an entry. */
    QStringList nameFilters();
    /** Replaces the filters, taken as they are. */
    void setNameFilters(const QStringList& filters);
    /** The text of the chosen file type; empty when none is chosen. */
    QString selectedNameFilter();

    /**
     * Adds a push button.
     * @param text   its label; `&` marks the key that reaches it
     * @param action runs at each click, while the dialog is open; it may call close(). An empty function throws
     *        boost::bad_function_call when the button is clicked.
     * @return a stand-in for the button, see below
     *
     * The widget that this and the next two operations return shows nothing itself. Call show(), hide(), setVisible(),
     * setEnabled() and setDisabled() on it, before or while the dialog runs, and the control follows. It belongs to
     * this object and lives as long, or until clearAcceptMenuOptions() for an accept option; never delete it.
     */
    QWidget* addCustomButton(const std::string& text, boost::function<void()> action);
    /**
     * Adds a check box.
     * @param text    its label; `&` marks the key that reaches it
     * @param checked gives the box its first state and is set at each toggle. Null shares no state; the box then starts
     *                unchecked.
     * @return a stand-in for the check box, see addCustomButton()
     */
    QWidget* addCustomCheckBox(const std::string& text, boost::shared_ptr<morvane::PropertyAbstract<bool>> checked);
    /**
     * Adds an entry to the menu of the accept button; needs `useAcceptMenu`. The button itself takes on the text of the
     * first entry, and stands for it.
     * @param text  its label
     * @param value what selectedAcceptMenuOption() reports once the user accepted with this entry
     * @return a stand-in for the entry, see addCustomButton()
     */
    QWidget* addAcceptButtonOption(const std::string& text, int value);
    /** Removes all entries of the menu, and destroys their stand-ins. */
    void clearAcceptMenuOptions();
    /**
     * The value of the entry that was selected when the last run ended, also by Cancel. 255 before the first run. Where
     * the user picked no entry it is the first that is visible and enabled, whose text the accept button carries.
     */
    int selectedAcceptMenuOption() const;

    /**
     * The chosen file type, counted from 1; 0 stands for none. It follows the user while the dialog runs; setting it
     * before the first exec() chooses the type. Never null.
     */
    boost::shared_ptr<morvane::PropertyAbstract<int>> currentFilterIndex();

    /** Whether saving over an existing file goes without the platform's question. */
    void setDontConfirmOverwrite(bool on);
    /** Has no effect: folders are picked by setFileMode(QFileDialog::Directory). Here because the Qt dialog has it. */
    void setShowDirectoriesOnly(bool on);

    /** The widget given to the constructor; null once it was destroyed. */
    QWidget* parent();

    /**
     * Ends a running dialog; for actions and observers. exec() then returns `Accepted`, but nothing was chosen:
     * whatever is selected or typed, selectedFiles() is empty. directory(), currentFilterIndex() and
     * selectedAcceptMenuOption() tell how the dialog was left. Does nothing when no dialog is open.
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
