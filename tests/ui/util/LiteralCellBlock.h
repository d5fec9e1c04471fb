// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QRegularExpression>
#include <QString>
#include <QVariant>

#include <vector>

namespace morvane::test {

/** Reads a block of cells in the plainest way: one pattern for a quoted cell, one for any other, one for a line end. */
inline std::vector<std::vector<QVariant>> literalCellBlock(const QString& text)
{
    const QRegularExpression quoted(QStringLiteral(R"re(\G"((?:[^"]|"")*+)"(?=[\t\r\n]|\z))re"));
    const QRegularExpression plain(QStringLiteral(R"re(\G[^\t\r\n]*)re"));
    const QRegularExpression lineEnd(QStringLiteral(R"re(\G(?:\r\n|\r|\n))re"));
    std::vector<std::vector<QVariant>> block;
    bool beginsRow = true;
    for (int at = 0; !beginsRow || at < text.size();) {
        if (beginsRow) {
            block.emplace_back();
        }
        QRegularExpressionMatch cell = quoted.match(text, at);
        const bool isQuoted = cell.hasMatch();
        if (!isQuoted) {
            cell = plain.match(text, at);
        }
        block.back().push_back(isQuoted ? cell.captured(1).split(QStringLiteral("\"\"")).join('"') : cell.captured());
        at = static_cast<int>(cell.capturedEnd());
        beginsRow = at >= text.size() || text.at(at) != '\t';
        const QRegularExpressionMatch end = lineEnd.match(text, at);
        at = end.hasMatch() ? static_cast<int>(end.capturedEnd()) : at + 1;
    }
    return block;
}

} // namespace morvane::test
