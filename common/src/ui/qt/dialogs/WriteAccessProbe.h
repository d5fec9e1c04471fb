#pragma once

#include <boost/filesystem/path.hpp>

// Internal, not installed.

/**
 * Whether @p target can be written, found out by opening it for appending. Never throws.
 *
 * An existing file is opened and left as it is. For a directory a scratch file is made in it and removed. A name that
 * does not exist is made and removed again; where it is a symbolic link to nothing, so is what it points to, and the
 * link stays. Nothing that was there before, or that another process makes meanwhile, is ever removed.
 */
bool checkWriteAccess(const boost::filesystem::path& target);

/**
 * One attempt to open @p candidate for appending, which leaves the bytes of an existing file alone.
 * @param removeAfter the name does not exist: what the attempt creates is removed again
 */
bool probeOpenForAppend(boost::filesystem::path candidate, bool removeAfter);
