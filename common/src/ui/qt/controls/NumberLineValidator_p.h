// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDoubleValidator>
#include <QString>

class QDoubleSpinBox;
class QLineEdit;

namespace morvane::ui {

/**
 * Validates each change in the line of a spin box. Accepts the special value text, and what a QDoubleValidator accepts
 * between prefix and suffix. Adds prefix and suffix where they are missing.
 *
 * Removes white space around the number, which numbers from a spreadsheet may have. Rejects a text of white space only,
 * and a change of prefix or suffix alone unless the number is selected.
 */
class NumberLineValidator : public QDoubleValidator
{
public:
    /** @param spinBox owner; has the prefix, the suffix and the special value text */
    explicit NumberLineValidator(QDoubleSpinBox* spinBox);
    ~NumberLineValidator() override;

    /** Watches the selection in the line, to know whether a change replaces the number. */
    void follow(const QLineEdit& line);

    State validate(QString& input, int& pos) const override;

private:
    const QDoubleSpinBox& m_spinBox;
    mutable QString m_line; ///< the text that was accepted last
    bool m_isNumberSelected = false;
};

} // namespace morvane::ui
