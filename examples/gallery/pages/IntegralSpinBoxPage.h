#pragma once

#include "Page.h"

class QLabel;

namespace morvane::ui {
class IntegralSpinBox;
}

namespace gallery {

/** An integer whose steps the program takes over, beside one that keeps its own. */
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
