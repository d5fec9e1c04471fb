// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QRegularExpression>
#include <QString>

#include <boost/filesystem/path.hpp>

#include <regex>
#include <string>

namespace morvane::test {

/** The rule for the extension of a saved file, written step by step as it is defined. */
inline std::string applyExtensionByExpressions(const std::string& filename, const std::string& nameFilter)
{
    const std::size_t dot = nameFilter.rfind('.');
    static const std::regex noise("[\\s\\(\\)\\*]");
    const std::string extension =
        std::regex_replace(dot == std::string::npos ? nameFilter : nameFilter.substr(dot), noise, "");
    if (extension.empty()) {
        return filename;
    }
    const QString name = QString::fromStdString(filename);
    if (name.contains(QRegularExpression("\\.[^\\.]*$")) && !name.endsWith('.')) {
        return filename;
    }
    boost::filesystem::path path(filename);
    return path.replace_extension(extension).generic_string();
}

} // namespace morvane::test
