#pragma once

#include <QDir>
#include <QString>

namespace gallery {

/** A folder of real files for the tour to work on. */
class TourFolder
{
public:
    /** Makes the files in @p directory, which exists. @return whether all could be written */
    bool create(const QDir& directory);

    /** `run-001.dat`, `run-002.dat`, `run-003.dat`, `summary.csv`, `notes.txt` and the folder `archive`. */
    QString path() const { return m_directory.path(); }
    QString path(const QString& name) const { return m_directory.filePath(name); }

private:
    QDir m_directory;
};

} // namespace gallery
