// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/controls/StyledLineValidator_p.h"

#include "ui/qt/controls/PutIn_p.h"
#include "ui/qt/controls/SiPrefixes_p.h"

#include <QDoubleSpinBox>
#include <QLineEdit>

#include <algorithm>
#include <utility>

namespace morvane::ui {

StyledLineValidator::StyledLineValidator(QDoubleSpinBox* spinBox, StyleSource style)
    : QValidator(spinBox), m_spinBox(*spinBox), m_style(std::move(style))
{
}

StyledLineValidator::~StyledLineValidator() = default;

void StyledLineValidator::follow(const QLineEdit& line)
{
    m_lineEdit = &line;
    connect(&line, &QLineEdit::cursorPositionChanged, this, [this](int, int now) { m_cursor = now; });
    connect(&line, &QLineEdit::selectionChanged, this, [this, &line] {
        // When the user replaces the selection, the line validates the new text before it emits this signal.
        const auto behindNumber = line.text().size() - m_spinBox.suffix().size();
        m_selectionLine = line.text();
        m_selectedLength = static_cast<int>(line.selectedText().size());
        m_isSuffixSelected = line.hasSelectedText() && line.selectionEnd() > behindNumber;
        m_isNumberSelected = line.hasSelectedText() && line.selectionEnd() > m_spinBox.prefix().size() &&
                             line.selectionStart() < behindNumber;
    });
}

void StyledLineValidator::begin(const QString& line) const
{
    m_line = line;
    m_ambiguous = QString();
    m_hasFolded = false;
    m_hasOwnGroups = m_style().hasGroups;
    if (m_lineEdit && !m_lineEdit->isUndoAvailable() && !m_lineEdit->isRedoAvailable()) {
        m_typed.clear();
    }
}

QValidator::State StyledLineValidator::validate(QString& input, int& pos) const
{
    if (input == m_line) {
        return isAmbiguous(input) ? Intermediate
                                  : readStyledNumber(input.mid(m_spinBox.prefix().size()), m_style()).state;
    }
    if (isShownValue(input)) {
        begin(input);
        return Acceptable;
    }
    return validateChange(input, pos);
}

/** Whether the text is that of the value or of the special value, as the spin box itself sets it. */
bool StyledLineValidator::isShownValue(const QString& input) const
{
    return (!input.isEmpty() && input == m_spinBox.specialValueText()) ||
           input == m_spinBox.prefix() + m_spinBox.textFromValue(m_spinBox.value()) + m_spinBox.suffix();
}

/** How many characters the user has put in at once; also if some of them equal those that they replace. */
int StyledLineValidator::lengthPutIn(const QString& input) const
{
    const int selected = m_selectionLine == m_line ? m_selectedLength : 0;
    const auto longer = static_cast<int>(input.size() - m_line.size()) + selected;
    return std::max(longer, static_cast<int>(putIn(m_line, input).size()));
}

/**
 * After typing or deleting digits in a number whose separators were written by the spin box. Separators that the user
 * has typed stay: `1.2345` in a German field is no number, because the point may be meant as decimal point.
 */
bool StyledLineValidator::moveGroups(QString& number, int& cursor, const QString& putIn, const NumberStyle& style) const
{
    const auto isSeparator = [&style](QChar character) { return style.signs.groupSeparators.contains(character); };
    if (std::any_of(putIn.begin(), putIn.end(), isSeparator) ||
        std::none_of(number.begin(), number.end(), isSeparator)) {
        m_hasOwnGroups = false;
    }
    if (!m_hasOwnGroups || !style.hasGroups) {
        return false;
    }
    int newCursor = cursor;
    const QString moved = withGroupsMoved(number, newCursor, style);
    if (moved == number || readStyledNumber(moved, style).state != Acceptable) {
        return false;
    }
    const auto prefix = static_cast<int>(m_spinBox.prefix().size());
    // The Delete key before a separator passes it.
    const bool passes = m_line == m_spinBox.prefix() + moved + m_spinBox.suffix() && m_cursor - prefix == newCursor;
    number = moved;
    cursor = newCursor + (passes ? 1 : 0);
    return true;
}

QValidator::State StyledLineValidator::validateChange(QString& input, int& pos) const
{
    const NumberStyle& style = m_style();
    // What was typed before comes back when the user undoes or redoes a change.
    const int added = m_typed.contains(input) ? 0 : lengthPutIn(input);
    QString number = input;
    int cursor = pos;
    if (number.startsWith(m_spinBox.prefix())) {
        number.remove(0, m_spinBox.prefix().size());
        cursor -= static_cast<int>(m_spinBox.prefix().size());
    }
    if (number.endsWith(m_spinBox.suffix())) {
        number.chop(m_spinBox.suffix().size());
    }
    const bool folds = foldsUnit(number, added, style);
    if (folds) {
        number = number.trimmed().chopped(style.unit.size());
    }
    const bool isAmbiguousNow = m_takesForeign && added > 1 && translate(number, style);
    const bool moves = !folds && moveGroups(number, cursor, putIn(m_line, input), style);
    const QString line = m_spinBox.prefix() + number + m_spinBox.suffix();
    const bool onlyAffixesChange = line == m_line && line != input && !folds && !moves && !m_isNumberSelected;
    const State state = readStyledNumber(number + m_spinBox.suffix(), style).state;
    if (state == Invalid || onlyAffixesChange) {
        return Invalid;
    }
    cursor = added > 1 || folds ? std::min(cursor, static_cast<int>(number.size())) : cursor;
    input = line;
    pos = static_cast<int>(m_spinBox.prefix().size()) + qBound(0, cursor, static_cast<int>(number.size()));
    m_line = line;
    if (added <= 1) {
        m_typed.insert(line);
    }
    m_hasFolded = folds;
    m_ambiguous = isAmbiguousNow ? line : QString();
    return isAmbiguousNow ? Intermediate : state;
}

/**
 * Whether the number ends with a unit that was put in before the one of the line.
 *
 * If the unit is the letter of a prefix, such as `m`, the letter that is typed first is the unit: `4.7m`. The second
 * one makes the first one a prefix: `4.7mm`.
 */
bool StyledLineValidator::foldsUnit(const QString& number, int added, const NumberStyle& style) const
{
    if (style.unit.isEmpty() || added == 0 || m_isSuffixSelected || !number.trimmed().endsWith(style.unit) ||
        readStyledNumber(number, style).state == Invalid) {
        return false;
    }
    const bool isPrefix = style.notation == NumberNotation::SiPrefix && siExponent(style.unit);
    return !isPrefix || added > 1 || !m_hasFolded;
}

/** Rewrites a number of another language. Returns whether it can mean two numbers. */
bool StyledLineValidator::translate(QString& number, const NumberStyle& style) const
{
    const QString text = number + m_spinBox.suffix();
    const ForeignReading foreign = readForeignNumber(text, style);
    if (!foreign.isAmbiguous && foreign.reading.state == Acceptable &&
        readStyledNumber(text, style).state != Acceptable) {
        number = rewritten(foreign.reading, style);
        if (!foreign.reading.symbol.isEmpty() || style.notation != NumberNotation::SiPrefix || style.unit.isEmpty()) {
            return false;
        }
        number += QLatin1Char(' ');
    }
    return foreign.isAmbiguous;
}

} // namespace morvane::ui
