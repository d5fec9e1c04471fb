#include "ui/qt/dialogs/ExtendedFileDialog.h"

#include "ui/qt/dialogs/ExtendedWinFileDialog.h"
#include "ui/qt/dialogs/QExtendedFileDialog.h"

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
    }
}

ExtendedFileDialog::~ExtendedFileDialog() = default;

int ExtendedFileDialog::exec()
{
    return m_winDialog ? static_cast<int>(m_winDialog->exec()) : m_qtDialog->exec();
}

void ExtendedFileDialog::selectFile(const QString& file)
{
    m_winDialog ? m_winDialog->selectFile(file) : m_qtDialog->selectFile(file);
}

QStringList ExtendedFileDialog::selectedFiles()
{
    return m_winDialog ? m_winDialog->selectedFiles() : m_qtDialog->selectedFiles();
}

void ExtendedFileDialog::setFileMode(QFileDialog::FileMode mode)
{
    m_winDialog ? m_winDialog->setFileMode(mode) : m_qtDialog->setFileMode(mode);
}

QDir ExtendedFileDialog::directory()
{
    return m_winDialog ? m_winDialog->directory() : m_qtDialog->directory();
}

void ExtendedFileDialog::setDirectory(const QString& directory)
{
    m_winDialog ? m_winDialog->setDirectory(directory) : m_qtDialog->setDirectory(directory);
}

void ExtendedFileDialog::selectNameFilter(const QString& filter)
{
    m_winDialog ? m_winDialog->selectNameFilter(filter) : m_qtDialog->selectNameFilter(filter);
}

QStringList ExtendedFileDialog::nameFilters()
{
    return m_winDialog ? m_winDialog->nameFilters() : m_qtDialog->nameFilters();
}

void ExtendedFileDialog::setNameFilters(const QStringList& filters)
{
    m_winDialog ? m_winDialog->setNameFilters(filters) : m_qtDialog->setNameFilters(filters);
}

QString ExtendedFileDialog::selectedNameFilter()
{
    return m_winDialog ? m_winDialog->selectedNameFilter() : m_qtDialog->selectedNameFilter();
}

void ExtendedFileDialog::setDontConfirmOverwrite(bool on)
{
    m_winDialog ? m_winDialog->setDontConfirmOverwrite(on) : m_qtDialog->setDontConfirmOverwrite(on);
}

void ExtendedFileDialog::setShowDirectoriesOnly(bool on)
{
    m_winDialog ? m_winDialog->setShowDirectoriesOnly(on) : m_qtDialog->setShowDirectoriesOnly(on);
}
