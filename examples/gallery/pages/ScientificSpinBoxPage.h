// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Page.h"

#include <boost/signals2/connection.hpp>

#include <vector>

class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QSpinBox;

namespace morvane::ui {
class QScientificSpinBox;
}

namespace gallery {

/**
 * Physical constants that are edited in scientific notation, the validation state of the typed text, and a field with
 * the other notations, languages and steps.
 */
class ScientificSpinBoxPage : public Page
{
    Q_OBJECT

public:
    ScientificSpinBoxPage();

    std::vector<TourStep> tourSteps(const TourWorkspace& workspace) override;

private:
    using SpinBox = morvane::ui::QScientificSpinBox;

    QWidget* makeConstantsGroup();
    QWidget* makeValidationGroup();
    QWidget* makeReadingGroup();
    void showReading();
    SpinBox* addConstant(QFormLayout& form, const QString& label, double value, const QString& unit);
    void stepByDecades(bool decades);
    void showDigits(int digits);
    void showValidation();

    std::vector<SpinBox*> m_constants;
    std::vector<boost::signals2::scoped_connection> m_decadeSteps;
    QCheckBox* m_decades;
    QSpinBox* m_digits;
    SpinBox* m_pressure;
    QLineEdit* m_pressureLine;
    QLabel* m_state;
    QLabel* m_value;
    SpinBox* m_reading;
    QComboBox* m_notation;
    QComboBox* m_language;
    QComboBox* m_stepMode;
    QLabel* m_readingValue;
};

} // namespace gallery
