// What happens between pressing the accept button and the end of the dialog.
#include "ui/qt/dialogs/shell/FileDialogWindow_p.h"
#include "ui/qt/dialogs/shell/TypedNames_p.h"
#include "ui/qt/dialogs/shell/TypedPatterns_p.h"

#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QLineEdit>
#include <QPointer>

#include <algorithm>

namespace morvane::ui {

namespace {

bool isFolder(const QString& path)
{
    return QFileInfo(path).isDir();
}

QString nameForMessage(const QString& path)
{
    return QDir::toNativeSeparators(path);
}

} // namespace

void FileDialogWindow::accept()
{
    const QPointer<FileDialogWindow> self(this);
    deliver(); // the observer hears of what led to the choice before the choice
    if (!self || !isVisible()) {
        return;
    }
    if (holdsWildcard()) {
        filterByWildcard();
        return;
    }
    const QStringList paths = consistsOfWidgets() ? chosenPaths() : selectedFiles();
    if (paths.isEmpty() || (consistsOfWidgets() && (enterFolderAmong(paths) || !exist(paths)))) {
        return;
    }
    if (!self || (consistsOfWidgets() && m_settings.saving && !mayReplaceAll(paths)) || !self) {
        return;
    }
    const bool accepted = m_observer.mayAccept(paths);
    if (self && accepted) {
        done(QDialog::Accepted);
    } else if (self && !consistsOfWidgets() && isVisible()) {
        m_again = true;
        done(QDialog::Rejected);
    }
}

void FileDialogWindow::filterByWildcard()
{
    if (!enterFolderOfWildcard()) {
        return;
    }
    forgetWildcard();
    m_typedPatterns = patternsOfTypedText(m_nameEdit->text());
    applyPatterns();
    if (!m_settings.types.empty()) {
        const auto& type = m_settings.types.at(static_cast<std::size_t>(m_settings.typeIndex));
        const QString shown = m_typedPatterns.join(QLatin1Char(' '));
        m_typeCombo->setItemText(m_settings.typeIndex, QStringLiteral("%1 (%2)").arg(type.description, shown));
    }
}

/** False when the wildcard names a folder that is not there. */
bool FileDialogWindow::enterFolderOfWildcard()
{
    const QString text = QDir::fromNativeSeparators(m_nameEdit->text()).remove(QLatin1Char('"'));
    const int end = text.lastIndexOf(QLatin1Char('/')) + 1;
    if (end == 0) {
        return true;
    }
    const QString folder = pathsOfTypedText(text.left(end), directory().absolutePath(), false).value(0);
    if (!isFolder(folder)) {
        ask(tr("%1\nDirectory not found.\nPlease verify the correct directory name was given.")
                .arg(nameForMessage(folder)),
            QMessageBox::Ok, QMessageBox::Ok);
        return false;
    }
    setDirectory(folder);
    setTypedName(text.mid(end));
    return holdsWildcard();
}

void FileDialogWindow::forgetWildcard()
{
    if (!m_typedPatterns.isEmpty() && !m_settings.types.empty()) {
        const auto& type = m_settings.types.at(static_cast<std::size_t>(m_settings.typeIndex));
        m_typeCombo->setItemText(m_settings.typeIndex, type.description);
    }
    m_typedPatterns.clear();
}

QStringList FileDialogWindow::chosenPaths() const
{
    const QString text = m_nameEdit->text();
    if (m_settings.picksFolders && text.isEmpty()) {
        return QStringList(directory().absolutePath());
    }
    QStringList paths = pathsOfTypedText(text, directory().absolutePath(), m_settings.allowsSeveral);
    for (QString& path : paths) {
        const bool lacksSuffix = QFileInfo(path).suffix().isEmpty() && !QFileInfo::exists(path);
        if (lacksSuffix && !m_settings.defaultSuffix.isEmpty() && !m_settings.picksFolders) {
            path += QLatin1Char('.') + m_settings.defaultSuffix;
        }
    }
    return paths;
}

bool FileDialogWindow::enterFolderAmong(const QStringList& paths)
{
    const auto found = std::find_if(paths.begin(), paths.end(), isFolder);
    if (m_settings.picksFolders || found == paths.end()) {
        return false;
    }
    setDirectory(*found);
    m_nameEdit->clear();
    return true;
}

bool FileDialogWindow::exist(const QStringList& paths)
{
    for (const QString& path : paths) {
        const QFileInfo info(path);
        if (m_settings.picksFolders && !info.isDir()) {
            ask(tr("%1\nDirectory not found.\nPlease verify the correct directory name was given.")
                    .arg(nameForMessage(path)),
                QMessageBox::Ok, QMessageBox::Ok);
            return false;
        }
        if (m_settings.fileMustExist && !info.exists()) {
            ask(tr("%1\nFile not found.\nPlease verify the correct file name was given.").arg(nameForMessage(path)),
                QMessageBox::Ok, QMessageBox::Ok);
            return false;
        }
        if (m_settings.pathMustExist && !isFolder(info.path())) {
            ask(tr("%1\nDirectory not found.\nPlease verify the correct directory name was given.")
                    .arg(nameForMessage(info.path())),
                QMessageBox::Ok, QMessageBox::Ok);
            return false;
        }
    }
    return true;
}

bool FileDialogWindow::mayReplaceAll(const QStringList& paths)
{
    const QPointer<FileDialogWindow> self(this);
    return std::all_of(
        paths.begin(), paths.end(), [this, &self](const QString& path) { return self && mayReplace(path); });
}

bool FileDialogWindow::mayReplace(const QString& path)
{
    if (!m_settings.asksBeforeOverwriting || m_settings.picksFolders || !QFileInfo::exists(path)) {
        return true;
    }
    const QPointer<FileDialogWindow> self(this);
    const auto answer = m_observer.mayOverwrite(path);
    if (!self || !isVisible() || answer != FileDialogObserver::OverwriteAnswer::Ask) {
        return self && answer == FileDialogObserver::OverwriteAnswer::Accept;
    }
    const QString text = tr("%1 already exists.\nDo you want to replace it?").arg(QFileInfo(path).fileName());
    return ask(text, QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes && self && isVisible();
}

QMessageBox::StandardButton FileDialogWindow::ask(
    const QString& text, QMessageBox::StandardButtons buttons, QMessageBox::StandardButton defaultButton)
{
    // On the heap, since the owner of the window may go while the box is open and take both with it.
    const QPointer<QMessageBox> box(new QMessageBox(QMessageBox::Warning, windowTitle(), text, buttons, this));
    box->setTextFormat(Qt::PlainText);
    box->setDefaultButton(defaultButton);
    const auto answer = static_cast<QMessageBox::StandardButton>(box->exec());
    delete box;
    return answer;
}

} // namespace morvane::ui
