#pragma once

#include "ui/qt/dialogs/SaveFileMessageHandlerInterface.h"
#include "ui/qt/MorvaneUiExport.h"

#include <memory>
#include <string>
#include <vector>

class QWidget;
class SaveFileQtDialog;
class SaveFileWinDialog;

/**
 * Asks the user for a name to save to, and returns only one that may be overwritten and really can be written.
 *
 * Runs on the native dialog or the Qt dialog, as ExtendedFileDialog::useNativeFileDialog() says at construction. After
 * each accepted dialog the name gets the extension of the chosen filter, if it has none; when something of that name
 * exists, the user is asked whether to replace it; then writing there is tried for real, and where that fails the user
 * may choose another place. The texts of the questions come from a message handler. When the dialog is shown again,
 * name, type and folder are as the user left them.
 *
 * The extension is what follows the last dot of the filter: `.dat` for `Data (*.dat)`, `.lay` for
 * `Layouts (*.plt *.lay)`, and `.Allfiles` for `All files (*)`, which has no dot. A name gets no extension
 *
 * - when it holds a dot, other than as its last character: `report.txt` stays as it is with `Data (*.dat)`;
 * - when the name of one of its folders holds a dot: `report` stays as it is in `release1.2`;
 * - when the filter is empty: the name is the one that was typed.
 *
 * A wildcard that the user types as the name (`*.log`) filters what is listed. It changes neither the chosen filter nor
 * the extension.
 *
 * @snippet 04-save-a-report/main.cpp flow
 *
 * All text is UTF-8. GUI thread only. The parent may be destroyed while the flow runs.
 */
class MORVANE_UI_EXPORT SaveFileDialog
{
public:
    ///@{
    /**
     * Makes the dialog that the switch says; nothing is shown yet.
     *
     * - `parent` owns the dialog's widgets, which live until it is destroyed. Null: a dialog without parent.
     * - `caption` is the title of the dialog and of the questions.
     * - `directory` is where the dialog starts. Empty: left to the dialog.
     * - `filename` is the name to start with; may be empty.
     * - `filter` holds name filters such as `Data (*.dat)`, joined by `;;`. Empty: every file is listed, and no name
     *   gets an extension.
     * - `writerFilters` has one name filter for each way of writing the file, instead of `filter`.
     * - `selectedWriterIndex` is the position in `writerFilters` of the one to start with, of equal ones the first;
     *   outside of the list it is the first one. Blanks in the texts do not matter.
     * - `helpTopic` adds a Help button that hands it to morvane::HelpLauncher. Empty: no button.
     * - `handler` words the questions and is taken over. Null or left out: morvane::DefaultSaveFileMessageHandler.
     */
    SaveFileDialog(QWidget* parent, const std::string& caption, const std::string& directory,
        const std::string& filename, const std::string& filter, const std::string& helpTopic);
    SaveFileDialog(QWidget* parent, const std::string& caption, const std::string& directory,
        const std::string& filename, const std::string& filter, const std::string& helpTopic,
        std::unique_ptr<morvane::SaveFileMessageHandlerInterface> handler);
    SaveFileDialog(QWidget* parent, const std::string& caption, const std::string& directory,
        const std::string& filename, const std::vector<std::string>& writerFilters, int selectedWriterIndex,
        const std::string& helpTopic);
    SaveFileDialog(QWidget* parent, const std::string& caption, const std::string& directory,
        const std::string& filename, const std::vector<std::string>& writerFilters, int selectedWriterIndex,
        const std::string& helpTopic, std::unique_ptr<morvane::SaveFileMessageHandlerInterface> handler);
    ///@}
    virtual ~SaveFileDialog();
    SaveFileDialog(const SaveFileDialog&) = delete;
    SaveFileDialog& operator=(const SaveFileDialog&) = delete;

    /**
     * Runs the flow until a name is found or the user gives up; may be called again.
     * @return whether there is a name to write to. False when the dialog is cancelled, when the user does not want
     * another place for one that cannot be written, and when the parent or this object is destroyed meanwhile, also by
     * the message handler; nothing more is asked then.
     * @throws what the message handler throws
     */
    virtual bool launch();

    /** The name of the last accepted dialog, its extension applied; empty before. The one to write to after launch().
     */
    std::string selectedFilename();
    /**
     * The text of the chosen filter as the dialog has it. The Qt dialog simplifies blanks, shows a typed wildcard in
     * the place of the patterns, and has "All Files (*)" where no filter was given; the native dialog has none then.
     */
    std::string selectedFilter();
    /**
     * The position of the chosen filter among those given, of equal ones the first; -1 when it is not among them.
     * Where no filter was given, 0 on the Qt dialog and -1 on the native one.
     */
    int selectedWriter() const;

private:
    std::unique_ptr<SaveFileQtDialog> m_qtDialog;
    std::unique_ptr<SaveFileWinDialog> m_winDialog;
};
