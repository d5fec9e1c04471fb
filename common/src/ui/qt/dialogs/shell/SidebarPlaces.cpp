// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/shell/SidebarPlaces_p.h"

#include <QFileDialog>

#include <algorithm>

namespace morvane::ui {

void SidebarPlaces::addTo(QFileDialog& dialog)
{
    if (isEmpty()) {
        return;
    }
    const QList<QUrl> before = dialog.sidebarUrls();
    QList<QUrl> places;
    const auto add = [&](const QStringList& folders) {
        for (const QString& folder : folders) {
            places.append(QUrl::fromLocalFile(folder));
            if (!before.contains(places.last())) {
                m_added.append(places.last());
            }
        }
    };
    add(m_top);
    places += before;
    add(m_bottom);
    dialog.setSidebarUrls(places);
}

void SidebarPlaces::removeFrom(QFileDialog& dialog)
{
    if (m_added.isEmpty()) {
        return;
    }
    QList<QUrl> places = dialog.sidebarUrls();
    places.erase(
        std::remove_if(places.begin(), places.end(), [this](const QUrl& place) { return m_added.contains(place); }),
        places.end());
    dialog.setSidebarUrls(places);
    m_added.clear();
}

} // namespace morvane::ui
