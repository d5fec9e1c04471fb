// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/controls/StyledNumber_p.h"

#include <gtest/gtest.h>

#include <random>

namespace {

using morvane::ui::cursorBehindPlace;
using morvane::ui::decimalPlaceAt;
using morvane::ui::NumberNotation;
using morvane::ui::NumberStyle;
using morvane::ui::readStyledNumber;

NumberStyle withUnit(const QString& unit)
{
    NumberStyle style;
    style.notation = NumberNotation::SiPrefix;
    style.unit = unit;
    return style;
}

TEST(StyledNumberTyping, neverPassesThroughAnInvalidText)
{
    for (const QString& unit : {QString("V"), QString("Hz"), QString("Pa"), QString("mol"), QString()}) {
        const NumberStyle style = withUnit(unit);
        for (const QString number : {"4.7 \u00b5", "-1,234,567.25 k", "+.5E-06", "12 da", "1 E", "1E3 m"}) {
            const QString whole = number + unit;
            ASSERT_EQ(readStyledNumber(whole, style).state, QValidator::Acceptable) << whole.toStdString();
            for (int length = 0; length < whole.size(); ++length) {
                EXPECT_NE(readStyledNumber(whole.left(length), style).state, QValidator::Invalid)
                    << whole.left(length).toStdString();
            }
        }
    }
}

TEST(StyledNumberTyping, neverPassesThroughAnInvalidTextBeforeTheUnitThatStandsAlready)
{
    const NumberStyle style = withUnit("V");
    for (const QString number : {"4.7 \u00b5", "-1,234,567.25 k", "+.5E-06", "12 da", "1 E", "1E3 m"}) {
        for (int length = 0; length <= number.size(); ++length) {
            EXPECT_NE(readStyledNumber(number.left(length) + "V", style).state, QValidator::Invalid)
                << number.left(length).toStdString();
        }
    }
}

TEST(StyledNumberTyping, mayPutASecondUnitBeforeTheOneThatStandsAlready)
{
    for (const QString unit : {"Pa", "Hz", "mol"}) {
        const NumberStyle style = withUnit(unit);
        for (const QString number : {"4.7 ", "4.7 M", "4.7 P", "4.7 m"}) {
            const QString typed = number + unit;
            for (int length = 0; length < typed.size(); ++length) {
                EXPECT_NE(readStyledNumber(typed.left(length) + unit, style).state, QValidator::Invalid)
                    << typed.left(length).toStdString();
            }
        }
    }
}

TEST(StyledNumberTyping, mayDeleteAnyDigit)
{
    const NumberStyle style = withUnit("V");
    const QString whole = "1,234.5 kV";
    for (int i = 0; i < whole.size() - 1; ++i) {
        EXPECT_NE(readStyledNumber(QString(whole).remove(i, 1), style).state, QValidator::Invalid) << i;
        EXPECT_NE(readStyledNumber(QString(whole).remove(0, i), style).state, QValidator::Invalid) << i;
    }
}

TEST(StyledNumberPlace, isThatOfTheDigitBeforeTheCursor)
{
    const NumberStyle style = withUnit("V");
    const QString text = "-12.34 mV";
    const int expected[] = {-2, -2, -2, -3, -3, -4, -5, -5, -5, -5};
    for (int cursor = 0; cursor <= text.size(); ++cursor) {
        EXPECT_EQ(decimalPlaceAt(cursor, text, style), expected[cursor]) << cursor;
    }
    EXPECT_EQ(decimalPlaceAt(1, "4E-06", style), -6);
    EXPECT_EQ(decimalPlaceAt(1, "1,234", style), 3);
    EXPECT_EQ(decimalPlaceAt(2, "1,234", style), 3);
    EXPECT_FALSE(decimalPlaceAt(1, "-", style));
    EXPECT_FALSE(decimalPlaceAt(1, "x", style));
}

TEST(StyledNumberPlace, isFoundAgainInTheText)
{
    const NumberStyle style = withUnit("V");
    const QString text = "-12.34 mV";
    EXPECT_EQ(cursorBehindPlace(-2, text, style), 2);
    EXPECT_EQ(cursorBehindPlace(-3, text, style), 3);
    EXPECT_EQ(cursorBehindPlace(-4, text, style), 5);
    EXPECT_EQ(cursorBehindPlace(-5, text, style), 6);
    EXPECT_EQ(cursorBehindPlace(-9, text, style), 6) << "not shown";
    EXPECT_EQ(cursorBehindPlace(4, text, style), 2) << "not shown";
}

} // namespace
