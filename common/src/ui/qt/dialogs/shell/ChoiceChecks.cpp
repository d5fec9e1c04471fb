// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/shell/ChoiceChecks_p.h"

#include "host/MessageBox_p.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

#include <algorithm>

namespace morvane::ui {

ChoiceChecks::ChoiceChecks(QWidget& window, const FileDialogSettings& settings, FileDialogObserver& observer)
    : m_window(&window), m_settings(settings), m_observer(observer)
{
}

bool ChoiceChecks::exist(const QStringList& paths)
{
    return std::all_of(paths.begin(), paths.end(), [this](const QString& path) { return exists(path); });
}

bool ChoiceChecks::exists(const QString& path)
{
    const QFileInfo info(path);
    if (m_settings.picksFolders && !info.isDir()) {
        tellMissingFolder(path);
        return false;
    }
    if (m_settings.fileMustExist && !info.exists()) {
        ask(QFileDialog::tr("%1\nFile not found.\nPlease verify the correct file name was given.")
                .arg(QDir::toNativeSeparators(path)),
            QMessageBox::Ok, QMessageBox::Ok);
        return false;
    }
    if (m_settings.pathMustExist && !QFileInfo(info.path()).isDir()) {
        tellMissingFolder(info.path());
        return false;
    }
    return true;
}

void ChoiceChecks::tellMissingFolder(const QString& path)
{
    ask(QFileDialog::tr("%1\nDirectory not found.\nPlease verify the correct directory name was given.")
            .arg(QDir::toNativeSeparators(path)),
        QMessageBox::Ok, QMessageBox::Ok);
}

bool ChoiceChecks::mayReplaceAll(const QStringList& paths)
{
    return std::all_of(
        paths.begin(), paths.end(), [this](const QString& path) { return m_window && mayReplace(path); });
}

bool ChoiceChecks::mayReplace(const QString& path)
{
    if (!m_settings.asksBeforeOverwriting || m_settings.picksFolders || !QFileInfo::exists(path)) {
        return true;
    }
    const auto answer = m_observer.mayOverwrite(path);
    if (!m_window || !m_window->isVisible() || answer != FileDialogObserver::OverwriteAnswer::Ask) {
        return m_window && answer == FileDialogObserver::OverwriteAnswer::Accept;
    }
    const QString text =
        QFileDialog::tr("%1 already exists.\nDo you want to replace it?").arg(QFileInfo(path).fileName());
    const bool replaces = ask(text, QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes;
    return replaces && m_window && m_window->isVisible();
}

QMessageBox::StandardButton ChoiceChecks::ask(
    const QString& text, QMessageBox::StandardButtons buttons, QMessageBox::StandardButton defaultButton)
{
    return showMessageBox(QMessageBox::Warning, m_window->windowTitle(), text, buttons, defaultButton, m_window);
}

} // namespace morvane::ui
