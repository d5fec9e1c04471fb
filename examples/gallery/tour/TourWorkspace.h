// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/ApplicationSettings.h"
#include "host/InstanceOverride.h"
#include "tour/TourFolder.h"

#include <QObject>
#include <QTemporaryDir>
#include <QUrl>

#include <memory>

namespace gallery {

/**
 * A temporary directory for the tour's settings and files, which is deleted with this object. Also records the help
 * pages that would otherwise be opened in the user's browser.
 */
class TourWorkspace : public QObject
{
    Q_OBJECT

public:
    TourWorkspace();
    ~TourWorkspace() override;

    /** Whether the temporary directory and all its files were created. */
    bool isUsable() const { return m_usable; }
    const TourFolder& folder() const { return m_folder; }
    /** The file that a Help button opened last; empty if there is none. */
    QString openedPage() const { return m_openedPage; }
    /** How often a Help button opened a file. */
    int openedPages() const { return m_openedPages; }

public Q_SLOTS:
    void openUrl(const QUrl& url);

private:
    QTemporaryDir m_directory;
    TourFolder m_folder;
    bool m_usable = false;
    QString m_openedPage;
    int m_openedPages = 0;
    std::unique_ptr<morvane::ApplicationSettings> m_settings;
    std::unique_ptr<morvane::InstanceOverride<morvane::ApplicationSettings>> m_override;
};

} // namespace gallery
