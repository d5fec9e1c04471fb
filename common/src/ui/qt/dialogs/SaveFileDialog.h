// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/dialogs/SaveFileMessageHandlerInterface.h"
#include "ui/qt/MorvaneUiExport.h"
#include "ui/qt/util/QtText.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

class QWidget;
class SaveFileQtDialog;
class SaveFileWinDialog;
namespace morvane::ui {
class FileDialogCustomization;
}

/**
 * Asks the user for a file name for saving. Returns only a name that may be overwritten and that can really be written.
 *
 * Uses the native dialog or the Qt dialog; the constructor reads ExtendedFileDialog::useNativeFileDialog(). After the
 * user accepts the dialog, the flow has these steps:
 *
 * - If the name has no extension, it gets the extension of the chosen filter.
 * - If something with this name exists, the user is asked whether to replace it. Without a Yes, the dialog is shown
 *   again.
 * - The flow tests whether the file can really be written. If not, the user is asked whether to choose another
 *   location.
 *
 * A message handler provides the texts of the questions. When the dialog is shown again, name, type and folder are as
 * the user left them.
 *
 * The extension is the text after the last dot of the filter: `.dat` for `Data (*.dat)`, `.lay` for
 * `Layouts (*.plt *.lay)`, and `.Allfiles` for `All files (*)`, which has no dot. A name gets no extension in these
 * cases:
 *
 * - The name contains a dot that is not its last character: `report.txt` does not change with `Data (*.dat)`.
 * - The name of one of its folders contains a dot: `report` does not change in `release1.2`.
 * - The filter is empty: the typed name does not change.
 *
 * If the user types a wildcard as the name (`*.log`), it filters the list. It changes neither the chosen filter nor the
 * extension.
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
     * Creates the dialog that the switch selects. It is not shown yet.
     *
     * - `parent` owns the dialog's widgets, which exist until it is destroyed. Null: the dialog has no parent; the Qt
     *   dialog is then deleted with this object.
     * - `caption` is the title of the dialog and of the questions.
     * - `directory` is the start directory. Empty: the dialog chooses.
     * - `filename` is the initial name, without a folder; may be empty.
     * - `filter` has the name filters, such as `Data (*.dat)`, joined by `;;`. Empty: all files are listed, and no name
     *   gets an extension.
     * - `writerFilters` replaces `filter`: it has one name filter for each file format.
     * - `selectedWriterIndex` is the position of the initial filter in `writerFilters`. Among equal filters it selects
     *   the first one. Out of range: the first filter. Differences in blanks are ignored.
     * - `helpTopic` adds a Help button that passes this topic to morvane::HelpLauncher. Empty: no button.
     * - `handler` provides the texts of the questions. This object takes ownership. Null or omitted:
     *   morvane::DefaultSaveFileMessageHandler.
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
    ///@{
    /** The same with texts of Qt, see morvane::ui::isQtText. */
    template <typename Caption = std::string, typename Directory = std::string, typename Filename = std::string,
        typename Filter = std::string, typename HelpTopic = std::string,
        morvane::ui::IfQtText<Caption, Directory, Filename, Filter, HelpTopic> = 0>
    SaveFileDialog(QWidget* parent, const Caption& caption, const Directory& directory, const Filename& filename,
        const Filter& filter, const HelpTopic& helpTopic,
        std::unique_ptr<morvane::SaveFileMessageHandlerInterface> handler = nullptr)
        : SaveFileDialog(parent, morvane::ui::utf8Text(caption), morvane::ui::utf8Text(directory),
              morvane::ui::utf8Text(filename), morvane::ui::utf8Text(filter), morvane::ui::utf8Text(helpTopic),
              std::move(handler))
    {
    }
    template <typename Caption = std::string, typename Directory = std::string, typename Filename = std::string,
        typename WriterFilters = morvane::ui::BracedTexts, typename HelpTopic = std::string,
        morvane::ui::IfQtText<Caption, Directory, Filename, WriterFilters, HelpTopic> = 0>
    SaveFileDialog(QWidget* parent, const Caption& caption, const Directory& directory, const Filename& filename,
        const WriterFilters& writerFilters, int selectedWriterIndex, const HelpTopic& helpTopic,
        std::unique_ptr<morvane::SaveFileMessageHandlerInterface> handler = nullptr)
        : SaveFileDialog(parent, morvane::ui::utf8Text(caption), morvane::ui::utf8Text(directory),
              morvane::ui::utf8Text(filename), morvane::ui::utf8Texts(writerFilters), selectedWriterIndex,
              morvane::ui::utf8Text(helpTopic), std::move(handler))
    {
    }
    ///@}
    virtual ~SaveFileDialog();
    SaveFileDialog(const SaveFileDialog&) = delete;
    SaveFileDialog& operator=(const SaveFileDialog&) = delete;

    /**
     * Runs the flow until a name is found or the user gives up. May be called again.
     * @return whether there is a name to write to. False if the user cancels the dialog, or does not want another
     * location for a file that cannot be written. Also false if the parent or this object is destroyed meanwhile, for
     * instance by the message handler; then no more questions are asked.
     * @throws any exception that the message handler throws
     */
    virtual bool launch();

    ///@{
    /**
     * Returns the name from the last accepted dialog, with its extension; empty before that. After launch() returned
     * true, write to this name.
     */
    std::string selectedFilename();
    std::string selectedFilename() const;
    ///@}
    ///@{
    /**
     * Returns the text of the chosen filter as the dialog has it. The Qt dialog simplifies blanks and replaces the
     * patterns by a typed wildcard. If no filter was passed, the Qt dialog returns "All Files (*)", and the native
     * dialog returns an empty text.
     */
    std::string selectedFilter();
    std::string selectedFilter() const;
    ///@}
    /**
     * Returns the position of the chosen filter in the passed filters; the first one among equal filters; -1 if it is
     * not among them. If no filter was passed, the result is 0 with the Qt dialog and -1 with the native dialog.
     */
    int selectedWriter() const;

    /**
     * Controls and more that the host can add to the dialog before launch(), whichever of the two dialogs it is. The
     * acceptance check is called before the questions of the flow, with the name as the user typed it. Null after the
     * Qt dialog was destroyed with its parent.
     *
     * @snippet 35-save-with-a-comment/main.cpp options
     */
    morvane::ui::FileDialogCustomization* customization();

private:
    std::unique_ptr<SaveFileQtDialog> m_qtDialog;
    std::unique_ptr<SaveFileWinDialog> m_winDialog;
};
