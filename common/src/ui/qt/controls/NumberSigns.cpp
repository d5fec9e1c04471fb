// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/controls/NumberSigns_p.h"

#include <QByteArray>

namespace morvane::ui {

namespace {

const QString& blanks()
{
    static const QString characters = QStringLiteral(" \u00a0\u2009\u202f");
    return characters;
}

const QString& apostrophes()
{
    static const QString characters = QStringLiteral("'\u2019");
    return characters;
}

/** A separator, followed by those that look alike. */
QString withAlternatives(const QString& separator)
{
    for (const QString& alike : {blanks(), apostrophes()}) {
        if (!separator.isEmpty() && alike.contains(separator.at(0))) {
            return separator + alike;
        }
    }
    return separator;
}

/** Qt 5 knows one character only, which for some languages is a mark of the writing direction before the sign. */
QString signOr(const QString& sign, QLatin1Char plain)
{
    return sign.isEmpty() || sign.back().category() == QChar::Other_Format ? QString(plain) : sign;
}

uint firstCodePoint(const QString& text)
{
    if (text.size() > 1 && text.at(0).isHighSurrogate() && text.at(1).isLowSurrogate()) {
        return QChar::surrogateToUcs4(text.at(0), text.at(1));
    }
    return text.isEmpty() ? '0' : text.at(0).unicode();
}

void appendDigit(QString& text, char digit, uint zero)
{
    const uint character = zero + static_cast<uint>(digit - '0');
    if (QChar::requiresSurrogates(character)) {
        text.append(QChar(QChar::highSurrogate(character))).append(QChar(QChar::lowSurrogate(character)));
    } else {
        text.append(QChar(static_cast<ushort>(character)));
    }
}

/** The number of digits at the start, which are the integer part. */
int integerDigits(const QByteArray& number, int start)
{
    int end = start;
    while (end < number.size() && number.at(end) >= '0' && number.at(end) <= '9') {
        ++end;
    }
    return end - start;
}

} // namespace

NumberSigns signsOf(const QLocale& locale)
{
    NumberSigns signs;
    // These are characters in Qt 5 and texts in Qt 6.
    signs.decimalPoints = QString(locale.decimalPoint());
    signs.groupSeparators = withAlternatives(QString(locale.groupSeparator()));
    signs.minus = signOr(QString(locale.negativeSign()), QLatin1Char('-'));
    signs.plus = signOr(QString(locale.positiveSign()), QLatin1Char('+'));
    signs.zero = firstCodePoint(QString(locale.zeroDigit()));
    return signs;
}

NumberSigns signsWithDecimalComma()
{
    NumberSigns signs;
    signs.decimalPoints = QStringLiteral(",");
    signs.groupSeparators = QStringLiteral(".") + blanks() + apostrophes();
    return signs;
}

NumberSigns signsWithDecimalPoint()
{
    NumberSigns signs;
    signs.groupSeparators = QStringLiteral(",") + blanks() + apostrophes();
    return signs;
}

QString withSigns(const QByteArray& number, const NumberSigns& signs, bool groups)
{
    groups = groups && !signs.groupSeparators.isEmpty();
    if (!groups && signs.areThoseOfC()) {
        return QString::fromLatin1(number);
    }
    const int start = number.startsWith('-') ? 1 : 0;
    const int whole = integerDigits(number, start);
    QString text;
    for (int i = 0; i < number.size(); ++i) {
        const char character = number.at(i);
        if (character >= '0' && character <= '9') {
            const int left = start + whole - i; // digits of the integer part from here on
            if (groups && left > 0 && left < whole && left % 3 == 0) {
                text.append(signs.groupSeparators.at(0));
            }
            appendDigit(text, character, signs.zero);
        } else if (character == '-') {
            text.append(signs.minus);
        } else if (character == '+') {
            text.append(signs.plus);
        } else {
            text.append(character == '.' ? signs.decimalPoints.at(0) : QLatin1Char(character));
        }
    }
    return text;
}

int digitAt(const QString& text, int index, const NumberSigns& signs, int* units)
{
    *units = 1;
    uint character = text.at(index).unicode();
    if (character >= '0' && character <= '9') {
        return static_cast<int>(character - '0');
    }
    if (signs.zero == '0') {
        return -1;
    }
    if (QChar::isHighSurrogate(character) && index + 1 < text.size() && text.at(index + 1).isLowSurrogate()) {
        character = QChar::surrogateToUcs4(text.at(index), text.at(index + 1));
        *units = 2;
    }
    return character >= signs.zero && character < signs.zero + 10 ? static_cast<int>(character - signs.zero) : -1;
}

} // namespace morvane::ui
