// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/SaveFileWinDialog.h"

#include "ui/qt/dialogs/ExtendedWinFileDialog.h"
#include "ui/qt/dialogs/native/NativeFileDialog_p.h"
#include "ui/qt/dialogs/save/KeptDialogs_p.h"
#include "ui/qt/dialogs/save/SaveFileFlow_p.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace {

/** A dialog that is never deleted, and the Shell's dialog that belongs to it. */
struct Kept
{
    ExtendedWinFileDialog* dialog;
    const IFileDialog* shellDialog;
};

/** Keeps the dialogs reachable, so that leak checkers do not report them. */
std::vector<Kept>& keptDialogs()
{
    static auto* const kept = new std::vector<Kept>;
    return *kept;
}

} // namespace

struct SaveFileWinDialog::Impl : morvane::ui::SaveFileFlow
{
    using SaveFileFlow::SaveFileFlow;

    void createDialog(const std::string& filter, const std::string& helpTopic) override
    {
        m_hasParent = m_parent;
        m_dialog = new ExtendedWinFileDialog(
            m_parent.data(), m_caption, m_directory, filter, helpTopic, QFileDialog::AcceptSave, false);
        keptDialogs().push_back({m_dialog, m_dialog->m_native->shellDialog()});
    }

    void setNameFilters(const QStringList& filters) override { m_dialog->setNameFilters(filters); }
    void selectNameFilter(int position) override { m_dialog->currentFilterIndex()->setValue(position + 1); }
    void finishDialog() override
    {
        m_dialog->selectFile(QString::fromStdString(m_filename));
        m_dialog->setDontConfirmOverwrite(true);
    }

    bool runDialog() override { return m_dialog->exec() == QDialog::Accepted; }
    QStringList selectedFiles() override { return m_dialog->selectedFiles(); }
    QStringList nameFilters() override { return m_dialog->nameFilters(); }
    int selectedPosition() override { return m_dialog->currentFilterIndex()->value() - 1; }
    QString selectedFilter() override { return nameFilters().value(selectedPosition()); }
    QWidget* messageParent() override { return m_dialog->parent(); }
    bool hasDialog() override { return m_parent || !m_hasParent; }

    ExtendedWinFileDialog* m_dialog = nullptr;
    bool m_hasParent = false;
};

SaveFileWinDialog::SaveFileWinDialog(QWidget* parent, const std::string& caption, const std::string& directory,
    const std::string& filename, const std::string& filter, const std::string& helpTopic)
    : SaveFileWinDialog(parent, caption, directory, filename, filter, helpTopic, nullptr)
{
}

SaveFileWinDialog::SaveFileWinDialog(QWidget* parent, const std::string& caption, const std::string& directory,
    const std::string& filename, const std::string& filter, const std::string& helpTopic,
    std::unique_ptr<morvane::SaveFileMessageHandlerInterface> handler)
    : m_impl(Impl::make<Impl>(parent, caption, directory, filename, std::move(handler), filter, helpTopic))
{
}

SaveFileWinDialog::SaveFileWinDialog(QWidget* parent, const std::string& caption, const std::string& directory,
    const std::string& filename, const std::vector<std::string>& writerFilters, int selectedWriterIndex,
    const std::string& helpTopic)
    : SaveFileWinDialog(parent, caption, directory, filename, writerFilters, selectedWriterIndex, helpTopic, nullptr)
{
}

SaveFileWinDialog::SaveFileWinDialog(QWidget* parent, const std::string& caption, const std::string& directory,
    const std::string& filename, const std::vector<std::string>& writerFilters, int selectedWriterIndex,
    const std::string& helpTopic, std::unique_ptr<morvane::SaveFileMessageHandlerInterface> handler)
    : m_impl(Impl::make<Impl>(
          parent, caption, directory, filename, std::move(handler), writerFilters, selectedWriterIndex, helpTopic))
{
}

SaveFileWinDialog::~SaveFileWinDialog()
{
    m_impl->abandon();
}

bool SaveFileWinDialog::launch()
{
    return Impl::launch(m_impl);
}

std::string SaveFileWinDialog::selectedFilename()
{
    return std::as_const(*this).selectedFilename();
}

std::string SaveFileWinDialog::selectedFilename() const
{
    return m_impl->m_selectedFilename;
}

std::string SaveFileWinDialog::selectedFilter()
{
    return std::as_const(*this).selectedFilter();
}

std::string SaveFileWinDialog::selectedFilter() const
{
    return m_impl->selectedFilter().toStdString();
}

int SaveFileWinDialog::selectedWriter() const
{
    return m_impl->selectedWriter();
}

morvane::ui::FileDialogCustomization* SaveFileWinDialog::customization()
{
    return m_impl->m_dialog->customization();
}

ExtendedWinFileDialog* SaveFileWinDialog::dialog()
{
    return m_impl->m_dialog;
}

bool morvane::ui::isKeptForSaveFlow(const IFileDialog& dialog)
{
    const auto& kept = keptDialogs();
    return std::any_of(kept.begin(), kept.end(), [&dialog](const Kept& one) { return one.shellDialog == &dialog; });
}
