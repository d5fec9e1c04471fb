// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "tour/TourWorkspace.h"

#include <QDesktopServices>
#include <QSettings>

namespace gallery {

TourWorkspace::TourWorkspace()
{
    const QDir root(m_directory.path());
    m_usable = m_directory.isValid() && root.mkpath(QStringLiteral("Measurements")) &&
               m_folder.create(QDir(root.filePath(QStringLiteral("Measurements"))));
    m_settings = std::make_unique<morvane::ApplicationSettings>(root.filePath(QStringLiteral("settings.ini")));
    m_override = std::make_unique<morvane::InstanceOverride<morvane::ApplicationSettings>>(*m_settings);
    // QFileDialog stores its own settings, too.
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, root.path());
    QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "openUrl");
}

TourWorkspace::~TourWorkspace()
{
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
}

void TourWorkspace::openUrl(const QUrl& url)
{
    m_openedPage = url.toLocalFile();
    ++m_openedPages;
}

} // namespace gallery
