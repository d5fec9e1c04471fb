// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

namespace morvane::test {

/**
 * Whether a file of this name can be made on this platform's disks. Windows reserves some characters and drops blanks
 * and dots at the end; other systems allow all characters except "/" and NUL.
 */
bool diskTakesName(const QString& name);

/** The names for which diskTakesName() is true, in the same order. */
QStringList namesForDisk(const QStringList& names);

/**
 * The path of a file that nobody can write although its directory exists: in /sys, where no files can be
 * made, or else below @p directory with an invalid name. Ends in @p name and at most one more character.
 */
QString refusedPath(const QString& directory, const QString& name);

} // namespace morvane::test
