// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/shell/ShellText_p.h"

#include <gtest/gtest.h>

namespace {

using morvane::ui::ShellString;
using morvane::ui::toQString;
using morvane::ui::toShellString;
using morvane::ui::toUtf8;

TEST(ShellText, keepsPlainText)
{
    EXPECT_EQ(toShellString(std::wstring(L"Größe")), toShellString(QString::fromUtf8("Größe")));
    EXPECT_EQ(toShellString(std::wstring()), ShellString());
}

TEST(ShellText, writesCharactersOutsideTheBmpAsPairs)
{
    const ShellString pair = toShellString(std::wstring(L"\U0001F600"));
    ASSERT_EQ(pair.size(), 2u);
    EXPECT_EQ(pair[0], 0xD83D);
    EXPECT_EQ(pair[1], 0xDE00);
    EXPECT_EQ(toShellString(std::wstring(L"\U0010FFFF")).size(), 2u);
    const ShellString first = toShellString(std::wstring(L"\U00010000"));
    EXPECT_EQ(first, (ShellString{0xD800, 0xDC00}));
}

TEST(ShellText, replacesWhatIsNoCharacter)
{
    for (const wchar_t bad : {wchar_t(0xD800), wchar_t(0xDFFF)}) {
        EXPECT_EQ(toShellString(std::wstring{L'a', bad, L'b'}), toShellString(std::wstring(L"a\uFFFDb")));
    }
    if (sizeof(wchar_t) == 4) {
        const auto beyond = static_cast<wchar_t>(0x110000);
        const auto negative = static_cast<wchar_t>(-1);
        EXPECT_EQ(toShellString(std::wstring{beyond, negative}), toShellString(std::wstring(L"\uFFFD\uFFFD")));
    }
}

TEST(ShellText, replacesLoneSurrogatesInQtsText)
{
    const QChar units[] = {QChar(0xD800), QLatin1Char('x'), QChar(0xDC00), QChar(0xD83D), QChar(0xDE00)};
    EXPECT_EQ(toQString(toShellString(QString(units, 5))), QString::fromUtf8("\uFFFDx\uFFFD\U0001F600"));
}

TEST(ShellText, comesBackAsQtsTextAndAsUtf8)
{
    const ShellString text = toShellString(QString::fromUtf8("é\U0001F600"));
    EXPECT_EQ(toQString(text.c_str()), QString::fromUtf8("é\U0001F600"));
    EXPECT_EQ(toUtf8(text.c_str()), "é\U0001F600");
}

TEST(ShellText, keepsTheFirstAndTheLastCharacterOfEachPlane)
{
    for (char32_t plane = 1; plane <= 16; ++plane) {
        const QString text = QString::fromStdU32String({plane << 16, (plane << 16) + 0xFFFF});
        EXPECT_EQ(toQString(toShellString(text)), text) << static_cast<unsigned>(plane);
        EXPECT_EQ(toUtf8(toShellString(text).c_str()), text.toStdString()) << static_cast<unsigned>(plane);
    }
}

TEST(ShellText, takesNullForEmptyText)
{
    EXPECT_EQ(toQString(static_cast<const WCHAR*>(nullptr)), QString());
    EXPECT_EQ(toUtf8(nullptr), std::string());
}

TEST(ShellText, stopsAtANulOnlyWhereTheTextHasNoLength)
{
    const ShellString text = toShellString(std::wstring(L"a\0b", 3));
    EXPECT_EQ(text.size(), 3u);
    EXPECT_EQ(toQString(text).size(), 3);
    EXPECT_EQ(toUtf8(text.c_str()), "a");
}

} // namespace
