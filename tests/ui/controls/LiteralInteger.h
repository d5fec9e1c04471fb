// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/controls/IntegerText_p.h"

#include <QRegularExpression>
#include <QStringList>

#include <optional>

namespace morvane::test {

/** Writes a number digit by digit. integerText() must give the same text. */
inline QString literalIntegerText(qint64 number, const ui::IntegerStyle& style)
{
    QStringList digits;
    qint64 rest = number;
    do {
        digits.prepend(QString("0123456789ABCDEF").at(std::abs(static_cast<int>(rest % style.base))));
        rest /= style.base;
    } while (rest != 0);
    QString text;
    for (int i = 0; i < digits.size(); ++i) {
        const int left = digits.size() - i;
        text += (i > 0 && left % style.groupLength() == 0 ? style.groupSeparator : QString()) + digits.at(i);
    }
    return (number < 0 ? "-" : "") + text;
}

/** The number in an acceptable text, read by Qt. None where readInteger() is not acceptable. */
inline std::optional<qint64> literalInteger(const QString& text, const ui::IntegerStyle& style)
{
    static const QRegularExpression parts(
        "^([-+\u2212]?)(0[xX]|0[oO]|0[bB])?(.+)\\z", QRegularExpression::DotMatchesEverythingOption);
    QRegularExpressionMatch match = parts.match(text);
    QString mark = match.captured(2).toLower();
    QString digits = match.captured(3);
    if (mark != (style.base == 16 ? "0x" : style.base == 8 ? "0o" : "0b") || style.base == 10) {
        digits = match.captured(2) + digits; // a mark of another base
        mark.clear();
    }
    const bool isNegative = !match.captured(1).isEmpty() && match.captured(1) != "+";
    QString plain = digits;
    if (!style.groupSeparator.isEmpty()) {
        plain.remove(style.groupSeparator);
    }
    // Qt 6 reads marks of the base, too.
    QRegularExpression allDigits(style.base == 2    ? "^[01]+\\z"
                                 : style.base == 8  ? "^[0-7]+\\z"
                                 : style.base == 10 ? "^[0-9]+\\z"
                                                    : "^[0-9a-fA-F]+\\z");
    if (!allDigits.match(plain).hasMatch()) {
        return std::nullopt;
    }
    bool ok = false;
    const qint64 number = ((isNegative ? "-" : "") + plain).toLongLong(&ok, style.base);
    if (!ok) {
        return std::nullopt;
    }
    if (plain != digits) { // groups of the right length, the first one may be shorter
        const QStringList groups = digits.split(style.groupSeparator);
        for (int i = 0; i < groups.size(); ++i) {
            const auto size = groups.at(i).size();
            if (i == 0 ? size < 1 || size > style.groupLength() : size != style.groupLength()) {
                return std::nullopt;
            }
        }
    }
    return number;
}

} // namespace morvane::test
