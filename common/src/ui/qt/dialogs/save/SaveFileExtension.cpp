// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/save/SaveFileExtension_p.h"

#include "ui/qt/util/FilePath_p.h"

#include <algorithm>
#include <string_view>

namespace morvane::ui {

namespace {

bool isNoise(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r') || c == '(' || c == ')' || c == '*';
}

std::string extensionOf(std::string_view nameFilter)
{
    const std::size_t dot = nameFilter.rfind('.');
    std::string extension(nameFilter.substr(dot == std::string_view::npos ? 0 : dot));
    extension.erase(std::remove_if(extension.begin(), extension.end(), isNoise), extension.end());
    return extension;
}

bool wantsExtension(std::string_view filename)
{
    const std::size_t dot = filename.rfind('.');
    return dot == std::string_view::npos || dot + 1 == filename.size();
}

} // namespace

std::string applyFilterExtension(const std::string& filename, const std::string& nameFilter)
{
    const std::string extension = extensionOf(nameFilter);
    if (extension.empty() || !wantsExtension(filename)) {
        return filename;
    }
    if (!filename.empty() && filename.back() == '.') {
        boost::filesystem::path path = pathFromUtf8(filename);
        return pathToGenericUtf8(path.replace_extension(pathFromUtf8(extension)));
    }
    // Without a dot there is no extension to replace, so the path need not be parsed.
    return withForwardSlashes(filename + (extension.front() == '.' ? "" : ".") + extension);
}

} // namespace morvane::ui
