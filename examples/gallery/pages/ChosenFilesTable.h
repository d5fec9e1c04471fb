// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>
#include <QTableWidget>

namespace gallery {

/** The files that a file dialog returned, one row for each file, with the properties of the file on disk. */
class ChosenFilesTable : public QTableWidget
{
public:
    ChosenFilesTable();

    /** Replaces the rows. @return the lines for the log, one for each file */
    QStringList showFiles(const QStringList& files);
    /** Names and sizes as shown, `name=size`, separated by blanks. */
    QString content() const;

private:
    enum Column
    {
        Name,
        Size,
        Modified,
        Folder,
        ColumnCount
    };
};

} // namespace gallery
