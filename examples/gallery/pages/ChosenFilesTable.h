#pragma once

#include <QStringList>
#include <QTableWidget>

namespace gallery {

/** What a file dialog returned, one row a file, with what is on the disk under that name. */
class ChosenFilesTable : public QTableWidget
{
public:
    ChosenFilesTable();

    /** Replaces the rows. @return what to tell the log, one line a file */
    QStringList showFiles(const QStringList& files);
    /** Names and sizes as shown, `name=size`, joined by blanks. */
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
