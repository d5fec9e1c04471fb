// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/dialogs/native/NameFilterText_p.h"

#include <QString>
#include <QStringList>

#include <algorithm>
#include <regex>
#include <string>

namespace morvane::ui {

inline bool operator==(const FileTypeText& a, const FileTypeText& b)
{
    return a.description == b.description && a.patterns == b.patterns;
}

} // namespace morvane::ui

namespace morvane::test {

// The expressions that define what a name filter means. They recurse once for each character, so the texts must be
// short.

inline ui::FileTypeText splitByExpression(const std::string& filter)
{
    static const std::regex expression("(.*) \\((.*)\\).*");
    std::smatch match;
    ui::FileTypeText result{"File of Type", filter};
    if (std::regex_match(filter, match, expression)) {
        result = {match[1].str(), match[2].str()};
    }
    std::replace(result.patterns.begin(), result.patterns.end(), ' ', ';');
    return result;
}

inline std::string extensionByExpression(const std::string& filter)
{
    static const std::regex expression(".* \\(\\*\\.(.*)\\).*");
    std::smatch match;
    return std::regex_match(filter, match, expression) ? match[1].str() : std::string();
}

/** Splits at `;;`, character by character. */
inline QStringList splitFiltersLiterally(const QString& filters)
{
    QStringList pieces;
    QString piece;
    for (int i = 0; i < filters.size(); ++i) {
        if (filters.mid(i, 2) == QLatin1String(";;")) {
            pieces.append(piece);
            piece.clear();
            ++i;
        } else {
            piece += filters.at(i);
        }
    }
    pieces.append(piece);
    QStringList result;
    for (QString& one : pieces) {
        if (one.isEmpty()) {
            continue;
        }
        while (one.startsWith(QLatin1Char(' '))) {
            one.remove(0, 1);
        }
        while (one.endsWith(QLatin1Char(' '))) {
            one.chop(1);
        }
        result.append(one);
    }
    return result;
}

} // namespace morvane::test
