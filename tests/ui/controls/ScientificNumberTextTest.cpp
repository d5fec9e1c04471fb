// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/controls/ScientificNumberText_p.h"

#include "LiteralDigitSearch.h"
#include "LiteralNumberReading.h"
#include "ui/qt/controls/DigitSearch_p.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <random>
#include <vector>

namespace {

using morvane::test::DigitSearch;
using morvane::test::literalDigitSearch;
using morvane::test::literalReading;
using morvane::ui::findDigitsInRange;
using morvane::ui::interpretNumber;
using morvane::ui::NumberInterpretation;
using morvane::ui::NumberRules;
using morvane::ui::scientificText;

constexpr double largest = std::numeric_limits<double>::max();
constexpr double infinity = std::numeric_limits<double>::infinity();

NumberRules rulesFor(double minimum, double maximum, int decimals = 8)
{
    return {minimum, maximum, decimals, '.', ',', QString(), QString(), QString()};
}

bool sameBits(double a, double b)
{
    return std::memcmp(&a, &b, sizeof a) == 0;
}

::testing::AssertionResult agreesWithTheLiteralForm(
    const QString& text, int pos, const NumberRules& rules, const DigitSearch& search)
{
    int foundPos = pos;
    int expectedPos = pos;
    const NumberInterpretation found = interpretNumber(text, foundPos, rules);
    const NumberInterpretation expected = literalReading(text, expectedPos, rules, search);
    if (found.state == expected.state && sameBits(found.value, expected.value) && found.text == expected.text &&
        foundPos == expectedPos) {
        return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure() << '"' << text.left(100).toStdString() << "\" at " << pos << " in "
                                         << rules.minimum << " to " << rules.maximum << " with " << rules.decimals
                                         << " decimals: state " << found.state << " for " << expected.state
                                         << ", value " << found.value << " for " << expected.value << ", position "
                                         << foundPos << " for " << expectedPos << ", text "
                                         << found.text.left(100).toStdString() << " for "
                                         << expected.text.left(100).toStdString();
}

class TextCases
{
public:
    explicit TextCases(quint64 seed) : m_random(seed) {}

    int below(int end) { return std::uniform_int_distribution<int>(0, end - 1)(m_random); }
    bool oneIn(int n) { return below(n) == 0; }

    double anyDouble()
    {
        const auto bits = std::uniform_int_distribution<quint64>()(m_random);
        double value = 0;
        std::memcpy(&value, &bits, sizeof value);
        return value;
    }

    NumberRules rules()
    {
        NumberRules rules = rulesFor(0, 0, below(16) - 3);
        rules.minimum = limit();
        rules.maximum = oneIn(12) ? rules.minimum : limit();
        if (rules.minimum > rules.maximum) {
            std::swap(rules.minimum, rules.maximum);
        }
        if (oneIn(4)) {
            rules.prefix = pick({"$", "x = ", "-", "1", "µ "});
        }
        if (oneIn(4)) {
            rules.suffix = pick({" m", "%", "0", "E", ",", " "});
        }
        if (oneIn(4)) {
            rules.specialValueText = pick({"auto", "1.5", "$", "-"});
        }
        return rules;
    }

    QString text(const NumberRules& rules)
    {
        if (oneIn(20)) {
            return pick({"", " ", ".", "+", "-", "+.", "-.", "1..5", ",5", "5,", "5, ", "1,,5", "nan", "inf", "-inf",
                "infinity", "1e400", "1e-400", "0x10", "1e", "--1", "auto", "$", QChar(0xd800)});
        }
        QString text = number();
        for (int i = below(3); i > 0; --i) {
            text.insert(below(text.size() + 1), pick({".", ",", " ", "-", "+", "E", "7", "x", "\u0663", "\u00a0"}));
        }
        if (!oneIn(4)) {
            text = rules.prefix + text + rules.suffix;
        }
        return text;
    }

private:
    QString pick(const std::vector<QString>& texts) { return texts[static_cast<size_t>(below(int(texts.size())))]; }

    double limit()
    {
        const double chosen[] = {0, -0.0, 0.5, 1, 10, 100, 999, 999.5, 1000, 1001, 123.456, 1e6, 12345678,
            9007199254740992.0, 9223372036854774784.0, 9223372036854775808.0, 1e19, 2e20, 1e-7, 5e-324, 1e300, largest};
        const double value = oneIn(4) ? std::ldexp(below(1 << 30), below(60) - 40) : chosen[below(22)];
        return oneIn(2) ? value : -value;
    }

    QString digits(int count)
    {
        QString text;
        for (; count > 0; --count) {
            text += QChar('0' + below(10));
        }
        return text;
    }

    QString number()
    {
        QString text = pick({"", "", "", "+", "-", "-"}) + digits(below(oneIn(6) ? 22 : 5));
        if (oneIn(6)) {
            text += "," + digits(3);
        }
        if (!oneIn(3)) {
            text += "." + digits(below(oneIn(6) ? 22 : 6));
        }
        if (oneIn(5)) {
            text += pick({"E", "e"}) + pick({"", "+", "-"}) + digits(below(4));
        }
        return text;
    }

    std::mt19937_64 m_random;
};

} // namespace

TEST(ScientificNumberText, agreesWithTheLiteralFormOnAMillionRandomTexts)
{
    TextCases cases(42);
    int states[3] = {};
    for (int i = 0; i < 100000; ++i) {
        const NumberRules rules = cases.rules();
        for (int j = 0; j < 10; ++j) {
            const QString text = cases.text(rules);
            const int pos = cases.below(text.size() + 3) - 1;
            ASSERT_TRUE(agreesWithTheLiteralForm(text, pos, rules, findDigitsInRange));
            int ignored = pos;
            ++states[interpretNumber(text, ignored, rules).state];
        }
    }
    for (const int count : states) {
        EXPECT_GT(count, 50000) << "each state has to be met often";
    }
}

TEST(ScientificNumberText, agreesWithTheLiteralFormAndItsLoopOverCandidates)
{
    TextCases cases(43);
    QElapsedTimer timer;
    timer.start();
    int compared = 0;
    for (; compared < 300000 && timer.elapsed() < 6000; ++compared) {
        const NumberRules rules = cases.rules();
        const QString text = cases.text(rules);
        ASSERT_TRUE(agreesWithTheLiteralForm(text, text.size(), rules, literalDigitSearch));
    }
    EXPECT_GT(compared, 3000);
}

TEST(ScientificNumberText, agreesWithTheLiteralFormAtEveryCursorPosition)
{
    TextCases cases(44);
    for (int i = 0; i < 20000; ++i) {
        const NumberRules rules = cases.rules();
        const QString text = cases.text(rules);
        for (int pos = -1; pos <= text.size() + 1; ++pos) {
            ASSERT_TRUE(agreesWithTheLiteralForm(text, pos, rules, findDigitsInRange));
        }
    }
}

TEST(ScientificNumberText, agreesWithTheLiteralFormOnEveryShortText)
{
    const QString alphabet = QStringLiteral("15.,+-E ");
    for (const NumberRules& rules : {rulesFor(-10, 10), rulesFor(20, 2000, 2), rulesFor(-60, -20, 1), rulesFor(5, 5)}) {
        for (int code = 0; code < 8 * 8 * 8 * 8 * 8; ++code) {
            QString text;
            for (int rest = code; rest != 0; rest /= 8) {
                text += alphabet.at(rest % 8);
            }
            ASSERT_TRUE(agreesWithTheLiteralForm(text, text.size(), rules, findDigitsInRange));
        }
    }
}

TEST(ScientificNumberText, agreesWithTheLiteralFormInEveryNarrowRange)
{
    for (int minimum = -35; minimum <= 35; ++minimum) {
        for (int maximum = -35; maximum <= 35; ++maximum) {
            for (const int decimals : {0, 1, 2}) {
                const NumberRules rules = rulesFor(minimum / 10.0, maximum / 10.0, decimals);
                for (const char* const text : {".5", "-.5", "+.5", "-.15", "1.", "-1.", "1.5", "-1.5", "0.5", "-0.5",
                         "-0", "5", "3.04", "-2.0"}) {
                    ASSERT_TRUE(agreesWithTheLiteralForm(text, 1, rules, findDigitsInRange));
                }
            }
        }
    }
}

TEST(ScientificNumberText, longTextsAgreeWithTheLiteralForm)
{
    const int length = 100000;
    const QString nines(length, '9');
    const QString blanks(length, ' ');
    for (const QString& text :
        {nines, QString(length, ','), blanks, nines + "." + nines, "0." + nines, blanks + "5" + blanks, "1E" + nines,
            QString("9,").repeated(length / 2), QString(length, '.'), QString(length, '-')}) {
        for (const NumberRules& rules : {rulesFor(-largest, largest), rulesFor(1000, 2000), rulesFor(-3, -2, 12)}) {
            EXPECT_TRUE(agreesWithTheLiteralForm(text, length, rules, findDigitsInRange));
            EXPECT_TRUE(agreesWithTheLiteralForm(text, 1, rules, findDigitsInRange));
        }
    }
}

TEST(ScientificNumberText, notANumberAndInfinitiesAsLimitsAgreeWithTheLiteralForm)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (const double minimum : {-infinity, -1.0, nan, infinity}) {
        for (const double maximum : {infinity, 1.0, nan, -infinity}) {
            for (const char* const text : {"", "0", "5", "-.5", ".5", "-5", "nan", "inf", "1,5", "1,,5", "1e999"}) {
                EXPECT_TRUE(agreesWithTheLiteralForm(text, 0, rulesFor(minimum, maximum), findDigitsInRange));
            }
        }
    }
}

