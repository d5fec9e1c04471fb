// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QChar>
#include <QString>
#include <QValidator>

namespace morvane::ui {

/** The rules for interpreting a text. */
struct NumberRules
{
    double minimum;
    double maximum;
    int decimals; ///< digits after the point that are compared when a text may still grow into the range
    QChar delimiter;
    QChar groupSeparator;
    QString prefix;           ///< removed before the number, if present
    QString suffix;           ///< removed after the number, if present
    QString specialValueText; ///< a text that equals it keeps prefix and suffix; empty for none
};

struct NumberInterpretation
{
    QValidator::State state;
    double value; ///< if the text is not Acceptable: the minimum if the maximum is above 0, else the maximum
    QString text; ///< prefix, the number as it was interpreted, suffix
};

/**
 * Interprets `input` as a number in US English, in plain or scientific notation.
 *
 * Removes white space around the number, group separators that the parser rejects, and a second decimal point that
 * follows the first one at the cursor. Subtracts the number of removed blanks from `pos`, which may become negative,
 * and the number of removed separators, but not below 0. A text with a removed separator is Intermediate at best.
 *
 * @param pos cursor position in `input`; may have any value
 */
NumberInterpretation interpretNumber(const QString& input, int& pos, const NumberRules& rules);

/**
 * Whether a number outside the range may get into the range when more digits are typed.
 *
 * Compares the parts of the limits and of `number` before and after the point as 64-bit integers. A part that is no
 * such integer (text with an exponent, digits beyond 64 bits) counts as 0. So does a fraction without integer part. If
 * `decimals` is negative, the limits have six decimals, and the unit of the fraction, 10 to the power of `decimals`, is
 * 0.
 *
 * @param number the part of NumberInterpretation::text between prefix and suffix
 */
bool mayGrowIntoRange(const QString& number, const NumberRules& rules);

/** Writes `value` as printf's "%.*G" does in the C locale. A negative number of digits means six, 0 means one. */
QString scientificText(double value, int significantDigits);

} // namespace morvane::ui
