// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/controls/StyledNumber_p.h"

#include "ui/qt/controls/Decimal_p.h"
#include "ui/qt/controls/ScientificNumberText_p.h"
#include "ui/qt/controls/SiPrefixes_p.h"
#include "ui/qt/controls/StyledNumberScan_p.h"

#include <cmath>
#include <vector>

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

/** The integer part of a text: its digits without separators. */
struct IntegerPart
{
    int begin = 0;
    int end = 0;
    int digitsBehindCursor = 0;
    std::vector<QString> digits; ///< of one or two code units each
};

IntegerPart integerPart(const QString& text, int cursor, const NumberSigns& signs)
{
    int units = 1;
    const auto size = static_cast<int>(text.size());
    const auto isDigit = [&](int at) { return at < size && digitAt(text, at, signs, &units) >= 0; };
    const auto isSeparator = [&](int at) { return signs.groupSeparators.contains(text.at(at)) && isDigit(at + 1); };
    IntegerPart part;
    while (part.begin < size && !isDigit(part.begin) && !isSeparator(part.begin)) {
        ++part.begin;
    }
    part.end = part.begin;
    while (part.end < size) {
        if (isDigit(part.end)) {
            part.digits.push_back(text.mid(part.end, units));
            part.digitsBehindCursor += part.end >= cursor ? 1 : 0;
            part.end += units;
        } else if (isSeparator(part.end)) {
            ++part.end;
        } else {
            break;
        }
    }
    return part;
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

QString withGroupsMoved(const QString& text, int& cursor, const NumberStyle& style)
{
    const IntegerPart part = integerPart(text, cursor, style.signs);
    QString result = text.left(part.begin);
    int newCursor = cursor;
    auto rest = static_cast<int>(part.digits.size()); // digits
    for (const QString& digit : part.digits) {
        newCursor = rest == part.digitsBehindCursor ? static_cast<int>(result.size()) : newCursor;
        if (rest % 3 == 0 && result.size() > part.begin) {
            result.append(style.signs.groupSeparators.at(0));
        }
        result.append(digit);
        --rest;
    }
    if (part.digitsBehindCursor == 0) {
        newCursor = cursor + static_cast<int>(result.size()) - part.end;
    }
    cursor = cursor < part.begin ? cursor : newCursor;
    return result + text.mid(part.end);
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
