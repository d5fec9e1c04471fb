// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/controls/NumberStep_p.h"

#include "ui/qt/controls/Decimal_p.h"

#include <QByteArray>

#include <algorithm>
#include <cstdlib>

namespace morvane::ui {

namespace {

/** Numbers with so many digits fit into 64 bits. */
constexpr int mostDigits = 18;
/** More steps lead beyond all doubles. */
constexpr int mostSteps = 5000;

qint64 timesPowerOfTen(qint64 number, int exponent)
{
    for (; exponent > 0; --exponent) {
        number *= 10;
    }
    return number;
}

qint64 digitsOf(const Decimal& number)
{
    qint64 digits = 0;
    for (int i = 0; i < number.count; ++i) {
        digits = digits * 10 + (number.digits[static_cast<std::size_t>(i)] - '0');
    }
    return number.isNegative ? -digits : digits;
}

} // namespace

double decadesAway(double number, int steps)
{
    Decimal decimal = shortestDecimal(number);
    if (decimal.isZero()) {
        return number;
    }
    steps = std::clamp(steps, -mostSteps, mostSteps);
    decimal.exponent += decimal.isNegative ? -steps : steps;
    return toNearestDouble(decimal);
}

double oneTwoFiveAway(double number, int steps)
{
    Decimal decimal = shortestDecimal(number);
    if (decimal.isZero() || steps == 0) {
        return number;
    }
    steps = std::clamp(steps, -mostSteps, mostSteps);
    if (decimal.isNegative) {
        steps = -steps;
    }
    const char first = decimal.digits[0];
    const int below = first < '2' ? 0 : first < '5' ? 1 : 2; // the index in the decade
    const bool isBetween = decimal.count > 1 || (first != '1' && first != '2' && first != '5');
    // A step down from between ends at the number below.
    const int index = 3 * decimal.exponent + below + steps + (isBetween && steps < 0 ? 1 : 0);
    decimal.exponent = (index >= 0 ? index : index - 2) / 3;
    decimal.count = 1;
    decimal.digits[0] = "125"[index - 3 * decimal.exponent];
    return toNearestDouble(decimal);
}

double placesAway(double number, int place, int steps)
{
    const Decimal decimal = shortestDecimal(number);
    const int last = decimal.isZero() ? place : decimal.exponent - decimal.count + 1;
    const int lowest = std::min(last, place);
    const int highest = std::max(decimal.isZero() ? place : decimal.exponent, place);
    const auto stepDigits = static_cast<int>(QByteArray::number(steps).size());
    if (highest - lowest + 1 + stepDigits > mostDigits) {
        return number + steps * toNearestDouble(scaledInteger(1, place));
    }
    const qint64 sum = timesPowerOfTen(digitsOf(decimal), last - lowest) + timesPowerOfTen(steps, place - lowest);
    return toNearestDouble(scaledInteger(sum, lowest));
}

} // namespace morvane::ui
