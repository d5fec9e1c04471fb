// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/controls/IntegerLineValidator_p.h"

#include "ui/qt/controls/Integral64SpinBox.h"
#include "ui/qt/controls/PutIn_p.h"

#include <QLineEdit>

namespace morvane::ui {

IntegerLineValidator::IntegerLineValidator(Integral64SpinBox* spinBox) : QValidator(spinBox), m_spinBox(*spinBox) {}

IntegerLineValidator::~IntegerLineValidator() = default;

void IntegerLineValidator::follow(QLineEdit& line)
{
    connect(&line, &QLineEdit::selectionChanged, this, [this, &line] {
        // When the user replaces the selection, the line validates the new text before it emits this signal.
        const auto first = m_spinBox.prefix().size();
        const auto last = line.text().size() - m_spinBox.suffix().size();
        const bool isSelected = line.hasSelectedText();
        m_isNumberSelected = isSelected && line.selectionEnd() > first && line.selectionStart() < last;
        m_isWholeSelected = isSelected && line.selectionEnd() >= last && line.selectionStart() <= first;
    });
    connect(&line, &QLineEdit::cursorPositionChanged, this, [this, &line] { watchCursor(line); });
}

void IntegerLineValidator::watchCursor(QLineEdit& line)
{
    const auto first = static_cast<int>(m_spinBox.prefix().size());
    const auto last = static_cast<int>(line.text().size() - m_spinBox.suffix().size());
    m_cursor = line.cursorPosition();
    if (!line.hasSelectedText() && first <= last && line.text() != m_spinBox.specialValueText() &&
        m_cursor != qBound(first, m_cursor, last)) {
        m_cursor = qBound(first, m_cursor, last);
        line.setCursorPosition(m_cursor);
    }
}

QString IntegerLineValidator::numberIn(const QString& line, int& cursor) const
{
    QString number = line;
    if (number.startsWith(m_spinBox.prefix())) {
        number.remove(0, m_spinBox.prefix().size());
        cursor -= static_cast<int>(m_spinBox.prefix().size());
    }
    if (number.endsWith(m_spinBox.suffix())) {
        number.chop(m_spinBox.suffix().size());
    }
    const QString trimmed = number.trimmed();
    cursor -= static_cast<int>(number.indexOf(trimmed));
    cursor = qBound(0, cursor, static_cast<int>(trimmed.size()));
    return trimmed;
}

QString IntegerLineValidator::withSeparatorsMoved(const QString& number, int& cursor) const
{
    int before = 0;
    const QString old = numberIn(m_line, before);
    const bool mayBePutIn = m_isWholeSelected && number.contains(m_style.groupSeparator);
    if (readInteger(old, m_style).state != Acceptable || mayBePutIn ||
        putIn(old, number).contains(m_style.groupSeparator)) {
        return number;
    }
    QString result = regrouped(number, cursor, m_style);
    // The Delete key before a separator passes it.
    const int typedAt = m_cursor - static_cast<int>(m_spinBox.prefix().size());
    if (result == old && typedAt == cursor) {
        cursor += static_cast<int>(m_style.groupSeparator.size());
    }
    return result;
}

QValidator::State IntegerLineValidator::validate(QString& input, int& pos) const
{
    if (input == m_line || (!input.isEmpty() && input == m_spinBox.specialValueText())) {
        m_line = input;
        return Acceptable;
    }
    int cursor = pos;
    QString number = numberIn(input, cursor);
    if (!m_style.groupSeparator.isEmpty()) {
        number = withSeparatorsMoved(number, cursor);
    }
    QString line = m_spinBox.prefix() + number + m_spinBox.suffix();
    int linePos = static_cast<int>(m_spinBox.prefix().size()) + cursor;
    const bool onlyAffixesChange = line == m_line && line != input && m_style.groupSeparator.isEmpty();
    const State state = m_spinBox.validate(line, linePos);
    if (state == Invalid || (onlyAffixesChange && !m_isNumberSelected)) {
        return Invalid;
    }
    input = line;
    pos = linePos;
    m_line = line;
    return state;
}

} // namespace morvane::ui
