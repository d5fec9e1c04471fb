// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "HelpPages.h"

#include <QCoreApplication>
#include <QDir>

namespace gallery {

HelpPages::HelpPages()
{
    const QDir programs(QCoreApplication::applicationDirPath());
    setHelpDirectory(QDir::cleanPath(programs.filePath(QStringLiteral("../share/morvane-gallery/help"))));
}

void HelpPages::showHelp(const std::string& topic)
{
    if (m_observer) {
        m_observer(topic);
    }
    HelpLauncher::showHelp(topic);
}

void HelpPages::setObserver(std::function<void(const std::string&)> observer)
{
    m_observer = std::move(observer);
}

} // namespace gallery
