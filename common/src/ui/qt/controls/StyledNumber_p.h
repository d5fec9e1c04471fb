// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/controls/NumberSigns_p.h"

#include <QByteArray>
#include <QString>
#include <QValidator>

#include <optional>

namespace morvane::ui {

enum class NumberNotation
{
    Scientific,  ///< as printf's "%G"
    Engineering, ///< the exponent is a multiple of three, and omitted if it is 0
    SiPrefix,    ///< a prefix from quecto to quetta in the place of the exponent
};

/** How numbers are written and read. */
struct NumberStyle
{
    NumberNotation notation = NumberNotation::Scientific;
    int digits = 8;         ///< significant digits; a negative number means six, 0 means one
    QString unit;           ///< stands after the number; without white space at its ends
    NumberSigns signs;      ///< of the language
    bool hasGroups = false; ///< whether the integer part is written in groups
};

/**
 * Writes a number without its unit. In the notation SiPrefix the text ends with a blank, or with a blank and the symbol
 * of the prefix, so that the unit can follow. Without a unit it ends with the number or the symbol. Numbers beyond the
 * prefixes are written with an exponent.
 */
QString styledNumber(double number, const NumberStyle& style);

struct StyledReading
{
    QValidator::State state = QValidator::Invalid;
    double value = 0; ///< only for an acceptable text
    QByteArray plain; ///< the number in the C locale, without prefix and unit
    QString symbol;   ///< of the prefix, if there is one
};

/**
 * Reads a number with or without its unit. The text means what it says: with the unit `m`, `4.7m` is 4.7 metres, and
 * `4.7mm` is 4.7 millimetres.
 *
 * Acceptable if the text is a number that a double can hold. Intermediate if characters are missing: digits, the end of
 * an exponent, of a group or of the unit. White space around the number, before the prefix and before the unit is
 * skipped. The exponent may be written as `e`. A prefix may follow an exponent. The prefix exa needs a blank before it,
 * because `1E` begins an exponent. Groups are accepted only with three digits each (in the Indian way: two, but the
 * last one three), and not with an exponent.
 */
StyledReading readStyledNumber(const QString& text, const NumberStyle& style);

struct ForeignReading
{
    StyledReading reading;    ///< acceptable if the text can only mean one number
    bool isAmbiguous = false; ///< whether it can mean two
};

/**
 * Reads a text of unknown origin: with the signs of the style, with a decimal comma, and with a decimal point. If these
 * readings give several numbers, the text is ambiguous and not acceptable.
 */
ForeignReading readForeignNumber(const QString& text, const NumberStyle& style);

/** Writes the number that was read with the style's own signs, with its prefix but without unit. */
QString rewritten(const StyledReading& reading, const NumberStyle& style);

/** Puts the separators of the integer part where they belong. The cursor remains between the same digits. */
QString withGroupsMoved(const QString& text, int& cursor, const NumberStyle& style);

/**
 * The decimal place of the digit before `cursor`: 0 for ones, -3 for thousandths; counts the exponent and the prefix,
 * too. If no digit is before the cursor, that of the first digit; behind the digits, that of the last one. None if the
 * text is no number.
 */
std::optional<int> decimalPlaceAt(int cursor, const QString& text, const NumberStyle& style);

/** The position behind the digit with this place, or behind the last digit if that one is not shown. */
int cursorBehindPlace(int place, const QString& text, const NumberStyle& style);

} // namespace morvane::ui
