// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/controls/NumberLineValidator_p.h"

#include <QDoubleSpinBox>
#include <QLineEdit>

#include <algorithm>
#include <utility>

namespace morvane::ui {

namespace {

void dropAffixes(QString& text, int& pos, const QDoubleSpinBox& spinBox)
{
    if (text.startsWith(spinBox.prefix())) {
        text.remove(0, spinBox.prefix().size());
        pos -= spinBox.prefix().size();
    }
    if (text.endsWith(spinBox.suffix())) {
        text.chop(spinBox.suffix().size());
    }
}

void trim(QString& text, int& pos)
{
    const auto start =
        std::find_if_not(text.cbegin(), text.cend(), [](QChar character) { return character.isSpace(); });
    pos -= static_cast<int>(start - text.cbegin());
    text = std::move(text).trimmed();
    pos = qBound(0, pos, text.size());
}

} // namespace

NumberLineValidator::NumberLineValidator(QDoubleSpinBox* spinBox) : QDoubleValidator(spinBox), m_spinBox(*spinBox) {}

NumberLineValidator::~NumberLineValidator() = default;

void NumberLineValidator::follow(const QLineEdit& line)
{
    connect(&line, &QLineEdit::selectionChanged, this, [this, &line] {
        // When the user replaces the selection, the line validates the new text before it emits this signal.
        m_isNumberSelected = line.hasSelectedText() && line.selectionEnd() > m_spinBox.prefix().size() &&
                             line.selectionStart() < line.text().size() - m_spinBox.suffix().size();
    });
}

QValidator::State NumberLineValidator::validate(QString& input, int& pos) const
{
    if (!input.isEmpty() && input == m_spinBox.specialValueText()) {
        m_line = input;
        return Acceptable;
    }
    QString number = input;
    int cursor = pos;
    dropAffixes(number, cursor, m_spinBox);
    const bool wasTyped = !number.isEmpty();
    trim(number, cursor);
    const QString line = m_spinBox.prefix() + number + m_spinBox.suffix();
    const State state = QDoubleValidator::validate(number, cursor);
    const bool onlyAffixesChange = line == m_line && line != input && !m_isNumberSelected;
    if (state == Invalid || (wasTyped && number.isEmpty()) || onlyAffixesChange) {
        return Invalid;
    }
    input = line;
    pos = m_spinBox.prefix().size() + cursor;
    m_line = line;
    return state;
}

} // namespace morvane::ui
