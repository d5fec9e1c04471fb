// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/controls/StyledNumberScan_p.h"

#include "ui/qt/controls/SiPrefixes_p.h"

#include <algorithm>
#include <cmath>

namespace morvane::ui {

namespace {

constexpr int largestExponent = 100000; ///< far beyond any double, and far from an overflow

bool isDirectionMark(QChar character)
{
    return character == QChar(0x200e) || character == QChar(0x200f) || character == QChar(0x061c);
}

/** Makes equal what Unicode has twice: ohm, kelvin, angstrom, micro. */
QChar unified(QChar character)
{
    switch (character.unicode()) {
    case 0x2126:
        return QChar(0x03a9);
    case 0x212a:
        return QLatin1Char('K');
    case 0x212b:
        return QChar(0x00c5);
    case 0x03bc:
        return QChar(0x00b5);
    default:
        return character;
    }
}

bool equals(QStringView a, QStringView b)
{
    return std::equal(
        a.begin(), a.end(), b.begin(), b.end(), [](QChar x, QChar y) { return unified(x) == unified(y); });
}

} // namespace

StyledNumberScan::StyledNumberScan(const QString& text, const NumberStyle& style)
    : m_text(text), m_style(style), m_end(static_cast<int>(text.size()))
{
    m_plain.reserve(m_end + 1);
    skipBlanks();
    while (!atEnd() && (m_text.at(m_end - 1).isSpace() || isDirectionMark(m_text.at(m_end - 1)))) {
        --m_end;
    }
    dropUnit();
    takeSign();
    takeMantissa();
    const int behindDigits = m_at;
    skipBlanks();
    if (takeExponent(m_at > behindDigits)) {
        skipBlanks();
    }
    takePrefix();
}

void StyledNumberScan::skipBlanks()
{
    while (!atEnd() && (here().isSpace() || isDirectionMark(here()))) {
        ++m_at;
    }
}

void StyledNumberScan::skipDirectionMarks()
{
    while (!atEnd() && isDirectionMark(here())) {
        ++m_at;
    }
}

void StyledNumberScan::dropUnit()
{
    const QString& unit = m_style.unit;
    const int start = m_end - static_cast<int>(unit.size());
    if (unit.isEmpty() || start < m_at || !equals(QStringView(m_text).mid(start, unit.size()), unit)) {
        return;
    }
    m_end = start;
    while (!atEnd() && m_text.at(m_end - 1).isSpace()) {
        --m_end;
    }
}

bool StyledNumberScan::isDigit(int index) const
{
    int units = 1;
    return index < m_end && digitAt(m_text, index, m_style.signs, &units) >= 0;
}

bool StyledNumberScan::takeAny(QChar first, QChar second, QChar third)
{
    const bool found = !atEnd() && (here() == first || here() == second || here() == third);
    m_at += found ? 1 : 0;
    return found;
}

bool StyledNumberScan::takeMinus()
{
    return takeAny(QLatin1Char('-'), QChar(0x2212), m_style.signs.minus.back());
}

bool StyledNumberScan::takePlus()
{
    return takeAny(QLatin1Char('+'), QLatin1Char('+'), m_style.signs.plus.back());
}

void StyledNumberScan::takeSign()
{
    if (takeMinus()) {
        m_plain.append('-');
    } else {
        takePlus();
    }
    skipDirectionMarks();
}

void StyledNumberScan::takeMantissa()
{
    int inGroup = 0;
    while (!atEnd()) {
        int units = 1;
        const int digit = digitAt(m_text, m_at, m_style.signs, &units);
        if (digit >= 0) {
            m_plain.append(static_cast<char>('0' + digit));
            m_at += units;
            m_digitEnds.push_back(m_at);
            m_wholeDigits += m_hasPoint ? 0 : 1;
            ++inGroup;
        } else if (!m_hasPoint && m_style.signs.decimalPoints.contains(here())) {
            m_hasPoint = true;
            m_plain.append('.');
            ++m_at;
            takeGroup(inGroup);
        } else if (!m_hasPoint && takeSeparator()) {
            m_groups.push_back(inGroup);
            inGroup = 0;
        } else {
            break;
        }
    }
    if (!m_hasPoint) {
        takeGroup(inGroup);
    }
    m_isUnfinished = m_digitEnds.isEmpty() || !groupsAreComplete();
}

bool StyledNumberScan::takeSeparator()
{
    const QChar character = here();
    const bool isSeparator =
        m_groups.isEmpty() ? m_style.signs.groupSeparators.contains(character) : character == m_separator;
    // A blank may also stand before the prefix or the exponent.
    if (!isSeparator || (character.isSpace() && !isDigit(m_at + 1))) {
        return false;
    }
    m_separator = character;
    ++m_at;
    return true;
}

void StyledNumberScan::takeGroup(int digits)
{
    if (!m_groups.isEmpty()) {
        m_groups.push_back(digits);
    }
}

bool StyledNumberScan::groupsAreComplete() const
{
    if (m_groups.isEmpty() || m_digitEnds.isEmpty()) {
        return m_groups.isEmpty();
    }
    const int inner = m_groups.size() > 2 && m_groups[1] == 2 ? 2 : 3;
    const char first = m_plain.at(m_plain.startsWith('-') ? 1 : 0);
    return m_groups.first() >= 1 && m_groups.first() <= inner && first != '0' && m_groups.last() == 3 &&
           std::all_of(m_groups.begin() + 1, m_groups.end() - 1, [inner](int digits) { return digits == inner; });
}

bool StyledNumberScan::takeExponent(bool afterBlank)
{
    if (atEnd() || here().toUpper() != QLatin1Char('E')) {
        return false;
    }
    const int letter = m_at++;
    skipDirectionMarks();
    const bool isExa = hasPrefixes() && afterBlank && atEnd() && m_text.at(letter) == QLatin1Char('E');
    const bool isNegative = takeMinus();
    if (!isNegative) {
        takePlus();
    }
    skipDirectionMarks();
    if (isExa || (!atEnd() && !isDigit(m_at))) {
        m_at = letter;
        return false;
    }
    takeExponentDigits(isNegative);
    return true;
}

void StyledNumberScan::takeExponentDigits(bool isNegative)
{
    int value = 0;
    int digits = 0;
    int units = 1;
    for (; !atEnd(); m_at += units, ++digits) {
        const int digit = digitAt(m_text, m_at, m_style.signs, &units);
        if (digit < 0) {
            break;
        }
        value = std::min(value * 10 + digit, largestExponent);
    }
    m_exponent = isNegative ? -value : value;
    m_isUnfinished = m_isUnfinished || digits == 0 || !m_groups.isEmpty();
}

void StyledNumberScan::takePrefix()
{
    const QStringView rest = QStringView(m_text).mid(m_at, m_end - m_at);
    if (rest.isEmpty()) {
        return;
    }
    if (hasPrefixes()) {
        m_prefix = siExponent(rest);
    }
    if (m_prefix) {
        m_symbol = rest.toString();
        return;
    }
    m_isUnfinished = true;
    m_isWrong = !mayBecomeUnit(rest);
}

/** Whether a text begins the unit, or is a prefix and begins the unit. */
bool StyledNumberScan::mayBecomeUnit(QStringView text) const
{
    const auto beginsUnit = [this](QStringView part) {
        const QStringView unit(m_style.unit);
        const QStringView trimmed = part.trimmed();
        return trimmed.size() < unit.size() && equals(trimmed, unit.left(trimmed.size()));
    };
    return beginsUnit(text) || (hasPrefixes() && ((siExponent(text.left(1)) && beginsUnit(text.mid(1))) ||
                                                     (siExponent(text.left(2)) && beginsUnit(text.mid(2)))));
}

StyledReading StyledNumberScan::reading() const
{
    StyledReading result;
    if (m_isWrong) {
        return result;
    }
    result.state = QValidator::Intermediate;
    if (m_isUnfinished) {
        return result;
    }
    result.plain = m_exponent ? m_plain + 'E' + QByteArray::number(*m_exponent) : m_plain;
    result.symbol = m_symbol;
    bool isDouble = false;
    const QByteArray number = m_prefix ? m_plain + 'E' + QByteArray::number(exponent()) : result.plain;
    result.value = number.toDouble(&isDouble);
    if (isDouble && std::isfinite(result.value)) {
        result.state = QValidator::Acceptable;
    }
    return result;
}

std::optional<int> StyledNumberScan::placeAt(int cursor) const
{
    if (m_isWrong || m_digitEnds.isEmpty()) {
        return std::nullopt;
    }
    const auto behind = std::upper_bound(m_digitEnds.begin(), m_digitEnds.end(), cursor);
    const int index = std::max(0, static_cast<int>(behind - m_digitEnds.begin()) - 1);
    return m_wholeDigits - 1 - index + exponent();
}

int StyledNumberScan::cursorBehind(int place) const
{
    if (m_digitEnds.isEmpty()) {
        return m_end;
    }
    const int last = static_cast<int>(m_digitEnds.size()) - 1;
    return m_digitEnds[static_cast<std::size_t>(qBound(0, m_wholeDigits - 1 - place + exponent(), last))];
}

} // namespace morvane::ui
