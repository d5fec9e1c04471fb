// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/controls/ScientificNumberText_p.h"

#include "ui/qt/controls/DigitSearch_p.h"

#include <QLocale>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>

namespace morvane::ui {

namespace {

/** The parts of a number before and after its decimal point. */
struct Halves
{
    qint64 left = 0;
    qint64 right = 0;
};

Halves halvesOfLimit(double limit, int decimals)
{
    // An integer part beyond 64 bits counts as 0, and such a number has no fraction. So its digits are not needed.
    if (std::abs(limit) >= 1e19) {
        return {};
    }
    const QString text = QString::number(limit, 'f', decimals);
    const int point = text.indexOf(QLatin1Char('.'));
    if (point < 0) {
        return {text.toLongLong(), 0};
    }
    const QStringView digits(text);
    return {digits.left(point).toLongLong(), digits.mid(point + 1).toLongLong()};
}

qint64 powerOfTen(int exponent)
{
    qint64 power = exponent < 0 ? 0 : 1;
    for (int i = 0; i < exponent; ++i) {
        power *= 10;
    }
    return power;
}

/** A typed number, split at its decimal point. */
struct TypedNumber
{
    std::optional<qint64> left;
    std::optional<qint64> right; ///< none if there is no integer part
    QChar sign;                  ///< only if there is no integer part
};

TypedNumber cutAtPoint(const QString& text, QChar delimiter)
{
    const int point = text.indexOf(delimiter);
    if (point < 0) {
        return {text.toLongLong(), std::nullopt, QChar()};
    }
    const bool signOnly = point == 1 && (text[0] == QLatin1Char('+') || text[0] == QLatin1Char('-'));
    if (point == 0 || signOnly) {
        return {std::nullopt, std::nullopt, signOnly ? text[0] : QLatin1Char('+')};
    }
    const bool endsInPoint = point == text.size() - 1;
    const QStringView digits(text);
    return {digits.left(point).toLongLong(),
        endsInPoint ? std::nullopt : std::make_optional(digits.mid(point + 1).toLongLong()), QChar()};
}

/** Searches the integer parts and the fractions of a range. */
class GrowthRange
{
public:
    explicit GrowthRange(const NumberRules& rules)
        : m_min(halvesOfLimit(rules.minimum, rules.decimals)),
          m_max(halvesOfLimit(rules.maximum, rules.decimals)),
          m_unit(powerOfTen(rules.decimals)),
          m_negative(rules.maximum < 0)
    {
    }

    bool negative() const { return m_negative; }
    bool excludesSignOf(qint64 left, bool minusTyped) const
    {
        return (left >= 0 && m_max.left < 0 && !minusTyped) || (left < 0 && m_min.left >= 0);
    }
    std::optional<qint64> matchOf(qint64 left) const { return findDigitsInRange(left, m_min.left, m_max.left); }
    bool reachesWithFraction(qint64 match, qint64 right) const;
    bool reachesWithFractionAlone() const;

private:
    qint64 farEnd() const { return m_negative ? m_unit : 0; }
    qint64 nearEnd() const { return m_negative ? 0 : m_unit; }
    bool finds(qint64 right, qint64 atMinimum, qint64 atMaximum) const
    {
        return findDigitsInRange(right, m_negative ? atMaximum : atMinimum, m_negative ? atMinimum : atMaximum)
            .has_value();
    }

