// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/dialogs/SaveFileMessageHandlerInterface.h"
#include "ui/qt/MorvaneUiExport.h"

#include <QObject>

#include <memory>
#include <string>
#include <vector>

class ExtendedWinFileDialog;
class QWidget;
namespace morvane::ui {
class FileDialogCustomization;
}

/**
 * The save flow of SaveFileDialog with the native file dialog. Use it to get that dialog independent of the switch.
 *
 * The constructor creates the dialog. The dialog is not a widget, so no parent owns it. It exists until the process
 * ends; this is intended.
 *
 * @snippet 16-own-native-save-dialog/main.cpp derived
 */
class MORVANE_UI_EXPORT SaveFileWinDialog : public QObject
{
public:
    ///@{
    /** Same as the constructors of SaveFileDialog. */
    SaveFileWinDialog(QWidget* parent, const std::string& caption, const std::string& directory,
        const std::string& filename, const std::string& filter, const std::string& helpTopic);
    SaveFileWinDialog(QWidget* parent, const std::string& caption, const std::string& directory,
        const std::string& filename, const std::string& filter, const std::string& helpTopic,
        std::unique_ptr<morvane::SaveFileMessageHandlerInterface> handler);
    SaveFileWinDialog(QWidget* parent, const std::string& caption, const std::string& directory,
        const std::string& filename, const std::vector<std::string>& writerFilters, int selectedWriterIndex,
        const std::string& helpTopic);
    SaveFileWinDialog(QWidget* parent, const std::string& caption, const std::string& directory,
        const std::string& filename, const std::vector<std::string>& writerFilters, int selectedWriterIndex,
        const std::string& helpTopic, std::unique_ptr<morvane::SaveFileMessageHandlerInterface> handler);
    ///@}
    ~SaveFileWinDialog() override;

    /** Runs the flow; see SaveFileDialog::launch(). */
    virtual bool launch();
    /** See SaveFileDialog::selectedFilename(). */
    std::string selectedFilename();
    /** See SaveFileDialog::selectedFilter(). */
    std::string selectedFilter();
    /** See SaveFileDialog::selectedWriter(). */
    int selectedWriter() const;
    /** See SaveFileDialog::customization(). */
    morvane::ui::FileDialogCustomization* customization();

protected:
    /** Returns the dialog that the flow runs; never null. */
    ExtendedWinFileDialog* dialog();

private:
    struct Impl;
    std::shared_ptr<Impl> m_impl;
};
