// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/controls/SiPrefixes_p.h"

#include <gtest/gtest.h>

#include <set>

namespace {

using morvane::ui::siExponent;
using morvane::ui::siSymbol;

TEST(SiPrefixes, haveASymbolForEachMultipleOfThree)
{
    const QString symbols = QStringLiteral("qryzafpn\u00b5m kMGTPEZYRQ");
    for (int i = 0; i < symbols.size(); ++i) {
        const int exponent = 3 * i - 30;
        const QString symbol = exponent == 0 ? QString() : QString(symbols.at(i));
        EXPECT_EQ(siSymbol(exponent), symbol) << exponent;
        if (exponent != 0) {
            EXPECT_EQ(siExponent(symbol), exponent);
        }
    }
}

TEST(SiPrefixes, areReadInAllTheirSpellings)
{
    EXPECT_EQ(siExponent(u"u"), -6);
    EXPECT_EQ(siExponent(u"\u00b5"), -6);
    EXPECT_EQ(siExponent(u"\u03bc"), -6);
    EXPECT_EQ(siExponent(u"da"), 1);
    EXPECT_EQ(siExponent(u"h"), 2);
    EXPECT_EQ(siExponent(u"d"), -1);
    EXPECT_EQ(siExponent(u"c"), -2);
}

TEST(SiPrefixes, areNoOtherCharactersAndTexts)
{
    const QString all = QStringLiteral("qryzafpnumcdhkMGTPEZYRQ\u00b5\u03bc");
    for (int code = 0; code < 0x10000; ++code) {
        const QChar character(code);
        EXPECT_EQ(siExponent(QString(character)).has_value(), all.contains(character)) << code;
    }
    for (const char* const text : {"", "mm", "ad", "dA", "da ", " m", "kk"}) {
        EXPECT_FALSE(siExponent(QString(text))) << text;
    }
}

} // namespace
