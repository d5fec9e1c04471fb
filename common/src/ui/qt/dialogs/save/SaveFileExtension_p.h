#pragma once

#include <string>

namespace morvane::ui {

/**
 * The name to save under: @p filename with the extension of the chosen name filter, if it has none of its own.
 *
 * The extension is what follows the last dot of @p nameFilter, without white space, parentheses and asterisks: `.dat`
 * for `Data (*.dat)`, `.lay` for `Layouts (*.plt *.lay)`. A filter without a dot counts as a whole: `Allfiles` for `All
 * files (*)`. The name gets it, and comes back with forward slashes, when there is no dot in it, in none of its
 * directories either, or when it ends with one; any other name, and any name when the extension is empty, comes back as
 * it is. All text is UTF-8. Takes time proportional to the length of both.
 */
std::string applyFilterExtension(const std::string& filename, const std::string& nameFilter);

} // namespace morvane::ui
