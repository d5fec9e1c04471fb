// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/SaveFileQtDialog.h"

#include "ui/qt/dialogs/QExtendedFileDialog.h"
#include "ui/qt/dialogs/save/SaveFileFlow_p.h"

#include <QComboBox>
#include <QLineEdit>

#include <utility>

struct SaveFileQtDialog::Impl : morvane::ui::SaveFileFlow
{
    using SaveFileFlow::SaveFileFlow;

    ~Impl() override { deleteOrphan(); }

    void abandon() override
    {
        SaveFileFlow::abandon();
        deleteOrphan();
    }
    void deleteOrphan()
    {
        if (m_isOrphan) {
            delete m_dialog;
        }
    }

    void createDialog(const std::string& filter, const std::string& helpTopic) override
    {
        m_isOrphan = !m_parent;
        m_dialog = new QExtendedFileDialog(
            m_parent.data(), m_caption, m_directory, filter, helpTopic, QFileDialog::AcceptSave);
        if (filter.empty()) {
            m_given = QStringList(QString());
            m_shown = m_dialog->nameFilters();
        }
    }

    void setNameFilters(const QStringList& filters) override
    {
        m_dialog->setNameFilters(filters);
        m_given = filters;
        m_shown = m_dialog->nameFilters();
    }
    void selectNameFilter(int position) override
    {
        m_dialog->selectNameFilter(m_dialog->nameFilters().at(position));
        m_dialog->m_fileTypeCombo->setCurrentIndex(position); // two filters may have the same text
    }
    void finishDialog() override
    {
        m_dialog->selectFile(QString::fromStdString(m_filename));
        m_dialog->setOptions(QFileDialog::DontConfirmOverwrite | QFileDialog::DontUseNativeDialog);
    }

    bool runDialog() override
    {
        takeWildcardBack();
        return m_dialog->exec() == QDialog::Accepted;
    }
    QStringList selectedFiles() override { return m_dialog->selectedFiles(); }
    QStringList nameFilters() override
    {
        if (!m_dialog) {
            return QStringList();
        }
        const QStringList& saved = m_dialog->m_savedNameFilters;
        const QStringList filters = saved.isEmpty() ? m_dialog->nameFilters() : saved;
        return filters == m_shown ? m_given : filters;
    }
    int selectedPosition() override { return m_dialog ? m_dialog->m_fileTypeCombo->currentIndex() : -1; }
    QString selectedFilter() override { return m_dialog ? m_dialog->selectedNameFilter() : QString(); }
    QWidget* messageParent() override { return m_dialog; }
    bool hasDialog() override { return m_dialog; }

    /** If this were left to the dialog, it would select its first filter and change the name when it is shown. */
    void takeWildcardBack()
    {
        if (m_dialog->m_savedNameFilters.isEmpty()) {
            return;
        }
        const int position = selectedPosition();
        const QString name = m_dialog->m_fileNameEdit->text();
        m_dialog->restoreFilters();
        if (position >= 0) {
            selectNameFilter(position);
        }
        m_dialog->m_fileNameEdit->setText(name);
    }

    QPointer<QExtendedFileDialog> m_dialog;
    QStringList m_given;     // the caller's filters; one empty text if there are none
    QStringList m_shown;     // the filters as the dialog shows them: simplified; one for all files if there are none
    bool m_isOrphan = false; // no parent deletes the dialog
};

SaveFileQtDialog::SaveFileQtDialog(QWidget* parent, const std::string& caption, const std::string& directory,
    const std::string& filename, const std::string& filter, const std::string& helpTopic)
    : SaveFileQtDialog(parent, caption, directory, filename, filter, helpTopic, nullptr)
{
}

SaveFileQtDialog::SaveFileQtDialog(QWidget* parent, const std::string& caption, const std::string& directory,
    const std::string& filename, const std::string& filter, const std::string& helpTopic,
    std::unique_ptr<morvane::SaveFileMessageHandlerInterface> handler)
    : m_impl(Impl::make<Impl>(parent, caption, directory, filename, std::move(handler), filter, helpTopic))
{
}

SaveFileQtDialog::SaveFileQtDialog(QWidget* parent, const std::string& caption, const std::string& directory,
    const std::string& filename, const std::vector<std::string>& writerFilters, int selectedWriterIndex,
    const std::string& helpTopic)
    : SaveFileQtDialog(parent, caption, directory, filename, writerFilters, selectedWriterIndex, helpTopic, nullptr)
{
}

SaveFileQtDialog::SaveFileQtDialog(QWidget* parent, const std::string& caption, const std::string& directory,
    const std::string& filename, const std::vector<std::string>& writerFilters, int selectedWriterIndex,
    const std::string& helpTopic, std::unique_ptr<morvane::SaveFileMessageHandlerInterface> handler)
    : m_impl(Impl::make<Impl>(
          parent, caption, directory, filename, std::move(handler), writerFilters, selectedWriterIndex, helpTopic))
{
}

SaveFileQtDialog::~SaveFileQtDialog()
{
    m_impl->abandon();
}

bool SaveFileQtDialog::launch()
{
    return Impl::launch(m_impl);
}

std::string SaveFileQtDialog::selectedFilename()
{
    return std::as_const(*this).selectedFilename();
}

std::string SaveFileQtDialog::selectedFilename() const
{
    return m_impl->m_selectedFilename;
}

std::string SaveFileQtDialog::selectedFilter()
{
    return std::as_const(*this).selectedFilter();
}

std::string SaveFileQtDialog::selectedFilter() const
{
    return m_impl->selectedFilter().toStdString();
}

int SaveFileQtDialog::selectedWriter() const
{
    return m_impl->selectedWriter();
}

morvane::ui::FileDialogCustomization* SaveFileQtDialog::customization()
{
    return m_impl->m_dialog ? m_impl->m_dialog->customization() : nullptr;
}

QExtendedFileDialog* SaveFileQtDialog::dialog()
{
    return m_impl->m_dialog;
}
