// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/controls/DigitSearch_p.h"

#include "LiteralDigitSearch.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <random>
#include <string>

namespace {

using morvane::test::literalDigitSearch;
using morvane::ui::findDigitsInRange;

constexpr qint64 lowest = std::numeric_limits<qint64>::min();
constexpr qint64 highest = std::numeric_limits<qint64>::max();

std::string printed(std::optional<qint64> found)
{
    return found ? std::to_string(*found) : "nothing";
}

::testing::AssertionResult agreesWithTheLoop(qint64 number, qint64 minimum, qint64 maximum)
{
    const auto found = findDigitsInRange(number, minimum, maximum);
    const auto expected = literalDigitSearch(number, minimum, maximum);
    if (found == expected) {
        return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure() << number << " in " << minimum << " to " << maximum << ": " << printed(found)
                                         << " instead of " << printed(expected);
}

/** Numbers, ranges and near misses of every length. */
class SearchCases
{
public:
    explicit SearchCases(quint64 seed) : m_random(seed) {}

    qint64 below(qint64 end) { return std::uniform_int_distribution<qint64>(0, end - 1)(m_random); }

    /** Between both limits of 64 bits, all lengths equally likely. */
    qint64 anyNumber()
    {
        const auto bits = static_cast<quint64>(std::uniform_int_distribution<quint64>()(m_random)) >> below(64);
        return static_cast<qint64>(bits);
    }

    /** Some digits of `number` in their order, now and then with a wrong one, either sign. */
    qint64 partOf(qint64 number)
    {
        const std::string digits = std::to_string(number);
        std::string part;
        const qint64 keep = 1 + below(4);
        for (const char digit : digits) {
            if (digit != '-' && below(4) < keep) {
                part += below(40) == 0 ? static_cast<char>('0' + below(10)) : digit;
            }
        }
        if (part.empty() || part.size() > 18) {
            return anyNumber();
        }
        return (below(2) == 0 ? -1 : 1) * std::stoll(part);
    }

    qint64 plus(qint64 number, qint64 width) { return number > highest - width ? highest : number + width; }
    qint64 minus(qint64 number, qint64 width) { return number < lowest + width ? lowest : number - width; }

private:
    std::mt19937_64 m_random;
};

} // namespace

TEST(DigitSearch, numberInRangeIsItsOwnMatch)
{
    EXPECT_EQ(findDigitsInRange(7, 3, 9), 7);
    EXPECT_EQ(findDigitsInRange(lowest, lowest, highest), lowest);
    EXPECT_EQ(findDigitsInRange(0, -1, 1), 0);
}

TEST(DigitSearch, largestFittingCandidateIsReported)
{
    EXPECT_EQ(findDigitsInRange(5, 10, 99), 95);
    EXPECT_EQ(findDigitsInRange(5, 10, 58), 58);
    EXPECT_EQ(findDigitsInRange(0, 3, 19), 10);
    EXPECT_EQ(findDigitsInRange(-12, 100, 129), 129);
    EXPECT_EQ(findDigitsInRange(12, -229, -100), -102);
}

TEST(DigitSearch, zeroIsNoDigitInFrontOfANumber)
{
    EXPECT_EQ(findDigitsInRange(0, 1, 9), std::nullopt);
    EXPECT_EQ(findDigitsInRange(0, -9, -1), std::nullopt);
    EXPECT_EQ(findDigitsInRange(100, 1, 99), std::nullopt);
}

TEST(DigitSearch, emptyRangeHasNoMatch)
{
    EXPECT_EQ(findDigitsInRange(1, 5, 4), std::nullopt);
    EXPECT_EQ(findDigitsInRange(1, highest, lowest), std::nullopt);
}

TEST(DigitSearch, theUserGetsTheBenefitOfTheDoubtAfterHalfAMillionFailures)
{
    EXPECT_EQ(findDigitsInRange(9999999, 1000000, 1499999), std::nullopt);
    EXPECT_EQ(findDigitsInRange(9999999, 1000000, 1500000), 9999999);
    EXPECT_EQ(findDigitsInRange(-9999999, 1000000, 1500000), -9999999);
}

TEST(DigitSearch, theLastCandidateLookedAtMayStillMatch)
{
    EXPECT_EQ(findDigitsInRange(7000000, 8000000, 17500000), 17000000);
    EXPECT_EQ(findDigitsInRange(7000000, 8000000, 17500001), 7000000) << "not looked at any more, so given up";
}

TEST(DigitSearch, limitsOf64BitsNeedNoCare)
{
    for (const qint64 number : {lowest, lowest + 1, qint64(-1), qint64(0), qint64(1), highest - 1, highest}) {
        EXPECT_TRUE(agreesWithTheLoop(number, lowest, lowest + 1000));
        EXPECT_TRUE(agreesWithTheLoop(number, highest - 1000, highest));
        EXPECT_TRUE(agreesWithTheLoop(number, lowest, highest));
        EXPECT_TRUE(agreesWithTheLoop(number, lowest, lowest));
        EXPECT_TRUE(agreesWithTheLoop(number, lowest, -2));
    }
    EXPECT_EQ(findDigitsInRange(lowest, lowest + 1, lowest + 1000000), lowest) << "given up";
}

TEST(DigitSearch, agreesWithTheLoopOnAllSmallRanges)
{
    for (qint64 minimum = -24; minimum <= 112; ++minimum) {
        for (qint64 maximum = minimum; maximum <= 112; ++maximum) {
            for (qint64 number = -115; number <= 115; ++number) {
                ASSERT_TRUE(agreesWithTheLoop(number, minimum, maximum));
            }
        }
    }
}

TEST(DigitSearch, agreesWithTheLoopOnAllNegativeRangesOfThreeDigits)
{
    for (qint64 maximum = -1; maximum >= -1010; --maximum) {
        for (qint64 width = 0; width <= 12; ++width) {
            for (qint64 number = -120; number <= 0; ++number) {
                ASSERT_TRUE(agreesWithTheLoop(number, maximum - width, maximum));
            }
        }
    }
}

TEST(DigitSearch, agreesWithTheLoopOnAMillionRandomCases)
{
    SearchCases cases(20210704);
    int matches = 0;
    for (int i = 0; i < 1000000; ++i) {
        const qint64 maximum = cases.anyNumber();
        const qint64 minimum = cases.minus(maximum, cases.below(cases.below(8) == 0 ? 400 : 25));
        const qint64 number = cases.partOf(cases.below(2) == 0 ? maximum : minimum);
        ASSERT_TRUE(agreesWithTheLoop(number, minimum, maximum));
        matches += findDigitsInRange(number, minimum, maximum) ? 1 : 0;
    }
    EXPECT_GT(matches, 300000);
    EXPECT_LT(matches, 900000);
}

TEST(DigitSearch, agreesWithTheLoopOnRangesAroundHalfAMillion)
{
    SearchCases cases(1234567);
    for (int i = 0; i < 300; ++i) {
        const qint64 maximum = cases.below(2) == 0 ? cases.anyNumber() : cases.below(1000000) - 400000;
        const qint64 minimum = cases.minus(maximum, 499990 + cases.below(20));
        const qint64 target = cases.plus(minimum, cases.below(30));
        ASSERT_TRUE(agreesWithTheLoop(cases.partOf(target), minimum, maximum));
        ASSERT_TRUE(agreesWithTheLoop(cases.anyNumber(), minimum, maximum));
    }
}

TEST(DigitSearch, agreesWithTheLoopOnRangesOfEveryWidth)
{
    SearchCases cases(99);
    for (int i = 0; i < 400; ++i) {
        const qint64 a = cases.anyNumber();
        const qint64 b = cases.anyNumber();
        ASSERT_TRUE(agreesWithTheLoop(cases.partOf(a), std::min(a, b), std::max(a, b)));
    }
}
