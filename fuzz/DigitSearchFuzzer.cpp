// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// The search for a number that begins with the typed digits, compared with the plain loop. The loop may look at half a
// million numbers. Here it stops after 1,200, and beyond that only the properties that always hold are checked.
#include "support/FuzzInput.h"
#include "support/Require.h"
#include "ui/qt/controls/DigitSearch_p.h"

#include <array>
#include <limits>

namespace {

using morvane::fuzz::require;
using Limits = std::numeric_limits<qint64>;

constexpr quint64 shortLoop = 1200;
constexpr quint64 longLoop = 500000;

quint64 distance(qint64 from, qint64 to)
{
    return static_cast<quint64>(to) - static_cast<quint64>(from);
}

struct Digits
{
    std::array<quint64, 20> lastFirst{};
    int count = 0;
};

quint64 magnitude(qint64 number)
{
    return number < 0 ? 0 - static_cast<quint64>(number) : static_cast<quint64>(number);
}

Digits digitsOf(qint64 number)
{
    Digits digits;
    quint64 rest = magnitude(number);
    do {
        digits.lastFirst[static_cast<std::size_t>(digits.count++)] = rest % 10;
        rest /= 10;
    } while (rest != 0);
    return digits;
}

bool fits(qint64 candidate, const Digits& wanted)
{
    int met = 0;
    quint64 rest = magnitude(candidate);
    do {
        met += met < wanted.count && rest % 10 == wanted.lastFirst[static_cast<std::size_t>(met)] ? 1 : 0;
        rest /= 10;
    } while (rest != 0);
    return met == wanted.count;
}

std::optional<qint64> firstFit(qint64 number, qint64 minimum, qint64 maximum)
{
    const Digits wanted = digitsOf(number);
    const qint64 last = distance(minimum, maximum) < shortLoop ? minimum : maximum - static_cast<qint64>(shortLoop);
    for (qint64 candidate = maximum;; --candidate) {
        if (fits(candidate, wanted)) {
            return candidate;
        }
        if (candidate == last) {
            return std::nullopt;
        }
    }
}

void check(qint64 number, qint64 minimum, qint64 maximum)
{
    const std::optional<qint64> found = morvane::ui::findDigitsInRange(number, minimum, maximum);
    if (minimum <= number && number <= maximum) {
        require(found == number, "a number in the range is its own answer");
        return;
    }
    if (minimum > maximum) {
        require(!found, "nothing fits into an empty range");
        return;
    }
    const quint64 width = distance(minimum, maximum);
    const std::optional<qint64> near = firstFit(number, minimum, maximum);
    if (near || width < shortLoop) {
        require(found == near, "the largest that fits");
    } else if (width >= longLoop && found == number) {
        return; // the benefit of the doubt
    } else if (found) {
        require(minimum <= *found && *found < maximum, "the answer lies in the range");
        require(distance(*found, maximum) <= longLoop, "nobody looks further");
        require(fits(*found, digitsOf(number)), "the answer holds the digits");
    } else {
        require(width < longLoop, "no answer only when all were looked at");
    }
}

qint64 bound(morvane::fuzz::FuzzInput& input, qint64 number)
{
    switch (input.below(8)) {
    case 0:
        return Limits::min();
    case 1:
        return Limits::max();
    case 2:
        return input.number<std::int8_t>();
    case 3:
        return input.number<std::int32_t>();
    case 4: { // close to the number with a few digits more
        auto scaled = static_cast<quint64>(number) * 1000 + input.number<std::uint16_t>();
        return static_cast<qint64>(scaled);
    }
    default:
        return input.number<qint64>();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    morvane::fuzz::FuzzInput input(data, size);
    const qint64 number = input.flag() ? input.number<qint64>() : input.number<std::int16_t>();
    const qint64 first = bound(input, number);
    const int kind = input.below(4);
    qint64 second = 0;
    if (kind == 0) {
        second = bound(input, number);
    } else {
        const quint64 widths[] = {0, 200, 65536, 1000000};
        const quint64 width = input.number<std::uint32_t>() % widths[kind];
        second = distance(first, Limits::max()) < width ? Limits::max() : first + static_cast<qint64>(width);
    }
    check(number, first, second);
    return 0;
}
