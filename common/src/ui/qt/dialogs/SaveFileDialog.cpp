// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/SaveFileDialog.h"

#include "ui/qt/dialogs/ExtendedFileDialog.h"
#include "ui/qt/dialogs/SaveFileQtDialog.h"
#include "ui/qt/dialogs/SaveFileWinDialog.h"

#include <utility>

SaveFileDialog::SaveFileDialog(QWidget* parent, const std::string& caption, const std::string& directory,
    const std::string& filename, const std::string& filter, const std::string& helpTopic)
    : SaveFileDialog(parent, caption, directory, filename, filter, helpTopic, nullptr)
{
}

SaveFileDialog::SaveFileDialog(QWidget* parent, const std::string& caption, const std::string& directory,
    const std::string& filename, const std::string& filter, const std::string& helpTopic,
    std::unique_ptr<morvane::SaveFileMessageHandlerInterface> handler)
{
    if (ExtendedFileDialog::useNativeFileDialog()) {
        m_winDialog = std::make_unique<SaveFileWinDialog>(
            parent, caption, directory, filename, filter, helpTopic, std::move(handler));
    } else {
        m_qtDialog = std::make_unique<SaveFileQtDialog>(
            parent, caption, directory, filename, filter, helpTopic, std::move(handler));
    }
}

SaveFileDialog::SaveFileDialog(QWidget* parent, const std::string& caption, const std::string& directory,
    const std::string& filename, const std::vector<std::string>& writerFilters, int selectedWriterIndex,
    const std::string& helpTopic)
    : SaveFileDialog(parent, caption, directory, filename, writerFilters, selectedWriterIndex, helpTopic, nullptr)
{
}

SaveFileDialog::SaveFileDialog(QWidget* parent, const std::string& caption, const std::string& directory,
    const std::string& filename, const std::vector<std::string>& writerFilters, int selectedWriterIndex,
    const std::string& helpTopic, std::unique_ptr<morvane::SaveFileMessageHandlerInterface> handler)
{
    if (ExtendedFileDialog::useNativeFileDialog()) {
        m_winDialog = std::make_unique<SaveFileWinDialog>(
            parent, caption, directory, filename, writerFilters, selectedWriterIndex, helpTopic, std::move(handler));
    } else {
        m_qtDialog = std::make_unique<SaveFileQtDialog>(
            parent, caption, directory, filename, writerFilters, selectedWriterIndex, helpTopic, std::move(handler));
    }
}

SaveFileDialog::~SaveFileDialog() = default;

bool SaveFileDialog::launch()
{
    return m_winDialog ? m_winDialog->launch() : m_qtDialog->launch();
}

std::string SaveFileDialog::selectedFilename()
{
    return std::as_const(*this).selectedFilename();
}

std::string SaveFileDialog::selectedFilename() const
{
    return m_winDialog ? m_winDialog->selectedFilename() : m_qtDialog->selectedFilename();
}

std::string SaveFileDialog::selectedFilter()
{
    return std::as_const(*this).selectedFilter();
}

std::string SaveFileDialog::selectedFilter() const
{
    return m_winDialog ? m_winDialog->selectedFilter() : m_qtDialog->selectedFilter();
}

int SaveFileDialog::selectedWriter() const
{
    return m_winDialog ? m_winDialog->selectedWriter() : m_qtDialog->selectedWriter();
}

morvane::ui::FileDialogCustomization* SaveFileDialog::customization()
{
    return m_winDialog ? m_winDialog->customization() : m_qtDialog->customization();
}
