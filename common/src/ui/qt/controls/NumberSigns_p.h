// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLocale>
#include <QString>

namespace morvane::ui {

/** How a language writes numbers. Where several characters are listed, each is read and the first one is written. */
struct NumberSigns
{
    QString decimalPoints = QStringLiteral(".");
    QString groupSeparators = QStringLiteral(","); ///< may be empty
    QString minus = QStringLiteral("-");           ///< what is written; `-` and U+2212 are always read
    QString plus = QStringLiteral("+");            ///< what is written in an exponent; `+` is always read
    uint zero = '0';                               ///< the first of ten digits; 0 to 9 are always read

    /** Whether numbers are written as in the C locale. */
    bool areThoseOfC() const
    {
        return decimalPoints.at(0) == QLatin1Char('.') && minus == QLatin1String("-") && zero == '0';
    }
};

NumberSigns signsOf(const QLocale& locale);

/** A comma before the decimals; points, blanks or apostrophes between groups. */
NumberSigns signsWithDecimalComma();
/** A point before the decimals; commas, blanks or apostrophes between groups. */
NumberSigns signsWithDecimalPoint();

/** Writes a number of the C locale, such as "-1234.5E-07", with other signs, and its integer part in groups if wanted.
 */
QString withSigns(const QByteArray& number, const NumberSigns& signs, bool groups);

/** The value of a digit at `index`, of 0 to 9 or of the locale; -1 for others. A digit may have two code units. */
int digitAt(const QString& text, int index, const NumberSigns& signs, int* units);

} // namespace morvane::ui
