// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/filesystem/path.hpp>

#include <string>

namespace morvane::ui {

// Conversions between UTF-8 and paths. On Windows paths are wide text. There Boost's own conversions depend on the code
// page of the process and on how Boost was linked. These conversions do not.

/** The path with the UTF-8 name @p utf8. Outside Windows its bytes are unchanged. */
boost::filesystem::path pathFromUtf8(const std::string& utf8);

/** The name of @p path in UTF-8, with the separators it has. */
std::string pathToUtf8(const boost::filesystem::path& path);

/** The name of @p path in UTF-8, with forward slashes. */
std::string pathToGenericUtf8(const boost::filesystem::path& path);

/** The name with forward slashes. Unchanged if the platform's separator is the forward slash. */
std::string withForwardSlashes(std::string utf8);

} // namespace morvane::ui
