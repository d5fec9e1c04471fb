#pragma once

#include "ui/qt/dialogs/SaveFileMessageHandlerInterface.h"
#include "ui/qt/MorvaneUiExport.h"

#include <QObject>

#include <memory>
#include <string>
#include <vector>

class ExtendedWinFileDialog;
class QWidget;

/**
 * The save flow of SaveFileDialog on the native file dialog. Use it where that dialog is wanted whatever the switch
 * says.
 *
 * The dialog is made in the constructor. It is no widget that a parent could own, and outlives this object on purpose,
 * until the process ends.
 *
 * @snippet 16-own-native-save-dialog/main.cpp derived
 */
class MORVANE_UI_EXPORT SaveFileWinDialog : public QObject
{
public:
    ///@{
    /** As the constructors of SaveFileDialog. */
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

protected:
    /** The dialog that the flow runs; never null. */
    ExtendedWinFileDialog* dialog();

private:
    struct Impl;
    std::shared_ptr<Impl> m_impl;
};
