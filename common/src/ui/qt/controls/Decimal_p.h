// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#include <array>

namespace morvane::ui {

/** A finite number as it is written: significant digits and the exponent of the first one, as in d.ddd * 10^exponent.
 */
struct Decimal
{
    bool isNegative = false;
    int exponent = 0;            ///< 0 for the number 0
    int count = 1;               ///< how many digits; the last one is not 0, except in the number 0
    std::array<char, 20> digits; ///< '0' to '9'; the first one is not '0', except in the number 0

    bool isZero() const { return digits[0] == '0'; }
};

/** The fewest digits that only this number has; 17 at most. */
Decimal shortestDecimal(double number);

/** Rounds to significant digits, without zeros at the end. A negative count means six, 0 means one; 17 at most. */
Decimal roundedDecimal(double number, int significantDigits);

/** `number` times ten to the power of `exponent`; may have zeros at the end. */
Decimal scaledInteger(qint64 number, int exponent);

/** The nearest double; an infinity if the number is too large, 0 if it is too small. */
double toNearestDouble(const Decimal& decimal);

} // namespace morvane::ui
