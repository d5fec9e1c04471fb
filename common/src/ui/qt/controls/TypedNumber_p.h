// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractSpinBox>
#include <QLineEdit>
#include <QString>
#include <QValidator>

namespace morvane::ui {

/** Remembers the text that was typed into a spin box after its value was set. */
class TypedText
{
public:
    /** Watches the line of a spin box and the signal `valueChanged`. */
    template <typename SpinBox, typename ValueChanged>
    void follow(SpinBox& spinBox, const QLineEdit& line, ValueChanged valueChanged)
    {
        QObject::connect(&line, &QLineEdit::textChanged, &spinBox, [this](const QString& text) { m_text = text; });
        QObject::connect(&spinBox, valueChanged, &spinBox, [this] { m_text = QString(); });
    }

    /** Whether the line still shows the typed text. A spin box may replace it without a signal. */
    bool isShownBy(const QLineEdit& line) const { return !m_text.isNull() && m_text == line.displayText(); }

private:
    QString m_text;
};

/**
 * The value that the spin box would have after Return, with the text in `line`.
 *
 * @param valueOf turns an acceptable text into a number
 */
template <typename SpinBox, typename ValueOf>
auto valueOnReturn(const SpinBox& spinBox, const QLineEdit& line, ValueOf valueOf)
{
    using Number = decltype(spinBox.value());
    const QAbstractSpinBox& base = spinBox;
    QString text = line.displayText();
    int pos = line.cursorPosition();
    if (base.validate(text, pos) != QValidator::Acceptable) {
        const QString refused = text;
        base.fixup(text);
        if (text == refused || base.validate(text, pos) != QValidator::Acceptable) {
            return spinBox.correctionMode() == QAbstractSpinBox::CorrectToNearestValue
                       ? qBound(spinBox.minimum(), Number(0), spinBox.maximum())
                       : spinBox.value();
        }
    }
    const Number number = valueOf(text);
    if (spinBox.minimum() <= number && number <= spinBox.maximum()) {
        return number;
    }
    const bool nearMinimum = (number < spinBox.minimum()) != spinBox.wrapping();
    return nearMinimum ? spinBox.minimum() : spinBox.maximum();
}

} // namespace morvane::ui
