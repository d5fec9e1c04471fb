// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

#include <string>
#include <string_view>

namespace morvane::ui {

// The time of each function is proportional to the length of the text. No function recurses.

/** One file type for the Shell, in UTF-8. */
struct FileTypeText
{
    std::string description;
    std::string patterns; ///< separated by semicolons
};

/**
 * Splits `Images (*.png *.jpg)` into `Images` and `*.png;*.jpg`.
 *
 * The result is that of the expression `(.*) \((.*)\).*`: the patterns end at the last closing parenthesis. They begin
 * after the last blank and opening parenthesis before it. If the text has another form or contains a line break, the
 * whole text is the patterns, and the description is "File of Type".
 */
FileTypeText splitNameFilter(std::string_view filter);

/**
 * The extension that a filter gives to the typed name: `dat` for `Data (*.dat)`.
 *
 * The result is capture 1 of the expression `.* \(\*\.(.*)\).*`: the text between the last closing parenthesis and the
 * last ` (*.` before it. For a filter with several patterns this is the rest of the list: `png *.jpg` for
 * `Images (*.png *.jpg)`. Empty if the filter has another form.
 */
std::string extensionOfNameFilter(std::string_view filter);

/** Whether the first pattern of an extension consists of wildcards only, like the `*` from `All files (*.*)`. */
bool isBareWildcard(std::string_view extension);

/**
 * Splits filters that are joined by `;;`, and removes the blanks around each of them. An empty filter is left out. A
 * filter that consists of blanks is kept as an empty text.
 */
QStringList splitNameFilters(const std::string& filters);

} // namespace morvane::ui
