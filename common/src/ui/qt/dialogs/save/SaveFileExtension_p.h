// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

namespace morvane::ui {

/**
 * Appends the extension of the chosen name filter to @p filename if the name has no extension.
 *
 * The extension is the text from the last dot of @p nameFilter, without white space, parentheses and asterisks: `.dat`
 * for `Data (*.dat)`, `.lay` for `Layouts (*.plt *.lay)`. The whole text of a filter without a dot is the extension:
 * `Allfiles` for `All files (*)`.
 *
 * A name has no extension if the whole path contains no dot, or if it ends with a dot. It then gets the extension and
 * is returned with forward slashes. Any other name is returned unchanged, and so is any name if the extension is empty.
 * All text is UTF-8. The time is proportional to the length of both.
 */
std::string applyFilterExtension(const std::string& filename, const std::string& nameFilter);

} // namespace morvane::ui
