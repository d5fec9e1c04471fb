// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/controls/Decimal_p.h"

#include <QByteArray>

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <limits>

namespace morvane::ui {

namespace {

constexpr int mostDigits = 17;

/** Takes apart what std::to_chars() writes: [-]d[.ddd]e[+-]dd */
Decimal takenApart(const char* begin, const char* end)
{
    Decimal result;
    result.isNegative = *begin == '-';
    const char* const exponent = std::find(begin, end, 'e');
    result.count = 0;
    for (const char* character = begin; character != exponent; ++character) {
        if (*character >= '0' && *character <= '9') {
            result.digits[static_cast<std::size_t>(result.count++)] = *character;
        }
    }
    while (result.count > 1 && result.digits[static_cast<std::size_t>(result.count - 1)] == '0') {
        --result.count;
    }
    result.exponent = result.isZero() ? 0 : std::atoi(QByteArray(exponent + 1, int(end - exponent - 1)).constData());
    return result;
}

} // namespace

Decimal shortestDecimal(double number)
{
    std::array<char, 32> buffer;
    const auto end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, std::chars_format::scientific).ptr;
    return takenApart(buffer.data(), end);
}

Decimal roundedDecimal(double number, int significantDigits)
{
    const int digits = significantDigits < 0 ? 6 : std::clamp(significantDigits, 1, mostDigits);
    std::array<char, 32> buffer;
    const auto end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, std::chars_format::scientific, digits - 1)
            .ptr;
    return takenApart(buffer.data(), end);
}

Decimal scaledInteger(qint64 number, int exponent)
{
    Decimal result;
    QByteArray digits = QByteArray::number(number);
    result.isNegative = digits.startsWith('-');
    digits.remove(0, result.isNegative ? 1 : 0);
    result.count = static_cast<int>(digits.size());
    std::copy(digits.begin(), digits.end(), result.digits.begin());
    result.exponent = number == 0 ? 0 : exponent + result.count - 1;
    return result;
}

double toNearestDouble(const Decimal& decimal)
{
    QByteArray text(decimal.isNegative ? "-" : "");
    text.append(decimal.digits.data(), decimal.count);
    text.append('E').append(QByteArray::number(decimal.exponent - decimal.count + 1));
    bool isDouble = false;
    const double result = text.toDouble(&isDouble);
    if (isDouble) {
        return result;
    }
    // What Qt returns then depends on its version.
    const double limit = decimal.exponent > 0 ? std::numeric_limits<double>::infinity() : 0;
    return decimal.isNegative ? -limit : limit;
}

} // namespace morvane::ui
