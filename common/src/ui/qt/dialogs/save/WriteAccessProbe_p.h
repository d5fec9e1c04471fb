// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/filesystem/path.hpp>

namespace morvane::ui {

/**
 * Whether @p target can be written, found out by opening it for appending. Never throws.
 *
 * An existing file is opened and not changed. In a directory, a scratch file is created and removed. A file that does
 * not exist is created and removed. If @p target is a symbolic link to a file that does not exist, that file is created
 * and removed, and the link stays. Files are created exclusively, so that an existing file is never removed, even if
 * its status cannot be read.
 *
 * If another process renames a file to this name meanwhile, that file stays. On Windows the created file is deleted
 * through its own handle, and the renaming may fail. On other systems the created file is compared with the file that
 * has the name. That file is renamed, compared again, and then removed or given its name back, so the name may be
 * missing for a moment.
 *
 * Another process cannot open the created file on Windows. On other systems it can; the file is removed if it is still
 * empty, and what the process writes later is lost. Without hard links, or if the file cannot be renamed, a file that
 * gets the name at that moment may be lost.
 */
bool checkWriteAccess(const boost::filesystem::path& target);

/**
 * Tries once to open @p candidate for appending. Does not change the contents of an existing file.
 * @param removeAfter the file may not exist; it is created exclusively and removed
 */
bool probeOpenForAppend(boost::filesystem::path candidate, bool removeAfter);

} // namespace morvane::ui
