#pragma once

#include <QString>
#include <QStringList>

namespace morvane::test {

/**
 * Whether a file of this name can be made on this platform's disks. Windows reserves some characters and drops blanks
 * and dots at the end; elsewhere all but "/" and NUL goes.
 */
bool diskTakesName(const QString& name);

/** Those of the names that diskTakesName() is true for, in their order. */
QStringList namesForDisk(const QStringList& names);

/**
 * The path of a file that nobody can write although the directory it stands in exists: in a place of the system that
 * takes no files, or else below @p directory with a name that the disk does not take. Ends in @p name and at most one
 * more character.
 */
QString refusedPath(const QString& directory, const QString& name);

} // namespace morvane::test
