// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Page.h"

class QLabel;

namespace morvane::ui {
class IntegralSpinBox;
}

namespace gallery {

/** An integer spin box whose steps the program handles, and one that handles its own steps. */
class IntegralSpinBoxPage : public Page
{
    Q_OBJECT

public:
    IntegralSpinBoxPage();

    std::vector<TourStep> tourSteps(const TourWorkspace& workspace) override;

private:
    void stepToPower(bool up);
    void showSize(int size);

    morvane::ui::IntegralSpinBox* m_size;
    QLabel* m_exponent;
    morvane::ui::IntegralSpinBox* m_channels;
};

} // namespace gallery