TEST(ScientificNumberText, fractionWithoutIntegerPartIsNotLookedAt)
{
    EXPECT_TRUE(mayGrowIntoRange(".99", rulesFor(100, 200))) << "no number from 100 on begins with .99";
    EXPECT_FALSE(mayGrowIntoRange("0.99", rulesFor(211, 222, 1)));
}

TEST(ScientificNumberText, integersAndLimitsBeyond64BitsCountAsZero)
{
    EXPECT_FALSE(mayGrowIntoRange("1", rulesFor(1e20, 2e20)));
    EXPECT_TRUE(mayGrowIntoRange("0", rulesFor(1e20, 2e20)));
    EXPECT_TRUE(mayGrowIntoRange("1E3", rulesFor(1e20, 2e20)));
}

/** The text of printf, with the sign of NaN added where the system leaves it out. */
QString printed(double value, int digits)
{
    char text[1077];
    std::snprintf(text, sizeof text, "%.*G", digits, value);
    const bool lacksSign = std::isnan(value) && std::signbit(value) && text[0] != '-';
    return (lacksSign ? QStringLiteral("-") : QString()) + QLatin1String(text);
}

TEST(ScientificNumberText, isPrintfsTextForAMillionRandomDoubles)
{
    TextCases cases(45);
    for (int i = 0; i < 1000000; ++i) {
        const double value = i % 3 == 0 ? std::ldexp(cases.below(1 << 30), -cases.below(60)) : cases.anyDouble();
        const int digits = cases.below(16) - 3;
        ASSERT_EQ(scientificText(value, digits), printed(value, digits)) << "digits: " << digits;
    }
}

TEST(ScientificNumberText, isPrintfsTextForTheValuesAtTheEdges)
{
    for (const double value : {0.0, -0.0, infinity, -infinity, std::nan(""), -std::nan(""), largest, -largest, 5e-324,
             0.5, 1.5, 2.5, 99999999.5, 999999995.0, 0.0001, 0.00009999}) {
        for (int digits = -3; digits <= 12; ++digits) {
            EXPECT_EQ(scientificText(value, digits), printed(value, digits)) << "digits: " << digits;
        }
    }
}
