// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "host/HelpLauncher.h"

#include "host/MessageBox_p.h"
#include "host/ReplaceableInstance_p.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QUrl>

namespace morvane {

namespace {

ui::ReplaceableInstance<HelpLauncher> currentLauncher;

/** The path of the page, with links resolved. Empty if there is no such file in the directory. */
QString findPage(const QString& helpDirectory, const QString& topic)
{
    // With an absolute topic, QDir would ignore the directory. A NUL would end the file name.
    if (helpDirectory.isEmpty() || topic.isEmpty() || QDir::isAbsolutePath(topic) || topic.contains(QChar::Null)) {
        return QString();
    }
    const QString directory = QFileInfo(helpDirectory).canonicalFilePath();
    const QFileInfo page(QDir(helpDirectory).filePath(topic + QStringLiteral(".html")));
    const QString path = page.canonicalFilePath();
    const QString prefix = directory.endsWith(QLatin1Char('/')) ? directory : directory + QLatin1Char('/');
    if (directory.isEmpty() || !page.isFile() || !path.startsWith(prefix)) {
        return QString();
    }
    return path;
}

void tellThatHelpCannotBeShown(const QString& topic)
{
    ui::showMessageBox(QMessageBox::Information, QCoreApplication::translate("HelpLauncher", "Help"),
        QCoreApplication::translate("HelpLauncher", "The help for the topic \"%1\" could not be shown.").arg(topic),
        QMessageBox::Ok, QMessageBox::NoButton, QApplication::activeWindow());
}

} // namespace

struct HelpLauncher::Impl
{
    QString helpDirectory;
};

HelpLauncher::HelpLauncher() : m_impl(std::make_unique<Impl>()) {}

HelpLauncher::~HelpLauncher() = default;

void HelpLauncher::showHelp(const std::string& topic)
{
    const QString text = QString::fromStdString(topic);
    const QString page = findPage(m_impl->helpDirectory, text);
    if (page.isEmpty() || !QDesktopServices::openUrl(QUrl::fromLocalFile(page))) {
        tellThatHelpCannotBeShown(text);
    }
}

HelpLauncher& HelpLauncher::getInstance()
{
    return currentLauncher.get();
}

HelpLauncher* HelpLauncher::setInstance(HelpLauncher* replacement)
{
    return currentLauncher.replace(replacement);
}

QString HelpLauncher::helpDirectory() const
{
    return m_impl->helpDirectory;
}

void HelpLauncher::setHelpDirectory(const QString& directory)
{
    m_impl->helpDirectory = directory;
}

} // namespace morvane
