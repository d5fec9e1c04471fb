// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Page.h"
#include "property/Property.h"

#include <string>

class QLabel;
class QLineEdit;
class QPushButton;
class QSlider;
class QSpinBox;

namespace gallery {

class InlineNote;

/** Two validated properties. Each is bound to fields in both directions. */
class PropertyPage : public Page
{
    Q_OBJECT

public:
    PropertyPage();

    std::vector<TourStep> tourSteps(const TourWorkspace& workspace) override;

private:
    QWidget* makeSamplesGroup();
    QWidget* makeOperatorGroup();
    void bindSamples();
    void bindOperator();
    void restoreInitialValues();
    void showSamples(int samples);
    void showOperator(const std::string& name);

    boost::shared_ptr<morvane::PropertyAbstract<int>> m_samples;
    boost::shared_ptr<morvane::PropertyAbstract<std::string>> m_operator;

    QSpinBox* m_samplesField;
    QSlider* m_samplesSlider;
    QLabel* m_samplesHeld;
    InlineNote* m_samplesNote;
    QLineEdit* m_operatorField;
    QLabel* m_operatorHeld;
    InlineNote* m_operatorNote;
    QPushButton* m_restore;
};

} // namespace gallery
