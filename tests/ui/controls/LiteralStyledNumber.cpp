// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "LiteralStyledNumber.h"

#include <QMap>
#include <QRegularExpression>
#include <QStringList>

#include <cmath>
#include <cstdio>

namespace morvane::test {

namespace {

const QMap<QString, int>& exponents()
{
    static const QMap<QString, int> table{{"q", -30}, {"r", -27}, {"y", -24}, {"z", -21}, {"a", -18}, {"f", -15},
        {"p", -12}, {"n", -9}, {"\u00b5", -6}, {"\u03bc", -6}, {"u", -6}, {"m", -3}, {"c", -2}, {"d", -1}, {"", 0},
        {"da", 1}, {"h", 2}, {"k", 3}, {"M", 6}, {"G", 9}, {"T", 12}, {"P", 15}, {"E", 18}, {"Z", 21}, {"Y", 24},
        {"R", 27}, {"Q", 30}};
    return table;
}

QString digitOf(int value, const ui::NumberSigns& signs)
{
    const uint character = signs.zero + static_cast<uint>(value);
    return QString::fromUcs4(reinterpret_cast<const char32_t*>(&character), 1);
}

QString inTheLanguage(QString number, const ui::NumberStyle& style)
{
    const int point = number.indexOf(QRegularExpression("[.E]|$"));
    if (style.hasGroups && !number.contains('E') && !style.signs.groupSeparators.isEmpty()) {
        const int first = number.startsWith('-') ? 1 : 0;
        for (int i = point - 3; i > first; i -= 3) {
            number.insert(i, 'g');
        }
    }
    QString result;
    for (const QChar character : number) {
        const int digit = QString("0123456789").indexOf(character);
        result += digit >= 0         ? digitOf(digit, style.signs)
                  : character == '-' ? style.signs.minus
                  : character == '+' ? style.signs.plus
                  : character == '.' ? QString(style.signs.decimalPoints.at(0))
                  : character == 'g' ? QString(style.signs.groupSeparators.at(0))
                                     : QString(character);
    }
    return result;
}

QString shortText(double number, int digits)
{
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, "%.*G", digits, number);
    return QString::fromLatin1(buffer);
}

/** The same number with 0 to 9, hyphen and plus; letters that look alike are made equal. */
QString inPlainCharacters(QString text, const ui::NumberStyle& style)
{
    for (int i = 0; i < 10; ++i) {
        text.replace(digitOf(i, style.signs), QString::number(i));
    }
    for (const int mark : {0x200e, 0x200f, 0x061c}) {
        text.remove(QChar(mark));
    }
    text.replace(style.signs.minus.right(1), "-").replace(QChar(0x2212), "-").replace(style.signs.plus.right(1), "+");
    text.replace(QChar(0x2126), QChar(0x03a9)).replace(QChar(0x03bc), QChar(0x00b5));
    text.replace(QChar(0x212a), "K").replace(QChar(0x212b), QChar(0x00c5));
    return text.trimmed();
}

/** Removes the symbol of a prefix from the end and returns its exponent. */
int takeSymbol(QString& text)
{
    for (int length = 2; length > 0; --length) {
        const QString symbol = text.right(length);
        const QString rest = text.chopped(symbol.size());
        const bool beginsExponent = symbol == "E" && rest == rest.trimmed() && !rest.contains('E', Qt::CaseInsensitive);
        if (exponents().contains(symbol) && !beginsExponent) {
            text = rest.trimmed();
            return exponents().value(symbol);
        }
    }
    return 0;
}

bool isGrouped(const QStringList& groups)
{
    const int length = groups.size() > 2 && groups.at(1).size() == 2 ? 2 : 3;
    bool result = !groups.first().isEmpty() && groups.first().size() <= length && !groups.first().startsWith('0');
    for (int i = 1; i < groups.size(); ++i) {
        result = result && groups.at(i).size() == (i == groups.size() - 1 ? 3 : length);
    }
    return result;
}

} // namespace

