// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "host/StringConversion.h"

#include <gtest/gtest.h>

#include <QString>

using morvane::utf8ToWideString;

TEST(StringConversion, keepsEmptyAndAsciiText)
{
    EXPECT_EQ(utf8ToWideString(""), L"");
    EXPECT_EQ(utf8ToWideString("report.dat"), L"report.dat");
}

TEST(StringConversion, convertsTextInsideAndOutsideTheBasicPlane)
{
    EXPECT_EQ(utf8ToWideString("\xC3\xA4\xE6\x97\xA5"), L"\u00E4\u65E5");
    EXPECT_EQ(utf8ToWideString("\xF0\x9F\x98\x80"), L"\U0001F600");
}

TEST(StringConversion, keepsNulCharacters)
{
    EXPECT_EQ(utf8ToWideString(std::string("a\0b", 3)), std::wstring(L"a\0b", 3));
}

TEST(StringConversion, replacesInvalidSequences)
{
    for (const char* const invalid : {"\xFF", "\xC3", "\xED\xA0\x80", "\xF8\x88\x80\x80\x80", "\xC0\x80"}) {
        const std::wstring wide = utf8ToWideString("a" + std::string(invalid) + "b");
        EXPECT_EQ(wide.front(), L'a') << invalid;
        EXPECT_EQ(wide.back(), L'b') << invalid;
        EXPECT_NE(wide.find(L'\uFFFD'), std::wstring::npos) << invalid;
    }
}

TEST(StringConversion, keepsTextOfAnyLength)
{
    const std::string text(1 << 20, 'x');
    EXPECT_EQ(utf8ToWideString(text).size(), text.size());
}
