// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDir>
#include <QString>

namespace gallery {

/** A folder with real files for the tour. */
class TourFolder
{
public:
    /** Creates the files in @p directory, which must exist. @return whether all were written */
    bool create(const QDir& directory);

    /** `run-001.dat`, `run-002.dat`, `run-003.dat`, `summary.csv`, `notes.txt` and the folder `archive`. */
    QString path() const { return m_directory.path(); }
    QString path(const QString& name) const { return m_directory.filePath(name); }

private:
    QDir m_directory;
};

} // namespace gallery
