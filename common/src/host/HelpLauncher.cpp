#include "host/HelpLauncher.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QMessageBox>
#include <QUrl>

namespace morvane {

namespace {

HelpLauncher* replacementInstance = nullptr;

/** The existing page for the topic, its path free of links; empty when it is missing or lies outside the directory. */
QString findPage(const QString& helpDirectory, const QString& topic)
{
    // QDir would take an absolute topic for the whole path, and a NUL would cut the file name.
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
    auto* const box = new QMessageBox(QMessageBox::Information, QCoreApplication::translate("HelpLauncher", "Help"),
        QCoreApplication::translate("HelpLauncher", "The help for the topic \"%1\" could not be shown.").arg(topic),
        QMessageBox::Ok, QApplication::activeWindow());
    box->setTextFormat(Qt::PlainText);
    box->setAttribute(Qt::WA_DeleteOnClose); // survives a parent that is destroyed while the box is open
    box->exec();
}

} // namespace

HelpLauncher::HelpLauncher() = default;

HelpLauncher::~HelpLauncher() = default;

void HelpLauncher::showHelp(const std::string& topic)
{
    const QString text = QString::fromUtf8(topic.data(), static_cast<int>(topic.size()));
    const QString page = findPage(m_helpDirectory, text);
    if (page.isEmpty() || !QDesktopServices::openUrl(QUrl::fromLocalFile(page))) {
        tellThatHelpCannotBeShown(text);
    }
}

HelpLauncher& HelpLauncher::getInstance()
{
    if (replacementInstance) {
        return *replacementInstance;
    }
    static HelpLauncher defaultInstance;
    return defaultInstance;
}

HelpLauncher* HelpLauncher::setInstance(HelpLauncher* replacement)
{
    HelpLauncher* const previous = replacementInstance;
    replacementInstance = replacement;
    return previous;
}

QString HelpLauncher::helpDirectory() const
{
    return m_helpDirectory;
}

void HelpLauncher::setHelpDirectory(const QString& directory)
{
    m_helpDirectory = directory;
}

} // namespace morvane
