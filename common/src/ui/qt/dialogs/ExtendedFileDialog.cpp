#include "ui/qt/dialogs/ExtendedFileDialog.h"

#include "ui/qt/dialogs/ExtendedWinFileDialog.h"
#include "ui/qt/dialogs/QExtendedFileDialog.h"

#include <QComboBox>

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
        // A parent that is destroyed takes the dialog with it.
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
    if (m_winDialog) {
        m_winDialog->selectFile(file);
    } else if (m_qtDialog) {
        m_qtDialog->selectFile(file);
    }
}

QStringList ExtendedFileDialog::selectedFiles()
{
    return m_winDialog ? m_winDialog->selectedFiles() : m_qtDialog ? m_qtDialog->selectedFiles() : QStringList();
}

void ExtendedFileDialog::setFileMode(QFileDialog::FileMode mode)
{
    if (m_winDialog) {
        m_winDialog->setFileMode(mode);
    } else if (m_qtDialog) {
        m_qtDialog->setFileMode(mode);
    }
}

QDir ExtendedFileDialog::directory()
{
    return m_winDialog ? m_winDialog->directory() : m_qtDialog ? m_qtDialog->directory() : QDir();
}

void ExtendedFileDialog::setDirectory(const QString& directory)
{
    if (m_winDialog) {
        m_winDialog->setDirectory(directory);
    } else if (m_qtDialog) {
        m_qtDialog->setDirectory(directory);
    }
}

void ExtendedFileDialog::selectNameFilter(const QString& filter)
{
    if (m_winDialog) {
        m_winDialog->selectNameFilter(filter);
    } else if (m_qtDialog) {
        m_qtDialog->selectNameFilter(filter);
    }
}

QStringList ExtendedFileDialog::nameFilters()
{
    return m_winDialog ? m_winDialog->nameFilters() : m_qtDialog ? m_qtDialog->nameFilters() : QStringList();
}

void ExtendedFileDialog::setNameFilters(const QStringList& filters)
{
    if (m_winDialog) {
        m_winDialog->setNameFilters(filters);
    } else if (m_qtDialog) {
        m_qtDialog->setNameFilters(filters);
    }
}

int ExtendedFileDialog::chosenFilter()
{
    if (m_qtDialog && !m_qtDialog->m_savedNameFilters.isEmpty()) {
        // A filter that was edited by a typed wildcard may read like another one.
        const QStringList& given = m_qtDialog->m_savedNameFilters;
        return given.indexOf(given.value(m_qtDialog->m_fileTypeCombo->currentIndex()));
    }
    return nameFilters().indexOf(selectedNameFilter());
}

QString ExtendedFileDialog::selectedNameFilter()
{
    return m_winDialog ? m_winDialog->selectedNameFilter() : m_qtDialog ? m_qtDialog->selectedNameFilter() : QString();
}

void ExtendedFileDialog::setDontConfirmOverwrite(bool on)
{
    if (m_winDialog) {
        m_winDialog->setDontConfirmOverwrite(on);
    } else if (m_qtDialog) {
        m_qtDialog->setDontConfirmOverwrite(on);
    }
}

void ExtendedFileDialog::setShowDirectoriesOnly(bool on)
{
    if (m_winDialog) {
        m_winDialog->setShowDirectoriesOnly(on);
    } else if (m_qtDialog) {
        m_qtDialog->setShowDirectoriesOnly(on);
    }
}
