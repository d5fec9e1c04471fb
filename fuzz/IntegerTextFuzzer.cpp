// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// Reading, writing and regrouping integers in four bases, compared with the plain forms.
#include "controls/LiteralInteger.h"
#include "support/FuzzInput.h"
#include "support/Require.h"
#include "ui/qt/controls/IntegerText_p.h"

#include <array>

namespace {

using morvane::fuzz::fromUtf8;
using morvane::fuzz::FuzzInput;
using morvane::fuzz::require;
using morvane::ui::IntegerStyle;

IntegerStyle styleFrom(FuzzInput& input)
{
    constexpr std::array<int, 4> bases{2, 8, 10, 16};
    constexpr std::array<const char*, 5> separators{"", ",", "_", " ", "''"};
    return {bases[static_cast<std::size_t>(input.below(4))],
        QString::fromLatin1(separators[static_cast<std::size_t>(input.below(5))])};
}

QString digitsOf(QString text, const IntegerStyle& style)
{
    return style.groupSeparator.isEmpty() ? text : text.remove(style.groupSeparator);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzInput input(data, size);
    const IntegerStyle style = styleFrom(input);
    const auto number = input.number<qint64>();
    int cursor = input.byte();
    const QString text = fromUtf8(input.rest());

    const auto found = readInteger(text, style);
    const auto expected = morvane::test::literalInteger(text, style);
    require((found.state == QValidator::Acceptable) == expected.has_value(), "the plain form finds a number, too");
    require(found.value == expected.value_or(0), "the value is that of the plain form");

    const QString shown = integerText(number, style);
    require(shown == morvane::test::literalIntegerText(number, style), "the text is that of the plain form");
    require(readInteger(shown, style).value == number, "what is shown can be read");

    if (!style.groupSeparator.isEmpty() && found.state != QValidator::Invalid) {
        cursor = qMin(cursor, static_cast<int>(text.size()));
        const int before = static_cast<int>(digitsOf(text.left(cursor), style).size());
        const QString moved = regrouped(text, cursor, style);
        require(digitsOf(moved, style) == digitsOf(text, style), "regrouping changes no digit");
        require(0 <= cursor && cursor <= moved.size(), "the cursor is in the text");
        const bool isOneCharacter = style.groupSeparator.size() == 1;
        require(
            !isOneCharacter || digitsOf(moved.left(cursor), style).size() == before, "it is between the same digits");
    }
    return 0;
}
