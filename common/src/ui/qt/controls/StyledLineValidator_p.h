// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/controls/StyledNumber_p.h"

#include <QSet>
#include <QString>
#include <QValidator>

#include <functional>

class QDoubleSpinBox;
class QLineEdit;

namespace morvane::ui {

/**
 * Validates each change in the line of a spin box whose numbers have prefixes of the SI, or are written in a language.
 *
 * Adds prefix and suffix of the spin box where they are missing. A typed unit replaces the one that is there already. A
 * text of several characters that is put in at once is read as readForeignNumber() does, if the spin box has a
 * language, and is rewritten with the signs of that language. When digits are typed or deleted in a number that the
 * spin box has written in groups, the separators move.
 */
class StyledLineValidator : public QValidator
{
public:
    using StyleSource = std::function<const NumberStyle&()>;

    /**
     * @param spinBox owner; has the prefix, the suffix and the special value text
     * @param style   how numbers are written at the moment
     */
    StyledLineValidator(QDoubleSpinBox* spinBox, StyleSource style);
    ~StyledLineValidator() override;

    /** Watches the selection in the line, to know what a change replaces. */
    void follow(const QLineEdit& line);

    /** Takes this text as the one that was accepted last. */
    void begin(const QString& line) const;

    /** Whether texts that are put in at once may come from other languages. */
    void setTakesForeignNumbers(bool takes) { m_takesForeign = takes; }

    /** Whether this text was put into the line at once and can mean two numbers. */
    bool isAmbiguous(const QString& line) const { return !m_ambiguous.isNull() && line == m_ambiguous; }

    State validate(QString& input, int& pos) const override;

private:
    State validateChange(QString& input, int& pos) const;
    int lengthPutIn(const QString& input) const;
    bool moveGroups(QString& number, int& cursor, const QString& putIn, const NumberStyle& style) const;
    bool isShownValue(const QString& input) const;
    bool foldsUnit(const QString& number, int added, const NumberStyle& style) const;
    bool translate(QString& number, const NumberStyle& style) const;

    const QDoubleSpinBox& m_spinBox;
    const StyleSource m_style;
    bool m_takesForeign = false;
    mutable QString m_line; ///< the text that was accepted last
    mutable QString m_ambiguous;
    mutable bool m_hasOwnGroups = false; ///< whether the spin box has put the separators in the line, not the user
    mutable bool m_hasFolded = false;    ///< whether the last change was a unit that was there already
    mutable QSet<QString> m_typed;       ///< what the line has shown while the user typed since the value was set
    const QLineEdit* m_lineEdit = nullptr;
    QString m_selectionLine; ///< the line when something was selected
    int m_selectedLength = 0;
    int m_cursor = 0; ///< before the change
    bool m_isNumberSelected = false;
    bool m_isSuffixSelected = false;
};

} // namespace morvane::ui
