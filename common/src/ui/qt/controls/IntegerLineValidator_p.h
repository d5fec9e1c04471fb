// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/controls/IntegerText_p.h"

#include <QString>
#include <QValidator>

class QLineEdit;

namespace morvane::ui {

class Integral64SpinBox;

/**
 * Validates each change in the line of an Integral64SpinBox. Adds prefix and suffix where they are missing. When digits
 * are typed or deleted in a number whose separators are where they belong, moves the separators.
 */
class IntegerLineValidator : public QValidator
{
public:
    /** @param spinBox owner */
    explicit IntegerLineValidator(Integral64SpinBox* spinBox);
    ~IntegerLineValidator() override;

    /** Watches the cursor and the selection in the line, and keeps the cursor in the number. */
    void follow(QLineEdit& line);
    void setStyle(const IntegerStyle& style) { m_style = style; }

    State validate(QString& input, int& pos) const override;

private:
    void watchCursor(QLineEdit& line);
    QString numberIn(const QString& line, int& cursor) const;
    QString withSeparatorsMoved(const QString& number, int& cursor) const;

    const Integral64SpinBox& m_spinBox;
    IntegerStyle m_style;
    mutable QString m_line; ///< the text that was accepted last
    int m_cursor = 0;       ///< before the change
    bool m_isNumberSelected = false;
    bool m_isWholeSelected = false;
};

} // namespace morvane::ui
