// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/controls/DigitSearch_p.h"

#include <algorithm>
#include <array>

namespace morvane::ui {

namespace {

constexpr quint64 patience = 500000;

// Each number of 19 digits fits into an unsigned number of 64 bits. A signed number of 64 bits has at most 19 digits.
constexpr int width = 19;

/** The digits with leading zeros, the most significant one first. */
using Digits = std::array<int, width>;

Digits digitsOf(quint64 number)
{
    Digits digits{};
    for (int i = width - 1; number != 0; --i) {
        digits[i] = static_cast<int>(number % 10);
        number /= 10;
    }
    return digits;
}

quint64 numberOf(const Digits& digits)
{
    quint64 number = 0;
    for (const int digit : digits) {
        number = number * 10 + static_cast<quint64>(digit);
    }
    return number;
}

quint64 magnitude(qint64 number)
{
    const auto bits = static_cast<quint64>(number);
    return number < 0 ? ~bits + 1 : bits;
}

/** The distance from @p low up to @p high. It fits into 64 bits for any two numbers. */
quint64 distance(qint64 low, qint64 high)
{
    return low < 0 && high >= 0 ? magnitude(low) + magnitude(high) : static_cast<quint64>(high - low);
}

qint64 negative(quint64 magnitude)
{
    return -static_cast<qint64>(magnitude - 1) - 1;
}

enum Direction
{
    Down = -1,
    Up = 1
};

/** The digits that a candidate must contain in this order. */
class DigitPattern
{
public:
    explicit DigitPattern(quint64 number) : m_digits(digitsOf(number))
    {
        while (m_first < width - 1 && m_digits[m_first] == 0) {
            ++m_first;
        }
    }

    /** The matching number closest to `bound` in this direction, or `bound` itself. None if it would need 20 digits. */
    std::optional<quint64> nearest(quint64 bound, Direction direction) const;

private:
    /** How many digits of the pattern the first digits of a candidate contain. */
    struct Progress
    {
        int met = 0;
        bool inLeadingZeros = true;
    };

    Progress after(Progress progress, int digit) const;
    int missing(Progress progress) const { return width - m_first - progress.met; }
    void complete(Digits& digits, int from, Progress progress, Direction direction) const;

    Digits m_digits;
    int m_first = 0;
};

DigitPattern::Progress DigitPattern::after(Progress progress, int digit) const
{
    progress.inLeadingZeros = progress.inLeadingZeros && digit == 0;
    const int next = m_first + progress.met;
    if (!progress.inLeadingZeros && next < width && m_digits[next] == digit) {
        ++progress.met;
    }
    return progress;
}

void DigitPattern::complete(Digits& digits, int from, Progress progress, Direction direction) const
{
    for (int i = from; i < width; ++i) {
        const int room = width - 1 - i;
        int digit = direction == Down ? 9 : 0;
        while (missing(after(progress, digit)) > room) {
            digit += direction;
        }
        digits[i] = digit;
        progress = after(progress, digit);
    }
}

std::optional<quint64> DigitPattern::nearest(quint64 bound, Direction direction) const
{
    Digits digits = digitsOf(bound);
    std::array<Progress, width + 1> reached;
    for (int i = 0; i < width; ++i) {
        reached[i + 1] = after(reached[i], digits[i]);
    }
    if (missing(reached[width]) == 0) {
        return bound;
    }
    for (int kept = width - 1; kept >= 0; --kept) {
        for (int digit = digits[kept] + direction; digit >= 0 && digit <= 9; digit += direction) {
            const Progress progress = after(reached[kept], digit);
            if (missing(progress) <= width - 1 - kept) {
                digits[kept] = digit;
                complete(digits, kept + 1, progress, direction);
                return numberOf(digits);
            }
        }
    }
    return std::nullopt;
}

} // namespace

std::optional<qint64> findDigitsInRange(qint64 number, qint64 minimum, qint64 maximum)
{
    if (minimum <= number && number <= maximum) {
        return number;
    }
    if (minimum > maximum) {
        return std::nullopt;
    }
    const bool tooMany = distance(minimum, maximum) >= patience;
    const qint64 last = tooMany ? maximum - static_cast<qint64>(patience) : minimum;
    const DigitPattern pattern(magnitude(number));
    if (maximum >= 0) {
        const auto found = pattern.nearest(magnitude(maximum), Down);
        if (found && *found >= magnitude(std::max<qint64>(last, 0))) {
            return static_cast<qint64>(*found);
        }
    }
    if (last < 0) {
        const auto found = pattern.nearest(magnitude(std::min<qint64>(maximum, -1)), Up);
        if (found && *found <= magnitude(last)) {
            return negative(*found);
        }
    }
    return tooMany ? std::make_optional(number) : std::nullopt;
}

} // namespace morvane::ui
