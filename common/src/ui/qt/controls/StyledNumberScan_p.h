// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/controls/StyledNumber_p.h"

#include <QByteArray>
#include <QString>
#include <QVarLengthArray>

#include <optional>

namespace morvane::ui {

/** Goes once through a text and finds the parts of a number. The text and the style must outlive it. */
class StyledNumberScan
{
public:
    StyledNumberScan(const QString& text, const NumberStyle& style);

    StyledReading reading() const;
    std::optional<int> placeAt(int cursor) const;
    int cursorBehind(int place) const;

private:
    bool atEnd() const { return m_at >= m_end; }
    QChar here() const { return m_text.at(m_at); }

    void skipBlanks();
    void skipDirectionMarks();
    void dropUnit();
    bool isDigit(int index) const;
    bool takeAny(QChar first, QChar second, QChar third);
    bool takeMinus();
    bool takePlus();
    void takeSign();
    void takeMantissa();
    bool takeSeparator();
    void takeGroup(int digits);
    bool groupsAreComplete() const;
    bool takeExponent(bool afterBlank);
    void takeExponentDigits(bool isNegative);
    void takePrefix();
    bool mayBecomeUnit(QStringView text) const;
    bool hasPrefixes() const { return m_style.notation == NumberNotation::SiPrefix; }
    int exponent() const { return m_exponent.value_or(0) + m_prefix.value_or(0); }

    const QString& m_text;
    const NumberStyle& m_style;
    int m_at = 0;
    int m_end;

    bool m_isWrong = false;               ///< no further typing helps
    bool m_isUnfinished = false;          ///< something is missing
    QByteArray m_plain;                   ///< sign and digits in the C locale
    QVarLengthArray<int, 32> m_digitEnds; ///< the positions behind the digits
    int m_wholeDigits = 0;                ///< digits before the point
    bool m_hasPoint = false;
    QChar m_separator;                ///< the one that this number uses
    QVarLengthArray<int, 8> m_groups; ///< the lengths of the groups, if there are separators
    std::optional<int> m_exponent;
    std::optional<int> m_prefix;
    QString m_symbol;
};

} // namespace morvane::ui
