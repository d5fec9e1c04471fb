#pragma once

#include <QChar>
#include <QString>
#include <QValidator>

namespace morvane::ui {

/** What a text is read against. */
struct NumberRules
{
    double minimum;
    double maximum;
    int decimals; ///< digits after the point that are looked at where a text may still grow into the range
    QChar delimiter;
    QChar groupSeparator;
    QString prefix;           ///< dropped in front of the number, when it is there
    QString suffix;           ///< dropped behind it, when it is there
    QString specialValueText; ///< a text that equals it keeps prefix and suffix; empty for none
};

struct NumberInterpretation
{
    QValidator::State state;
    double value; ///< of a text that is not Acceptable: the minimum when the maximum is above 0, else the maximum
    QString text; ///< prefix, the number as it was read in the end, suffix
};

/**
 * Reads `input` as a number in US English, in plain or scientific notation.
 *
 * White space around the number, group separators that the parser does not like, and a second decimal point right
 * behind the first at the cursor are left out. `pos` goes back by the number of characters trimmed, which may bring it
 * below 0, and by the number of separators left out, which may not. A group separator left out makes a text
 * Intermediate at best.
 *
 * @param pos cursor position in `input`; any value will do
 */
NumberInterpretation interpretNumber(const QString& input, int& pos, const NumberRules& rules);

/**
 * Whether a number outside the range may come into it when more digits are typed.
 *
 * The halves of the limits and of `number` before and behind the point are compared as 64-bit integers; a half that is
 * none (text with an exponent, digits beyond 64 bits) counts as 0. A fraction without integer part is not looked at
 * itself: in its place stands 0. With a negative number of decimals, the limits are taken with six, and the unit of
 * the fraction, 10 to the power of decimals, is 0.
 *
 * @param number as it stands in NumberInterpretation::text between prefix and suffix
 */
bool mayGrowIntoRange(const QString& number, const NumberRules& rules);

/** `value` as printf's "%.*G" writes it in the C locale; fewer than 0 significant digits stand for six, 0 for one. */
QString scientificText(double value, int significantDigits);

} // namespace morvane::ui
