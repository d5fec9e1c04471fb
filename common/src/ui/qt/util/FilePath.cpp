// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/util/FilePath_p.h"

#include "host/StringConversion.h"

#include <QString>

#include <algorithm>
#include <type_traits>

namespace morvane::ui {

namespace {

using NativeText = boost::filesystem::path::string_type;

template <typename Text>
Text nativeFromUtf8(const std::string& utf8)
{
    if constexpr (std::is_same_v<Text, std::wstring>) {
        return morvane::utf8ToWideString(utf8);
    } else {
        return utf8;
    }
}

template <typename Text>
std::string utf8FromNative(const Text& native)
{
    if constexpr (std::is_same_v<Text, std::wstring>) {
        return QString::fromStdWString(native).toStdString();
    } else {
        return native;
    }
}

constexpr bool slashIsNative = boost::filesystem::path::preferred_separator == '/';

} // namespace

boost::filesystem::path pathFromUtf8(const std::string& utf8)
{
    return nativeFromUtf8<NativeText>(utf8);
}

std::string pathToUtf8(const boost::filesystem::path& path)
{
    return utf8FromNative(path.native());
}

std::string pathToGenericUtf8(const boost::filesystem::path& path)
{
    return utf8FromNative(path.generic_path().native());
}

std::string withForwardSlashes(std::string utf8)
{
    if (!slashIsNative) {
        std::replace(utf8.begin(), utf8.end(), '\\', '/');
    }
    return utf8;
}

} // namespace morvane::ui
