#include "ui/qt/dialogs/SaveFileExtension.h"

#include "ui/qt/dialogs/FilePath.h"

#include <string_view>

namespace {

std::string extensionOf(std::string_view nameFilter)
{
    const std::size_t dot = nameFilter.rfind('.');
    std::string extension;
    for (const char c : nameFilter.substr(dot == std::string_view::npos ? 0 : dot)) {
        if (std::string_view(" \t\n\v\f\r()*").find(c) == std::string_view::npos) {
            extension += c;
        }
    }
    return extension;
}

bool wantsExtension(const std::string& filename)
{
    const std::size_t dot = filename.rfind('.');
    return dot == std::string::npos || dot + 1 == filename.size();
}

} // namespace

std::string applyFilterExtension(const std::string& filename, const std::string& nameFilter)
{
    const std::string extension = extensionOf(nameFilter);
    if (extension.empty() || !wantsExtension(filename)) {
        return filename;
    }
    boost::filesystem::path path = pathFromUtf8(filename);
    path.replace_extension(pathFromUtf8(extension));
    return pathToGenericUtf8(path);
}
