// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/native/NameFilterText_p.h"

#include "LiteralNameFilter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>

namespace {

using morvane::test::extensionByExpression;
using morvane::test::splitByExpression;
using morvane::test::splitFiltersLiterally;
using morvane::ui::extensionOfNameFilter;
using morvane::ui::FileTypeText;
using morvane::ui::isBareWildcard;
using morvane::ui::splitNameFilter;
using morvane::ui::splitNameFilters;

void expectSameAsExpressions(const std::string& filter)
{
    const FileTypeText expected = splitByExpression(filter);
    const FileTypeText actual = splitNameFilter(filter);
    EXPECT_EQ(actual.description, expected.description) << testing::PrintToString(filter);
    EXPECT_EQ(actual.patterns, expected.patterns) << testing::PrintToString(filter);
    EXPECT_EQ(extensionOfNameFilter(filter), extensionByExpression(filter)) << testing::PrintToString(filter);
}

struct SplitCase
{
    const char* filter;
    const char* description;
    const char* patterns;
    const char* extension;
};

void PrintTo(const SplitCase& c, std::ostream* out)
{
    for (const char character : std::string(c.filter)) {
        *out << (character >= ' ' && character <= '~' ? character : '?');
    }
}

class NameFilterTextSplit : public testing::TestWithParam<SplitCase>
{
};

TEST(NameFilterText, tellsAWildcardFromAnExtension)
{
    for (const char* const wildcard : {"*", "?", "*?*", "* *.dat", "*;*.dat"}) {
        EXPECT_TRUE(isBareWildcard(wildcard)) << wildcard;
    }
    for (const char* const extension : {"", "dat", "h*", "tar.*", "png *", " *"}) {
        EXPECT_FALSE(isBareWildcard(extension)) << extension;
    }
    EXPECT_TRUE(isBareWildcard(extensionOfNameFilter("All files (*.*)")));
    EXPECT_TRUE(isBareWildcard(std::string(1 << 20, '*')));
}

} // namespace

TEST_P(NameFilterTextSplit, givesDescriptionPatternsAndExtension)
{
    const SplitCase& c = GetParam();
    EXPECT_EQ(splitNameFilter(c.filter).description, c.description);
    EXPECT_EQ(splitNameFilter(c.filter).patterns, c.patterns);
    EXPECT_EQ(extensionOfNameFilter(c.filter), c.extension);
    expectSameAsExpressions(c.filter);
}

INSTANTIATE_TEST_SUITE_P(Filters, NameFilterTextSplit,
    testing::Values(SplitCase{"Images (*.png *.jpg)", "Images", "*.png;*.jpg", "png *.jpg"},
        SplitCase{"Data (*.dat)", "Data", "*.dat", "dat"}, SplitCase{"A (x) (*.a)", "A (x)", "*.a", "a"},
        SplitCase{"A (*.a) (x)", "A (*.a)", "x", "a) (x"}, SplitCase{"All files (*)", "All files", "*", ""},
        SplitCase{"All (*.*)", "All", "*.*", "*"}, SplitCase{"*.dat", "File of Type", "*.dat", ""},
        SplitCase{"", "File of Type", "", ""}, SplitCase{"Two words", "File of Type", "Two;words", ""},
        SplitCase{"NoBlank(*.a)", "File of Type", "NoBlank(*.a)", ""}, SplitCase{" (*.a)", "", "*.a", "a"},
        SplitCase{"A  (*.a)", "A ", "*.a", "a"}, SplitCase{"A ()", "A", "", ""}, SplitCase{"A (*.)", "A", "*.", ""},
        SplitCase{"A (*.a", "File of Type", "A;(*.a", ""}, SplitCase{"A *.a)", "File of Type", "A;*.a)", ""},
        SplitCase{"A (*.a) b", "A", "*.a", "a"}, SplitCase{"A (b (*.c))", "A (b", "*.c)", "c)"},
        SplitCase{"A (*.a) (", "A", "*.a", "a"}, SplitCase{"A) (*.a", "File of Type", "A);(*.a", ""},
        SplitCase{"A (*.tar.gz)", "A", "*.tar.gz", "tar.gz"}, SplitCase{"A\n(*.a)", "File of Type", "A\n(*.a)", ""},
        SplitCase{"A (*.a)\n", "File of Type", "A;(*.a)\n", ""},
        SplitCase{"A\r (*.a)", "File of Type", "A\r;(*.a)", ""},
        SplitCase{"\xE6\x97\xA5\xE6\x9C\xAC (*.\xF0\x9F\x98\x80)", "\xE6\x97\xA5\xE6\x9C\xAC", "*.\xF0\x9F\x98\x80",
            "\xF0\x9F\x98\x80"}));

