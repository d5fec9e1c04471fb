// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Page.h"

class QLabel;
class QLineEdit;

namespace morvane::ui {
class ComboBoxAutoFilter;
class IntegralSpinBox;
} // namespace morvane::ui

namespace gallery {

/** Filtering combo boxes among the other fields of a form. They stay open, and Tab moves to the next field. */
class FormFieldsPage : public Page
{
    Q_OBJECT

public:
    FormFieldsPage();

    std::vector<TourStep> tourSteps(const TourWorkspace& workspace) override;

private:
    void prepareField(morvane::ui::ComboBoxAutoFilter& field, const QStringList& entries);
    void prepareChannel();
    void showForm();

    QLineEdit* m_operator;
    morvane::ui::ComboBoxAutoFilter* m_substance;
    morvane::ui::ComboBoxAutoFilter* m_device;
    morvane::ui::IntegralSpinBox* m_samples;
    morvane::ui::ComboBoxAutoFilter* m_channel;
    QLabel* m_held;
};

} // namespace gallery
