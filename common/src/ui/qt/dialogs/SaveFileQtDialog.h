// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/dialogs/SaveFileMessageHandlerInterface.h"
#include "ui/qt/MorvaneUiExport.h"
#include "ui/qt/util/QtText.h"

#include <QObject>

#include <memory>
#include <string>
#include <utility>
#include <vector>

class QExtendedFileDialog;
class QWidget;
namespace morvane::ui {
class FileDialogCustomization;
}

/**
 * The save flow of SaveFileDialog with the Qt file dialog. Use it to get that dialog independent of the switch.
 *
 * The constructor creates the dialog as a child of the parent widget. The dialog exists until the parent is destroyed;
 * without a parent, until this object is destroyed.
 *
 * @snippet 15-own-qt-save-dialog/main.cpp derived
 */
class MORVANE_UI_EXPORT SaveFileQtDialog : public QObject
{
public:
    ///@{
    /** Same as the constructors of SaveFileDialog. */
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
    ///@{
    /** The same with texts of Qt, see morvane::ui::isQtText. */
    template <typename Caption = std::string, typename Directory = std::string, typename Filename = std::string,
        typename Filter = std::string, typename HelpTopic = std::string,
        morvane::ui::IfQtText<Caption, Directory, Filename, Filter, HelpTopic> = 0>
    SaveFileQtDialog(QWidget* parent, const Caption& caption, const Directory& directory, const Filename& filename,
        const Filter& filter, const HelpTopic& helpTopic,
        std::unique_ptr<morvane::SaveFileMessageHandlerInterface> handler = nullptr)
        : SaveFileQtDialog(parent, morvane::ui::utf8Text(caption), morvane::ui::utf8Text(directory),
              morvane::ui::utf8Text(filename), morvane::ui::utf8Text(filter), morvane::ui::utf8Text(helpTopic),
              std::move(handler))
    {
    }
    template <typename Caption = std::string, typename Directory = std::string, typename Filename = std::string,
        typename WriterFilters = morvane::ui::BracedTexts, typename HelpTopic = std::string,
        morvane::ui::IfQtText<Caption, Directory, Filename, WriterFilters, HelpTopic> = 0>
    SaveFileQtDialog(QWidget* parent, const Caption& caption, const Directory& directory, const Filename& filename,
        const WriterFilters& writerFilters, int selectedWriterIndex, const HelpTopic& helpTopic,
        std::unique_ptr<morvane::SaveFileMessageHandlerInterface> handler = nullptr)
        : SaveFileQtDialog(parent, morvane::ui::utf8Text(caption), morvane::ui::utf8Text(directory),
              morvane::ui::utf8Text(filename), morvane::ui::utf8Texts(writerFilters), selectedWriterIndex,
              morvane::ui::utf8Text(helpTopic), std::move(handler))
    {
    }
    ///@}
    ~SaveFileQtDialog() override;

    /** Runs the flow; see SaveFileDialog::launch(). */
    virtual bool launch();
    ///@{
    /** See SaveFileDialog::selectedFilename(). */
    std::string selectedFilename();
    std::string selectedFilename() const;
    ///@}
    ///@{
    /** See SaveFileDialog::selectedFilter(). */
    std::string selectedFilter();
    std::string selectedFilter() const;
    ///@}
    /** See SaveFileDialog::selectedWriter(). */
    int selectedWriter() const;
    /** See SaveFileDialog::customization(). */
    morvane::ui::FileDialogCustomization* customization();

protected:
    /** Returns the dialog that the flow runs; null after the parent was destroyed. */
    QExtendedFileDialog* dialog();

private:
    struct Impl;
    std::shared_ptr<Impl> m_impl;
};
