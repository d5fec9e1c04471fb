// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/shell/TypedPatterns_p.h"

#include <algorithm>

namespace morvane::ui {

namespace {

bool isWildcard(const QString& piece)
{
    return piece.contains(QLatin1Char('*')) || piece.contains(QLatin1Char('?'));
}

} // namespace

QStringList patternsOfTypedText(const QString& text)
{
    QStringList patterns;
    for (const QString& part : QString(text).remove(QLatin1Char('"')).split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
        const QStringList pieces = part.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        const bool separate = std::all_of(pieces.begin(), pieces.end(), isWildcard);
        patterns += separate ? pieces : QStringList(part.trimmed());
    }
    // For Qt, *.* means only names with a dot.
    std::replace(patterns.begin(), patterns.end(), QStringLiteral("*.*"), QStringLiteral("*"));
    return patterns;
}

} // namespace morvane::ui
