// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/controls/NumberSigns_p.h"

#include <gtest/gtest.h>

#include <QByteArray>

namespace {

using morvane::ui::digitAt;
using morvane::ui::NumberSigns;
using morvane::ui::signsOf;
using morvane::ui::withSigns;

QString written(const QByteArray& number, const char* locale, bool groups = true)
{
    return withSigns(number, signsOf(QLocale(QLatin1String(locale))), groups);
}

TEST(NumberSigns, areThoseOfTheLanguage)
{
    EXPECT_EQ(written("-1234567.25", "de_DE"), "-1.234.567,25");
    EXPECT_EQ(written("1234567.25", "en_US"), "1,234,567.25");
    EXPECT_EQ(written("1234567.25", "de_CH"), QStringLiteral("1\u2019234\u2019567.25"));
    EXPECT_EQ(written("-1.5E-07", "sv_SE"), QStringLiteral("\u22121,5E\u221207"));
    EXPECT_EQ(written("1.5E+07", "de_DE"), "1,5E+07");
    EXPECT_EQ(written("1234.5", "ar_EG"), QStringLiteral("\u0661\u066c\u0662\u0663\u0664\u066b\u0665"));
}

TEST(NumberSigns, putGroupsIntoTheIntegerPartOnly)
{
    EXPECT_EQ(written("123", "en_US"), "123");
    EXPECT_EQ(written("-123", "en_US"), "-123");
    EXPECT_EQ(written("1234", "en_US"), "1,234");
    EXPECT_EQ(written("0.123456", "en_US"), "0.123456");
    EXPECT_EQ(written("123456", "en_US", false), "123456");
}

TEST(NumberSigns, ofNoLanguageAreMarksOfTheWritingDirection)
{
    for (const QLocale& locale :
        QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyCountry)) {
        const NumberSigns signs = signsOf(locale);
        for (const QString& sign : {signs.minus, signs.plus, signs.decimalPoints}) {
            ASSERT_FALSE(sign.isEmpty()) << locale.name().toStdString();
            EXPECT_NE(sign.back().category(), QChar::Other_Format) << locale.name().toStdString();
        }
    }
}

TEST(NumberSigns, readDigitsOfAnyPlane)
{
    NumberSigns signs;
    signs.zero = 0x11136; // Chakma, outside the Basic Multilingual Plane
    const QString written = withSigns("120", signs, false);
    ASSERT_EQ(written.size(), 6);
    int units = 0;
    EXPECT_EQ(digitAt(written, 0, signs, &units), 1);
    EXPECT_EQ(units, 2);
    EXPECT_EQ(digitAt(written, 4, signs, &units), 0);
    EXPECT_EQ(digitAt(QStringLiteral("7"), 0, signs, &units), 7);
    EXPECT_EQ(units, 1);
    EXPECT_EQ(digitAt(QString(QChar(0xd804)), 0, signs, &units), -1) << "half a character";
}

} // namespace