TEST(NameFilterText, agreesWithTheExpressionsOnEveryShortText)
{
    const std::string alphabet = "a ().*\n";
    for (std::size_t length = 0; length <= 6; ++length) {
        std::size_t count = 1;
        for (std::size_t i = 0; i < length; ++i) {
            count *= alphabet.size();
        }
        for (std::size_t number = 0; number < count; ++number) {
            std::string text;
            for (std::size_t i = 0, rest = number; i < length; ++i, rest /= alphabet.size()) {
                text += alphabet[rest % alphabet.size()];
            }
            expectSameAsExpressions(text);
            if (testing::Test::HasFailure()) {
                return;
            }
        }
    }
}

TEST(NameFilterText, agreesWithTheExpressionsOnRandomTexts)
{
    std::mt19937 random(20260711);
    const std::string pieces[] = {
        " (*.", ")", " (", "(", "*.", "dat", " ", "\xC3\xA4", "\r", std::string(1, '\0'), "\xFF", ";;", "*"};
    std::uniform_int_distribution<std::size_t> pick(0, std::size(pieces) - 1);
    std::uniform_int_distribution<int> length(0, 14);
    for (int i = 0; i < 20000 && !testing::Test::HasFailure(); ++i) {
        std::string text;
        for (int piece = length(random); piece > 0; --piece) {
            // Line breaks and zeros are rare, because hardly any text with them matches.
            const std::size_t chosen = pick(random);
            text += (chosen == 8 || chosen == 9) && i % 8 != 0 ? "x" : pieces[chosen];
        }
        expectSameAsExpressions(text);
    }
}

TEST(NameFilterText, takesTextsOfAMegabyteWithoutRecursion)
{
    const std::size_t size = 1 << 20;
    const std::string description(size, '(');
    EXPECT_EQ(splitNameFilter(description + " (*.a)").description.size(), size);
    EXPECT_EQ(splitNameFilter("A (" + std::string(size, ')') + ")").patterns.size(), size);
    std::string nested;
    while (nested.size() < size) {
        nested += " (*.";
    }
    EXPECT_EQ(extensionOfNameFilter(nested), "");
    EXPECT_EQ(extensionOfNameFilter(nested + "x)"), "x");
}

TEST(NameFilterText, splitsAListAndStripsBlanks)
{
    EXPECT_EQ(splitNameFilters("Text files (*.txt);;;; ;;  Data (*.dat *.csv)  "),
        (QStringList{"Text files (*.txt)", "", "Data (*.dat *.csv)"}));
    EXPECT_EQ(splitNameFilters(""), QStringList());
    EXPECT_EQ(splitNameFilters(";;"), QStringList());
    EXPECT_EQ(splitNameFilters("\tA (*.a)\n"), QStringList("\tA (*.a)\n")) << "only blanks are stripped";
    EXPECT_EQ(splitNameFilters("A (*.a);B (*.b)"), QStringList("A (*.a);B (*.b)"));
    EXPECT_EQ(splitNameFilters("A;;;B"), (QStringList{"A", ";B"}));
}

TEST(NameFilterText, splitsTenThousandFilters)
{
    std::string joined;
    for (int i = 0; i < 10000; ++i) {
        joined += "Type " + std::to_string(i) + " (*.t" + std::to_string(i) + ");;";
    }
    const QStringList filters = splitNameFilters(joined);
    ASSERT_EQ(filters.size(), 10000);
    EXPECT_EQ(filters.last(), "Type 9999 (*.t9999)");
}

TEST(NameFilterText, splitsJoinedFiltersAsOneDoesCharacterByCharacter)
{
    std::mt19937 random(20261121);
    const char characters[] = {';', ';', ';', ' ', 'a', '(', '\t'};
    for (int i = 0; i < 20000; ++i) {
        std::string text;
        for (std::size_t length = random() % 12; length > 0; --length) {
            text += characters[random() % std::size(characters)];
        }
        ASSERT_EQ(splitNameFilters(text), splitFiltersLiterally(QString::fromStdString(text)))
            << testing::PrintToString(text);
    }
}
