#pragma once

#include <QString>
#include <QStringList>

#include <string>
#include <string_view>

namespace morvane::ui {

// Reading name filters for the native dialog. Internal, not installed.
// Every function takes time proportional to the length of the text and does not recurse.

/** One file type as the Shell takes it, UTF-8. */
struct FileTypeText
{
    std::string description;
    std::string patterns; ///< separated by semicolons
};

/**
 * Splits `Images (*.png *.jpg)` into `Images` and `*.png;*.jpg`, as the expression `(.*) \((.*)\).*` does: at the last
 * blank and parenthesis that still have a closing parenthesis after them, up to the last closing one. A text of another
 * form, one with a line break included, is all patterns and gets the description "File of Type".
 */
FileTypeText splitNameFilter(std::string_view filter);

/**
 * The extension that a filter gives to the typed name, as capture 1 of `.* \(\*\.(.*)\).*`: what stands between the
 * last blank, parenthesis, asterisk and dot and the last closing parenthesis. `Data (*.dat)` gives `dat`; two
 * patterns give both, with the blank. Empty when the filter has another form.
 */
std::string extensionOfNameFilter(std::string_view filter);

/** Whether an extension fits every file: `*`, as in `All files (*.*)`, or a first pattern of wildcards alone. */
bool isBareWildcard(std::string_view extension);

/**
 * Splits filters joined by `;;` and strips the blanks around each. A piece between two separators that is empty is
 * dropped; one that becomes empty by stripping is kept.
 */
QStringList splitNameFilters(const std::string& filters);

} // namespace morvane::ui