QString rounded(double number, int significantDigits)
{
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, "%.*E", significantDigits - 1, number);
    return QString::fromLatin1(buffer);
}

QString literalStyledNumber(double number, const ui::NumberStyle& style)
{
    const int digits = style.digits < 0 ? 6 : qMax(style.digits, 1);
    if (style.notation == ui::NumberNotation::Scientific) {
        return inTheLanguage(shortText(number, digits), style);
    }
    const QString text = rounded(number, digits);
    const int exponent = text.mid(text.indexOf('E') + 1).toInt();
    const int thousands = 3 * static_cast<int>(std::floor(exponent / 3.0));
    QString mantissa = text.left(text.indexOf('E')).remove('.').remove('-').leftJustified(3, '0');
    mantissa.insert(exponent - thousands + 1, '.');
    while (mantissa.endsWith('0')) {
        mantissa.chop(1);
    }
    mantissa = mantissa.endsWith('.') ? mantissa.chopped(1) : mantissa;
    mantissa.prepend(text.startsWith('-') ? "-" : "");
    const QString ending = style.unit.isEmpty() ? "" : " ";
    if (style.notation == ui::NumberNotation::SiPrefix && std::abs(thousands) <= 30) {
        QString symbol = exponents().key(thousands);
        symbol = thousands == -6 ? QString("\u00b5") : symbol;
        return inTheLanguage(mantissa, style) + (thousands == 0 ? ending : " " + symbol);
    }
    const QString power = thousands == 0 ? "" : QString::asprintf("E%+03d", thousands);
    return inTheLanguage(mantissa + power, style) + (style.notation == ui::NumberNotation::SiPrefix ? ending : "");
}

std::optional<double> literalStyledReading(const QString& original, const ui::NumberStyle& style)
{
    QString text = inPlainCharacters(original, style);
    const QString unit = inPlainCharacters(style.unit, style);
    if (!unit.isEmpty() && text.endsWith(unit)) {
        text = text.chopped(unit.size()).trimmed();
    }
    int exponent = style.notation == ui::NumberNotation::SiPrefix ? takeSymbol(text) : 0;

    static const QRegularExpression parts(
        "^([+-]?)([^eE+-]*?)(?:\\s*[eE]([+-]?)([0-9]+))?$", QRegularExpression::UseUnicodePropertiesOption);
    const QRegularExpressionMatch match = parts.match(text);
    if (!match.hasMatch()) {
        return std::nullopt;
    }
    const bool hasExponent = !match.captured(4).isEmpty();
    const int digits =
        qMin(match.captured(4).rightJustified(6, '0').right(match.captured(4).size() > 6 ? 400 : 6).toDouble(), 1e5);
    exponent += match.captured(3) == "-" ? -digits : digits;

    QString mantissa = match.captured(2);
    int point = mantissa.size();
    for (const QChar character : style.signs.decimalPoints) {
        const int found = mantissa.indexOf(character);
        point = found >= 0 ? qMin(point, found) : point;
    }
    QString whole = mantissa.left(point);
    const QString part = mantissa.mid(point + 1);
    for (const QChar separator : style.signs.groupSeparators) {
        if (whole.contains(separator)) {
            if (hasExponent || !isGrouped(whole.split(separator))) {
                return std::nullopt;
            }
            whole.remove(separator);
            break;
        }
    }
    static const QRegularExpression onlyDigits("^[0-9]*\\z");
    if ((whole + part).isEmpty() || !onlyDigits.match(whole + part).hasMatch()) {
        return std::nullopt;
    }
    bool ok = false;
    const QString number = match.captured(1) + whole + '.' + part + 'E' + QString::number(exponent);
    const double value = number.toDouble(&ok);
    return ok && std::isfinite(value) ? std::make_optional(value) : std::nullopt;
}

} // namespace morvane::test
