// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QStringList>
#include <QUrl>

class QFileDialog;

namespace morvane::ui {

/**
 * Folders that a host shows in the sidebar of Qt's file dialog. Qt keeps the sidebar for all dialogs of the user, so
 * the folders must be removed before the dialog is destroyed. What the user has changed in the sidebar stays.
 */
class SidebarPlaces
{
public:
    /** @param folder absolute path of an existing folder */
    void add(const QString& folder, bool atTop) { (atTop ? m_top : m_bottom).append(folder); }
    bool isEmpty() const { return m_top.isEmpty() && m_bottom.isEmpty(); }

    void addTo(QFileDialog& dialog);
    void removeFrom(QFileDialog& dialog);

private:
    QStringList m_top;
    QStringList m_bottom;
    QList<QUrl> m_added; ///< in the sidebar now, and not there before
};

} // namespace morvane::ui
