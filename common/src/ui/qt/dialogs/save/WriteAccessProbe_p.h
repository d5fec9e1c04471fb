#pragma once

#include <boost/filesystem/path.hpp>

namespace morvane::ui {

/**
 * Whether @p target can be written, found out by opening it for appending. Never throws.
 *
 * An existing file is opened and left as it is. For a directory a scratch file is made in it and removed. A name that
 * does not exist is made and removed again; where it is a symbolic link to nothing, so is what it points to, and the
 * link stays. Files are made exclusively, so that what was there before is never removed, also when its status cannot
 * be read.
 *
 * What another process renames onto the name during the attempt stays. On Windows what was made goes with its own
 * handle, and the renaming may be refused meanwhile. Elsewhere what was made is compared with what has the name; that
 * is moved to a name of its own, compared again there, and removed, or given its name back. For that moment the name
 * may be missing. A process that opens the very file that was made is refused on Windows; elsewhere the file is removed
 * if it is still empty, and what is written later goes with it. Without hard links, or without a place for another name
 * in the same folder, a file that arrives at that very moment may be lost.
 */
bool checkWriteAccess(const boost::filesystem::path& target);

/**
 * One attempt to open @p candidate for appending, which leaves the bytes of an existing file alone.
 * @param removeAfter the name may not exist: it is created exclusively, and removed again if that succeeds
 */
bool probeOpenForAppend(boost::filesystem::path candidate, bool removeAfter);

} // namespace morvane::ui
