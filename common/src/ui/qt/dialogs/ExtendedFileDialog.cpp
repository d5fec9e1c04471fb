// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/ExtendedFileDialog.h"

#include "ui/qt/dialogs/ExtendedWinFileDialog.h"
#include "ui/qt/dialogs/QExtendedFileDialog.h"

#include <QComboBox>

namespace {

/** Calls a function with the dialog that exists. Returns a default value if no dialog exists any more. */
template <typename Call>
auto withDialog(ExtendedWinFileDialog* winDialog, QExtendedFileDialog* qtDialog, Call call)
{
    using Result = decltype(call(*winDialog));
    if (winDialog) {
        return call(*winDialog);
    }
    return qtDialog ? call(*qtDialog) : Result();
}

} // namespace

bool ExtendedFileDialog::m_useNativeFileDialog = true;

bool ExtendedFileDialog::useNativeFileDialog()
{
    return m_useNativeFileDialog;
}

void ExtendedFileDialog::setUseNativeFileDialog(bool on)
{
    m_useNativeFileDialog = on;
}

ExtendedFileDialog::ExtendedFileDialog(QWidget& parent, const std::string& caption, const std::string& directory,
    const std::string& filter, const std::string& helpTopic, QFileDialog::AcceptMode acceptMode)
    : ExtendedFileDialog(&parent, caption, directory, filter, helpTopic, acceptMode)
{
}

ExtendedFileDialog::ExtendedFileDialog(QWidget* parent, const std::string& caption, const std::string& directory,
    const std::string& filter, const std::string& helpTopic, QFileDialog::AcceptMode acceptMode)
{
    if (m_useNativeFileDialog) {
        m_winDialog.reset(new ExtendedWinFileDialog(parent, caption, directory, filter, helpTopic, acceptMode, false));
    } else {
        m_qtDialog.reset(new QExtendedFileDialog(parent, caption, directory, filter, helpTopic, acceptMode));
        // When the parent is destroyed, it deletes the dialog.
        QObject::connect(m_qtDialog.get(), &QObject::destroyed, [this] { static_cast<void>(m_qtDialog.release()); });
    }
}

ExtendedFileDialog::~ExtendedFileDialog()
{
    delete m_qtDialog.release();
}

int ExtendedFileDialog::exec()
{
    if (m_winDialog) {
        return m_winDialog->exec();
    }
    return m_qtDialog ? m_qtDialog->exec() : QDialog::Rejected;
}

void ExtendedFileDialog::selectFile(const QString& file)
{
    withDialog(m_winDialog.get(), m_qtDialog.get(), [&](auto& dialog) { dialog.selectFile(file); });
}

QStringList ExtendedFileDialog::selectedFiles()
{
    return withDialog(m_winDialog.get(), m_qtDialog.get(), [](auto& dialog) { return dialog.selectedFiles(); });
}

void ExtendedFileDialog::setFileMode(QFileDialog::FileMode mode)
{
    withDialog(m_winDialog.get(), m_qtDialog.get(), [&](auto& dialog) { dialog.setFileMode(mode); });
}

QDir ExtendedFileDialog::directory()
{
    return withDialog(m_winDialog.get(), m_qtDialog.get(), [](auto& dialog) { return dialog.directory(); });
}

void ExtendedFileDialog::setDirectory(const QString& directory)
{
    withDialog(m_winDialog.get(), m_qtDialog.get(), [&](auto& dialog) { dialog.setDirectory(directory); });
}

void ExtendedFileDialog::selectNameFilter(const QString& filter)
{
    withDialog(m_winDialog.get(), m_qtDialog.get(), [&](auto& dialog) { dialog.selectNameFilter(filter); });
}

QStringList ExtendedFileDialog::nameFilters()
{
    return withDialog(m_winDialog.get(), m_qtDialog.get(), [](auto& dialog) { return dialog.nameFilters(); });
}

void ExtendedFileDialog::setNameFilters(const QStringList& filters)
{
    withDialog(m_winDialog.get(), m_qtDialog.get(), [&](auto& dialog) { dialog.setNameFilters(filters); });
}

int ExtendedFileDialog::chosenFilter()
{
    if (m_qtDialog && !m_qtDialog->m_savedNameFilters.isEmpty()) {
        // A filter that a typed wildcard has changed may have the same text as another one.
        const QStringList& given = m_qtDialog->m_savedNameFilters;
        return given.indexOf(given.value(m_qtDialog->m_fileTypeCombo->currentIndex()));
    }
    return nameFilters().indexOf(selectedNameFilter());
}

QString ExtendedFileDialog::selectedNameFilter()
{
    return withDialog(m_winDialog.get(), m_qtDialog.get(), [](auto& dialog) { return dialog.selectedNameFilter(); });
}

void ExtendedFileDialog::setDontConfirmOverwrite(bool on)
{
    withDialog(m_winDialog.get(), m_qtDialog.get(), [&](auto& dialog) { dialog.setDontConfirmOverwrite(on); });
}

void ExtendedFileDialog::setShowDirectoriesOnly(bool on)
{
    withDialog(m_winDialog.get(), m_qtDialog.get(), [&](auto& dialog) { dialog.setShowDirectoriesOnly(on); });
}
