// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QValidator>

namespace morvane::ui {

/** How integers are written and read. */
struct IntegerStyle
{
    int base = 10;          ///< 2, 8, 10 or 16
    QString groupSeparator; ///< between groups of digits; empty for none

    int groupLength() const { return base == 2 || base == 16 ? 4 : 3; }
};

/** Writes a number with its sign, with capital letters as digits, and in groups if there is a separator. */
QString integerText(qint64 number, const IntegerStyle& style);

struct IntegerReading
{
    QValidator::State state = QValidator::Invalid;
    qint64 value = 0; ///< only for an acceptable text
};

/**
 * Reads a number in small or capital letters, with or without sign. The sign may be U+2212. A mark of the base may be
 * before the digits: 0x, 0o or 0b.
 *
 * Intermediate if digits are missing, or if separators are not where they belong. Invalid if it is no number of 64
 * bits.
 */
IntegerReading readInteger(const QString& text, const IntegerStyle& style);

/** Puts the separators where they belong. The cursor remains between the same digits. */
QString regrouped(const QString& text, int& cursor, const IntegerStyle& style);

} // namespace morvane::ui