    Halves m_min;
    Halves m_max;
    qint64 m_unit;
    bool m_negative;
};

bool GrowthRange::reachesWithFraction(qint64 match, qint64 right) const
{
    return finds(right, match == m_min.left ? m_min.right : farEnd(), match == m_max.left ? m_max.right : nearEnd());
}

/** The next number. The largest number is followed by the smallest one. */
qint64 successor(qint64 number)
{
    using Limits = std::numeric_limits<qint64>;
    return number == Limits::max() ? Limits::min() : number + 1;
}

bool GrowthRange::reachesWithFractionAlone() const
{
    if (m_min.left == m_max.left) {
        return finds(0, m_min.right, m_max.right);
    }
    if (successor(m_min.left) == m_max.left || successor(m_max.left) == m_min.left) {
        return findDigitsInRange(0, m_min.right, nearEnd()) || findDigitsInRange(0, farEnd(), m_max.right);
    }
    return findDigitsInRange(0, 0, m_unit).has_value();
}

bool isBlankOrSeparator(QChar character, const NumberRules& rules)
{
    return character == rules.groupSeparator || character.isSpace();
}

QString stripped(const QString& input, int& pos, const NumberRules& rules)
{
    QString text = input;
    if (rules.specialValueText.isEmpty() || text != rules.specialValueText) {
        if (!rules.prefix.isEmpty() && text.startsWith(rules.prefix)) {
            text.remove(0, rules.prefix.size());
        }
        if (!rules.suffix.isEmpty() && text.endsWith(rules.suffix)) {
            text.chop(rules.suffix.size());
        }
    }
    const int length = text.size();
    text = std::move(text).trimmed();
    pos -= length - text.size();
    return text;
}

bool isStartOfNumber(const QString& text, const NumberRules& rules)
{
    const auto isSign = [&rules](QChar character) {
        return (character == QLatin1Char('+') && rules.maximum >= 0) ||
               (character == QLatin1Char('-') && rules.minimum <= 0);
    };
    switch (text.size()) {
    case 0:
        return rules.maximum != rules.minimum;
    case 1:
        return text[0] == rules.delimiter || isSign(text[0]);
    case 2:
        return text[1] == rules.delimiter && isSign(text[0]);
    default:
        return false;
    }
}

/** Whether blanks and group separators are at allowed places. Removes one of two points if one was just typed. */
bool settleSeparators(QString& text, int pos, const NumberRules& rules)
{
    if (text.at(0) == rules.groupSeparator) {
        return false;
    }
    const int length = text.size();
    const int point = length > 1 ? text.indexOf(rules.delimiter) : -1;
    if (point < 0) {
        return length < 2 || !isBlankOrSeparator(text.at(length - 1), rules) ||
               !isBlankOrSeparator(text.at(length - 2), rules);
    }
    if (pos == point + 1 && pos < length && text.at(pos) == rules.delimiter) {
        text.remove(pos, 1);
    }
    return std::none_of(text.cbegin() + point + 1, text.cend(),
        [&rules](QChar character) { return isBlankOrSeparator(character, rules); });
}

bool dropGroupSeparators(QString& text, int& pos, const NumberRules& rules)
{
    const auto length = text.size();
    const bool tooSmallForGroups = rules.maximum < 1000 && rules.minimum > -1000;
    const bool grouped = text.contains(rules.groupSeparator);
    if (grouped && (tooSmallForGroups || text.contains(QString(2, rules.groupSeparator)))) {
        return false;
    }
    text.remove(rules.groupSeparator);
    pos = std::max(0, pos - static_cast<int>(length - text.size()));
    return grouped;
}

QValidator::State stateOf(double number, bool separatorsDropped, const QString& text, const NumberRules& rules)
{
    if (rules.minimum <= number && number <= rules.maximum) {
        return separatorsDropped ? QValidator::Intermediate : QValidator::Acceptable;
    }
    if (rules.maximum == rules.minimum || (number >= 0 && number > rules.maximum) ||
        (number < 0 && number < rules.minimum)) {
        return QValidator::Invalid;
    }
    return mayGrowIntoRange(text, rules) ? QValidator::Intermediate : QValidator::Invalid;
}

QValidator::State interpret(QString& text, int& pos, const NumberRules& rules, double& number)
{
    static const QLocale english(QLocale::English, QLocale::UnitedStates);

    if (isStartOfNumber(text, rules)) {
        return QValidator::Intermediate;
    }
    if (text.isEmpty() || !settleSeparators(text, pos, rules)) {
        return QValidator::Invalid;
    }
    bool ok = false;
    number = english.toDouble(text, &ok);
    if (ok) {
        return stateOf(number, false, text, rules);
    }
    if (!dropGroupSeparators(text, pos, rules)) {
        return QValidator::Invalid;
    }
    number = english.toDouble(text, &ok);
    return ok ? stateOf(number, true, text, rules) : QValidator::Invalid;
}

} // namespace

NumberInterpretation interpretNumber(const QString& input, int& pos, const NumberRules& rules)
{
    QString number = stripped(input, pos, rules);
    double value = rules.minimum;
    const QValidator::State state = interpret(number, pos, rules, value);
    if (state != QValidator::Acceptable) {
        value = rules.maximum > 0 ? rules.minimum : rules.maximum;
    }
    if (!rules.prefix.isEmpty()) {
        number.prepend(rules.prefix);
    }
    if (!rules.suffix.isEmpty()) {
        number.append(rules.suffix);
    }
    return {state, value, std::move(number)};
}

bool mayGrowIntoRange(const QString& number, const NumberRules& rules)
{
    const TypedNumber typed = cutAtPoint(number, rules.delimiter);
    const GrowthRange range(rules);
    if (!typed.left && (typed.sign == QLatin1Char('-')) != range.negative()) {
        return false;
    }
    if (range.excludesSignOf(typed.left.value_or(0), number.startsWith(QLatin1Char('-')))) {
        return false;
    }
    if (!typed.left) {
        return range.reachesWithFractionAlone();
    }
    const auto match = range.matchOf(*typed.left);
    return match && (!typed.right || range.reachesWithFraction(*match, *typed.right));
}

QString scientificText(double value, int significantDigits)
{
    // std::snprintf() would use the decimal point of the C library's locale, which Qt sets to the user's locale.
    std::array<char, 1077> buffer;
    const int precision = significantDigits < 0 ? 6 : significantDigits;
    const auto end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::general, precision).ptr;
    for (char* character = buffer.data(); character != end; ++character) {
        if (*character >= 'a' && *character <= 'z') {
            *character = static_cast<char>(*character - 'a' + 'A');
        }
    }
    return QString::fromLatin1(buffer.data(), static_cast<int>(end - buffer.data()));
}

} // namespace morvane::ui
