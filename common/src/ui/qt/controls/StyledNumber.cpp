// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/controls/StyledNumber_p.h"

#include "ui/qt/controls/Decimal_p.h"
#include "ui/qt/controls/ScientificNumberText_p.h"
#include "ui/qt/controls/SiPrefixes_p.h"
#include "ui/qt/controls/StyledNumberScan_p.h"

#include <cmath>

namespace morvane::ui {

namespace {

/** The largest multiple of three that is not above the exponent. */
int thousandsBelow(int exponent)
{
    return (exponent >= 0 ? exponent : exponent - 2) / 3 * 3;
}

QByteArray mantissa(const Decimal& number, int digitsBeforePoint)
{
    QByteArray text(number.isNegative ? "-" : "");
    for (int i = 0; i < number.count || i < digitsBeforePoint; ++i) {
        if (i == digitsBeforePoint) {
            text.append('.');
        }
        text.append(i < number.count ? number.digits[static_cast<std::size_t>(i)] : '0');
    }
    return text;
}

QByteArray exponentText(int exponent)
{
    QByteArray text(exponent < 0 ? "E-" : "E+");
    const QByteArray digits = QByteArray::number(std::abs(exponent));
    return text + (digits.size() < 2 ? "0" : "") + digits;
}

QByteArray engineering(const Decimal& number)
{
    const int exponent = thousandsBelow(number.exponent);
    const QByteArray text = mantissa(number, number.exponent - exponent + 1);
    return exponent == 0 ? text : text + exponentText(exponent);
}

QString withPrefix(const Decimal& number, const NumberStyle& style)
{
    const QString blank = style.unit.isEmpty() ? QString() : QStringLiteral(" ");
    const int exponent = thousandsBelow(number.exponent);
    if (exponent < smallestSiExponent || exponent > largestSiExponent) {
        return withSigns(engineering(number), style.signs, false) + blank;
    }
    const QString text = withSigns(mantissa(number, number.exponent - exponent + 1), style.signs, false);
    const QString symbol = siSymbol(exponent);
    return symbol.isEmpty() ? text + blank : text + QLatin1Char(' ') + symbol;
}

} // namespace

QString styledNumber(double number, const NumberStyle& style)
{
    if (style.notation == NumberNotation::Scientific || !std::isfinite(number)) {
        const QString text = scientificText(number, style.digits);
        return std::isfinite(number) ? withSigns(text.toLatin1(), style.signs, style.hasGroups) : text;
    }
    const Decimal decimal = roundedDecimal(number, style.digits);
    return style.notation == NumberNotation::SiPrefix ? withPrefix(decimal, style)
                                                      : withSigns(engineering(decimal), style.signs, false);
}

StyledReading readStyledNumber(const QString& text, const NumberStyle& style)
{
    return StyledNumberScan(text, style).reading();
}

ForeignReading readForeignNumber(const QString& text, const NumberStyle& style)
{
    NumberStyle other = style;
    ForeignReading result{readStyledNumber(text, style), false};
    for (const NumberSigns& signs : {signsWithDecimalComma(), signsWithDecimalPoint()}) {
        other.signs = signs;
        other.signs.zero = style.signs.zero;
        StyledReading reading = readStyledNumber(text, other);
        if (reading.state != QValidator::Acceptable) {
            continue;
        }
        if (result.reading.state != QValidator::Acceptable) {
            result.reading = std::move(reading);
        } else if (result.reading.value < reading.value || result.reading.value > reading.value) {
            result.isAmbiguous = true;
        }
    }
    if (result.isAmbiguous) {
        result.reading.state = QValidator::Intermediate;
    }
    return result;
}

QString rewritten(const StyledReading& reading, const NumberStyle& style)
{
    const QString number = withSigns(reading.plain, style.signs, false);
    return reading.symbol.isEmpty() ? number : number + QLatin1Char(' ') + reading.symbol;
}

std::optional<int> decimalPlaceAt(int cursor, const QString& text, const NumberStyle& style)
{
    return StyledNumberScan(text, style).placeAt(cursor);
}

int cursorBehindPlace(int place, const QString& text, const NumberStyle& style)
{
    return StyledNumberScan(text, style).cursorBehind(place);
}

} // namespace morvane::ui
