// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#include <optional>
#include <vector>

namespace morvane::test {

/** The digit search as a plain loop over the candidates. findDigitsInRange() must give the same results. */
inline std::optional<qint64> literalDigitSearch(qint64 number, qint64 minimum, qint64 maximum)
{
    const auto magnitude = [](qint64 n) { return n < 0 ? ~static_cast<quint64>(n) + 1 : static_cast<quint64>(n); };
    if (minimum <= number && number <= maximum) {
        return number;
    }
    int wanted[20];
    int wantedCount = 0;
    quint64 rest = magnitude(number);
    do {
        wanted[wantedCount++] = static_cast<int>(rest % 10);
        rest /= 10;
    } while (rest != 0);

    int failures = 0;
    for (qint64 candidate = maximum; candidate >= minimum; --candidate) {
        int met = 0;
        rest = magnitude(candidate);
        do {
            if (static_cast<int>(rest % 10) == wanted[met] && ++met == wantedCount) {
                return candidate;
            }
            rest /= 10;
        } while (rest != 0);
        if (failures++ == 500000) {
            return number;
        }
        if (candidate == minimum) {
            break; // the next one down may not exist
        }
    }
    return std::nullopt;
}

} // namespace morvane::test
