// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Page.h"

class QComboBox;
class QLabel;
class QScrollArea;

namespace morvane::ui {
class Integral64SpinBox;
class IntegralSpinBox;
} // namespace morvane::ui

namespace gallery {

/**
 * An integer spin box whose steps the program handles, one that handles its own steps, one of 64 bits, and a form that
 * scrolls although the wheel is over a spin box.
 */
class IntegralSpinBoxPage : public Page
{
    Q_OBJECT

public:
    IntegralSpinBoxPage();

    std::vector<TourStep> tourSteps(const TourWorkspace& workspace) override;

private:
    QWidget* makeRecordingGroup();
    QWidget* makeAddressGroup();
    QWidget* makeLongForm();
    void stepToPower(bool up);
    void showSize(int size);

    morvane::ui::IntegralSpinBox* m_size;
    QLabel* m_exponent;
    morvane::ui::IntegralSpinBox* m_channels;
    morvane::ui::Integral64SpinBox* m_address;
    QComboBox* m_base;
    QScrollArea* m_area;
};

} // namespace gallery
