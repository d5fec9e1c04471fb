// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// Reading and writing numbers with prefixes of the SI and in several languages, compared with the plain forms.
#include "controls/LiteralStyledNumber.h"
#include "support/FuzzInput.h"
#include "support/Require.h"
#include "ui/qt/controls/StyledNumber_p.h"

#include <QLocale>

#include <array>
#include <cmath>

namespace {

using morvane::fuzz::FuzzInput;
using morvane::fuzz::require;
using morvane::ui::NumberStyle;

constexpr std::array<const char*, 7> units{"", "V", "m", "Pa", "Hz", "\u03a9", "mol"};
constexpr std::array<const char*, 7> locales{"C", "de_DE", "fr_FR", "sv_SE", "ar_EG", "de_CH", "en_IN"};

/** Each byte is one of these. Characters that no number has are represented by x. */
constexpr std::array<const char*, 64> pieces{"0", "1", "2", "3", "4", "5", "6", "7", "8", "9", "00", "123", "999", ".",
    ",", "'", " ", "-", "+", "E", "e", "E-", "e+", "E-06", "q", "r", "y", "z", "a", "f", "p", "n", "u", "\u00b5",
    "\u03bc", "m", "c", "d", "da", "h", "k", "M", "G", "T", "P", "Z", "Y", "R", "Q", "V", "Pa", "Hz", "H", "\u03a9",
    "\u2126", "mol", "o", "\u2212", "\u0661", "\u0669", "\u066b", "\u066c", "\u202f", "x"};

NumberStyle styleFrom(FuzzInput& input)
{
    NumberStyle style;
    style.notation = static_cast<morvane::ui::NumberNotation>(input.below(3));
    style.digits = input.below(14) - 1;
    style.unit = QString::fromUtf8(units[static_cast<std::size_t>(input.below(7))]);
    style.signs = morvane::ui::signsOf(QLocale(QLatin1String(locales[static_cast<std::size_t>(input.below(7))])));
    style.hasGroups = input.flag();
    return style;
}

void checkReading(const QString& text, const NumberStyle& style)
{
    const auto found = readStyledNumber(text, style);
    const auto expected = morvane::test::literalStyledReading(text, style);
    require((found.state == QValidator::Acceptable) == expected.has_value(), "the plain form finds a number, too");
    require(!expected || *expected == found.value, "the value is that of the plain form");
    const auto foreign = readForeignNumber(text, style);
    require(
        !foreign.isAmbiguous || foreign.reading.state == QValidator::Intermediate, "nothing ambiguous is acceptable");
    if (foreign.reading.state == QValidator::Acceptable) {
        const auto again = readStyledNumber(rewritten(foreign.reading, style) + style.unit, style);
        const bool isExa = foreign.reading.symbol == QLatin1String("E");
        require(isExa || again.state == QValidator::Acceptable, "a rewritten number can be read");
        require(isExa || again.value == foreign.reading.value, "rewriting changes no value");
    }
    for (int cursor = -1; cursor <= text.size() + 1; ++cursor) {
        if (const auto place = decimalPlaceAt(cursor, text, style)) {
            const int behind = cursorBehindPlace(*place, text, style);
            require(0 < behind && behind <= text.size(), "the digit is in the text");
            require(decimalPlaceAt(behind, text, style) == place, "behind the digit is its place");
        }
    }
}

void checkWriting(double number, const NumberStyle& style)
{
    const QString shown = styledNumber(number, style);
    require(shown == morvane::test::literalStyledNumber(number, style), "the text is that of the plain form");
    const auto back = readStyledNumber(shown + style.unit, style);
    const double expected = morvane::test::rounded(number, qMax(1, style.digits < 0 ? 6 : style.digits)).toDouble();
    // What Qt returns for a number that is rounded up beyond all doubles depends on its version.
    const bool isBeyond = std::abs(number) > 1e307 && (std::isinf(expected) || expected == 0);
    require(isBeyond || back.state == QValidator::Acceptable, "what is shown can be read");
    require(isBeyond || back.value == expected, "it is the number that is shown");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzInput input(data, size);
    const NumberStyle style = styleFrom(input);
    const auto number = input.number<double>();
    QString text;
    while (!input.isEmpty()) {
        text += QString::fromUtf8(pieces[static_cast<std::size_t>(input.below(64))]);
    }
    checkReading(text, style);
    if (std::isfinite(number)) {
        checkWriting(number, style);
    }
    return 0;
}
