// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/controls/IntegerText_p.h"

#include <limits>

namespace morvane::ui {

namespace {

bool isMinus(QChar character)
{
    return character == QLatin1Char('-') || character == QChar(0x2212);
}

/** The value of a digit, or 16 for other characters. */
unsigned digitValue(QChar character)
{
    const char16_t code = character.unicode();
    if (code >= u'0' && code <= u'9') {
        return code - u'0';
    }
    const char16_t letter = code | 0x20;
    return letter >= u'a' && letter <= u'f' ? letter - u'a' + 10u : 16u;
}

/** The length of sign and mark of the base. */
int lengthOfStart(const QString& text, int base)
{
    int length = !text.isEmpty() && (isMinus(text.at(0)) || text.at(0) == QLatin1Char('+')) ? 1 : 0;
    const QLatin1Char letter(base == 16 ? 'x' : base == 8 ? 'o' : 'b');
    if (base != 10 && text.size() >= length + 2 && text.at(length) == QLatin1Char('0') &&
        text.at(length + 1).toLower() == letter) {
        length += 2;
    }
    return length;
}

QString inGroups(QString digits, const IntegerStyle& style)
{
    if (!style.groupSeparator.isEmpty()) {
        for (int i = static_cast<int>(digits.size()) - style.groupLength(); i > 0; i -= style.groupLength()) {
            digits.insert(i, style.groupSeparator);
        }
    }
    return digits;
}

/** Adds a digit. Returns false if the number gets too large. */
bool append(quint64& number, unsigned digit, unsigned base)
{
    constexpr quint64 most = std::numeric_limits<quint64>::max();
    if (number > (most - digit) / base) {
        return false;
    }
    number = number * base + digit;
    return true;
}

} // namespace

QString integerText(qint64 number, const IntegerStyle& style)
{
    const quint64 magnitude = number < 0 ? static_cast<quint64>(-(number + 1)) + 1 : static_cast<quint64>(number);
    const QString digits = inGroups(QString::number(magnitude, style.base).toUpper(), style);
    return number < 0 ? QLatin1Char('-') + digits : digits;
}

IntegerReading readInteger(const QString& text, const IntegerStyle& style)
{
    const QString start = text.left(lengthOfStart(text, style.base));
    const QString digits = text.mid(start.size());
    QString plain = digits;
    if (!style.groupSeparator.isEmpty()) {
        plain.remove(style.groupSeparator);
    }
    quint64 magnitude = 0;
    for (const QChar character : plain) {
        const unsigned digit = digitValue(character);
        const auto base = static_cast<unsigned>(style.base);
        if (digit >= base || !append(magnitude, digit, base)) {
            return {};
        }
    }
    const bool isNegative = !start.isEmpty() && isMinus(start.at(0));
    if (magnitude > static_cast<quint64>(std::numeric_limits<qint64>::max()) + (isNegative ? 1 : 0)) {
        return {};
    }
    if (plain.isEmpty() || (digits.size() != plain.size() && digits != inGroups(plain, style))) {
        return {QValidator::Intermediate, 0};
    }
    const bool isBelowZero = isNegative && magnitude > 0;
    return {
        QValidator::Acceptable, isBelowZero ? -static_cast<qint64>(magnitude - 1) - 1 : static_cast<qint64>(magnitude)};
}

QString regrouped(const QString& text, int& cursor, const IntegerStyle& style)
{
    const int start = lengthOfStart(text, style.base);
    QString plain = text.mid(start);
    plain.remove(style.groupSeparator);
    const int behindCursor =
        static_cast<int>(text.mid(qMax(cursor, start)).remove(style.groupSeparator).size()); // digits
    const QString digits = inGroups(plain, style);
    if (cursor > start) {
        const int groups = behindCursor / style.groupLength();
        const auto separators = groups * static_cast<int>(style.groupSeparator.size());
        // The cursor may have been within a separator of several characters.
        cursor = qMax(start, start + static_cast<int>(digits.size()) - behindCursor - separators);
    }
    return text.left(start) + digits;
}

} // namespace morvane::ui
