#pragma once

#include <boost/filesystem/path.hpp>

#include <string>

namespace morvane::ui {

// UTF-8 names and the path library. Internal, not installed.
// Where paths are wide (Windows), the library's own narrow conversions depend on the process's code page and on how
// Boost was linked; these do not.

/** The path with the UTF-8 name @p utf8; elsewhere than on Windows its bytes are taken as they are. */
boost::filesystem::path pathFromUtf8(const std::string& utf8);

/** The name of @p path in UTF-8, with the separators it has. */
std::string pathToUtf8(const boost::filesystem::path& path);

/** The name of @p path in UTF-8, with forward slashes. */
std::string pathToGenericUtf8(const boost::filesystem::path& path);

/** The name with forward slashes where the platform has other separators. */
std::string withForwardSlashes(std::string utf8);

} // namespace morvane::ui
