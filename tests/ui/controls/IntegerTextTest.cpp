// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/controls/IntegerText_p.h"

#include "LiteralInteger.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

namespace {

using morvane::test::literalInteger;
using morvane::test::literalIntegerText;
using morvane::ui::IntegerStyle;
using morvane::ui::integerText;
using morvane::ui::readInteger;
using morvane::ui::regrouped;

const IntegerStyle grouped{10, ","};
const IntegerStyle hex{16, "_"};

TEST(IntegerText, isWrittenInEachBaseWithGroups)
{
    EXPECT_EQ(integerText(-1234567, grouped), "-1,234,567");
    EXPECT_EQ(integerText(0xdeadbeef, hex), "DEAD_BEEF");
    EXPECT_EQ(integerText(-0x12345, hex), "-1_2345");
    EXPECT_EQ(integerText(37, {2, " "}), "10 0101");
    EXPECT_EQ(integerText(01234567, {8, "'"}), "1'234'567");
    EXPECT_EQ(integerText(std::numeric_limits<qint64>::min(), {10, ""}), "-9223372036854775808");
    EXPECT_EQ(integerText(0, grouped), "0");
}

TEST(IntegerText, isReadWithMarksOfTheBase)
{
    EXPECT_EQ(readInteger("0xFf", hex).value, 255);
    EXPECT_EQ(readInteger("-0XFF", hex).value, -255);
    EXPECT_EQ(readInteger("0b1", hex).value, 0xb1) << "digits in base 16";
    EXPECT_EQ(readInteger("0b101", {2, ""}).value, 5);
    EXPECT_EQ(readInteger("0o17", {8, ""}).value, 15);
    EXPECT_EQ(readInteger("0x10", grouped).state, QValidator::Invalid);
    EXPECT_EQ(readInteger("0x", hex).state, QValidator::Intermediate);
    EXPECT_EQ(readInteger(QStringLiteral("\u22125"), grouped).value, -5);
}

TEST(IntegerText, isNotAcceptableWithMisplacedSeparators)
{
    for (const char* const text : {"", "-", "+", "12,5", "1,23", "1,2345", ",123", "1,,234", "1,234,"}) {
        EXPECT_EQ(readInteger(text, grouped).state, QValidator::Intermediate) << text;
    }
    for (const char* const text : {"x", "1.5", "9223372036854775808", "-9223372036854775809", "1-", "--1", "A"}) {
        EXPECT_EQ(readInteger(text, grouped).state, QValidator::Invalid) << text;
    }
}

TEST(IntegerText, keepsTheCursorBetweenTheSameDigits)
{
    const auto moved = [](const char* before, const char* after) {
        QString text = before;
        int cursor = text.indexOf('|');
        text = regrouped(text.remove('|'), cursor, grouped);
        EXPECT_EQ(text.insert(cursor, '|'), after) << before;
    };
    moved("1234|", "1,234|");
    moved("|1234", "|1,234");
    moved("-|1234", "-|1,234");
    moved("1|234", "1|,234");
    moved("12|34", "1,2|34");
    moved("1,2345|", "12,345|");
    moved("1,23|", "123|");
    moved("12|3,456,789", "12|3,456,789");
    moved("1,|23,456", "1|23,456");
}

TEST(IntegerText, isReadAsItIsWritten)
{
    std::mt19937_64 random(5);
    for (int i = 0; i < 200000; ++i) {
        const auto number = static_cast<qint64>(random() >> (random() % 64)) * (random() % 2 ? 1 : -1);
        for (const IntegerStyle& style : {grouped, hex, IntegerStyle{2, " "}, IntegerStyle{8, ""}}) {
            const QString text = integerText(number, style);
            ASSERT_EQ(text, literalIntegerText(number, style)) << number;
            const auto reading = readInteger(text, style);
            ASSERT_EQ(reading.state, QValidator::Acceptable) << text.toStdString();
            ASSERT_EQ(reading.value, number) << text.toStdString();
        }
    }
}

TEST(IntegerText, isReadAsByThePlainForm)
{
    std::mt19937 random(6);
    const QStringList parts{
        "0", "1", "7", "9", "12", "345", "1234", "a", "F", "-", "+", ",", "_", "0x", "0b", "0o", "x", " "};
    int acceptable = 0;
    for (int i = 0; i < 50000; ++i) {
        QString text;
        for (auto count = random() % 8; count > 0; --count) {
            text += parts.at(static_cast<int>(random() % static_cast<unsigned>(parts.size())));
        }
        for (const IntegerStyle& style : {grouped, hex, IntegerStyle{2, ","}, IntegerStyle{8, ""}}) {
            const auto expected = literalInteger(text, style);
            const auto found = readInteger(text, style);
            ASSERT_EQ(expected.has_value(), found.state == QValidator::Acceptable)
                << text.toStdString() << ' ' << style.base;
            ASSERT_EQ(expected.value_or(0), found.value) << text.toStdString();
            acceptable += expected.has_value();
        }
    }
    EXPECT_GT(acceptable, 10000);
}

} // namespace
