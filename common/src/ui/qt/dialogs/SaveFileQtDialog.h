#pragma once

#include "ui/qt/dialogs/SaveFileMessageHandlerInterface.h"
#include "ui/qt/MorvaneUiExport.h"

#include <QObject>

#include <memory>
#include <string>
#include <vector>

class QExtendedFileDialog;
class QWidget;

/**
 * The save flow of SaveFileDialog on the Qt file dialog. Use it where that dialog is wanted whatever the switch says.
 *
 * The dialog is made in the constructor as a child of the parent widget and stays until that is destroyed.
 *
 * @snippet 15-own-qt-save-dialog/main.cpp derived
 */
class MORVANE_UI_EXPORT SaveFileQtDialog : public QObject
{
public:
    ///@{
    /** As the constructors of SaveFileDialog. */
    SaveFileQtDialog(QWidget* parent, const std::string& caption, const std::string& directory,
        const std::string& filename, const std::string& filter, const std::string& helpTopic);
    SaveFileQtDialog(QWidget* parent, const std::string& caption, const std::string& directory,
        const std::string& filename, const std::string& filter, const std::string& helpTopic,
        std::unique_ptr<morvane::SaveFileMessageHandlerInterface> handler);
    SaveFileQtDialog(QWidget* parent, const std::string& caption, const std::string& directory,
        const std::string& filename, const std::vector<std::string>& writerFilters, int selectedWriterIndex,
        const std::string& helpTopic);
    SaveFileQtDialog(QWidget* parent, const std::string& caption, const std::string& directory,
        const std::string& filename, const std::vector<std::string>& writerFilters, int selectedWriterIndex,
        const std::string& helpTopic, std::unique_ptr<morvane::SaveFileMessageHandlerInterface> handler);
    ///@}
    ~SaveFileQtDialog() override;

    /** Runs the flow; see SaveFileDialog::launch(). */
    virtual bool launch();
    /** See SaveFileDialog::selectedFilename(). */
    std::string selectedFilename();
    /** See SaveFileDialog::selectedFilter(). */
    std::string selectedFilter();
    /** See SaveFileDialog::selectedWriter(). */
    int selectedWriter() const;

protected:
    /** The dialog that the flow runs; null once the parent was destroyed. */
    QExtendedFileDialog* dialog();

private:
    struct Impl;
    std::shared_ptr<Impl> m_impl;
};
