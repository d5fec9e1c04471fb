// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// Reading a number in plain or scientific notation, compared with reading it step by step.
#include "controls/LiteralNumberReading.h"
#include "support/FuzzInput.h"
#include "support/Require.h"
#include "ui/qt/controls/DigitSearch_p.h"
#include "ui/qt/controls/ScientificNumberText_p.h"

#include <array>
#include <cstring>
#include <limits>
#include <utility>

namespace {

using morvane::fuzz::fromUtf8;
using morvane::fuzz::FuzzInput;
using morvane::fuzz::require;

bool sameBits(double a, double b)
{
    return std::memcmp(&a, &b, sizeof a) == 0;
}

double limit(FuzzInput& input)
{
    constexpr double largest = std::numeric_limits<double>::max();
    constexpr std::array<double, 24> chosen{0, -0.0, 0.5, -0.5, 1, -1, 10, 100, 999, 999.5, -999.5, 1000, 1001, 123.456,
        1e6, 12345678, 9007199254740992.0, 9223372036854774784.0, 9223372036854775808.0, -9223372036854775808.0, 1e19,
        1e300, largest, -largest};
    const int choice = input.below(32);
    return choice < 24 ? chosen[static_cast<std::size_t>(choice)] : input.number<double>();
}

morvane::ui::NumberRules rulesFrom(FuzzInput& input)
{
    morvane::ui::NumberRules rules{limit(input), limit(input), input.below(16) - 3, '.', ',', {}, {}, {}};
    if (rules.minimum > rules.maximum) {
        std::swap(rules.minimum, rules.maximum);
    }
    const int affixes = input.below(8);
    if (affixes & 1) {
        rules.prefix = fromUtf8(input.line());
    }
    if (affixes & 2) {
        rules.suffix = fromUtf8(input.line());
    }
    if (affixes & 4) {
        rules.specialValueText = fromUtf8(input.line());
    }
    return rules;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzInput input(data, size);
    const morvane::ui::NumberRules rules = rulesFrom(input);
    const int pos = input.number<std::int8_t>();
    const QString text = fromUtf8(input.rest());

    int foundPos = pos;
    int expectedPos = pos;
    const auto found = morvane::ui::interpretNumber(text, foundPos, rules);
    const auto expected = morvane::test::literalReading(text, expectedPos, rules, &morvane::ui::findDigitsInRange);
    require(found.state == expected.state, "the state is that of the reading step by step");
    require(sameBits(found.value, expected.value), "the value is that of the reading step by step");
    require(found.text == expected.text, "the text is that of the reading step by step");
    require(foundPos == expectedPos, "the cursor stands where the reading step by step leaves it");

    const QString shown = morvane::ui::scientificText(rules.minimum, input.below(40));
    require(!shown.isEmpty(), "a number has a text");
    return 0;
}
